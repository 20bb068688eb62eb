#include "model/break_positions.h"

#include <gtest/gtest.h>

#include "model/report_grid.h"
#include "model/report_layout.h"
#include "support/tables.h"
#include "support/views.h"

namespace vrel {
namespace {

using test::breakOf;
using test::gridLines;
using test::tableOf;
using test::viewOf;
using Lines = std::vector<std::string>;

// The labels of a report's rows joined by blanks, one letter per group: "a b Total". A level that
// is empty in its row is left out, an empty row is "-".
std::string rowsOf(const ReportGrid& grid) {
  std::string text;
  for (std::size_t row = 0; row < grid.rows; ++row) {
    std::string labels;
    for (std::size_t column = 0; column < grid.labelColumns; ++column) {
      labels += cellText(grid, {}, row, column);
    }
    text += (text.empty() ? "" : " ") + (labels.empty() ? "-" : labels);
  }
  return text;
}

// The rows of a report of one field with the values a, b, c, ... and one break on it.
std::string rowsWith(int groups, int frequency, int firstBreak) {
  std::vector<std::string> lines;
  for (int i = 0; i < groups; ++i) {
    lines.push_back(std::string(1, static_cast<char>('a' + i)) + " 1");
  }
  Table table = tableOf("Item:String Qty:Number", "p", lines);
  ReportView view = viewOf(table, {0}, {}, {}, {1});
  view.breaks = {breakOf(0, frequency, {{1, BreakOperation::Sum}})};
  view.breaks[0].firstBreak = firstBreak;
  return rowsOf(layOut(view));
}

TEST(BreakFrequency, ASummaryFollowsEverySoManyChanges) {
  EXPECT_EQ(rowsWith(3, 1, 0), "a Total b Total c Total");
  EXPECT_EQ(rowsWith(4, 2, 0), "a b Total c d Total");
  EXPECT_EQ(rowsWith(7, 3, 0), "a b c Total d e f Total g Total");
}

TEST(BreakFrequency, NeverGivesNoSummaryWhateverTheFirstBreakIs) {
  EXPECT_EQ(rowsWith(3, 0, 0), "a b c");
  EXPECT_EQ(rowsWith(3, 0, 1), "a b c");
}

TEST(BreakFrequency, AtEndGivesOneSummaryAtTheEnd) {
  EXPECT_EQ(rowsWith(4, kBreakAtEnd, 0), "a b c d Total");
  EXPECT_EQ(rowsWith(1, kBreakAtEnd, 0), "a Total");
}

TEST(BreakFrequency, TheEndIsAChangeThatAlwaysHasASummary) {
  EXPECT_EQ(rowsWith(5, 4, 0), "a b c d Total e Total");
  EXPECT_EQ(rowsWith(4, 4, 0), "a b c d Total") << "and no second one for no group";
  EXPECT_EQ(rowsWith(3, 28, 0), "a b c Total");
}

TEST(BreakFrequency, ACodeThatIsNotOfferedIsThatManyChanges) {
  EXPECT_EQ(rowsWith(13, 11, 0), "a b c d e f g h i j k Total l m Total");
}

TEST(BreakFrequency, TheFirstSummaryComesAtTheFirstBreak) {
  EXPECT_EQ(rowsWith(6, 2, 1), "a Total b c Total d e Total f Total");
  EXPECT_EQ(rowsWith(6, 2, 3), "a b c Total d e Total f Total");
  EXPECT_EQ(rowsWith(4, 1, 2), "a b Total c Total d Total");
  EXPECT_EQ(rowsWith(4, 1, 11), "a b c d Total");
}

TEST(BreakFrequency, AfterTheFirstBreakAtEndMeansTheEnd) {
  EXPECT_EQ(rowsWith(4, kBreakAtEnd, 1), "a Total b c d Total");
}

TEST(BreakFrequency, NegativeCodesAreNeverReachedBeforeTheEnd) {
  EXPECT_EQ(rowsWith(3, -1, 0), "a b c Total");
  EXPECT_EQ(rowsWith(3, 1, -1), "a b c Total");
  EXPECT_EQ(rowsWith(4, -5, 2), "a b Total c d Total");
}

TEST(BreakFrequency, WithoutGroupsThereIsNoSummary) {
  EXPECT_EQ(rowsWith(0, 1, 0), "");
}

// Three levels; the values of the second and third repeat under the first.
struct NestedBreaks : testing::Test {
  std::string rowsOfBreaks(std::vector<BreakDefinition> breaks) {
    view.breaks = std::move(breaks);
    return rowsOf(layOut(view));
  }
  static BreakDefinition named(const std::string& name, int field, int frequency = 1) {
    BreakDefinition definition = breakOf(field, frequency, {{3, BreakOperation::Sum}});
    definition.name = name;
    return definition;
  }

