// The area of the layout dialog that shows the fields of one axis and takes dropped ones.
#pragma once

#include <QList>
#include <QMimeData>
#include <QString>
#include <QVBoxLayout>
#include <QWidget>
#include <functional>
#include <optional>

#include "ui/field_button.h"

namespace vrel {

/// A field as a zone shows it.
struct ShownField {
  int field;
  QString name;
};

class FieldZone : public QWidget {
  Q_OBJECT

 public:
  /// Takes only what `accepts` says yes to.
  FieldZone(std::function<bool(const QMimeData& mime)> accepts, QWidget* parent = nullptr);

  /// Shows these fields in that order. Buttons of fields that stay are kept; where nothing differs
  /// nothing is touched.
  void setFields(const QList<ShownField>& fields);
  /// From the top down.
  const QList<FieldButton*>& buttons() const { return buttons_; }

  /// The place in the list for a drop at that height: in front of the first button whose lower
  /// edge lies below it.
  int dropIndex(int y) const;
  /// Where a drop would go at present; nothing without a drag over the zone.
  std::optional<int> marked() const { return marked_; }

 signals:
  void buttonAdded(vrel::FieldButton* button);
  void dropped(int index);
  /// A drag is over this point.
  void draggedOver(QPoint position);

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  FieldButton* takeButton(const ShownField& shown);
  void follow(QDragMoveEvent& event);
  void mark(std::optional<int> index);
  int heightOfMark() const;

  std::function<bool(const QMimeData& mime)> accepts_;
  QVBoxLayout* column_;
  QList<FieldButton*> buttons_;
  std::optional<int> marked_;
};

}  // namespace vrel
