#include "base/settings_file.h"

#include <fmt/format.h>

#include <array>
#include <ctime>

#include "base/platform.h"
#include "base/text_input.h"
#include "base/text_output.h"
#include "base/version.h"
#include "base/words.h"

namespace vrel {
namespace {

constexpr std::string_view kIllegalLine = "Illegal line in .ini file";
constexpr const char* kReadOnly = translatable(
    "vrel",
    "The location of the model cannot be saved because the file \"%1\" is read-only.  Please make "
    "sure it has Write attributes.");
constexpr const char* kNotWritten = translatable("vrel", "The file \"%1\" cannot be written.");
constexpr std::string_view kBoxTitle = "Orvane";

constexpr std::string_view kProductName = "vrel";
constexpr std::string_view kRule =
    "####################################################################\n";

// A line that names a list holds its next entry, as long as the list has room.
struct ListEntry {
  std::string_view key;
  std::size_t most;
  std::vector<std::string> Settings::*list;
};

// In the order in which they are written.
constexpr std::array<ListEntry, 3> kLists = {{
    {"lastKorvFile", 5, &Settings::lastKorvFile},
    {"recentlyAddedNode", 5, &Settings::recentlyAddedNode},
    {"lastVisitedPath", 1, &Settings::lastVisitedPath},
}};
constexpr std::string_view kFontKey = "applicationFont";

// Takes the entry of one line; false when the line is none, or one too many.
bool takeLine(Settings& settings, std::string_view line) {
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos || line.find('=', equals + 1) != std::string_view::npos) {
    return false;
  }
  const std::string_view value = trimBlanks(line.substr(equals + 1));
  for (const ListEntry& entry : kLists) {
    std::vector<std::string>& list = settings.*entry.list;
    if (line.starts_with(entry.key) && list.size() < entry.most) {
      list.emplace_back(value);
      return true;
    }
  }
  if (line.starts_with(kFontKey)) {
    settings.applicationFont = value;
    return true;
  }
  return false;
}

std::string today() {
  const std::tm now = platform::localTime(platform::currentTime());
  std::array<char, 64> text{};
  return {text.data(), std::strftime(text.data(), text.size(), "%a %b %d %Y", &now)};
}

void writeProlog(TextOutput& output, const EnvironmentLookup& environment) {
  const std::string user = platform::userName();
  output.write(fmt::format("##Creator: {} {}\n", kProductName, productVersion(environment)));
  output.write(fmt::format("##For: {}\n", user.empty() ? "unknown" : user));
  output.write(fmt::format("##CreationDate: {}\n##EndComments\n", today()));
  output.write(kRule);
  output.write("#\n# Orvane Resource Configuration File Format.\n");
  output.write("# This file format is Orvane proprietary.\n#\n");
  output.write(kRule);
  output.write("##EndProlog\n");
}

void writeEntries(TextOutput& output, const Settings& settings) {
  for (const ListEntry& entry : kLists) {
    const std::vector<std::string>& list = settings.*entry.list;
    for (std::size_t i = 0; i < list.size() && i < entry.most; ++i) {
      output.write(fmt::format("{}[{}]={}\n", entry.key, i + 1, list[i]));
    }
  }
  if (settings.applicationFont) {
    output.write(fmt::format("{}={}\n", kFontKey, *settings.applicationFont));
  }
}

void tell(Notice& notice, const char* text, const std::string& path) {
  if (notice.hasWindow()) {
    notice.critical(kBoxTitle, noticeText(notice, text, path));
  }
}

}  // namespace

bool readSettings(Settings& settings, const EnvironmentLookup& environment,
                  const ToolkitWarning& warn) {
  std::optional<TextInput> file = TextInput::openEdited(settingsFile(environment));
  if (!file) {
    return false;
  }
  settings = {};
  while (const std::optional<std::string_view> line = file->readLine(kWholeLine)) {
    if (!line->starts_with('#') && !takeLine(settings, *line)) {
      warn(kIllegalLine);
    }
  }
  return true;
}

void saveSettings(Settings& settings, const EnvironmentLookup& environment, Notice& notice) {
  const std::string path = settingsFile(environment);
  if (path.empty()) {
    return;
  }
  if (!TextInput::open(path)) {
    settings.lastVisitedPath = {sampleDataDirectory(environment)};
  }
  SafeFile file(path);
  if (!file.isOpen()) {
    tell(notice, kReadOnly, path);
    return;
  }
  writeProlog(file.output(), environment);
  writeEntries(file.output(), settings);
  if (!file.commit()) {
    tell(notice, kNotWritten, path);
  }
}

void saveLastVisitedDirectory(Settings& settings, std::string_view directory,
                              const EnvironmentLookup& environment, const ToolkitWarning& warn,
                              Notice& notice) {
  readSettings(settings, environment, warn);
  settings.lastVisitedPath = {std::string(directory)};
  saveSettings(settings, environment, notice);
}

}  // namespace vrel
