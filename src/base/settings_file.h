// The user's settings that outlive the process, in the file ".qnt.ini". Other programs of the suite
// keep their own entries in the same file.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/notice.h"
#include "base/paths.h"

namespace vrel {

/// Takes a warning of the toolkit.
using ToolkitWarning = std::function<void(std::string_view)>;

struct Settings {
  /// Recently used model files, at most 5.
  std::vector<std::string> lastKorvFile = {};
  /// The last visited directory: none or one.
  std::vector<std::string> lastVisitedPath = {};
  /// At most 5.
  std::vector<std::string> recentlyAddedNode = {};
  /// The toolkit's text of a font.
  std::optional<std::string> applicationFont = std::nullopt;

  bool operator==(const Settings&) const = default;
};

/// Puts what the settings file holds in the place of all settings. False when it cannot be read,
/// and then they stay as they are. Lines that are no entries are told as warnings of the toolkit.
bool readSettings(Settings& settings, const EnvironmentLookup& environment,
                  const ToolkitWarning& warn);

/// Writes the settings file. Where there is none yet that can be read, the last visited directory
/// becomes that of the sample data. A failure is told in a box when there is a window; nothing
/// happens where there is neither a home directory nor an installation.
void saveSettings(Settings& settings, const EnvironmentLookup& environment, Notice& notice);

/// Reads the settings anew, so that what other programs have noted stays, and saves them with
/// another last visited directory.
void saveLastVisitedDirectory(Settings& settings, std::string_view directory,
                              const EnvironmentLookup& environment, const ToolkitWarning& warn,
                              Notice& notice);

}  // namespace vrel
