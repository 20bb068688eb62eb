#include "output/postscript_pen.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <limits>

namespace vrel {
namespace {

constexpr int kCoordinateDecimals = 4;
constexpr std::size_t kLinesPerStroke = 10;

/// Texts up to this length are written in one go.
constexpr std::size_t kLongestPiece = 4096;

constexpr std::string_view kMoveTo = " moveto\n";
constexpr std::string_view kMoveToShow = " moveto\n(";
constexpr std::string_view kLineTo = " lineto\n";
constexpr std::string_view kShow = ") show\n";

FormatSettings coordinateSettings() {
  FormatSettings settings;
  settings.precision = kCoordinateDecimals;
  settings.thousandsSeparators = false;
  settings.largeNumberStar = false;
  return settings;
}

char* putText(char* to, std::string_view text) {
  return std::copy(text.begin(), text.end(), to);
}

/// The same as `putText`, quickest for short texts: of 8 to 16 bytes, the first and the last eight
/// are all.
char* putShortText(char* to, std::string_view text) {
  constexpr std::size_t kWord = 8;
  if (text.size() < kWord || text.size() > 2 * kWord) {
    return putText(to, text);
  }
  std::memcpy(to, text.data(), kWord);
  std::memcpy(to + text.size() - kWord, text.data() + text.size() - kWord, kWord);
  return to + text.size();
}

char* putTrimmed(char* to, double value, const FormatSettings& settings) {
  char* end = formatNumber(to, value, settings);
  while (end[-1] == '0') {
    --end;
  }
  return end[-1] == '.' ? end - 1 : end;
}

/// What a byte of a text becomes in a PostScript string; empty when it stands as it is.
std::string_view escapeOf(char byte) {
  switch (byte) {
    case '\t':
    case '\n':
      return " ";
    case '(':
      return "\\(";
    case ')':
      return "\\)";
    case '\\':
      return "\\\\";
    default:
      return {};
  }
}

/// Hands a text on in pieces, escapes in the place of what needs them.
template <typename Write>
void escapeText(std::string_view text, Write write) {
  std::size_t start = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::string_view escape = escapeOf(text[i]);
    if (!escape.empty()) {
      write(text.substr(start, i - start));
      write(escape);
      start = i + 1;
    }
  }
  write(text.substr(start));
}

}  // namespace

CoordinateTexts::CoordinateTexts()
    : settings_(coordinateSettings()), slots_(std::size_t{1} << kSlotBits) {}

char* CoordinateTexts::putNew(char* to, double value) {
  char* const end = putTrimmed(to, value, settings_);
  const auto length = static_cast<std::size_t>(end - to);
  Slot& slot = slots_[slotOf(value)];
  if (length <= slot.text.size()) {
    slot.value = value;
    slot.length = static_cast<std::uint8_t>(length);
    std::copy(to, end, slot.text.begin());
  }
  return end;
}

PostScriptPen::PostScriptPen(TextOutput& output, CoordinateTexts& coordinates)
    : pen_(output),
      coordinates_(coordinates),
      font_(&findFontMetrics(kBodyFont)),
      lineY_(std::numeric_limits<double>::quiet_NaN()) {}

void PostScriptPen::selectFont(std::string_view name, double size) {
  assumeFont(name, size);
  pen_.write(fmt::format("/{} findfont {:.6f} scalefont setfont\n", font_->name, size_));
}

void PostScriptPen::assumeFont(std::string_view name, double size) {
  font_ = &findFontMetrics(name);
  size_ = size;
}

void PostScriptPen::show(double x, double y, std::string_view text) {
  place(x, y, text, measureText(*font_, text));
}

void PostScriptPen::showCentred(double x, double width, double y, std::string_view text) {
  const TextMeasure measure = measureText(*font_, text);
  place(x + (width - std::min(widthOf(measure), width)) / 2, y, text, measure);
}

void PostScriptPen::showRight(double x, double width, double y, std::string_view text) {
  const TextMeasure measure = measureText(*font_, text);
  place(x + width - std::min(widthOf(measure), width), y, text, measure);
}

void PostScriptPen::showRight(double x, double width, double y,
                              const NumberTexts::Measured& number) {
  place(x + width - std::min(number.width, width), y, number.text, {.isBlank = false});
}

void PostScriptPen::beginLine(double y) {
  lineY_ = y;
  char* to = lineText_.data();
  *to++ = ' ';
  to = putText(coordinates_.put(to, y), kMoveToShow);
  lineLength_ = static_cast<std::size_t>(to - lineText_.data());
}

char* PostScriptPen::putLineText(char* to) const {
  constexpr std::size_t kMostly = 24;
  if (lineLength_ <= kMostly) {
    std::memcpy(to, lineText_.data(), kMostly);
  } else {
    std::memcpy(to, lineText_.data(), lineLength_);
  }
  return to + lineLength_;
}

void PostScriptPen::place(double x, double y, std::string_view text, const TextMeasure& measure) {
  if (measure.isBlank) {
    return;
  }
  if (y != lineY_) {
    beginLine(y);
  }
  char* to = coordinates_.put(pen_.room(3 * kMaxNumberLength + kLongestPiece), x);
  to = putLineText(to);
  if (measure.needsEscapes || text.size() > kLongestPiece) {
    pen_.advance(to);
    escapeText(text, [this](std::string_view piece) { pen_.write(piece); });
    pen_.write(kShow);
  } else {
    to = putShortText(to, text);
    pen_.advance(putText(to, kShow));
  }
}

char* PostScriptPen::putPoint(char* to, double x, double y) {
  char* const second = coordinates_.put(to, x);
  *second = ' ';
  return coordinates_.put(second + 1, y);
}

void PostScriptPen::line(double fromX, double fromY, double toX, double toY) {
  char* to = pen_.room(4 * kMaxNumberLength + kMoveTo.size() + kLineTo.size());
  to = putText(putPoint(to, fromX, fromY), kMoveTo);
  pen_.advance(putText(putPoint(to, toX, toY), kLineTo));
}

void PostScriptPen::stroke() {
  pen_.write("stroke\n");
}

void LineSet::add(double fromX, double fromY, double toX, double toY) {
  pen_.line(fromX, fromY, toX, toY);
  if (++waiting_ == kLinesPerStroke) {
    finish();
  }
}

void LineSet::finish() {
  if (waiting_ > 0) {
    pen_.stroke();
    waiting_ = 0;
  }
}

}  // namespace vrel
