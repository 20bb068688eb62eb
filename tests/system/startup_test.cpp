// Start-up, the log, and the end by a signal.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>

#include "system/host.h"

namespace vrel {
namespace {

using test::Host;
using test::Outcome;
using test::Process;
using testing::MatchesRegex;

constexpr const char* kStamp = "[0-9]{4}/[0-9]{2}/[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2}> ";

TEST(Log, HoldsTheCommandLineWords) {
  Host host;
  host.run({"echo 50%% of 100%", "quit"});
  EXPECT_THAT(host.read("vrel.log"),
              MatchesRegex(std::string(kStamp) + VREL_PROGRAM + "\n" + kStamp +
                           "echo 50% of 100%\n" + kStamp + "quit\n"));
}

TEST(Log, StandsInTheLogDirectoryElseInTheInstallationElseInTheStartDirectory) {
  Host host;
  host.write("logs/vrel.log", "old\n");
  host.write("own/vrel.log", "old\n");
  host.environment["KORVHOME"] = host.directory.path();
  host.run({"quit"});
  EXPECT_NE(host.read("logs/vrel.log"), "old\n");
  EXPECT_EQ(host.read("own/vrel.log"), "old\n");
  host.environment["KORVLOGDIR"] = host.directory.path("own");
  host.run({"quit"});
  EXPECT_NE(host.read("own/vrel.log"), "old\n");
  EXPECT_FALSE(host.directory.has("vrel.log"));
}

TEST(Log, ThatCannotBeOpenedIsToldAndStartUpGoesOn) {
  Host host;
  host.environment["KORVLOGDIR"] = "no/such";
  const Outcome outcome = host.run({"echo a"});
  EXPECT_EQ(outcome.err, "InitLog: could not open log file \"no/such/vrel.log\".\na\n[vrel] ");
  EXPECT_EQ(outcome.status, 0);
}

TEST(StandardStreams, ThatAreClosedDoNotLeadIntoTheLog) {
  Host host;
  host.write("logs/vrel.log", "");
  host.write("run.sh", "KORVLOGDIR=logs " + std::string(VREL_PROGRAM) +
                           " 'echo hello' exit </dev/null 2>&-\n");
  host.run({"! sh run.sh"});
  EXPECT_THAT(host.read("logs/vrel.log"),
              MatchesRegex(std::string(kStamp) + VREL_PROGRAM + "\n" + kStamp + "echo hello\n" +
                           kStamp + "exit\n"));
}

TEST(OpenFiles, AreNotHandedToTheProcessesThatCommandsStart) {
  const std::vector<std::string> list = {"! ls /proc/self/fd"};
  const std::vector<std::string> withFiles = {"record session.cmd", "! ls /proc/self/fd"};
  Host bare;
  bare.environment["KORVLOGDIR"] = "no/such";
  Host logging;
  EXPECT_EQ(logging.run(withFiles).out, bare.run(list).out);
}

TEST(Log, OfManyLinesIsStartedAfresh) {
  Host host;
  std::string lines;
  for (int i = 0; i < 100000; ++i) {
    lines += "old\n";
  }
  host.write("vrel.log", lines);
  host.run({"quit"});
  EXPECT_THAT(host.read("vrel.log"),
              MatchesRegex(std::string(kStamp) + VREL_PROGRAM + "\n" + kStamp + "quit\n"));
}

TEST(Termination, BeforeAWindowWasAskedForIsTheSystemsOwn) {
  Host host;
  Process process = host.start({});
  ASSERT_TRUE(process.waitForError("[vrel] "));
  process.signal(SIGTERM);
  EXPECT_EQ(process.waitForEnd().status, -SIGTERM);
}

constexpr const char* kPlan =
    "FieldNames:\tItem\tPeriod\tQty\t\nFieldTypes:\tString\tPeriod\tNumber\t\n"
    "PeriodValues:\tP1\tP2\t\nA\tP1\t1\n";

TEST(Termination, SavesTheLastViewWhileTheCommandLoopWaits) {
  Host host;
  host.write("plan.tbl", kPlan);
  Process process = host.start({"readTable plan.tbl", "ui data/week.5.tbl"});
  ASSERT_TRUE(process.waitForError("[vrel] "));
  process.signal(SIGTERM);
  const Outcome outcome = process.waitForEnd();
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "cidUI: cannot open a display.\n[vrel] ");
  EXPECT_EQ(host.read("~last_week.5.view").substr(0, 59),
            "########################################################\n# ");
  EXPECT_THAT(host.read("~last_week.5.view"),
              testing::HasSubstr("\ndefinexfields \"0\" \ndefineyfields \"1\" \n"));
  EXPECT_EQ(host.run({"readTable plan.tbl", "readView ~last_week.5.view"}).err, "[vrel] ");
}

TEST(Termination, WithoutATitleTheLastViewIsThatOfData) {
  Host host;
  host.write("plan.tbl", kPlan);
  Process process = host.start({"readTable plan.tbl", "ui"});
  ASSERT_TRUE(process.waitForError("[vrel] "));
  process.signal(SIGTERM);
  EXPECT_EQ(process.waitForEnd().status, 0);
  EXPECT_TRUE(host.directory.has("~last_data.view"));
}

TEST(Termination, LandsInTheDirectoryThatIsCurrentThen) {
  Host host;
  host.write("plan.tbl", kPlan);
  host.write("sub/x", "");
  Process process = host.start({"readTable plan.tbl", "ui plan", "cd sub"});
  ASSERT_TRUE(process.waitForError("[vrel] "));
  process.signal(SIGTERM);
  EXPECT_EQ(process.waitForEnd().status, 0);
  EXPECT_TRUE(host.directory.has("sub/~last_plan.view"));
}

TEST(Termination, WithoutAReportEndsAtOnce) {
  Host host;
  host.write("plan.tbl", kPlan);
  Process process = host.start({"readTable plan.tbl", "ui", "readTable none.tbl"});
  ASSERT_TRUE(process.waitForError("[vrel] "));
  process.signal(SIGTERM);
  EXPECT_EQ(process.waitForEnd().status, 0);
  EXPECT_FALSE(host.directory.has("~last_data.view"));
}

TEST(Termination, DuringACommandTakesEffectBehindIt) {
  Host host;
  host.write("plan.tbl", kPlan);
  host.write("busy.sh", "echo busy >&2\nwhile [ ! -e go ]; do sleep 0.01; done\n");
  Process process = host.start({"readTable plan.tbl", "ui", "! sh busy.sh", "echo never"});
  ASSERT_TRUE(process.waitForError("busy\n"));
  process.signal(SIGTERM);
  host.write("go", "");
  const Outcome outcome = process.waitForEnd();
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "cidUI: cannot open a display.\nbusy\n");
  EXPECT_TRUE(host.directory.has("~last_data.view"));
}

