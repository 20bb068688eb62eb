#include "expr/formula.h"

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

#include "base/words.h"
#include "expr/parser.h"

namespace vrel {
namespace {

// A text as an expression, or where in it the error lies: nowhere when the text is blank.
struct ParsedText {
  std::optional<Expression> expression;
  std::optional<std::size_t> errorPosition;
};

// Parses behind the leading white space; the error's place is one in the whole text.
ParsedText parseText(std::string_view text, const FunctionRegistry& functions) {
  const auto* const begin =
      std::find_if(text.begin(), text.end(), [](char byte) { return !isBlank(byte); });
  if (begin == text.end()) {
    return {};
  }
  const auto skipped = static_cast<std::size_t>(begin - text.begin());
  ParseResult result = parseExpression(text.substr(skipped), functions);
  if (result.expression) {
    return {.expression = std::move(result.expression), .errorPosition = std::nullopt};
  }
  return {.expression = std::nullopt, .errorPosition = skipped + result.errorPosition};
}

}  // namespace

bool isDefined(const Formula& formula) {
  return formula.text != kNoFormula && !trimBlanks(formula.text).empty();
}

void setText(Formula& formula, std::string_view text) {
  formula = {.text = std::string(text)};
  std::replace(formula.text.begin(), formula.text.end(), '\n', ' ');
}

bool checkFormula(Formula& formula, const FunctionRegistry& functions) {
  const ParsedText parsed = parseText(formula.text, functions);
  if (parsed.expression) {
    return true;
  }
  formula.error = FormulaError::Syntax;
  formula.errorPosition = parsed.errorPosition;
  return false;
}

void compileFormula(Formula& formula, const FunctionRegistry& functions,
                    const FieldPlaces& places) {
  const ParsedText parsed = parseText(formula.text, functions);
  auto compiled = std::make_shared<CompiledFormula>();
  compiled->errorPosition = parsed.errorPosition;
  if (parsed.expression) {
    compiled->program = compileProgram(*parsed.expression, places);
  }
  formula.compiled = std::move(compiled);
}

Evaluation evaluateFormula(Evaluator& evaluator, Formula& formula, std::size_t tuple) {
  const Program* program = evaluator.program(formula);
  if (program == nullptr) {
    formula.error = FormulaError::Syntax;
    formula.errorPosition = formula.compiled->errorPosition;
    return {.value = 0, .error = kUnresolvedField};
  }
  const Evaluation result = evaluator.run(*program, tuple);
  if (!result.ok()) {
    formula.error = FormulaError::Evaluation;
    formula.errorPosition = 0;
  }
  return result;
}

}  // namespace vrel