  Table table = tableOf("A:String B:String C:String Qty:Number", "p",
                        {"a k x 1", "a k y 1", "a l x 1", "b l x 1", "b l y 1"});
  ReportView view = viewOf(table, {0, 1, 2}, {}, {}, {3});
};

TEST_F(NestedBreaks, AChangeOfAnOuterLevelIsAChangeOfTheInnerOnes) {
  EXPECT_EQ(rowsOfBreaks({named("A!", 0)}), "akx y lx A! blx y A!");
  EXPECT_EQ(rowsOfBreaks({named("B!", 1)}), "akx y B! lx B! blx y B!")
      << "l under a and l under b are apart";
  EXPECT_EQ(rowsOfBreaks({named("C!", 2)}), "akx C! y C! lx C! blx C! y C!");
}

TEST_F(NestedBreaks, TheInnermostStandsFirst) {
  EXPECT_EQ(rowsOfBreaks({named("A!", 0), named("B!", 1)}), "akx y B! lx B! A! blx y B! A!");
  EXPECT_EQ(rowsOfBreaks({named("B!", 1), named("A!", 0)}), "akx y B! lx B! A! blx y B! A!");
  EXPECT_EQ(rowsOfBreaks({named("A!", 0, kBreakAtEnd), named("B!", 1, 2), named("C!", 2, 3)}),
            "akx y lx C! B! blx y C! B! A!");
}

TEST_F(NestedBreaks, EachIsFollowedByItsOwnBlankRow) {
  BreakDefinition inner = named("B!", 1);
  inner.breakAfter = true;
  EXPECT_EQ(rowsOfBreaks({named("A!", 0), inner}), "akx y B! - lx B! - A! blx y B! - A!");
  BreakDefinition outer = named("A!", 0);
  outer.breakAfter = true;
  EXPECT_EQ(rowsOfBreaks({outer, inner}), "akx y B! - lx B! - A! - blx y B! - A! -");
}

TEST_F(NestedBreaks, InactiveOnesAndThoseThatComputeNothingShownAreLeftOut) {
  BreakDefinition inactive = named("A!", 0);
  inactive.active = false;
  BreakDefinition idle = named("B!", 1);
  idle.operations.clear();
  BreakDefinition ofLabel = named("C!", 2);
  ofLabel.operations.clear();
  setOperation(ofLabel, 1, BreakOperation::Sum);
  EXPECT_EQ(rowsOfBreaks({inactive, idle, ofLabel}), "akx y lx blx y");
}

TEST_F(NestedBreaks, FieldsOnNoAxisOfRowsOrColumnsHaveNone) {
  view = viewOf(table, {0}, {}, {1}, {3});
  view.axis(Axis::Hidden) = {2};
  view.zIndex = 1;
  EXPECT_EQ(rowsOfBreaks({named("B!", 1), named("C!", 2), named("Qty!", 3)}), "a b");
  EXPECT_EQ(rowsOfBreaks({named("-1", -1), named("4", 4), named("none", kNoField)}), "a b");
}

TEST_F(NestedBreaks, SeveralOfOneFieldStandInTheOrderOfTheirDefinitions) {
  EXPECT_EQ(rowsOfBreaks({named("A1", 0), named("A2", 0, kBreakAtEnd), named("A3", 0)}),
            "akx y lx A1 A3 blx y A1 A2 A3");
}

TEST(LineAt, FindsEveryLineOfAnAxis) {
  Table table = tableOf("A:String Q:Number R:Number S:Number", "p", {"a 1 1 1", "b 2 2 2"});
  ReportView view = viewOf(table, {0}, {}, {}, {1, 2, 3});
  view.breaks = {breakOf(0, 1, {{1, BreakOperation::Sum}, {3, BreakOperation::Last}})};
  view.breaks[0].breakAfter = true;
  const AxisLines lines = layOut(view).rowLines;
  std::string text;
  for (std::size_t i = 0; i < lines.count; ++i) {
    const GridLine line = lineAt(lines, i);
    text += "GSB"[static_cast<int>(line.kind)] + std::to_string(line.index) +
            std::to_string(line.within) + " ";
  }
  EXPECT_EQ(text, "G00 G01 G02 S00 S01 B00 G10 G11 G12 S10 S11 B10 ");
  EXPECT_EQ(firstLineOf(lines, 0), 0U);
  EXPECT_EQ(firstLineOf(lines, 1), 6U);
  EXPECT_EQ(dataFieldOf(lines, lineAt(lines, 4)), 2U) << "the third data field";
}

}  // namespace
}  // namespace vrel
