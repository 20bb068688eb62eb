// What the fields of a table are: keys or data, and of which type.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "model/format_settings.h"
#include "model/report_view.h"

namespace vrel {

/// What one field is.
struct FieldClass {
  Classification classification = Classification::Unset;
  FieldType type = FieldType::Unset;

  bool operator==(const FieldClass&) const = default;
};

/// The classes of a table's fields, in column order.
std::vector<FieldClass> fieldClasses(const Table& table);

enum class ClassRefusal : std::uint8_t { None, NoDataField, NoKeyField };

/// Why fields cannot be of these classes: a report needs at least one key and at least one data
/// field.
ClassRefusal refusalOf(std::span<const FieldClass> classes);

/// The types that a field may be given, its own included. A formula field is one for good, and no
/// other field becomes one: a saved view would no longer fit its table.
std::vector<FieldType> typesFor(const FieldDef& field);

/// What a change of a field's type would not keep.
struct LossyChange {
  int field = 0;
  std::size_t lost = 0;
  /// The first value that is lost, as it is shown.
  std::string first;
};

/// The fields whose values would not all be kept by `applyFieldClasses`, in column order.
std::vector<LossyChange> lossyChanges(const Table& table, std::span<const FieldClass> classes,
                                      const FormatSettings& settings);

/// Gives a view's fields these classes, one for each. Fields that have become keys or data move to
/// where `guessView` puts them; those that have not stay. Values change their type by the settings;
/// no tuple is lost, also where tuples have the same keys now. Formulas have to be evaluated anew
/// then, and the table be sorted.
void applyFieldClasses(ReportView& view, std::span<const FieldClass> classes,
                       const FormatSettings& settings);

/// Forgets what the table's formulas were compiled to, as must be done when fields have come, gone
/// or changed their names, types or classes.
void forgetCompiled(Table& table);

}  // namespace vrel
