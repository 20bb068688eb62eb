// How a cell looks, and the editor that opens in it.
#pragma once

#include <QStyledItemDelegate>

#include "ui/cell_colors.h"
#include "ui/report_table_model.h"

namespace vrel {

class ReportDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QString displayText(const QVariant& value, const QLocale& locale) const override;
  /// Paints the cell. The current one is framed and keeps its colours, so that what is typed over
  /// can be seen; other selected ones take the colour of selections.
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
  /// Follows the value as long as nothing is typed.
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const override;
  /// The editor handles its keys itself.
  bool eventFilter(QObject* editor, QEvent* event) override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
  const CellColors& colorsOf(const QStyleOptionViewItem& option, const QModelIndex& index,
                             bool selected) const;

  // The colours by kind, highlight and selection for the palette seen last: every cell of a window
  // is painted with the same one.
  mutable std::vector<CellColors> colors_;
  mutable qint64 paletteKey_ = 0;
  mutable QPalette::ColorGroup paletteGroup_ = QPalette::NColorGroups;
};

}  // namespace vrel
