#include "ui/cell_font.h"

#include <QFontMetricsF>

namespace vrel {

void CellFont::follow(const QFont& font, bool bold) {
  if (ready_ && font == followed_) {
    return;
  }
  followed_ = font;
  font_ = font;
  font_.setBold(bold);
  const QFontMetricsF metrics(font_);
  ascent_ = metrics.ascent();
  height_ = metrics.height();
  for (int character = ' '; character < kPlainCharacters; ++character) {
    widths_[static_cast<std::size_t>(character)] =
        metrics.horizontalAdvance(QChar(static_cast<char16_t>(character)));
  }
  ready_ = true;
}

qreal CellFont::widthOf(const QString& text) const {
  qreal width = 0;
  for (const QChar character : text) {
    if (character.unicode() >= kPlainCharacters) {
      return QFontMetricsF(font_).horizontalAdvance(text);
    }
    width += widths_[character.unicode()];
  }
  return width;
}

void CellFont::draw(QPainter& painter, const QRect& room, Qt::Alignment alignment,
                    const QString& text) const {
  painter.setFont(font_);
  QString shown = text;
  qreal width = widthOf(shown);
  if (width > room.width()) {
    shown = QFontMetricsF(font_).elidedText(text, Qt::ElideRight, room.width());
    width = widthOf(shown);
  }
  const bool right = alignment.testFlag(Qt::AlignRight);
  const qreal left = right ? room.right() + 1 - width : room.left();
  const qreal top = room.top() + (room.height() - height_) / 2;
  painter.drawText(QPointF(left, qRound(top + ascent_)), shown);
}

}  // namespace vrel
