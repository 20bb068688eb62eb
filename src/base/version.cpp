#include "base/version.h"

#include <optional>

#include "base/text_input.h"
#include "base/words.h"

namespace vrel {

std::string productVersion(const EnvironmentLookup& environment) {
  constexpr std::size_t kLongestVersion = 255;
  std::optional<TextInput> file;
  if (!installationHome(environment).empty()) {
    file = TextInput::open(versionFile(environment));
  }
  const std::optional<std::string_view> line =
      file ? file->readLine(kLongestVersion) : std::nullopt;
  const std::string_view version = line ? trimBlanks(*line) : std::string_view();
  return std::string(version.empty() ? std::string_view(VREL_VERSION) : version);
}

}  // namespace vrel
