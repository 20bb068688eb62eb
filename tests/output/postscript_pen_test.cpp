#include "output/postscript_pen.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <limits>
#include <random>

#include "support/printed.h"

namespace vrel {
namespace {

using test::postScriptString;

std::string coordinateText(double value) {
  std::array<char, kMaxNumberLength> buffer;
  return {buffer.data(), CoordinateTexts().put(buffer.data(), value)};
}

TEST(CoordinateText, DropsZerosBehindThePoint) {
  EXPECT_EQ(coordinateText(100), "100");
  EXPECT_EQ(coordinateText(0.25), "0.25");
  EXPECT_EQ(coordinateText(72.5), "72.5");
  EXPECT_EQ(coordinateText(0), "0");
  EXPECT_EQ(coordinateText(0.1), "0.1");
  EXPECT_EQ(coordinateText(-36.75), "-36.75");
}

TEST(CoordinateText, IsRoundedToFourDecimals) {
  EXPECT_EQ(coordinateText(1.23456), "1.2346");
  EXPECT_EQ(coordinateText(99.99999), "100");
  EXPECT_EQ(coordinateText(0.00004), "0");
  EXPECT_EQ(coordinateText(1e20), "100000000000000000000");
}

/// The rule as it is told to the C library.
std::string printedCoordinate(double value) {
  std::array<char, 400> buffer;
  const int length = std::snprintf(buffer.data(), buffer.size(), "%.4f", value);
  std::string text(buffer.data(), static_cast<std::size_t>(length));
  text.erase(text.find_last_not_of('0') + 1);
  if (text.ends_with('.')) {
    text.pop_back();
  }
  return text;
}

TEST(CoordinateText, IsWhatTheCLibraryPrints) {
  std::mt19937 random(1);
  std::uniform_real_distribution<double> points(-2000, 5000);
  for (int i = 0; i < 20000; ++i) {
    // Every second one a tie or close to one.
    const double value = i % 2 == 0 ? points(random) : std::round(points(random) * 32) / 32;
    EXPECT_EQ(coordinateText(value), printedCoordinate(value));
  }
  for (const double value : {-0.0, 1e300, -1e-300, 0.00005, 0.00015, 1234.00005}) {
    EXPECT_EQ(coordinateText(value), printedCoordinate(value));
  }
}

TEST(CoordinateTexts, AreTheSameAtFirstSightAndLater) {
  CoordinateTexts texts;
  std::mt19937 random(2);
  std::uniform_int_distribution<int> quarters(-100, 20000);
  std::array<char, kMaxNumberLength> buffer;
  for (int i = 0; i < 100000; ++i) {
    const double value = quarters(random) / 16.0;
    ASSERT_EQ(std::string(buffer.data(), texts.put(buffer.data(), value)), coordinateText(value));
  }
  for (const double value : {0.0, -0.0, 0.0, 1e300, 1e300}) {
    EXPECT_EQ(std::string(buffer.data(), texts.put(buffer.data(), value)), coordinateText(value));
  }
}

TEST(PostScriptString, EscapesParenthesesAndBackslashes) {
  EXPECT_EQ(postScriptString("a(b)\\c"), "a\\(b\\)\\\\c");
}

TEST(PostScriptString, HasBlanksForTabsAndLineFeeds) {
  EXPECT_EQ(postScriptString("a\tb\nc"), "a b c");
}

TEST(PostScriptString, KeepsEveryOtherCharacter) {
  EXPECT_EQ(postScriptString("%!<>[]{}/ \r\x01 \xc3\xa9 \xff"), "%!<>[]{}/ \r\x01 \xc3\xa9 \xff");
  EXPECT_EQ(postScriptString(""), "");
}

template <typename Draw>
std::string drawn(Draw draw) {
  std::string text;
  TextOutput output = TextOutput::toMemory(text);
  CoordinateTexts coordinates;
  {
    PostScriptPen pen(output, coordinates);
    pen.assumeFont(kBodyFont, 10);
    draw(pen);
  }
  output.flush();
  return text;
}

TEST(PostScriptPen, ShowsATextAtAPoint) {
  EXPECT_EQ(drawn([](PostScriptPen& pen) { pen.show(100, 72.5, "a(b)\\c"); }),
            "100 72.5 moveto\n(a\\(b\\)\\\\c) show\n");
}

TEST(PostScriptPen, ShowsNothingForABlankText) {
  EXPECT_EQ(drawn([](PostScriptPen& pen) {
              pen.show(1, 2, "");
              pen.show(1, 2, " \t\n");
              pen.showCentred(1, 10, 2, "  ");
              pen.showRight(1, 10, 2, "");
            }),
            "");
}

TEST(PostScriptPen, CentresATextInItsBox) {
  EXPECT_EQ(drawn([](PostScriptPen& pen) { pen.showCentred(100, 50, 7, "1234"); }),
            "113.88 7 moveto\n(1234) show\n");
}

TEST(PostScriptPen, EndsATextAtTheRightOfItsBox) {
  EXPECT_EQ(drawn([](PostScriptPen& pen) { pen.showRight(100, 50, 7, "1234"); }),
            "127.76 7 moveto\n(1234) show\n");
}

TEST(PostScriptPen, BeginsATextThatIsTooWideAtTheLeftOfItsBox) {
  EXPECT_EQ(drawn([](PostScriptPen& pen) {
              pen.showCentred(100, 20, 7, "1234");
              pen.showRight(100, 20, 7, "1234");
            }),
            "100 7 moveto\n(1234) show\n100 7 moveto\n(1234) show\n");
}

TEST(PostScriptPen, MeasuresInTheSelectedFont) {
  EXPECT_EQ(drawn([](PostScriptPen& pen) {
              pen.selectFont("Helvetica-Bold", 12.5);
              pen.showRight(0, 100, 7, "!");
            }),
            "/Helvetica-Bold findfont 12.500000 scalefont setfont\n95.8375 7 moveto\n(!) show\n");
}

TEST(PostScriptPen, ShowsTextsOfAnyLength) {
  for (const std::size_t length : {7U, 8U, 16U, 17U, 4096U, 4097U, 100000U}) {
    const std::string text(length, 'x');
    EXPECT_EQ(drawn([&text](PostScriptPen& pen) { pen.show(1, 2, text); }),
              "1 2 moveto\n(" + text + ") show\n");
  }
}

TEST(NumberTexts, AreAsWideAsTheirCharacters) {
  const FontMetrics& font = findFontMetrics(kBodyFont);
  std::mt19937 random(3);
  std::uniform_real_distribution<double> exponents(-3, 25);
  for (const bool separators : {false, true}) {
    FormatSettings settings;
    settings.precision = 2;
    settings.thousandsSeparators = separators;
    settings.zeroUnderscore = true;
    NumberTexts texts(kBodyFont, 7, settings);
    for (int i = 0; i < 20000; ++i) {
      double number = std::pow(10, exponents(random)) * (i % 2 == 0 ? 1 : -1);
      if (i % 50 == 0) {
        number = 0;
      }
      const NumberTexts::Measured made = texts.make(number);
      ASSERT_EQ(made.text, formatNumber(number, settings));
      ASSERT_EQ(made.width, widthInPoints(measureText(font, made.text), 7)) << made.text;
    }
    const NumberTexts::Measured odd = texts.make(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(odd.width, widthInPoints(measureText(font, odd.text), 7));
  }
}

std::string setOf(int lines) {
  return drawn([lines](PostScriptPen& pen) {
    LineSet set(pen);
    for (int i = 0; i < lines; ++i) {
      set.add(0, i, 10.5, i);
    }
    set.finish();
  });
}

TEST(LineSet, WritesEachLineAsItsStartAndItsEnd) {
  EXPECT_EQ(setOf(2),
            "0 0 moveto\n10.5 0 lineto\n"
            "0 1 moveto\n10.5 1 lineto\n"
            "stroke\n");
}

/// After which lines a stroke stands.
std::vector<int> strokesOf(int lines) {
  const std::string text = setOf(lines);
  std::vector<int> strokes;
  int line = 0;
  for (std::size_t at = 0; at < text.size(); at = text.find('\n', at) + 1) {
    const std::string_view rest = std::string_view(text).substr(at);
    if (rest.starts_with("stroke\n")) {
      strokes.push_back(line);
    } else if (rest.substr(0, rest.find('\n')).ends_with(" lineto")) {
      ++line;
    }
  }
  return strokes;
}

TEST(LineSet, IsStrokedAfterEveryTenthLineAndTheLast) {
  EXPECT_EQ(strokesOf(26), (std::vector{10, 20, 26}));
  EXPECT_EQ(strokesOf(1), (std::vector{1}));
  EXPECT_EQ(strokesOf(0), (std::vector<int>{}));
}

TEST(LineSet, IsStrokedOnceWhenTheLastLineIsATenth) {
  EXPECT_EQ(strokesOf(20), (std::vector{10, 20}));
}

}  // namespace
}  // namespace vrel
