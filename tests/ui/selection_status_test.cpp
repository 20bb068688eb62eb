#include "ui/selection_status.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>

#include "model/report_layout.h"
#include "support/tables.h"
#include "support/views.h"

namespace vrel {
namespace {

using test::breakOf;
using test::viewOf;

constexpr int kQty = 2;
constexpr int kNote = 3;

struct SelectionStatusTest : testing::Test {
  SelectionStatusTest() {
    settings.precision = 1;
    layOutAgain();
  }

  void layOutAgain() { model.setGrid(layOut(view)); }
  // The text once it is complete.
  QString statusOf(const GridArea& area) {
    status.setSelection(area);
    waitForResult();
    return status.text();
  }
  void waitForResult() {
    ASSERT_TRUE(QTest::qWaitFor([this] { return !status.isCounting(); }));
  }

  //   Item  W1     W2
  // 0 Bolt  1.0    2,000.5
  // 1 Nut   -6.1
  Table table = test::tableOf("Item:String Week:Period Qty:Number Note:String", "W1 W2",
                              {"Bolt W1 1 late", "Bolt W2 2000.5 ok", "Nut W1 -6.123456789 <b>"});
  ReportView view = viewOf(table, {0}, {1}, {}, {kQty});
  FormatSettings settings;
  ReportTableModel model{settings};
  SelectionStatus status{model};
};

TEST_F(SelectionStatusTest, ShowsWhatSeveralCellsComeTo) {
  EXPECT_EQ(status.objectName(), "selectionStatus");
  EXPECT_EQ(statusOf({0, 1, 2, 2}),
            "Count: 3   Sum: 1,995.4   Average: 665.1   Minimum: -6.1   Maximum: 2,000.5");
  EXPECT_EQ(statusOf({0, 0, 2, 2}),
            "Count: 4   Sum: -5.1   Average: -2.6   Minimum: -6.1   Maximum: 1.0");
  EXPECT_EQ(status.toolTip(), status.text());
}

TEST_F(SelectionStatusTest, ShowsOnlyTheCountOfCellsWithoutNumbers) {
  EXPECT_EQ(statusOf({0, 0, 2, 1}), "Count: 2");
  EXPECT_EQ(statusOf({0, 2, 2, 1}).section("   ", 0, 0), "Count: 1");
}

TEST_F(SelectionStatusTest, CountsWithoutDecimalsWhateverThePrecision) {
  settings.zeroUnderscore = true;
  settings.precision = 3;
  EXPECT_EQ(statusOf({1, 2, 1, 5}), "Count: 0") << "no cell shows anything";
  EXPECT_EQ(statusOf({0, 1, 1, 2}).section("   ", 0, 1), "Count: 2   Sum: 2,001.500");
}

TEST_F(SelectionStatusTest, ShowsAllDigitsOfASingleCell) {
  EXPECT_EQ(statusOf({1, 1, 1, 1}), "-6.123456789");
  EXPECT_EQ(statusOf({0, 2, 1, 1}), "2000.5");
  EXPECT_EQ(statusOf({1, 0, 1, 1}), "Nut");
  EXPECT_EQ(statusOf({1, 2, 1, 1}), "") << "an empty cell";
}

TEST_F(SelectionStatusTest, ShowsAllDigitsOfASummaryAndItsName) {
  view.breaks = {breakOf(0, kBreakAtEnd, {{kQty, BreakOperation::Sum}})};
  layOutAgain();
  EXPECT_EQ(statusOf({2, 1, 1, 1}), "-5.123456789");
  EXPECT_EQ(statusOf({2, 0, 1, 1}), "Total");
  EXPECT_EQ(statusOf({0, 1, 3, 1}).section("   ", 0, 1), "Count: 2   Sum: -5.1")
      << "the total is not added to its own cells";
  table.cell(cellAt(model.grid(), 0, 1)->tuple, kQty) = numberCell(kUnbounded);
  layOutAgain();
  EXPECT_EQ(statusOf({2, 1, 1, 1}), "*");
}

TEST_F(SelectionStatusTest, ShowsNothingWithoutASelection) {
  statusOf({0, 1, 2, 2});
  status.setSelection(std::nullopt);
  EXPECT_EQ(status.text(), "");
  EXPECT_EQ(status.toolTip(), "");
  statusOf({0, 1, 2, 2});
  EXPECT_EQ(statusOf({0, 1, 0, 0}), "");
}

TEST_F(SelectionStatusTest, FollowsChangedValues) {
  statusOf({0, 1, 2, 1});
  const CellRef changed = *cellAt(model.grid(), 0, 1);
  table.cell(changed.tuple, kQty) = numberCell(10);
  const std::uint32_t tuples[] = {changed.tuple};
  model.updateValues(tuples);
  waitForResult();
  EXPECT_EQ(status.text().section("   ", 0, 1), "Count: 2   Sum: 3.9");
  statusOf({0, 1, 1, 1});
  table.cell(changed.tuple, kQty) = numberCell(11);
  model.updateValues(tuples);
  EXPECT_EQ(status.text(), "11");
}

TEST_F(SelectionStatusTest, AnotherLayoutDropsTheSelection) {
  status.setSelection(GridArea{0, 1, 2, 2});
  layOutAgain();
  EXPECT_FALSE(status.isCounting());
  EXPECT_EQ(status.text(), "");
}

TEST_F(SelectionStatusTest, ATextThatLooksLikeMarkupIsShownAsItStands) {
  view.axis(Axis::Data) = {kNote};
  layOutAgain();
  EXPECT_EQ(statusOf({1, 1, 1, 1}), "<b>");
  EXPECT_EQ(status.textFormat(), Qt::PlainText);
  EXPECT_EQ(status.toolTip(), "&lt;b&gt;");
}

TEST_F(SelectionStatusTest, DoesNotWidenItsWindow) {
  statusOf({0, 1, 2, 2});
  EXPECT_EQ(status.minimumSizeHint().width(), 0);
  EXPECT_GT(status.sizeHint().width(), 0);
}

TEST(SelectionStatusOfALargeReport, LetsOtherEventsHaveTheirTurn) {
  std::string text = "FieldNames:\tRow\tQty\t\nFieldTypes:\tNumber\tNumber\t\nPeriodValues:\t\n";
  constexpr std::size_t kRows = 300'000;
  for (std::size_t row = 0; row < kRows; ++row) {
    text += std::to_string(row) + "\t2\t\n";
  }
  Table table = test::tableFrom(text);
  ReportView view = viewOf(table, {0}, {}, {}, {1});
  FormatSettings settings;
  settings.precision = 0;
  ReportTableModel model{settings};
  model.setGrid(layOut(view));
  SelectionStatus status{model};
  QStringList shown;
  QTimer other;
  QObject::connect(&other, &QTimer::timeout, [&] { shown << status.text(); });
  other.start(0);
  status.setSelection(GridArea{0, 0, kRows, 2});
  ASSERT_TRUE(QTest::qWaitFor([&] { return !status.isCounting(); }));
  EXPECT_TRUE(shown.contains("Counting…"));
  EXPECT_EQ(status.text(), "Count: 600,000   Sum: 600,000   Average: 2   Minimum: 2   Maximum: 2");
}

}  // namespace
}  // namespace vrel
