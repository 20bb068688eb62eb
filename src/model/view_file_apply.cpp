#include <algorithm>
#include <unordered_map>
#include <utility>

#include "model/field_type_change.h"
#include "model/key_pass.h"
#include "model/period_file.h"
#include "model/table_sort.h"
#include "model/view_file.h"
#include "model/view_record.h"

namespace vrel {
namespace {

std::size_t firstFormula(const std::vector<FieldDef>& fields) {
  const auto first = std::find_if(fields.begin(), fields.end(),
                                  [](const FieldDef& field) { return field.isExpression(); });
  return static_cast<std::size_t>(first - fields.begin());
}

// A table's name may hold what a view file cannot, so both are compared as a view file has them.
bool sameName(const FieldDef& a, const FieldDef& b) {
  return a.name == b.name || viewFileText(a.name) == viewFileText(b.name);
}

bool fieldsCorrespond(const FieldDef& a, const FieldDef& b) {
  return a.isExpression() == b.isExpression() && (a.isExpression() || sameName(a, b));
}

// For each field of a fitting view the table's column with its values. Plain fields stand at the
// same position in both; a formula keeps the values of the table's formula of that name.
std::vector<int> sourceColumns(const std::vector<FieldDef>& viewFields,
                               const std::vector<FieldDef>& tableFields) {
  std::unordered_map<std::string_view, int> formulas;
  for (std::size_t i = 0; i < tableFields.size(); ++i) {
    if (tableFields[i].isExpression()) {
      formulas.emplace(tableFields[i].name, static_cast<int>(i));
    }
  }
  std::vector<int> source;
  for (const FieldDef& field : viewFields) {
    if (!field.isExpression()) {
      source.push_back(static_cast<int>(source.size()));
      continue;
    }
    const auto formula = formulas.find(field.name);
    source.push_back(formula == formulas.end() ? kNoField : formula->second);
  }
  return source;
}

void mergePlainField(Table& table, int column, FieldDef& fromView, const FormatSettings& settings) {
  FieldDef& field = table.field(column);
  field.hidden = fromView.hidden;
  field.highlightExpression = std::move(fromView.highlightExpression);
  if (fromView.classification != Classification::Unset &&
      fromView.classification != field.classification) {
    field.classification = fromView.classification;
    table.sortedBy.clear();
  }
  if (takesType(field, fromView.type)) {
    changeType(table, column, fromView.type, settings);
  }
}

// Gives the table as many columns as there are fields in the view, formulas with the values that
// `source` names. The new formula fields are still without names and texts.
bool arrangeColumns(Table& table, const std::vector<FieldDef>& viewFields,
                    const std::vector<int>& source) {
  std::vector<int> unchanged(table.fieldCount());
  for (std::size_t i = 0; i < unchanged.size(); ++i) {
    unchanged[i] = static_cast<int>(i);
  }
  if (source == unchanged) {
    return true;
  }
  // Plain fields own their columns' texts and must survive the replacement, also a failed one.
  std::vector<std::pair<std::size_t, FieldDef>> plain;
  for (std::size_t i = 0; i < viewFields.size(); ++i) {
    if (!viewFields[i].isExpression()) {
      plain.emplace_back(i, std::move(table.fields[i]));
    }
  }
  const bool replaced = replaceFields(table, std::vector<FieldDef>(viewFields.size()), source);
  for (auto& [index, field] : plain) {
    table.fields[index] = std::move(field);
  }
  return replaced;
}

// Makes the view file's fields the table's fields, with values of other types as the settings show
// them; false, with nothing changed, when memory runs out.
bool mergeFields(Table& table, std::vector<FieldDef>& viewFields, const FormatSettings& settings) {
  if (!arrangeColumns(table, viewFields, sourceColumns(viewFields, table.fields))) {
    return false;
  }
  for (std::size_t i = 0; i < viewFields.size(); ++i) {
    if (viewFields[i].isExpression()) {
      table.fields[i] = std::move(viewFields[i]);
    } else {
      mergePlainField(table, static_cast<int>(i), viewFields[i], settings);
    }
  }
  return true;
}

// What a view file defines; the names of the view and its table stay.
void takeView(ReportView& view, ReportView parsed) {
  parsed.table = view.table;
  parsed.fileName = std::move(view.fileName);
  parsed.exportFileName = std::move(view.exportFileName);
  parsed.shortTitle = std::move(view.shortTitle);
  view = std::move(parsed);
}

}  // namespace

bool viewFitsTable(const std::vector<FieldDef>& viewFields,
                   const std::vector<FieldDef>& tableFields) {
  if (firstFormula(viewFields) != firstFormula(tableFields)) {
    return false;
  }
  const std::size_t shared = std::min(viewFields.size(), tableFields.size());
  for (std::size_t i = 0; i < shared; ++i) {
    if (!fieldsCorrespond(viewFields[i], tableFields[i])) {
      return false;
    }
  }
  const std::vector<FieldDef>& longer =
      viewFields.size() > tableFields.size() ? viewFields : tableFields;
  return std::all_of(longer.begin() + static_cast<std::ptrdiff_t>(shared), longer.end(),
                     [](const FieldDef& field) { return field.isExpression(); });
}

std::optional<ParsedView> parseFittingView(std::string_view file, const Table& table,
                                           Notice& notice, TextOutput& errors) {
  std::optional<ParsedView> parsed = parseViewFile(file, notice, errors);
  if (parsed && !viewFitsTable(parsed->fields->fields, table.fields)) {
    parsed.reset();
  }
  return parsed;
}

bool applyView(ReportView& view, ParsedView parsed, FormatSettings& settings,
               const EnvironmentLookup& environment, Notice& notice) {
  const FormatSettings before = settings;
  applyFormatSettings(parsed.view, settings);
  if (!mergeFields(*view.table, parsed.fields->fields, settings)) {
    settings = before;
    return false;
  }
  takeView(view, std::move(parsed.view));
  removeDuplicateKeys(view, environment, notice);
  readPeriodFile(view, notice);
  sortTuples(*view.table);
  return true;
}

bool readViewFile(ReportView& view, std::string_view file, FormatSettings& settings,
                  const EnvironmentLookup& environment, Notice& notice, TextOutput& errors) {
  std::optional<ParsedView> parsed = parseFittingView(file, *view.table, notice, errors);
  return parsed && applyView(view, *std::move(parsed), settings, environment, notice);
}

bool viewFileFits(const Table& table, std::string_view file, Notice& notice, TextOutput& errors) {
  return parseFittingView(file, table, notice, errors).has_value();
}

}  // namespace vrel
