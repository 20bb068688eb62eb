#include "ui/cell_colors.h"

#include <algorithm>
#include <cmath>

#include "expr/colours.h"

namespace vrel {

namespace {

// Small text is readable from this contrast on.
constexpr double kReadable = 4.5;

// How far the background goes from the palette's base towards its text colour, in percent.
constexpr int kReadOnlyShade = 6;
constexpr int kLabelShade = 11;
constexpr int kSummaryShade = 17;
// How far a frame goes from the background towards the text, in percent.
constexpr int kFrameShade = 45;
// How much of a selected cell's background is the selection colour, in percent.
constexpr int kSelectionShade = 70;

// Says the palette's own colour where the list names one of the desktop's.
constexpr std::string_view kWindowColour = "Background";

int mix(int from, int to, int percent) {
  return from + (to - from) * percent / 100;
}

QColor mixed(const QColor& from, const QColor& to, int percent) {
  return QColor(mix(from.red(), to.red(), percent), mix(from.green(), to.green(), percent),
                mix(from.blue(), to.blue(), percent));
}

QColor shaded(const QPalette& palette, int percent) {
  return mixed(palette.color(QPalette::Base), palette.color(QPalette::Text), percent);
}

QColor editableText(const QPalette& palette) {
  const bool dark = palette.color(QPalette::Base).lightness() < 128;
  return dark ? QColor(0x8a, 0xb4, 0xff) : QColor(Qt::blue);
}

double linear(double channel) {
  constexpr double kNearBlack = 0.03928;
  return channel <= kNearBlack ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

// The wanted colour where it is readable, else black or white: one of them is on any background.
QColor readableOn(const QColor& background, const QColor& wanted) {
  if (contrastBetween(background, wanted) >= kReadable) {
    return wanted;
  }
  const QColor black(Qt::black);
  const QColor white(Qt::white);
  return contrastBetween(background, black) >= contrastBetween(background, white) ? black : white;
}

CellColors plainColors(CellKind kind, const QPalette& palette) {
  switch (kind) {
    case CellKind::Editable:
      return {palette.color(QPalette::Base), editableText(palette), {}};
    case CellKind::Label:
      return {shaded(palette, kLabelShade), palette.color(QPalette::Text), {}};
    case CellKind::Summary:
      return {shaded(palette, kSummaryShade), palette.color(QPalette::Text), {}};
    case CellKind::Empty:
    case CellKind::ReadOnly:
      break;
  }
  return {shaded(palette, kReadOnlyShade), palette.color(QPalette::Text), {}};
}

QColor namedColour(std::string_view name, const QPalette& palette) {
  return name == kWindowColour
             ? palette.color(QPalette::Window)
             : QColor(QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size())));
}

}  // namespace

double contrastBetween(const QColor& a, const QColor& b) {
  constexpr double kGlare = 0.05;
  const double one = luminance(a) + kGlare;
  const double other = luminance(b) + kGlare;
  return std::max(one, other) / std::min(one, other);
}

CellColors cellColors(CellKind kind, const QPalette& palette, int highlight) {
  CellColors colors = plainColors(kind, palette);
  const auto index = static_cast<std::size_t>(highlight);
  if (highlight <= 0 || index >= kColours.size()) {
    return colors;
  }
  colors.background = namedColour(kColours[index].name, palette);
  colors.text = readableOn(colors.background, colors.text);
  if (kind == CellKind::Editable) {
    colors.frame = mixed(colors.background, colors.text, kFrameShade);
  }
  return colors;
}

CellColors selectedColors(const CellColors& colors, const QPalette& palette) {
  const QColor background =
      mixed(colors.background, palette.color(QPalette::Highlight), kSelectionShade);
  return {background, readableOn(background, palette.color(QPalette::HighlightedText)), {}};
}

}  // namespace vrel
