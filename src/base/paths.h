// Where the program finds its files.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

namespace vrel {

/// Looks an environment variable up; empty when it is not set.
using EnvironmentLookup = std::function<std::string(const char* name)>;

/// The process's own environment.
EnvironmentLookup processEnvironment();

std::string userHome(const EnvironmentLookup& environment);
std::string installationHome(const EnvironmentLookup& environment);
std::string macroHome(const EnvironmentLookup& environment);
/// The first of TMPDIR, TMP and TEMP that is set.
std::string temporaryDirectory(const EnvironmentLookup& environment);

enum class MustExist { No, Yes };

/// Absolute path of the file in the first directory that is not empty and, with
/// `MustExist::Yes`, holds it; empty when none does.
std::string findFile(std::initializer_list<std::string> directories, std::string_view fileName,
                     MustExist mustExist);

std::string logPath(const EnvironmentLookup& environment);
std::string settingsFile(const EnvironmentLookup& environment);
std::string smartGraphFile(const EnvironmentLookup& environment);
/// Empty when there is none.
std::string startupFile(const EnvironmentLookup& environment);
std::string versionFile(const EnvironmentLookup& environment);
std::string buildFile(const EnvironmentLookup& environment);
std::string sampleDataDirectory(const EnvironmentLookup& environment);

/// A fresh file name: the prefix and nine digits, in KORVHOME, HOME, the temporary directory or
/// the system's last resort, whichever is set first. Seeds `std::rand` with the current time and
/// draws the digits from it.
std::string temporaryFileName(const EnvironmentLookup& environment, std::string_view prefix);

/// File name of the last-view safety copy for a title.
std::string lastViewName(std::string_view title);

}  // namespace vrel
