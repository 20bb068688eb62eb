#include "model/grid_statistics.h"

#include <gtest/gtest.h>

#include <cmath>

#include "model/report_layout.h"
#include "support/random_reports.h"
#include "support/tables.h"
#include "support/views.h"

namespace vrel {
namespace {

using test::breakOf;
using test::RandomReport;
using test::tableOf;
using test::viewOf;

StatisticsResult statisticsOf(const ReportGrid& grid, const GridArea& area) {
  GridStatistics statistics = startStatistics(grid, area);
  advance(statistics, grid, grid.rows);
  EXPECT_TRUE(statistics.isComplete());
  return resultOf(statistics);
}

constexpr int kItem = 0;
constexpr int kWeek = 1;
constexpr int kQty = 2;
constexpr int kNote = 3;
constexpr int kActive = 4;

// Two items over three weeks; Nut has no tuple in W2.
Table plan() {
  return tableOf("Item:String Week:Period Qty:Number Note:String Active:Boolean", "W1 W2 W3",
                 {"Bolt W1 1 late Yes", "Bolt W2 2 \"\" No", "Bolt W3 3.5 late Yes",
                  "Nut W1 -6 early No", "Nut W3 8 \"\" Yes"});
}

struct Statistics : testing::Test {
  // Item, W1, W2, W3.
  Table table = plan();
  ReportView view = viewOf(table, {kItem}, {kWeek}, {}, {kQty});
  ReportGrid grid = layOut(view);

