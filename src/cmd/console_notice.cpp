#include "cmd/console_notice.h"

#include <algorithm>

namespace vrel {
namespace {

void writeLine(Interpreter& interpreter, std::string_view text) {
  std::string line(text);
  std::replace(line.begin(), line.end(), '\n', ' ');
  print(interpreter, "{}\n", line);
}

}  // namespace

void ConsoleNotice::critical(std::string_view, std::string_view text) {
  writeLine(interpreter_, text);
}

void ConsoleNotice::warning(std::string_view, std::string_view text) {
  writeLine(interpreter_, text);
}

Answer ConsoleNotice::question(std::string_view, std::string_view) {
  return Answer::Cancel;
}

bool ConsoleNotice::confirm(std::string_view, std::string_view) {
  return false;
}

void ConsoleNotice::beep() {}

bool ConsoleNotice::progress(std::string_view, std::uint64_t, std::uint64_t) {
  return true;
}

std::string ConsoleNotice::translate(std::string_view text) {
  return std::string(text);
}

bool ConsoleNotice::hasWindow() const {
  return false;
}

}  // namespace vrel
