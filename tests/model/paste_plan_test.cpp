#include "model/paste_plan.h"

#include <gtest/gtest.h>

#include "support/random_reports.h"

namespace vrel {
namespace {

using test::randomBelow;
using Lines = std::vector<std::string>;

constexpr std::int64_t kWhole = CopiedRegion::kWhole;
constexpr std::string_view kMismatch = "Region for pasting does match copied data region.";
constexpr std::string_view kColumnsOutside = "Column range is outside of table size.";
constexpr std::string_view kRowsOutside = "Row range is outside of table size.";

// Ten rows and eight columns behind two label columns.
constexpr GridArea kDataCells{0, 2, 10, 8};

// A block from words with "|" between rows: "a b|c d".
CopiedBlock blockOf(std::string_view texts) {
  std::string clipboard(texts);
  for (char& byte : clipboard) {
    byte = byte == ' ' ? '\t' : byte == '|' ? '\n' : byte;
  }
  return blockFromClipboard(clipboard);
}

// Whole rows with two labels in front of each, of a table as wide as the other texts.
CopiedBlock wholeRows(std::string_view texts) {
  CopiedBlock block = blockOf(texts);
  block.region.columns = kWhole;
  block.labelColumns = 2;
  return block;
}

CopiedBlock wholeColumns(std::string_view texts) {
  CopiedBlock block = blockOf(texts);
  block.region.rows = kWhole;
  return block;
}

// What each cell of the area gets, "-" for nothing; the refusal when there is one.
Lines pasted(const CopiedBlock& copied, const PasteTarget& target) {
  const PastePlan plan = planPaste(copied, target);
  if (!plan.refusal.empty()) {
    return {std::string(plan.refusal)};
  }
  Lines lines;
  for (std::size_t row = plan.area.firstRow; row < plan.area.endRow(); ++row) {
    std::string& line = lines.emplace_back();
    for (std::size_t column = plan.area.firstColumn; column < plan.area.endColumn(); ++column) {
      line += line.empty() ? "" : " ";
      line += pastedText(plan, copied, {row, column}).value_or("-");
    }
  }
  return lines;
}

Lines pastedOver(const GridArea& selection, const CopiedBlock& copied) {
  return pasted(copied,
                {kDataCells, selection, GridPlace{selection.firstRow, selection.firstColumn}});
}

Lines pastedAt(GridPlace current, const CopiedBlock& copied) {
  return pasted(copied, {kDataCells, std::nullopt, current});
}

TEST(PasteOverSelection, OfTheSameSizeTakesTextByText) {
  const GridArea selection{3, 4, 2, 3};
  EXPECT_EQ(pastedOver(selection, blockOf("a b c|d e f")), (Lines{"a b c", "d e f"}));
  EXPECT_EQ(planPaste(blockOf("a b c|d e f"), {kDataCells, selection, {3, 4}}).area, selection);
}

TEST(PasteOverSelection, OfAWholeMultipleIsTiled) {
  EXPECT_EQ(pastedOver({0, 2, 2, 4}, blockOf("a b")), (Lines{"a b a b", "a b a b"}));
  EXPECT_EQ(pastedOver({0, 2, 4, 1}, blockOf("a|b")), (Lines{"a", "b", "a", "b"}));
  EXPECT_EQ(pastedOver({5, 7, 2, 3}, blockOf("x")), (Lines{"x x x", "x x x"}));
}

TEST(PasteOverSelection, OfAnyOtherSizeIsRefused) {
  const Lines refused = {std::string(kMismatch)};
  EXPECT_EQ(pastedOver({0, 2, 2, 3}, blockOf("a b")), refused);
  EXPECT_EQ(pastedOver({0, 2, 3, 2}, blockOf("a b|c d")), refused);
  EXPECT_EQ(pastedOver({0, 2, 1, 2}, blockOf("a b|c d")), refused) << "no part of the block";
  EXPECT_EQ(pastedOver({0, 2, 2, 3}, blockOf("a b|c d")), refused) << "the same rows only";
}

TEST(PasteOverSelection, OneCopiedCellFillsTheOneSelectedCell) {
  EXPECT_EQ(pastedOver({4, 5, 1, 1}, blockOf("x")), (Lines{"x"}));
}

TEST(PasteOverSelection, WholeRowsGoToTheSameColumnsOfAsManyRows) {
  const CopiedBlock rows = wholeRows("L M a b c d e f g h|L M A B C D E F G H");
  EXPECT_EQ(pastedOver({4, 4, 2, 3}, rows), (Lines{"c d e", "C D E"}));
  EXPECT_EQ(pastedOver({4, 2, 2, 8}, rows), (Lines{"a b c d e f g h", "A B C D E F G H"}));
  EXPECT_EQ(pastedOver({4, 4, 1, 3}, rows), (Lines{std::string(kMismatch)}));
  EXPECT_EQ(pastedOver({4, 4, 4, 3}, rows), (Lines{std::string(kMismatch)}));
}

TEST(PasteOverSelection, WholeRowsAreTiledOverWholeRows) {
  EXPECT_EQ(pastedOver({4, 2, 2, 8}, wholeRows("L M a b c d e f g h")),
            (Lines{"a b c d e f g h", "a b c d e f g h"}));
}

TEST(PasteOverSelection, ColumnsBehindThoseOfACopiedRowStayAsTheyAre) {
  EXPECT_EQ(pastedOver({4, 3, 1, 4}, wholeRows("L M a b c")), (Lines{"b c - -"}));
}

TEST(PasteOverSelection, LabelColumnsGetNothingOfAWholeRow) {
  const CopiedBlock rows = wholeRows("a b c d e f g h");
  EXPECT_EQ(pasted(rows, {{0, 3, 10, 8}, GridArea{0, 0, 1, 5}, {0, 0}}), (Lines{"- a b c d"}))
      << "places count from the first data column, two labels before it";
}

TEST(PasteOverSelection, WholeColumnsGoToTheSameRowsOfAsManyColumns) {
  const CopiedBlock columns = wholeColumns("a A|b B|c C|d D|e E|f F|g G|h H|i I|j J");
  EXPECT_EQ(pastedOver({2, 4, 3, 2}, columns), (Lines{"c C", "d D", "e E"}));
  EXPECT_EQ(pastedOver({2, 4, 3, 1}, columns), (Lines{std::string(kMismatch)}));
  EXPECT_EQ(pastedOver({0, 2, 10, 4}, wholeColumns("a|b|c|d|e|f|g|h|i|j")).front(), "a a a a")
      << "tiled over whole columns";
}

TEST(PasteOverSelection, TheWholeTableGoesToTheSamePlaces) {
  CopiedBlock all = blockOf("L M a b c|L M d e f");
  all.region.rows = kWhole;
  all.region.columns = kWhole;
  all.labelColumns = 2;
  const GridArea cells{0, 2, 2, 3};
  EXPECT_EQ(pasted(all, {cells, GridArea{0, 3, 2, 2}, {0, 3}}), (Lines{"b c", "e f"}));
  EXPECT_EQ(pasted(all, {cells, GridArea{1, 2, 1, 3}, {1, 2}}), (Lines{"d e f"}));
  EXPECT_EQ(pasted(all, {cells, GridArea{0, 3, 1, 2}, {0, 3}}), (Lines{std::string(kMismatch)}));
}

TEST(PasteOverSelection, ThatIsEmptyCountsAsNone) {
  EXPECT_EQ(pasted(blockOf("a b"), {kDataCells, GridArea{1, 2, 0, 0}, {1, 2}}), (Lines{"a b"}));
}

TEST(PasteOverSelection, ThatIsTheCurrentCellIsNoneForMoreThanOneCopiedCell) {
  const CopiedBlock block = blockOf("a b|c d");
  EXPECT_EQ(pasted(block, {kDataCells, GridArea{1, 3, 1, 1}, {1, 3}}), (Lines{"a b", "c d"}));
  EXPECT_EQ(pasted(block, {kDataCells, GridArea{1, 3, 1, 1}, {5, 3}}),
            (Lines{std::string(kMismatch)}))
      << "another cell is a selection";
}

TEST(PasteAtCurrentCell, PlacesTheBlockThere) {
  EXPECT_EQ(pastedAt({3, 5}, blockOf("a b|c d")), (Lines{"a b", "c d"}));
  EXPECT_EQ(planPaste(blockOf("a b|c d"), {kDataCells, std::nullopt, {3, 5}}).area,
            (GridArea{3, 5, 2, 2}));
}

TEST(PasteAtCurrentCell, BeyondTheLastColumnIsRefused) {
  EXPECT_EQ(pastedAt({0, 9}, blockOf("a b|c d")), (Lines{std::string(kColumnsOutside)}));
  EXPECT_EQ(pastedAt({9, 9}, blockOf("a b|c d")), (Lines{std::string(kColumnsOutside)}))
      << "columns are looked at first";
  EXPECT_EQ(pastedAt({0, 8}, blockOf("a b|c d")), (Lines{"a b", "c d"}))
      << "an end equal to the count passes";
}

TEST(PasteAtCurrentCell, BeyondTheLastRowIsRefused) {
  EXPECT_EQ(pastedAt({9, 8}, blockOf("a b|c d")), (Lines{std::string(kRowsOutside)}));
  EXPECT_EQ(pastedAt({8, 8}, blockOf("a b|c d")), (Lines{"a b", "c d"}));
}

TEST(PasteAtCurrentCell, OneCopiedCellFitsEverywhere) {
  EXPECT_EQ(pastedAt({9, 9}, blockOf("x")), (Lines{"x"}));
}

TEST(PasteAtCurrentCell, AShortCopiedRowLeavesTheRestOfItsCells) {
  EXPECT_EQ(pastedAt({0, 2}, blockOf("a b c|d")), (Lines{"a b c", "d - -"}));
}

TEST(PasteAtCurrentCell, WholeRowsBeginInTheFirstColumn) {
  const CopiedBlock rows = wholeRows("L M a b c d e f g h|L M A B C D E F G H");
  EXPECT_EQ(planPaste(rows, {kDataCells, std::nullopt, {8, 6}}).area, (GridArea{8, 2, 2, 8}));
  EXPECT_EQ(pastedAt({8, 6}, rows), (Lines{"a b c d e f g h", "A B C D E F G H"}));
  EXPECT_EQ(pastedAt({9, 6}, rows), (Lines{std::string(kRowsOutside)}));
  EXPECT_EQ(pastedAt({0, 2}, wholeRows("L M a b c d e f g h i")),
            (Lines{std::string(kColumnsOutside)}));
}

TEST(PasteAtCurrentCell, WholeColumnsBeginInTheFirstRow) {
  const CopiedBlock columns = wholeColumns("a A|b B|c C|d D|e E|f F|g G|h H|i I|j J");
  EXPECT_EQ(planPaste(columns, {kDataCells, std::nullopt, {7, 8}}).area, (GridArea{0, 8, 10, 2}));
  EXPECT_EQ(pastedAt({7, 9}, columns), (Lines{std::string(kColumnsOutside)}));
  EXPECT_EQ(pastedAt({0, 2}, wholeColumns("a|b|c|d|e|f|g|h|i|j|k")),
            (Lines{std::string(kRowsOutside)}));
}

TEST(PastePlan, OfNothingReachesNoCell) {
  const PastePlan plan = planPaste(blockOf(""), {kDataCells, GridArea{0, 2, 2, 2}, {0, 2}});
  EXPECT_EQ(plan.refusal, "");
  EXPECT_EQ(plan.area, GridArea());
}

TEST(PastePlan, SaysWhichWarningIsDueForCellsThatAreReadOnly) {
  const auto warning = [](const CopiedBlock& copied, std::optional<GridArea> selection) {
    return planPaste(copied, {kDataCells, selection, {1, 3}}).skippedWarning;
  };
  EXPECT_EQ(warning(blockOf("x"), GridArea{1, 3, 1, 1}),
            "Selected cell in paste area is read only and has not been changed.");
  EXPECT_EQ(warning(blockOf("x"), GridArea{1, 3, 2, 1}),
            "At least one cell in paste area is read only and has not been changed.");
  EXPECT_EQ(warning(blockOf("a b"), GridArea{1, 3, 1, 2}),
            "At least one cell in paste area is read only and has not been changed.");
  EXPECT_EQ(warning(blockOf("x"), std::nullopt),
            "One or more cells in paste area are read only and have not been changed.");
  EXPECT_EQ(warning(blockOf("a b"), GridArea{1, 3, 1, 1}),
            "One or more cells in paste area are read only and have not been changed.");
  EXPECT_EQ(kPasteTitle, "QNT Error");
}

// Whether a selection matches the copied block, as the rules put it.
bool matches(const CopiedBlock& copied, const GridArea& selection) {
  const bool sameRows = selection.rows == copied.rows();
  const bool sameColumns = selection.columns == copied.columns();
  const bool multiple =
      selection.rows % copied.rows() == 0 && selection.columns % copied.columns() == 0;
  return (sameRows && sameColumns) || (sameRows && copied.region.columns == kWhole) ||
         (sameColumns && copied.region.rows == kWhole) || multiple;
}

// The copied place whose text a selected cell gets, as the rules put it.
GridPlace copiedPlace(const CopiedBlock& copied, const GridArea& selection, GridPlace place) {
  if (copied.region.columns == kWhole && selection.rows == copied.rows()) {
    return {place.row - selection.firstRow,
            copied.labelColumns + place.column - kDataCells.firstColumn};
  }
  if (copied.region.rows == kWhole && selection.columns == copied.columns()) {
    return {place.row, copied.labelColumns + place.column - selection.firstColumn};
  }
  std::size_t row = place.row - selection.firstRow;
  std::size_t column = place.column - selection.firstColumn;
  while (row >= copied.rows()) {
    row -= copied.rows();
  }
  while (column >= copied.columns()) {
    column -= copied.columns();
  }
  return {row, copied.labelColumns + column};
}

CopiedBlock randomBlock(std::mt19937& random) {
  CopiedBlock block;
  const std::size_t kind = randomBelow(random, 4);
  const std::size_t rows = kind == 2 ? kDataCells.rows : 1 + randomBelow(random, 4);
  const std::size_t columns = kind == 1 ? kDataCells.columns : 1 + randomBelow(random, 4);
  block.labelColumns = kind == 1 ? 2 : 0;
  block.region.rows = kind == 2 ? kWhole : static_cast<std::int64_t>(rows);
  block.region.columns = kind == 1 ? kWhole : static_cast<std::int64_t>(columns);
  for (std::size_t row = 0; row < rows; ++row) {
    for (std::size_t column = 0; column < block.labelColumns + columns; ++column) {
      block.texts.addText(std::to_string(row) + "/" + std::to_string(column));
    }
    block.texts.endRow();
  }
  return block;
}

TEST(RandomPastePlans, FollowTheRulesCellByCell) {
  std::mt19937 random(3);
  int refusals = 0;
  for (int round = 0; round < 20'000; ++round) {
    const CopiedBlock copied = randomBlock(random);
    const GridArea selection = test::randomAreaIn(random, kDataCells);
    // A current cell elsewhere, so that a single selected cell counts.
    const GridPlace current{kDataCells.endRow(), 0};
    const PastePlan plan = planPaste(copied, {kDataCells, selection, current});
    if (!matches(copied, selection)) {
      ++refusals;
      ASSERT_EQ(plan.refusal, kMismatch) << round;
      continue;
    }
    ASSERT_EQ(plan.refusal, "") << round;
    ASSERT_EQ(plan.area, selection) << round;
    for (std::size_t row = selection.firstRow; row < selection.endRow(); ++row) {
      for (std::size_t column = selection.firstColumn; column < selection.endColumn(); ++column) {
        const GridPlace from = copiedPlace(copied, selection, {row, column});
        ASSERT_EQ(pastedText(plan, copied, {row, column}), copied.texts.text(from.row, from.column))
            << round;
      }
    }
  }
  EXPECT_GT(refusals, 1000);
  EXPECT_LT(refusals, 19'000);
}

TEST(RandomPastePlans, WithoutASelectionFollowTheRulesCellByCell) {
  std::mt19937 random(4);
  for (int round = 0; round < 5'000; ++round) {
    const CopiedBlock copied = randomBlock(random);
    const GridPlace current{randomBelow(random, 10), 2 + randomBelow(random, 8)};
    const std::size_t firstRow = copied.region.rows == kWhole ? 0 : current.row;
    const std::size_t firstColumn = copied.region.columns == kWhole ? 2 : current.column;
    const PastePlan plan = planPaste(copied, {kDataCells, std::nullopt, current});
    if (firstColumn + copied.columns() > 10) {
      ASSERT_EQ(plan.refusal, kColumnsOutside) << round;
    } else if (firstRow + copied.rows() > 10) {
      ASSERT_EQ(plan.refusal, kRowsOutside) << round;
    } else {
      ASSERT_EQ(plan.area, (GridArea{firstRow, firstColumn, copied.rows(), copied.columns()}));
      ASSERT_EQ(pastedText(plan, copied, {plan.area.endRow() - 1, plan.area.endColumn() - 1}),
                copied.texts.text(copied.rows() - 1, copied.texts.columns() - 1));
    }
  }
}

}  // namespace
}  // namespace vrel
