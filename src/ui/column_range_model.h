// The part of the report that one of the two tables shows.
#pragma once

#include <QAbstractProxyModel>

#include "ui/report_table_model.h"

namespace vrel {

enum class ReportPart { Labels, Data };

/// The label columns or the data columns of a `ReportTableModel`. An offset alone tells the two
/// apart, so that a report of many columns costs nothing per column.
class ColumnRangeModel : public QAbstractProxyModel {
  Q_OBJECT

 public:
  /// The report must outlive the model.
  ColumnRangeModel(ReportTableModel& report, ReportPart part, QObject* parent = nullptr);

  /// Report column of this model's first column.
  int firstColumn() const;
  /// Report column of one of this model's columns.
  std::size_t reportColumn(int column) const;
  const ReportTableModel& report() const { return report_; }
  DataTableItem item(int row, int column) const;

  QModelIndex mapToSource(const QModelIndex& proxyIndex) const override;
  QModelIndex mapFromSource(const QModelIndex& sourceIndex) const override;
  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& child) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  void forwardDataChange(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                         const QList<int>& roles);

  ReportTableModel& report_;
  ReportPart part_;
};

}  // namespace vrel
