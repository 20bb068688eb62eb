#include "model/field.h"

#include <array>

namespace vrel {
namespace {

struct TypeName {
  FieldType type;
  std::string_view name;
};

constexpr std::array<TypeName, 6> kTypeNames = {{
    {FieldType::String, "string"},
    {FieldType::Number, "number"},
    {FieldType::Boolean, "boolean"},
    {FieldType::Date, "date"},
    {FieldType::Expression, "expression"},
    {FieldType::Period, "period"},
}};

struct ClassificationWord {
  Classification classification;
  std::string_view word;
};

constexpr std::array<ClassificationWord, 3> kClassificationWords = {{
    {Classification::Key, "key"},
    {Classification::DataReadWrite, "dataReadWrite"},
    {Classification::DataReadOnly, "dataReadOnly"},
}};

}  // namespace

void PeriodNames::add(std::string_view name) {
  const std::uint32_t id = pool_.intern(name);
  if (id >= firstPosition_.size()) {
    firstPosition_.resize(id + std::size_t{1}, size());
  }
  names_.push_back(pool_.text(id));
}

void PeriodNames::clear() {
  pool_.clear();
  names_.clear();
  firstPosition_.assign(1, 0);
}

std::int32_t PeriodNames::find(std::string_view text) const {
  const std::optional<std::uint32_t> id = pool_.find(text);
  return id ? firstPosition_[*id] : 0;
}

FieldType fieldTypeFromName(std::string_view name) {
  for (const TypeName& row : kTypeNames) {
    if (row.name == name) {
      return row.type;
    }
  }
  return FieldType::Unset;
}

std::string_view fieldTypeName(FieldType type) {
  for (const TypeName& row : kTypeNames) {
    if (row.type == type) {
      return row.name;
    }
  }
  return {};
}

Classification classificationFromWord(std::string_view word) {
  for (const ClassificationWord& row : kClassificationWords) {
    if (row.word == word) {
      return row.classification;
    }
  }
  return Classification::Unset;
}

std::string_view classificationWord(Classification classification) {
  for (const ClassificationWord& row : kClassificationWords) {
    if (row.classification == classification) {
      return row.word;
    }
  }
  return {};
}

}  // namespace vrel
