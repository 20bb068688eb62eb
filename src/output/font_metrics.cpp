#include "output/font_metrics.h"

#include <algorithm>
#include <cstddef>

namespace vrel {
namespace {

using Widths = std::array<std::uint16_t, 256>;

#include "output/font_widths.inc"

constexpr int kAscender = 729;
constexpr int kDescender = -219;

constexpr std::array<FontMetrics, 3> kFonts = {{
    {kBodyFont, kAscender, kDescender, kHelveticaWidths},
    {kTitleFont, kAscender, kDescender, kHelveticaBoldWidths},
    {"Times-Roman", kAscender, kDescender, kTimesRomanWidths},
}};

// What a byte means for the text that it stands in.
enum Mark : std::uint8_t {
  kInk = 1,
  kEscaped = 2,
  kSeenAsBlank = 4,
  kBeyondAscii = 8,
};

constexpr std::array<std::uint8_t, 256> kMarks = [] {
  std::array<std::uint8_t, 256> marks{};
  for (std::size_t code = 0; code < marks.size(); ++code) {
    marks[code] = code < 0x80 ? kInk : kInk | kBeyondAscii;
  }
  for (const char space : {' ', '\v', '\f', '\r'}) {
    marks[static_cast<unsigned char>(space)] = 0;
  }
  for (const char blank : {'\t', '\n'}) {
    marks[static_cast<unsigned char>(blank)] = kSeenAsBlank | kEscaped;
  }
  for (const char special : {'(', ')', '\\'}) {
    marks[static_cast<unsigned char>(special)] = kInk | kEscaped;
  }
  return marks;
}();

bool isContinuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xc0U) == 0x80;
}

// The code of a character of two bytes or more, or of a run of continuation bytes without a
// beginning; "?" when ISO Latin 1 has none.
unsigned latinCode(std::string_view bytes) {
  constexpr unsigned kFirstLatinCode = 0xa0;
  const unsigned lead = static_cast<unsigned char>(bytes[0]);
  if (bytes.size() == 2 && (lead == 0xc2 || lead == 0xc3)) {
    const unsigned code = (lead & 3U) << 6 | (static_cast<unsigned char>(bytes[1]) & 0x3fU);
    return code >= kFirstLatinCode ? code : '?';
  }
  return '?';
}

// The sum for the bytes of longer characters, which count 0 by themselves.
std::uint64_t unitsBeyondAscii(const FontMetrics& font, std::string_view text) {
  std::uint64_t units = 0;
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t start = i++;
    if (static_cast<unsigned char>(text[start]) < 0x80) {
      continue;
    }
    while (i < text.size() && isContinuation(text[i])) {
      ++i;
    }
    units += font.widths[latinCode(text.substr(start, i - start))];
  }
  return units;
}

}  // namespace

const FontMetrics& findFontMetrics(std::string_view name) {
  const auto* const font = std::find_if(
      kFonts.begin(), kFonts.end(), [name](const FontMetrics& each) { return each.name == name; });
  return font == kFonts.end() ? kFonts.front() : *font;
}

TextMeasure measureText(const FontMetrics& font, std::string_view text) {
  std::uint64_t units = 0;
  unsigned marks = 0;
  for (const char byte : text) {
    const auto code = static_cast<unsigned char>(byte);
    units += font.widths[code];
    marks |= kMarks[code];
  }
  if ((marks & (kBeyondAscii | kSeenAsBlank)) != 0) {
    units = 0;
    for (const char byte : text) {
      const auto code = static_cast<unsigned char>(byte);
      const bool isBlank = (kMarks[code] & kSeenAsBlank) != 0;
      units += code < 0x80 ? font.widths[isBlank ? ' ' : code] : 0U;
    }
    units += unitsBeyondAscii(font, text);
  }
  return {.units = units,
          .isBlank = (marks & kInk) == 0,
          .needsEscapes = (marks & kEscaped) != 0,
          .isBeyondAscii = (marks & kBeyondAscii) != 0};
}

}  // namespace vrel
