#include "ui/grid_moves.h"

#include <algorithm>
#include <array>

namespace vrel {

namespace {

struct MoveKey {
  Qt::Key key;
  bool control;
  GridMove move;
  // With Shift; nothing where the selection is extended.
  std::optional<GridMove> withShift = std::nullopt;
};

constexpr std::array<MoveKey, 18> kMoveKeys = {{
    {Qt::Key_Left, false, GridMove::Left},
    {Qt::Key_Right, false, GridMove::Right},
    {Qt::Key_Up, false, GridMove::Up},
    {Qt::Key_Down, false, GridMove::Down},
    {Qt::Key_Left, true, GridMove::StretchLeft},
    {Qt::Key_Right, true, GridMove::StretchRight},
    {Qt::Key_Up, true, GridMove::StretchUp},
    {Qt::Key_Down, true, GridMove::StretchDown},
    {Qt::Key_PageUp, false, GridMove::PageUp},
    {Qt::Key_PageDown, false, GridMove::PageDown},
    {Qt::Key_Home, false, GridMove::RowStart},
    {Qt::Key_End, false, GridMove::RowEnd},
    {Qt::Key_Home, true, GridMove::First},
    {Qt::Key_End, true, GridMove::Last},
    {Qt::Key_Return, false, GridMove::Down, GridMove::Up},
    {Qt::Key_Enter, false, GridMove::Down, GridMove::Up},
    {Qt::Key_Tab, false, GridMove::Next, GridMove::Previous},
    {Qt::Key_Backtab, false, GridMove::Previous, GridMove::Previous},
}};

// The columns of the part in which a place lies.
struct Part {
  std::size_t first;
  std::size_t end;
};

Part partOf(const GridShape& shape, GridPlace place) {
  return place.column < shape.labelColumns ? Part{0, shape.labelColumns}
                                           : Part{shape.labelColumns, shape.columns};
}

// One step of a walk: back or forth along a row or a column, within the part.
class Walk {
 public:
  Walk(const GridShape& shape, GridPlace from, bool alongRow, bool forth)
      : alongRow_(alongRow),
        forth_(forth),
        first_(alongRow ? partOf(shape, from).first : 0),
        last_((alongRow ? partOf(shape, from).end : shape.rows) - 1) {}

  bool atEnd(GridPlace place) const { return at(place) == (forth_ ? last_ : first_); }
  GridPlace after(GridPlace place) const {
    std::size_t& moved = alongRow_ ? place.column : place.row;
    moved += forth_ ? std::size_t{1} : static_cast<std::size_t>(-1);
    return place;
  }

 private:
  std::size_t at(GridPlace place) const { return alongRow_ ? place.column : place.row; }

  bool alongRow_;
  bool forth_;
  std::size_t first_;
  std::size_t last_;
};

// To the last filled cell of the stretch that begins here, or else to the next filled cell, or else
// to the end.
GridPlace endOfStretch(const GridShape& shape, const Walk& walk, GridPlace place) {
  if (walk.atEnd(place)) {
    return place;
  }
  const bool inside = shape.isFilled(place) && shape.isFilled(walk.after(place));
  do {
    const GridPlace next = walk.after(place);
    if (inside && !shape.isFilled(next)) {
      return place;
    }
    place = next;
  } while (!walk.atEnd(place) && (inside || !shape.isFilled(place)));
  return place;
}

GridPlace moveSideways(const GridShape& shape, GridPlace place, bool forth, bool withinPart) {
  const Part part = withinPart ? partOf(shape, place) : Part{0, shape.columns};
  if (forth ? place.column + 1 < part.end : place.column > part.first) {
    place.column += forth ? std::size_t{1} : static_cast<std::size_t>(-1);
  }
  return place;
}

GridPlace stretchSideways(const GridShape& shape, GridPlace place, bool forth, bool withinPart) {
  const Walk walk(shape, place, true, forth);
  // At the border a stretch ends; the next move crosses it.
  return walk.atEnd(place) ? moveSideways(shape, place, forth, withinPart)
                           : endOfStretch(shape, walk, place);
}

GridPlace moveInTurn(const GridShape& shape, GridPlace place, bool forth) {
  const Part part = partOf(shape, place);
  if (forth ? place.column + 1 < part.end : place.column > part.first) {
    return moveSideways(shape, place, forth, true);
  }
  if (forth && place.row + 1 < shape.rows) {
    return {place.row + 1, part.first};
  }
  return forth || place.row == 0 ? place : GridPlace{place.row - 1, part.end - 1};
}

GridPlace startOfRow(const GridShape& shape, GridPlace place, bool withinPart) {
  const Part part = partOf(shape, place);
  // From where the data begin it goes on to the labels.
  place.column = withinPart || place.column != part.first ? part.first : 0;
  return place;
}

GridPlace endOfRow(const GridShape& shape, GridPlace place, bool withinPart) {
  place.column = (withinPart ? partOf(shape, place).end : shape.columns) - 1;
  return place;
}

GridPlace corner(const GridShape& shape, GridPlace place, bool last, bool withinPart) {
  const std::size_t dataFirst = std::min(shape.labelColumns, shape.columns - 1);
  const Part part = withinPart ? partOf(shape, place) : Part{dataFirst, shape.columns};
  return last ? GridPlace{shape.rows - 1, part.end - 1} : GridPlace{0, part.first};
}

}  // namespace

std::optional<GridKey> gridKeyOf(int key, Qt::KeyboardModifiers modifiers) {
  if ((modifiers & (Qt::AltModifier | Qt::MetaModifier)) != 0) {
    return std::nullopt;
  }
  const bool shift = modifiers.testFlag(Qt::ShiftModifier);
  const bool control = modifiers.testFlag(Qt::ControlModifier);
  for (const MoveKey& one : kMoveKeys) {
    if (one.key == key && one.control == control) {
      return shift && one.withShift ? GridKey{*one.withShift, false} : GridKey{one.move, shift};
    }
  }
  return std::nullopt;
}

GridPlace placeAfter(const GridShape& shape, GridPlace from, GridMove move, bool withinPart) {
  const std::size_t lastRow = shape.rows - 1;
  switch (move) {
    case GridMove::Left:
    case GridMove::Right:
      return moveSideways(shape, from, move == GridMove::Right, withinPart);
    case GridMove::Up:
      return {from.row - std::min<std::size_t>(from.row, 1), from.column};
    case GridMove::Down:
      return {std::min(from.row + 1, lastRow), from.column};
    case GridMove::PageUp:
      return {from.row - std::min(from.row, shape.pageRows), from.column};
    case GridMove::PageDown:
      return {std::min(from.row + shape.pageRows, lastRow), from.column};
    case GridMove::RowStart:
      return startOfRow(shape, from, withinPart);
    case GridMove::RowEnd:
      return endOfRow(shape, from, withinPart);
    case GridMove::First:
    case GridMove::Last:
      return corner(shape, from, move == GridMove::Last, withinPart);
    case GridMove::StretchLeft:
    case GridMove::StretchRight:
      return stretchSideways(shape, from, move == GridMove::StretchRight, withinPart);
    case GridMove::StretchUp:
    case GridMove::StretchDown:
      return endOfStretch(shape, Walk(shape, from, false, move == GridMove::StretchDown), from);
    case GridMove::Next:
    case GridMove::Previous:
      return moveInTurn(shape, from, move == GridMove::Next);
  }
  return from;
}

}  // namespace vrel
