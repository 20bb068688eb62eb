#include "base/case_folding.h"

#include <gtest/gtest.h>

namespace vrel {
namespace {

std::string folded(std::string text) {
  foldCase(text);
  return text;
}

TEST(FoldCase, TurnsCapitalLettersIntoSmallOnes) {
  EXPECT_EQ(folded("Bolt M8 [AZ@`]"), "bolt m8 [az@`]");
  EXPECT_EQ(folded("ÉCROU À TÊTE ØÞ"), "écrou à tête øþ");
  EXPECT_EQ(folded("ŁÓDŹ ŞĦŊ ŽŸ"), "łódź şħŋ žÿ");
  EXPECT_EQ(folded("ΆΣΟΦΊΑ ΈΉΌΎΏ"), "άσοφία έήόύώ");
  EXPECT_EQ(folded("ЁЖ ДОНЕЦЬК ҐӀӁ"), "ёж донецьк ґӏӂ");
}

TEST(FoldCase, TakesBothSmallSigmasAsOne) {
  EXPECT_EQ(folded("ΟΔΟΣ"), folded("οδος"));
}

TEST(FoldCase, LeavesAllElseAsItIs) {
  for (const std::string_view text :
       {"", "abc 123", "écrou", "×÷ß", "日本語", "İı", "\xc3", "\xc3z", "\xff\x41\xc0\x80"}) {
    std::string expected(text);
    if (text == "\xff\x41\xc0\x80") {
      expected[1] = 'a';
    }
    EXPECT_EQ(folded(std::string(text)), expected);
  }
}

}  // namespace
}  // namespace vrel
