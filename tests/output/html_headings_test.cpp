#include "output/html_headings.h"

#include <gmock/gmock.h>

#include "model/report_layout.h"
#include "support/html.h"
#include "support/random_reports.h"
#include "support/tables.h"

namespace vrel {
namespace {

/// The heading rows of a view, whose cells are told short: "rows" and "columns" that they span,
/// then the text. "corner 2x1 | 2:North | Total".
std::string headingsOf(ReportView& view) {
  FormatSettings settings;
  settings.precision = 0;
  const ReportGrid grid = layOut(view);
  return test::penned([&](TextPen& pen) { writeHtmlHeadings(grid, settings, pen); });
}

Table planTable() {
  return test::tableOf("Item:String Kind:String Plant:String Amount:Number Cost:Number", "",
                       {"Bolt Demand North 1 2", "Bolt Demand South 3 4", "Bolt Supply North 5 6",
                        "Nut Supply North 7 8"});
}

constexpr int kItem = 0;
constexpr int kKind = 1;
constexpr int kPlant = 2;
constexpr int kAmount = 3;
constexpr int kCost = 4;

TEST(HtmlHeadings, OfOneLineAreOneRowBesideTheCorner) {
  Table table = planTable();
  ReportView view = test::viewOf(table, {kItem, kKind}, {kPlant}, {}, {kAmount});
  EXPECT_EQ(headingsOf(view),
            "<tr align=left>\n"
            "<th rowspan=1 colspan=2></th>\n"
            "<th>North</th>\n"
            "<th>South</th>\n"
            "</tr>\n");
}

TEST(HtmlHeadings, SpanTheColumnsThatAnOuterValueHoldsFor) {
  Table table = planTable();
  ReportView view = test::viewOf(table, {kItem}, {kKind, kPlant}, {}, {kAmount});
  EXPECT_EQ(headingsOf(view),
            "<tr align=left>\n"
            "<th rowspan=2 colspan=1></th>\n"
            "<th colspan=2>Demand</th>\n"
            "<th>Supply</th>\n"
            "</tr>\n"
            "<tr align=left>\n"
            "<th>North</th>\n"
            "<th>South</th>\n"
            "<th>North</th>\n"
            "</tr>\n");
}

TEST(HtmlHeadings, OfOneLineStandInTheLowestRowUnderTheHeadingToTheirLeft) {
  Table table = test::tableOf("Item:String Kind:String Plant:String Amount:Number", "",
                              {"Bolt Supply Plant_A 1"});
  ReportView view = test::viewOf(table, {kItem}, {kKind, kPlant}, {}, {kAmount});
  view.breaks = {test::breakOf(kKind, kBreakAtEnd, {{kAmount, BreakOperation::Sum}})};
  const std::string twoRows =
      "<tr align=left>\n"
      "<th rowspan=2 colspan=1></th>\n"
      "<th colspan=2>Supply</th>\n"
      "</tr>\n"
      "<tr align=left>\n"
      "<th>Plant_A</th>\n"
      "<th>Total</th>\n"
      "</tr>\n";
  EXPECT_EQ(columnHeading(layOut(view), {}, 2), "Total\n");
  EXPECT_EQ(headingsOf(view), twoRows);
  view.breaks = {test::breakOf(kPlant, kBreakAtEnd, {{kAmount, BreakOperation::Sum}})};
  EXPECT_EQ(columnHeading(layOut(view), {}, 2), "\nTotal");
  EXPECT_EQ(headingsOf(view), twoRows);
}

TEST(HtmlHeadings, OfDataInColumnsRepeatOnlyTheirNames) {
  Table table = planTable();
  ReportView view = test::viewOf(table, {kItem}, {kKind, kPlant}, {}, {kAmount, kCost});
  view.dataInColumns = true;
  EXPECT_EQ(headingsOf(view),
            "<tr align=left>\n"
            "<th rowspan=3 colspan=1></th>\n"
            "<th colspan=4>Demand</th>\n"
            "<th colspan=2>Supply</th>\n"
            "</tr>\n"
            "<tr align=left>\n"
            "<th colspan=2>North</th>\n"
            "<th colspan=2>South</th>\n"
            "<th colspan=2>North</th>\n"
            "</tr>\n"
            "<tr align=left>\n"
            "<th>Amount</th>\n"
            "<th>Cost</th>\n"
            "<th>Amount</th>\n"
            "<th>Cost</th>\n"
            "<th>Amount</th>\n"
            "<th>Cost</th>\n"
            "</tr>\n");
}

TEST(HtmlHeadings, OfSummariesSpanTheColumnsOfTheirDataAndTheEmptyOneBehind) {
  Table table = planTable();
  ReportView view = test::viewOf(table, {kItem}, {kKind}, {}, {kAmount, kCost});
  view.dataInColumns = true;
  view.breaks = {test::breakOf(kKind, kBreakAtEnd,
                               {{kAmount, BreakOperation::Sum}, {kCost, BreakOperation::Sum}})};
  view.breaks[0].breakAfter = true;
  EXPECT_EQ(headingsOf(view),
            "<tr align=left>\n"
            "<th rowspan=2 colspan=1></th>\n"
            "<th colspan=2>Demand</th>\n"
            "<th colspan=2>Supply</th>\n"
            "<th colspan=3>Total</th>\n"
            "</tr>\n"
            "<tr align=left>\n"
            "<th>Amount</th>\n"
            "<th>Cost</th>\n"
            "<th>Amount</th>\n"
            "<th>Cost</th>\n"
            "<th>Amount</th>\n"
            "<th colspan=2>Cost</th>\n"
            "</tr>\n");
}

TEST(HtmlHeadings, WithRepeatedLabelsSpanNothing) {
  Table table = planTable();
  ReportView view = test::viewOf(table, {kItem}, {kKind, kPlant}, {}, {kAmount});
  view.repeatLabels = true;
  EXPECT_THAT(headingsOf(view), testing::HasSubstr("<th>Demand</th>\n<th>Demand</th>\n"));
}

TEST(HtmlHeadings, OfABlankAreALine) {
  Table table = planTable();
  ReportView view = test::viewOf(table, {kItem, kKind, kPlant}, {}, {}, {kAmount});
  EXPECT_EQ(headingsOf(view),
            "<tr align=left>\n"
            "<th rowspan=1 colspan=3></th>\n"
            "<th> </th>\n"
            "</tr>\n");
}

TEST(HtmlHeadings, ThatAreEmptyAreCoveredByTheCorner) {
  Table table =
      test::tableOf("Item:String Plant:String Amount:Number", "", {"Bolt \"\" 1", "Bolt South 2"});
  ReportView view = test::viewOf(table, {0}, {1}, {}, {2});
  EXPECT_EQ(headingsOf(view),
            "<tr align=left>\n"
            "<th rowspan=1 colspan=2></th>\n"
            "<th>South</th>\n"
            "</tr>\n");
}

TEST(HtmlHeadings, ThatAreEmptyBehindOthersAreSpannedByThem) {
  Table table = test::tableOf("Item:String Kind:String Plant:String Amount:Number", "",
                              {"Bolt Demand South 1", "Bolt Supply \"\" 2", "Bolt Supply West 3"});
  ReportView view = test::viewOf(table, {0}, {1, 2}, {}, {3});
  EXPECT_EQ(headingsOf(view),
            "<tr align=left>\n"
            "<th rowspan=2 colspan=1></th>\n"
            "<th>Demand</th>\n"
            "<th colspan=2>Supply</th>\n"
            "</tr>\n"
            "<tr align=left>\n"
            "<th colspan=2>South</th>\n"
            "<th>West</th>\n"
            "</tr>\n");
}

TEST(HtmlHeadings, WithNothingToTheirLeftThatCouldSpanThemHaveAnEmptyCell) {
  Table table = test::tableOf("Item:String Kind:String Plant:String Amount:Number", "",
                              {"Bolt \"\" North 1", "Bolt \"\" South 2", "Bolt Supply West 3"});
  ReportView view = test::viewOf(table, {0}, {1, 2}, {}, {3});
  EXPECT_EQ(headingsOf(view),
            "<tr align=left>\n"
            "<th rowspan=2 colspan=1></th>\n"
            "<th colspan=2></th>\n"
            "<th>Supply</th>\n"
            "</tr>\n"
            "<tr align=left>\n"
            "<th>North</th>\n"
            "<th>South</th>\n"
            "<th>West</th>\n"
            "</tr>\n");
}

TEST(HtmlHeadings, WithoutDataColumnsAreACornerOverAllColumns) {
  Table table = test::tableOf("Item:String Kind:String Plant:String Amount:Number", "", {});
  ReportView view = test::viewOf(table, {0, 1}, {2}, {}, {3});
  EXPECT_EQ(headingsOf(view),
            "<tr align=left>\n"
            "<th rowspan=1 colspan=2></th>\n"
            "</tr>\n");
}

TEST(HtmlHeadings, WithoutLabelColumnsHaveNoCorner) {
  Table table = planTable();
  ReportView view = test::viewOf(table, {}, {kPlant}, {}, {kAmount});
  EXPECT_EQ(headingsOf(view),
            "<tr align=left>\n"
            "<th>North</th>\n"
            "<th>South</th>\n"
            "</tr>\n");
}

TEST(HtmlHeadings, WithoutColumnsAreNone) {
  Table table = test::tableOf("Item:String Plant:String Amount:Number", "", {});
  ReportView view = test::viewOf(table, {}, {1}, {}, {2});
  EXPECT_EQ(headingsOf(view), "");
}

TEST(HtmlHeadings, AreNotEscaped) {
  Table table = test::tableOf("Item:String Plant:String Amount:Number", "",
                              {"Bolt <b>A&\"K\xc3\xb6ln\"</b> 1"});
  ReportView view = test::viewOf(table, {0}, {1}, {}, {2});
  EXPECT_THAT(headingsOf(view), testing::HasSubstr("<th><b>A&\"K\xc3\xb6ln\"</b></th>\n"));
}

/// How many columns the cells of each heading row cover, the corner counted in every row.
std::vector<std::size_t> coveredColumns(const std::string& headings) {
  std::vector<std::size_t> rows;
  std::size_t corner = 0;
  for (std::size_t at = 0; at < headings.size(); at = headings.find('\n', at) + 1) {
    const std::string line = headings.substr(at, headings.find('\n', at) - at);
    const std::size_t span = line.find("colspan=");
    const std::size_t width =
        span == std::string::npos ? 1 : std::stoul(line.substr(span + std::size("colspan=") - 1));
    if (line.starts_with("<tr")) {
      rows.push_back(corner);
    } else if (line.starts_with("<th rowspan")) {
      corner = width;
      rows.back() = width;
    } else if (line.starts_with("<th")) {
      rows.back() += width;
    }
  }
  return rows;
}

TEST(HtmlHeadings, CoverAllColumnsOfAnyReportInEveryRow) {
  std::mt19937 random(7);
  for (int i = 0; i < 400; ++i) {
    const test::RandomReport report(random);
    const std::string headings =
        test::penned([&](TextPen& pen) { writeHtmlHeadings(report.grid, {}, pen); });
    EXPECT_THAT(coveredColumns(headings), testing::Each(report.grid.columns)) << headings;
    EXPECT_NE(headings, "");
  }
}

}  // namespace
}  // namespace vrel
