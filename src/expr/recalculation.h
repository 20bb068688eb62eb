// Keeping the formula fields and the colours of a table up to date.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "expr/evaluator.h"

namespace vrel {

/// Computes the formula fields of one tuple, in column order. A field that another one names
/// before its turn is computed then. What a formula fails for holds `kErrorValue`.
void recalculateTuple(Evaluator& evaluator, std::size_t tuple);
/// The same for several tuples, in their order.
void recalculateTuples(Evaluator& evaluator, std::span<const std::uint32_t> tuples);

/// The same for every tuple, in table order, with progress shown. False when that was cancelled;
/// the rest of the tuples is as it was then.
bool recalculateAll(Evaluator& evaluator);

/// Computes the colours of every cell by the fields' highlight formulas; false when cancelled.
bool computeHighlights(Evaluator& evaluator);

/// The colours of some tuples' cells.
void computeHighlights(Evaluator& evaluator, std::span<const std::uint32_t> tuples);

/// Whether a formula field or a colour of one tuple may follow from values of other tuples of its
/// series.
bool reachesOtherTuples(Evaluator& evaluator);

/// Puts the tuples of the context's table in key order and brings formula fields and colours up to
/// date. False when cancelled.
bool recalculateTable(FormulaContext& context, const FunctionRegistry& functions);
/// The same for a table that keeps the value of the formulas' scratch field in `scratch`.
bool recalculateTable(Table& table, Notice& notice, Cell& scratch,
                      const FunctionRegistry& functions);

}  // namespace vrel
