#include "output/postscript_pen.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <limits>

#include "model/field_value.h"

namespace vrel {
namespace {

constexpr int kCoordinateDecimals = 4;
constexpr std::size_t kLinesPerStroke = 10;

constexpr std::string_view kMoveTo = " moveto\n";
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

std::string coordinateText(double value) {
  std::array<char, kMaxNumberLength> buffer;
  return {buffer.data(), putTrimmed(buffer.data(), value, coordinateSettings())};
}

std::string postScriptString(std::string_view text) {
  std::string string;
  escapeText(text, [&string](std::string_view piece) { string += piece; });
  return string;
}

PostScriptPen::PostScriptPen(TextOutput& output)
    : pen_(output),
      coordinates_(coordinateSettings()),
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

double PostScriptPen::widthOf(const TextMeasure& measure) const {
  return static_cast<double>(measure.units) * size_ / 1000;
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

void PostScriptPen::place(double x, double y, std::string_view text, const TextMeasure& measure) {
  if (measure.isBlank) {
    return;
  }
  if (y != lineY_) {
    lineY_ = y;
    lineText_ = " " + coordinateText(y) + std::string(kMoveTo) + "(";
  }
  char* const to = pen_.room(kMaxNumberLength + lineText_.size());
  pen_.advance(putText(putTrimmed(to, x, coordinates_), lineText_));
  if (measure.needsEscapes) {
    escapeText(text, [this](std::string_view piece) { pen_.write(piece); });
  } else {
    pen_.write(text);
  }
  pen_.write(kShow);
}

char* PostScriptPen::putPoint(char* to, double x, double y) const {
  char* const second = putTrimmed(to, x, coordinates_);
  *second = ' ';
  return putTrimmed(second + 1, y, coordinates_);
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
