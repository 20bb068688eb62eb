#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>

#include "cmd/application_test.h"

namespace vrel {
namespace {

using testing::MatchesRegex;

/// The program is one that does nothing but end; what its words come to is tested with the built
/// program.
class SmartCommand : public test::ApplicationTest {
 protected:
  SmartCommand() { session.arguments = {"true"}; }

  /// What `smart` writes for a file with that text; "DIR" stands for the directory and
  /// "DD" for each section file in it, by its number.
  std::string smart(std::string_view text) {
    files.write("plan.mgt", text);
    std::string shown = run("smart " + quoted("plan.mgt"));
    for (std::size_t at = shown.find(sections()); at != std::string::npos;
         at = shown.find(sections())) {
      const std::string number = shown.substr(at + sections().size(), 9);
      EXPECT_EQ(number.find_first_not_of("0123456789"), std::string::npos) << shown;
      numbers_.push_back(number);
      shown.replace(at, sections().size() + 9, "DD");
    }
    return shown;
  }

  std::string sections() const { return files.path("dd"); }

  std::size_t fileCount() const {
    const std::filesystem::directory_iterator all(files.path());
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
  }

  std::vector<std::string> numbers_;
};

std::string commandFor(const std::string& title, const std::string& parameters = "") {
  return "true \"" + parameters + "\" \"readTable DD\" \"rm DD\" \"ui " + title + "\"\n";
}

TEST_F(SmartCommand, WithoutItsFileEndsTheProcess) {
  EXPECT_EQ(run("smart " + quoted("none.mgt")),
            "cidSmart: cannot open file \"" + files.path("none.mgt") + "\"\n(status -1)");
}

TEST_F(SmartCommand, RunsAChildForEachSectionAndEndsTheProcess) {
  session.childParameters = "xsync y";
  EXPECT_EQ(smart("# Start of output of model: First plan\nFieldNames:\tA\n"
                  "# Start of output of model: Second plan\nFieldNames:\tB\n"),
            commandFor("'First plan'", "xsync y") + commandFor("'Second plan'", "xsync y") +
                "(status 0)");
}

TEST_F(SmartCommand, EachSectionHasAFileOfItsOwnThatIsGoneInTheEnd) {
  smart("# Start of output 1\n# Start of output 2\n# Start of output 3\n");
  ASSERT_EQ(numbers_.size(), 6U);
  EXPECT_EQ(numbers_[0], numbers_[1]) << "read and removed";
  std::sort(numbers_.begin(), numbers_.end());
  numbers_.erase(std::unique(numbers_.begin(), numbers_.end()), numbers_.end());
  EXPECT_EQ(numbers_.size(), 3U);
  EXPECT_EQ(fileCount(), 1U);
}

TEST_F(SmartCommand, WithoutSectionsOnlyEndsTheProcess) {
  EXPECT_EQ(smart("FieldNames:\tA\n# Start of output\n#Start of output of: x\n"), "(status 0)");
  EXPECT_EQ(fileCount(), 1U);
}

TEST_F(SmartCommand, ATitleBeginsTwoBytesBehindTheFirstColon) {
  EXPECT_EQ(smart("# Start of output a: b: c \t\n"), commandFor("'b: c'") + "(status 0)");
  EXPECT_EQ(smart("# Start of output :xyz\r\n"), commandFor("'yz'") + "(status 0)");
  EXPECT_EQ(smart("# Start of output :  x"), commandFor("' x'") + "(status 0)");
}

TEST_F(SmartCommand, AMissingOrBlankTitleIsUnknown) {
  for (const char* line :
       {"# Start of output plan\n", "# Start of output plan:\n", "# Start of output plan: \n",
        "# Start of output plan:   \t \n", "# Start of output plan:x\n",
        "# Start of output plan:", "# Start of output plan:x"}) {
    EXPECT_EQ(smart(line), commandFor("Unknown") + "(status 0)") << line;
  }
}

TEST_F(SmartCommand, ALongTitleIsCutBetweenCharacters) {
  const std::string fits(1021, 'x');
  EXPECT_EQ(smart("# Start of output : " + fits + "yz\n"),
            commandFor("'" + fits + "'") + "(status 0)");
  const std::string almost(1020, 'x');
  EXPECT_EQ(smart("# Start of output : " + almost + "\xc3\xa9\n"),
            commandFor("'" + almost + "'") + "(status 0)");
}

TEST_F(SmartCommand, PrintsATitleAsItStands) {
  EXPECT_EQ(smart("# Start of output : $HOME \"it's\" `x` \\\n"),
            commandFor("'$HOME \"it's\" `x` \\'") + "(status 0)");
}

#ifndef _WIN32
TEST_F(SmartCommand, GivesEachChildItsSectionWithItsFirstLineAndWithoutThePlan) {
  const std::string program =
      files.write("show", "#!/bin/sh\ncat \"${2#readTable }\" >>\"$(dirname \"$0\")/shown\"\n");
  std::filesystem::permissions(program, std::filesystem::perms::owner_all);
  session.arguments = {program};
  const std::string longest(4095, 'x');
  smart(
      "nobody's\n"
      "# Start of output : A\n# addroot 1 a\n # addroot\n#\n" +
      longest +
      "# addroot in the next piece\n"
      "# Start of output : B\r\nlast");
  EXPECT_EQ(files.read("shown"),
            "# Start of output : A\n # addroot\n#\n" + longest + "# Start of output : B\nlast");
}

TEST_F(SmartCommand, EndsWithoutAChildWhenASectionCannotBeWritten) {
  session.environment = [this](const char* name) {
    return std::string(name) == "HOME" ? files.path("none") : std::string();
  };
  EXPECT_THAT(smart("# Start of output 1\n# Start of output 2\n"),
              MatchesRegex("cidSmart: cannot open temp file \"" + files.path("none") +
                           "/dd[0-9]{9}\"\n\\(status 0\\)"));
}

TEST_F(SmartCommand, LeavesNoSectionBehindWhenALaterOneCannotBeWritten) {
  // The first section goes into the directory, and then there is none any more.
  int asked = 0;
  session.environment = [this, &asked](const char* name) {
    return std::string(name) == "KORVHOME" ? files.path(asked++ == 0 ? "" : "none") : std::string();
  };
  EXPECT_THAT(smart("# Start of output 1\n# Start of output 2\n# Start of output 3\n"),
              MatchesRegex("cidSmart: cannot open temp file \"" + files.path("none") +
                           "/dd[0-9]{9}\"\n\\(status 0\\)"));
  EXPECT_EQ(fileCount(), 1U);
}
#endif

}  // namespace
}  // namespace vrel
