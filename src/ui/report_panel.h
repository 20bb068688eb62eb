// The report in its two tables, with all that is done in them: edits, copying and pasting, finding.
#pragma once

#include <QWidget>

#include "ui/edit_desk.h"
#include "ui/find_bar.h"
#include "ui/frozen_column_tables.h"

namespace vrel {

class ReportPanel : public QWidget {
  Q_OBJECT

 public:
  /// Everything given must outlive the panel.
  ReportPanel(EditorContext& context, ReportTableModel& model, RunDialog runDialog,
              QWidget* window);

  FrozenColumnTablesImpl& tables() { return *tables_; }
  EditDesk& edits() { return *edits_; }

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
  void toggleHidden(int field);

  EditorContext& context_;
  ReportTableModel& model_;
  FrozenColumnTablesImpl* tables_;
  EditDesk* edits_;
  FindBar* findBar_;
};

}  // namespace vrel
