// `smart`: the sections of a file, each shown by a child process.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "system/host.h"

namespace vrel {
namespace {

using test::Host;
using test::Outcome;

constexpr const char* kTable =
    "FieldNames:\tItem\tPeriod\tQty\t\n"
    "FieldTypes:\tString\tPeriod\tNumber\t\n"
    "PeriodValues:\tP1\tP2\t\n"
    "Bolt\tP1\t5\n";

/// The names of the section files are random: "DD" stands for each.
std::string withoutNumbers(std::string text, const std::string& directory) {
  const std::string file = directory + "/dd";
  for (std::size_t at = text.find(file); at != std::string::npos; at = text.find(file)) {
    text.replace(at, file.size() + 9, "DD");
  }
  return text;
}

std::string commandFor(const std::string& parameters, const std::string& title) {
  return std::string(VREL_PROGRAM) + " \"" + parameters + "\" \"readTable DD\" \"rm DD\" \"ui " +
         title + "\"\n";
}

/// Runs `smart` without a display, so that the children say what they would show.
Outcome smart(Host& host, const std::string& file, const std::string& folder) {
  host.write("plan.mgt", file);
  std::filesystem::create_directories(host.directory.path(folder));
  host.environment["HOME"] = host.directory.path(folder);
  Outcome outcome = host.run({"parameters echo_child", "smart plan.mgt", "echo never"});
  outcome.err = withoutNumbers(outcome.err, host.directory.path(folder));
  EXPECT_TRUE(std::filesystem::is_empty(host.directory.path(folder)));
  return outcome;
}

TEST(Smart, ShowsEachSectionByAChildOneAfterTheOther) {
  Host host;
  const Outcome outcome = smart(host,
                                "nobody's line\n"
                                "# Start of output of model: First plan\n"
                                "# addroot 1 a 2 b\n" +
                                    std::string(kTable) +
                                    "# Start of output of model: Second plan\n"
                                    "no table\n",
                                "home");
  EXPECT_EQ(outcome.err, commandFor("echo child", "'First plan'") +
                             "child\n"
                             "cidUI: cannot open a display.\n"
                             "[vrel] " +
                             commandFor("echo child", "'Second plan'") +
                             "child\n"
                             "cidReadTable: call to loadFromFile() fails\n"
                             "cidUI: cannot display \"Second plan\" - need valid tuple info.\n"
                             "[vrel] ");
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.status, 0);
}

TEST(Smart, ATitleMeansNothingToTheCommandProcessor) {
  Host host;
  const Outcome outcome = smart(host, "# Start of output : Bob's plan\n", "home");
  EXPECT_EQ(outcome.err, commandFor("echo child", "'Bob's plan'") +
                             "child\n"
                             "cidReadTable: call to loadFromFile() fails\n"
                             "cidUI: cannot display \"Bob's plan\" - need valid tuple info.\n"
                             "[vrel] ");
  const Outcome hostile = smart(host, "# Start of output : $(touch made) \"x\" \\\n", "home");
  EXPECT_EQ(hostile.err,
            commandFor("echo child", "'$(touch made) \"x\" \\'") +
                "child\n"
                "cidReadTable: call to loadFromFile() fails\n"
                "cidUI: cannot display \"$(touch made) \"x\" \\\" - need valid tuple info.\n"
                "[vrel] ");
  EXPECT_FALSE(host.directory.has("made"));
}

TEST(Smart, ATitleIsOneWordOfTheChildWhateverItHolds) {
  Host host;
  const Outcome separating = smart(host, "# Start of output : A; ! touch made; B\n", "home");
  EXPECT_EQ(separating.err,
            commandFor("echo child", "'A; ! touch made; B'") +
                "child\n"
                "cidReadTable: call to loadFromFile() fails\n"
                "cidUI: cannot display \"A#003b ! touch made#003b B\" - need valid tuple info.\n"
                "[vrel] ");
  EXPECT_FALSE(host.directory.has("made"));
  const Outcome quoted = smart(host, "# Start of output : `A` \"B\" it's 'C'\n", "home");
  EXPECT_EQ(quoted.err,
            commandFor("echo child", "'`A` \"B\" it's 'C''") +
                "child\n"
                "cidReadTable: call to loadFromFile() fails\n"
                "cidUI: cannot display \"`A` \"B\" it#0027s #0027C#0027\" - need valid tuple "
                "info.\n"
                "[vrel] ");
}

TEST(Smart, SectionFilesMayStandInAFolderWithABlankInItsName) {
  Host host;
  const Outcome outcome = smart(host, "# Start of output : P\n" + std::string(kTable), "my home");
  EXPECT_EQ(outcome.err, commandFor("echo child", "'P'") +
                             "child\n"
                             "cidUI: cannot open a display.\n"
                             "[vrel] ");
}

TEST(Smart, RemovesTheSectionOfAChildThatDoesNotStart) {
  Host host;
  host.write("plan.mgt", "# Start of output : P\n");
  host.environment["HOME"] = host.directory.path();
  // From another directory, a program that was named by a relative path is not found.
  host.write("deep/er/plan.mgt", "# Start of output : P\n");
  std::filesystem::copy_file(VREL_PROGRAM, host.directory.path("vrel"));
  host.write("run.sh", "./vrel 'cd deep/er' 'smart plan.mgt' </dev/null 2>/dev/null\n");
  const Outcome outcome = host.run({"! sh run.sh", "! ls"}, "");
  EXPECT_EQ(outcome.out, "deep\nplan.mgt\nrun.sh\nvrel\nvrel.log\n");
}

TEST(Smart, WithoutItsFileEndsWithStatusMinusOne) {
  Host host;
  const Outcome outcome = host.run({"smart none.mgt", "echo never"});
  EXPECT_EQ(outcome.err, "cidSmart: cannot open file \"none.mgt\"\n");
  EXPECT_EQ(outcome.status, 255);
}

TEST(Smart, WritesItsCommandsWhereTheOutputGoes) {
  Host host;
  host.write("plan.mgt", "# Start of output : P\n" + std::string(kTable));
  host.environment["HOME"] = host.directory.path();
  const Outcome outcome = host.run({"> stdout", "echo before", "smart plan.mgt"});
  EXPECT_EQ(withoutNumbers(outcome.out, host.directory.path()), "before\n" + commandFor("", "'P'"));
  EXPECT_EQ(outcome.err, "cidUI: cannot open a display.\n[vrel] ");
}

}  // namespace
}  // namespace vrel
