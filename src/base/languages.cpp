#include "base/languages.h"

#include <fmt/format.h>

#include <algorithm>

#include "base/platform.h"
#include "base/text_input.h"
#include "base/text_output.h"
#include "base/words.h"

namespace vrel {
namespace {

constexpr std::size_t kLongestLine = 255;
constexpr std::string_view kListFile = "/supported_languages.ini";
constexpr std::string_view kSetFile = "/languageSet.txt";
constexpr std::string_view kKeyword = "setlanguage";

// "name, code"; nothing where the comma is missing or comes first.
std::optional<Language> parseLanguage(std::string_view line) {
  const std::size_t comma = line.find(',');
  if (comma == 0 || comma == std::string_view::npos) {
    return std::nullopt;
  }
  return Language{.name = std::string(trimBlanks(line.substr(0, comma))),
                  .code = std::string(trimBlanks(line.substr(comma + 1)))};
}

template <typename Matches>
std::optional<Language> firstThat(const std::vector<Language>& languages, Matches matches) {
  const auto found = std::find_if(languages.begin(), languages.end(), matches);
  return found == languages.end() ? std::nullopt : std::optional(*found);
}

std::optional<Language> byName(const std::vector<Language>& languages, std::string_view name) {
  return firstThat(languages, [name](const Language& language) { return language.name == name; });
}

std::optional<Language> byCode(const std::vector<Language>& languages, std::string_view code) {
  return firstThat(languages, [code](const Language& language) { return language.code == code; });
}

// A text file of the installation's language folder, where there is one.
std::optional<TextInput> openLanguageFile(const EnvironmentLookup& environment,
                                          std::string_view name) {
  const std::string directory = languageDirectory(environment);
  return directory.empty() ? std::nullopt : TextInput::openEdited(directory + std::string(name));
}

std::optional<Language> rememberedLanguage(const std::vector<Language>& languages,
                                           const EnvironmentLookup& environment) {
  std::optional<TextInput> file = openLanguageFile(environment, kSetFile);
  const auto line = file ? file->readLine(kLongestLine) : std::nullopt;
  const auto named = line ? parseLanguage(*line) : std::nullopt;
  return named ? byName(languages, named->name) : std::nullopt;
}

// By name or code, as the start-up file's author likes.
std::optional<Language> startupLanguage(const std::vector<Language>& languages,
                                        const EnvironmentLookup& environment) {
  const std::string path = startupFile(environment);
  std::optional<TextInput> file = path.empty() ? std::nullopt : TextInput::open(path);
  while (const auto line = file ? file->readLine(kWholeLine) : std::nullopt) {
    const std::size_t at = line->find(kKeyword);
    if (at != std::string_view::npos) {
      const std::string_view wanted = trimBlanks(line->substr(at + kKeyword.size()));
      const auto named = byName(languages, wanted);
      return named ? named : byCode(languages, wanted);
    }
  }
  return std::nullopt;
}

}  // namespace

std::string languageDirectory(const EnvironmentLookup& environment) {
  const std::string home = installationHome(environment);
  return home.empty() ? std::string() : home + "/i18n";
}

std::vector<Language> languageList(const EnvironmentLookup& environment) {
  std::vector<Language> languages = {{.name = "English", .code = "en"}};
  std::optional<TextInput> file = openLanguageFile(environment, kListFile);
  while (const auto line = file ? file->readLine(kLongestLine) : std::nullopt) {
    if (std::optional<Language> language = parseLanguage(*line)) {
      languages.push_back(*std::move(language));
    }
  }
  return languages;
}

std::optional<Language> languageOfLocale(const std::vector<Language>& languages,
                                         std::string_view locale) {
  if (locale.starts_with("zh")) {
    return byName(languages, locale == "zh_CN" ? "Simplified Chinese" : "Traditional Chinese");
  }
  const auto exact = byCode(languages, locale);
  return exact ? exact : byCode(languages, locale.substr(0, locale.find('_')));
}

std::optional<Language> chosenLanguage(const EnvironmentLookup& environment,
                                       std::string_view locale) {
  const std::vector<Language> languages = languageList(environment);
  std::optional<Language> chosen = startupLanguage(languages, environment);
  if (!chosen) {
    chosen = rememberedLanguage(languages, environment);
  }
  return chosen ? chosen : languageOfLocale(languages, locale);
}

void saveLanguage(const Language& language, const EnvironmentLookup& environment) {
  const std::string directory = languageDirectory(environment);
  if (directory.empty()) {
    return;
  }
  SafeFile file(directory + std::string(kSetFile));
  if (file.isOpen()) {
    file.output().write(fmt::format("{}, {}", language.name, language.code));
    file.commit();
  }
}

std::string translationFile(const Language& language, const EnvironmentLookup& environment) {
  const std::string directory = languageDirectory(environment);
  const std::string path = fmt::format("{}/qnt_{}.qm", directory, language.code);
  return !directory.empty() && TextInput::open(path) ? path : std::string();
}

}  // namespace vrel
