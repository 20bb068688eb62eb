#include "base/platform.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/inside.h"
#include "support/temporary_directory.h"

namespace vrel {
namespace {

using test::TemporaryDirectory;

TEST(FileSize, IsThatOfTheFileOrNothing) {
  const TemporaryDirectory directory;
  EXPECT_EQ(platform::fileSize(directory.write("a.txt", "12345")), 5U);
  EXPECT_EQ(platform::fileSize(directory.path("none")), 0U);
}

#ifndef _WIN32
TEST(Pipe, AReaderThatLeavesEarlyDoesNoHarm) {
  const std::string text(1000000, 'x');
  std::shared_ptr<std::FILE> pipe = platform::openPipe("exec <&-");
  ASSERT_NE(pipe, nullptr);
  EXPECT_LT(std::fwrite(text.data(), 1, text.size(), pipe.get()), text.size());
}

TEST(Pipe, ClosingWaitsForTheReader) {
  const TemporaryDirectory directory;
  std::shared_ptr<std::FILE> pipe =
      platform::openPipe("sleep 0.05; cat > '" + directory.path("copy.txt") + "'");
  std::fputs("text", pipe.get());
  pipe.reset();
  EXPECT_EQ(directory.read("copy.txt"), "text");
}

TEST(Display, IsAvailableWhenTheEnvironmentNamesOne) {
  const std::vector<const char*> names = {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
  std::vector<std::string> before;
  for (const char* name : names) {
    before.push_back(platform::environment(name));
    unsetenv(name);
  }
  EXPECT_FALSE(platform::displayAvailable());
  for (const char* name : names) {
    setenv(name, "x", 1);
    EXPECT_TRUE(platform::displayAvailable()) << name;
    unsetenv(name);
  }
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (!before[i].empty()) {
      setenv(names[i], before[i].c_str(), 1);
    }
  }
}

TEST(CommandLine, GivesAProgramItsWordsAsTheyAre) {
  const TemporaryDirectory directory;
  const std::string line = platform::commandLine(
      {"printf", "[%s]\n", "two words", "", "it's", "\"$HOME\" `id` \\", "a;b|c&d>e*~#!\ng"});
  EXPECT_EQ(platform::runCommand(line + " > '" + directory.path("words") + "'"), 0);
  EXPECT_EQ(directory.read("words"),
            "[two words]\n[]\n[it's]\n[\"$HOME\" `id` \\]\n[a;b|c&d>e*~#!\ng]\n");
}

#ifdef _WIN32
TEST(RunCommand, KeepsTheQuotesOfAProgramsNameAndOfItsLastWord) {
  EXPECT_EQ(platform::runCommand("\"cmd\" /c \"exit 3\""), 3);
  EXPECT_EQ(platform::runCommand("exit 4"), 4);
}
#endif

TEST(CommandLine, WordsAreTakenAsTheyStand) {
  std::string program = "vrel";
  std::string word = "echo \xc3\xa9";
  char* words[] = {program.data(), word.data(), nullptr};
  EXPECT_EQ(platform::commandLineWords(2, words),
            (std::vector<std::string>{"vrel", "echo \xc3\xa9"}));
}
#endif

TEST(LocalTime, ConvertsBackToTheSameSecond) {
  for (const std::int64_t seconds : {std::int64_t{0}, std::int64_t{1400000000}}) {
    EXPECT_EQ(platform::secondsFromLocalTime(platform::localTime(seconds)), seconds);
  }
}

TEST(Directory, TellsTheNamesInIt) {
  const TemporaryDirectory directory;
  directory.write("one.view", "");
  directory.write("two words.txt", "");
  directory.write("three/four.txt", "");
  std::vector<std::string> names = platform::directoryEntries(directory.path());
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (std::vector<std::string>{"one.view", "three", "two words.txt"}));
}

TEST(Directory, ThatCannotBeReadHasNoNames) {
  const TemporaryDirectory directory;
  EXPECT_TRUE(platform::directoryEntries(directory.path("none")).empty());
}

TEST(Directory, IsTheCurrentOneOnceItWasEntered) {
  const TemporaryDirectory directory;
  const test::Inside inside(directory.path());
  EXPECT_EQ(platform::currentDirectory(), directory.path());
}

TEST(Environment, ThatIsNotSetIsEmpty) {
  EXPECT_FALSE(platform::environmentIsSet("VREL_TEST_IS_NOT_SET"));
  EXPECT_EQ(platform::environment("VREL_TEST_IS_NOT_SET"), "");
}

}  // namespace
}  // namespace vrel
