#include "expr/formula_fields.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <utility>

#include "base/platform.h"
#include "base/words.h"
#include "expr/field_columns.h"
#include "expr/formula.h"
#include "expr/rename_field.h"
#include "model/field_classes.h"
#include "model/view_record.h"

namespace vrel {
namespace {

constexpr std::string_view kNoHighlight = "BLACK()";

bool isTaken(const Table& table, std::string_view name, int except) {
  for (int i = 0; i < static_cast<int>(table.fieldCount()); ++i) {
    if (i != except && viewFileText(table.field(i).name) == name) {
      return true;
    }
  }
  return false;
}

// Whether a field can be edited stays as the user has it until its inverse formula comes or goes.
void setInverse(FieldDef& field, std::string_view text) {
  const bool had = isDefined(field.inverseExpression);
  const bool isBlankText = trimBlanks(text).empty();
  setText(field.inverseExpression, isBlankText ? std::string(kNoFormula) : storedFormula(text));
  const bool has = isDefined(field.inverseExpression);
  if (!field.isKey() && (had != has || field.classification == Classification::Unset)) {
    field.classification = has ? Classification::DataReadWrite : Classification::DataReadOnly;
  }
}

std::vector<int> allColumns(const Table& table) {
  std::vector<int> columns(table.fieldCount());
  std::iota(columns.begin(), columns.end(), 0);
  return columns;
}

// Formulas name the first field of a name that holds numbers.
bool isNamedBy(const Table& table, int field, std::string_view name) {
  const FieldPlace place = FieldPlaces(table.fields).find(name);
  return place.kind == PlaceKind::Formula && place.column == field;
}

}  // namespace

FormulaFieldText formulaFieldText(const FieldDef& field) {
  return {.name = field.name,
          .expression = field.expression.text,
          .inverse = isDefined(field.inverseExpression) ? field.inverseExpression.text : ""};
}

std::string highlightText(const FieldDef& field) {
  return isDefined(field.highlightExpression) ? field.highlightExpression.text
                                              : std::string(kNoHighlight);
}

bool isHighlighted(const FieldDef& field) {
  return trimBlanks(highlightText(field)) != kNoHighlight;
}

std::string storedName(std::string_view name) {
  return std::string(trimBlanks(storedFormula(name)));
}

std::string storedFormula(std::string_view text) {
  std::string stored = viewFileText(text);
  std::replace(stored.begin(), stored.end(), '\r', ' ');
  return stored;
}

bool canStoreFormula(std::string_view text, const FunctionRegistry& functions) {
  const std::vector<FieldMention> found = fieldMentions(text, functions);
  return std::none_of(found.begin(), found.end(), [text](const FieldMention& mention) {
    return text[mention.start] == '"' && mention.name.find('\'') != std::string_view::npos;
  });
}

std::string uniqueFieldName(const Table& table, std::string_view name, int except) {
  std::string unique(name);
  if (isTaken(table, unique, except)) {
    std::srand(static_cast<unsigned>(platform::currentTime()));
  }
  while (isTaken(table, unique, except)) {
    // NOLINTNEXTLINE(cert-msc*,concurrency-mt-unsafe)
    unique = fmt::format("{}_{}", name, std::rand());
  }
  return unique;
}

std::optional<int> addFormulaField(ReportView& view, const FormulaFieldText& text) {
  Table& table = *view.table;
  std::vector<int> columns = allColumns(table);
  columns.push_back(kNoField);
  if (!arrangeFields(view, columns)) {
    return std::nullopt;
  }
  const auto added = static_cast<int>(table.fieldCount()) - 1;
  table.field(added).name = uniqueFieldName(table, storedName(text.name), added);
  setFormulas(table.field(added), text.expression, text.inverse);
  view.axis(Axis::Data).push_back(added);
  forgetCompiled(table);
  return added;
}

void changeFormulaField(ReportView& view, int field, const FormulaFieldText& text,
                        const FunctionRegistry& functions) {
  Table& table = *view.table;
  FieldDef& definition = table.field(field);
  setFormulas(definition, text.expression, text.inverse);
  const std::string wanted = storedName(text.name);
  const std::string name =
      wanted == definition.name ? wanted : uniqueFieldName(table, wanted, field);
  if (name == definition.name) {
    return;
  }
  if (isNamedBy(table, field, definition.name)) {
    renameInFormulas(table.fields, definition.name, name, functions);
  }
  definition.name = name;
  forgetCompiled(table);
}

void setFormulas(FieldDef& field, std::string_view expression, std::string_view inverse) {
  setText(field.expression, storedFormula(expression));
  setInverse(field, inverse);
}

void setHighlightFormula(ReportView& view, int field, std::string_view text) {
  const bool isBlankText = trimBlanks(text).empty();
  setText(view.table->field(field).highlightExpression,
          isBlankText ? std::string(kNoHighlight) : storedFormula(text));
}

bool canDeleteField(const Table& table, int field) {
  const auto index = static_cast<std::size_t>(field);
  return index >= table.notedFields &&
         std::all_of(table.fields.begin() + field, table.fields.end(),
                     [](const FieldDef& each) { return each.isExpression(); });
}

bool deleteFormulaField(ReportView& view, int field) {
  std::vector<int> columns = allColumns(*view.table);
  columns.erase(columns.begin() + field);
  if (!arrangeFields(view, columns)) {
    return false;
  }
  forgetCompiled(*view.table);
  return true;
}

std::vector<std::string> fieldsNaming(const Table& table, int field,
                                      const FunctionRegistry& functions) {
  std::vector<std::string> names;
  const std::string& name = table.field(field).name;
  if (!isNamedBy(table, field, name)) {
    return names;
  }
  const auto named = [&](const Formula& formula) {
    return mentions(formula.text, name, functions);
  };
  for (int i = 0; i < static_cast<int>(table.fieldCount()); ++i) {
    const FieldDef& other = table.field(i);
    const bool byFormula =
        other.isExpression() && (named(other.expression) || named(other.inverseExpression));
    if (i != field && (byFormula || named(other.highlightExpression))) {
      names.push_back(other.name);
    }
  }
  return names;
}

}  // namespace vrel
