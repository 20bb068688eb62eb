// The dialog over the order of the fields on the axes of the report.
#pragma once

#include <QDialog>
#include <QGridLayout>
#include <QPointer>
#include <QScrollArea>
#include <array>
#include <functional>

#include "model/field_order.h"
#include "ui/field_zone.h"
#include "ui/run_drag.h"

namespace vrel {

/// Takes a field to a place of the view, see `moveField`, and shows the report that comes of it.
using TakeField = std::function<void(int field, LayoutPlace before)>;

/// Not modal: stands beside the report, which follows each move at once.
class ConfigureLayoutDialog : public QDialog {
  Q_OBJECT

 public:
  /// The view outlives the dialog.
  ConfigureLayoutDialog(const ReportView& view, TakeField takeField, QWidget* parent = nullptr);

  /// Shows the lists and names of the view as they are now; touches nothing where they are shown.
  void showView();
  /// Tests drag in their own way.
  void setRunDrag(RunDrag runDrag) { runDrag_ = std::move(runDrag); }

 private:
  struct Area {
    FieldZone* zone;
    QScrollArea* scroll;
  };

  void addZone(QGridLayout& zones, std::size_t number);
  void connectZone(const Area& area, Axis axis);
  void connectButton(FieldButton* button);
  bool isDragged(const QMimeData& mime) const;
  void drag(FieldButton* button);
  void move(int field, LayoutPlace before);
  void step(int field, FieldStep step);
  void goToNeighbour(int field, FieldStep direction);
  void showMenu(int field, QPoint globalPosition);
  FieldButton* buttonOf(int field) const;
  void goTo(FieldButton* button);
  void goToFirst();
  void orderTabs();

  const ReportView& view_;
  TakeField takeField_;
  RunDrag runDrag_ = dragByMouse;
  // In the order of `kLayoutAxes`.
  std::array<Area, kLayoutAxes.size()> areas_{};
  QWidget* ok_ = nullptr;
  // What is being dragged, and where it was dropped.
  QPointer<FieldButton> dragged_;
  std::optional<LayoutPlace> dropPlace_;
};

}  // namespace vrel
