#include "model/view_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#ifndef _WIN32
#include <sys/stat.h>
#endif

#include "base/platform.h"
#include "support/inside.h"
#include "support/logged.h"
#include "support/tables.h"
#include "support/temporary_directory.h"
#include "support/views.h"

namespace vrel {
namespace {

using test::Inside;
using test::loggedLines;
using test::savedText;
using test::SilentNotice;
using test::tableOf;
using test::TemporaryDirectory;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

using Lines = std::vector<std::string>;

std::string defaultView(std::string_view fields) {
  SilentNotice notice;
  Table table = tableOf(fields, "", {});
  return savedText(makeReportView(table, notice));
}

// Makes something happen while a view file is read.
struct MeddlingNotice : SilentNotice {
  std::string translate(std::string_view text) override {
    meddle();
    return SilentNotice::translate(text);
  }
  std::function<void()> meddle = [] {};
};

struct ValidViewList : testing::Test {
  Lines list(const std::string& directory) {
    const ViewSearch search{.table = table,
                            .log = log,
                            .debug = [this](std::string_view text) { debugged.emplace_back(text); },
                            .notice = notice,
                            .errors = errors};
    return validViewList(search, directory);
  }

  TemporaryDirectory folder;
  Table table = tableOf("Item:String Qty:Number", "", {"A 1"});
  const std::string fitting = defaultView("Item:String Qty:Number");
  const std::string foreign = defaultView("Item:String Cost:Number");
  Log log = test::openTestLog();
  Lines debugged;
  MeddlingNotice notice;
  std::string errorText;
  TextOutput errors = TextOutput::toMemory(errorText);
};

TEST_F(ValidViewList, HoldsTheViewFilesThatFitTheTable) {
  folder.write("plan.view", fitting);
  folder.write("two words.view", fitting);
  folder.write("other.view", foreign);
  folder.write("plan.txt", fitting);
  folder.write("plan.view.old", fitting);
  folder.write("deeper/below.view", fitting);
  folder.write("folder.view/plan.txt", fitting);
  EXPECT_THAT(list(folder.path()), UnorderedElementsAre("plan.view", "two words.view"));
  EXPECT_EQ(loggedLines(log), Lines{});
}

TEST_F(ValidViewList, IsEmptyWhereNoViewFits) {
  folder.write("other.view", foreign);
  EXPECT_EQ(list(folder.path()), Lines{});
  EXPECT_EQ(debugged, Lines{"The list of views is not sorted"});
}

TEST_F(ValidViewList, KeepsTheOrderOfTheDirectory) {
  for (const char* name : {"d", "b", "h", "a", "g", "c", "f", "e", "i", "k", "j"}) {
    folder.write(std::string(name) + ".view", fitting);
  }
  EXPECT_EQ(list(folder.path()), platform::directoryEntries(folder.path()));
}

TEST_F(ValidViewList, TellsEachFileAndTheMissingSortAsDebugMessages) {
  folder.write("plan.view", fitting);
  folder.write("other.view", foreign);
  list(folder.path());
  EXPECT_THAT(debugged, ElementsAre("Found file plan.view", "The list of views is not sorted"));
}

TEST_F(ValidViewList, FaultsInViewFilesAreErrors) {
  folder.write("bad.view", "nonsense 1\n");
  EXPECT_EQ(list(folder.path()), Lines{});
  EXPECT_EQ(errorText, "Unknown command \"nonsense\" in line 1\nError in view file in line 1\n");
}

TEST_F(ValidViewList, ChangesNeitherTheTableNorTheWorkingDirectory) {
  folder.write("plan.view", defaultView("Item:String Qty:String"));
  const TemporaryDirectory home;
  const Inside inside(home.path());
  EXPECT_EQ(list(folder.path()), Lines{"plan.view"});
  EXPECT_EQ(table.field(1).type, FieldType::Number);
  EXPECT_EQ(std::filesystem::current_path(), home.path());
}

TEST_F(ValidViewList, IsEmptyForADirectoryThatCannotBeEntered) {
  EXPECT_EQ(list(folder.path("none")), Lines{});
  EXPECT_EQ(loggedLines(log), Lines{"Unable to change to new directory"});
  EXPECT_EQ(debugged, Lines{});
}

#ifndef _WIN32
TEST_F(ValidViewList, DoesNotWaitForAPipe) {
  mkfifo(folder.path("pipe.view").c_str(), 0600);
  EXPECT_EQ(list(folder.path()), Lines{});
}

TEST_F(ValidViewList, IsEmptyWithoutAWorkingDirectory) {
  folder.write("plan.view", fitting);
  const TemporaryDirectory home;
  const Inside inside(home.path());
  std::filesystem::remove(home.path());
  EXPECT_EQ(list(folder.path()), Lines{});
  EXPECT_EQ(loggedLines(log), Lines{"Unable to determine current working directory"});
}

TEST_F(ValidViewList, SaysWhenItCannotReturn) {
  folder.write("plan.view", fitting);
  const TemporaryDirectory home;
  const Inside inside(home.path());
  notice.meddle = [&home] { std::filesystem::remove(home.path()); };
  EXPECT_EQ(list(folder.path()), Lines{"plan.view"});
  EXPECT_EQ(loggedLines(log), Lines{"Unable to return to working directory"});
}
#endif

}  // namespace
}  // namespace vrel
