// Formulas taken over from the fields of another view file.
#pragma once

#include <vector>

#include "expr/function_registry.h"
#include "model/report_view.h"

namespace vrel {

/// Whether there is any formula field among fields.
bool hasFormulaFields(const std::vector<FieldDef>& fields);

/// Gives each formula field of the file that the view has by name the file's formulas, and adds the
/// others, with their highlight formulas. A new field whose name a plain field has gets another
/// one, by which the imported formulas name it then. False, with nothing changed, when memory runs
/// out.
bool importFormulaFields(ReportView& view, const std::vector<FieldDef>& fileFields,
                         const FunctionRegistry& functions);

/// Whether the table has any field of the file by name.
bool hasCommonFields(const Table& table, const std::vector<FieldDef>& fileFields);

/// Gives each field that the file has by name the file's highlight formula.
void importHighlighting(ReportView& view, const std::vector<FieldDef>& fileFields);

}  // namespace vrel
