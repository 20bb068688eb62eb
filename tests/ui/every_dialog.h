// All dialogs that can be opened from the menus, and those that open from them.
#pragma once

#include <QDialog>
#include <QMenu>
#include <functional>

#include "ui/desk.h"

namespace vrel::test {

/// A window over a small plan with a formula field and a break.
class EveryDialog {
 public:
  /// Opens the window.
  void openWindow();
  /// Opens and closes one dialog after the other.
  void openAll();

  /// Looks at each dialog while it is open.
  std::function<void(QDialog& dialog)> look;
  Desk desk{plan(), {"Item", "Week", "", "Plan Stock"}, false};
  std::unique_ptr<VrelMainWindow> window;
  /// The names of the dialogs that were open.
  QStringList seen;

 private:
  static Table plan();
  void openAll(const QMenu& menu);
  void lookAtOpenDialogs();
  void lookAt(QDialog& dialog);
  void openFurther(QDialog& dialog);
};

}  // namespace vrel::test
