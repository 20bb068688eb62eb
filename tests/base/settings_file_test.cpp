#include "base/settings_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/platform.h"
#include "support/formula_table.h"
#include "support/temporary_directory.h"

namespace vrel {
namespace {

using testing::ElementsAre;

class UserSettings : public testing::Test {
 protected:
  // A home directory, and an installation in it.
  test::TemporaryDirectory home;
  EnvironmentLookup environment = [this](const char* name) {
    const std::string_view variable = name;
    return variable == "HOME"       ? home.path()
           : variable == "KORVHOME" ? home.path("korv")
                                    : std::string();
  };
  Settings settings;
  std::vector<std::string> warnings;
  ToolkitWarning warn = [this](std::string_view text) { warnings.emplace_back(text); };
  test::Watcher boxes;

  void read(std::string_view file) {
    home.write(".qnt.ini", file);
    EXPECT_TRUE(readSettings(settings, environment, warn));
  }
};

TEST_F(UserSettings, HaveAPlaceForEachEntry) {
  read(
      "##Creator: host\n"
      "lastKorvFile[1]=/m/one.korv\n"
      "lastKorvFile[2]= two words \n"
      "recentlyAddedNode[1]=Lyon\n"
      "lastVisitedPath[1]=/data\n"
      "applicationFont=Arial,8,-1,5,50,0,0,0,0,0\n");
  EXPECT_EQ(settings, (Settings{.lastKorvFile = {"/m/one.korv", "two words"},
                                .lastVisitedPath = {"/data"},
                                .recentlyAddedNode = {"Lyon"},
                                .applicationFont = "Arial,8,-1,5,50,0,0,0,0,0"}));
  EXPECT_THAT(warnings, ElementsAre());
}

TEST_F(UserSettings, AreToldApartByTheBeginningsOfTheirLines) {
  read("applicationFont = Arial,8\r\nlastKorvFileOfAll=x\n");
  EXPECT_EQ(settings.applicationFont, "Arial,8");
  EXPECT_THAT(settings.lastKorvFile, ElementsAre("x"));
}

TEST_F(UserSettings, AreTheFirstFiveOfSevenFilesWithTwoWarnings) {
  std::string file;
  for (int i = 1; i <= 7; ++i) {
    file += "lastKorvFile[" + std::to_string(i) + "]=f" + std::to_string(i) + "\n";
  }
  read(file);
  EXPECT_THAT(settings.lastKorvFile, ElementsAre("f1", "f2", "f3", "f4", "f5"));
  EXPECT_THAT(warnings, ElementsAre("Illegal line in .ini file", "Illegal line in .ini file"));
}

TEST_F(UserSettings, AreFiveNodesAndOneDirectoryAtMost) {
  std::string file = "lastVisitedPath[1]=/a\nlastVisitedPath[2]=/b\n";
  for (int i = 1; i <= 6; ++i) {
    file += "recentlyAddedNode[" + std::to_string(i) + "]=n" + std::to_string(i) + "\n";
  }
  read(file);
  EXPECT_THAT(settings.recentlyAddedNode, ElementsAre("n1", "n2", "n3", "n4", "n5"));
  EXPECT_THAT(settings.lastVisitedPath, ElementsAre("/a"));
  EXPECT_EQ(warnings.size(), 2u);
}

TEST_F(UserSettings, ComeWithAWarningForEveryLineThatIsNoEntry) {
  read("\nnonsense\nother=1\nlastKorvFile[1]=a=b\n # no comment\n#=a comment\n");
  EXPECT_EQ(warnings.size(), 5u);
  EXPECT_EQ(settings, Settings());
}

TEST_F(UserSettings, AreEmptiedBeforeReading) {
  settings = {.lastKorvFile = {"old"},
              .lastVisitedPath = {"old"},
              .recentlyAddedNode = {"old"},
              .applicationFont = "old"};
  read("");
  EXPECT_EQ(settings, Settings());
}

TEST_F(UserSettings, StayAsTheyAreWhenThereIsNoFile) {
  settings.lastKorvFile = {"kept"};
  EXPECT_FALSE(readSettings(settings, environment, warn));
  EXPECT_THAT(settings.lastKorvFile, ElementsAre("kept"));
  EXPECT_THAT(warnings, ElementsAre());
}

TEST_F(UserSettings, AreWrittenBehindAPrologInOrder) {
  home.write(".qnt.ini", "");
  home.write("korv/.version", "7.1\n");
  settings = {.lastKorvFile = {"a", "b", "c", "d", "e", "f"},
              .lastVisitedPath = {"/data", "/more"},
              .recentlyAddedNode = {"Lyon", "\xC3\x96sterg\xC3\xB6tland"},
              .applicationFont = "Arial,8"};
  saveSettings(settings, environment, boxes);
  const std::string file = home.read(".qnt.ini");
  const std::string user = platform::userName().empty() ? "unknown" : platform::userName();
  EXPECT_THAT(file,
              testing::StartsWith("##Creator: vrel 7.1\n##For: " + user + "\n##CreationDate: "));
  EXPECT_THAT(file,
              testing::ContainsRegex("##CreationDate: ... ... .. ....\n##EndComments\n#######"));
  const std::string rule(68, '#');
  EXPECT_THAT(file, testing::EndsWith("##EndComments\n" + rule +
                                      "\n#\n"
                                      "# Orvane Resource Configuration File Format.\n"
                                      "# This file format is Orvane proprietary.\n"
                                      "#\n" +
                                      rule +
                                      "\n##EndProlog\n"
                                      "lastKorvFile[1]=a\n"
                                      "lastKorvFile[2]=b\n"
                                      "lastKorvFile[3]=c\n"
                                      "lastKorvFile[4]=d\n"
                                      "lastKorvFile[5]=e\n"
                                      "recentlyAddedNode[1]=Lyon\n"
                                      "recentlyAddedNode[2]=\xC3\x96sterg\xC3\xB6tland\n"
                                      "lastVisitedPath[1]=/data\n"
                                      "applicationFont=Arial,8\n"));
}

TEST_F(UserSettings, ReadBackAsTheyWereWritten) {
  home.write(".qnt.ini", "");
  const Settings written = {.lastKorvFile = {"a"},
                            .lastVisitedPath = {"/data"},
                            .recentlyAddedNode = {"x", "y"},
                            .applicationFont = "Arial,8"};
  settings = written;
  saveSettings(settings, environment, boxes);
  settings = {};
  readSettings(settings, environment, warn);
  EXPECT_EQ(settings, written);
  EXPECT_THAT(warnings, ElementsAre());
}

TEST_F(UserSettings, BeginWithTheSampleDataAsLastVisitedDirectory) {
  settings.lastVisitedPath = {"/data"};
  saveSettings(settings, environment, boxes);
  EXPECT_THAT(settings.lastVisitedPath, ElementsAre(home.path("korv") + "/sample_data"));
  EXPECT_THAT(home.read(".qnt.ini"),
              testing::HasSubstr("lastVisitedPath[1]=" + home.path("korv") + "/sample_data\n"));
}

TEST_F(UserSettings, KeepWhatOthersNotedMeanwhileWhenTheDirectoryChanges) {
  read("lastKorvFile[1]=old\n");
  home.write(".qnt.ini", "lastKorvFile[1]=new\nlastVisitedPath[1]=/old\n");
  saveLastVisitedDirectory(settings, "/data", environment, warn, boxes);
  EXPECT_THAT(home.read(".qnt.ini"),
              testing::EndsWith("##EndProlog\nlastKorvFile[1]=new\nlastVisitedPath[1]=/data\n"));
}

// A file system object of that name that is no file can be opened by nobody, whoever runs the test.
TEST_F(UserSettings, ThatCannotBeWrittenAreToldInABox) {
  home.write(".qnt.ini/inside", "");
  boxes.window = true;
  saveSettings(settings, environment, boxes);
  EXPECT_THAT(boxes.told,
              ElementsAre("Orvane: [The location of the model cannot be saved because the file \"" +
                          settingsFile(environment) +
                          "\" is read-only.  Please make sure it has Write attributes.]"));
}

TEST_F(UserSettings, ThatCannotBeWrittenAreNotToldWithoutAWindow) {
  home.write(".qnt.ini/inside", "");
  saveSettings(settings, environment, boxes);
  EXPECT_THAT(boxes.told, ElementsAre());
}

TEST_F(UserSettings, HaveNoPlaceWithoutAHomeAndAnInstallation) {
  const Settings before = {.lastVisitedPath = {"/data"}};
  settings = before;
  saveSettings(
      settings, [](const char*) { return std::string(); }, boxes);
  EXPECT_EQ(settings, before);
  EXPECT_THAT(boxes.told, ElementsAre());
}

TEST_F(UserSettings, AreTheInstallationsWithoutAHome) {
  home.write("korv/.qnt.ini", "lastKorvFile[1]=installed\n");
  const std::string korv = home.path("korv");
  readSettings(
      settings,
      [&korv](const char* name) {
        return std::string_view(name) == "KORVHOME" ? korv : std::string();
      },
      warn);
  EXPECT_THAT(settings.lastKorvFile, ElementsAre("installed"));
}

}  // namespace
}  // namespace vrel
