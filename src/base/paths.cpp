#include "base/paths.h"

#include <fmt/format.h>

#include <cstdint>
#include <cstdlib>

#include "base/platform.h"

namespace vrel {
namespace {

constexpr const char* kLogName = "vrel.log";
constexpr int kTemporaryNumbers = 1'000'000'000;
constexpr int kTemporaryAttempts = 1000;
constexpr std::string_view kCurrentDirectory = ".";

std::string joined(std::string_view directory, std::string_view fileName, char separator) {
  if (directory == kCurrentDirectory) {
    return std::string(fileName);
  }
  const bool ends = directory.ends_with(separator) || directory.ends_with('/');
  return ends ? fmt::format("{}{}", directory, fileName)
              : fmt::format("{}{}{}", directory, separator, fileName);
}

std::string firstSet(std::initializer_list<std::string> candidates) {
  for (const std::string& candidate : candidates) {
    if (!candidate.empty()) {
      return candidate;
    }
  }
  return {};
}

}  // namespace

EnvironmentLookup processEnvironment() {
  return [](const char* name) { return platform::environment(name); };
}

std::string userHome(const EnvironmentLookup& environment) {
  return environment("HOME");
}

std::string installationHome(const EnvironmentLookup& environment) {
  return environment("KORVHOME");
}

std::string macroHome(const EnvironmentLookup& environment) {
  return environment("KORV_MACRO_HOME");
}

std::string temporaryDirectory(const EnvironmentLookup& environment) {
  return firstSet({environment("TMPDIR"), environment("TMP"), environment("TEMP")});
}

std::string findFile(std::initializer_list<std::string> directories, std::string_view fileName,
                     MustExist mustExist) {
  for (const std::string& directory : directories) {
    if (directory.empty()) {
      continue;
    }
    const std::string path = joined(directory, fileName, '/');
    if (mustExist == MustExist::No || platform::fileExists(path)) {
      return platform::absolutePath(path);
    }
  }
  return {};
}

std::string logPath(const EnvironmentLookup& environment) {
  const char separator = platform::kPathSeparator;
  if (const std::string directory = environment("KORVLOGDIR"); !directory.empty()) {
    return fmt::format("{}{}{}", directory, separator, kLogName);
  }
  if (const std::string home = installationHome(environment); !home.empty()) {
    return fmt::format("{}{}logs{}{}", home, separator, separator, kLogName);
  }
  return kLogName;
}

std::string settingsFile(const EnvironmentLookup& environment) {
  return findFile({userHome(environment), installationHome(environment)}, ".qnt.ini",
                  MustExist::No);
}

std::string smartGraphFile(const EnvironmentLookup& environment) {
  return findFile(
      {userHome(environment), installationHome(environment), std::string(kCurrentDirectory)},
      "qnt.smart", MustExist::No);
}

std::string startupFile(const EnvironmentLookup& environment) {
  return findFile({macroHome(environment), userHome(environment), installationHome(environment)},
                  "qnt.startup", MustExist::Yes);
}

std::string versionFile(const EnvironmentLookup& environment) {
  return installationHome(environment) + "/.version";
}

std::string buildFile(const EnvironmentLookup& environment) {
  return installationHome(environment) + "/.build";
}

std::string sampleDataDirectory(const EnvironmentLookup& environment) {
  return installationHome(environment) + "/sample_data";
}

std::string temporaryFileName(const EnvironmentLookup& environment, std::string_view prefix) {
  // The installation directory comes first because the host looks there for message files.
  const std::string directory =
      firstSet({installationHome(environment), userHome(environment),
                temporaryDirectory(environment), std::string(platform::kLastResortDirectory)});
  std::srand(static_cast<unsigned>(platform::currentTime()));
  std::string path;
  for (int attempt = 0; attempt <= kTemporaryAttempts; ++attempt) {
    const int number = std::rand() % kTemporaryNumbers;
    path = joined(directory, fmt::format("{}{:09d}", prefix, number), platform::kPathSeparator);
    if (!platform::fileExists(path)) {
      break;
    }
  }
  return platform::absolutePath(path);
}

std::string lastViewName(std::string_view title) {
  // A separator in the first position is part of the name.
  const auto lastAt = [](std::string_view text, char separator) {
    const std::size_t at = text.rfind(separator);
    return at == 0 ? std::string_view::npos : at;
  };
  const std::string_view stem = title.substr(0, lastAt(title, '.'));
  const std::size_t slash = lastAt(stem, '/');
  const std::string_view base = slash == std::string_view::npos ? stem : stem.substr(slash + 1);
  return fmt::format("~last_{}.view", base);
}

}  // namespace vrel
