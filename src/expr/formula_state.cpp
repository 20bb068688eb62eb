#include "expr/formula_state.h"

#include <algorithm>
#include <optional>
#include <tuple>

#include "expr/field_columns.h"
#include "expr/formula.h"
#include "model/field_classes.h"

namespace vrel {
namespace {

bool isSameBreak(const BreakDefinition& a, const BreakDefinition& b) {
  return std::tie(a.name, a.breakAfter, a.active, a.firstBreak, a.frequency, a.fieldIndex,
                  a.operations) == std::tie(b.name, b.breakAfter, b.active, b.firstBreak,
                                            b.frequency, b.fieldIndex, b.operations);
}

FormulaState::Field stateOf(const FieldDef& field) {
  FormulaState::Field state{.isFormula = field.isExpression(),
                            .highlight = field.highlightExpression.text};
  if (state.isFormula) {
    state.name = field.name;
    state.classification = field.classification;
    state.hidden = field.hidden;
    state.expression = field.expression.text;
    state.inverse = field.inverseExpression.text;
  }
  return state;
}

// The columns that the fields of a state take over: plain ones in their order, formulas that of the
// same name. Nothing when the plain fields are not as many.
std::optional<std::vector<int>> sourceColumns(const Table& table, const FormulaState& state) {
  std::vector<int> plain;
  std::vector<int> formulas;
  for (int i = 0; i < static_cast<int>(table.fieldCount()); ++i) {
    (table.field(i).isExpression() ? formulas : plain).push_back(i);
  }
  std::vector<int> source;
  std::size_t nextPlain = 0;
  for (const FormulaState::Field& field : state.fields) {
    if (!field.isFormula) {
      source.push_back(nextPlain < plain.size() ? plain[nextPlain] : kNoField);
      ++nextPlain;
      continue;
    }
    const auto same = std::find_if(formulas.begin(), formulas.end(), [&](int column) {
      return table.field(column).name == field.name;
    });
    source.push_back(same == formulas.end() ? kNoField : *same);
    if (same != formulas.end()) {
      formulas.erase(same);
    }
  }
  return nextPlain == plain.size() ? std::optional(source) : std::nullopt;
}

void restoreField(FieldDef& field, const FormulaState::Field& state) {
  setText(field.highlightExpression, state.highlight);
  if (state.isFormula) {
    field.name = state.name;
    field.classification = state.classification;
    field.hidden = state.hidden;
    setText(field.expression, state.expression);
    setText(field.inverseExpression, state.inverse);
  }
}

}  // namespace

bool operator==(const FormulaState& a, const FormulaState& b) {
  return a.fields == b.fields && a.axes == b.axes &&
         std::equal(a.breaks.begin(), a.breaks.end(), b.breaks.begin(), b.breaks.end(),
                    isSameBreak);
}

FormulaState formulaState(const ReportView& view) {
  FormulaState state{.fields = {}, .axes = view.axes, .breaks = view.breaks};
  for (const FieldDef& field : view.table->fields) {
    state.fields.push_back(stateOf(field));
  }
  return state;
}

bool movesColumns(const ReportView& view, const FormulaState& state) {
  const std::vector<FieldDef>& fields = view.table->fields;
  return !std::equal(fields.begin(), fields.end(), state.fields.begin(), state.fields.end(),
                     [](const FieldDef& field, const FormulaState::Field& other) {
                       return field.isExpression() == other.isFormula;
                     });
}

bool restoreFormulas(ReportView& view, const FormulaState& state) {
  Table& table = *view.table;
  if (movesColumns(view, state)) {
    const std::optional<std::vector<int>> source = sourceColumns(table, state);
    if (!source || !arrangeFields(view, *source)) {
      return false;
    }
  }
  for (std::size_t i = 0; i < state.fields.size(); ++i) {
    restoreField(table.fields[i], state.fields[i]);
  }
  view.axes = state.axes;
  view.breaks = state.breaks;
  forgetCompiled(table);
  return true;
}

}  // namespace vrel
