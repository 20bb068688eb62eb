// The report as two tables that scroll as one: the label columns stay in place at the left, the
// data columns move beside them.
#pragma once

#include <QFrame>
#include <QWidget>

#include "ui/data_table.h"

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
  /// Fits headings and widths to the report that the model shows now.
  void fitToReport();

 private slots:
  /// Gives a row of the other table the height that it got in one table.
  void sizeHandler(int section, int oldSize, int newSize);

 private:
  void buildLayout();
  void connectTables();
  void fitFrozenTable();
  void alignScrollBars();

  ReportTableModel& report_;
  FrozenColumnTableFrame* frame_;
  DataTable* frozen_;
  DataTable* regular_;
  // Stands under the frozen table in place of a scroll bar that it does not need.
  QWidget* barFiller_;
  bool hasFrozen_ = true;
};

}  // namespace vrel
