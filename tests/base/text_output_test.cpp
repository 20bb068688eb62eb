#include "base/text_output.h"

#include <gtest/gtest.h>

#include "base/platform.h"
#include "base/text_file.h"
#include "support/temporary_directory.h"

namespace vrel {
namespace {

using test::TemporaryDirectory;

TEST(TextOutput, HoldsTextBackUntilItIsFlushed) {
  std::string text;
  TextOutput output = TextOutput::toMemory(text);
  output.write("abc");
  output.put('d');
  char* at = output.reserve(2);
  *at++ = 'e';
  output.advance(at);
  EXPECT_EQ(text, "");
  EXPECT_TRUE(output.flush());
  EXPECT_EQ(text, "abcde");
}

TEST(TextOutput, TextLongerThanABlockArrivesWhole) {
  const std::string longText(1000000, 'x');
  std::string text;
  {
    TextOutput output = TextOutput::toMemory(text);
    output.write("a");
    output.write(longText);
    for (int i = 0; i < 300000; ++i) {
      output.put('y');
    }
  }
  EXPECT_EQ(text, "a" + longText + std::string(300000, 'y'));
}

TEST(TextOutput, AfterAFailedWriteTheStreamStaysFailed) {
  int writes = 0;
  TextOutput output([&writes](std::string_view) { return ++writes > 1; });
  output.write("a");
  EXPECT_FALSE(output.flush());
  output.write("b");
  EXPECT_FALSE(output.flush());
  EXPECT_EQ(writes, 1);
}

TEST(OpenOutput, TruncatesOrAppends) {
  const TemporaryDirectory directory;
  directory.write("a.txt", "old\n");
  openOutput(directory.path("a.txt"), WriteMode::Append)->write("more\n");
  EXPECT_EQ(directory.read("a.txt"), "old\nmore\n");
  openOutput(directory.path("a.txt"), WriteMode::Truncate)->write("new\n");
  EXPECT_EQ(directory.read("a.txt"), "new\n");
}

TEST(OpenOutput, GivesNothingForAPlaceThatCannotBeWritten) {
  const TemporaryDirectory directory;
  EXPECT_EQ(openOutput(directory.path("no/such/a.txt"), WriteMode::Truncate), nullptr);
  EXPECT_EQ(openOutput(directory.path(), WriteMode::Truncate), nullptr);
}

TEST(SafeFile, AppearsWithTheCommit) {
  const TemporaryDirectory directory;
  directory.write("a.txt", "old");
  SafeFile file(directory.path("a.txt"));
  ASSERT_TRUE(file.isOpen());
  file.output().write("new");
  file.output().flush();
  EXPECT_EQ(directory.read("a.txt"), "old");
  EXPECT_TRUE(file.commit());
  EXPECT_EQ(directory.read("a.txt"), "new");
  EXPECT_FALSE(file.commit());
}

TEST(SafeFile, WithoutACommitLeavesNoTrace) {
  const TemporaryDirectory directory;
  directory.write("a.txt", "old");
  {
    SafeFile file(directory.path("a.txt"));
    file.output().write("new");
  }
  EXPECT_EQ(directory.read("a.txt"), "old");
  const std::filesystem::directory_iterator files(directory.path());
  EXPECT_EQ(std::distance(begin(files), end(files)), 1);
}

TEST(SafeFile, IsNotOpenWhereNothingCanBeWritten) {
  const TemporaryDirectory directory;
  EXPECT_FALSE(SafeFile(directory.path("no/such/a.txt")).isOpen());
  EXPECT_FALSE(SafeFile("").isOpen());
  EXPECT_FALSE(SafeFile(directory.path()).isOpen());
}

#ifndef _WIN32
TEST(SafeFile, AFullDeviceIsAFailure) {
  SafeFile file("/dev/full");
  ASSERT_TRUE(file.isOpen());
  file.output().write("text");
  EXPECT_FALSE(file.commit());
}

TEST(SafeFile, HasNoNameThatCouldStayBehindBeforeTheCommit) {
  const TemporaryDirectory directory;
  if (!platform::openNameless(directory.path("a.txt"))) {
    GTEST_SKIP() << "the file system has no files without a name";
  }
  SafeFile file(directory.path("a.txt"));
  file.output().write("new");
  file.output().flush();
  EXPECT_TRUE(std::filesystem::is_empty(directory.path()));
  EXPECT_TRUE(file.commit());
  EXPECT_EQ(directory.read("a.txt"), "new");
  const std::filesystem::directory_iterator files(directory.path());
  EXPECT_EQ(std::distance(begin(files), end(files)), 1);
}

TEST(SafeFile, ASymbolicLinkKeepsPointingToTheFile) {
  const TemporaryDirectory directory;
  directory.write("target.txt", "old");
  std::filesystem::create_symlink("target.txt", directory.path("link.txt"));
  SafeFile file(directory.path("link.txt"));
  file.output().write("new");
  EXPECT_TRUE(file.commit());
  EXPECT_TRUE(std::filesystem::is_symlink(directory.path("link.txt")));
  EXPECT_EQ(directory.read("target.txt"), "new");
}

TEST(SafeFile, ASymbolicLinkToNoFileYetIsFollowed) {
  const TemporaryDirectory directory;
  std::filesystem::create_directory(directory.path("sub"));
  std::filesystem::create_symlink("sub/target.txt", directory.path("link.txt"));
  SafeFile file(directory.path("link.txt"));
  file.output().write("new");
  EXPECT_TRUE(file.commit());
  EXPECT_TRUE(std::filesystem::is_symlink(directory.path("link.txt")));
  EXPECT_EQ(directory.read("sub/target.txt"), "new");
}

TEST(SafeFile, IsWrittenStraightWhereNoOtherFileCanStandBesideIt) {
  const TemporaryDirectory directory;
  const std::string longName(252, 'x');
  SafeFile file(directory.path(longName));
  ASSERT_TRUE(file.isOpen());
  file.output().write("new");
  EXPECT_TRUE(file.commit());
  EXPECT_EQ(directory.read(longName), "new");
}
#endif

TEST(SafeFile, LeavesFilesOfTheNameItWouldTakeAlone) {
  const TemporaryDirectory directory;
  directory.write("a.txt.new000", "another program's");
  SafeFile file(directory.path("a.txt"));
  file.output().write("new");
  EXPECT_TRUE(file.commit());
  EXPECT_EQ(directory.read("a.txt"), "new");
  EXPECT_EQ(directory.read("a.txt.new000"), "another program's");
}

TEST(ReadTextFile, GivesAllBytes) {
  const TemporaryDirectory directory;
  const std::string text = std::string(200000, 'x') + '\0' + "\r\nend";
  EXPECT_EQ(readTextFile(directory.write("a.txt", text)), text);
  EXPECT_EQ(readTextFile(directory.write("b.txt", "")), "");
}

#ifndef _WIN32
TEST(ReadTextFile, GivesNothingForAFileWithoutAnEnd) {
  EXPECT_EQ(readTextFile("/dev/zero"), std::nullopt);
}
#endif

TEST(ReadTextFile, GivesNothingForAMissingFileOrADirectory) {
  const TemporaryDirectory directory;
  EXPECT_EQ(readTextFile(directory.path("a.txt")), std::nullopt);
  EXPECT_EQ(readTextFile(directory.path()), std::nullopt);
}

}  // namespace
}  // namespace vrel
