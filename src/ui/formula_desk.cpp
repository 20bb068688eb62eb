#include "ui/formula_desk.h"

#include <utility>

namespace vrel {

FormulaDesk::FormulaDesk(EditorContext& context, RunDialog runDialog, AskForFile chooseOpenFile,
                         ViewChanger changer, QWidget* window)
    : QObject(window),
      context_(context),
      runDialog_(std::move(runDialog)),
      chooseOpenFile_(std::move(chooseOpenFile)),
      changer_(std::move(changer)),
      window_(window) {}

void FormulaDesk::configureExpressions() {}

void FormulaDesk::configureHighlighting() {}

void FormulaDesk::listFunctions() {}

void FormulaDesk::importExpressions() {}

void FormulaDesk::importHighlighting() {}

void FormulaDesk::reportShown() {}

}  // namespace vrel
