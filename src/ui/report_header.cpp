#include "ui/report_header.h"

#include <QPainter>
#include <QStyleOptionHeader>
#include <algorithm>

namespace vrel {

namespace {

// Longer texts could not be seen, and laying them out would take noticeable time.
constexpr qsizetype kLongestShownLine = 512;

int margin(const QHeaderView& header) {
  return header.style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, &header);
}

}  // namespace

ReportHeader::ReportHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
  setSectionsClickable(true);
  setHighlightSections(false);
  setSectionResizeMode(QHeaderView::Interactive);
}

void ReportHeader::setLineCount(int lines) {
  if (lines != lineCount_) {
    lineCount_ = lines;
    emit geometriesChanged();
  }
}

QSize ReportHeader::sizeHint() const {
  const int text = lineCount_ * fontMetrics().lineSpacing();
  return {QHeaderView::sizeHint().width(), text + 2 * margin(*this) + 2};
}

void ReportHeader::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const {
  painter->save();
  QHeaderView::paintSection(painter, rect, logicalIndex);
  painter->restore();
  const QString heading = model()->headerData(logicalIndex, Qt::Horizontal).toString();
  const QStringList lines = heading.split(u'\n');
  const int spacing = fontMetrics().lineSpacing();
  const int room = margin(*this);
  // The last lines stand at the bottom; each is cut off by itself where it is too wide.
  QRect line = rect.adjusted(room, 0, -room, 0);
  line.setTop(rect.bottom() - room - spacing * static_cast<int>(lines.size()));
  line.setHeight(spacing);
  for (const QString& text : lines) {
    const QString shown =
        fontMetrics().elidedText(text.left(kLongestShownLine), Qt::ElideRight, line.width());
    style()->drawItemText(painter, line, Qt::AlignCenter, palette(), isEnabled(), shown,
                          QPalette::ButtonText);
    line.translate(0, spacing);
  }
}

void ReportHeader::initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const {
  QHeaderView::initStyleOptionForIndex(option, logicalIndex);
  // The lines are painted one by one; the style paints the section around them.
  option->text.clear();
}

}  // namespace vrel
