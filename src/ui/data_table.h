// One of the two tables of the report. It edits its cells and says what the user does with keys and
// mouse; moves and selections reach across both tables and are made by their owner.
#pragma once

#include <QPointer>
#include <QTableView>
#include <map>
#include <vector>

#include "ui/column_range_model.h"
#include "ui/copy_paste_line_edit.h"
#include "ui/grid_moves.h"
#include "ui/report_header.h"

namespace vrel {

/// A cell in a table's own columns.
struct TablePlace {
  int row = 0;
  int column = 0;

  bool operator==(const TablePlace&) const = default;
};

class DataTable : public QTableView {
  Q_OBJECT

 public:
  /// Shows one part of the report, which must outlive the table.
  DataTable(ReportTableModel& report, ReportPart part, QWidget* parent = nullptr);

  ReportHeader* heading() const { return heading_; }
  const ColumnRangeModel& part() const { return *part_; }
  /// Gives column c the width `widths[c % widths.size()]`, but for those that the user has given
  /// another one.
  void setColumnWidths(const std::vector<int>& widths);
  /// Gives a column a width as the user would.
  void setUserWidth(int column, int width);
  /// Gives a row a height as the user would.
  void setUserHeight(int row, int height);
  /// Columns and rows have no sizes of the user's any more.
  void forgetUserSizes();
  /// Scales the font, the rows and the user's sizes; in percent of the parent's font. The widths
  /// have to be set again.
  void setZoom(int percent);

  DataTableItem item(int row, int column) const { return part_->item(row, column); }
  /// The editor that is open in a cell; null without one.
  CopyPasteLineEdit* cellEditor() const { return editor_; }
  /// Opens the editor in the current cell, if it can be edited, behind its text.
  void editCurrentCell();
  /// Ends the editing as if the user had gone elsewhere. Returns false when the text was refused.
  bool endEditing();

  /// Typing does not look for a row: that would make the text of every one of them.
  void keyboardSearch(const QString& text) override;
  void selectAll() override;
  void reset() override;
  using QTableView::edit;

 signals:
  /// A mouse button was pressed and released over a cell.
  void clicked(int row, int column, int button, const QPoint& place);
  void currentChanged(int row, int column);
  /// A typed text was taken or refused.
  void valueChanged(int row, int column);
  /// The copy and paste menu is wanted for a cell, at a place of the screen.
  void contextMenuRequested(int row, int column, const QPoint& place);
  /// The texts of a report field are to be hidden, or shown again.
  void hideToggled(int field);
  void copyRequested();
  void pasteRequested();
  void moveRequested(GridMove move, bool extends);
  void selectAllRequested();
  void lineSelectionRequested(Qt::Orientation lines);
  /// The table has got the keyboard without having the cursor.
  void cursorElsewhere();
  /// The keyboard is to go on behind the report, or before it.
  void leaveRequested(bool forth);
  void zoomRequested(int steps);
  void zoomResetRequested();
  /// The user, or something else but `setUserHeight`, gave a row a height.
  void rowResized(int row, int oldHeight, int newHeight);

 public slots:
  void slot_CurrentChanged(int row, int column);
  /// Opens the editor again in the cell whose value changed, if it is still the one being edited.
  void slot_ValueChanged(int row, int column);
  /// Opens the menu for copying and pasting over a cell, at a place of the screen.
  void slot_CopyPasteMenuRequested(int row, int column, QPoint place);
  void tableCellsCopy();
  void tableCellsPaste();
  /// Sees whether there is something to paste now.
  void clipboardChanged();
  /// Hides or shows the field of the column whose menu was opened last.
  void slot_ToggleState();

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
  void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override;

 protected slots:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void commitData(QWidget* editor) override;
  void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

 private:
  enum class Outcome { Unchanged, Accepted, Refused };

  bool typeInto(const QKeyEvent& event);
  bool handleShortcut(const QKeyEvent& event);
  void openEditor(const QModelIndex& index);
  void endEditing(EditEnd end);
  bool shows(TablePlace place, std::optional<CellRef> value) const;
  Outcome commitText();
  void leaveEditor();
  void giveUpEditor();
  void zoomByWheel(int turn);
  void requestColumnMenu(const QPoint& place);
  /// Opens the menu of a column at a place in the heading; false when the column has none.
  bool openColumnMenu(int column, const QPoint& place);
  void takeColumnWidth(int column, int width);
  void takeRowHeight(int row, int oldHeight, int newHeight);
  QModelIndex nearestCell(QPoint place) const;
  QModelIndex anchorOfSelection() const;
  void sizeRows();

  ReportHeader* heading_;
  ColumnRangeModel* part_;
  int zoom_ = 100;
  // What a wheel was turned since the last step, in its own unit.
  int zoomTurn_ = 0;
  // The sizes that the user gave, in hundredths of a pixel at 100 percent.
  std::map<int, int> userWidths_;
  std::map<int, int> userHeights_;
  bool sizing_ = false;

  QPointer<CopyPasteLineEdit> editor_;
  // The cell being edited; none as soon as the user has left it.
  std::optional<TablePlace> edited_;
  // What was typed last and refused.
  std::optional<QString> refused_;
  // While a text is being taken, which may open a message box, the editor's loss of the focus
  // means nothing.
  bool committing_ = false;

  QPoint mouseAt_;
  QPersistentModelIndex pressed_;
  QPersistentModelIndex anchor_;
  int menuField_ = -1;
  bool canPaste_ = false;
};

}  // namespace vrel
