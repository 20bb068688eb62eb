#include "model/report_pages.h"

#include <gmock/gmock.h>

#include <random>

#include "model/report_layout.h"
#include "support/random_reports.h"
#include "support/tables.h"
#include "support/views.h"

namespace vrel {
namespace {

using testing::ElementsAre;

class ReportPagesTest : public testing::Test {
 protected:
  Table table_ = test::tableOf("Item:String Plant:String Week:String Supply:Number", "",
                               {"A North W1 1", "A South W1 2", "B North W2 3", "B West W1 4"});
  ReportView view_ = test::viewOf(table_, {0}, {2}, {1}, {3});
  FormatSettings settings_;

  void SetUp() override {
    view_.showSystemTitle = false;
    settings_.precision = 0;
  }
};

TEST_F(ReportPagesTest, OfAllZValuesAreLaidOutOneByOne) {
  ReportPages pages(view_, PageChoice::All);
  ASSERT_EQ(pages.count(), 3U);
  EXPECT_TRUE(pages.hasNames());
  EXPECT_EQ(pages.name(1, settings_), "South");
  EXPECT_THAT(test::gridLines(pages.layOut(0)), ElementsAre("Item|W1|W2", "A|1|", "B||3"));
  EXPECT_THAT(test::gridLines(pages.layOut(2)), ElementsAre("Item|W1", "B|4"));
  EXPECT_THAT(test::gridLines(pages.layOut(1)), ElementsAre("Item|W1", "A|2"));
}

TEST_F(ReportPagesTest, LeaveTheCurrentPageAsItWas) {
  view_.zIndex = 1;
  {
    ReportPages pages(view_, PageChoice::All);
    pages.layOut(2);
  }
  EXPECT_EQ(view_.zIndex, 1);
}

TEST_F(ReportPagesTest, OfTheCurrentPageAreJustOne) {
  view_.zIndex = 2;
  ReportPages pages(view_, PageChoice::Current);
  ASSERT_EQ(pages.count(), 1U);
  EXPECT_EQ(pages.name(0, settings_), "West");
  EXPECT_THAT(test::gridLines(pages.layOut(0)), ElementsAre("Item|W1", "B|4"));
}

TEST_F(ReportPagesTest, OfAReportWithoutZFieldsAreOneWithoutAName) {
  ReportView flat = test::viewOf(table_, {0, 1}, {2}, {}, {3});
  ReportPages pages(flat, PageChoice::All);
  EXPECT_EQ(pages.count(), 1U);
  EXPECT_FALSE(pages.hasNames());
  EXPECT_EQ(pages.name(0, settings_), "");
  EXPECT_EQ(pages.layOut(0).rows, 4U);
}

TEST_F(ReportPagesTest, AreLaidOutAsEachPageIsByItself) {
  std::mt19937 random(7);
  std::size_t reportsWithPages = 0;
  for (int round = 0; round < 200; ++round) {
    test::RandomReport report(random);
    ReportView view = report.view;
    // Half of the label fields, if there are several, tell the pages apart.
    std::vector<int>& x = view.axis(Axis::X);
    while (x.size() > 1 && view.axis(Axis::Z).size() < x.size()) {
      view.axis(Axis::Z).push_back(x.back());
      x.pop_back();
    }
    view.showEmptyRowsAndColumns = round % 3 == 0;
    ReportPages pages(view, PageChoice::All);
    reportsWithPages += pages.count() > 1 ? 1 : 0;
    for (std::size_t page = 0; page < pages.count(); ++page) {
      ReportView alone = view;
      alone.zIndex = static_cast<int>(page);
      const ReportGrid& grid = pages.layOut(page);
      EXPECT_EQ(test::gridLines(grid), test::gridLines(layOut(alone)));
      EXPECT_EQ(grid.notEnoughKeys, layOut(alone).notEnoughKeys);
    }
  }
  EXPECT_GT(reportsWithPages, 50U);
}

TEST_F(ReportPagesTest, ShowEmptyRowsOfOtherPagesWhenTheViewDoes) {
  view_.showEmptyRowsAndColumns = true;
  ReportPages pages(view_, PageChoice::All);
  EXPECT_THAT(test::gridLines(pages.layOut(2)), ElementsAre("Item|W1|W2", "A||", "B|4|"));
}

}  // namespace
}  // namespace vrel
