// The generated plan as a table in memory.
#pragma once

#include <cstdint>
#include <string>

#include "base/text_input.h"
#include "model/table.h"

namespace vrel::bench {

/// The table file of a plan of so many tuples, made once.
const std::string& planFile(std::int64_t tuples);

/// Reads from a text, which must outlive the stream.
TextInput inputOver(const std::string& text);

/// Reads the plan of so many tuples.
void load(Table& table, std::int64_t tuples);

}  // namespace vrel::bench
