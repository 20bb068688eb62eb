// How wide texts are in the fonts that reports are printed in.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace vrel {

/// The measures of one font, all in thousandths of the font size.
struct FontMetrics {
  std::string_view name;
  int ascender;
  int descender;
  /// How far each character advances, by its code in ISO Latin 1; 0 for codes that the font has no
  /// character for.
  std::array<std::uint16_t, 256> widths;
};

inline constexpr std::string_view kBodyFont = "Helvetica";
inline constexpr std::string_view kTitleFont = "Helvetica-Bold";

/// "Helvetica", "Helvetica-Bold" or "Times-Roman"; Helvetica for any other name.
const FontMetrics& findFontMetrics(std::string_view name);

/// What one look at a text tells.
struct TextMeasure {
  /// Thousandths of the font size.
  std::uint64_t units = 0;
  /// Nothing but white space, or nothing at all.
  bool isBlank = true;
  /// Some characters need an escape in a PostScript string.
  bool needsEscapes = false;
  /// Some characters take more than one byte.
  bool isBeyondAscii = false;
};

/// Measures a text in UTF-8 as it will be seen: tab and line feed as blanks, and a "?" for each
/// character outside ISO Latin 1 and each run of bytes that is no character.
TextMeasure measureText(const FontMetrics& font, std::string_view text);

}  // namespace vrel
