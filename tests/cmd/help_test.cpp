#include "cmd/help.h"

#include <gtest/gtest.h>

#include "cmd/console.h"
#include "support/temporary_directory.h"

namespace vrel {
namespace {

using test::Console;
using test::TemporaryDirectory;

constexpr const char* kHeader = "\tCmdName     MinArgs MaxArgs \tUsage\n";

TEST(Help, ListsAllTablesTheLastFirst) {
  Console console;
  EXPECT_EQ(console.piece("help\n"),
            std::string(kHeader) +
                "demo\n"
                "   one                       1,  1,\tword\n"
                "   none                      0,  0,\tno_args\n"
                "   some                      0, 20,\t[args]\n"
                "   two                       2,  2,\tfrom to\n"
                "   stop                      0,  0,\tno_args\n"
                "\n"
                "*** General ***\n"
                "   !                         1, 20,\tunixcmd [args]\n"
                "   ?                         0,  1,\t(same as help)\n"
                "   <                         1,  1,\tfile_name\n"
                "   >                         1,  1,\tfile_name\n"
                "   >>                        1,  1,\tfile_name\n"
                "   coredump                  1,  1,\t(y/n)\n"
                "   echo                      0, 20,\t[args]\n"
                "   exit                      0,  1,\texit_value\n"
                "   help                      0,  1,\t[cmd_pattern]\n"
                "   panicsave                 1,  1,\ty/n\n"
                "   quit                      0,  0,\tno_args\n"
                "   record                    0,  1,\t[filename]\n"
                "   timestamp                 0,  0,\tno_args\n"
                "   verbose                   1,  1,\ty/n/-progress/+progress\n");
}

TEST(Help, WithAPatternListsWhatMatchesWithoutEmptyLines) {
  Console console;
  EXPECT_EQ(console.piece("? *o*e"), std::string(kHeader) + "\"*o*e\", No match.\n");
  EXPECT_EQ(console.piece("help *e"),
            std::string(kHeader) +
                "demo\n"
                "   one                       1,  1,\tword\n"
                "   none                      0,  0,\tno_args\n"
                "   some                      0, 20,\t[args]\n"
                "*** General ***\n"
                "   panicsave                 1,  1,\ty/n\n"
                "   verbose                   1,  1,\ty/n/-progress/+progress\n");
}

TEST(Help, TellsWhenNothingMatches) {
  Console console;
  EXPECT_EQ(console.piece("help zz"), std::string(kHeader) + "\"zz\", No match.\n");
}

TEST(Help, HeadingsStandApart) {
  Console console;
  console.add({"more",
               {{1, "Reading", 0, 0, "Title"}, {2, "load", 0, 1, "[file]"}},
               console.noting("more")});
  EXPECT_EQ(console.piece("help Read*"), std::string(kHeader) +
                                             "more\n\n*** Reading ***\n\n"
                                             "\"Read*\", No match.\n");
  EXPECT_EQ(console.piece("help load"), std::string(kHeader) +
                                            "more\n"
                                            "   load                      0,  1,\t[file]\n");
}

TEST(Help, ATableWithoutRecordsHasNoTitle) {
  Console console;
  console.add({"empty", {}, console.noting("empty")});
  EXPECT_EQ(console.piece("help").substr(0, std::string(kHeader).size() + 5),
            std::string(kHeader) + "demo\n");
}

TEST(Help, ShowsAMaximumThatStaysRaised) {
  Console console;
  console.piece("none a -consInfo");
  EXPECT_EQ(console.piece("help none"), std::string(kHeader) +
                                            "demo\n"
                                            "   none                      0,  8,\tno_args\n");
}

TEST(Help, GoesToARedirectedOutput) {
  const TemporaryDirectory directory;
  Console console;
  console.piece("> '" + directory.path("out.txt") + "'");
  console.piece("help zz\n");
  console.interpreter.output->flush();
  EXPECT_EQ(directory.read("out.txt"), "help zz\n" + std::string(kHeader) + "\"zz\", No match.\n");
}

TEST(Pattern, WithoutAStarMustEqualTheName) {
  EXPECT_TRUE(matchesPattern("readTable", "readTable"));
  EXPECT_FALSE(matchesPattern("readTable", "read"));
  EXPECT_FALSE(matchesPattern("readTable", ""));
}

TEST(Pattern, AStarStandsForAnyText) {
  EXPECT_TRUE(matchesPattern("readTable", "read*"));
  EXPECT_TRUE(matchesPattern("readTable", "*Table"));
  EXPECT_TRUE(matchesPattern("readTable", "r*e"));
  EXPECT_TRUE(matchesPattern("readTable", "*"));
  EXPECT_TRUE(matchesPattern("readTable", "readTable*"));
  EXPECT_FALSE(matchesPattern("readTable", "Read*"));
}

TEST(Pattern, PrefixAndSuffixDoNotOverlap) {
  EXPECT_TRUE(matchesPattern("aba", "a*a"));
  EXPECT_FALSE(matchesPattern("a", "a*a"));
  EXPECT_FALSE(matchesPattern("aba", "ab*ba"));
}

TEST(Pattern, ASecondStarIsAPlainCharacter) {
  EXPECT_FALSE(matchesPattern("readTable", "*ead*"));
  EXPECT_TRUE(matchesPattern("read*", "*ead*"));
}

TEST(Pattern, OnlyThePartAfterTheLastSlashIsMatched) {
  EXPECT_TRUE(matchesPattern("io/readTable", "read*"));
  EXPECT_FALSE(matchesPattern("io/readTable", "io*"));
}

}  // namespace
}  // namespace vrel
