#include "model/summaries.h"

#include <gtest/gtest.h>

#include "model/report_grid.h"
#include "model/report_layout.h"
#include "model/row_cells.h"
#include "support/tables.h"
#include "support/views.h"

namespace vrel {
namespace {

using test::breakOf;
using test::gridLines;
using test::tableOf;
using test::viewOf;
using Lines = std::vector<std::string>;
using Op = BreakOperation;

constexpr int kItem = 0;
constexpr int kPlace = 1;
constexpr int kWeek = 2;
constexpr int kQty = 3;
constexpr int kCost = 4;

// Two items at two places over two weeks, with two numbers; Nut has no row at South in W2.
Table plan() {
  return tableOf(
      "Item:String Place:String Week:Period Qty:Number Cost:Number", "W1 W2",
      {"Bolt North W1 1 10", "Bolt North W2 2 20", "Bolt South W1 3 30", "Bolt South W2 4 40",
       "Nut North W1 6 60", "Nut North W2 7 70", "Nut South W1 5 50"});
}

FormatSettings twoDecimals() {
  FormatSettings settings;
  settings.precision = 2;
  return settings;
}

struct PlanSummaries : testing::Test {
  Table table = plan();
};

TEST_F(PlanSummaries, ASummaryRowHasItsNameInTheColumnOfItsField) {
  ReportView view = viewOf(table, {kItem, kPlace}, {kWeek}, {}, {kQty});
  view.breaks = {breakOf(kItem, 1, {{kQty, Op::Sum}})};
  EXPECT_EQ(gridLines(layOut(view)),
            (Lines{"Item|Place|W1|W2", "Bolt|North|1|2", "|South|3|4", "Total||4|6",
                   "Nut|North|6|7", "|South|5|", "Total||11|7"}));
  view.breaks = {breakOf(kPlace, kBreakAtEnd, {{kQty, Op::Maximum}})};
  EXPECT_EQ(gridLines(layOut(view)), (Lines{"Item|Place|W1|W2", "Bolt|North|1|2", "|South|3|4",
                                            "Nut|North|6|7", "|South|5|", "|Total|6|7"}));
}

TEST_F(PlanSummaries, EachOperationHasItsResult) {
  const std::vector<std::pair<Op, std::string>> results = {
      {Op::Sum, "15|13"},   {Op::Minimum, "1|2"}, {Op::Maximum, "6|7"},
      {Op::Average, "4|4"}, {Op::First, "1|2"},   {Op::Last, "5|7"}};
  for (const auto& [operation, result] : results) {
    ReportView view = viewOf(table, {kItem, kPlace}, {kWeek}, {}, {kQty});
    view.breaks = {breakOf(kItem, kBreakAtEnd, {{kQty, operation}})};
    EXPECT_EQ(gridLines(layOut(view)).back(), "Total||" + result) << operationName(operation);
  }
}

TEST_F(PlanSummaries, DataDownTheRowsHaveARowForEachFieldThatIsComputed) {
  ReportView view = viewOf(table, {kItem, kPlace}, {kWeek}, {}, {kQty, kCost});
  view.breaks = {breakOf(kItem, kBreakAtEnd, {{kQty, Op::Sum}, {kCost, Op::Average}})};
  view.breaks[0].breakAfter = true;
  EXPECT_EQ(gridLines(layOut(view)),
            (Lines{"Item|Place| |W1|W2", "Bolt|North|Qty|1|2", "||Cost|10|20", "|South|Qty|3|4",
                   "||Cost|30|40", "Nut|North|Qty|6|7", "||Cost|60|70", "|South|Qty|5|",
                   "||Cost|50|", "Total||Qty|15|13", "||Cost|38|43", "||||"}));
  view.breaks = {breakOf(kItem, kBreakAtEnd, {{kCost, Op::Sum}})};
  const Lines lines = gridLines(layOut(view));
  EXPECT_EQ(lines.size(), 10U);
  EXPECT_EQ(lines.back(), "Total||Cost|150|130");
}

TEST_F(PlanSummaries, RepeatedLabelsDoNotRepeatTheNameOfABreak) {
  ReportView view = viewOf(table, {kItem, kPlace}, {kWeek}, {}, {kQty, kCost});
  view.repeatLabels = true;
  view.breaks = {breakOf(kPlace, kBreakAtEnd, {{kQty, Op::Sum}, {kCost, Op::Sum}})};
  const Lines lines = gridLines(layOut(view));
  EXPECT_EQ(Lines(lines.end() - 3, lines.end()),
            (Lines{"Nut|South|Cost|50|", "|Total|Qty|15|13", "||Cost|150|130"}));
}

TEST_F(PlanSummaries, DataInColumnsHaveOneRowAndLeaveFieldsWithoutOperationEmpty) {
  ReportView view = viewOf(table, {kItem, kPlace}, {kWeek}, {}, {kQty, kCost});
  view.dataInColumns = true;
  view.breaks = {breakOf(kItem, 1, {{kCost, Op::Sum}})};
  view.breaks[0].breakAfter = true;
  EXPECT_EQ(gridLines(layOut(view)),
            (Lines{"/Item|/Place|W1/Qty|/Cost|W2/Qty|/Cost", "Bolt|North|1|10|2|20",
                   "|South|3|30|4|40", "Total|||40||60", "|||||", "Nut|North|6|60|7|70",
                   "|South|5|50||", "Total|||110||70", "|||||"}));
}

TEST_F(PlanSummaries, LabelsAreComparedAcrossTheSummariesBetweenThem) {
  ReportView view = viewOf(table, {kItem, kPlace}, {kWeek}, {}, {kQty});
  view.breaks = {breakOf(kPlace, 1, {{kQty, Op::Sum}})};
  EXPECT_EQ(gridLines(layOut(view)),
            (Lines{"Item|Place|W1|W2", "Bolt|North|1|2", "|Total|1|2", "|South|3|4", "|Total|3|4",
                   "Nut|North|6|7", "|Total|6|7", "|South|5|", "|Total|5|"}));
}

TEST_F(PlanSummaries, ASummaryColumnIsHeadedByItsNameAtTheLineOfItsField) {
  ReportView view = viewOf(table, {kItem}, {kPlace, kWeek}, {}, {kQty});
  view.breaks = {breakOf(kPlace, 1, {{kQty, Op::Sum}})};
  EXPECT_EQ(gridLines(layOut(view)), (Lines{"/Item|North/W1|/W2|Total/|South/W1|/W2|Total/",
                                            "Bolt|1|2|3|3|4|7", "Nut|6|7|13|5||5"}));
  view.breaks = {breakOf(kWeek, kBreakAtEnd, {{kQty, Op::Last}})};
  view.breaks[0].breakAfter = true;
  EXPECT_EQ(gridLines(layOut(view)), (Lines{"/Item|North/W1|/W2|South/W1|/W2|/Total|/",
                                            "Bolt|1|2|3|4|4|", "Nut|6|7|5||5|"}));
}

TEST_F(PlanSummaries, DataInColumnsHaveASummaryColumnForEachFieldThatIsComputed) {
  ReportView view = viewOf(table, {kItem}, {kPlace, kWeek}, {}, {kQty, kCost});
  view.dataInColumns = true;
  view.breaks = {breakOf(kPlace, 1, {{kQty, Op::Sum}, {kCost, Op::Average}}),
                 breakOf(kWeek, kBreakAtEnd, {{kCost, Op::First}})};
  view.breaks[0].breakAfter = true;
  EXPECT_EQ(
      gridLines(layOut(view)),
      (Lines{"/Item/|North/W1/Qty|//Cost|/W2/Qty|//Cost|Total//Qty|//Cost|//|"
             "South/W1/Qty|//Cost|/W2/Qty|//Cost|/Total/Cost|Total//Qty|//Cost|//",
             "Bolt|1|10|2|20|3|15||3|30|4|40|10|7|35|", "Nut|6|60|7|70|13|65||5|50|||60|5|50|"}));
}

TEST_F(PlanSummaries, DataDownTheRowsHaveOneSummaryColumn) {
  ReportView view = viewOf(table, {kItem}, {kWeek}, {kPlace}, {kQty, kCost});
  view.breaks = {breakOf(kWeek, kBreakAtEnd, {{kCost, Op::Sum}})};
  EXPECT_EQ(gridLines(layOut(view)), (Lines{"Item| |W1|W2|Total", "Bolt|Qty|1|2|", "|Cost|10|20|30",
                                            "Nut|Qty|6|7|", "|Cost|60|70|130"}));
}

TEST_F(PlanSummaries, WhereBothMeetTheRowsOperationRunsOverTheBlock) {
  ReportView view = viewOf(table, {kItem}, {kPlace, kWeek}, {}, {kQty});
  view.breaks = {breakOf(kItem, kBreakAtEnd, {{kQty, Op::Last}}),
                 breakOf(kPlace, 1, {{kQty, Op::Sum}})};
  view.breaks[0].name = "End";
  EXPECT_EQ(gridLines(layOut(view)),
            (Lines{"/Item|North/W1|/W2|Total/|South/W1|/W2|Total/", "Bolt|1|2|3|3|4|7",
                   "Nut|6|7|13|5||5", "End|6|7|7|5|4|5"}))
      << "the last cell of a block is that of its last row";
  view.breaks[0] = breakOf(kItem, kBreakAtEnd, {{kQty, Op::Average}});
  view.breaks[0].name = "Mean";
  EXPECT_EQ(gridLines(layOut(view)).back(), "Mean|4|4|4|4|4|4");
  view.breaks[0] = breakOf(kItem, kBreakAtEnd, {{kQty, Op::First}});
  EXPECT_EQ(gridLines(layOut(view)).back(), "Total|1|2|1|3|4|3");
}

TEST_F(PlanSummaries, WhereBothMeetEveryBreakOnTheRowsMeetsEveryOneOnTheColumns) {
  ReportView view = viewOf(table, {kItem, kPlace}, {kWeek}, {}, {kQty, kCost});
  view.dataInColumns = true;
  view.breaks = {breakOf(kItem, kBreakAtEnd, {{kQty, Op::Sum}}),
                 breakOf(kPlace, 2, {{kQty, Op::Minimum}, {kCost, Op::Sum}}),
                 breakOf(kWeek, kBreakAtEnd, {{kQty, Op::Maximum}, {kCost, Op::Maximum}})};
  EXPECT_EQ(
      gridLines(layOut(view)),
      (Lines{"/Item|/Place|W1/Qty|/Cost|W2/Qty|/Cost|Total/Qty|/Cost", "Bolt|North|1|10|2|20|2|20",
             "|South|3|30|4|40|4|40", "|Total|1|40|2|60|1|100", "Nut|North|6|60|7|70|7|70",
             "|South|5|50|||5|50", "|Total|5|110|7|70|5|180", "Total||15||13||28|"}))
      << "the row's operations decide, and cost has none in the last row";
}

TEST_F(PlanSummaries, ABlankRowIsEmptyUnderASummaryColumnToo) {
  ReportView view = viewOf(table, {kItem}, {kWeek}, {kPlace}, {kQty});
  view.breaks = {breakOf(kItem, kBreakAtEnd, {{kQty, Op::Sum}}),
                 breakOf(kWeek, kBreakAtEnd, {{kQty, Op::Sum}})};
  view.breaks[0].breakAfter = true;
  view.breaks[1].breakAfter = true;
  EXPECT_EQ(gridLines(layOut(view)),
            (Lines{"Item|W1|W2|Total|", "Bolt|1|2|3|", "Nut|6|7|13|", "Total|7|9|16|", "||||"}));
}

TEST_F(PlanSummaries, EachPageHasItsOwn) {
  ReportView view = viewOf(table, {kItem}, {kWeek}, {kPlace}, {kQty});
  view.breaks = {breakOf(kItem, kBreakAtEnd, {{kQty, Op::Sum}})};
  view.zIndex = 1;
  EXPECT_EQ(gridLines(layOut(view)), (Lines{"Item|W1|W2", "Bolt|3|4", "Nut|5|", "Total|8|4"}));
}

TEST(Summaries, ShownEmptyRowsCountAsChangesAndHaveEmptySummaries) {
  Table table = tableOf("Item:String Week:Period Place:String Qty:Number", "W1 W2",
                        {"Nut W2 South 1", "Bolt W1 North 2"});
  ReportView view = viewOf(table, {0}, {1}, {2}, {3});
  view.showEmptyRowsAndColumns = true;
  view.breaks = {breakOf(0, 1, {{3, Op::Sum}}), breakOf(1, 1, {{3, Op::Sum}})};
  EXPECT_EQ(gridLines(layOut(view)),
            (Lines{"Item|W1|Total|W2|Total", "Bolt|2|2||", "Total|2|2||", "Nut||||", "Total||||"}));
}

TEST(Summaries, ReportsWithoutGroupsHaveNone) {
  Table table = tableOf("Item:String Week:Period Qty:Number", "W1", {});
  ReportView view = viewOf(table, {0}, {1}, {}, {2});
  view.breaks = {breakOf(0, 1, {{2, Op::Sum}}), breakOf(1, 1, {{2, Op::Sum}})};
  EXPECT_EQ(gridLines(layOut(view)), Lines{"Item"});
}

TEST(Summaries, OneGroupHasOneOnEachAxis) {
  Table table = tableOf("Item:String Week:Period Qty:Number", "W1", {"Nut W1 4"});
  ReportView view = viewOf(table, {0}, {1}, {}, {2});
  view.breaks = {breakOf(0, 1, {{2, Op::Sum}}), breakOf(1, 1, {{2, Op::Sum}})};
  EXPECT_EQ(gridLines(layOut(view)), (Lines{"Item|W1|Total", "Nut|4|4", "Total|4|4"}));
}

TEST(Summaries, ReportsWithoutDataFieldsHaveNone) {
  Table table = tableOf("Item:String Week:Period Qty:Number", "W1", {"Nut W1 4"});
  ReportView view = viewOf(table, {0}, {1}, {}, {});
  view.dataInColumns = true;
  view.breaks = {breakOf(0, 1, {{2, Op::Sum}}), breakOf(1, 1, {{2, Op::Sum}})};
  EXPECT_EQ(gridLines(layOut(view)), (Lines{"Item", "Nut"}));
}

TEST(Summaries, OnlyNumbersAndExpressionsContribute) {
  Table table = tableOf("Item:String Name:String Flag:Boolean Day:Date Week:Period Qty:Number",
                        "W1", {"Bolt 3 y 8/5/2014 W1 7", "Nut 4 n 8/6/2014 W1 8"});
  ReportView view = viewOf(table, {0}, {}, {}, {1, 2, 3, 4, 5});
  view.dataInColumns = true;
  view.breaks = {
      breakOf(0, kBreakAtEnd,
              {{1, Op::Sum}, {2, Op::Maximum}, {3, Op::Last}, {4, Op::First}, {5, Op::Sum}})};
  EXPECT_EQ(gridLines(layOut(view)).back(), "Total|||||15");
  view.breaks = {breakOf(0, kBreakAtEnd, {{2, Op::Sum}})};
  EXPECT_EQ(gridLines(layOut(view)).back(), "Total|||||") << "a row of its own, without numbers";
  table.fields[5].type = FieldType::Expression;
  view.breaks = {breakOf(0, kBreakAtEnd, {{5, Op::Sum}})};
  EXPECT_EQ(gridLines(layOut(view)).back(), "Total|||||15");
}

TEST(Summaries, AnAverageDividesByTheCellsThatAreThere) {
  Table table = tableOf("Item:String Week:Period Qty:Number", "W1 W2",
                        {"Bolt W1 2", "Nut W1 5", "Nut W2 9", "Pin W2 undefined"});
  ReportView view = viewOf(table, {0}, {1}, {}, {2});
  view.breaks = {breakOf(0, kBreakAtEnd, {{2, Op::Average}})};
  const ReportGrid grid = layOut(view);
  EXPECT_EQ(cellText(grid, twoDecimals(), 3, 1), "3.50");
  EXPECT_EQ(cellText(grid, twoDecimals(), 3, 2), "4.50") << "undefined is there and counts as 0";
}

TEST(Summaries, AnUnboundedNumberPoisonsTheSum) {
  Table table = tableOf("Item:String Qty:Number", "p", {"Bolt 2", "Nut *", "Pin 3"});
  ReportView view = viewOf(table, {0}, {}, {}, {1});
  view.breaks = {breakOf(0, kBreakAtEnd, {{1, Op::Sum}})};
  EXPECT_EQ(gridLines(layOut(view)).back(), "Total|*");
}

TEST(Summaries, NegativeNumbersHaveTheMaximumZero) {
  Table table = tableOf("Item:String Qty:Number", "p", {"Bolt -3", "Nut -5"});
  ReportView view = viewOf(table, {0}, {}, {}, {1});
  view.breaks = {breakOf(0, kBreakAtEnd, {{1, Op::Maximum}})};
  EXPECT_EQ(gridLines(layOut(view)).back(), "Total|0");
}

TEST(Summaries, TextsFollowTheSettingsInForce) {
  Table table = tableOf("Item:String Qty:Number", "p", {"Bolt 1200.5", "Nut 1e20", "Pin 0"});
  ReportView view = viewOf(table, {0}, {}, {}, {1});
  view.breaks = {breakOf(0, 1, {{1, Op::Sum}})};
  const ReportGrid grid = layOut(view);
  FormatSettings settings;
  settings.precision = 1;
  settings.zeroUnderscore = true;
  EXPECT_EQ(cellText(grid, settings, 1, 1), "1,200.5");
  EXPECT_EQ(cellText(grid, settings, 3, 1), "*");
  EXPECT_EQ(cellText(grid, settings, 5, 1), "_");
  const PlainNumbers plain(settings);
  EXPECT_EQ(cellText(grid, settings, 1, 1), "1200.5");
  EXPECT_EQ(cellText(grid, settings, 3, 1), "100000000000000000000.0");
  EXPECT_EQ(cellText(grid, settings, 5, 1), "0.0");
}

TEST_F(PlanSummaries, TheirCellsHaveNumbersAndNoValuesOfTheTable) {
  ReportView view = viewOf(table, {kItem, kPlace}, {kWeek}, {}, {kQty});
  view.breaks = {breakOf(kItem, 1, {{kQty, Op::Sum}}),
                 breakOf(kWeek, kBreakAtEnd, {{kQty, Op::Sum}})};
  view.breaks[0].breakAfter = true;
  const ReportGrid grid = layOut(view);
  ASSERT_EQ(gridLines(grid)[3], "Total||4|6|10");
  EXPECT_EQ(cellAt(grid, 2, 2), std::nullopt);
  EXPECT_EQ(labelAt(grid, 2, 0), std::nullopt);
  EXPECT_EQ(cellAt(grid, 3, 2), std::nullopt) << "the blank row";
  EXPECT_EQ(labelAt(grid, 3, 0), std::nullopt);
  EXPECT_EQ(cellAt(grid, 0, 4), std::nullopt) << "the summary column";
  EXPECT_EQ(summaryAt(grid, 2, 3), 6);
  EXPECT_EQ(summaryAt(grid, 2, 4), 10);
  EXPECT_EQ(summaryAt(grid, 0, 4), 3);
  EXPECT_EQ(summaryAt(grid, 0, 2), std::nullopt) << "a plain cell";
  EXPECT_EQ(summaryAt(grid, 3, 4), std::nullopt) << "the blank row";
  EXPECT_EQ(summaryAt(grid, 2, 0), std::nullopt) << "a label column";
  EXPECT_EQ(summaryAt(grid, 8, 2), std::nullopt) << "below the last row";
  EXPECT_EQ(summaryAt(grid, 2, 5), std::nullopt) << "behind the last column";
  ASSERT_TRUE(cellAt(grid, 4, 3)) << "behind a summary";
  EXPECT_EQ(table.cell(cellAt(grid, 4, 3)->tuple, kQty).number, 7);
  EXPECT_EQ(labelAt(grid, 4, 0)->field, kItem);
}

TEST_F(PlanSummaries, AreBroughtUpToDateWithoutANewLayout) {
  ReportView view = viewOf(table, {kItem}, {kWeek}, {kPlace}, {kQty});
  view.breaks = {breakOf(kItem, kBreakAtEnd, {{kQty, Op::Sum}}),
                 breakOf(kWeek, kBreakAtEnd, {{kQty, Op::Sum}})};
  ReportGrid grid = layOut(view);
  const CellRef changed = cellAt(grid, 1, 2).value();
  table.cell(changed.tuple, changed.field) = numberCell(100);
  EXPECT_EQ(gridLines(grid).back(), "Total|7|9|16");
  refreshSummaries(grid);
  EXPECT_EQ(gridLines(grid),
            (Lines{"Item|W1|W2|Total", "Bolt|1|2|3", "Nut|6|100|106", "Total|7|102|109"}));
}

// The cells of a row as `findRowCells` gives them, an empty text for each of the others.
std::string foundTexts(const ReportGrid& grid, std::size_t row) {
  std::vector<RowCell> cells = {{99, 99, 99, 99}};
  findRowCells(grid, row, cells);
  std::string text;
  std::size_t column = grid.labelColumns;
  for (const RowCell& cell : cells) {
    text.append(cell.column - column, '|');
    column = cell.column;
    text += cell.tuple == RowCell::kSummary
                ? formatNumber(cell.number, {})
                : formatValue(grid.table->value(cell.tuple, grid.dataFields[cell.data]), {},
                              Quoting::None);
  }
  return text.append(grid.columns - 1 - column, '|');
}

std::string shownTexts(const ReportGrid& grid, std::size_t row) {
  std::string text;
  for (std::size_t column = grid.labelColumns; column < grid.columns; ++column) {
    text += (column > grid.labelColumns ? "|" : "") + cellText(grid, {}, row, column);
  }
  return text;
}

TEST_F(PlanSummaries, RowByRowTheFilledCellsAreThoseThatAreShown) {
  for (const bool dataInColumns : {false, true}) {
    ReportView view = viewOf(table, {kItem, kPlace}, {kWeek}, {}, {kQty, kCost});
    view.dataInColumns = dataInColumns;
    view.breaks = {breakOf(kItem, 1, {{kCost, Op::Sum}}),
                   breakOf(kPlace, 1, {{kQty, Op::Sum}, {kCost, Op::First}}),
                   breakOf(kWeek, 1, {{kQty, Op::Last}})};
    view.breaks[1].breakAfter = true;
    view.breaks[2].breakAfter = true;
    const ReportGrid grid = layOut(view);
    for (std::size_t row = 0; row < grid.rows; ++row) {
      EXPECT_EQ(foundTexts(grid, row), shownTexts(grid, row)) << row;
    }
  }
}

// A report in which one tuple in 16 of the combinations of rows and columns is there.
struct GeneratedSummaries : testing::Test {
  GeneratedSummaries() {
    std::vector<std::string> lines;
    for (int row = 0; row < 40; ++row) {
      for (int column = 0; column < 24; ++column) {
        if ((row * 7 + column * 5 + row * column) % 16 < 5) {
          lines.push_back("r" + std::to_string(row / 6) + " s" + std::to_string(row) + " c" +
                          std::to_string(column / 5) + " d" + std::to_string(column) + " " +
                          std::to_string((row * 31 + column * 17) % 101 - 50));
        }
      }
    }
    table = tableOf("A:String B:String C:String D:String Q:Number", "p", lines);
  }

