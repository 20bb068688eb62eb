#include "ui/row_numbers.h"

#include <QPainter>
#include <QStyleOptionHeader>

namespace vrel {

RowNumbers::RowNumbers(QWidget* parent) : QHeaderView(Qt::Vertical, parent) {
  setSectionsClickable(true);
  setHighlightSections(false);
}

void RowNumbers::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const {
  painter->save();
  QHeaderView::paintSection(painter, rect, logicalIndex);
  painter->restore();
  // The style would keep its margin above and below too, and cut the numbers of low rows off.
  const int margin = style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this);
  const QString number = model()->headerData(logicalIndex, Qt::Vertical).toString();
  style()->drawItemText(painter, rect.adjusted(margin, 0, -margin, 0),
                        static_cast<int>(defaultAlignment()), palette(), isEnabled(), number,
                        QPalette::ButtonText);
}

void RowNumbers::initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const {
  QHeaderView::initStyleOptionForIndex(option, logicalIndex);
  // The number is painted by itself; the style paints the section around it.
  option->text.clear();
}

}  // namespace vrel
