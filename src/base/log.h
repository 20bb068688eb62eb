// The program's log file.
#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

namespace vrel {

/// One log per process; closed until `InitLog` opens it.
struct Log {
  std::shared_ptr<std::FILE> file;
};

/// Opens the log for appending; a log of 100000 lines or more is started afresh. Returns false
/// when a log is open already, or, with a message on standard error, when the file cannot be
/// opened.
bool InitLog(Log& log, const std::string& path);

/// Writes one line: the local time, "> ", the text and a line feed when the text has none. Returns
/// false when no log is open.
bool logLine(Log& log, std::string_view text);

}  // namespace vrel
