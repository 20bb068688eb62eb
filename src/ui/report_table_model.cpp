#include "ui/report_table_model.h"

#include <algorithm>

#include "expr/colours.h"
#include "expr/ui/to_text.h"
#include "model/edit_text.h"
#include "ui/tool_tip.h"

namespace vrel {

namespace {

// The toolkit counts a table's pixels in an int: beyond these sizes, with rows and columns as tall
// and wide as users may make them, its scrolling would overflow.
constexpr std::size_t kMaxShownRows = 20'000'000;
constexpr std::size_t kMaxShownColumns = 2'000'000;

int shownCount(std::size_t count, std::size_t most) {
  return static_cast<int>(std::min(count, most));
}

// Columns are not made wide enough for long texts, which are read in a tool tip.
QVariant toolTipOf(const QString& text) {
  constexpr qsizetype kLongestShownWhole = 30;
  return text.size() > kLongestShownWhole ? QVariant(plainToolTip(text.trimmed())) : QVariant();
}

}  // namespace

ReportTableModel::ReportTableModel(const FormatSettings& settings, QObject* parent)
    : QAbstractTableModel(parent), settings_(settings) {}

void ReportTableModel::setGrid(ReportGrid grid) {
  beginResetModel();
  grid_ = std::move(grid);
  endResetModel();
}

void ReportTableModel::updateValues(std::span<const std::uint32_t> tuples) {
  refreshSummaries(grid_, tuples);
  valuesChanged();
}

int ReportTableModel::labelColumns() const {
  return std::min(shownCount(grid_.labelColumns, kMaxShownColumns), columnCount());
}

int ReportTableModel::headingLines() const {
  std::ptrdiff_t lineFeeds = 0;
  // A report's headings agree in height; the first data column shows every level of it.
  for (const int column : {0, labelColumns()}) {
    if (column < columnCount()) {
      const auto heading = columnHeading(grid_, settings_, static_cast<std::size_t>(column));
      lineFeeds = std::max(lineFeeds, std::count(heading.begin(), heading.end(), '\n'));
    }
  }
  return static_cast<int>(lineFeeds) + 1;
}

CellKind ReportTableModel::cellKind(int row, int column) const {
  if (isSummary(row, column)) {
    return CellKind::Summary;
  }
  if (column < labelColumns()) {
    return CellKind::Label;
  }
  const auto value = shownValue(row, column);
  if (!value) {
    return CellKind::Empty;
  }
  const auto classification = grid_.table->field(value->field).classification;
  return classification == Classification::DataReadWrite ? CellKind::Editable : CellKind::ReadOnly;
}

DataTableItem ReportTableModel::item(int row, int column) const {
  return {.value = shownValue(row, column),
          .role = cellKind(row, column) == CellKind::Editable ? 1 : 0};
}

bool ReportTableModel::isFilled(int row, int column) const {
  return shownValue(row, column) ||
         summaryAt(grid_, static_cast<std::size_t>(row), static_cast<std::size_t>(column));
}

void ReportTableModel::valuesChanged() {
  if (rowCount() > 0 && columnCount() > 0) {
    emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
  }
}

int ReportTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : shownCount(grid_.rows, kMaxShownRows);
}

int ReportTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : shownCount(grid_.columns, kMaxShownColumns);
}

QVariant ReportTableModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
    return {};
  }
  switch (role) {
    case Qt::DisplayRole:
      return shownText(index.row(), index.column());
    case Qt::EditRole:
      return typedFirst(index.row(), index.column());
    case Qt::ToolTipRole:
      return toolTipOf(shownText(index.row(), index.column()));
    case Qt::TextAlignmentRole:
      return static_cast<int>(alignment(index.row(), index.column()));
    case kCellKindRole:
      return static_cast<int>(cellKind(index.row(), index.column()));
    case kHighlightRole:
      return highlight(index.row(), index.column());
    default:
      return {};
  }
}

bool ReportTableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || !index.isValid()) {
    return false;
  }
  const DataTableItem edited = item(index.row(), index.column());
  const QString text = value.toString();
  if (edited.role != 1 || !edit_ || text == typedFirst(index.row(), index.column())) {
    return false;
  }
  // The report may have been laid out again on the way: the index is not to be used any more.
  if (!edit_(*edited.value, text)) {
    return false;
  }
  valuesChanged();
  return true;
}

Qt::ItemFlags ReportTableModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags usual = QAbstractTableModel::flags(index);
  const bool editable = index.isValid() && item(index.row(), index.column()).role == 1;
  return editable ? usual | Qt::ItemIsEditable : usual;
}

QVariant ReportTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if ((role != Qt::DisplayRole && role != Qt::ToolTipRole) || section < 0) {
    return {};
  }
  if (orientation == Qt::Vertical) {
    return role == Qt::DisplayRole && section < rowCount() ? QVariant(section + 1) : QVariant();
  }
  if (section >= columnCount()) {
    return {};
  }
  const QString heading =
      toText(columnHeading(grid_, settings_, static_cast<std::size_t>(section)));
  return role == Qt::DisplayRole ? QVariant(heading) : toolTipOf(heading);
}

std::optional<CellRef> ReportTableModel::shownValue(int row, int column) const {
  const auto gridRow = static_cast<std::size_t>(row);
  const auto gridColumn = static_cast<std::size_t>(column);
  return column < labelColumns() ? labelAt(grid_, gridRow, gridColumn)
                                 : cellAt(grid_, gridRow, gridColumn);
}

bool ReportTableModel::isSummary(int row, int column) const {
  const LineKind down = rowLineAt(grid_, static_cast<std::size_t>(row)).kind;
  if (column < labelColumns() || down == LineKind::Blank) {
    return down == LineKind::Summary;
  }
  const LineKind across = columnLineAt(grid_, static_cast<std::size_t>(column)).kind;
  return across != LineKind::Blank && (down == LineKind::Summary || across == LineKind::Summary);
}

Qt::Alignment ReportTableModel::alignment(int row, int column) const {
  const auto value = shownValue(row, column);
  // Only numbers are summed up, so that a summary stands below or beside numbers.
  const bool right = value ? grid_.table->field(value->field).hasNumbers()
                           : column >= labelColumns() && isSummary(row, column);
  return (right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

int ReportTableModel::highlight(int row, int column) const {
  const auto value = column < labelColumns() ? std::nullopt : shownValue(row, column);
  const int colour = value ? highlightOf(*grid_.table, value->tuple, value->field) : 0;
  return colour < static_cast<int>(kColours.size()) ? colour : 0;
}

QString ReportTableModel::shownText(int row, int column) const {
  return toText(
      cellText(grid_, settings_, static_cast<std::size_t>(row), static_cast<std::size_t>(column)));
}

QString ReportTableModel::typedFirst(int row, int column) const {
  const auto value = shownValue(row, column);
  return value ? toText(editText(grid_.table->value(value->tuple, value->field), settings_))
               : shownText(row, column);
}

}  // namespace vrel
