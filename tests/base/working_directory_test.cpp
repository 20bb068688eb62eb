#include "base/working_directory.h"

#include <gtest/gtest.h>

#include "support/inside.h"
#include "support/logged.h"
#include "support/temporary_directory.h"

namespace vrel {
namespace {

using test::Inside;
using test::loggedLines;
using test::openTestLog;
using test::TemporaryDirectory;

using Lines = std::vector<std::string>;

struct DirectoryVisitTest : testing::Test {
  static std::string current() { return std::filesystem::current_path().string(); }

  TemporaryDirectory home;
  TemporaryDirectory other;
  Log log = openTestLog();
};

TEST_F(DirectoryVisitTest, LeadsThereAndBack) {
  const Inside inside(home.path());
  {
    DirectoryVisit visit(log);
    EXPECT_EQ(visit.home(), home.path());
    EXPECT_TRUE(visit.enter(other.path()));
    EXPECT_EQ(current(), other.path());
  }
  EXPECT_EQ(current(), home.path());
  EXPECT_EQ(loggedLines(log), Lines{});
}

TEST_F(DirectoryVisitTest, StaysWhereTheOtherDirectoryCannotBeEntered) {
  const Inside inside(home.path());
  DirectoryVisit visit(log);
  EXPECT_FALSE(visit.enter("none"));
  EXPECT_EQ(current(), home.path());
  EXPECT_EQ(loggedLines(log), Lines{});
}

#ifndef _WIN32
TEST_F(DirectoryVisitTest, EntersNothingWithoutAWayBack) {
  const Inside inside(home.path());
  std::filesystem::remove(home.path());
  {
    DirectoryVisit visit(log);
    EXPECT_FALSE(visit.home());
    EXPECT_FALSE(visit.enter(other.path()));
  }
  EXPECT_EQ(loggedLines(log), Lines{"Unable to determine current working directory"});
}

TEST_F(DirectoryVisitTest, SaysWhenTheWayBackIsGone) {
  const Inside inside(home.path());
  {
    DirectoryVisit visit(log);
    visit.enter(other.path());
    std::filesystem::remove(home.path());
  }
  EXPECT_EQ(loggedLines(log), Lines{"Unable to return to working directory"});
}
#endif

}  // namespace
}  // namespace vrel
