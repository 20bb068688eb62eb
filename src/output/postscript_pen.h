// Writing the marks of a PostScript page: texts in a font, and lines.
#pragma once

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <utility>
#include <vector>

#include "base/text_output.h"
#include "base/text_pen.h"
#include "model/field_value.h"
#include "output/font_metrics.h"

namespace vrel {

/// Writes coordinates, with up to four decimals. Keeps the texts of those met last: a page has few
/// different ones, and pages are alike.
class CoordinateTexts {
 public:
  CoordinateTexts();
  /// Writes a coordinate; there must be room for `kMaxNumberLength` bytes.
  char* put(char* to, double value) {
    const Slot& slot = slots_[slotOf(value)];
    // Bits, for 0 and -0 differ in text.
    if (std::bit_cast<std::uint64_t>(slot.value) != std::bit_cast<std::uint64_t>(value)) {
      return putNew(to, value);
    }
    std::memcpy(to, slot.text.data(), slot.text.size());
    return to + slot.length;
  }

 private:
  static constexpr unsigned kSlotBits = 9;
  struct Slot {
    double value = 0;
    std::uint8_t length = 1;
    std::array<char, 23> text{'0'};
  };

  static std::size_t slotOf(double value) {
    return std::bit_cast<std::uint64_t>(value) * 0x9e3779b97f4a7c15 >> (64 - kSlotBits);
  }
  char* putNew(char* to, double value);

  FormatSettings settings_;
  std::vector<Slot> slots_;
};

/// A text's width in points.
inline double widthInPoints(const TextMeasure& measure, double fontSize) {
  return static_cast<double>(measure.units) * fontSize / 1000;
}

/// Texts of numbers and their widths in one font. As all digits are equally wide, the width follows
/// from the length of the text.
class NumberTexts {
 public:
  NumberTexts(std::string_view font, double fontSize, FormatSettings settings)
      : font_(findFontMetrics(font)), fontSize_(fontSize), settings_(std::move(settings)) {}

  struct Measured {
    std::string_view text;
    /// Points.
    double width;
  };
  /// Valid until the next call.
  Measured make(double number) {
    const std::string_view text(text_.data(), formatNumber(text_.data(), number, settings_));
    // Zeros and what is unbounded may show as other signs.
    const bool isPlain = number != 0 && std::abs(number) < kUnbounded;
    if (!isPlain || text.size() >= kLengths) {
      return {text, widthOf(text)};
    }
    double& width = widths_[number < 0 ? 1 : 0][text.size()];
    if (width == 0) {
      width = widthOf(text);
    }
    return {text, width};
  }

 private:
  static constexpr std::size_t kLengths = 64;

  double widthOf(std::string_view text) const {
    return widthInPoints(measureText(font_, text), fontSize_);
  }

  const FontMetrics& font_;
  const double fontSize_;
  const FormatSettings settings_;
  std::array<char, kMaxNumberLength> text_;
  // By the length of the text, without a minus and with one; 0 when not known yet.
  std::array<std::array<double, kLengths>, 2> widths_{};
};

/// Coordinates are points from the lower left corner. Texts are UTF-8; a text of white space alone
/// leaves no mark.
class PostScriptPen {
 public:
  /// Pens of one document share what they know of coordinates, which outlives them.
  PostScriptPen(TextOutput& output, CoordinateTexts& coordinates);

  /// The pen for what is no mark.
  TextPen& text() { return pen_; }

  /// All texts from here on are in this font.
  void selectFont(std::string_view name, double size);
  /// The same, where the document is known to have selected the font already.
  void assumeFont(std::string_view name, double size);

  void show(double x, double y, std::string_view text);
  /// Centred between x and x + width; a text that is wider begins at x.
  void showCentred(double x, double width, double y, std::string_view text);
  /// Ends at x + width, or begins at x when it is wider.
  void showRight(double x, double width, double y, std::string_view text);
  void showRight(double x, double width, double y, const NumberTexts::Measured& number);

  /// A piece of a path; `stroke` draws it.
  void line(double fromX, double fromY, double toX, double toY);
  void stroke();

 private:
  double widthOf(const TextMeasure& measure) const { return widthInPoints(measure, size_); }
  char* putPoint(char* to, double x, double y);
  void beginLine(double y);
  char* putLineText(char* to) const;
  void place(double x, double y, std::string_view text, const TextMeasure& measure);

  TextPen pen_;
  CoordinateTexts& coordinates_;
  const FontMetrics* font_;
  double size_ = 0;
  // What stands between the x of a text and the text, for the line at this y.
  double lineY_;
  std::size_t lineLength_ = 0;
  std::array<char, 2 * kMaxNumberLength> lineText_;
};

/// Lines of one set, drawn ten at a time.
class LineSet {
 public:
  explicit LineSet(PostScriptPen& pen) : pen_(pen) {}

  void add(double fromX, double fromY, double toX, double toY);
  /// Draws what is not drawn yet.
  void finish();

 private:
  PostScriptPen& pen_;
  std::size_t waiting_ = 0;
};

}  // namespace vrel
