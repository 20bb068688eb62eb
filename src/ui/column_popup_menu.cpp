#include "ui/column_popup_menu.h"

namespace vrel {

ColumnPopupMenu::ColumnPopupMenu(bool hidden, QWidget* parent) : QMenu(parent) {
  setObjectName(QStringLiteral("ColumnPopupMenu"));
  const QAction* toggle = addAction(hidden ? tr("Show Data") : tr("Hide Data"));
  connect(toggle, &QAction::triggered, this, &ColumnPopupMenu::toggled);
}

}  // namespace vrel
