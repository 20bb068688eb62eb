// Dragging by the mouse, which blocks until the drop; tests drop in their own way.
#pragma once

#include <QDrag>
#include <functional>

namespace vrel {

/// Lets the user drag; returns what was done with it at the drop.
using RunDrag = std::function<Qt::DropAction(QDrag& drag)>;

/// The toolkit's own way. The drag's data are moved.
inline Qt::DropAction dragByMouse(QDrag& drag) {
  return drag.exec(Qt::MoveAction);
}

}  // namespace vrel
