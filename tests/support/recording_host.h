// A host for tests: keeps what it is told.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "expr/host_messages.h"
#include "support/temporary_directory.h"

namespace vrel::test {

struct RecordingHost {
  RecordingHost() = default;
  RecordingHost(const RecordingHost&) = delete;
  RecordingHost& operator=(const RecordingHost&) = delete;

  /// The message file that was announced last.
  std::string message() const {
    if (announced.empty()) {
      return "(nothing announced)";
    }
    const std::string& line = announced.back();
    return directory.read(line.substr(3, line.size() - 4));
  }

  /// Holds the message files.
  TemporaryDirectory directory;
  /// Where message files are tried to be made.
  std::string temporary = directory.path();
  FormatSettings format;
  EnvironmentLookup environment = [this](const char* name) {
    return std::string_view(name) == "TMPDIR" ? temporary : std::string();
  };
  Log log;
  std::vector<std::string> debugged;
  std::vector<std::string> announced;
  HostLink link = {.format = format,
                   .environment = environment,
                   .log = log,
                   .debug = [this](std::string_view text) { debugged.emplace_back(text); },
                   .announce = [this](std::string_view line) { announced.emplace_back(line); }};
};

}  // namespace vrel::test
