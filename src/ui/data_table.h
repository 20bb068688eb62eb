// One of the two tables of the report.
#pragma once

#include <QTableView>
#include <vector>

#include "ui/column_range_model.h"
#include "ui/report_header.h"

namespace vrel {

class DataTable : public QTableView {
  Q_OBJECT

 public:
  /// Shows one part of the report, which must outlive the table.
  DataTable(ReportTableModel& report, ReportPart part, QWidget* parent = nullptr);

  ReportHeader* heading() const { return heading_; }
  /// Gives column c the width `widths[c % widths.size()]`.
  void setColumnWidths(const std::vector<int>& widths);

 private:
  ReportHeader* heading_;
};

}  // namespace vrel
