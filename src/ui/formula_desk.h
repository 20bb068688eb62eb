// The dialogs over the view's formulas, and what is imported from other view files.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>

#include "expr/ui/expressions_dialog.h"
#include "expr/ui/formula_edit.h"
#include "expr/ui/functions_dialog.h"
#include "expr/ui/highlighting_dialog.h"
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
  FormulaHost host();
  /// Makes a list when it is first wanted.
  template <typename List>
  List& listDialog(List*& dialog);
  void carryOut(const FormulaChange& change);
  void insertFunction(const std::string& function);
  /// Reads the fields of a view file that the user chooses.
  std::optional<std::vector<FieldDef>> chooseFields(std::string_view caption, std::string& name);

  EditorContext& context_;
  RunDialog runDialog_;
  AskForFile chooseOpenFile_;
  ViewChanger changer_;
  QWidget* window_;
  // Made when they are first wanted, owned by the window.
  ExpressionsDialogImpl* expressions_ = nullptr;
  HighlightingDialogImpl* highlighting_ = nullptr;
  FunctionsDialog* functions_ = nullptr;
  // The formula that the user was in last.
  QPointer<FormulaEdit> formula_;
};

}  // namespace vrel
