// Formulas: a text and what it was compiled to.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "expr/evaluator.h"
#include "expr/program.h"
#include "model/field.h"

namespace vrel {

/// What a formula's text came to.
struct CompiledFormula {
  /// Nothing when the text is no formula; then the error stands at `errorPosition` in the text, or
  /// nowhere when the text is empty.
  std::optional<Program> program;
  std::optional<std::size_t> errorPosition;
};

/// The text by which a view says that a field has no such formula.
inline constexpr std::string_view kNoFormula = "_undefined_";

/// Whether there is a formula to run: neither a blank text nor "_undefined_".
bool isDefined(const Formula& formula);

/// Gives a formula another text, line feeds in it as blanks, and forgets what the old one was.
void setText(Formula& formula, std::string_view text);

/// Whether the text is a formula. When not, the error and its place are noted in the formula.
bool checkFormula(Formula& formula, const FunctionRegistry& functions);

/// Compiles a formula for fields and keeps the result in it, be it a program or an error.
void compileFormula(Formula& formula, const FunctionRegistry& functions, const FieldPlaces& places);

/// Evaluates a formula for a tuple, compiling it first when it was not yet. A failure is noted in
/// the formula.
Evaluation evaluateFormula(Evaluator& evaluator, Formula& formula, std::size_t tuple);

}  // namespace vrel
