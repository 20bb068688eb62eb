#include "support/formulas.h"

#include <fmt/format.h>

#include "expr/field_functions.h"
#include "expr/formula.h"

namespace vrel::test {
namespace {

std::string treeAt(const Expression& expression, std::int32_t index);

std::string callText(const Expression& expression, const Call& call) {
  std::string text = "(" + call.name;
  for (const CallArgument& argument : call.arguments) {
    text += " " + (argument.isText() ? argument.text : treeAt(expression, argument.node));
  }
  return text + ")";
}

std::string treeAt(const Expression& expression, std::int32_t index) {
  const Node& node = expression.nodes[static_cast<std::size_t>(index)];
  switch (node.kind) {
    case NodeKind::Number:
      return fmt::format("{}", node.number);
    case NodeKind::Variable:
      return "x";
    case NodeKind::Field:
      return "'" + expression.references[static_cast<std::size_t>(node.index)] + "'";
    case NodeKind::Call:
      return callText(expression, expression.calls[static_cast<std::size_t>(node.index)]);
    default:
      return fmt::format("({} {} {})", static_cast<char>(node.kind),
                         treeAt(expression, node.operands.left),
                         treeAt(expression, node.operands.right));
  }
}

std::string errorText(const ParseResult& result) {
  return fmt::format("error {} at {}", static_cast<int>(result.error), result.errorPosition);
}

}  // namespace

const FunctionRegistry& allFunctions() {
  static const FunctionRegistry kFunctions = [] {
    FunctionRegistry functions;
    addAllFunctions(functions);
    return functions;
  }();
  return kFunctions;
}

std::string treeOf(const Expression& expression) {
  return treeAt(expression, expression.root);
}

std::string parsed(std::string_view text, TokenizerOptions options) {
  const ParseResult result = parseExpression(text, allFunctions(), options);
  return result.expression ? treeOf(*result.expression) : errorText(result);
}

std::string textOf(const Evaluation& evaluation) {
  return evaluation.ok() ? fmt::format("{}", evaluation.value)
                         : fmt::format("error {}", evaluation.error);
}

std::string evaluated(std::string_view text) {
  const ParseResult result = parseExpression(text, allFunctions());
  return result.expression ? textOf(evaluate(*result.expression)) : errorText(result);
}

Evaluation FormulaBench::evaluation(std::string_view text, std::size_t tuple) {
  Formula formula;
  setText(formula, text);
  return evaluateFormula(evaluator_, formula, tuple);
}

std::string FormulaBench::evaluated(std::string_view text, std::size_t tuple) {
  const ParseResult result = parseExpression(text, allFunctions());
  return result.expression ? textOf(evaluation(text, tuple)) : errorText(result);
}

void setFormula(Table& table, int field, std::string_view text) {
  table.field(field).type = FieldType::Expression;
  setText(table.field(field).expression, text);
}

}  // namespace vrel::test
