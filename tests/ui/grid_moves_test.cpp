#include "ui/grid_moves.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vrel {
namespace {

using Place = GridPlace;

// Two label columns and six data columns; "x" is a filled cell.
const std::vector<std::string> kCells = {
    "xx"
    "xx..xx",
    "x."
    "x.....",
    "xx"
    ".....x",
    "x."
    "......",
    "xx"
    "x...x."};

GridShape shape() {
  return {.rows = 5, .columns = 8, .labelColumns = 2, .pageRows = 3, .isFilled = [](Place place) {
            return kCells[place.row][place.column] == 'x';
          }};
}

Place after(Place from, GridMove move) {
  return placeAfter(shape(), from, move, false);
}

Place afterWithin(Place from, GridMove move) {
  return placeAfter(shape(), from, move, true);
}

TEST(GridMoves, ArrowsGoToTheNextCellAndStopAtTheEdges) {
  EXPECT_EQ(after({1, 3}, GridMove::Left), (Place{1, 2}));
  EXPECT_EQ(after({1, 3}, GridMove::Right), (Place{1, 4}));
  EXPECT_EQ(after({1, 3}, GridMove::Up), (Place{0, 3}));
  EXPECT_EQ(after({1, 3}, GridMove::Down), (Place{2, 3}));
  EXPECT_EQ(after({0, 0}, GridMove::Left), (Place{0, 0}));
  EXPECT_EQ(after({0, 0}, GridMove::Up), (Place{0, 0}));
  EXPECT_EQ(after({4, 7}, GridMove::Right), (Place{4, 7}));
  EXPECT_EQ(after({4, 7}, GridMove::Down), (Place{4, 7}));
}

TEST(GridMoves, ArrowsCrossTheBorderUnlessTheyExtend) {
  EXPECT_EQ(after({1, 2}, GridMove::Left), (Place{1, 1}));
  EXPECT_EQ(after({1, 1}, GridMove::Right), (Place{1, 2}));
  EXPECT_EQ(afterWithin({1, 2}, GridMove::Left), (Place{1, 2}));
  EXPECT_EQ(afterWithin({1, 1}, GridMove::Right), (Place{1, 1}));
}

TEST(GridMoves, PageKeysPassAPageAndStopAtTheEdges) {
  EXPECT_EQ(after({0, 3}, GridMove::PageDown), (Place{3, 3}));
  EXPECT_EQ(after({3, 3}, GridMove::PageDown), (Place{4, 3}));
  EXPECT_EQ(after({4, 3}, GridMove::PageUp), (Place{1, 3}));
  EXPECT_EQ(after({1, 3}, GridMove::PageUp), (Place{0, 3}));
}

TEST(GridMoves, HomeGoesToTheFirstDataCellOfTheRowAndThenToItsFirstLabel) {
  EXPECT_EQ(after({2, 5}, GridMove::RowStart), (Place{2, 2}));
  EXPECT_EQ(after({2, 2}, GridMove::RowStart), (Place{2, 0}));
  EXPECT_EQ(after({2, 1}, GridMove::RowStart), (Place{2, 0}));
  EXPECT_EQ(afterWithin({2, 2}, GridMove::RowStart), (Place{2, 2}));
}

TEST(GridMoves, EndGoesToTheLastCellOfTheRow) {
  EXPECT_EQ(after({2, 3}, GridMove::RowEnd), (Place{2, 7}));
  EXPECT_EQ(after({2, 0}, GridMove::RowEnd), (Place{2, 7}));
  EXPECT_EQ(afterWithin({2, 0}, GridMove::RowEnd), (Place{2, 1}));
}

TEST(GridMoves, FirstAndLastAreTheCornersOfTheData) {
  EXPECT_EQ(after({2, 4}, GridMove::First), (Place{0, 2}));
  EXPECT_EQ(after({2, 0}, GridMove::First), (Place{0, 2}));
  EXPECT_EQ(after({2, 0}, GridMove::Last), (Place{4, 7}));
  EXPECT_EQ(afterWithin({2, 1}, GridMove::First), (Place{0, 0}));
  EXPECT_EQ(afterWithin({2, 0}, GridMove::Last), (Place{4, 1}));
}

TEST(GridMoves, AStretchEndsWithItsLastFilledCell) {
  EXPECT_EQ(after({0, 2}, GridMove::StretchRight), (Place{0, 3}));
  EXPECT_EQ(after({0, 7}, GridMove::StretchLeft), (Place{0, 6}));
  EXPECT_EQ(after({0, 2}, GridMove::StretchDown), (Place{1, 2}));
  EXPECT_EQ(after({1, 2}, GridMove::StretchUp), (Place{0, 2}));
}

TEST(GridMoves, FromItsEndOrFromEmptyCellsItGoesToTheNextFilledOne) {
  EXPECT_EQ(after({0, 3}, GridMove::StretchRight), (Place{0, 6}));
  EXPECT_EQ(after({0, 4}, GridMove::StretchRight), (Place{0, 6}));
  EXPECT_EQ(after({0, 6}, GridMove::StretchLeft), (Place{0, 3}));
  EXPECT_EQ(after({1, 2}, GridMove::StretchDown), (Place{4, 2}));
  EXPECT_EQ(after({3, 6}, GridMove::StretchUp), (Place{0, 6}));
}

TEST(GridMoves, WithNothingFilledAheadItGoesToTheEdge) {
  EXPECT_EQ(after({1, 2}, GridMove::StretchRight), (Place{1, 7}));
  EXPECT_EQ(after({1, 4}, GridMove::StretchDown), (Place{4, 4}));
  EXPECT_EQ(after({3, 3}, GridMove::StretchUp), (Place{0, 3}));
  EXPECT_EQ(after({4, 3}, GridMove::StretchDown), (Place{4, 3}));
}

TEST(GridMoves, StretchesEndAtTheBorderAndThenCrossIt) {
  EXPECT_EQ(after({0, 0}, GridMove::StretchRight), (Place{0, 1}));
  EXPECT_EQ(after({0, 1}, GridMove::StretchRight), (Place{0, 2}));
  EXPECT_EQ(after({2, 5}, GridMove::StretchLeft), (Place{2, 2}));
  EXPECT_EQ(after({2, 2}, GridMove::StretchLeft), (Place{2, 1}));
  EXPECT_EQ(afterWithin({0, 1}, GridMove::StretchRight), (Place{0, 1}));
  EXPECT_EQ(after({0, 0}, GridMove::StretchLeft), (Place{0, 0}));
}

TEST(GridMoves, TabGoesFromRowToRow) {
  EXPECT_EQ(after({1, 3}, GridMove::Next), (Place{1, 4}));
  EXPECT_EQ(after({1, 7}, GridMove::Next), (Place{2, 2}));
  EXPECT_EQ(after({1, 2}, GridMove::Previous), (Place{0, 7}));
  EXPECT_EQ(after({1, 1}, GridMove::Next), (Place{2, 0}));
  EXPECT_EQ(after({4, 7}, GridMove::Next), (Place{4, 7}));
  EXPECT_EQ(after({0, 2}, GridMove::Previous), (Place{0, 2}));
}

TEST(GridMoves, AReportWithoutLabelsOrWithoutDataHasItsCorners) {
  GridShape data = shape();
  data.labelColumns = 0;
  EXPECT_EQ(placeAfter(data, {2, 4}, GridMove::First, false), (Place{0, 0}));
  EXPECT_EQ(placeAfter(data, {2, 4}, GridMove::RowStart, false), (Place{2, 0}));
  GridShape labels = shape();
  labels.columns = 2;
  EXPECT_EQ(placeAfter(labels, {2, 0}, GridMove::Last, false), (Place{4, 1}));
  EXPECT_EQ(placeAfter(labels, {2, 0}, GridMove::Next, false), (Place{2, 1}));
}

struct KeyCase {
  Qt::Key key;
  Qt::KeyboardModifiers modifiers;
  GridMove move;
  bool extends;
};

TEST(GridKeys, MeanWhatTheyMeanInSpreadsheets) {
  const auto shift = Qt::ShiftModifier;
  const auto control = Qt::ControlModifier;
  const KeyCase cases[] = {
      {Qt::Key_Left, {}, GridMove::Left, false},
      {Qt::Key_Right, Qt::KeypadModifier, GridMove::Right, false},
      {Qt::Key_Up, shift, GridMove::Up, true},
      {Qt::Key_Down, control, GridMove::StretchDown, false},
      {Qt::Key_Left, control | shift, GridMove::StretchLeft, true},
      {Qt::Key_PageUp, {}, GridMove::PageUp, false},
      {Qt::Key_PageDown, shift, GridMove::PageDown, true},
      {Qt::Key_Home, {}, GridMove::RowStart, false},
      {Qt::Key_End, shift, GridMove::RowEnd, true},
      {Qt::Key_Home, control, GridMove::First, false},
      {Qt::Key_End, control | shift, GridMove::Last, true},
      {Qt::Key_Tab, {}, GridMove::Next, false},
      {Qt::Key_Backtab, shift, GridMove::Previous, false},
      {Qt::Key_Backtab, {}, GridMove::Previous, false},
      {Qt::Key_Return, {}, GridMove::Down, false},
      {Qt::Key_Enter, Qt::KeypadModifier, GridMove::Down, false},
      {Qt::Key_Return, shift, GridMove::Up, false},
  };
  for (const KeyCase& one : cases) {
    const auto key = gridKeyOf(one.key, one.modifiers);
    ASSERT_TRUE(key) << one.key;
    EXPECT_EQ(key->move, one.move) << one.key;
    EXPECT_EQ(key->extends, one.extends) << one.key;
  }
}

TEST(GridKeys, OtherKeysAndCombinationsDoNotMove) {
  EXPECT_FALSE(gridKeyOf(Qt::Key_A, {}));
  EXPECT_FALSE(gridKeyOf(Qt::Key_Left, Qt::AltModifier));
  EXPECT_FALSE(gridKeyOf(Qt::Key_PageDown, Qt::ControlModifier));
  EXPECT_FALSE(gridKeyOf(Qt::Key_Return, Qt::ControlModifier));
}

}  // namespace
}  // namespace vrel
