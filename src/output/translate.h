// The translate import: pairs of a cell's note and its new text for records keyed like the table.
#pragma once

#include "base/text_input.h"
#include "base/text_output.h"
#include "model/table.h"

namespace vrel {

/// Reads tab-separated records and writes, for each value field of the tuple with the record's
/// keys, the cell's note and the record's text. Sorts the table first. Records that cannot be used
/// give a warning on `errors` and are skipped.
void translate(Table& table, TextInput& input, TextOutput& output, TextOutput& errors);

}  // namespace vrel
