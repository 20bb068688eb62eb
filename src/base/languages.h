// The languages of the user interface: which there are, and which one is the user's.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/paths.h"

namespace vrel {

struct Language {
  /// As it is shown to the user: "Simplified Chinese".
  std::string name;
  /// Of the locale, as in the names of the translation files: "zh_CN".
  std::string code;

  bool operator==(const Language&) const = default;
};

/// The installation's folder of language files; empty without an installation.
std::string languageDirectory(const EnvironmentLookup& environment);

/// English, then the installation's languages in the order of their list.
std::vector<Language> languageList(const EnvironmentLookup& environment);

/// The language for a locale such as "fr_CA": the one of that code, else the one of the locale's
/// own language ("fr"); Chinese is Simplified for "zh_CN" alone. Nothing when it is not listed.
std::optional<Language> languageOfLocale(const std::vector<Language>& languages,
                                         std::string_view locale);

/// The user's language: the start-up file's, else the one remembered, else the locale's. Nothing
/// when none of them is listed; the interface is in English then.
std::optional<Language> chosenLanguage(const EnvironmentLookup& environment,
                                       std::string_view locale);

/// Remembers the language for the next start. Nothing happens without an installation, or when it
/// cannot be written.
void saveLanguage(const Language& language, const EnvironmentLookup& environment);

/// The installation's translation file of a language; empty when there is none.
std::string translationFile(const Language& language, const EnvironmentLookup& environment);

}  // namespace vrel
