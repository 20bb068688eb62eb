// Draws the texts of cells quickly: laying a text out is most of what painting a cell costs, and
// numbers need none of it to tell where they begin.
#pragma once

#include <QFont>
#include <QPainter>
#include <array>

namespace vrel {

class CellFont {
 public:
  /// Draws in this font from now on, or in the bold one of its family.
  void follow(const QFont& font, bool bold);
  /// Draws one line, at the left or the right of the room and in the middle of its height. A text
  /// that is too wide is cut off and marked as such.
  void draw(QPainter& painter, const QRect& room, Qt::Alignment alignment,
            const QString& text) const;
  /// The width of a text.
  qreal widthOf(const QString& text) const;

 private:
  static constexpr int kPlainCharacters = 128;

  QFont font_;
  QFont followed_;
  qreal ascent_ = 0;
  qreal height_ = 0;
  bool ready_ = false;
  // Of the characters in which numbers and most names are written.
  std::array<qreal, kPlainCharacters> widths_ = {};
};

}  // namespace vrel
