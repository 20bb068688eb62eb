#include "plan_with_formulas.h"

#include <array>
#include <utility>
#include <vector>

#include "expr/field_functions.h"
#include "model/table_sort.h"
#include "plan_table.h"

namespace vrel::bench {
namespace {

void addFormulas(Table& table) {
  const std::array<std::pair<const char*, const char*>, 4> added = {{
      {"Projected", "Prev(#Projected,Stock)+Supply-Demand"},
      {"Value", "Demand*Price"},
      {"Short", "IF(Projected<0,0-Projected,0)"},
      {"Share", "PERCENT(Supply,Demand+1)"},
  }};
  std::vector<int> source;
  std::vector<FieldDef> fields = std::move(table.fields);
  const auto plain = static_cast<int>(fields.size());
  table.fields.resize(fields.size());
  for (int i = 0; i < plain; ++i) {
    source.push_back(i);
  }
  std::vector<FieldDef> all = std::move(fields);
  for (const auto& [name, text] : added) {
    FieldDef& field = all.emplace_back();
    field.name = name;
    field.type = FieldType::Expression;
    field.classification = Classification::DataReadOnly;
    field.expression.text = text;
    source.push_back(kNoField);
  }
  replaceFields(table, std::move(all), source);
  sortTuples(table);
}

}  // namespace

PlanWithFormulas::PlanWithFormulas(std::int64_t tuples) {
  addAllFunctions(functions);
  load(table, tuples);
  addFormulas(table);
}

}  // namespace vrel::bench