  Cell& qty(std::size_t row, std::size_t column) {
    return table.cell(cellAt(grid, row, column)->tuple, kQty);
  }
};

TEST_F(Statistics, OfABlockAreThoseOfItsNumbers) {
  EXPECT_EQ(statisticsOf(grid, {0, 1, 2, 3}), (StatisticsResult{5, 5, 8.5, 1.7, -6, 8}));
  EXPECT_EQ(statisticsOf(grid, {0, 2, 2, 2}), (StatisticsResult{3, 3, 13.5, 4.5, 2, 8}));
  EXPECT_EQ(statisticsOf(grid, {1, 2, 1, 1}), StatisticsResult()) << "an empty cell";
}

TEST_F(Statistics, LabelsCountAsCellsOnly) {
  EXPECT_EQ(statisticsOf(grid, {0, 0, 2, 2}), (StatisticsResult{4, 2, -5, -2.5, -6, 1}));
  EXPECT_EQ(statisticsOf(grid, {0, 0, 2, 1}), (StatisticsResult{2, 0, 0, 0, 0, 0}));
}

TEST_F(Statistics, TextsAndFlagsCountAsCellsAndEmptyTextsDoNot) {
  ReportView texts = viewOf(table, {kItem}, {kWeek}, {}, {kNote, kActive});
  const ReportGrid rows = layOut(texts);
  EXPECT_EQ(statisticsOf(rows, {0, 2, 4, 3}), (StatisticsResult{8, 0, 0, 0, 0, 0}));
  EXPECT_EQ(statisticsOf(rows, {0, 0, 4, 2}).cells, 6U) << "two items and four data names";
}

TEST_F(Statistics, PeriodsAreNoNumbers) {
  ReportView weeks = viewOf(table, {kItem}, {}, {}, {kWeek});
  EXPECT_EQ(statisticsOf(layOut(weeks), {0, 1, 2, 1}).cells, 2U);
  EXPECT_EQ(statisticsOf(layOut(weeks), {0, 1, 2, 1}).numbers, 0U);
}

TEST_F(Statistics, UndefinedValuesAndFailedFormulasAreNoNumbers) {
  qty(0, 1) = undefinedCell();
  qty(0, 2) = numberCell(kErrorValue);
  EXPECT_EQ(statisticsOf(grid, {0, 1, 1, 3}), (StatisticsResult{3, 1, 3.5, 3.5, 3.5, 3.5}));
  table.field(kQty).type = FieldType::Expression;
  EXPECT_EQ(statisticsOf(grid, {0, 1, 1, 3}), (StatisticsResult{3, 1, 3.5, 3.5, 3.5, 3.5}));
}

TEST_F(Statistics, UnboundedValuesAreNumbers) {
  qty(0, 1) = numberCell(kUnbounded);
  EXPECT_EQ(statisticsOf(grid, {0, 1, 1, 2}).maximum, kUnbounded);
  qty(0, 1) = numberCell(1.7e308);
  qty(0, 2) = numberCell(1.7e308);
  EXPECT_TRUE(std::isinf(statisticsOf(grid, {0, 1, 1, 2}).sum));
}

TEST_F(Statistics, TheSumKeepsWhatRoundingTakes) {
  qty(0, 1) = numberCell(1e16);
  qty(0, 2) = numberCell(1);
  qty(0, 3) = numberCell(-1e16);
  EXPECT_EQ(statisticsOf(grid, {0, 1, 1, 3}).sum, 1);
  qty(0, 1) = numberCell(1);
  qty(0, 2) = numberCell(1e16);
  EXPECT_EQ(statisticsOf(grid, {0, 1, 1, 3}).sum, 1);
}

TEST_F(Statistics, SummariesAreLeftOutBesidePlainCells) {
  view.breaks = {breakOf(kItem, kBreakAtEnd, {{kQty, BreakOperation::Sum}}),
                 breakOf(kWeek, kBreakAtEnd, {{kQty, BreakOperation::Sum}})};
  grid = layOut(view);
  ASSERT_EQ(test::gridLines(grid).back(), "Total|-5|2|12|8");
  EXPECT_EQ(statisticsOf(grid, {0, 1, 3, 4}), (StatisticsResult{5, 5, 8.5, 1.7, -6, 8}));
  EXPECT_EQ(statisticsOf(grid, {0, 0, 3, 2}).cells, 4U) << "the summary's name is left out, too";
}

TEST_F(Statistics, SummariesAloneAreCounted) {
  view.breaks = {breakOf(kItem, kBreakAtEnd, {{kQty, BreakOperation::Sum}}),
                 breakOf(kWeek, kBreakAtEnd, {{kQty, BreakOperation::Sum}})};
  grid = layOut(view);
  EXPECT_EQ(statisticsOf(grid, {2, 1, 1, 3}), (StatisticsResult{3, 3, 8.5, 8.5 / 3, -5, 11.5}));
  EXPECT_EQ(statisticsOf(grid, {0, 4, 3, 1}), (StatisticsResult{3, 3, 17, 17.0 / 3, 2, 8.5}));
  EXPECT_EQ(statisticsOf(grid, {2, 0, 1, 2}), (StatisticsResult{2, 1, -5, -5, -5, -5}))
      << "the name of the summary is a cell";
  EXPECT_EQ(statisticsOf(grid, {1, 2, 2, 1}), (StatisticsResult{1, 1, 2, 2, 2, 2}))
      << "the plain cell shows nothing";
}

TEST_F(Statistics, WhatReachesBeyondTheGridIsCutOff) {
  EXPECT_EQ(statisticsOf(grid, {1, 1, 90, 90}), (StatisticsResult{2, 2, 2, 1, -6, 8}));
  EXPECT_EQ(statisticsOf(grid, {7, 9, 1, 1}), StatisticsResult());
  EXPECT_EQ(statisticsOf(ReportGrid(), {0, 0, 1, 1}), StatisticsResult());
}

TEST_F(Statistics, GoOnWhereTheyStopped) {
  GridStatistics statistics = startStatistics(grid, {0, 1, 2, 3});
  EXPECT_FALSE(statistics.isComplete());
  advance(statistics, grid, 1);
  EXPECT_EQ(statistics.nextRow, 1U);
  EXPECT_EQ(resultOf(statistics).numbers, 3U);
  advance(statistics, grid, 5);
  EXPECT_TRUE(statistics.isComplete());
  EXPECT_EQ(resultOf(statistics), (StatisticsResult{5, 5, 8.5, 1.7, -6, 8}));
  advance(statistics, grid, 5);
  EXPECT_EQ(resultOf(statistics).numbers, 5U) << "nothing is counted twice";
}

// The same, cell by cell through the texts and values of the grid.
StatisticsResult cellByCell(const ReportGrid& grid, const GridArea& area) {
  std::vector<double> plain;
  std::vector<double> summaries;
  StatisticsResult result;
  std::uint64_t plainCells = 0;
  std::uint64_t summaryLabels = 0;
  for (std::size_t row = area.firstRow; row < area.endRow(); ++row) {
    for (std::size_t column = area.firstColumn; column < area.endColumn(); ++column) {
      const bool shown = !cellText(grid, FormatSettings(), row, column).empty();
      if (column < grid.labelColumns) {
        const bool ofSummary = rowLineAt(grid, row).kind == LineKind::Summary;
        (ofSummary ? summaryLabels : result.cells) += shown ? 1 : 0;
      } else if (const auto ref = cellAt(grid, row, column)) {
        plainCells += shown ? 1 : 0;
        const FieldType type = grid.table->field(ref->field).type;
        const Cell cell = grid.table->cell(ref->tuple, ref->field);
        if ((type == FieldType::Number || type == FieldType::Expression) && !isUndefined(cell) &&
            cell.number != kErrorValue) {
          plain.push_back(cell.number);
        }
      } else if (const auto number = summaryAt(grid, row, column)) {
        summaries.push_back(*number);
      }
    }
  }
  const std::vector<double>& numbers = plainCells > 0 ? plain : summaries;
  result.cells += plainCells > 0 ? plainCells : summaries.size() + summaryLabels;
  result.numbers = numbers.size();
  if (!numbers.empty()) {
    long double sum = 0;
    for (const double number : numbers) {
      sum += number;
    }
    result.sum = static_cast<double>(sum);
    result.average = result.sum / static_cast<double>(numbers.size());
    result.minimum = *std::min_element(numbers.begin(), numbers.end());
    result.maximum = *std::max_element(numbers.begin(), numbers.end());
  }
  return result;
}

TEST(RandomStatistics, AreThoseOfTheCellsOneByOne) {
  std::mt19937 random(5);
  for (int round = 0; round < 1000; ++round) {
    const RandomReport report(random);
    const ReportGrid& grid = report.grid;
    const GridArea area = test::randomAreaIn(random, {0, 0, grid.rows, grid.columns});
    const StatisticsResult found = statisticsOf(grid, area);
    const StatisticsResult expected = cellByCell(grid, area);
    ASSERT_EQ(found.cells, expected.cells) << round;
    ASSERT_EQ(found.numbers, expected.numbers) << round;
    ASSERT_DOUBLE_EQ(found.sum, expected.sum) << round;
    ASSERT_DOUBLE_EQ(found.average, expected.average) << round;
    ASSERT_EQ(found.minimum, expected.minimum) << round;
    ASSERT_EQ(found.maximum, expected.maximum) << round;
  }
}

}  // namespace
}  // namespace vrel
