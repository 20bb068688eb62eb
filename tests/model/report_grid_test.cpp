#include "model/report_grid.h"

#include <gtest/gtest.h>

#include "model/report_layout.h"
#include "support/tables.h"
#include "support/views.h"

namespace vrel {
namespace {

using test::gridLines;
using test::tableOf;
using test::viewOf;
using Lines = std::vector<std::string>;

// Two items at two places over two weeks, with two numbers; Nut has no row at South in W2.
Table plan() {
  return tableOf(
      "Item:String Place:String Week:Period Qty:Number Cost:Number", "W1 W2",
      {"Nut South W1 5 50", "Bolt North W2 2 20", "Bolt North W1 1 10", "Nut North W1 6 60",
       "Bolt South W1 3 30", "Nut North W2 7 70", "Bolt South W2 4 40"});
}

TEST(LayOut, DataOfOneFieldNeedsNoDataNameColumn) {
  Table table = plan();
  ReportView view = viewOf(table, {0, 1}, {2}, {}, {3});
  const ReportGrid grid = layOut(view);
  EXPECT_FALSE(grid.hasDataNameColumn());
  EXPECT_EQ(gridLines(grid), (Lines{"Item|Place|W1|W2", "Bolt|North|1|2", "|South|3|4",
                                    "Nut|North|6|7", "|South|5|"}));
}

TEST(LayOut, TwoDataFieldsDownTheRowsAreNamedInAColumnOfTheirOwn) {
  Table table = plan();
  ReportView view = viewOf(table, {0, 1}, {2}, {}, {3, 4});
  const ReportGrid grid = layOut(view);
  EXPECT_TRUE(grid.hasDataNameColumn());
  EXPECT_EQ(gridLines(grid), (Lines{"Item|Place| |W1|W2", "Bolt|North|Qty|1|2", "||Cost|10|20",
                                    "|South|Qty|3|4", "||Cost|30|40", "Nut|North|Qty|6|7",
                                    "||Cost|60|70", "|South|Qty|5|", "||Cost|50|"}));
}

TEST(LayOut, RepeatedLabelsStandInEveryRow) {
  Table table = plan();
  ReportView view = viewOf(table, {0, 1}, {2}, {}, {3, 4});
  view.repeatLabels = true;
  EXPECT_EQ(gridLines(layOut(view)),
            (Lines{"Item|Place| |W1|W2", "Bolt|North|Qty|1|2", "Bolt|North|Cost|10|20",
                   "Bolt|South|Qty|3|4", "Bolt|South|Cost|30|40", "Nut|North|Qty|6|7",
                   "Nut|North|Cost|60|70", "Nut|South|Qty|5|", "Nut|South|Cost|50|"}));
}

TEST(LayOut, DataInColumnsAreNamedInTheLastHeadingLine) {
  Table table = plan();
  ReportView view = viewOf(table, {0, 1}, {2}, {}, {3, 4});
  view.dataInColumns = true;
  EXPECT_EQ(gridLines(layOut(view)),
            (Lines{"/Item|/Place|W1/Qty|/Cost|W2/Qty|/Cost", "Bolt|North|1|10|2|20",
                   "|South|3|30|4|40", "Nut|North|6|60|7|70", "|South|5|50||"}));
}

TEST(LayOut, OneDataFieldInColumnsIsNotNamed) {
  Table table = plan();
  ReportView view = viewOf(table, {0}, {1, 2}, {}, {3});
  view.dataInColumns = true;
  EXPECT_EQ(gridLines(layOut(view)),
            (Lines{"/Item|North/W1|/W2|South/W1|/W2", "Bolt|1|2|3|4", "Nut|6|7|5|"}));
}

TEST(LayOut, ARepeatedLevelIsAnEmptyLineAboveDataInColumnsToo) {
  Table table = plan();
  ReportView view = viewOf(table, {0}, {1, 2}, {}, {3, 4});
  view.dataInColumns = true;
  EXPECT_EQ(gridLines(layOut(view)),
            (Lines{"/Item/|North/W1/Qty|//Cost|/W2/Qty|//Cost|South/W1/Qty|//Cost|/W2/Qty|//Cost",
                   "Bolt|1|10|2|20|3|30|4|40", "Nut|6|60|7|70|5|50||"}));
}

TEST(LayOut, RepeatedLabelsStandBesideAndAboveDataInColumnsToo) {
  Table table = plan();
  ReportView rows = viewOf(table, {0, 1}, {2}, {}, {3, 4});
  rows.dataInColumns = true;
  rows.repeatLabels = true;
  EXPECT_EQ(gridLines(layOut(rows)),
            (Lines{"/Item|/Place|W1/Qty|/Cost|W2/Qty|/Cost", "Bolt|North|1|10|2|20",
                   "Bolt|South|3|30|4|40", "Nut|North|6|60|7|70", "Nut|South|5|50||"}));
  ReportView columns = viewOf(table, {0}, {1, 2}, {}, {3, 4});
  columns.dataInColumns = true;
  columns.repeatLabels = true;
  EXPECT_EQ(gridLines(layOut(columns))[0],
            "/Item/|North/W1/Qty|//Cost|North/W2/Qty|//Cost|South/W1/Qty|//Cost|South/W2/Qty|"
            "//Cost");
}

TEST(LayOut, RepeatedHeadingsAreWrittenWhenLabelsAreRepeated) {
  Table table = plan();
  ReportView view = viewOf(table, {0}, {1, 2}, {}, {3});
  view.repeatLabels = true;
  EXPECT_EQ(gridLines(layOut(view))[0], "/Item|North/W1|North/W2|South/W1|South/W2");
}

TEST(LayOut, LabelHeadingsStandInTheMiddleOfTheHeadingBlock) {
  Table table =
      tableOf("A:String B:String C:String D:String Q:Number R:Number", "p", {"a b c d 1 2"});
  ReportView view = viewOf(table, {0}, {1, 2, 3}, {}, {4, 5});
  view.dataInColumns = true;
  const ReportGrid grid = layOut(view);
  EXPECT_EQ(columnHeading(grid, {}, 0), "\n\nA\n") << "three line feeds: two above, one below";
  EXPECT_EQ(columnHeading(grid, {}, 1), "b\nc\nd\nQ");
  EXPECT_EQ(columnHeading(grid, {}, 2), "\n\n\nR");
}

TEST(LayOut, AHiddenFieldOfTheRowsLeavesItsHeadingAndItsLabelsEmpty) {
  Table table = plan();
  table.field(0).hidden = true;
  ReportView view = viewOf(table, {0, 1}, {2}, {}, {3});
  EXPECT_EQ(gridLines(layOut(view)),
            (Lines{"|Place|W1|W2", "|North|1|2", "|South|3|4", "|North|6|7", "|South|5|"}));
  EXPECT_EQ(labelAt(layOut(view), 0, 0), std::nullopt);
  view.dataInColumns = true;
  view.axis(Axis::Data) = {3, 4};
  EXPECT_EQ(gridLines(layOut(view))[0], "/|/Place|W1/Qty|/Cost|W2/Qty|/Cost")
      << "the heading keeps its height";
}

TEST(LayOut, HidingAFieldElsewhereChangesNothing) {
  Table table = plan();
  ReportView view = viewOf(table, {1}, {2}, {0}, {3, 4});
  const Lines shown = gridLines(layOut(view));
  for (const int field : {0, 2, 3, 4}) {
    table.field(field).hidden = true;
  }
  EXPECT_EQ(gridLines(layOut(view)), shown);
  EXPECT_EQ(zPageText(layOut(view), {}, 0), "Bolt");
}

TEST(LayOut, TheDataCellsStandBehindTheLabelColumns) {
  Table table = plan();
  ReportView view = viewOf(table, {0, 1}, {2}, {}, {3, 4});
  EXPECT_EQ(dataCellsOf(layOut(view)), (GridArea{0, 3, 8, 2}));
}

TEST(LayOut, WithoutColumnFieldsTheHeadingIsABlank) {
  Table table = tableOf("A:String Q:Number R:Number", "p", {"a 1 2", "b 3 4"});
  ReportView view = viewOf(table, {0}, {}, {}, {1, 2});
  EXPECT_EQ(gridLines(layOut(view)), (Lines{"A| | ", "a|Q|1", "|R|2", "b|Q|3", "|R|4"}));
  view.dataInColumns = true;
  EXPECT_EQ(gridLines(layOut(view)), (Lines{"A| Q| R", "a|1|2", "b|3|4"}));
}

TEST(LayOut, WithoutColumnFieldsOneDataFieldInColumnsIsHeadedByABlank) {
  Table table = tableOf("A:String Q:Number", "p", {"a 1", "b 3"});
  ReportView view = viewOf(table, {0}, {}, {}, {1});
  view.dataInColumns = true;
  EXPECT_EQ(gridLines(layOut(view)), (Lines{"A| ", "a|1", "b|3"}));
}

TEST(LayOut, LabelsHeadingsAndTabsFollowPrecisionAndDateFormat) {
  Table table =
      tableOf("Size:Number Day:String Qty:Number", "p", {"1200 8/12/2014 4", "1.25 8/5/2014 2"});
  settleTypes(table);
  const FormatSettings settings{.precision = 2, .dateFormat = "%Y-%m-%d"};
  ReportView view = viewOf(table, {0}, {1}, {}, {2});
  const ReportGrid grid = layOut(view);
  EXPECT_EQ(cellText(grid, settings, 0, 0), "1.25");
  EXPECT_EQ(cellText(grid, settings, 1, 0), "1,200.00");
  EXPECT_EQ(cellText(grid, settings, 0, 1), "2.00");
  EXPECT_EQ(columnHeading(grid, settings, 1), "2014-08-05");
  EXPECT_EQ(columnHeading(grid, settings, 2), "2014-08-12");
  ReportView turned = viewOf(table, {1}, {0}, {}, {2});
  const ReportGrid turnedGrid = layOut(turned);
  EXPECT_EQ(cellText(turnedGrid, settings, 1, 0), "2014-08-12");
  EXPECT_EQ(columnHeading(turnedGrid, settings, 2), "1,200.00");
  ReportView pages = viewOf(table, {}, {}, {1, 0}, {2});
  EXPECT_EQ(zPageText(layOut(pages), settings, 1), "2014-08-12, 1,200.00");
}

TEST(LayOut, WithoutRowFieldsThereIsOneRowGroup) {
  Table table = tableOf("A:String Q:Number R:Number", "p", {"a 1 2", "b 3 4"});
  ReportView view = viewOf(table, {}, {0}, {}, {1, 2});
  EXPECT_EQ(gridLines(layOut(view)), (Lines{" |a|b", "Q|1|3", "R|2|4"}));
}

TEST(LayOut, ALabelRepeatsWhenALevelBeforeItChanges) {
  Table table = tableOf("A:String B:String Q:Number", "p", {"a x 1", "b x 2", "b y 3"});
  ReportView view = viewOf(table, {0, 1}, {}, {}, {2});
  EXPECT_EQ(gridLines(layOut(view)), (Lines{"A|B| ", "a|x|1", "b|x|2", "|y|3"}));
}

TEST(LayOut, ZPagesAreChosenByTheIndexWhichIsBroughtIntoRange) {
  Table table = plan();
  ReportView view = viewOf(table, {0}, {2}, {1}, {3});
  view.zIndex = -1;
  EXPECT_EQ(gridLines(layOut(view)), (Lines{"Item|W1|W2", "Bolt|1|2", "Nut|6|7"}));
  EXPECT_EQ(view.zIndex, 0);
  view.zIndex = 2;
  const ReportGrid south = layOut(view);
  EXPECT_EQ(view.zIndex, 1);
  EXPECT_EQ(gridLines(south), (Lines{"Item|W1|W2", "Bolt|3|4", "Nut|5|"}));
  EXPECT_EQ(zPageText(south, {}, 0), "North");
  EXPECT_EQ(zPageText(south, {}, 1), "South");
  EXPECT_EQ(zPageText(south, {}, 2), "");
}

TEST(LayOut, WithoutZFieldsThereIsOnePage) {
  Table table = plan();
  ReportView view = viewOf(table, {0, 1}, {2}, {}, {3});
  view.zIndex = 5;
  const ReportGrid grid = layOut(view);
  EXPECT_EQ(view.zIndex, 0);
  EXPECT_EQ(zPageText(grid, {}, 0), "");
}

TEST(LayOut, TheTabOfAPageJoinsItsValues) {
  Table table = plan();
  ReportView view = viewOf(table, {0}, {}, {1, 2}, {3});
  EXPECT_EQ(zPageText(layOut(view), {}, 1), "North, W2");
}

TEST(LayOut, GroupsComeFromThePageOrFromAllPagesWhenEmptyOnesAreShown) {
  Table table = tableOf("Item:String Week:Period Place:String Q:Number", "W1 W2",
                        {"Nut W2 South 1", "Bolt W1 North 2"});
  ReportView view = viewOf(table, {0}, {1}, {2}, {3});
  EXPECT_EQ(gridLines(layOut(view)), (Lines{"Item|W1", "Bolt|2"}));
  view.showEmptyRowsAndColumns = true;
  EXPECT_EQ(gridLines(layOut(view)), (Lines{"Item|W1|W2", "Bolt|2|", "Nut||"}));
}

TEST(LayOut, TheLastOfSeveralTuplesInOneCellStaysAndAWarningIsDue) {
  Table table = tableOf("A:String B:String Q:Number", "p", {"a x 1", "a z 2", "a y 3", "b x 4"});
  ReportView view = viewOf(table, {0}, {}, {}, {2});
  const ReportGrid grid = layOut(view);
  EXPECT_TRUE(grid.notEnoughKeys);
  EXPECT_EQ(gridLines(grid), (Lines{"A| ", "a|2", "b|4"}));
  ReportView fine = viewOf(table, {0, 1}, {}, {}, {2});
  EXPECT_FALSE(layOut(fine).notEnoughKeys);
}

TEST(LayOut, SortsTheTableIntoKeyOrder) {
  Table table = plan();
  ReportView view = viewOf(table, {2}, {1, 0}, {}, {3});
  EXPECT_EQ(gridLines(layOut(view)),
            (Lines{"/Week|North/Bolt|/Nut|South/Bolt|/Nut", "W1|1|6|3|5", "W2|2|7|4|"}));
  EXPECT_EQ(table.sortedBy, table.sortKeys);
}

TEST(LayOut, AnEmptyTableHasLabelColumnsOnly) {
  Table table = tableOf("A:String P:Period Q:Number", "W1", {});
  ReportView view = viewOf(table, {0}, {1}, {}, {2});
  EXPECT_EQ(gridLines(layOut(view)), Lines{"A"});
}

TEST(LayOut, WithoutDataFieldsThereAreNoDataCells) {
  Table table = tableOf("A:String P:Period", "W1 W2", {"a W1", "b W2"});
  ReportView view = viewOf(table, {0}, {1}, {}, {});
  EXPECT_EQ(gridLines(layOut(view)), Lines{"A|W1|W2"});
  view.dataInColumns = true;
  EXPECT_EQ(gridLines(layOut(view)), (Lines{"A", "a", "b"}));
}

TEST(LayOut, CellsKnowTheirValues) {
  Table table = plan();
  ReportView view = viewOf(table, {0, 1}, {2}, {}, {3, 4});
  const ReportGrid grid = layOut(view);
  const std::optional<CellRef> cell = cellAt(grid, 3, 4);
  ASSERT_TRUE(cell);
  EXPECT_EQ(cell->field, 4);
  EXPECT_EQ(table.cell(cell->tuple, 4).number, 40);
  EXPECT_EQ(cellAt(grid, 6, 4), std::nullopt) << "no tuple for Nut at South in W2";
  EXPECT_EQ(cellAt(grid, 0, 2), std::nullopt) << "a label column";
  EXPECT_EQ(cellAt(grid, 8, 3), std::nullopt) << "below the last row";
  ASSERT_TRUE(labelAt(grid, 2, 1));
  EXPECT_EQ(labelAt(grid, 2, 1)->field, 1);
  EXPECT_EQ(labelAt(grid, 2, 0), std::nullopt) << "repeats the row above";
  EXPECT_EQ(labelAt(grid, 1, 1), std::nullopt) << "second row of its group";
}

TEST(LayOut, ASparseReportFollowsItsTuples) {
  std::vector<std::string> lines;
  for (int i = 0; i < 2000; ++i) {
    lines.push_back("r" + std::to_string(i) + " c" + std::to_string(i) + " 1");
  }
  Table table = tableOf("A:String B:String Q:Number", "p", lines);
  ReportView view = viewOf(table, {0}, {1}, {}, {2});
  const ReportGrid grid = layOut(view);
  EXPECT_EQ(grid.rows, 2000U);
  EXPECT_EQ(grid.columns, 2001U);
  EXPECT_EQ(grid.entries.size(), 2000U);
}

}  // namespace
}  // namespace vrel
