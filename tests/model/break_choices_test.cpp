#include "model/break_choices.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/tables.h"
#include "support/views.h"

namespace vrel {
namespace {

using test::breakOf;
using test::SilentNotice;
using testing::ElementsAre;

std::vector<std::string> linesOf(std::span<const BreakChoice> choices) {
  std::vector<std::string> lines;
  for (const BreakChoice& choice : choices) {
    lines.push_back(std::to_string(choice.code) + " " + choice.text);
  }
  return lines;
}

TEST(BreakChoices, OfTheFrequency) {
  EXPECT_THAT(linesOf(frequencyChoices()),
              ElementsAre("0 Never", "1 Every Change", "2 Every 2nd Change", "3 Every 3rd Change",
                          "4 Every 4th Change", "5 Every 5th Change", "6 Every 6th Change",
                          "7 Every 7th Change", "8 Every 8th Change", "9 Every 9th Change",
                          "10 Every 10th Change", "12 Every 12th Change", "24 Every 24th Change",
                          "28 Every 28th Change", "2097152 At End"));
}

TEST(BreakChoices, OfTheFirstBreak) {
  EXPECT_THAT(
      linesOf(firstBreakChoices()),
      ElementsAre("0 Same as Frequency", "1 At 1st Change", "2 At 2nd Change", "3 At 3rd Change",
                  "4 At 4th Change", "5 At 5th Change", "6 At 6th Change", "7 At 7th Change",
                  "8 At 8th Change", "9 At 9th Change", "10 At 10th Change", "11 At 11th Change"));
}

TEST(BreakChoices, OfTheOperationsComeByCode) {
  std::vector<std::string> names;
  for (const BreakOperation operation : breakOperations()) {
    names.emplace_back(operationName(operation));
  }
  EXPECT_THAT(names,
              ElementsAre("Nothing", "Sum", "Minimum", "Maximum", "Average", "First", "Last"));
}

TEST(BreakChoices, AreTranslatedWhereTheyAreShown) {
  SilentNotice notice;
  EXPECT_EQ(frequencyText(24, notice), "[Every 24th Change]");
  EXPECT_EQ(frequencyText(kBreakAtEnd, notice), "[At End]");
  EXPECT_EQ(firstBreakText(0, notice), "[Same as Frequency]");
}

TEST(BreakChoices, ThatAreNotOfferedHaveTextsAllTheSame) {
  SilentNotice notice;
  EXPECT_EQ(frequencyText(11, notice), "[Every 11 Changes]");
  EXPECT_EQ(frequencyText(-2, notice), "[At End (-2)]");
  EXPECT_EQ(firstBreakText(12, notice), "[At Change 12]");
  EXPECT_EQ(firstBreakText(-1, notice), "[At End (-1)]");
}

class Breaks : public testing::Test {
 protected:
  SilentNotice notice_;
  Table table_ = test::tableOf("Item:String Place:String Period:Period Plan:Number Seen:Number",
                               "W1 W2", {"Bolt Lyon W1 1 2"});
  ReportView view_ = makeReportView(table_, notice_);
};

TEST_F(Breaks, AreListedByAxisThenByField) {
  view_.axis(Axis::X) = {1};
  view_.axis(Axis::Y) = {2};
  view_.axis(Axis::Hidden) = {0};
  EXPECT_THAT(listedBreaks(view_), ElementsAre(1, 2, 0));
  view_.axis(Axis::X) = {2, 1};
  view_.axis(Axis::Y) = {};
  EXPECT_THAT(listedBreaks(view_), ElementsAre(2, 1, 0));
}

TEST_F(Breaks, OfOneFieldAreAllListedAndThoseOfUnknownFieldsAreNot) {
  view_.breaks[4].fieldIndex = 0;
  view_.breaks[3].fieldIndex = 17;
  view_.breaks[2].fieldIndex = -1;
  EXPECT_THAT(listedBreaks(view_), ElementsAre(0, 4, 1));
}

TEST_F(Breaks, OfADataFieldOnAnAxisAreListed) {
  view_.axis(Axis::X) = {0, 4};
  EXPECT_THAT(listedBreaks(view_), ElementsAre(0, 4, 2, 1));
}

TEST_F(Breaks, TellWhatTheyComputeInTheOrderOfTheData) {
  view_.axis(Axis::Data) = {4, 3};
  const BreakDefinition definition =
      breakOf(0, 1, {{3, BreakOperation::Sum}, {4, BreakOperation::First}});
  EXPECT_EQ(computedText(view_, definition, notice_), "Seen: [1st], Plan: [Sum]");
  view_.axis(Axis::Data) = {4};
  EXPECT_EQ(computedText(view_, definition, notice_), "Seen: [1st]");
  EXPECT_EQ(computedText(view_, BreakDefinition(), notice_), "");
}

TEST_F(Breaks, TellWhatKeepsThemFromShowing) {
  BreakDefinition definition;
  EXPECT_EQ(obstacleOf(view_, definition), BreakObstacle::NeverDue);
  definition.frequency = 1;
  EXPECT_EQ(obstacleOf(view_, definition), BreakObstacle::NothingComputed);
  setOperation(definition, 3, BreakOperation::Sum);
  EXPECT_EQ(obstacleOf(view_, definition), BreakObstacle::None);
  definition.active = false;
  EXPECT_EQ(obstacleOf(view_, definition), BreakObstacle::Suspended);
  view_.axis(Axis::X) = {1};
  EXPECT_EQ(obstacleOf(view_, definition), BreakObstacle::NotOnAxis);
  view_.axis(Axis::Y) = {2, 0};
  definition.active = true;
  EXPECT_EQ(obstacleOf(view_, definition), BreakObstacle::None);
}

TEST_F(Breaks, ThatComputeOnlyWhatIsNotShownShowNothing) {
  BreakDefinition definition = breakOf(0, 1, {{3, BreakOperation::Sum}});
  view_.axis(Axis::Data) = {4};
  EXPECT_EQ(obstacleOf(view_, definition), BreakObstacle::NothingComputed);
}

TEST_F(Breaks, AreSuspendedAndActivatedAllAtOnce) {
  setAllActive(view_, false);
  for (const BreakDefinition& definition : view_.breaks) {
    EXPECT_FALSE(definition.active);
  }
  view_.breaks[2].active = true;
  setAllActive(view_, true);
  for (const BreakDefinition& definition : view_.breaks) {
    EXPECT_TRUE(definition.active);
  }
}

}  // namespace
}  // namespace vrel
