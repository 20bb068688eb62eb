#include "model/display_settings.h"

#include <gtest/gtest.h>

#include "support/tables.h"
#include "support/temporary_directory.h"
#include "support/views.h"

namespace vrel {
namespace {

using test::listsOf;
using test::SilentNotice;
using test::tableOf;
using test::TemporaryDirectory;
using test::viewOf;

class DisplaySettingsTest : public testing::Test {
 protected:
  // Item and Week are on axes, C is on no list.
  DisplaySettingsTest()
      : table_(tableOf("Item:String A:Number B:Number C:Number D:Number E:Number Week:Period",
                       "W1 W2", {})),
        view_(viewOf(table_, {0}, {6}, {}, {2, 1})) {
    view_.axis(Axis::Hidden) = {5, 4};
    view_.repeatLabels = true;
    view_.showSystemTitle = false;
    view_.dateFormat = "%Y";
    view_.precision = 3;
    view_.periodFileName = "weeks.txt";
    view_.userTitle = "Plan";
  }

  bool apply(const DisplaySettings& chosen) { return applyDisplaySettings(view_, chosen, format_); }

  SilentNotice notice_;
  FormatSettings format_;
  Table table_;
  ReportView view_;
};

TEST_F(DisplaySettingsTest, AreThoseOfTheView) {
  const DisplaySettings expected = {.shownFields = {2, 1},
                                    .duplicateLabels = true,
                                    .systemTitle = false,
                                    .emptyRowsAndColumns = false,
                                    .dateFormat = "%Y",
                                    .precision = 3,
                                    .periodFile = "weeks.txt",
                                    .userTitle = "Plan"};
  EXPECT_EQ(displaySettings(view_), expected);
}

TEST_F(DisplaySettingsTest, AvailableIsWhatStandsOnNoAxisAndAmongNoDataInColumnOrder) {
  EXPECT_EQ(availableFields(view_), (std::vector<int>{3, 4, 5}));
  view_.axis(Axis::Z) = {4};
  EXPECT_EQ(availableFields(view_), (std::vector<int>{3, 5}));
}

TEST_F(DisplaySettingsTest, TheShownFieldsBecomeTheDataInTheirOrder) {
  DisplaySettings chosen = displaySettings(view_);
  chosen.shownFields = {4, 1, 3, 2};
  EXPECT_TRUE(apply(chosen));
  EXPECT_EQ(listsOf(view_), "x 0, y 6, data 4 1 3 2, hidden 5");
}

TEST_F(DisplaySettingsTest, WhatIsTakenOutOfTheDataIsHiddenBehindWhatWasHidden) {
  DisplaySettings chosen = displaySettings(view_);
  chosen.shownFields = {5};
  EXPECT_TRUE(apply(chosen));
  EXPECT_EQ(listsOf(view_), "x 0, y 6, data 5, hidden 4 2 1");
}

TEST_F(DisplaySettingsTest, AllSettingsComeIntoTheView) {
  const DisplaySettings chosen = {.shownFields = {1},
                                  .duplicateLabels = false,
                                  .systemTitle = true,
                                  .emptyRowsAndColumns = true,
                                  .dateFormat = "%d",
                                  .precision = 5,
                                  .periodFile = "",
                                  .userTitle = "Other"};
  EXPECT_TRUE(apply(chosen));
  EXPECT_EQ(displaySettings(view_), chosen);
  EXPECT_FALSE(view_.repeatLabels);
  EXPECT_TRUE(view_.showSystemTitle);
  EXPECT_TRUE(view_.showEmptyRowsAndColumns);
  EXPECT_EQ(view_.periodFileName, "");
  EXPECT_EQ(view_.userTitle, "Other");
  EXPECT_EQ(format_.precision, 5);
  EXPECT_EQ(format_.dateFormat, "%d");
}

TEST_F(DisplaySettingsTest, TheSameSettingsChangeNothing) {
  format_.precision = 9;
  EXPECT_FALSE(apply(displaySettings(view_)));
  EXPECT_EQ(listsOf(view_), "x 0, y 6, data 2 1, hidden 5 4");
  EXPECT_EQ(format_.precision, 9);
}

TEST_F(DisplaySettingsTest, APrecisionOutOfRangeIsToldAsWhatItCountsAs) {
  view_.precision = -1;
  EXPECT_EQ(displaySettings(view_).precision, 6);
  EXPECT_FALSE(apply(displaySettings(view_)));
  EXPECT_EQ(view_.precision, -1);
  view_.precision = 513;
  EXPECT_EQ(displaySettings(view_).precision, 512);
}

TEST_F(DisplaySettingsTest, ReadingThePeriodFileTellsWhetherItsLengthsDiffer) {
  TemporaryDirectory directory;
  view_.periodFileName = directory.write("weeks.txt", "W1 days 7\n");
  EXPECT_TRUE(rereadPeriodFile(view_, notice_));
  EXPECT_EQ(statedLength(table_.periodLengths, "W1", "days"), 7);
  EXPECT_FALSE(rereadPeriodFile(view_, notice_));
  directory.write("weeks.txt", "W1 days 8\n");
  EXPECT_TRUE(rereadPeriodFile(view_, notice_));
  view_.periodFileName = directory.path("missing.txt");
  EXPECT_FALSE(rereadPeriodFile(view_, notice_));
  EXPECT_EQ(statedLength(table_.periodLengths, "W1", "days"), 8);
}

TEST(ExampleDate, IsWrittenInTheGivenFormat) {
  EXPECT_EQ(exampleDate("%d-%b-%Y"), "25-Aug-2014");
  EXPECT_EQ(exampleDate("%m/%d %H:%M"), "08/25 17:30");
  EXPECT_EQ(exampleDate(""), "2014-08-25 17:30:00");
  EXPECT_EQ(exampleDate("week"), "week");
}

}  // namespace
}  // namespace vrel
