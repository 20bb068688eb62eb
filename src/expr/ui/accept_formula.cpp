#include "expr/ui/accept_formula.h"

#include <QCoreApplication>

#include "expr/formula.h"
#include "expr/formula_fields.h"
#include "expr/ui/expression_error_dialog.h"
#include "expr/ui/to_text.h"

namespace vrel {

namespace {

constexpr const char* kQuotesAreLost =
    QT_TRANSLATE_NOOP("FormulaCheck",
                      "A name with an apostrophe and blanks or operators in it cannot be used in "
                      "formulas: view files keep no double quotes around it.");

}  // namespace

bool acceptFormula(const FormulaHost& host, const QString& message, std::string_view text,
                   QWidget* parent) {
  if (!canStoreFormula(text, host.functions)) {
    const QString reason = QCoreApplication::translate("FormulaCheck", kQuotesAreLost);
    host.notice->warning(editorTitle(*host.notice), (message + u'\n' + reason).toStdString());
    return false;
  }
  Formula formula{.text = storedFormula(text)};
  if (checkFormula(formula, host.functions)) {
    return true;
  }
  ExpressionErrorDialog dialog(message, formula.error, formula.text, formula.errorPosition, parent);
  host.runDialog(dialog);
  return false;
}

}  // namespace vrel
