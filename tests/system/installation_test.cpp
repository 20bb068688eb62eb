// The program as it is installed, in the folder that KORVHOME names.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>

#include "system/host.h"

namespace vrel::test {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

// One installation for all tests, which change nothing in it but what a user's start does.
class Installation : public testing::Test {
 protected:
  void SetUp() override {
    const std::string command = "'" VREL_CMAKE "' --install '" VREL_BUILD "' --prefix '" +
                                home.path() + "' >'" + home.path("install.log") + "' 2>&1";
    ASSERT_EQ(std::system(command.c_str()), 0) << home.read("install.log");
    host.program = home.path("bin/vrel");
    host.environment["KORVHOME"] = home.path();
    host.environment["HOME"] = host.directory.path();
  }

  // Opens the window on the sample data and ends it.
  void openWindow() {
    host.environment["QT_QPA_PLATFORM"] = "offscreen";
    host.environment["QNT_ENABLE_CONSOLE_DEBUG_INFO"] = "1";
    const std::string table = "readTable " + home.path("sample_data/plan.tbl");
    Process process = host.start({table, "ui"});
    ASSERT_TRUE(process.waitForOutput("Entering app event loop\n"));
    process.signal(SIGTERM);
    EXPECT_EQ(process.waitForEnd().status, 0);
  }

  TemporaryDirectory home;
  Host host;
};

TEST_F(Installation, HoldsWhatTheProgramLooksFor) {
  EXPECT_EQ(home.read(".version"), VREL_VERSION "\n");
  EXPECT_THAT(home.read(".build"), EndsWith("\n"));
  EXPECT_TRUE(home.has("logs"));
  EXPECT_TRUE(home.has("sample_data/plan.tbl"));
  EXPECT_TRUE(home.has("sample_data/plan.view"));
}

TEST_F(Installation, RunsWithItsLogAndItsSampleData) {
  const Outcome outcome =
      host.run({"cd " + home.path("sample_data"), "readTable plan.tbl", "readView plan.view",
                "cd " + host.directory.path(), "exportreport quotes plan.sp"});
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  const std::string report = host.read("plan.sp");
  EXPECT_EQ(report.substr(0, report.find('\n')), "\"Soft drinks, weekly supply plan\"");
  EXPECT_THAT(home.read("logs/vrel.log"), HasSubstr("> exportreport quotes plan.sp\n"));
}

#ifdef VREL_HAS_WINDOW
TEST_F(Installation, OpensItsWindowInTheLocalesLanguageAndRemembersIt) {
  host.environment["LC_ALL"] = "fr_FR.UTF-8";
  openWindow();
  EXPECT_EQ(home.read("i18n/languageSet.txt"), "French, fr");
}

TEST_F(Installation, KeepsTheLanguageThatIsRemembered) {
  home.write("i18n/languageSet.txt", "Simplified Chinese, zh_CN\n");
  host.environment["LC_ALL"] = "fr_FR.UTF-8";
  openWindow();
  EXPECT_EQ(home.read("i18n/languageSet.txt"), "Simplified Chinese, zh_CN");
}

TEST_F(Installation, TakesTheLanguageOfTheStartUpFile) {
  home.write("i18n/languageSet.txt", "Simplified Chinese, zh_CN\n");
  host.write("qnt.startup", "setlanguage Japanese\n");
  openWindow();
  EXPECT_EQ(home.read("i18n/languageSet.txt"), "Japanese, ja");
}

TEST_F(Installation, GivesANewUserASettingsFile) {
  openWindow();
  EXPECT_THAT(host.read(".qnt.ini"), StartsWith("##Creator: vrel " VREL_VERSION "\n##For: "));
  EXPECT_THAT(host.read(".qnt.ini"),
              EndsWith("##EndProlog\nlastVisitedPath[1]=" + home.path() + "/sample_data\n"));
}
#endif

}  // namespace
}  // namespace vrel::test