#ifdef VREL_HAS_WINDOW
TEST(Termination, SavesTheLastViewWhileTheWindowIsUp) {
  Host host;
  host.write("plan.tbl", kPlan);
  host.environment["QT_QPA_PLATFORM"] = "offscreen";
  host.environment["QNT_ENABLE_CONSOLE_DEBUG_INFO"] = "1";
  Process process = host.start({"readTable plan.tbl", "ui"});
  ASSERT_TRUE(process.waitForOutput("Entering app event loop\n"));
  process.signal(SIGTERM);
  const Outcome outcome = process.waitForEnd();
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  // The toolkit may have something to say of its own in between.
  EXPECT_THAT(outcome.out, testing::StartsWith("CreateUI()\n"));
  EXPECT_THAT(outcome.out, testing::EndsWith("\nEntering app event loop\n"));
  EXPECT_TRUE(host.directory.has("~last_data.view"));
}

// The view that the window of a report shows, as it is saved in the end.
std::string shownView(Host& host) {
  host.write("plan.tbl", kPlan);
  host.environment["QT_QPA_PLATFORM"] = "offscreen";
  host.environment["QNT_ENABLE_CONSOLE_DEBUG_INFO"] = "1";
  Process process = host.start({"readTable plan.tbl", "ui /data/plan.tbl"});
  EXPECT_TRUE(process.waitForOutput("Entering app event loop\n"));
  process.signal(SIGTERM);
  EXPECT_EQ(process.waitForEnd().err, "");
  return host.read("~last_plan.view");
}

TEST(UserView, IsShownForTheTableThatItIsNamedAfter) {
  Host without;
  std::string view = shownView(without);
  const std::size_t title = view.find("Default View Title");
  ASSERT_NE(title, std::string::npos);
  view.replace(title, 18, "My own view");
  Host with;
  with.write("UserViews/plan.view", view);
  EXPECT_EQ(shownView(with), view);
}
#endif

}  // namespace
}  // namespace vrel
