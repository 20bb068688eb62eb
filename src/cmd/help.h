// The listing of commands.
#pragma once

#include <string>
#include <string_view>

#include "base/text_output.h"
#include "cmd/interpreter.h"

namespace vrel {

/// Whether the part of a command's name after its last "/" matches a pattern, in which the first
/// "*" stands for any text.
bool matchesPattern(std::string_view name, std::string_view pattern);

/// Writes the commands of all tables, the last registered table first; with a pattern only those
/// that match.
void writeHelp(const Interpreter& interpreter, const std::string* pattern, TextOutput& output);

/// Shows the listing: through a pager on a terminal, else on the interpreter's output.
void showHelp(Interpreter& interpreter, const std::string* pattern);

}  // namespace vrel
