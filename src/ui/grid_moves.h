// Where the keys lead in the report, as in a spreadsheet.
#pragma once

#include <Qt>
#include <functional>
#include <optional>

#include "model/grid_area.h"

namespace vrel {

enum class GridMove {
  Left,
  Right,
  Up,
  Down,
  PageUp,
  PageDown,
  RowStart,
  RowEnd,
  First,
  Last,
  StretchLeft,
  StretchRight,
  StretchUp,
  StretchDown,
  Next,
  Previous,
};

struct GridKey {
  GridMove move;
  /// The selection follows.
  bool extends;
};

/// What a key does; nothing for keys that do not move.
std::optional<GridKey> gridKeyOf(int key, Qt::KeyboardModifiers modifiers);

/// What the moves need to know of the report.
struct GridShape {
  std::size_t rows = 0;
  /// Label columns included.
  std::size_t columns = 0;
  std::size_t labelColumns = 0;
  /// Rows that a page key passes.
  std::size_t pageRows = 1;
  /// Whether a cell shows anything; asked for the moves by stretches only.
  std::function<bool(GridPlace)> isFilled;
};

/// The place that a move reaches. Labels and data are two parts: an arrow crosses from one into the
/// other, the ends of rows and stretches are those of the part. With `withinPart` no move leaves
/// the part.
GridPlace placeAfter(const GridShape& shape, GridPlace from, GridMove move, bool withinPart);

}  // namespace vrel
