#include "ui/column_range_model.h"

#include <algorithm>

namespace vrel {

ColumnRangeModel::ColumnRangeModel(ReportTableModel& report, ReportPart part, QObject* parent)
    : QAbstractProxyModel(parent), report_(report), part_(part) {
  setSourceModel(&report);
  connect(&report, &QAbstractItemModel::modelAboutToBeReset, this, [this] { beginResetModel(); });
  connect(&report, &QAbstractItemModel::modelReset, this, [this] { endResetModel(); });
  connect(&report, &QAbstractItemModel::dataChanged, this, &ColumnRangeModel::forwardDataChange);
}

int ColumnRangeModel::firstColumn() const {
  return part_ == ReportPart::Labels ? 0 : report_.labelColumns();
}

std::size_t ColumnRangeModel::reportColumn(int column) const {
  return static_cast<std::size_t>(column) + static_cast<std::size_t>(firstColumn());
}

DataTableItem ColumnRangeModel::item(int row, int column) const {
  return report_.item(row, column + firstColumn());
}

QModelIndex ColumnRangeModel::mapToSource(const QModelIndex& proxyIndex) const {
  return proxyIndex.isValid() ? report_.index(proxyIndex.row(), proxyIndex.column() + firstColumn())
                              : QModelIndex();
}

QModelIndex ColumnRangeModel::mapFromSource(const QModelIndex& sourceIndex) const {
  return sourceIndex.isValid() ? index(sourceIndex.row(), sourceIndex.column() - firstColumn())
                               : QModelIndex();
}

QModelIndex ColumnRangeModel::index(int row, int column, const QModelIndex& parent) const {
  return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex();
}

QModelIndex ColumnRangeModel::parent(const QModelIndex&) const {
  return {};
}

int ColumnRangeModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : report_.rowCount();
}

int ColumnRangeModel::columnCount(const QModelIndex& parent) const {
  if (parent.isValid()) {
    return 0;
  }
  const int labels = report_.labelColumns();
  return part_ == ReportPart::Labels ? labels : report_.columnCount() - labels;
}

QVariant ColumnRangeModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Vertical) {
    return report_.headerData(section, orientation, role);
  }
  if (section < 0 || section >= columnCount()) {
    return {};
  }
  return report_.headerData(section + firstColumn(), orientation, role);
}

void ColumnRangeModel::forwardDataChange(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                                         const QList<int>& roles) {
  const int left = std::max(topLeft.column() - firstColumn(), 0);
  const int right = std::min(bottomRight.column() - firstColumn(), columnCount() - 1);
  if (left <= right) {
    emit dataChanged(index(topLeft.row(), left), index(bottomRight.row(), right), roles);
  }
}

}  // namespace vrel
