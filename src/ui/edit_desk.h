// The road of edits in the window: from what is typed, pasted or taken back to the report, and back
// to the user with what could not be done.
#pragma once

#include <QDialog>
#include <QObject>
#include <functional>
#include <optional>

#include "expr/fill_cells.h"
#include "expr/paste.h"
#include "expr/report_edit.h"
#include "ui/editor.h"
#include "ui/report_table_model.h"

namespace vrel {

/// Shows a dialog and waits until the user closes it.
using RunDialog = std::function<void(QDialog& dialog)>;

class EditDesk : public QObject {
  Q_OBJECT

 public:
  /// Everything given must outlive the object; dialogs belong to the window.
  EditDesk(EditorContext& context, ReportTableModel& model, RunDialog runDialog, QWidget* window);

  /// Sets a cell from a text as it was typed; a refusal is shown. Returns whether it was taken.
  bool type(CellRef cell, const QString& text);
  /// Puts the shown texts of a region on the clipboard and remembers the region. Where that would
  /// take too much memory the user is told, and the clipboard stays as it is.
  void copy(const CopiedRegion& region);
  /// Pastes what the clipboard holds; refusals and warnings are shown.
  void paste(const PasteTarget& target);
  void undo();
  void redo();
  void recalculateInverse();
  /// Fills cells; what keeps it from being done, and how many cells refuse the text, is shown.
  void fill(const FillRequest& request);
  /// Forgets what can be taken back: the table holds other cells now.
  void forgetEdits();

 public slots:
  /// Another program may have put something on the clipboard.
  void clipboardChanged();

 signals:
  /// Keys have changed: the report has to be laid out again.
  void layoutNeeded();
  /// An edit was taken back or done again; `cell` is the first of its cells.
  void stepped(vrel::CellRef cell);

 private:
  using Replay = std::optional<EditOutcome>(ReportEditor& editor);

  bool copyTexts(const CopiedRegion& region, CopiedBlock& block);
  void show(const EditOutcome& outcome);
  void step(Replay replay);
  void showRefusal(const FieldDef& field, const QString& text, const CellEdit& edit);
  void warnOfLostMessage();
  void showFailedInverse(const FieldDef& field);
  void warnOfFill(std::string_view text, const FillOutcome& outcome);
  void warnOfPaste(const PastePlan& plan, const PasteOutcome& outcome);

  EditorContext& context_;
  ReportTableModel& model_;
  RunDialog runDialog_;
  QWidget* window_;
  ReportEditor editor_;
  // What this window put on the clipboard, as long as it is there.
  std::optional<CopiedBlock> copied_;
  QByteArray copyMark_;
};

}  // namespace vrel
