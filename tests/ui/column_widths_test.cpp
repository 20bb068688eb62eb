#include "ui/column_widths.h"

#include <gtest/gtest.h>

#include "model/report_layout.h"
#include "support/views.h"
#include "ui/desk.h"

namespace vrel {
namespace {

using test::Axes;
using test::Desk;
using test::tableOf;

const std::vector<std::string> kLines = {"Bolt W1 1 1", "Gear-with-a-longer-name W1 1 123456789",
                                         "Gear-with-a-longer-name W2 1 2"};

struct ColumnWidthsTest : testing::Test {
  static ColumnWidths widthsOf(const Axes& axes, bool dataInColumns) {
    Desk desk(tableOf("Item:String Week:Period A:Number LongNameOfAField:Number",
                      "W1 W2 TheLastWeekOfTheYear", lines()),
              axes, dataInColumns);
    return sampleColumnWidths(layOut(desk.view), desk.format, QApplication::font());
  }
  static std::vector<std::string> lines() {
    auto all = kLines;
    all.push_back("Bolt TheLastWeekOfTheYear 1 2");
    return all;
  }
  static QFontMetrics metrics() { return QFontMetrics(QApplication::font()); }
  static int roomFor(const char* text) {
    return metrics().horizontalAdvance(text) + 2 * metrics().averageCharWidth();
  }
};

TEST_F(ColumnWidthsTest, ALabelColumnHasRoomForItsWidestValueAndItsName) {
  const auto widths = widthsOf({"Item", "Week", "", "A"}, true);
  EXPECT_EQ(widths.labels, std::vector<int>{roomFor("Gear-with-a-longer-name")});
  const auto named = widthsOf({"Item LongNameOfAField", "Week", "", "A"}, true);
  EXPECT_EQ(named.labels.back(), roomFor("LongNameOfAField"));
}

TEST_F(ColumnWidthsTest, TheColumnOfDataNamesHasRoomForThem) {
  const auto widths = widthsOf({"Item", "Week", "", "A LongNameOfAField"}, false);
  ASSERT_EQ(widths.labels.size(), 2u);
  EXPECT_EQ(widths.labels[1], roomFor("LongNameOfAField"));
}

TEST_F(ColumnWidthsTest, DataColumnsOfOneFieldShareTheWidthOfTheWidestCellOrHeading) {
  const auto widths = widthsOf({"Item", "Week", "", "A LongNameOfAField"}, true);
  ASSERT_EQ(widths.data.size(), 2u);
  EXPECT_EQ(widths.data[0], roomFor("TheLastWeekOfTheYear"));
  EXPECT_EQ(widths.data[1], roomFor("LongNameOfAField"));
  const auto cells = widthsOf({"Week", "Item", "", "LongNameOfAField"}, false);
  EXPECT_EQ(cells.data, std::vector<int>{roomFor("Gear-with-a-longer-name")});
}

TEST_F(ColumnWidthsTest, NoColumnIsTooNarrowOrTooWide) {
  Desk desk(tableOf("K:String V:Number", "", {"x 1", std::string(500, 'y') + " 1"}),
            {"K", "", "", "V"}, true);
  const auto widths = sampleColumnWidths(layOut(desk.view), desk.format, QApplication::font());
  EXPECT_EQ(widths.labels, std::vector<int>{40 * metrics().averageCharWidth()});
  EXPECT_EQ(widths.data, std::vector<int>{6 * metrics().averageCharWidth()});
}

int boldRoomFor(const char* text) {
  QFont font = QApplication::font();
  font.setBold(true);
  return QFontMetrics(font).horizontalAdvance(text) +
         2 * QFontMetrics(QApplication::font()).averageCharWidth();
}

TEST_F(ColumnWidthsTest, HeadingsInASmallFontAreNotCutOff) {
  QFont small = QApplication::font();
  small.setPointSizeF(3);
  Desk desk(tableOf("K:String V:Number", "", {"x 1"}), {"K", "", "", "V"}, true);
  desk.table.fields[0].name = "Location of the item";
  const auto widths = sampleColumnWidths(layOut(desk.view), desk.format, small);
  const int margins = 2 * QApplication::style()->pixelMetric(QStyle::PM_HeaderMargin);
  EXPECT_GT(widths.labels[0],
            QFontMetrics(small).horizontalAdvance("Location of the item") + margins);
}

TEST_F(ColumnWidthsTest, SummariesHaveRoomForTheirBoldTexts) {
  Desk desk(tableOf("K:String V:Number W:Number", "", {"x 90000000 1", "y 90000000 1"}),
            {"K", "", "", "V W"}, true);
  desk.view.breaks = {test::breakOf(0, kBreakAtEnd, {{1, BreakOperation::Sum}})};
  desk.view.breaks[0].name = "All of them together";
  const auto widths = sampleColumnWidths(layOut(desk.view), desk.format, QApplication::font());
  EXPECT_EQ(widths.labels, std::vector<int>{boldRoomFor("All of them together")});
  EXPECT_EQ(widths.data,
            (std::vector<int>{boldRoomFor("180,000,000"), 6 * metrics().averageCharWidth()}));
}

TEST_F(ColumnWidthsTest, DataNamesBesideSummariesAreBold) {
  Desk desk(tableOf("K:String V:Number LongNameOfAField:Number", "", {"x 1 1"}),
            {"K", "", "", "V LongNameOfAField"}, false);
  desk.view.breaks = {test::breakOf(0, 1, {{2, BreakOperation::Sum}})};
  const auto widths = sampleColumnWidths(layOut(desk.view), desk.format, QApplication::font());
  EXPECT_EQ(widths.labels.back(), boldRoomFor("LongNameOfAField"));
}

TEST_F(ColumnWidthsTest, SummaryColumnsAreAsWideAsThoseOfTheirField) {
  Desk desk(tableOf("K:String P:String V:Number LongNameOfAField:Number", "",
                    {"x a 1 1", "x b 2 1", "x c 3 1"}),
            {"K", "P", "", "V LongNameOfAField"}, true);
  desk.view.breaks = {test::breakOf(1, 2, {{3, BreakOperation::Sum}})};
  desk.view.breaks[0].breakAfter = true;
  const auto widths = sampleColumnWidths(layOut(desk.view), desk.format, QApplication::font());
  const int narrow = 6 * metrics().averageCharWidth();
  const int wide = roomFor("LongNameOfAField");
  EXPECT_EQ(widths.data,
            (std::vector<int>{narrow, wide, narrow, wide, wide, narrow,  // a, b, their sum, blank
                              narrow, wide, wide, narrow}));
}

TEST_F(ColumnWidthsTest, AGridWithoutAReportHasNone) {
  const auto widths = sampleColumnWidths(ReportGrid{}, FormatSettings{}, QApplication::font());
  EXPECT_TRUE(widths.labels.empty());
  EXPECT_EQ(widths.data, std::vector<int>{6 * metrics().averageCharWidth()});
}

}  // namespace
}  // namespace vrel
