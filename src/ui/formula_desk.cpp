#include "ui/formula_desk.h"

#include <QApplication>
#include <utility>

#include "expr/import_formulas.h"
#include "expr/recalculation.h"
#include "ui/view_files.h"

namespace vrel {

FormulaDesk::FormulaDesk(EditorContext& context, RunDialog runDialog, AskForFile chooseOpenFile,
                         ViewChanger changer, QWidget* window)
    : QObject(window),
      context_(context),
      runDialog_(std::move(runDialog)),
      chooseOpenFile_(std::move(chooseOpenFile)),
      changer_(std::move(changer)),
      window_(window) {
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    if (auto* formula = qobject_cast<FormulaEdit*>(now)) {
      formula_ = formula;
    }
  });
}

FormulaHost FormulaDesk::host() {
  return {.view = context_.view,
          .functions = context_.functions,
          .notice = context_.notice,
          .runDialog = runDialog_};
}

template <typename List>
List& FormulaDesk::listDialog(List*& dialog) {
  if (dialog == nullptr) {
    dialog = new List(host(), window_);
    connect(dialog, &FormulaListDialog::apply, this,
            [this, made = dialog] { carryOut(made->pendingChange()); });
    connect(dialog, &FormulaListDialog::refresh, this, &FormulaDesk::reportShown);
  }
  return *dialog;
}

void FormulaDesk::configureExpressions() {
  listDialog(expressions_).present();
}

void FormulaDesk::configureHighlighting() {
  listDialog(highlighting_).present();
}

void FormulaDesk::listFunctions() {
  if (functions_ == nullptr) {
    functions_ = new FunctionsDialog(context_.functions, window_);
    connect(functions_, &FunctionsDialog::chosen, this, &FormulaDesk::insertFunction);
  }
  functions_->present();
}

void FormulaDesk::insertFunction(const std::string& function) {
  const FunctionRecord* record = context_.functions.find(function);
  if (record == nullptr || !formula_ || !formula_->isVisible()) {
    context_.notice->beep();
    return;
  }
  formula_->insertCall(*record);
  formula_->activateWindow();
  formula_->setFocus();
}

void FormulaDesk::carryOut(const FormulaChange& change) {
  const RunChange& runChange = change.movesColumns ? changer_.changeFields : changer_.changeView;
  const bool modified = context_.view.modified;
  bool isDone = false;
  runChange([&] {
    isDone = change.run();
    if (isDone) {
      recalculateTable(*context_.view.table, *context_.notice, context_.formulaScratch,
                       context_.functions);
    }
  });
  context_.view.modified = isDone || modified;
}

std::optional<std::vector<FieldDef>> FormulaDesk::chooseFields(std::string_view caption,
                                                               std::string& name) {
  name = chooseView(context_, window_, chooseOpenFile_, caption);
  return name.empty() ? std::nullopt : readChosenFields(context_, name);
}

void FormulaDesk::importExpressions() {
  std::string name;
  const auto fields = chooseFields(translatable("vrel", "Import Expressions"), name);
  if (!fields) {
    return;
  }
  Notice& notice = *context_.notice;
  if (!hasFormulaFields(*fields)) {
    notice.warning(
        editorTitle(notice),
        noticeText(notice, translatable("vrel", "View file \"%1\" has no expressions."), name));
    return;
  }
  bool imported = false;
  carryOut({.movesColumns = true, .run = [&] {
              return imported = importFormulaFields(context_.view, *fields, context_.functions);
            }});
  if (!imported) {
    notice.critical(editorTitle(notice),
                    notice.translate(translatable(
                        "vrel", "There is not enough memory for the imported expressions.")));
  }
}

void FormulaDesk::importHighlighting() {
  std::string name;
  const auto fields = chooseFields(translatable("vrel", "Import Highlighting"), name);
  if (!fields) {
    return;
  }
  Notice& notice = *context_.notice;
  if (!hasCommonFields(*context_.view.table, *fields)) {
    notice.warning(
        editorTitle(notice),
        noticeText(notice,
                   translatable("vrel", "View file \"%1\" has none of the fields of this report."),
                   name));
    return;
  }
  carryOut({.movesColumns = false, .run = [&] {
              vrel::importHighlighting(context_.view, *fields);
              return true;
            }});
}

void FormulaDesk::reportShown() {
  for (FormulaListDialog* dialog :
       std::initializer_list<FormulaListDialog*>{expressions_, highlighting_}) {
    if (dialog != nullptr) {
      dialog->viewShown();
    }
  }
}

}  // namespace vrel
