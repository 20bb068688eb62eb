#include "ui/user_settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTranslator>

#include "ui/desk.h"

namespace vrel {
namespace {

using test::Desk;
using test::supplyPlan;
using testing::ElementsAre;

QFont fontOf(const std::optional<std::string>& text) {
  return applicationFont({.applicationFont = text});
}

TEST(ApplicationFont, IsArialUnicodeAtEightPointsWithoutASetting) {
  EXPECT_EQ(fontOf(std::nullopt).family(), "Arial Unicode MS");
  EXPECT_EQ(fontOf(std::nullopt).pointSize(), 8);
}

TEST(ApplicationFont, IsThatOfTheSettings) {
  EXPECT_EQ(fontOf("Courier,11").family(), "Courier");
  EXPECT_EQ(fontOf("Courier,11").pointSize(), 11);
  const QFont bold(QStringLiteral("Times"), 14, QFont::Bold);
  EXPECT_EQ(fontOf(bold.toString().toStdString()), bold);
  // As earlier releases of the toolkit wrote it.
  EXPECT_EQ(fontOf("Arial,9,-1,5,75,1,0,0,0,0").pointSize(), 9);
  EXPECT_TRUE(fontOf("Arial,9,-1,5,75,1,0,0,0,0").bold());
}

TEST(ApplicationFont, IsTheDefaultWhenTheSettingIsNoFont) {
  // The toolkit warns of it as well.
  const auto before =
      qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  EXPECT_EQ(fontOf("Arial,9,5,5").family(), "Arial Unicode MS");
  qInstallMessageHandler(before);
}

// A user with a home directory and an installation.
struct UserFiles : testing::Test {
  UserFiles() {
    desk.environment = [this](const char* name) {
      const std::string_view variable = name;
      return variable == "HOME"       ? files.path("home")
             : variable == "KORVHOME" ? files.path("korv")
                                      : std::string();
    };
    files.write("home/file", "");
  }

  test::TemporaryDirectory files;
  Desk desk{supplyPlan(), {"Item Place", "Week", "", "Plan"}, true};
};

TEST_F(UserFiles, GiveTheSettings) {
  files.write("home/.qnt.ini", "lastVisitedPath[1]=/data\nnonsense\n");
  readUserSettings(desk.context);
  EXPECT_EQ(desk.settings, Settings{.lastVisitedPath = {"/data"}});
  EXPECT_EQ(files.read("home/.qnt.ini"), "lastVisitedPath[1]=/data\nnonsense\n");
}

TEST_F(UserFiles, GetASettingsFileAtTheFirstStart) {
  readUserSettings(desk.context);
  EXPECT_THAT(files.read("home/.qnt.ini"),
              testing::EndsWith("##EndProlog\nlastVisitedPath[1]=" + files.path("korv") +
                                "/sample_data\n"));
}

// A folder of that name can be read as a file by nobody, whoever runs the test.
TEST_F(UserFiles, StayWhenTheSettingsCannotBeRead) {
  files.write("home/.qnt.ini/inside", "");
  readUserSettings(desk.context);
  EXPECT_EQ(desk.settings, Settings()) << "no file was to be made";
}

// The application's translators, taken away again.
struct InstalledLanguage : UserFiles {
  ~InstalledLanguage() override {
    for (QTranslator* translator : qApp->findChildren<QTranslator*>()) {
      QCoreApplication::removeTranslator(translator);
      delete translator;
    }
  }

  static QString shown(const char* context, const char* text) {
    return QCoreApplication::translate(context, text);
  }
};

TEST_F(InstalledLanguage, TranslatesTheProgramsAndTheToolkitsTexts) {
  files.write("korv/i18n/supported_languages.ini", "German,de\n");
  std::filesystem::copy(VREL_TRANSLATIONS "/qnt_de.qm", files.path("korv/i18n/qnt_de.qm"));
  installLanguage(*qApp, desk.environment, QStringLiteral("de_DE"));
  EXPECT_EQ(shown("VrelMainWindow", "&File"), QStringLiteral("&Datei"));
  EXPECT_EQ(shown("vrel", "Do you want to save changes to \"%1\"?"),
            QStringLiteral("Möchten Sie die Änderungen an \"%1\" speichern?"));
  EXPECT_EQ(shown("QPlatformTheme", "Cancel"), "Abbrechen");
  EXPECT_EQ(files.read("korv/i18n/languageSet.txt"), "German, de");
}

TEST_F(InstalledLanguage, IsEnglishWithoutTranslationFile) {
  files.write("korv/i18n/supported_languages.ini", "German,de\n");
  installLanguage(*qApp, desk.environment, QStringLiteral("de_DE"));
  EXPECT_EQ(shown("VrelMainWindow", "&File"), "&File");
  EXPECT_EQ(shown("QPlatformTheme", "Cancel"), "Cancel");
}

TEST_F(InstalledLanguage, IsNotRememberedWhenNoneIsListed) {
  files.write("korv/i18n/supported_languages.ini", "German,de\n");
  installLanguage(*qApp, desk.environment, QStringLiteral("fr_FR"));
  EXPECT_FALSE(files.has("korv/i18n/languageSet.txt"));
}

}  // namespace
}  // namespace vrel
