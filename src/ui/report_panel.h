// The report in its two tables, with all that is done in them: edits, copying and pasting, finding.
#pragma once

#include <QWidget>

#include "ui/edit_desk.h"
#include "ui/find_bar.h"
#include "ui/frozen_column_tables.h"

namespace vrel {

/// Where the user is in a report.
struct KeptPlace {
  /// Nothing in a report without cells.
  std::optional<GridPlace> place;
  /// The value that stands there, if one does.
  std::optional<CellRef> cell;
  /// The columns of labels, which the place counts.
  std::size_t labelColumns = 0;
  /// The first row that is in sight.
  int firstRow = 0;
  /// The table's; places of values hold as long as it is the same.
  std::uint64_t arrangement = 0;
};

class ReportPanel : public QWidget {
  Q_OBJECT

 public:
  /// Everything given must outlive the panel.
  ReportPanel(EditorContext& context, ReportTableModel& model, RunDialog runDialog,
              QWidget* window);

  FrozenColumnTablesImpl& tables() { return *tables_; }
  EditDesk& edits() { return *edits_; }
  const ReportGrid& grid() const { return model_.grid(); }

  /// The place to return to after the report was laid out anew.
  KeptPlace keptPlace() const;
  /// Goes to the value that stood at the place, wherever it is now, or else to that place, and
  /// scrolls it to where it was in the window.
  void returnTo(const KeptPlace& kept);

  void copySelection();
  void pasteClipboard();

 signals:
  /// The report has to be laid out again.
  void layoutNeeded();
  /// A z page is to be shown.
  void pageNeeded(int page);

 private:
  void addShortcuts();
  void connectTables();
  bool leaveUntouchedEditor();
  void undo();
  void redo();
  void find(const QString& text, bool forth);
  void goTo(CellRef cell);
  std::optional<CellRef> valueAt(const std::optional<GridPlace>& place) const;
  void toggleHidden(int field);

  EditorContext& context_;
  ReportTableModel& model_;
  FrozenColumnTablesImpl* tables_;
  EditDesk* edits_;
  FindBar* findBar_;
};

}  // namespace vrel
