#include "output/font_metrics.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace vrel {
namespace {

int widthOf(std::string_view font, unsigned char code) {
  return findFontMetrics(font).widths[code];
}

TEST(FontMetrics, AreThePublishedOnes) {
  EXPECT_EQ(widthOf("Helvetica", ' '), 278);
  EXPECT_EQ(widthOf("Helvetica", '!'), 278);
  EXPECT_EQ(widthOf("Helvetica", '"'), 355);
  EXPECT_EQ(widthOf("Helvetica", '#'), 556);
  EXPECT_EQ(widthOf("Helvetica", '$'), 556);
  EXPECT_EQ(widthOf("Helvetica", '@'), 1015);
  EXPECT_EQ(widthOf("Helvetica", '~'), 584);
  EXPECT_EQ(widthOf("Helvetica-Bold", ' '), 278);
  EXPECT_EQ(widthOf("Helvetica-Bold", '!'), 333);
  EXPECT_EQ(widthOf("Helvetica-Bold", '"'), 474);
  EXPECT_EQ(widthOf("Helvetica-Bold", 'W'), 944);
  EXPECT_EQ(widthOf("Times-Roman", ' '), 250);
  EXPECT_EQ(widthOf("Times-Roman", 'A'), 722);
  EXPECT_EQ(widthOf("Times-Roman", 'i'), 278);
}

TEST(FontMetrics, OfAllFontsReachFrom219BelowTheLineTo729Above) {
  for (const char* name : {"Helvetica", "Helvetica-Bold", "Times-Roman"}) {
    const FontMetrics& font = findFontMetrics(name);
    EXPECT_EQ(font.name, name);
    EXPECT_EQ(font.ascender, 729);
    EXPECT_EQ(font.descender, -219);
  }
}

TEST(FontMetrics, HaveCurvedQuotesAndAHyphenAmongTheAsciiCharacters) {
  EXPECT_EQ(widthOf("Helvetica", '\''), 222);
  EXPECT_EQ(widthOf("Helvetica", '`'), 222);
  EXPECT_EQ(widthOf("Helvetica", '-'), 333);
  EXPECT_EQ(widthOf("Times-Roman", '\''), 333);
}

TEST(FontMetrics, HaveTheUpperHalfOfIsoLatin1) {
  EXPECT_EQ(widthOf("Helvetica", 0xa0), 278);       // blank
  EXPECT_EQ(widthOf("Helvetica", 0xa9), 737);       // copyright
  EXPECT_EQ(widthOf("Helvetica", 0xad), 333);       // hyphen
  EXPECT_EQ(widthOf("Helvetica", 0xb5), 556);       // mu
  EXPECT_EQ(widthOf("Helvetica", 0xc6), 1000);      // AE
  EXPECT_EQ(widthOf("Helvetica", 0xdf), 611);       // sharp s
  EXPECT_EQ(widthOf("Helvetica", 0xff), 500);       // y with dieresis
  EXPECT_EQ(widthOf("Helvetica-Bold", 0xe9), 556);  // e with acute
  EXPECT_EQ(widthOf("Times-Roman", 0xd7), 564);     // multiply
}

TEST(FontMetrics, AreZeroForCodesWithoutACharacter) {
  for (const char* name : {"Helvetica", "Helvetica-Bold", "Times-Roman"}) {
    for (unsigned code = 0; code < 256; ++code) {
      const bool isEmpty = code < 0x20 || (code >= 0x7f && code < 0xa0);
      EXPECT_EQ(widthOf(name, static_cast<unsigned char>(code)) == 0, isEmpty) << name << code;
    }
  }
}

TEST(FontMetrics, OfAnUnknownFontAreThoseOfHelvetica) {
  EXPECT_EQ(findFontMetrics("Courier").name, "Helvetica");
  EXPECT_EQ(findFontMetrics("").name, "Helvetica");
}

std::uint64_t units(std::string_view text) {
  return measureText(findFontMetrics(kBodyFont), text).units;
}

TEST(MeasureText, AddsUpTheCharacters) {
  EXPECT_EQ(units(""), 0U);
  EXPECT_EQ(units("1,234.50"), 6U * 556 + 2 * 278);
  EXPECT_EQ(measureText(findFontMetrics("Helvetica-Bold"), "!\"").units, 333U + 474);
}

TEST(MeasureText, CountsCharactersNotBytes) {
  EXPECT_EQ(units("\xc3\xa9"), 556U);                        // e with acute
  EXPECT_EQ(units("\xc2\xa9 \xc3\x86"), 737U + 278 + 1000);  // copyright, AE
}

TEST(MeasureText, CountsAQuestionMarkForWhatTheFontHasNot) {
  EXPECT_EQ(units("\xce\xa9"), 556U);                      // Omega
  EXPECT_EQ(units("\xe5\x9e\xab\xe5\x9c\x88"), 2U * 556);  // two ideographs
  EXPECT_EQ(units("\xf0\x9f\x98\x80!"), 556U + 278);       // an emoji
  EXPECT_EQ(units("\xc2\x85"), 556U);                      // a control character
}

TEST(MeasureText, CountsAQuestionMarkForBytesThatAreNoCharacter) {
  EXPECT_EQ(units("\xe9!"), 556U + 278);
  EXPECT_EQ(units("!\x80\x81!"), 278U + 556 + 278);
  EXPECT_EQ(units("\xc3"), 556U);
  EXPECT_EQ(units("\xc3\xa9\xa9"), 556U);
  EXPECT_EQ(units("\xff\xfe"), 2U * 556);
}

TEST(MeasureText, CountsTabAndLineFeedAsBlanks) {
  EXPECT_EQ(units("a\tb\nc"), 556U + 278 + 556 + 278 + 500);
  EXPECT_EQ(units("\xc3\xa9\t"), 556U + 278);
}

TEST(MeasureText, TellsWhatIsBlank) {
  const FontMetrics& font = findFontMetrics(kBodyFont);
  for (const char* text : {"", " ", " \t\n\v\f\r "}) {
    EXPECT_TRUE(measureText(font, text).isBlank) << text;
  }
  EXPECT_FALSE(measureText(font, " . ").isBlank);
  EXPECT_FALSE(measureText(font, "\xc3\xa9").isBlank);
}

TEST(MeasureText, TellsWhatNeedsEscapes) {
  const FontMetrics& font = findFontMetrics(kBodyFont);
  for (const char* text : {"a(", ")", "\\", "a\tb", "\n"}) {
    EXPECT_TRUE(measureText(font, text).needsEscapes) << text;
  }
  EXPECT_FALSE(measureText(font, "1,234.50 [{%}] \xc3\xa9").needsEscapes);
}

TEST(MeasureText, TellsWhatIsBeyondAscii) {
  const FontMetrics& font = findFontMetrics(kBodyFont);
  EXPECT_TRUE(measureText(font, "caf\xc3\xa9").isBeyondAscii);
  EXPECT_TRUE(measureText(font, "\xff").isBeyondAscii);
  EXPECT_FALSE(measureText(font, "cafe~\x7f\x01").isBeyondAscii);
}

}  // namespace
}  // namespace vrel
