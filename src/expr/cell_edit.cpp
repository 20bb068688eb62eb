#include "expr/cell_edit.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <vector>

#include "base/words.h"
#include "expr/formula.h"
#include "expr/progress.h"
#include "expr/recalculation.h"
#include "model/date.h"

namespace vrel {
namespace {

constexpr std::string_view kApplyingInverse = translatable("vrel", "Applying inverse formulas...");

CellEdit storeFormulaValue(Evaluator& evaluator, std::size_t tuple, int field,
                           std::string_view text) {
  Formula typed;
  setText(typed, text);
  Evaluation result;
  {
    const ForwardOnly forwardOnly(evaluator.context());
    result = evaluateFormula(evaluator, typed, tuple);
  }
  if (!result.ok()) {
    return typed.error == FormulaError::Syntax
               ? CellEdit{.refusal = EditRefusal::Syntax, .errorPosition = typed.errorPosition}
               : CellEdit{.refusal = EditRefusal::Evaluation};
  }
  storeNumber(evaluator.context(), tuple, field, result.value);
  return {};
}

// The number that a text begins with; 0 when it begins with none.
double leadingNumber(std::string_view text) {
  const std::string plain = withoutSeparators(text);
  std::string_view number = trimBlanks(plain);
  if (number.starts_with('*')) {
    return kUnbounded;
  }
  const std::size_t digits = number.starts_with('-') || number.starts_with('+') ? 1 : 0;
  // Words such as "inf" are no numbers here.
  if (number.find_first_of("0123456789.") != digits) {
    return 0;
  }
  if (number.starts_with('+')) {
    number.remove_prefix(1);
  }
  double value = 0;
  std::from_chars(number.data(), number.data() + number.size(), value);
  return value;
}

CellEdit storeValue(FormulaContext& context, std::size_t tuple, int field, std::string_view text) {
  FieldDef& definition = context.table.field(field);
  if (definition.type == FieldType::Date && !parseDate(text).accepted) {
    return {.refusal = EditRefusal::NoDate};
  }
  storeCell(
      context, {static_cast<std::uint32_t>(tuple), field},
      definition.isExpression() ? numberCell(leadingNumber(text)) : parseValue(definition, text));
  return {};
}

CellEdit store(Evaluator& evaluator, std::size_t tuple, int field, std::string_view text) {
  Table& table = evaluator.context().table;
  if (table.field(field).classification != Classification::DataReadWrite) {
    return {.refusal = EditRefusal::ReadOnly};
  }
  return table.field(field).takesFormulas() ? storeFormulaValue(evaluator, tuple, field, text)
                                            : storeValue(evaluator.context(), tuple, field, text);
}

// The fields that `applyInverseFormulas` edits: those with an inverse formula, from the first that
// is no key on.
std::vector<int> fieldsWithInverse(const Table& table) {
  std::vector<int> fields;
  const auto first = std::find_if(table.fields.begin(), table.fields.end(),
                                  [](const FieldDef& field) { return !field.isKey(); });
  for (auto field = first; field != table.fields.end(); ++field) {
    if (isDefined(field->inverseExpression)) {
      fields.push_back(static_cast<int>(field - table.fields.begin()));
    }
  }
  return fields;
}

}  // namespace

CellEdit enterText(Evaluator& evaluator, std::size_t tuple, int field, std::string_view text) {
  CellEdit edit = store(evaluator, tuple, field, text);
  if (edit.accepted()) {
    edit.inverse = applyInverseFormula(evaluator, tuple, field);
  }
  return edit;
}

CellEdit setCell(Evaluator& evaluator, std::size_t tuple, int field,
                 std::optional<std::string_view> text) {
  const CellEdit edit = text ? enterText(evaluator, tuple, field, *text)
                             : CellEdit{.inverse = applyInverseFormula(evaluator, tuple, field)};
  if (edit.accepted()) {
    recalculateTuple(evaluator, tuple);
  }
  return edit;
}

InverseOutcome applyInverseFormula(Evaluator& evaluator, std::size_t tuple, int field) {
  FieldDef& definition = evaluator.context().table.field(field);
  if (!definition.isExpression() || !isDefined(definition.inverseExpression)) {
    return InverseOutcome::None;
  }
  return evaluateFormula(evaluator, definition.inverseExpression, tuple).ok()
             ? InverseOutcome::Applied
             : InverseOutcome::Failed;
}

bool applyInverseFormulas(Evaluator& evaluator) {
  const std::vector<int> fields = fieldsWithInverse(evaluator.context().table);
  return fields.empty() ||
         forEachTuple(evaluator.context(), kApplyingInverse, [&](std::size_t tuple) {
           for (const int field : fields) {
             setCell(evaluator, tuple, field, std::nullopt);
           }
         });
}

std::string withoutSeparators(std::string_view text) {
  std::string plain(trimBlanks(text));
  std::erase(plain, ',');
  std::erase(plain, '_');
  double number = 0;
  const char* const end = plain.data() + plain.size();
  const char* const begin = plain.data() + (plain.starts_with('+') ? 1 : 0);
  const auto result = std::from_chars(begin, end, number);
  // Words such as "inf" are no numbers here, however they are written.
  return result.ec == std::errc() && result.ptr == end && std::isfinite(number) ? plain
                                                                                : std::string(text);
}

}  // namespace vrel
