// A log whose lines tests can read.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "base/log.h"

namespace vrel::test {

/// A log in a file of its own, which goes with it.
inline Log openTestLog() {
  return Log{std::shared_ptr<std::FILE>(std::tmpfile(), std::fclose)};
}

/// The lines logged so far, without their times.
inline std::vector<std::string> loggedLines(const Log& log) {
  std::rewind(log.file.get());
  std::vector<std::string> lines;
  char buffer[1000];
  while (std::fgets(buffer, sizeof buffer, log.file.get()) != nullptr) {
    const std::string line = buffer;
    const std::size_t text = line.find("> ") + 2;
    lines.push_back(line.substr(text, line.find('\n') - text));
  }
  return lines;
}

}  // namespace vrel::test
