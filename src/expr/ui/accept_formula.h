// Formulas are checked before they are taken, and what is wrong is shown.
#pragma once

#include <QWidget>
#include <string>
#include <string_view>

#include "expr/ui/formula_host.h"

namespace vrel {

/// Whether a text can be taken as a formula. When not, the user is told: `message` says what could
/// not be done.
bool acceptFormula(const FormulaHost& host, const QString& message, std::string_view text,
                   QWidget* parent);

}  // namespace vrel
