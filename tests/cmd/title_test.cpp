#include "cmd/title.h"

#include <gtest/gtest.h>

namespace vrel {
namespace {

TEST(DecodeTitle, ReplacesCodesByCharacters) {
  EXPECT_EQ(decodeTitle("Plan#0020A"), "Plan A");
  EXPECT_EQ(decodeTitle("#00e9t#00E9"), "\xc3\xa9t\xc3\xa9");
  EXPECT_EQ(decodeTitle("#20ac#8a08"), "\xe2\x82\xac\xe8\xa8\x88");
  EXPECT_EQ(decodeTitle("#0023abcd"), "#abcd");
}

TEST(DecodeTitle, KeepsASignThatIsNotFollowedByFourHexadecimalDigits) {
  EXPECT_EQ(decodeTitle("a#b"), "a#b");
  EXPECT_EQ(decodeTitle("#00g0"), "#00g0");
  EXPECT_EQ(decodeTitle("#+041"), "#+041");
  EXPECT_EQ(decodeTitle("##0041"), "#A");
}

TEST(DecodeTitle, KeepsASignTooNearTheEnd) {
  EXPECT_EQ(decodeTitle("x#004"), "x#004");
  EXPECT_EQ(decodeTitle("x#"), "x#");
}

TEST(DecodeTitle, TwoHalvesFormOneCharacterAndALoneOneIsReplaced) {
  EXPECT_EQ(decodeTitle("#d83d#de00"), "\xf0\x9f\x98\x80");
  EXPECT_EQ(decodeTitle("#d83d!"), "\xef\xbf\xbd!");
  EXPECT_EQ(decodeTitle("#de00"), "\xef\xbf\xbd");
}

TEST(ShortTitle, IsThePartAfterTheLastSlash) {
  EXPECT_EQ(shortTitle("data/week/plan.tbl"), "plan.tbl");
  EXPECT_EQ(shortTitle("plan"), "plan");
  EXPECT_EQ(shortTitle("data/"), "");
}

}  // namespace
}  // namespace vrel
