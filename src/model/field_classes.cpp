#include "model/field_classes.h"

#include <algorithm>

#include "model/field_type_change.h"

namespace vrel {
namespace {

bool isData(const FieldClass& one) {
  return one.classification == Classification::DataReadWrite ||
         one.classification == Classification::DataReadOnly;
}

bool isKey(const FieldClass& one) {
  return one.classification == Classification::Key;
}

}  // namespace

void forgetCompiled(Table& table) {
  for (FieldDef& field : table.fields) {
    for (Formula* formula :
         {&field.expression, &field.inverseExpression, &field.highlightExpression}) {
      formula->compiled = nullptr;
    }
  }
}

std::vector<FieldClass> fieldClasses(const Table& table) {
  std::vector<FieldClass> classes;
  classes.reserve(table.fieldCount());
  for (const FieldDef& field : table.fields) {
    classes.push_back({field.classification, field.type});
  }
  return classes;
}

ClassRefusal refusalOf(std::span<const FieldClass> classes) {
  if (std::none_of(classes.begin(), classes.end(), isData)) {
    return ClassRefusal::NoDataField;
  }
  return std::none_of(classes.begin(), classes.end(), isKey) ? ClassRefusal::NoKeyField
                                                             : ClassRefusal::None;
}

std::vector<FieldType> typesFor(const FieldDef& field) {
  if (field.isExpression()) {
    return {FieldType::Expression};
  }
  std::vector<FieldType> types;
  for (const FieldType type : {FieldType::String, FieldType::Number, FieldType::Boolean,
                               FieldType::Date, FieldType::Period}) {
    if (type == field.type || takesType(field, type)) {
      types.push_back(type);
    }
  }
  return types;
}

std::vector<LossyChange> lossyChanges(const Table& table, std::span<const FieldClass> classes,
                                      const FormatSettings& settings) {
  std::vector<LossyChange> changes;
  for (int i = 0; i < static_cast<int>(classes.size()); ++i) {
    const FieldType type = classes[static_cast<std::size_t>(i)].type;
    if (!takesType(table.field(i), type)) {
      continue;
    }
    LostValues lost = lostValues(table, i, type, settings);
    if (lost.count > 0) {
      changes.push_back({i, lost.count, std::move(lost.first)});
    }
  }
  return changes;
}

void applyFieldClasses(ReportView& view, std::span<const FieldClass> classes,
                       const FormatSettings& settings) {
  Table& table = *view.table;
  std::vector<bool> moved(table.fieldCount(), false);
  for (int i = 0; i < static_cast<int>(classes.size()); ++i) {
    const FieldClass& wanted = classes[static_cast<std::size_t>(i)];
    FieldDef& field = table.field(i);
    moved[static_cast<std::size_t>(i)] = field.isKey() != isKey(wanted);
    field.classification = wanted.classification;
    if (takesType(field, wanted.type)) {
      changeType(table, i, wanted.type, settings);
    }
  }
  guessView(view, moved);
  table.sortedBy.clear();
  forgetCompiled(table);
}

}  // namespace vrel
