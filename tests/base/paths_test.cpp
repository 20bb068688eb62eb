#include "base/paths.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <map>

#include "base/platform.h"
#include "support/temporary_directory.h"

namespace vrel {
namespace {

using test::TemporaryDirectory;

EnvironmentLookup environmentOf(std::map<std::string, std::string> values) {
  return [values = std::move(values)](const char* name) {
    const auto found = values.find(name);
    return found == values.end() ? std::string() : found->second;
  };
}

std::string inCurrentDirectory(const std::string& name) {
  return platform::absolutePath(name);
}

// Paths compare the same whichever separator joins the last part.
std::string normal(const std::string& path) {
  return std::filesystem::path(path).lexically_normal().make_preferred().string();
}

TEST(Environment, GivesTheHomesAndTheFirstTemporaryDirectory) {
  const auto environment = environmentOf({{"HOME", "/h"},
                                          {"KORVHOME", "/k"},
                                          {"KORV_MACRO_HOME", "/m"},
                                          {"TMP", "/tmp2"},
                                          {"TEMP", "/tmp3"}});
  EXPECT_EQ(userHome(environment), "/h");
  EXPECT_EQ(installationHome(environment), "/k");
  EXPECT_EQ(macroHome(environment), "/m");
  EXPECT_EQ(temporaryDirectory(environment), "/tmp2");
}

TEST(Environment, TheTemporaryDirectoryIsLookedForInOrder) {
  EXPECT_EQ(temporaryDirectory(environmentOf({{"TMPDIR", "/1"}, {"TMP", "/2"}, {"TEMP", "/3"}})),
            "/1");
  EXPECT_EQ(temporaryDirectory(environmentOf({{"TEMP", "/3"}})), "/3");
  EXPECT_EQ(temporaryDirectory(environmentOf({})), "");
}

TEST(FindFile, TakesTheFirstDirectoryThatIsSet) {
  EXPECT_EQ(normal(findFile({"", "no/such", "other"}, "a.txt", MustExist::No)),
            normal(inCurrentDirectory("no/such/a.txt")));
}

TEST(FindFile, TakesTheFirstDirectoryThatHoldsAFileThatMustExist) {
  const TemporaryDirectory directory;
  directory.write("b/a.txt", "");
  EXPECT_EQ(normal(findFile({directory.path("a"), directory.path("b")}, "a.txt", MustExist::Yes)),
            normal(directory.path("b/a.txt")));
}

TEST(FindFile, GivesNothingWhenTheListEnds) {
  EXPECT_EQ(findFile({"", ""}, "a.txt", MustExist::No), "");
  EXPECT_EQ(findFile({"no/such"}, "a.txt", MustExist::Yes), "");
}

TEST(LogPath, PrefersTheLogDirectoryThenTheInstallationThenTheCurrentDirectory) {
  const std::string separator(1, platform::kPathSeparator);
  EXPECT_EQ(logPath(environmentOf({{"KORVLOGDIR", "/logs"}, {"KORVHOME", "/k"}})),
            "/logs" + separator + "vrel.log");
  EXPECT_EQ(logPath(environmentOf({{"KORVHOME", "/k"}})),
            "/k" + separator + "logs" + separator + "vrel.log");
  EXPECT_EQ(logPath(environmentOf({})), "vrel.log");
}

TEST(SettingsFile, LivesInTheUsersHomeElseInTheInstallation) {
  EXPECT_EQ(normal(settingsFile(environmentOf({{"HOME", "/h"}, {"KORVHOME", "/k"}}))),
            normal(platform::absolutePath("/h/.qnt.ini")));
  EXPECT_EQ(normal(settingsFile(environmentOf({{"KORVHOME", "/k"}}))),
            normal(platform::absolutePath("/k/.qnt.ini")));
  EXPECT_EQ(settingsFile(environmentOf({})), "");
}

TEST(SmartGraphFile, LivesInAHomeElseInTheCurrentDirectory) {
  EXPECT_EQ(normal(smartGraphFile(environmentOf({{"HOME", "/h"}, {"KORVHOME", "/k"}}))),
            normal(platform::absolutePath("/h/qnt.smart")));
  EXPECT_EQ(normal(smartGraphFile(environmentOf({{"KORVHOME", "/k"}}))),
            normal(platform::absolutePath("/k/qnt.smart")));
  EXPECT_EQ(smartGraphFile(environmentOf({})), inCurrentDirectory("qnt.smart"));
}

TEST(StartupFile, IsTheFirstThatExists) {
  const TemporaryDirectory macros;
  const TemporaryDirectory home;
  const TemporaryDirectory installation;
  const auto environment = environmentOf({{"KORV_MACRO_HOME", macros.path()},
                                          {"HOME", home.path()},
                                          {"KORVHOME", installation.path()}});
  EXPECT_EQ(startupFile(environment), "");
  installation.write("qnt.startup", "");
  EXPECT_EQ(normal(startupFile(environment)), normal(installation.path("qnt.startup")));
  home.write("qnt.startup", "");
  EXPECT_EQ(normal(startupFile(environment)), normal(home.path("qnt.startup")));
  macros.write("qnt.startup", "");
  EXPECT_EQ(normal(startupFile(environment)), normal(macros.path("qnt.startup")));
}

TEST(InstallationFiles, AreBuiltOnTheInstallationHomeEvenWhenItIsNotSet) {
  const auto set = environmentOf({{"KORVHOME", "/k"}});
  EXPECT_EQ(versionFile(set), "/k/.version");
  EXPECT_EQ(buildFile(set), "/k/.build");
  EXPECT_EQ(sampleDataDirectory(set), "/k/sample_data");
  EXPECT_EQ(versionFile(environmentOf({})), "/.version");
}

TEST(TemporaryFileName, IsThePrefixAndNineDigits) {
  const TemporaryDirectory directory;
  const std::string path = temporaryFileName(environmentOf({{"KORVHOME", directory.path()}}), "dd");
  const std::filesystem::path name(path);
  EXPECT_TRUE(name.is_absolute());
  EXPECT_EQ(name.parent_path(), std::filesystem::path(directory.path()));
  const std::string file = name.filename().string();
  ASSERT_EQ(file.size(), 11u);
  EXPECT_EQ(file.substr(0, 2), "dd");
  EXPECT_EQ(file.find_first_not_of("0123456789", 2), std::string::npos);
}

TEST(TemporaryFileName, PrefersTheInstallationToTheHomeToTheTemporaryDirectory) {
  const auto directoryOf = [](std::map<std::string, std::string> values) {
    return std::filesystem::path(temporaryFileName(environmentOf(std::move(values)), "dd"))
        .parent_path()
        .lexically_relative(std::filesystem::current_path())
        .generic_string();
  };
  EXPECT_EQ(directoryOf({{"KORVHOME", "k"}, {"HOME", "h"}, {"TMPDIR", "t"}}), "k");
  EXPECT_EQ(directoryOf({{"HOME", "h"}, {"TMPDIR", "t"}}), "h");
  EXPECT_EQ(directoryOf({{"TMPDIR", "t"}}), "t");
}

TEST(TemporaryFileName, LivesInTheLastResortWhenNothingIsSet) {
  const std::string path = temporaryFileName(environmentOf({}), "dd");
  const std::string resort =
      normal(platform::absolutePath(std::string(platform::kLastResortDirectory) + "/x"));
  EXPECT_EQ(std::filesystem::path(path).parent_path(), std::filesystem::path(resort).parent_path());
}

TEST(TemporaryFileName, SeedsTheSharedGeneratorWithTheTimeAndDrawsFromIt) {
  const TemporaryDirectory directory;
  const auto environment = environmentOf({{"KORVHOME", directory.path()}});
  std::int64_t before = 0;
  std::string name;
  int next = 0;
  do {
    before = platform::currentTime();
    name = temporaryFileName(environment, "DE");
    next = std::rand();
  } while (platform::currentTime() != before);
  std::srand(static_cast<unsigned>(before));
  std::string digits = std::to_string(std::rand() % 1'000'000'000);
  digits.insert(0, 9 - digits.size(), '0');
  EXPECT_EQ(std::filesystem::path(name).filename().string(), "DE" + digits);
  EXPECT_EQ(std::rand(), next);
}

TEST(TemporaryFileName, AvoidsExistingFiles) {
  const TemporaryDirectory directory;
  const auto environment = environmentOf({{"KORVHOME", directory.path()}});
  std::vector<std::string> names;
  for (int i = 0; i < 20; ++i) {
    names.push_back(temporaryFileName(environment, "dd"));
    ASSERT_FALSE(std::filesystem::exists(names.back()));
    std::ofstream(names.back()) << i;
  }
  EXPECT_THAT(names, testing::Each(testing::HasSubstr("dd")));
}

TEST(LastViewName, CutsTheExtensionAndTheFolders) {
  EXPECT_EQ(lastViewName("data/plan.x.tbl"), "~last_plan.x.view");
  EXPECT_EQ(lastViewName("plan"), "~last_plan.view");
  EXPECT_EQ(lastViewName("a\\b.tbl"), "~last_a\\b.view");
}

TEST(LastViewName, SeparatorsInTheFirstPositionBelongToTheName) {
  EXPECT_EQ(lastViewName(".tbl"), "~last_.tbl.view");
  EXPECT_EQ(lastViewName("."), "~last_..view");
  EXPECT_EQ(lastViewName("/plan"), "~last_/plan.view");
  EXPECT_EQ(lastViewName(""), "~last_.view");
}

TEST(LastViewName, TheLastDotIsTakenWhereverItStands) {
  EXPECT_EQ(lastViewName("week.1/plan"), "~last_week.view");
}

}  // namespace
}  // namespace vrel
