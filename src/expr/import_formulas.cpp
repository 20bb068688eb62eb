#include "expr/import_formulas.h"

#include <algorithm>
#include <numeric>
#include <string>
#include <string_view>
#include <unordered_map>

#include "expr/field_columns.h"
#include "expr/formula.h"
#include "expr/formula_fields.h"
#include "expr/program.h"
#include "expr/rename_field.h"
#include "model/field_classes.h"
#include "model/view_record.h"

namespace vrel {
namespace {

// A formula field of the file and the view's column that it goes to.
struct Imported {
  const FieldDef* from;
  int column;
  bool isNew;
  std::string name;
};

// What the file's formulas call by a name that is another one in the view.
struct Renaming {
  std::string from;
  std::string to;
};

std::unordered_map<std::string_view, int> formulaColumns(const Table& table) {
  std::unordered_map<std::string_view, int> columns;
  for (int i = 0; i < static_cast<int>(table.fieldCount()); ++i) {
    if (table.field(i).isExpression()) {
      columns.emplace(table.field(i).name, i);
    }
  }
  return columns;
}

// New fields get the columns behind the table's. Of two records of one name the later one counts.
std::vector<Imported> planImport(const Table& table, const std::vector<FieldDef>& fileFields) {
  std::unordered_map<std::string_view, int> columns = formulaColumns(table);
  std::vector<Imported> plan;
  auto next = static_cast<int>(table.fieldCount());
  for (const FieldDef& field : fileFields) {
    if (!field.isExpression()) {
      continue;
    }
    const auto [place, isNew] = columns.try_emplace(field.name, next);
    next += isNew ? 1 : 0;
    plan.push_back({.from = &field,
                    .column = place->second,
                    .isNew = isNew,
                    .name = isNew ? uniqueFieldName(table, field.name) : field.name});
  }
  return plan;
}

std::vector<Renaming> renamingsOf(const std::vector<Imported>& plan,
                                  const std::vector<FieldDef>& fileFields) {
  const FieldPlaces places(fileFields);
  std::vector<Renaming> renamings;
  for (const Imported& each : plan) {
    if (each.name != each.from->name && places.find(each.from->name).kind == PlaceKind::Formula) {
      renamings.push_back({each.from->name, each.name});
    }
  }
  return renamings;
}

std::string renamed(std::string_view text, const std::vector<Renaming>& renamings,
                    const FunctionRegistry& functions) {
  std::string result(text);
  for (const Renaming& each : renamings) {
    result = renamedText(result, each.from, each.to, functions);
  }
  return result;
}

bool addColumns(ReportView& view, std::size_t count) {
  if (count == 0) {
    return true;
  }
  std::vector<int> columns(view.table->fieldCount());
  std::iota(columns.begin(), columns.end(), 0);
  const auto first = static_cast<int>(columns.size());
  columns.insert(columns.end(), count, kNoField);
  if (!arrangeFields(view, columns)) {
    return false;
  }
  for (std::size_t i = 0; i < count; ++i) {
    view.axis(Axis::Data).push_back(first + static_cast<int>(i));
  }
  return true;
}

// By their names as view files hold them; of one name the first field.
std::unordered_map<std::string, const FieldDef*> byName(const std::vector<FieldDef>& fields) {
  std::unordered_map<std::string, const FieldDef*> named;
  for (const FieldDef& field : fields) {
    named.emplace(viewFileText(field.name), &field);
  }
  return named;
}

}  // namespace

bool hasFormulaFields(const std::vector<FieldDef>& fields) {
  return std::any_of(fields.begin(), fields.end(),
                     [](const FieldDef& field) { return field.isExpression(); });
}

bool importFormulaFields(ReportView& view, const std::vector<FieldDef>& fileFields,
                         const FunctionRegistry& functions) {
  Table& table = *view.table;
  const std::vector<Imported> plan = planImport(table, fileFields);
  const std::vector<Renaming> renamings = renamingsOf(plan, fileFields);
  const auto added = static_cast<std::size_t>(
      std::count_if(plan.begin(), plan.end(), [](const Imported& each) { return each.isNew; }));
  if (!addColumns(view, added)) {
    return false;
  }
  const auto taken = [&](const Formula& formula) {
    return renamed(formula.text, renamings, functions);
  };
  for (const Imported& each : plan) {
    FieldDef& field = table.field(each.column);
    const FieldDef& from = *each.from;
    if (each.isNew) {
      field.name = each.name;
      setText(field.highlightExpression, taken(from.highlightExpression));
    }
    setFormulas(field, taken(from.expression), taken(from.inverseExpression));
  }
  forgetCompiled(table);
  return true;
}

bool hasCommonFields(const Table& table, const std::vector<FieldDef>& fileFields) {
  const auto named = byName(fileFields);
  return std::any_of(table.fields.begin(), table.fields.end(), [&named](const FieldDef& field) {
    return named.contains(viewFileText(field.name));
  });
}

void importHighlighting(ReportView& view, const std::vector<FieldDef>& fileFields) {
  const auto named = byName(fileFields);
  for (FieldDef& field : view.table->fields) {
    if (const auto from = named.find(viewFileText(field.name)); from != named.end()) {
      setText(field.highlightExpression, from->second->highlightExpression.text);
    }
  }
}

}  // namespace vrel
