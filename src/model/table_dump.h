// The plain dump of a table.
#pragma once

#include "base/text_output.h"
#include "model/format_settings.h"
#include "model/table.h"

namespace vrel {

/// Writes the quoted field names and one line per tuple, in table order, separated by tabs. String
/// and date values stand in double quotes; numbers follow the settings.
void dumpTable(const Table& table, const FormatSettings& settings, TextOutput& output);

}  // namespace vrel
