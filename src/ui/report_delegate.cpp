#include "ui/report_delegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPainter>

#include "expr/colours.h"
#include "ui/copy_paste_line_edit.h"

namespace vrel {

namespace {

// Longer texts could not be seen in a cell, and laying them out would take noticeable time.
constexpr qsizetype kLongestShownText = 512;

constexpr std::array<CellKind, 5> kKinds = {CellKind::Label, CellKind::Empty, CellKind::ReadOnly,
                                            CellKind::Editable, CellKind::Summary};

CellKind kindOf(const QModelIndex& index) {
  return static_cast<CellKind>(index.data(ReportTableModel::kCellKindRole).toInt());
}

Qt::Alignment alignmentOf(const QModelIndex& index) {
  return Qt::Alignment(index.data(Qt::TextAlignmentRole).toInt());
}

// All colours of a palette, in the order of `colourPlace`.
std::vector<CellColors> allColors(const QPalette& palette) {
  std::vector<CellColors> all;
  for (const CellKind kind : kKinds) {
    for (int highlight = 0; highlight < static_cast<int>(kColours.size()); ++highlight) {
      all.push_back(cellColors(kind, palette, highlight));
      all.push_back(selectedColors(all.back(), palette));
    }
  }
  return all;
}

std::size_t colourPlace(CellKind kind, int highlight, bool selected) {
  return (static_cast<std::size_t>(kind) * kColours.size() + static_cast<std::size_t>(highlight)) *
             2 +
         (selected ? 1 : 0);
}

bool isCurrent(const QStyleOptionViewItem& option, const QModelIndex& index) {
  const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
  return view != nullptr && view->currentIndex() == index;
}

int textMargin(const QStyleOptionViewItem& option) {
  const QStyle* style = option.widget != nullptr ? option.widget->style() : QApplication::style();
  return style->pixelMetric(QStyle::PM_FocusFrameHMargin, &option, option.widget) + 1;
}

void frame(QPainter& painter, const QRect& rect, int inset, int width, const QColor& color) {
  const int to = inset + width;
  const QRect outer = rect.adjusted(inset, inset, -inset, -inset);
  const QRect inner = rect.adjusted(to, to, -to, -to);
  painter.fillRect(QRect(outer.topLeft(), QPoint(outer.right(), inner.top() - 1)), color);
  painter.fillRect(QRect(QPoint(outer.left(), inner.bottom() + 1), outer.bottomRight()), color);
  painter.fillRect(
      QRect(QPoint(outer.left(), inner.top()), QPoint(inner.left() - 1, inner.bottom())), color);
  painter.fillRect(
      QRect(QPoint(inner.right() + 1, inner.top()), QPoint(outer.right(), inner.bottom())), color);
}

}  // namespace

QString ReportDelegate::displayText(const QVariant& value, const QLocale&) const {
  QString text = value.toString().left(kLongestShownText);
  // A cell is one line.
  for (QChar& character : text) {
    if (character < u' ') {
      character = u' ';
    }
  }
  return text;
}

void ReportDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
  const bool current = isCurrent(option, index);
  const bool selected = option.state.testFlag(QStyle::State_Selected) && !current;
  const CellKind kind = kindOf(index);
  const CellColors& colors = colorsOf(option, index, kind, selected);
  painter->fillRect(option.rect, colors.background);
  if (colors.frame.isValid() && !current) {
    frame(*painter, option.rect, 1, 1, colors.frame);
  }
  if (current) {
    // The lighter line keeps the frame apart from a highlight of a like colour.
    frame(*painter, option.rect, 0, 2, option.palette.color(QPalette::Highlight));
    frame(*painter, option.rect, 2, 1, option.palette.color(QPalette::Base));
  }
  // In a low row the text reaches over the frame.
  painter->setPen(colors.text);
  paintText(*painter, option, index, kind == CellKind::Summary);
}

void ReportDelegate::paintText(QPainter& painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index, bool bold) const {
  const QString text = displayText(index.data(), QLocale::c());
  if (text.isEmpty()) {
    return;
  }
  CellFont& font = bold ? boldFont_ : plainFont_;
  font.follow(option.font, bold);
  const int margin = textMargin(option);
  font.draw(painter, option.rect.adjusted(margin, 0, -margin, 0), alignmentOf(index), text);
}

QWidget* ReportDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const {
  auto* editor = new CopyPasteLineEdit(parent);
  editor->setFont(option.font);
  editor->setAlignment(alignmentOf(index));
  editor->begin(index.data(Qt::EditRole).toString());
  return editor;
}

void ReportDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  auto* line = qobject_cast<CopyPasteLineEdit*>(editor);
  if (line != nullptr && line->text() == line->begunWith()) {
    line->begin(index.data(Qt::EditRole).toString());
  }
}

void ReportDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                          const QModelIndex&) const {
  if (auto* line = qobject_cast<CopyPasteLineEdit*>(editor)) {
    line->coverCell(option.rect);
  }
}

bool ReportDelegate::eventFilter(QObject*, QEvent*) {
  return false;
}

void ReportDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  if (kindOf(index) == CellKind::Summary) {
    option->font.setBold(true);
    option->fontMetrics = QFontMetrics(option->font);
  }
}

const CellColors& ReportDelegate::colorsOf(const QStyleOptionViewItem& option,
                                           const QModelIndex& index, CellKind kind,
                                           bool selected) const {
  const QPalette& palette = option.palette;
  if (colors_.empty() || palette.cacheKey() != paletteKey_ ||
      palette.currentColorGroup() != paletteGroup_) {
    colors_ = allColors(palette);
    paletteKey_ = palette.cacheKey();
    paletteGroup_ = palette.currentColorGroup();
  }
  const int highlight = index.data(ReportTableModel::kHighlightRole).toInt();
  return colors_[colourPlace(kind, highlight, selected)];
}

}  // namespace vrel
