// The one cursor and the one selection of the two tables. Whatever changes a table's selection, the
// mouse, a key or an assistive tool, is taken up here, and the other table follows.
#pragma once

#include <QObject>
#include <optional>

#include "model/grid_area.h"
#include "ui/data_table.h"

namespace vrel {

class GridSelection : public QObject {
  Q_OBJECT

 public:
  /// The tables must outlive it; the report is the one that they show.
  GridSelection(const ReportTableModel& report, DataTable& labels, DataTable& data,
                QObject* parent = nullptr);

  /// The cell gone to last, in report columns; nothing in a report without cells.
  std::optional<GridPlace> place() const;
  /// The selected block, which is the place alone where only a cell was gone to.
  std::optional<GridArea> block() const;
  bool hasWholeRows() const { return state_.rows; }
  bool hasWholeColumns() const { return state_.columns; }
  /// The table in which the place lies.
  DataTable& activeTable() const;

  /// Goes to a cell, or to the nearest that there is.
  void setPlace(GridPlace place);
  /// Chooses the block from where the present one began to a cell of the same table.
  void extendTo(GridPlace place);
  /// Chooses whole rows, or columns of one table; extending goes on from the present choice.
  void pressRow(std::size_t row, bool extends);
  void pressColumn(std::size_t column, bool extends);
  /// Chooses the rows, or the columns, of what is chosen now.
  void chooseRows();
  void chooseColumns();
  void chooseAll();
  /// Shows the selection in the tables, cut to the report as it is now. After a new layout this,
  /// or going to a place, is due.
  void restore();
  /// Goes to a cell of a report that has other cells now; that is a change, whatever the place.
  void restart(GridPlace place);

 signals:
  void changed();

 private:
  struct State {
    GridPlace anchor;
    GridPlace place;
    bool rows = false;
    bool columns = false;

    bool operator==(const State&) const = default;
  };

  void adopt(DataTable& table);
  void set(const State& state);
  void show();
  void showIn(DataTable& table);
  GridPlace placeOf(const DataTable& table, int row, int column) const;
  /// The cell nearest to a place, within the part of another one.
  GridPlace inPartOf(GridPlace place, GridPlace part) const;
  GridArea area() const;
  bool isEmpty() const;
  std::size_t rowCount() const { return static_cast<std::size_t>(report_.rowCount()); }
  std::size_t columnCount() const { return static_cast<std::size_t>(report_.columnCount()); }
  std::size_t labelCount() const { return static_cast<std::size_t>(report_.labelColumns()); }

  const ReportTableModel& report_;
  DataTable& labels_;
  DataTable& data_;
  State state_;
  // The tables are being told, or know nothing: they need not be listened to.
  bool showing_ = false;
};

}  // namespace vrel
