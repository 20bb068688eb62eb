#include "base/languages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/temporary_directory.h"

namespace vrel {

void PrintTo(const Language& language, std::ostream* stream) {
  *stream << language.name << ", " << language.code;
}

namespace {

using testing::ElementsAre;

const Language kEnglish = {.name = "English", .code = "en"};
const Language kSimplified = {.name = "Simplified Chinese", .code = "zh_CN"};
const Language kTraditional = {.name = "Traditional Chinese", .code = "zh_TW"};
const Language kGerman = {.name = "German", .code = "de"};

class Languages : public testing::Test {
 protected:
  test::TemporaryDirectory home;
  EnvironmentLookup environment = [this](const char* name) {
    return std::string_view(name) == "KORVHOME" ? home.path() : std::string();
  };

  void list() {
    home.write("i18n/supported_languages.ini",
               "Simplified Chinese,zh_CN\nTraditional Chinese,zh_TW\nGerman,de\n");
  }
};

TEST_F(Languages, AreEnglishThenThoseOfTheListInItsOrder) {
  home.write("i18n/supported_languages.ini",
             " German , de \r\n"
             ",no name\n"
             "no code\n"
             "\n"
             "Simplified Chinese,zh_CN");
  EXPECT_THAT(languageList(environment), ElementsAre(kEnglish, kGerman, kSimplified));
}

TEST_F(Languages, MayBeListedByAnEditorThatBeginsFilesWithAMark) {
  home.write("i18n/supported_languages.ini",
             "\xEF\xBB\xBF"
             "German,de\r\n");
  home.write("i18n/languageSet.txt",
             "\xEF\xBB\xBF"
             "German, de\r\n");
  EXPECT_THAT(languageList(environment), ElementsAre(kEnglish, kGerman));
  EXPECT_EQ(chosenLanguage(environment, "C"), kGerman);
}

TEST_F(Languages, AreEnglishAloneWithoutAList) {
  EXPECT_THAT(languageList(environment), ElementsAre(kEnglish));
  EXPECT_THAT(languageList([](const char*) { return std::string(); }), ElementsAre(kEnglish));
}

TEST_F(Languages, OfALocaleAreThoseOfItsCode) {
  const std::vector<Language> languages = {
      kEnglish, kSimplified, kTraditional, kGerman, {.name = "Swiss", .code = "de_CH"}};
  EXPECT_EQ(languageOfLocale(languages, "zh_CN"), kSimplified);
  EXPECT_EQ(languageOfLocale(languages, "zh_TW"), kTraditional);
  EXPECT_EQ(languageOfLocale(languages, "zh_HK"), kTraditional);
  EXPECT_EQ(languageOfLocale(languages, "zh"), kTraditional);
  EXPECT_EQ(languageOfLocale(languages, "de"), kGerman);
  EXPECT_EQ(languageOfLocale(languages, "de_CH"), languages.back());
  EXPECT_EQ(languageOfLocale(languages, "de_AT"), kGerman);
  EXPECT_EQ(languageOfLocale(languages, "en_GB"), kEnglish);
  EXPECT_EQ(languageOfLocale(languages, "fr"), std::nullopt);
  EXPECT_EQ(languageOfLocale(languages, "C"), std::nullopt);
  EXPECT_EQ(languageOfLocale({kEnglish}, "zh_CN"), std::nullopt);
}

TEST_F(Languages, AreChosenByTheLocaleAtFirst) {
  list();
  EXPECT_EQ(chosenLanguage(environment, "de_DE"), kGerman);
  EXPECT_EQ(chosenLanguage(environment, "fr_FR"), std::nullopt);
}

TEST_F(Languages, AreRememberedFromStartToStart) {
  list();
  saveLanguage(kTraditional, environment);
  EXPECT_EQ(home.read("i18n/languageSet.txt"), "Traditional Chinese, zh_TW");
  EXPECT_EQ(chosenLanguage(environment, "de_DE"), kTraditional);
  saveLanguage(kGerman, environment);
  EXPECT_EQ(home.read("i18n/languageSet.txt"), "German, de");
}

TEST_F(Languages, ThatAreRememberedButNoLongerListedDoNotCount) {
  list();
  home.write("i18n/languageSet.txt", "Klingon, tlh\n");
  EXPECT_EQ(chosenLanguage(environment, "de_DE"), kGerman);
}

TEST_F(Languages, OfTheStartUpFileComeFirst) {
  list();
  saveLanguage(kTraditional, environment);
  home.write("qnt.startup", "# nothing\nsetlanguage   Simplified Chinese \nsetlanguage de\n");
  EXPECT_EQ(chosenLanguage(environment, "de_DE"), kSimplified);
  home.write("qnt.startup", "setlanguage de\n");
  EXPECT_EQ(chosenLanguage(environment, "zh_CN"), kGerman);
  home.write("qnt.startup", "setlanguage English\n");
  EXPECT_EQ(chosenLanguage(environment, "zh_CN"), kEnglish);
}

TEST_F(Languages, OfTheStartUpFileMayStandAnywhereInALineOfAnyLength) {
  list();
  home.write("qnt.startup", std::string(250, ' ') + "setlanguage German\n");
  EXPECT_EQ(chosenLanguage(environment, "zh_CN"), kGerman);
}

TEST_F(Languages, OfTheStartUpFileThatAreNotListedDoNotCount) {
  list();
  saveLanguage(kTraditional, environment);
  home.write("qnt.startup", "setlanguage tlh\n");
  EXPECT_EQ(chosenLanguage(environment, "de_DE"), kTraditional);
}

TEST_F(Languages, AreNotSavedWithoutAnInstallation) {
  saveLanguage(kGerman, [](const char*) { return std::string(); });
  saveLanguage(kGerman, environment);
  EXPECT_FALSE(home.has("i18n/languageSet.txt"));
}

TEST_F(Languages, HaveTheirTranslationFilesInTheInstallation) {
  EXPECT_EQ(translationFile(kGerman, environment), "");
  home.write("i18n/qnt_de.qm", "");
  EXPECT_EQ(translationFile(kGerman, environment), home.path() + "/i18n/qnt_de.qm");
  EXPECT_EQ(translationFile(kGerman, [](const char*) { return std::string(); }), "");
}

}  // namespace
}  // namespace vrel
