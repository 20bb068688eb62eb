// The dialogs over the view's formulas, and what is imported from other view files.
#pragma once

#include <QObject>
#include <QWidget>

#include "ui/edit_desk.h"
#include "ui/editor.h"
#include "ui/file_dialog.h"
#include "ui/view_changer.h"

namespace vrel {

/// Opens the dialogs and carries out what the user decides in them. None of them is modal; they
/// show the view as it is after each layout.
class FormulaDesk : public QObject {
  Q_OBJECT

 public:
  /// Everything given must outlive the object; dialogs belong to the window.
  FormulaDesk(EditorContext& context, RunDialog runDialog, AskForFile chooseOpenFile,
              ViewChanger changer, QWidget* window);

  void configureExpressions();
  void configureHighlighting();
  void listFunctions();
  void importExpressions();
  void importHighlighting();

  /// The report was laid out anew: open dialogs follow.
  void reportShown();

 private:
  EditorContext& context_;
  RunDialog runDialog_;
  AskForFile chooseOpenFile_;
  ViewChanger changer_;
  QWidget* window_;
};

}  // namespace vrel
