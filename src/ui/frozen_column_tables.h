// The report as two tables that scroll as one: the label columns stay in place at the left, the
// data columns move beside them.
#pragma once

#include <QFrame>
#include <QWidget>

#include "ui/data_table.h"
#include "ui/grid_selection.h"

namespace vrel {

/// Holds the two tables; the frozen one never takes more than its share of the width.
class FrozenColumnTableFrame : public QFrame {
  Q_OBJECT

 public:
  using QFrame::QFrame;

 signals:
  void resized();

 protected:
  void resizeEvent(QResizeEvent* event) override;
};

/// What makes two reports show the same columns.
struct ReportColumns {
  std::vector<int> xFields;
  std::vector<int> yFields;
  std::vector<int> dataFields;
  bool dataInColumns = false;
  int count = 0;

  bool operator==(const ReportColumns&) const = default;
};

class FrozenColumnTablesImpl : public QWidget {
  Q_OBJECT

 public:
  /// The report must outlive the widget.
  explicit FrozenColumnTablesImpl(ReportTableModel& report, QWidget* parent = nullptr);

  DataTable* frozenColumnTable() const { return frozen_; }
  DataTable* regularTable() const { return regular_; }
  /// A report without label columns has no frozen table.
  bool hasFrozenTable() const { return hasFrozen_; }
  /// The text of a report column's cell, from the table that shows the column.
  QString cellText(int row, int reportColumn) const;
  /// Fits headings and widths to the report that the model shows now. When it has the columns of
  /// the one shown before, the sizes that the user gave, the current cell, the selection and the
  /// scroll position stay.
  void fitToReport();

  /// The cell that has the cursor, in report columns; nothing in a report without cells.
  std::optional<GridPlace> currentPlace() const { return selection_->place(); }
  /// Goes to a cell, or the nearest that there is, and scrolls to it.
  void setCurrentPlace(GridPlace place);
  /// The selected block, in report columns: dragged, extended by Shift, whole rows or columns; the
  /// current cell alone when nothing more is selected. Nothing in a report without cells.
  std::optional<GridArea> selection() const { return selection_->block(); }
  /// Whether the selection is of whole rows, or of whole columns; everything is both.
  bool selectsWholeRows() const { return selection_->hasWholeRows(); }
  bool selectsWholeColumns() const { return selection_->hasWholeColumns(); }
  /// The table that has the cursor.
  DataTable* activeTable() const { return &selection_->activeTable(); }
  /// Ends the editing in a cell, if there is any, as if the user had gone elsewhere. Returns false
  /// when the text was refused.
  bool endEditing();

  /// Size of cells, headings and row numbers in percent, from 50 to 300.
  int zoom() const { return zoom_; }
  void setZoom(int percent);

 signals:
  /// The current cell or the selection is another one.
  void selectionChanged();
  /// The texts of a report field are to be hidden, or shown again.
  void hideToggled(int field);
  void zoomChanged(int percent);

 public slots:
  /// Readies a clicked cell for typing: brings it wholly into sight and gives it the keyboard.
  void ensureCellEditable(int row, int column, int button, const QPoint& place);

 protected:
  void changeEvent(QEvent* event) override;

 private slots:
  /// Gives a row of the other table the height that it got in one table.
  void sizeHandler(int section, int oldSize, int newSize);

 private:
  void buildLayout();
  void connectTables();
  void connectRequests(DataTable& table);
  void connectHeadings(DataTable& table);
  void move(const DataTable& table, GridMove move, bool extends);
  GridShape shape() const;
  void leave(bool forth);
  void followSelection();
  void fitColumns();
  void autosize(DataTable& table, int column);
  void applyZoom();
  void fitFrozenTable();
  void alignScrollBars();

  ReportTableModel& report_;
  FrozenColumnTableFrame* frame_;
  DataTable* frozen_;
  DataTable* regular_;
  // Stands under the frozen table in place of a scroll bar that it does not need.
  QWidget* barFiller_;
  bool hasFrozen_ = true;
  GridSelection* selection_;
  ReportColumns columns_;
  int zoom_ = 100;
};

}  // namespace vrel
