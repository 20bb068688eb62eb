#include "ui/data_table.h"

#include "ui/report_delegate.h"

namespace vrel {

namespace {

// Every row has this height until the user changes one: measuring a million rows takes too long.
int usualRowHeight(const QFontMetrics& metrics) {
  return metrics.height() + metrics.height() / 3;
}

}  // namespace

DataTable::DataTable(ReportTableModel& report, ReportPart part, QWidget* parent)
    : QTableView(parent), heading_(new ReportHeader(this)) {
  setHorizontalHeader(heading_);
  setItemDelegate(new ReportDelegate(this));
  setWordWrap(false);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  setFrameShape(QFrame::NoFrame);
  verticalHeader()->setHighlightSections(false);
  verticalHeader()->setMinimumSectionSize(fontMetrics().height());
  verticalHeader()->setDefaultSectionSize(usualRowHeight(fontMetrics()));
  setModel(new ColumnRangeModel(report, part, this));
}

void DataTable::setColumnWidths(const std::vector<int>& widths) {
  if (widths.empty()) {
    return;
  }
  // With updates on, the header would look up its sections' places after every single change.
  heading_->setUpdatesEnabled(false);
  const int columns = heading_->count();
  for (int column = 0; column < columns; ++column) {
    heading_->resizeSection(column, widths[static_cast<std::size_t>(column) % widths.size()]);
  }
  heading_->setUpdatesEnabled(true);
}

}  // namespace vrel