  // What an operation makes of the plain cells of a block, looked up one by one.
  static std::optional<double> slowly(const ReportGrid& grid, Op operation,
                                      std::pair<std::size_t, std::size_t> rows,
                                      std::pair<std::size_t, std::size_t> columns) {
    const BreakArithmetic& arithmetic = arithmeticOf(operation);
    double result = arithmetic.start;
    std::uint32_t count = 0;
    for (std::size_t row = rows.first; row < rows.second; ++row) {
      for (std::size_t column = columns.first; column < columns.second; ++column) {
        if (const auto cell = cellAt(grid, row, column)) {
          result = arithmetic.step(result, numberOf(grid.table->cell(cell->tuple, cell->field)),
                                   count++);
        }
      }
    }
    return count == 0 ? std::nullopt : std::optional(arithmetic.finish(result, count));
  }

  // The lines from behind the last summary of the same break up to a summary's own line.
  static std::pair<std::size_t, std::size_t> covered(const AxisLines& axis, std::size_t line) {
    const SummaryPlace& place = axis.summaries[lineAt(axis, line).index];
    const std::uint32_t first =
        place.turn == 0 ? 0 : axis.breaks[place.breakIndex].ends[place.turn - 1];
    return {firstLineOf(axis, first), line};
  }

  Table table;
};

TEST_F(GeneratedSummaries, AgreeWithCellsLookedUpOneByOne) {
  for (const Op operation : {Op::Sum, Op::Minimum, Op::Maximum, Op::Average, Op::First, Op::Last}) {
    ReportView view = viewOf(table, {0, 1}, {2, 3}, {}, {4});
    view.breaks = {breakOf(0, 2, {{4, operation}}), breakOf(1, 4, {{4, operation}}),
                   breakOf(2, 1, {{4, operation}}), breakOf(3, 3, {{4, operation}})};
    const ReportGrid grid = layOut(view);
    int compared = 0;
    for (std::size_t row = 0; row < grid.rows; ++row) {
      for (std::size_t column = grid.labelColumns; column < grid.columns; ++column) {
        const std::size_t across = column - grid.labelColumns;
        const bool down = rowLineAt(grid, row).kind == LineKind::Summary;
        const bool right = columnLineAt(grid, column).kind == LineKind::Summary;
        if (!down && !right) {
          continue;
        }
        const auto rows = down ? covered(grid.rowLines, row) : std::pair(row, row + 1);
        auto columns = right ? covered(grid.columnLines, across) : std::pair(across, across + 1);
        columns.first += grid.labelColumns;
        columns.second += grid.labelColumns;
        ASSERT_EQ(summaryAt(grid, row, column), slowly(grid, operation, rows, columns))
            << operationName(operation) << " at " << row << ", " << column;
        ++compared;
      }
    }
    EXPECT_GT(compared, 800);
  }
}

TEST_F(GeneratedSummaries, OfChangedTuplesAloneAreThoseOfAllTuples) {
  for (const Op operation : {Op::Sum, Op::Minimum, Op::Maximum, Op::Average, Op::First, Op::Last}) {
    ReportView view = viewOf(table, {0, 1}, {2, 3}, {}, {4});
    view.breaks = {breakOf(0, 2, {{4, operation}}), breakOf(1, 4, {{4, operation}}),
                   breakOf(2, 1, {{4, operation}}), breakOf(3, 3, {{4, operation}})};
    ReportGrid grid = layOut(view);
    for (std::uint32_t round = 0; round < 40; ++round) {
      std::vector<std::uint32_t> changed;
      for (std::uint32_t i = 0; i <= round; i += 2) {
        changed.push_back((round * 37 + i * 11) % static_cast<std::uint32_t>(table.tupleCount));
        table.cell(changed.back(), 4) = numberCell(round * 0.1 - i * 3.7);
      }
      refreshSummaries(grid, changed);
      const std::vector<std::string> updated = gridLines(grid);
      refreshSummaries(grid);
      ASSERT_EQ(updated, gridLines(grid)) << operationName(operation) << " in round " << round;
    }
  }
}

// More cells than are added at once, with numbers that count as none or as unbounded among them.
TEST(Summaries, OfLongRunsWithOddNumbersFollowChangedTuples) {
  std::vector<std::string> lines;
  for (int i = 0; i < 1500; ++i) {
    lines.push_back("r" + std::to_string(1000 + i / 3) + " c" + std::to_string(i % 3) + " " +
                    (i % 7 == 0 ? "undefined" : std::to_string(i) + ".3") + " " +
                    std::to_string(i % 11));
  }
  Table table = tableOf("A:String B:String Q:Number P:Number", "p", lines);
  for (const Op operation : {Op::Sum, Op::Maximum, Op::Last}) {
    ReportView view = viewOf(table, {0}, {1}, {}, {2, 3});
    for (const int field : {0, 1}) {
      view.breaks.push_back(breakOf(field, kBreakAtEnd, {{2, operation}, {3, Op::Average}}));
    }
    ReportGrid grid = layOut(view);
    for (const std::uint32_t tuple : {1499U, 700U, 0U}) {
      table.cell(tuple, 2) = tuple == 700 ? numberCell(kUnbounded) : undefinedCell();
      refreshSummaries(grid, std::vector<std::uint32_t>{tuple});
      const std::vector<std::string> updated = gridLines(grid);
      refreshSummaries(grid);
      ASSERT_EQ(updated, gridLines(grid)) << operationName(operation) << " after " << tuple;
    }
    double plain = 0;
    for (std::size_t tuple = 0; tuple < table.tupleCount; ++tuple) {
      plain = arithmeticOf(operation).step(plain, numberOf(table.cell(tuple, 2)),
                                           static_cast<std::uint32_t>(tuple));
    }
    const auto total = summaryAt(grid, grid.rows - 2, grid.columns - 1);
    EXPECT_EQ(total, plain) << operationName(operation);
  }
}

TEST_F(PlanSummaries, ChangedTuplesOfAnotherPageChangeNothing) {
  ReportView view = viewOf(table, {kItem}, {kWeek}, {kPlace}, {kQty});
  view.breaks = {breakOf(kItem, kBreakAtEnd, {{kQty, Op::Sum}})};
  ReportGrid grid = layOut(view);
  view.zIndex = 1;
  const std::uint32_t elsewhere = cellAt(layOut(view), 0, 1).value().tuple;
  table.cell(elsewhere, kQty) = numberCell(100);
  const std::vector<std::uint32_t> changed = {elsewhere};
  EXPECT_EQ(placeOf(grid, elsewhere), std::nullopt);
  refreshSummaries(grid, changed);
  EXPECT_EQ(gridLines(grid).back(), "Total|7|9");
}

TEST_F(PlanSummaries, ACellIsFoundWhereverItStands) {
  for (const bool dataInColumns : {false, true}) {
    ReportView view = viewOf(table, {kItem}, {kWeek}, {kPlace}, {kQty, kCost});
    view.dataInColumns = dataInColumns;
    view.breaks = {breakOf(kItem, 1, {{kQty, Op::Sum}}), breakOf(kWeek, 1, {{kQty, Op::Sum}})};
    const ReportGrid grid = layOut(view);
    int found = 0;
    for (std::size_t row = 0; row < grid.rows; ++row) {
      for (std::size_t column = grid.labelColumns; column < grid.columns; ++column) {
        if (const auto cell = cellAt(grid, row, column)) {
          EXPECT_EQ(placeOfCell(grid, *cell), (GridPlace{row, column}));
          EXPECT_EQ(pageOf(grid, cell->tuple), 0);
          ++found;
        }
      }
    }
    EXPECT_EQ(found, 8);
    EXPECT_EQ(placeOfCell(grid, {0, kPlace}), std::nullopt) << "no data field";
    view.zIndex = 1;
    const CellRef elsewhere = cellAt(layOut(view), 0, grid.labelColumns).value();
    EXPECT_EQ(placeOfCell(grid, elsewhere), std::nullopt);
    EXPECT_EQ(pageOf(grid, elsewhere.tuple), 1);
  }
}

TEST_F(PlanSummaries, ATupleStandsInItsGroups) {
  ReportView view = viewOf(table, {kItem, kPlace}, {kWeek}, {}, {kQty});
  const ReportGrid grid = layOut(view);
  for (std::uint32_t row = 0; row < grid.rowGroups.size(); ++row) {
    for (std::uint32_t entry = grid.rowStart[row]; entry < grid.rowStart[row + 1]; ++entry) {
      EXPECT_EQ(placeOf(grid, grid.entries[entry].tuple),
                (GroupPlace{row, grid.entries[entry].columnGroup}));
    }
  }
}

TEST(Summaries, OfASparseReportFollowItsTuples) {
  std::vector<std::string> lines;
  for (int i = 0; i < 3000; ++i) {
    lines.push_back("r" + std::to_string(i) + " c" + std::to_string(i) + " 1");
  }
  Table table = tableOf("A:String B:String Q:Number", "p", lines);
  ReportView view = viewOf(table, {0}, {1}, {}, {2});
  view.breaks = {breakOf(0, 1, {{2, Op::Sum}}), breakOf(1, 1, {{2, Op::Sum}})};
  const ReportGrid grid = layOut(view);
  EXPECT_EQ(grid.rows, 6000U);
  EXPECT_EQ(grid.columns, 6001U);
  EXPECT_EQ(grid.summaries.rows[0].numbers.size(), 3000U);
  EXPECT_EQ(grid.summaries.columns[0].numbers.size(), 3000U);
  EXPECT_EQ(grid.summaries.crossings[0].numbers.size(), 3000U);
}

}  // namespace
}  // namespace vrel
