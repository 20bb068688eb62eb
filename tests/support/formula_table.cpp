#include "support/formula_table.h"

#include <algorithm>
#include <numeric>

#include "expr/formula.h"
#include "model/table_sort.h"
#include "support/tables.h"

namespace vrel::test {
namespace {

void addFormulas(Table& table, const std::vector<FormulaOf>& formulas) {
  std::vector<FieldDef> fields = std::move(table.fields);
  table.fields.resize(fields.size());
  std::vector<int> source(fields.size());
  std::iota(source.begin(), source.end(), 0);
  for (const FormulaOf& formula : formulas) {
    FieldDef field;
    field.name = formula.name;
    field.type = FieldType::Expression;
    field.classification = Classification::DataReadWrite;
    setText(field.expression, formula.formula);
    setText(field.inverseExpression, formula.inverse);
    fields.push_back(std::move(field));
    source.push_back(kNoField);
  }
  replaceFields(table, std::move(fields), source);
}

Table sortedTable(std::string_view fields, std::string_view periods,
                  const std::vector<std::string>& lines, const std::vector<FormulaOf>& formulas) {
  Table table = tableOf(fields, periods, lines);
  settleTypes(table);
  for (FieldDef& field : table.fields) {
    if (!field.isKey()) {
      field.classification = Classification::DataReadWrite;
    }
  }
  addFormulas(table, formulas);
  sortTuples(table);
  return table;
}

}  // namespace

FormulaTable::FormulaTable(std::string_view fields, std::string_view periods,
                           const std::vector<std::string>& lines,
                           const std::vector<FormulaOf>& formulas)
    : table(sortedTable(fields, periods, lines, formulas)) {
  addAllFunctions(functions);
}

Evaluation FormulaTable::evaluate(std::string_view text, std::size_t tuple) {
  Formula formula;
  setText(formula, text);
  Evaluator evaluator(context, functions);
  return evaluateFormula(evaluator, formula, tuple);
}

double FormulaTable::value(std::string_view text, std::size_t tuple) {
  const Evaluation result = evaluate(text, tuple);
  return result.ok() ? result.value : -result.error;
}

std::vector<double> FormulaTable::column(std::string_view name) const {
  std::vector<double> numbers;
  for (std::size_t tuple = 0; tuple < table.tupleCount; ++tuple) {
    numbers.push_back(numberOf(table.cell(tuple, field(name))));
  }
  return numbers;
}

int FormulaTable::field(std::string_view name) const {
  const auto found = std::find_if(table.fields.begin(), table.fields.end(),
                                  [name](const FieldDef& each) { return each.name == name; });
  return static_cast<int>(found - table.fields.begin());
}

}  // namespace vrel::test
