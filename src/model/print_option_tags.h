// The print options as the `defineprintoptions` record of a view file.
#pragma once

#include <string>

#include "model/print_options.h"
#include "model/view_record.h"

namespace vrel {

/// The options of a record; a missing or empty tag, and a number that no print could use, leave
/// the default.
PrintOptions readPrintOptions(Arguments arguments);

/// Appends all tags with their values to a line.
void addPrintOptions(std::string& line, const PrintOptions& options);

}  // namespace vrel
