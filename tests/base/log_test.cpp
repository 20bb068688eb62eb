#include "base/log.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/temporary_directory.h"

namespace vrel {
namespace {

using test::TemporaryDirectory;
using testing::MatchesRegex;

#ifdef _WIN32
// The matcher's own expressions know no repetition counts.
constexpr const char* kStamp = "\\d\\d\\d\\d/\\d\\d/\\d\\d \\d\\d:\\d\\d:\\d\\d> ";
#else
constexpr const char* kStamp = "[0-9]{4}/[0-9]{2}/[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2}> ";
#endif

std::string lines(int count) {
  std::string text;
  for (int i = 0; i < count; ++i) {
    text += "old\n";
  }
  return text;
}

TEST(Log, EachLineCarriesTheTimeAndEndsInOneLineFeed) {
  const TemporaryDirectory directory;
  Log log;
  ASSERT_TRUE(InitLog(log, directory.path("vrel.log")));
  EXPECT_TRUE(logLine(log, "first"));
  EXPECT_THAT(directory.read("vrel.log"), MatchesRegex(std::string(kStamp) + "first\n"));
  EXPECT_TRUE(logLine(log, "second\n"));
  EXPECT_TRUE(logLine(log, ""));
  EXPECT_THAT(directory.read("vrel.log"),
              MatchesRegex(std::string(kStamp) + "first\n" + kStamp + "second\n" + kStamp + "\n"));
}

TEST(Log, NothingIsWrittenWhenNoLogIsOpen) {
  Log log;
  EXPECT_FALSE(logLine(log, "lost"));
}

TEST(Log, ASecondLogIsRefused) {
  const TemporaryDirectory directory;
  Log log;
  ASSERT_TRUE(InitLog(log, directory.path("a.log")));
  EXPECT_FALSE(InitLog(log, directory.path("b.log")));
  EXPECT_FALSE(directory.has("b.log"));
}

TEST(Log, ALogThatCannotBeOpenedIsReportedOnStandardError) {
  const TemporaryDirectory directory;
  const std::string path = directory.path("no/such/vrel.log");
  Log log;
  testing::internal::CaptureStderr();
  EXPECT_FALSE(InitLog(log, path));
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "InitLog: could not open log file \"" + path + "\".\n");
  EXPECT_FALSE(logLine(log, "lost"));
}

TEST(Log, AnExistingLogIsContinued) {
  const TemporaryDirectory directory;
  directory.write("vrel.log", lines(99999));
  Log log;
  ASSERT_TRUE(InitLog(log, directory.path("vrel.log")));
  EXPECT_EQ(directory.read("vrel.log"), lines(99999));
}

TEST(Log, ALogOf100000LinesIsStartedAfresh) {
  const TemporaryDirectory directory;
  directory.write("vrel.log", lines(100000));
  Log log;
  ASSERT_TRUE(InitLog(log, directory.path("vrel.log")));
  EXPECT_EQ(directory.read("vrel.log"), "");
}

TEST(Log, ALineOfMoreThan1023BytesCountsMoreThanOnce) {
  const TemporaryDirectory directory;
  directory.write("exact.log", lines(99998) + std::string(1022, 'x') + "\n");
  directory.write("long.log", lines(99998) + std::string(1023, 'x') + "\n");
  Log exact;
  ASSERT_TRUE(InitLog(exact, directory.path("exact.log")));
  EXPECT_NE(directory.read("exact.log"), "");
  Log tooLong;
  ASSERT_TRUE(InitLog(tooLong, directory.path("long.log")));
  EXPECT_EQ(directory.read("long.log"), "");
}

}  // namespace
}  // namespace vrel
