#include "base/words.h"

#include <gtest/gtest.h>

namespace vrel {
namespace {

using Words = std::vector<std::string>;

TEST(Words, AreSeparatedByWhiteSpaceAndCommas) {
  EXPECT_EQ(splitWords(" echo a,b \t c\r\n").words, (Words{"echo", "a", "b", "c"}));
  EXPECT_EQ(splitWords(" ,\n").words, Words{});
  EXPECT_EQ(splitWords("").words, Words{});
}

TEST(Words, BytesFrom128OnNeverSeparate) {
  EXPECT_EQ(splitWords("a\xa0\xc2\x85z b").words, (Words{"a\xa0\xc2\x85z", "b"}));
}

TEST(Words, QuotesKeepBlanksAndCommas) {
  EXPECT_EQ(splitWords("echo \"a, b\" 'c \"d' `e 'f`").words,
            (Words{"echo", "a, b", "c \"d", "e 'f"}));
  EXPECT_EQ(splitWords("x \"\" y").words, (Words{"x", "", "y"}));
}

TEST(Words, TextRightBehindAClosingQuoteIsANewWord) {
  EXPECT_EQ(splitWords("\"a b\"x").words, (Words{"a b", "x"}));
  EXPECT_EQ(splitWords("'a''b'").words, (Words{"a", "b"}));
}

TEST(Words, AQuoteInsideAWordIsPlainText) {
  EXPECT_EQ(splitWords("it's b'").words, (Words{"it's", "b'"}));
}

TEST(Words, AnUnclosedQuoteIsReportedWithWhatFollowsIt) {
  const WordSplit split = splitWords("echo 'a, b\n");
  EXPECT_EQ(split.words, (Words{"echo"}));
  EXPECT_EQ(split.unmatchedQuote, '\'');
  EXPECT_EQ(split.rest, "a, b\n");
}

TEST(Words, AQuoteAtTheVeryEndIsUnclosed) {
  const WordSplit split = splitWords("echo `");
  EXPECT_EQ(split.unmatchedQuote, '`');
  EXPECT_EQ(split.rest, "");
}

TEST(TrimBlanks, TakesWhiteSpaceFromBothEnds) {
  EXPECT_EQ(trimBlanks(" \t a b \r\n"), "a b");
  EXPECT_EQ(trimBlanks(" \n"), "");
}

TEST(LinesOf, AreSeparatedByLineFeeds) {
  using Lines = std::vector<std::string_view>;
  EXPECT_EQ(linesOf("Week"), Lines{"Week"});
  EXPECT_EQ(linesOf("2026\nWeek 1"), (Lines{"2026", "Week 1"}));
  EXPECT_EQ(linesOf("\nWeek 1\n"), (Lines{"", "Week 1", ""}));
  EXPECT_EQ(linesOf(""), Lines{""});
}

}  // namespace
}  // namespace vrel
