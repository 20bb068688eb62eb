// The table file reader.
#pragma once

#include "base/text_input.h"
#include "model/table.h"

namespace vrel {

/// Reads a table file, after clearing what the table held. Returns false, with the table not
/// loaded, when one of the three header lines is missing or empty or memory runs out. A data line
/// with a surplus entry that does not begin with "### " aborts the process with a message on
/// standard error: the file is the host's own, and going on would put values into the wrong fields.
bool loadFromFile(Table& table, TextInput& input);

/// Turns every string or period field whose values all read as dates into a date field.
void settleTypes(Table& table);

}  // namespace vrel
