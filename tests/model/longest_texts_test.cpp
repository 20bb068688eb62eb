#include "model/longest_texts.h"

#include <gtest/gtest.h>

#include <set>

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
using Texts = std::vector<std::string>;

struct LongestTexts : testing::Test {
  Table table = tableOf("Item:String Place:String Week:Period Qty:Number Unit:String", "W1 W2",
                        {"Bolt North W1 1 kg", "Bolt South W1 1000 box", "Bolt South W2 20 kg",
                         "Écrou North W1 1000 piece", "Écrou North W2 7 kg"});
  ReportView view = viewOf(table, {0, 1}, {2}, {}, {3});
  FormatSettings settings{.precision = 0, .dateFormat = ""};

  Texts longest(std::size_t column, std::size_t howMany) {
    return longestTexts(layOut(view), settings, column, howMany);
  }
};

TEST_F(LongestTexts, OfDataComeFromAllRowsWithoutTheHeading) {
  table.field(3).name = "A heading that is longer";
  EXPECT_EQ(longest(2, 1), (Texts{"1,000"}));
  EXPECT_EQ(longest(2, 3), (Texts{"1,000", "1"})) << "each text once";
  EXPECT_EQ(longest(3, 3), (Texts{"20", "7"}));
}

TEST_F(LongestTexts, OfLabelsAreCountedInCharacters) {
  EXPECT_EQ(longest(0, 2), (Texts{"Écrou", "Bolt"}));
  EXPECT_EQ(longest(1, 1), (Texts{"North"})) << "the first of equally long ones";
  table.field(0).hidden = true;
  EXPECT_EQ(longest(0, 2), Texts());
}

TEST_F(LongestTexts, OfSummariesAndDataNamesCountToo) {
  view.axis(Axis::Data) = {3, 4};
  view.breaks = {breakOf(0, kBreakAtEnd, {{3, BreakOperation::Sum}})};
  view.breaks[0].name = "All of them";
  EXPECT_EQ(longest(0, 1), (Texts{"All of them"}));
  EXPECT_EQ(longest(2, 9), (Texts{"Unit", "Qty"}));
  EXPECT_EQ(longest(3, 3), (Texts{"1,000", "piece", "2,001"}));
}

TEST_F(LongestTexts, OfAColumnThatIsNotThereAreNone) {
  EXPECT_EQ(longest(4, 3), Texts());
  EXPECT_EQ(longest(2, 0), Texts());
}

TEST(RandomLongestTexts, AreTheLongestOfAllShownTexts) {
  std::mt19937 random(7);
  for (int round = 0; round < 500; ++round) {
    const RandomReport report(random);
    const ReportGrid& grid = report.grid;
    const std::size_t column = test::randomBelow(random, grid.columns);
    std::set<std::string> shown;
    for (std::size_t row = 0; row < grid.rows; ++row) {
      shown.insert(cellText(grid, {}, row, column));
    }
    shown.erase("");
    std::multiset<std::size_t, std::greater<>> lengths;
    for (const std::string& text : shown) {
      // "É" is the one letter of two bytes.
      lengths.insert(text.size() - (text.find("É") != std::string::npos ? 1 : 0));
    }
    const Texts longest = longestTexts(grid, {}, column, 3);
    ASSERT_EQ(longest.size(), std::min<std::size_t>(3, shown.size())) << round;
    auto length = lengths.begin();
    for (const std::string& text : longest) {
      ASSERT_TRUE(shown.count(text)) << text;
      ASSERT_EQ(text.size() - (text.find("É") != std::string::npos ? 1 : 0), *length++) << round;
    }
  }
}

}  // namespace
}  // namespace vrel
