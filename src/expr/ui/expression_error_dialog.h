// What is wrong with a formula, shown to the user.
#pragma once

#include <QDialog>
#include <QScrollArea>
#include <QWidget>
#include <cstddef>
#include <optional>
#include <string_view>

#include "model/field.h"

namespace vrel {

/// A formula's text on one line, with a marker below the character where its error stands.
class MarkedFormula final : public QWidget {
  Q_OBJECT

 public:
  /// The position counts bytes of the UTF-8 text; no marker without one.
  MarkedFormula(std::string_view text, std::optional<std::size_t> errorPosition,
                QWidget* parent = nullptr);

  const QString& text() const { return text_; }
  /// Where the marker stands, in pixels from the text's left edge.
  std::optional<int> markerPosition() const;

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString text_;
  // Characters of the text before the error.
  std::optional<qsizetype> errorAt_;
};

class ExpressionErrorDialog : public QDialog {
  Q_OBJECT

 public:
  /// `message` says what could not be done. A syntax error may have a position in the text.
  ExpressionErrorDialog(const QString& message, FormulaError kind, std::string_view formula,
                        std::optional<std::size_t> errorPosition, QWidget* parent = nullptr);

 protected:
  /// Scrolls to the error.
  void showEvent(QShowEvent* event) override;

 private:
  MarkedFormula* formula_;
  QScrollArea* area_;
};

}  // namespace vrel
