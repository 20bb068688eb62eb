// The command language as a host meets it: words on the command line, lines on standard input,
// messages on standard error.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "system/host.h"

namespace vrel {
namespace {

using test::Host;
using test::Outcome;
using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kHelpHeader = "\tCmdName     MinArgs MaxArgs \tUsage\n";

TEST(Program, RunsItsArgumentsThenStandardInput) {
  Host host;
  const Outcome outcome = host.run({"echo a", "echo b;echo c"}, "echo d\necho e");
  EXPECT_EQ(outcome.err, "a\nb\nc\n[vrel] d\n[vrel] e\n[vrel] ");
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.status, 0);
}

TEST(Program, PromptsOnStandardErrorAndEndsWithTheInput) {
  Host host;
  const Outcome outcome = host.run({});
  EXPECT_EQ(outcome.err, "[vrel] ");
  EXPECT_EQ(outcome.status, 0);
}

TEST(Program, QuitEndsItAndLeavesTheRestOfTheLine) {
  Host host;
  const Outcome outcome = host.run({}, "echo a;quit;echo b\necho c\n");
  EXPECT_EQ(outcome.err, "[vrel] a\n");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(host.run({"quit", "echo a"}, "echo b\n").err, "");
}

TEST(Program, ExitGivesItsStatus) {
  Host host;
  EXPECT_EQ(host.run({"exit"}).status, 0);
  EXPECT_EQ(host.run({"exit 7", "echo a"}).status, 7);
  EXPECT_EQ(host.run({"exit -1"}).status, 255);
  EXPECT_EQ(host.run({"exit 256"}).status, 0);
  EXPECT_EQ(host.run({"exit none"}).status, 0);
}

TEST(Program, ExitInACommandFileEndsTheProcess) {
  Host host;
  host.write("cmds.txt", "echo a\nexit 3\necho b\n");
  const Outcome outcome = host.run({"<cmds.txt"}, "echo c\n");
  EXPECT_EQ(outcome.err, "a\n");
  EXPECT_EQ(outcome.status, 3);
}

TEST(Program, UnknownCommandsAndWrongCountsAreTold) {
  Host host;
  const Outcome outcome = host.run({"readtable x", "readTable a b", "readTable", "echo 'a;b'"});
  EXPECT_EQ(outcome.err,
            "vrel: command \"readtable\" not found\n"
            "vrel: \"readTable\" called with too many args (max 1) - \"readTable fname\"\n"
            "vrel: \"readTable\" called with too few args (min 1) - \"readTable fname\"\n"
            "Missing Match ' in 'avrel: command \"b'\" not found\n"
            "[vrel] ");
  EXPECT_EQ(outcome.status, 0);
}

TEST(Program, TwoCommandsStandOnOneLine) {
  Host host;
  EXPECT_EQ(host.run({"readTable a;readView b"}).err,
            "cidReadTable: cannot open file \"a\"\n"
            "cidReadView: no table loaded, function stopped\n[vrel] ");
}

TEST(Program, LongLinesRunInPieces) {
  Host host;
  const std::string blanks(4095 - 6, ' ');
  EXPECT_EQ(host.run({}, "echo a" + blanks + "echo b\n").err, "[vrel] a\n[vrel] b\n[vrel] ");
}

TEST(Program, ALongArgumentWordRunsAsAWhole) {
  Host host;
  const std::string word(20000, 'w');
  EXPECT_EQ(host.run({"echo " + word}).err, word + "\n[vrel] ");
}

TEST(Program, TooManyWordsAreRefused) {
  Host host;
  std::string line = "echo";
  for (int i = 0; i < 512; ++i) {
    line += " w";
  }
  EXPECT_EQ(host.run({line, "echo a"}).err, "vrel: too many words (max 512)\na\n[vrel] ");
}

TEST(Program, ArbitraryBytesDoNoHarm) {
  Host host;
  std::string bytes;
  for (int i = 0; i < 20000; ++i) {
    const char byte = static_cast<char>(i * 7919 / 256 + i * 31);
    // Nothing is to run or to write files by chance.
    bytes += byte == '!' || byte == '>' ? '?' : byte;
  }
  EXPECT_EQ(host.run({}, bytes + "\nexit 5\n").status, 5);
}

TEST(Help, ListsTheApplicationsCommandsFirst) {
  Host host;
  const Outcome outcome = host.run({"help"});
  EXPECT_EQ(outcome.err, std::string(kHelpHeader) +
                             "vrel\n"
                             "   smart                     1,  1,\tfname.mgt\n"
                             "   readTable                 1,  1,\tfname\n"
                             "   printreport               0,  1,\t[\"print cmd\"]\n"
                             "   exportreport              0,  2,\t[quotes/noquotes] [filename]\n"
                             "   readView                  1,  1,\tfname\n"
                             "   guessView                 0,  0,\tno_args\n"
                             "   readDesc                  1,  1,\tfname\n"
                             "   readData                  1,  1,\tfname\n"
                             "   RecalculateFormulas       0,  0,\tno_args\n"
                             "   RecalculateInverseFormulas  0,  0,\tno_args\n"
                             "   dumptable                 0,  0,\tno_args\n"
                             "   aggregate                 0,  0,\tno_args\n"
                             "   appendTranslate           1,  1,\ty/n\n"
                             "   translate                 2,  2,\tfromFile toFile\n"
                             "   xsync                     1,  1,\ty/n\n"
                             "   abortOnWarnings           1,  1,\ty/n\n"
                             "   exitOnCmdError            1,  1,\ty/n\n"
                             "   ui                        0,  1,\t[title]\n"
                             "   parameters                1,  1,\tchild_process_parameters\n"
                             "   rm                        1,  1,\tfile\n"
                             "   cd                        1,  1,\tdirectory\n"
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
                             "   verbose                   1,  1,\ty/n/-progress/+progress\n"
                             "[vrel] ");
  EXPECT_EQ(outcome.out, "");
}

TEST(Help, FindsCommandsByAPattern) {
  Host host;
  EXPECT_EQ(host.run({"?read*"}).err, std::string(kHelpHeader) +
                                          "vrel\n"
                                          "   readTable                 1,  1,\tfname\n"
                                          "   readView                  1,  1,\tfname\n"
                                          "   readDesc                  1,  1,\tfname\n"
                                          "   readData                  1,  1,\tfname\n"
                                          "[vrel] ");
  EXPECT_EQ(host.run({"help zz"}).err, std::string(kHelpHeader) + "\"zz\", No match.\n[vrel] ");
}

TEST(Help, GoesThroughThePagerOnATerminal) {
  Host host;
  host.write("bin/more", "#!/bin/sh\nwhile read line; do echo \"page: $line\"; done\n");
  std::filesystem::permissions(host.directory.path("bin/more"), std::filesystem::perms::owner_all);
  host.environment["PATH"] = host.directory.path("bin") + ":" + host.environment["PATH"];
  EXPECT_EQ(host.runOnTerminal({"echo before;help zz;echo after", "exit"}),
            "before\r\npage: CmdName     MinArgs MaxArgs \tUsage\r\n"
            "page: \"zz\", No match.\r\nafter\r\n");
  EXPECT_THAT(host.runOnTerminal({">stdout;help zz", "exit"}), StartsWith("page: CmdName"));
}

TEST(Help, WithoutAPagerWritesStraightOn) {
  Host host;
  host.environment["PATH"] = host.directory.path("bin");
  EXPECT_EQ(host.runOnTerminal({"help zz", "exit"}),
            "\tCmdName     MinArgs MaxArgs \tUsage\r\n\"zz\", No match.\r\n");
}

TEST(Redirection, ChoosesStandardOutputOrAFile) {
  Host host;
  const Outcome outcome =
      host.run({},
               "echo a\n>stdout\necho b\n> out.txt\necho c;echo d\n>>out.txt\necho e\n"
               "> stderr\necho f\n");
  EXPECT_EQ(outcome.err, "[vrel] a\n[vrel] [vrel] f\n[vrel] ");
  EXPECT_EQ(outcome.out, "[vrel] b\n[vrel] ");
  EXPECT_EQ(host.read("out.txt"),
            "[vrel] echo cc\necho d\nd\n[vrel] >>out.txt\n[vrel] echo e\ne\n[vrel] > stderr\n");
}

TEST(Redirection, ShowsThePieceAsItWasTyped) {
  Host host;
  EXPECT_EQ(host.run({"> out.txt", "verbose y", "<nofile  ", "", "echo  x"}).err, "");
  EXPECT_EQ(host.read("out.txt"),
            "verbose y# <nofile  <nofile  FStack: could not open file \"nofile\"\n"
            "# echo  xecho  xx\n[vrel] ");
}

TEST(Redirection, ThatFailsIsTold) {
  Host host;
  EXPECT_EQ(host.run({">no/out.txt", ">> no/out.txt", "echo a"}).err,
            "vrel redirectout(>): could not open \"no/out.txt\"\n"
            "vrel redirectout(>>): could not open \"no/out.txt\"\na\n[vrel] ");
}

TEST(Redirection, LastsAcrossCommandFiles) {
  Host host;
  host.write("cmds.txt", "> out.txt\necho a\n");
  EXPECT_EQ(host.run({"<cmds.txt"}, "echo b\n").err, "");
  EXPECT_EQ(host.read("out.txt"), "echo a\na\n[vrel] echo b\nb\n[vrel] ");
}

TEST(SystemCommand, RunsInOrderWithTheProgramsOwnOutput) {
  Host host;
  const Outcome outcome = host.run({"echo a", "!echo b , c >&2", "echo d"});
  EXPECT_EQ(outcome.err, "a\nb c\nd\n[vrel] ");
  EXPECT_EQ(host.run({">stdout", "echo a", "! echo b", "echo c"}).out, "a\nb\nc\n[vrel] ");
}

TEST(SystemCommand, LeavesStandardInputToTheProgram) {
  Host host;
  EXPECT_EQ(host.run({}, "! cat\necho a\n").err, "[vrel] [vrel] a\n[vrel] ");
}

TEST(CommandFiles, NestTenDeepAndNoDeeper) {
  Host host;
  for (int i = 1; i <= 10; ++i) {
    host.write("f" + std::to_string(i),
               "<f" + std::to_string(i + 1) + "\necho end " + std::to_string(i) + "\n");
  }
  host.write("f11", "echo too deep\n");
  EXPECT_EQ(host.run({}, "<f1\n").err,
            "[vrel] FStack: too many stack levels\nend 10\nend 9\nend 8\nend 7\nend 6\nend 5\n"
            "end 4\nend 3\nend 2\nend 1\n[vrel] ");
}

TEST(CommandFiles, EndWithQuit) {
  Host host;
  host.write("cmds.txt", "echo a\r\nquit\r\necho b\r\n");
  EXPECT_EQ(host.run({}, "<cmds.txt\necho c\n").err,
            "[vrel] a\nvrel: stream terminated with quit\n[vrel] c\n[vrel] ");
}

TEST(CommandFiles, ThatCannotBeOpenedAreTold) {
  Host host;
  EXPECT_EQ(host.run({"< nofile", "< ."}).err,
            "FStack: could not open file \"nofile\"\nFStack: could not open file \".\"\n[vrel] ");
}

TEST(Recording, WritesWhatRanSoThatItCanRunAgain) {
  Host host;
  host.write("cmds.txt", "echo 'x y'\n# note\n");
  const std::string shown = host.run({"record rec.txt"}, "<cmds.txt\necho a,b;nope\nrecord\n").err;
  EXPECT_EQ(shown, "[vrel] x y\n[vrel] a b\nvrel: command \"nope\" not found\n[vrel] [vrel] ");
  EXPECT_EQ(host.read("rec.txt"),
            "#\"<\" \"cmds.txt\"\n\t\"echo\" \"x y\"\n#\t note\n\"echo\" \"a\" \"b\"\n"
            "\"record\"\n");
  EXPECT_THAT(host.run({"<rec.txt"}).err, HasSubstr("x y\na b\n"));
}

TEST(Timestamp, IsTheCurrentTime) {
  Host host;
  const auto before = std::time(nullptr);
  const auto shown = std::stoll(host.run({"timestamp"}).err);
  EXPECT_GE(shown, before);
  EXPECT_LE(shown, std::time(nullptr));
}

}  // namespace
}  // namespace vrel
