// Keeping the formula fields and the colours of a table up to date.
#pragma once

#include <cstddef>

#include "expr/evaluator.h"

namespace vrel {

/// Computes the formula fields of one tuple, in column order. A field that another one names
/// before its turn is computed then. What a formula fails for holds `kErrorValue`.
void recalculateTuple(Evaluator& evaluator, std::size_t tuple);

/// The same for every tuple, in table order, with progress shown. False when that was cancelled;
/// the rest of the tuples is as it was then.
bool recalculateAll(Evaluator& evaluator);

/// Computes the colours of every cell by the fields' highlight formulas; false when cancelled.
bool computeHighlights(Evaluator& evaluator);

/// The colours of one tuple's cells.
void computeHighlights(Evaluator& evaluator, std::size_t tuple);

/// Puts the tuples of the context's table in key order and brings formula fields and colours up to
/// date. False when cancelled.
bool recalculateTable(FormulaContext& context, const FunctionRegistry& functions);

}  // namespace vrel
