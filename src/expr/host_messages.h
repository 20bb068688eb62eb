// Update messages: how the host learns of changed values.
//
// A message is a file with a line for each value, written before its name is announced on the line
// that the host reads. Only values with a note take part: by it the host recognises them.
#pragma once

#include <functional>
#include <span>
#include <string_view>

#include "base/log.h"
#include "base/paths.h"
#include "base/text_output.h"
#include "model/format_settings.h"
#include "model/table.h"

namespace vrel {

/// What a message needs of the session. Nothing is owned.
struct HostLink {
  /// Once a value was written, separators and star are on and the underscore is off.
  FormatSettings& format;
  const EnvironmentLookup& environment;
  Log& log;
  /// Writes a line to the debug output.
  std::function<void(std::string_view text)> debug;
  /// Brings a line, its line feed included, to the host at once; see `announceToHost`.
  std::function<void(std::string_view line)> announce;
};

/// Writes the line to standard output and flushes it, behind all that the interpreter has written.
void announceToHost(TextOutput& interpreterOutput, std::string_view line);

/// Sends one value, several values in their order, or all values of the table to the host. False
/// when the message could not be written; the change is lost to the host then, and the log says so.
bool SendUpdateMessageToHostApp(const HostLink& link, const Table& table, CellRef cell);
bool SendUpdateMessageToHostApp(const HostLink& link, const Table& table,
                                std::span<const CellRef> cells);
bool SendUpdateMessageToHostApp(const HostLink& link, const Table& table);

}  // namespace vrel
