#include <algorithm>
#include <array>
#include <cstdio>

#include "base/platform.h"

namespace vrel::platform {
namespace {

// What a command writes to its standard output; empty when it cannot be run.
std::string outputOf(const char* command) {
  std::string text;
  std::FILE* const pipe = popen(command, "r");
  if (pipe == nullptr) {
    return text;
  }
  std::array<char, 4096> block;
  for (std::size_t count = 0; (count = std::fread(block.data(), 1, block.size(), pipe)) > 0;) {
    text.append(block.data(), count);
  }
  pclose(pipe);
  return text;
}

// What stands behind the last ": "; empty when nothing does.
std::string_view afterColon(std::string_view text) {
  const std::size_t colon = text.rfind(": ");
  return colon == std::string_view::npos ? std::string_view() : text.substr(colon + 2);
}

}  // namespace

std::string quotedWord(std::string_view word) {
  std::string quoted = "\"";
  for (const char byte : word) {
    if (byte == '"' || byte == '\\' || byte == '$' || byte == '`') {
      quoted += '\\';
    }
    quoted += byte;
  }
  return quoted + '"';
}

std::vector<Printer> printers() {
  // The spooler's own words, in the language that is read here.
  const std::string names = outputOf("LC_ALL=C lpstat -e 2>/dev/null");
  std::vector<Printer> list;
  for (std::size_t at = 0; at < names.size();) {
    const std::size_t end = std::min(names.find('\n', at), names.size());
    if (end > at) {
      list.push_back({.server = {}, .name = names.substr(at, end - at)});
    }
    at = end + 1;
  }
  if (!list.empty()) {
    const std::string preferred = outputOf("LC_ALL=C lpstat -d 2>/dev/null");
    const std::string_view name = afterColon(preferred);
    for (Printer& printer : list) {
      printer.isDefault = name.substr(0, name.find('\n')) == printer.name;
    }
  }
  return list;
}

std::string spoolCommand(const Printer& printer, const std::string& path) {
  const std::string server = printer.server.empty() ? "" : " -H " + quotedWord(printer.server);
  return "lpr" + server + " -P " + quotedWord(printer.name) + " " + quotedWord(path);
}

// The spooler's command is the only road here.
std::optional<bool> spoolRaw(const Printer&, std::string_view, const std::string&) {
  return std::nullopt;
}

}  // namespace vrel::platform
