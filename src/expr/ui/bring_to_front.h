// Windows that may be open already.
#pragma once

#include <QWidget>

namespace vrel {

/// Shows a window in front of the others and gives it the keyboard.
inline void bringToFront(QWidget& window) {
  window.show();
  window.raise();
  window.activateWindow();
}

}  // namespace vrel
