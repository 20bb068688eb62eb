// The laid-out report as a table model: the one store behind both tables of the window.
//
// Model columns are report columns, the label columns first. Nothing is stored per cell; every
// text is made from the grid when it is asked for.
#pragma once

#include <QAbstractTableModel>

#include "model/format_settings.h"
#include "model/report_grid.h"

namespace vrel {

/// What a cell is to the user; decides how it looks and whether it can be edited.
/// `Summary` is every cell of a summary's row or column, the labels of the row included.
enum class CellKind { Label, Empty, ReadOnly, Editable, Summary };

class ReportTableModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  /// Role of a cell's `CellKind`, as an int.
  static constexpr int kCellKindRole = Qt::UserRole;

  /// The settings are read at each text; they must outlive the model.
  explicit ReportTableModel(const FormatSettings& settings, QObject* parent = nullptr);

  /// Shows another layout in place of the present one.
  void setGrid(ReportGrid grid);
  const ReportGrid& grid() const { return grid_; }
  const FormatSettings& settings() const { return settings_; }

  /// Shows the values of these tuples anew, and the summaries in which they take part.
  void updateValues(std::span<const std::uint32_t> tuples);

  int labelColumns() const;
  /// Lines of the tallest column heading.
  int headingLines() const;
  CellKind cellKind(int row, int column) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  std::optional<CellRef> shownValue(int row, int column) const;
  bool isSummary(int row, int column) const;
  Qt::Alignment alignment(int row, int column) const;

  const FormatSettings& settings_;
  ReportGrid grid_;
};

}  // namespace vrel
