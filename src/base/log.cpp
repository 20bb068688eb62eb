#include "base/log.h"

#include <fmt/format.h>

#include <ctime>
#include <optional>

#include "base/platform.h"
#include "base/text_input.h"

namespace vrel {
namespace {

constexpr std::size_t kMaxLogLines = 100000;
// Longer lines count more than once, so that a log of few endless lines does not grow for ever.
constexpr std::size_t kMaxCountedBytes = 1023;

bool hasTooManyLines(const std::string& path) {
  std::optional<TextInput> input = TextInput::open(path);
  std::size_t lines = 0;
  while (input && lines < kMaxLogLines && input->readLine(kMaxCountedBytes)) {
    ++lines;
  }
  return lines >= kMaxLogLines;
}

std::string timeStamp() {
  const std::tm now = platform::localTime(platform::currentTime());
  return fmt::format("{:04d}/{:02d}/{:02d} {:02d}:{:02d}:{:02d}", now.tm_year + 1900,
                     now.tm_mon + 1, now.tm_mday, now.tm_hour, now.tm_min, now.tm_sec);
}

}  // namespace

bool InitLog(Log& log, const std::string& path) {
  if (log.file) {
    return false;
  }
  if (hasTooManyLines(path)) {
    platform::removeFile(path);
  }
  log.file = platform::openFile(path, platform::OpenMode::Append);
  if (!log.file) {
    fmt::print(stderr, "InitLog: could not open log file \"{}\".\n", path);
    return false;
  }
  return true;
}

bool logLine(Log& log, std::string_view text) {
  if (!log.file) {
    return false;
  }
  // One write per line: the file is not buffered, so that the line is out at once.
  std::string line = fmt::format("{}> {}", timeStamp(), text);
  if (line.back() != '\n') {
    line += '\n';
  }
  std::fwrite(line.data(), 1, line.size(), log.file.get());
  return true;
}

}  // namespace vrel
