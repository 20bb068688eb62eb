// Giving a plain field another type: its values are read anew from their texts.
#pragma once

#include <cstddef>
#include <string>

#include "model/format_settings.h"
#include "model/table.h"

namespace vrel {

/// Whether a plain field of a table can be given another type. A period has to be one of the
/// field's names, so that a field without names cannot hold any.
bool takesType(const FieldDef& field, FieldType type);

/// Gives a plain field a type that it takes, and each of its values that type, from its text as the
/// settings show it. The table counts as unsorted then.
void changeType(Table& table, int column, FieldType type, const FormatSettings& settings);

/// What a change of type would not keep.
struct LostValues {
  std::size_t count = 0;
  /// The first of them as it is shown.
  std::string first;
};

/// The values that would be other ones after `changeType`: texts that are no value of the type, and
/// numbers and dates of which the settings show too little to read them again. Changes nothing.
LostValues lostValues(const Table& table, int column, FieldType type,
                      const FormatSettings& settings);

}  // namespace vrel
