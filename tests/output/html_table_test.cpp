#include "output/html_table.h"

#include <gmock/gmock.h>

#include "model/report_layout.h"
#include "support/html.h"
#include "support/random_reports.h"
#include "support/tables.h"

namespace vrel {
namespace {

using testing::HasSubstr;

/// The rows below the headings.
std::string bodyOf(ReportView& view) {
  const std::string text = test::htmlTableOf(view);
  const std::size_t begin = std::min(text.find("<tr align=right>"), text.find("</table>"));
  return text.substr(begin, text.find("</table>") - begin);
}

TEST(HtmlTable, IsBorderedHeadingsAndRows) {
  Table table = test::tableOf("Item:String Plant:String Month:Period Amount:Number", "Jan Feb",
                              {"Bolt East Jan 1234.4", "Bolt West Feb 5", "Nut East Jan -6"});
  ReportView view = test::viewOf(table, {0, 1}, {2}, {}, {3});
  EXPECT_EQ(test::htmlTableOf(view),
            "<table border>\n"
            "<tr align=left>\n"
            "<th rowspan=1 colspan=2></th>\n"
            "<th>Jan</th>\n"
            "<th>Feb</th>\n"
            "</tr>\n"
            "<tr align=right>\n"
            "<th valign=top rowspan=2>Bolt</th>\n"
            "<th valign=top>East</th>\n"
            "<td>1,234</td>\n"
            "<td>&nbsp;</td>\n"
            "</tr>\n"
            "<tr align=right>\n"
            "<th valign=top>West</th>\n"
            "<td>&nbsp;</td>\n"
            "<td>5</td>\n"
            "</tr>\n"
            "<tr align=right>\n"
            "<th valign=top>Nut</th>\n"
            "<th valign=top>East</th>\n"
            "<td>-6</td>\n"
            "<td>&nbsp;</td>\n"
            "</tr>\n"
            "</table>\n");
}

std::string emptyTable(const HtmlTable& table) {
  test::SilentNotice notice;
  TaskProgress progress(notice, "Writing");
  return test::penned([&](TextPen& pen) { EXPECT_TRUE(writeHtmlTable(table, pen, progress, 0)); });
}

TEST(HtmlTable, HasItsCaptionAboveAndABorderWhenAsked) {
  Table table = test::tableOf("Item:String Plant:String Amount:Number", "", {});
  ReportView view = test::viewOf(table, {0}, {1}, {}, {2});
  const ReportGrid grid = layOut(view);
  const std::string rest =
      "<tr align=left>\n"
      "<th rowspan=1 colspan=1></th>\n"
      "</tr>\n"
      "</table>\n";
  EXPECT_EQ(emptyTable({.grid = grid, .settings = {}, .title = "P", .caption = "P : A\nb <&>"}),
            "<table border>\n<caption align=top>\nP : A\nb <&>\n</caption>\n" + rest);
  EXPECT_EQ(emptyTable({.grid = grid, .settings = {}, .title = "", .caption = "", .border = false}),
            "<table>\n" + rest);
}

TEST(HtmlTable, WithoutColumnsIsEmpty) {
  Table table = test::tableOf("Item:String Plant:String Amount:Number", "", {});
  ReportView view = test::viewOf(table, {}, {1}, {}, {2});
  EXPECT_EQ(test::htmlTableOf(view), "<table border>\n</table>\n");
}

TEST(HtmlTable, WithoutDataColumnsHasLabels) {
  Table table = test::tableOf("Item:String Plant:String Amount:Number", "", {"Bolt North 1"});
  ReportView view = test::viewOf(table, {0}, {1}, {}, {});
  view.dataInColumns = true;
  EXPECT_EQ(bodyOf(view), "<tr align=right>\n<th valign=top>Bolt</th>\n</tr>\n");
}

TEST(HtmlTable, LabelsSpanTheEmptyOnesBelow) {
  Table table = test::tableOf("Item:String Plant:String Amount:Number", "",
                              {"A 1 1", "A 2 1", "A 3 1", "B 1 1"});
  ReportView view = test::viewOf(table, {0, 1}, {}, {}, {2});
  EXPECT_EQ(bodyOf(view),
            "<tr align=right>\n"
            "<th valign=top rowspan=3>A</th>\n<th valign=top>1</th>\n<td>1</td>\n"
            "</tr>\n"
            "<tr align=right>\n"
            "<th valign=top>2</th>\n<td>1</td>\n"
            "</tr>\n"
            "<tr align=right>\n"
            "<th valign=top>3</th>\n<td>1</td>\n"
            "</tr>\n"
            "<tr align=right>\n"
            "<th valign=top>B</th>\n<th valign=top>1</th>\n<td>1</td>\n"
            "</tr>\n");
}

TEST(HtmlTable, LabelsSpanAcrossTheGroupsOfOuterLabels) {
  Table table = test::tableOf("Item:String Plant:String Amount:Number", "",
                              {"A North 1", "B \"\" 2", "B South 3"});
  ReportView view = test::viewOf(table, {0, 1}, {}, {}, {2});
  EXPECT_EQ(bodyOf(view),
            "<tr align=right>\n"
            "<th valign=top>A</th>\n<th valign=top rowspan=2>North</th>\n<td>1</td>\n"
            "</tr>\n"
            "<tr align=right>\n"
            "<th valign=top rowspan=2>B</th>\n<td>2</td>\n"
            "</tr>\n"
            "<tr align=right>\n"
            "<th valign=top>South</th>\n<td>3</td>\n"
            "</tr>\n");
}

TEST(HtmlTable, LabelsSpanToTheEndOfTheTableWithSummariesAndEmptyRows) {
  Table table =
      test::tableOf("Item:String Plant:String Amount:Number Price:Number", "", {"A North 1 10"});
  ReportView view = test::viewOf(table, {0, 1}, {}, {}, {2, 3});
  view.breaks = {test::breakOf(0, kBreakAtEnd, {{2, BreakOperation::Sum}})};
  view.breaks[0].breakAfter = true;
  EXPECT_EQ(bodyOf(view),
            "<tr align=right>\n"
            "<th valign=top rowspan=2>A</th>\n"
            "<th valign=top rowspan=4>North</th>\n"
            "<th valign=top>Amount</th>\n"
            "<td>1</td>\n"
            "</tr>\n"
            "<tr align=right>\n"
            "<th valign=top>Price</th>\n"
            "<td>10</td>\n"
            "</tr>\n"
            "<tr align=right>\n"
            "<th valign=top rowspan=2>Total</th>\n"
            "<th valign=top rowspan=2>Amount</th>\n"
            "<td>1</td>\n"
            "</tr>\n"
            "<tr align=right>\n"
            "<td>&nbsp;</td>\n"
            "</tr>\n");
}

TEST(HtmlTable, RepeatedLabelsSpanNothing) {
  Table table = test::tableOf("Item:String Plant:String Amount:Number", "", {"A 1 1", "A 2 2"});
  ReportView view = test::viewOf(table, {0, 1}, {}, {}, {2});
  view.repeatLabels = true;
  EXPECT_THAT(bodyOf(view), testing::Not(HasSubstr("rowspan")));
}

TEST(HtmlTable, AnEmptyCellSpansTheTopOfALabelColumnThatBeginsWithoutALabel) {
  Table table = test::tableOf("Item:String Plant:String Amount:Number", "",
                              {"\"\" East 1", "\"\" West 2", "Bolt East 3"});
  ReportView view = test::viewOf(table, {0, 1}, {}, {}, {2});
  EXPECT_EQ(bodyOf(view),
            "<tr align=right>\n"
            "<th valign=top rowspan=2></th>\n<th valign=top>East</th>\n<td>1</td>\n"
            "</tr>\n"
            "<tr align=right>\n"
            "<th valign=top>West</th>\n<td>2</td>\n"
            "</tr>\n"
            "<tr align=right>\n"
            "<th valign=top>Bolt</th>\n<th valign=top>East</th>\n<td>3</td>\n"
            "</tr>\n");
  table.field(0).hidden = true;
  EXPECT_THAT(bodyOf(view), HasSubstr("<th valign=top rowspan=3></th>\n<th valign=top>East</th>"));
}

TEST(HtmlTable, ShowsTextsAsTheGridDoes) {
  Table table =
      test::tableOf("Item:String Amount:Number Note:String Flag:Boolean", "",
                    {"A 0 <b>x&\"y\"</b> y", "B 1e21 \"\" n", "C undefined K\xc3\xb6ln y"});
  ReportView view = test::viewOf(table, {0}, {}, {}, {1, 2, 3});
  view.dataInColumns = true;
  EXPECT_EQ(bodyOf(view),
            "<tr align=right>\n"
            "<th valign=top>A</th>\n"
            "<td>0</td>\n<td><b>x&\"y\"</b></td>\n<td>Yes</td>\n"
            "</tr>\n"
            "<tr align=right>\n"
            "<th valign=top>B</th>\n"
            "<td>*</td>\n<td>&nbsp;</td>\n<td>No</td>\n"
            "</tr>\n"
            "<tr align=right>\n"
            "<th valign=top>C</th>\n"
            "<td>undefined</td>\n<td>K\xc3\xb6ln</td>\n<td>Yes</td>\n"
            "</tr>\n");
}

TEST(HtmlTable, KeepsEveryEmptyCellOfAWideSparseReport) {
  std::vector<std::string> lines;
  for (int i = 0; i < 2500; ++i) {
    lines.push_back((i == 1200 ? "B C" : "A C") + std::to_string(10000 + i) + " 7");
  }
  Table table = test::tableOf("Item:String Column:String Amount:Number", "", lines);
  ReportView view = test::viewOf(table, {0}, {1}, {}, {2});
  const std::string body = bodyOf(view);
  std::string expected = "<tr align=right>\n<th valign=top>B</th>\n";
  for (int i = 0; i < 2500; ++i) {
    expected += i == 1200 ? "<td>7</td>\n" : "<td>&nbsp;</td>\n";
  }
  EXPECT_EQ(body.substr(body.rfind("<tr")), expected + "</tr>\n");
}

/// The body cell by cell, as slowly as that is.
std::string slowBody(const ReportGrid& grid) {
  std::string text;
  for (std::size_t row = 0; row < grid.rows; ++row) {
    text += "<tr align=right>\n";
    for (std::size_t column = 0; column < grid.columns; ++column) {
      const std::string cell = cellText(grid, {}, row, column);
      if (column >= grid.labelColumns) {
        text += "<td>" + (cell.empty() ? "&nbsp;" : cell) + "</td>\n";
      } else if (row == 0 || !cell.empty()) {
        std::size_t rows = 1;
        while (row + rows < grid.rows && cellText(grid, {}, row + rows, column).empty()) {
          ++rows;
        }
        const std::string span = rows > 1 ? " rowspan=" + std::to_string(rows) : "";
        text += "<th valign=top" + span + ">" + cell + "</th>\n";
      }
    }
    text += "</tr>\n";
  }
  return text;
}

TEST(HtmlTable, OfAnyReportHasTheTextsOfItsCells) {
  std::mt19937 random(11);
  test::SilentNotice notice;
  for (int i = 0; i < 300; ++i) {
    const test::RandomReport report(random);
    TaskProgress progress(notice, "Writing");
    const std::string text = test::penned([&](TextPen& pen) {
      writeHtmlTable({.grid = report.grid, .settings = {}, .title = "", .caption = ""}, pen,
                     progress, 0);
    });
    EXPECT_THAT(text, testing::EndsWith("</tr>\n" + slowBody(report.grid) + "</table>\n"));
  }
}

TEST(HtmlTable, IsNotWrittenToItsEndWhenCancelled) {
  class Cancelled : public test::SilentNotice {
   public:
    bool progress(std::string_view, std::uint64_t, std::uint64_t) override { return false; }
  };
  Table table = test::tableOf("Item:String Amount:Number", "", {"A 1"});
  ReportView view = test::viewOf(table, {0}, {}, {}, {1});
  const ReportGrid grid = layOut(view);
  for (const Classification kind : {Classification::DataReadOnly, Classification::DataReadWrite}) {
    table.field(1).classification = kind;
    Cancelled notice;
    TaskProgress progress(notice, "Writing");
    const std::string text = test::penned([&](TextPen& pen) {
      EXPECT_FALSE(writeHtmlTable({.grid = grid, .settings = {}, .title = "", .caption = ""}, pen,
                                  progress, 0));
    });
    EXPECT_THAT(text, testing::Not(HasSubstr("</table>")));
  }
}

}  // namespace
}  // namespace vrel
