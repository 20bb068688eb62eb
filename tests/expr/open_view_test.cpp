#include "expr/open_view.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "expr/field_functions.h"
#include "support/inside.h"
#include "support/logged.h"
#include "support/tables.h"
#include "support/temporary_directory.h"
#include "support/views.h"

namespace vrel {
namespace {

using test::Inside;
using test::listsOf;
using test::loggedLines;
using test::savedText;
using test::SilentNotice;
using test::tableOf;
using test::TemporaryDirectory;
using test::tuplesOf;

using Lines = std::vector<std::string>;

constexpr std::string_view kWeekView =
    "setusertitle \"Week plan\"\n"
    "setdateformat \"%Y\"\n"
    "precision 1\n"
    "addfield <Name> Item <Type> string <Classification> key\n"
    "addfield <Name> Week <Type> period <Classification> key\n"
    "addfield <Name> Qty <Type> number <Classification> dataReadOnly\n"
    "addfield <Name> Twice <Type> expression <Classification> dataReadOnly <Expression> Qty*2\n"
    "definexfields 1\n"
    "defineyfields 0\n"
    "definedatafields 2 3\n";

constexpr std::string_view kForeignView =
    "addfield <Name> Item <Type> string <Classification> key\n"
    "addfield <Name> Week <Type> period <Classification> key\n"
    "addfield <Name> Cost <Type> number <Classification> dataReadOnly\n";

class OpenView : public testing::Test {
 protected:
  OpenView() {
    addAllFunctions(functions_);
    view_.shortTitle = "plan.tbl";
    view_.fileName = "before.view";
    view_.exportFileName = "before.sp";
    view_.zIndex = 1;
    view_.modified = true;
  }

  ViewReading reading() {
    return {.format = format_,
            .environment = environment_,
            .notice = notice_,
            .errors = errors_,
            .functions = functions_,
            .formulaScratch = scratch_};
  }

  ViewSearch search() {
    return {.table = table_,
            .log = log_,
            .debug = [this](std::string_view text) { debugged_.emplace_back(text); },
            .notice = notice_,
            .errors = errors_};
  }

  bool open(const std::string& path) {
    return takeOpenedView(view_, openViewFile(path, table_, reading()), reading());
  }

  bool choose() { return chooseUserView(view_, search(), reading()); }

  // All that a view that is not opened leaves alone.
  std::string state() {
    std::string text = savedText(view_) + view_.shortTitle + view_.fileName + view_.exportFileName;
    for (const std::string& tuple : tuplesOf(table_)) {
      text += "\n" + tuple;
    }
    return text + std::to_string(format_.precision) + format_.dateFormat +
           std::to_string(view_.zIndex) + (view_.modified ? " modified" : "");
  }

