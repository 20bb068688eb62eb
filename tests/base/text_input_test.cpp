#include "base/text_input.h"

#include <gtest/gtest.h>

#include "support/temporary_directory.h"

namespace vrel {
namespace {

std::vector<std::string> allLines(TextInput input, std::size_t maxBytes) {
  std::vector<std::string> lines;
  while (const auto line = input.readLine(maxBytes)) {
    lines.emplace_back(*line);
  }
  return lines;
}

using Lines = std::vector<std::string>;

TEST(TextInput, HandsOutLinesWithTheirLineFeeds) {
  EXPECT_EQ(allLines(TextInput::fromMemory("a\n\nbc\n"), 80), (Lines{"a\n", "\n", "bc\n"}));
}

TEST(TextInput, TheLastLineMayLackItsLineFeed) {
  EXPECT_EQ(allLines(TextInput::fromMemory("a\nb"), 80), (Lines{"a\n", "b"}));
  EXPECT_EQ(allLines(TextInput::fromMemory(""), 80), Lines{});
}

TEST(TextInput, CarriageReturnBeforeLineFeedIsDropped) {
  EXPECT_EQ(allLines(TextInput::fromMemory("a\r\n\r\nb\rc\r\n"), 80),
            (Lines{"a\n", "\n", "b\rc\n"}));
}

TEST(TextInput, LongLinesComeInPieces) {
  EXPECT_EQ(allLines(TextInput::fromMemory("abcdefg\nhi\n"), 3),
            (Lines{"abc", "def", "g\n", "hi\n"}));
  EXPECT_EQ(allLines(TextInput::fromMemory("abc\n"), 3), (Lines{"abc", "\n"}));
  EXPECT_EQ(allLines(TextInput::fromMemory("ab\r\nc"), 3), (Lines{"ab\n", "c"}));
}

TEST(TextInput, BlockBordersDoNotShow) {
  std::string text;
  for (int i = 0; i < 200000; ++i) {
    text += "line " + std::to_string(i) + "\r\n";
  }
  TextInput input = TextInput::fromMemory(text);
  for (int i = 0; i < 200000; ++i) {
    ASSERT_EQ(input.readLine(80), "line " + std::to_string(i) + "\n");
  }
  EXPECT_EQ(input.readLine(80), std::nullopt);
}

TEST(TextInput, AMissingFileOrADirectoryCannotBeOpened) {
  EXPECT_FALSE(TextInput::open("no/such/file"));
  EXPECT_FALSE(TextInput::open("."));
}

TEST(TextInput, AnEditedFileMayBeginWithAMark) {
  const test::TemporaryDirectory directory;
  const auto linesOf = [&directory](std::string_view text) {
    std::optional<TextInput> input = TextInput::openEdited(directory.write("edited", text));
    return input ? allLines(*std::move(input), 80) : Lines{"(not opened)"};
  };
  EXPECT_EQ(linesOf("\xEF\xBB\xBF"
                    "a\nb\n"),
            (Lines{"a\n", "b\n"}));
  EXPECT_EQ(linesOf("a\n\xEF\xBB\xBF"
                    "b\n"),
            (Lines{"a\n",
                   "\xEF\xBB\xBF"
                   "b\n"}));
  EXPECT_EQ(linesOf("\xEF\xBB\xBF"), Lines{});
  EXPECT_EQ(linesOf("\xEF\xBB"), Lines{"\xEF\xBB"});
  EXPECT_EQ(linesOf(""), Lines{});
  EXPECT_FALSE(TextInput::openEdited(directory.path("none")));
}

}  // namespace
}  // namespace vrel
