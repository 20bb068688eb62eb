// The field that formulas are written in.
#pragma once

#include <QCompleter>
#include <QLabel>
#include <QPlainTextEdit>
#include <QStandardItemModel>
#include <string>
#include <string_view>
#include <vector>

#include "expr/formula_help.h"
#include "model/table.h"

namespace vrel {

/// A formula is one line, wrapped where it is long. While it is written, a list offers fields and
/// functions for the word at the cursor, and what is wrong is underlined and told.
class FormulaEdit : public QPlainTextEdit {
  Q_OBJECT

 public:
  /// The kind of dragged data that is a function's name.
  static constexpr const char* kFunctionFormat = "x-qnt/x-function";

  explicit FormulaEdit(QWidget* parent = nullptr);

  /// What formulas may name; both must outlive the widget. Before that nothing is checked.
  void setLanguage(const FunctionRegistry& functions, const Table& table);
  /// Where it is told what is wrong.
  void setMessageLabel(QLabel* label);

  void setFormula(std::string_view formula);
  std::string formula() const;

  /// Puts a call of a function in the place of the selection, or where the cursor is.
  void insertCall(const FunctionRecord& function);

  /// What is wrong with a formula, in words; empty when nothing is.
  static QString messageOf(const FormulaCheck& check);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 public slots:
  /// Checks the formula anew: the fields it may name are others.
  void checkFormula();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool canInsertFromMimeData(const QMimeData* source) const override;
  void insertFromMimeData(const QMimeData* source) override;

 private:
  enum class Asked { ByTyping, ByKey };

  int heightOf(int lines) const;
  QString rawText() const;
  std::size_t cursorByte() const;
  int positionOf(std::size_t byte) const;
  void offerCompletions(Asked asked);
  void showPopup();
  void complete(const QModelIndex& chosen);
  void replace(int start, int end, const Completion& with);
  void markErrors(const FormulaCheck& check);
  QTextEdit::ExtraSelection underlined(std::size_t start, std::size_t length, QColor color) const;

  const FunctionRegistry* functions_ = nullptr;
  const Table* table_ = nullptr;
  QLabel* message_ = nullptr;
  QStandardItemModel* offered_;
  QCompleter* completer_;
  // Behind the rows of `offered_`.
  std::vector<Completion> completions_;
};

}  // namespace vrel
