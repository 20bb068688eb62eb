#include "expr/ui/colour_sample.h"

#include <QPainter>
#include <QPixmap>

#include "expr/colours.h"

namespace vrel {

namespace {

// Pixels of a sample for one of its size, so that it is sharp on any screen.
constexpr int kDetail = 3;

// Not a colour of its own but the window's.
constexpr std::string_view kWindowColour = "Background";

QColor colourOf(std::size_t colour, const QPalette& palette) {
  const std::string_view name = kColours[colour].name;
  return name == kWindowColour
             ? palette.color(QPalette::Window)
             : QColor(QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size())));
}

}  // namespace

QIcon colourSample(std::size_t colour, const QPalette& palette, QSize size) {
  if (colour == 0 || colour >= kColours.size()) {
    return {};
  }
  QPixmap sample(size * kDetail);
  sample.setDevicePixelRatio(kDetail);
  QPainter painter(&sample);
  const QRect whole(QPoint(0, 0), size);
  painter.fillRect(whole, palette.color(QPalette::Text));
  painter.fillRect(whole.adjusted(1, 1, -1, -1), colourOf(colour, palette));
  return {sample};
}

}  // namespace vrel
