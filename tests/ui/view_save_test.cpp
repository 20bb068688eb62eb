#include "ui/view_save.h"

#include <gtest/gtest.h>

namespace vrel {
namespace {

TEST(SaveWarningName, IsThatOfTheViewFileWithoutItsFolders) {
  EXPECT_EQ(saveWarningName("plan.view", ""), "plan.view");
  EXPECT_EQ(saveWarningName("/home/kim/plan.view", ""), "plan.view");
  EXPECT_EQ(saveWarningName("C:\\views/old\\plan.view", ""), "plan.view");
}

TEST(SaveWarningName, GetsItsExtensionUnlessItHasThatVeryOne) {
  EXPECT_EQ(saveWarningName("plan", ""), "plan.view");
  EXPECT_EQ(saveWarningName("plan.VIEW", ""), "plan.VIEW.view");
  EXPECT_EQ(saveWarningName("plan.txt", ""), "plan.txt.view");
}

TEST(SaveWarningName, ComesFromTheTitleWhenTheViewHasNoFile) {
  EXPECT_EQ(saveWarningName("", "/data/models/week12.dat"), "week12.view");
  EXPECT_EQ(saveWarningName("", "C:\\models\\week12.dat"), "week12.view");
  EXPECT_EQ(saveWarningName("", "/data/week.12.dat"), "week.12.view");
  EXPECT_EQ(saveWarningName("/only/folders/", "/data/week12.dat"), "week12.view");
}

TEST(SaveWarningName, IsUntitledWithoutAFileOrAUsableTitle) {
  EXPECT_EQ(saveWarningName("", ""), "untitled.view");
  EXPECT_EQ(saveWarningName("", "week12.dat"), "untitled.view");
  EXPECT_EQ(saveWarningName("", "/data/week12"), "untitled.view");
  EXPECT_EQ(saveWarningName("", "/data.d/week12"), "untitled.view");
  EXPECT_EQ(saveWarningName("", "/data/.dat"), "untitled.view");
}

TEST(ChosenViewName, GetsTheExtensionWhenItIsMissing) {
  EXPECT_EQ(chosenViewName("/home/kim/plan"), "/home/kim/plan.view");
  EXPECT_EQ(chosenViewName("plan.view"), "plan.view");
}

TEST(ChosenViewName, IsRefusedWithAnyOfTheSeventeenCharacters) {
  for (const char forbidden : std::string_view("`\"<>,%^@*[]{}|'\t\n")) {
    EXPECT_EQ(chosenViewName(std::string("pl") + forbidden + "an"), "") << forbidden;
  }
  EXPECT_EQ(chosenViewName("a b-c_d.e~1!"), "a b-c_d.e~1!.view");
}

TEST(ChosenViewName, MayLieInFoldersOfAnyName) {
  EXPECT_EQ(chosenViewName("/home/John's plans, [new]/plan"),
            "/home/John's plans, [new]/plan.view");
  EXPECT_EQ(chosenViewName("/home/John's plans/pl'an"), "");
}

TEST(UntitledView, IsTheSameInEveryFolder) {
  EXPECT_TRUE(isUntitled("untitled.view"));
  EXPECT_TRUE(isUntitled("/home/kim/untitled.view"));
  EXPECT_FALSE(isUntitled("/home/untitled.view/plan.view"));
  EXPECT_FALSE(isUntitled("my untitled.view"));
}

}  // namespace
}  // namespace vrel
