#include "model/view_record.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace vrel {
namespace {

using Words = std::vector<std::string>;

TEST(ViewRecord, ATagsValueIsTheWordBehindIt) {
  const Words words = {"<A>", "x", "<B>", "y"};
  EXPECT_EQ(tagText(words, "<A>"), "x");
  EXPECT_EQ(tagText(words, "<B>"), "y");
}

TEST(ViewRecord, AMissingTagHasAnEmptyValue) {
  EXPECT_EQ(tagText(Words{"<A>", "x"}, "<B>"), "");
  EXPECT_EQ(tagText(Words{}, "<B>"), "");
}

TEST(ViewRecord, TheLastWordIsNoTag) {
  EXPECT_EQ(tagText(Words{"<A>", "x", "<B>"}, "<B>"), "");
  EXPECT_EQ(findTagValue(Words{"<B>"}, "<B>"), std::nullopt);
}

TEST(ViewRecord, TagsAreComparedExactly) {
  EXPECT_EQ(tagText(Words{"<a>", "x", "A", "y", "<A> ", "z"}, "<A>"), "");
}

TEST(ViewRecord, TagsAreFoundBehindStrayWordsToo) {
  EXPECT_EQ(tagText(Words{"stray", "<A>", "x"}, "<A>"), "x");
}

TEST(ViewRecord, AValueThatReadsLikeATagIsNone) {
  EXPECT_EQ(tagText(Words{"<Title>", "<Footer>", "<Footer>", "end"}, "<Footer>"), "end");
}

TEST(ViewRecord, OnlyTheWordTrueIsTrue) {
  EXPECT_TRUE(tagIsTrue(Words{"<A>", "True"}, "<A>"));
  for (const char* word : {"true", "TRUE", "Yes", "1", "", "True "}) {
    EXPECT_FALSE(tagIsTrue(Words{"<A>", word}, "<A>")) << word;
  }
  EXPECT_FALSE(tagIsTrue(Words{}, "<A>"));
}

TEST(ViewRecord, NumbersAreWholeNumbersAndOtherTextsZero) {
  EXPECT_EQ(wholeNumber("12"), 12);
  EXPECT_EQ(wholeNumber(" -7\t"), -7);
  EXPECT_EQ(wholeNumber("+3"), 3);
  EXPECT_EQ(wholeNumber("007"), 7);
  for (const char* text :
       {"", " ", "+", "-", "+-3", "++3", "12abc", "3.5x", "1.2.3", "1e1", "0x10", "abc", "1 2"}) {
    EXPECT_EQ(parseWholeNumber(text), std::nullopt) << text;
    EXPECT_EQ(wholeNumber(text), 0) << text;
  }
}

TEST(ViewRecord, ANumberWithAFractionCountsAsItsIntegerPart) {
  EXPECT_EQ(wholeNumber("2.7"), 2);
  EXPECT_EQ(wholeNumber("-2.7"), -2);
  EXPECT_EQ(wholeNumber(" +1.0 "), 1);
  EXPECT_EQ(wholeNumber("3."), 3);
  EXPECT_EQ(wholeNumber(".9"), 0);
  EXPECT_EQ(wholeNumber("-.9"), 0);
}

TEST(ViewRecord, NumbersOutOfRangeStayAtItsEnds) {
  EXPECT_EQ(wholeNumber("99999999999999999999999"), std::numeric_limits<int>::max());
  EXPECT_EQ(wholeNumber("-99999999999999999999999"), std::numeric_limits<int>::min());
  EXPECT_EQ(wholeNumber("99999999999999999999999.5"), std::numeric_limits<int>::max());
  EXPECT_EQ(parseWholeNumber("99999999999999999999999x"), std::nullopt);
}

TEST(ViewRecord, TextsLoseWhatALineCannotHold) {
  EXPECT_EQ(viewFileText("IF(\"a\"=\n'b')"), "IF('a'= 'b')");
  EXPECT_EQ(viewFileText("M\xc3\xa4rz \\ #,`"), "M\xc3\xa4rz \\ #,`");
}

TEST(ViewRecord, EveryWordIsFollowedByABlank) {
  std::string line;
  addWord(line, "word");
  addQuoted(line, "a \"b\"");
  addNumber(line, -5);
  addTruth(line, true);
  addTruth(line, false);
  addQuoted(line, "");
  EXPECT_EQ(line, "word \"a 'b'\" -5 \"True\" \"False\" \"\" ");
}

}  // namespace
}  // namespace vrel
