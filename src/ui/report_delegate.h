// How a cell looks: what can be edited is told apart at a glance, in light and dark palettes, and
// summaries stand out.
#pragma once

#include <QStyledItemDelegate>

#include "ui/report_table_model.h"

namespace vrel {

struct CellColors {
  QColor background;
  QColor text;
};

/// The colours of a cell within a palette.
CellColors cellColors(CellKind kind, const QPalette& palette);

class ReportDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QString displayText(const QVariant& value, const QLocale& locale) const override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

}  // namespace vrel