  TemporaryDirectory folder_;
  SilentNotice notice_;
  Table table_ = tableOf("Item:String Week:Period Qty:Number", "W1 W2", {"B W2 20", "A W1 10"});
  ReportView view_ = makeReportView(table_, notice_);
  FormatSettings format_;
  EnvironmentLookup environment_ = [](const char*) { return std::string(); };
  std::string errorText_;
  TextOutput errors_ = TextOutput::toMemory(errorText_);
  FunctionRegistry functions_;
  Cell scratch_ = emptyCell();
  Log log_ = test::openTestLog();
  Lines debugged_;
};

TEST_F(OpenView, TakesThePlaceOfTheCurrentOne) {
  const std::string path = folder_.write("week.view", kWeekView);
  EXPECT_TRUE(open(path));
  EXPECT_EQ(view_.fileName, path);
  EXPECT_EQ(view_.userTitle, "Week plan");
  EXPECT_EQ(listsOf(view_), "x 1, y 0, data 2 3");
  EXPECT_EQ(view_.table, &table_);
  EXPECT_EQ(view_.breaks.size(), 4U);
  EXPECT_EQ(format_.precision, 1);
  EXPECT_EQ(format_.dateFormat, "%Y");
}

TEST_F(OpenView, KeepsTheReportsShortTitleAndNothingElse) {
  open(folder_.write("week.view", kWeekView));
  EXPECT_EQ(view_.shortTitle, "plan.tbl");
  EXPECT_EQ(view_.exportFileName, "");
  EXPECT_EQ(view_.zIndex, 0);
  EXPECT_FALSE(view_.modified);
}

TEST_F(OpenView, ItsFormulasAreComputed) {
  EXPECT_TRUE(open(folder_.write("week.view", kWeekView)));
  EXPECT_EQ(tuplesOf(table_), (Lines{"A W1 10 20", "B W2 20 40"}));
}

TEST_F(OpenView, WhatIsNoFileCannotBeOpened) {
  const std::string before = state();
  const OpenedView opened = openViewFile(folder_.path("none.view"), table_, reading());
  EXPECT_EQ(opened.fault, ViewFault::CannotOpen);
  EXPECT_FALSE(open(folder_.path("none.view")));
  EXPECT_EQ(openViewFile(folder_.path(), table_, reading()).fault, ViewFault::CannotOpen);
  EXPECT_EQ(state(), before);
}

TEST_F(OpenView, ThatDoesNotMatchLeavesEverythingAsItWas) {
  const std::string before = state();
  const std::string path = folder_.write("foreign.view", kForeignView);
  EXPECT_EQ(openViewFile(path, table_, reading()).fault, ViewFault::DoesNotMatch);
  EXPECT_FALSE(open(path));
  EXPECT_EQ(state(), before);
}

TEST_F(OpenView, WithABadLineLeavesEverythingAsItWas) {
  const std::string before = state();
  const std::string path = folder_.write("bad.view", std::string(kWeekView) + "nonsense\n");
  EXPECT_FALSE(open(path));
  EXPECT_EQ(errorText_, "Unknown command \"nonsense\" in line 11\nError in view file in line 11\n");
  EXPECT_EQ(state(), before);
}

TEST_F(OpenView, IsInForceOnlyOnceItWasTaken) {
  const std::string before = state();
  OpenedView opened = openViewFile(folder_.write("week.view", kWeekView), table_, reading());
  EXPECT_EQ(opened.fault, ViewFault::None);
  EXPECT_EQ(state(), before);
  EXPECT_TRUE(takeOpenedView(view_, std::move(opened), reading()));
  EXPECT_NE(state(), before);
}

TEST_F(OpenView, VoidsEditsOfFieldsWhoseTypeItChanges) {
  const std::uint64_t before = table_.arrangement;
  open(folder_.write("same.view", savedText(view_)));
  const std::uint64_t sorted = table_.arrangement;
  open(folder_.write("same.view", savedText(view_)));
  EXPECT_EQ(table_.arrangement, sorted);
  std::string text = savedText(view_);
  text.replace(text.find("\"number\""), 8, "\"string\"");
  EXPECT_TRUE(open(folder_.write("texts.view", text)));
  EXPECT_GT(table_.arrangement, std::max(sorted, before));
}

TEST(UserViewName, EndsTheShortTitleBehindItsLastPoint) {
  EXPECT_EQ(userViewName("plan.tbl"), "plan.view");
  EXPECT_EQ(userViewName("plan.2014.tbl"), "plan.2014.view");
  EXPECT_EQ(userViewName("plan."), "plan.view");
  EXPECT_EQ(userViewName("plan"), "view");
}

TEST_F(OpenView, TheUserViewOfTheReportIsChosen) {
  folder_.write("UserViews/plan.view", kWeekView);
  const Inside inside(folder_.path());
  EXPECT_TRUE(choose());
  EXPECT_EQ(view_.userTitle, "Week plan");
  EXPECT_EQ(view_.shortTitle, "plan.tbl");
  EXPECT_EQ(std::filesystem::current_path(), folder_.path());
  EXPECT_EQ(debugged_, (Lines{"Found file plan.view", "The list of views is not sorted"}));
}

TEST_F(OpenView, AUserViewIsSavedWhereItWasFound) {
  const std::string path = folder_.write("UserViews/plan.view", kWeekView);
  const Inside inside(folder_.path());
  choose();
  EXPECT_TRUE(std::filesystem::path(view_.fileName).is_absolute());
  EXPECT_TRUE(std::filesystem::equivalent(view_.fileName, path));
}

TEST_F(OpenView, WithoutAUserViewTheCurrentOneStays) {
  folder_.write("UserViews/week.view", kWeekView);
  folder_.write("plan.view", kWeekView);
  const Inside inside(folder_.path());
  const std::string before = state();
  EXPECT_FALSE(choose());
  EXPECT_EQ(state(), before);
}

TEST_F(OpenView, AUserViewThatDoesNotFitIsNotChosen) {
  folder_.write("UserViews/plan.view", kForeignView);
  const Inside inside(folder_.path());
  const std::string before = state();
  EXPECT_FALSE(choose());
  EXPECT_EQ(state(), before);
}

TEST_F(OpenView, NoUserViewIsLookedForWithoutAShortTitle) {
  folder_.write("UserViews/view.view", kWeekView);
  const Inside inside(folder_.path());
  view_.shortTitle = "";
  EXPECT_FALSE(choose());
  EXPECT_EQ(debugged_, Lines{});
}

TEST_F(OpenView, AMissingFolderOfUserViewsIsNothingToTell) {
  const Inside inside(folder_.path());
  EXPECT_FALSE(choose());
  EXPECT_EQ(loggedLines(log_), Lines{});
  EXPECT_EQ(debugged_, Lines{});
}

#ifndef _WIN32
TEST_F(OpenView, NoUserViewIsChosenWithoutAWorkingDirectory) {
  const TemporaryDirectory home;
  const Inside inside(home.path());
  std::filesystem::remove(home.path());
  EXPECT_FALSE(choose());
  EXPECT_EQ(loggedLines(log_), Lines{"Unable to determine current working directory"});
}

TEST_F(OpenView, AUserViewIsChosenEvenWhenThereIsNoWayBack) {
  // Takes the working directory away while the user views are read.
  struct : SilentNotice {
    std::string translate(std::string_view text) override {
      std::error_code ignored;
      std::filesystem::rename(home, home + "_moved", ignored);
      return SilentNotice::translate(text);
    }
    std::string home;
  } meddling;
  folder_.write("home/UserViews/plan.view", kWeekView);
  meddling.home = folder_.path("home");
  const Inside inside(meddling.home);
  ViewSearch search{.table = table_,
                    .log = log_,
                    .debug = [](std::string_view) {},
                    .notice = meddling,
                    .errors = errors_};
  chooseUserView(view_, search, reading());
  EXPECT_EQ(view_.userTitle, "Week plan");
  const std::string noWay = "Unable to return to working directory";
  EXPECT_EQ(loggedLines(log_), (Lines{noWay, noWay})) << "for the list, and for the choice";
}
#endif

}  // namespace
}  // namespace vrel
