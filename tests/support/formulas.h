// Formulas for tests: what they are parsed to and what they come to, as plain text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "expr/evaluator.h"
#include "expr/function_registry.h"
#include "expr/parser.h"
#include "model/table.h"
#include "support/views.h"

namespace vrel::test {

/// All functions that formulas of a table may call.
const FunctionRegistry& allFunctions();

/// The tree of an expression, operators and functions first: "(+ 1 (ROUND 'Demand:-1' #text))".
/// Field names stand in apostrophes, the variable is "x".
std::string treeOf(const Expression& expression);

/// The tree of a formula, or "error 1 at 5".
std::string parsed(std::string_view text, TokenizerOptions options = {});

/// "3", or "error 104".
std::string textOf(const Evaluation& evaluation);

/// What a formula that is not about a table comes to, as `textOf` and `parsed` write it.
std::string evaluated(std::string_view text);

/// Evaluates formulas over a table.
class FormulaBench {
 public:
  explicit FormulaBench(Table& table) : table_(table) {}

  /// What a formula comes to for a tuple, as `textOf` and `parsed` write it.
  std::string evaluated(std::string_view text, std::size_t tuple = 0);
  /// What the text of a formula comes to for a tuple.
  Evaluation evaluation(std::string_view text, std::size_t tuple = 0);
  FormulaContext& context() { return context_; }
  Evaluator& evaluator() { return evaluator_; }

 private:
  Table& table_;
  SilentNotice notice_;
  FormulaContext context_{.table = table_, .notice = notice_};
  Evaluator evaluator_{context_, allFunctions()};
};

/// Makes a field of a table a formula field.
void setFormula(Table& table, int field, std::string_view text);

}  // namespace vrel::test
