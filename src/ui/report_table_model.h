// The laid-out report as a table model: the one store behind both tables of the window.
//
// Model columns are report columns, the label columns first. Nothing is stored per cell; every
// text is made from the grid when it is asked for.
#pragma once

#include <QAbstractTableModel>
#include <functional>

#include "model/format_settings.h"
#include "model/report_grid.h"

namespace vrel {

/// What a cell is to the user; decides how it looks and whether it can be edited.
/// `Summary` is every cell of a summary's row or column, the labels of the row included.
enum class CellKind { Label, Empty, ReadOnly, Editable, Summary };

/// What a cell shows.
struct DataTableItem {
  std::optional<CellRef> value;
  /// 1 for a value that can be edited, 0 for all else.
  int role = 0;
};

/// Takes a typed text for a value; false when the text was refused, after saying why.
using EditValue = std::function<bool(CellRef, const QString&)>;

class ReportTableModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  /// Role of a cell's `CellKind`, as an int.
  static constexpr int kCellKindRole = Qt::UserRole;
  /// Role of a data cell's highlight, as a position in the list of colours; 0 is without colour.
  static constexpr int kHighlightRole = Qt::UserRole + 1;

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
  DataTableItem item(int row, int column) const;
  /// Whether a cell shows a value or a summary's number, whatever its text.
  bool isFilled(int row, int column) const;
  /// Takes the edits from now on; without it every edit is refused.
  void setEdit(EditValue edit) { edit_ = std::move(edit); }
  /// Shows the table's values as they are now. The layout is as it was.
  void valuesChanged();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  /// With `Qt::EditRole`: an edit of the cell's value. A text that is the one that editing begins
  /// with is no edit: false.
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  std::optional<CellRef> shownValue(int row, int column) const;
  bool isSummary(int row, int column) const;
  Qt::Alignment alignment(int row, int column) const;
  int highlight(int row, int column) const;
  QString shownText(int row, int column) const;
  QString typedFirst(int row, int column) const;

  const FormatSettings& settings_;
  ReportGrid grid_;
  EditValue edit_;
};

}  // namespace vrel
