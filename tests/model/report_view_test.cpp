#include "model/report_view.h"

#include <gtest/gtest.h>

#include "support/tables.h"
#include "support/views.h"

namespace vrel {
namespace {

using test::listsOf;
using test::SilentNotice;
using test::tableOf;

class ReportViewTest : public testing::Test {
 protected:
  ReportView viewOver(std::string_view fields) {
    table_ = tableOf(fields, "p", {});
    return makeReportView(table_, notice_);
  }

  SilentNotice notice_;
  Table table_;
};

TEST_F(ReportViewTest, KeysThatSoundLikeTimeStandOnYOtherKeysOnXTheRestAmongTheData) {
  const ReportView view =
      viewOver("Item:String Period:Period Qty:Number Lead_time:String Active:Boolean");
  EXPECT_EQ(listsOf(view), "x 0, y 1 3, data 2 4");
}

TEST_F(ReportViewTest, TheSoundOfTimeIsJudgedByCase) {
  const ReportView view = viewOver(
      "PERIOD:String TIMES:String Timer:String period:String PeRiOd:String TiMe:String iOd:String "
      "timing:Number");
  EXPECT_EQ(listsOf(view), "x 4 5 6, y 0 1 2 3, data 7");
}

TEST_F(ReportViewTest, AFreshViewHasItsDefaults) {
  const ReportView view = viewOver("Item:String Qty:Number");
  EXPECT_EQ(view.table, &table_);
  EXPECT_EQ(view.precision, 10);
  EXPECT_EQ(view.dateFormat, "%d-%b-%Y");
  EXPECT_EQ(view.userTitle, "[Default View Title]");
  EXPECT_EQ(view.fileName, "");
  EXPECT_EQ(view.exportFileName, "");
  EXPECT_EQ(view.periodFileName, "");
  EXPECT_FALSE(view.dataInColumns);
  EXPECT_FALSE(view.repeatLabels);
  EXPECT_FALSE(view.showEmptyRowsAndColumns);
  EXPECT_TRUE(view.showSystemTitle);
}

TEST_F(ReportViewTest, AFreshViewHasOneBreakPerField) {
  const ReportView view = viewOver("Item:String Place:String Qty:Number");
  ASSERT_EQ(view.breaks.size(), 3U);
  for (int i = 0; i < 3; ++i) {
    const BreakDefinition& definition = view.breaks[static_cast<std::size_t>(i)];
    EXPECT_EQ(definition.fieldIndex, i);
    EXPECT_EQ(definition.name, "Result");
    EXPECT_EQ(operationOf(definition, 2), BreakOperation::Nothing);
  }
}

TEST_F(ReportViewTest, AViewOverAnEmptyTableIsEmpty) {
  Table empty;
  EXPECT_EQ(listsOf(makeReportView(empty, notice_)), "");
}

TEST_F(ReportViewTest, ItsPrecisionAndDateFormatCanBePutInForce) {
  ReportView view = viewOver("Item:String");
  view.precision = 3;
  view.dateFormat = "%Y";
  FormatSettings settings;
  applyFormatSettings(view, settings);
  EXPECT_EQ(settings.precision, 3);
  EXPECT_EQ(settings.dateFormat, "%Y");
}

TEST_F(ReportViewTest, GuessingMovesNumbersFromZThenXThenYToTheFrontOfTheData) {
  ReportView view =
      viewOver("N0:Number N1:Number N2:Number N3:Number N4:Number N5:Number N6:Number");
  view.axis(Axis::Z) = {0, 1};
  view.axis(Axis::X) = {2, 3};
  view.axis(Axis::Y) = {4, 5};
  view.axis(Axis::Data) = {6};
  EXPECT_TRUE(guessView(view));
  EXPECT_EQ(listsOf(view), "data 5 4 3 2 1 0 6");
}

TEST_F(ReportViewTest, GuessingMovesKeysFromDataThenHiddenToTheFrontOfX) {
  ReportView view =
      viewOver("K0:String K1:String K2:String K3:String K4:String N5:Number N6:Number");
  view.axis(Axis::X) = {0};
  view.axis(Axis::Data) = {1, 5, 2};
  view.axis(Axis::Hidden) = {3, 6, 4};
  EXPECT_TRUE(guessView(view));
  EXPECT_EQ(listsOf(view), "x 4 3 2 1 0, data 5, hidden 6");
}

TEST_F(ReportViewTest, GuessingLeavesFieldsThatStandRight) {
  ReportView view = viewOver("K0:String K1:String K2:String N3:Number N4:Number");
  view.axis(Axis::X) = {1};
  view.axis(Axis::Y) = {2};
  view.axis(Axis::Z) = {0};
  view.axis(Axis::Data) = {4};
  view.axis(Axis::Hidden) = {3};
  EXPECT_TRUE(guessView(view));
  EXPECT_EQ(listsOf(view), "x 1, y 2, z 0, data 4, hidden 3");
}

TEST_F(ReportViewTest, ItsKeysAreTheZThenTheXThenTheYFields) {
  ReportView view = viewOver("K0:String K1:String K2:String K3:String N4:Number");
  view.axis(Axis::X) = {3, 1};
  view.axis(Axis::Y) = {2};
  view.axis(Axis::Z) = {0};
  EXPECT_EQ(viewKeys(view), (std::vector<int>{0, 3, 1, 2}));
}

TEST_F(ReportViewTest, TheSystemTitleNamesDataRowsAndColumns) {
  const ReportView view =
      viewOver("Item:String Location:String Period:Period Qty:Number Cost:Number Price:Number");
  EXPECT_EQ(systemTitle(view),
            "Qty,  Cost  and  Price\n"
            "(Item  and  Location  by  Period)");
}

TEST_F(ReportViewTest, TheSystemTitleJoinsTwoNamesByAnd) {
  const ReportView view =
      viewOver("Item:String Period:Period Duetime:String Qty:Number Cost:Number");
  EXPECT_EQ(systemTitle(view),
            "Qty  and  Cost\n"
            "(Item  by  Period  and  Duetime)");
}

TEST_F(ReportViewTest, TheSystemTitleJoinsThreeNamesByACommaAndAnAnd) {
  const ReportView view = viewOver("A:String B:String C:String D:String Qty:Number Period:Period");
  EXPECT_EQ(systemTitle(view), "Qty\n(A,  B,  C  and  D  by  Period)");
}

TEST_F(ReportViewTest, WithoutYFieldsTheSystemTitleIsCutInItsBy) {
  const ReportView view = viewOver("Item:String Qty:Number");
  EXPECT_EQ(systemTitle(view), "Qty\n(Item  b)");
}

TEST_F(ReportViewTest, WithoutXFieldsTheSystemTitleStartsWithItsBy) {
  EXPECT_EQ(systemTitle(viewOver("Period:Period Qty:Number")), "Qty\n(  by  Period)");
  EXPECT_EQ(systemTitle(viewOver("Qty:Number")), "Qty\n(  b)");
  EXPECT_EQ(systemTitle(viewOver("Item:String")), "\n(Item  b)");
}

TEST_F(ReportViewTest, TheSystemTitleTellsThatDuplicateKeysWereDropped) {
  const ReportView view = viewOver("Item:String Period:Period Qty:Number");
  table_.aggregated = true;
  EXPECT_EQ(systemTitle(view), "Qty  (Aggregated)\n(Item  by  Period)");
}

TEST_F(ReportViewTest, TheReportTitleIsTheUserTitleAndTheSystemTitleWhenShown) {
  ReportView view = viewOver("Item:String Qty:Number");
  view.userTitle = "Plan";
  EXPECT_EQ(reportTitle(view), "Plan\nQty\n(Item  b)");
  view.userTitle = "";
  EXPECT_EQ(reportTitle(view), "Qty\n(Item  b)");
  view.showSystemTitle = false;
  EXPECT_EQ(reportTitle(view), "");
  view.userTitle = "Plan";
  EXPECT_EQ(reportTitle(view), "Plan");
}

TEST_F(ReportViewTest, MessagesNameTheReportByItsShortTitleOrElseItsUserTitle) {
  ReportView view = viewOver("Item:String");
  view.userTitle = "Plan";
  EXPECT_EQ(reportName(view), "Plan");
  view.shortTitle = "plan.tbl";
  EXPECT_EQ(reportName(view), "plan.tbl");
}

}  // namespace
}  // namespace vrel
