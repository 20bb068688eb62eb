#include "ui/report_delegate.h"

namespace vrel {

namespace {

// Longer texts could not be seen in a cell, and laying them out would take noticeable time.
constexpr qsizetype kLongestShownText = 512;

// How far the background goes from the palette's base towards its text colour, in percent.
constexpr int kReadOnlyShade = 6;
constexpr int kLabelShade = 11;
constexpr int kSummaryShade = 17;

int mix(int from, int to, int percent) {
  return from + (to - from) * percent / 100;
}

QColor shaded(const QPalette& palette, int percent) {
  const QColor base = palette.color(QPalette::Base);
  const QColor text = palette.color(QPalette::Text);
  return QColor(mix(base.red(), text.red(), percent), mix(base.green(), text.green(), percent),
                mix(base.blue(), text.blue(), percent));
}

QColor editableText(const QPalette& palette) {
  const bool dark = palette.color(QPalette::Base).lightness() < 128;
  return dark ? QColor(0x8a, 0xb4, 0xff) : QColor(Qt::blue);
}

}  // namespace

CellColors cellColors(CellKind kind, const QPalette& palette) {
  switch (kind) {
    case CellKind::Editable:
      return {palette.color(QPalette::Base), editableText(palette)};
    case CellKind::Label:
      return {shaded(palette, kLabelShade), palette.color(QPalette::Text)};
    case CellKind::Summary:
      return {shaded(palette, kSummaryShade), palette.color(QPalette::Text)};
    case CellKind::Empty:
    case CellKind::ReadOnly:
      break;
  }
  return {shaded(palette, kReadOnlyShade), palette.color(QPalette::Text)};
}

QString ReportDelegate::displayText(const QVariant& value, const QLocale&) const {
  return value.toString().left(kLongestShownText);
}

void ReportDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  const auto kind = static_cast<CellKind>(index.data(ReportTableModel::kCellKindRole).toInt());
  const CellColors colors = cellColors(kind, option->palette);
  option->backgroundBrush = colors.background;
  option->palette.setColor(QPalette::Text, colors.text);
  if (kind == CellKind::Summary) {
    option->font.setBold(true);
    option->fontMetrics = QFontMetrics(option->font);
  }
}

}  // namespace vrel
