#include "cmd/general_commands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cmd/console.h"
#include "support/temporary_directory.h"

namespace vrel {
namespace {

using test::Console;
using test::ProcessEnded;
using test::TemporaryDirectory;
using testing::ElementsAre;

int exitStatusOf(Console& console, std::string_view piece) {
  try {
    console.piece(piece);
  } catch (const ProcessEnded& end) {
    return end.status;
  }
  ADD_FAILURE() << "did not end the process: " << piece;
  return 0;
}

TEST(Echo, WritesItsArgumentsSeparatedByBlanks) {
  Console console;
  EXPECT_EQ(console.piece("echo a,b  c\n"), "a b c\n");
  EXPECT_EQ(console.piece("echo \"a b\"x"), "a b x\n");
  EXPECT_EQ(console.piece("echo"), "\n");
}

TEST(Echo, TakesAtMostTwentyArguments) {
  Console console;
  EXPECT_EQ(console.piece("echo 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20"),
            "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20\n");
  EXPECT_EQ(console.piece("echo 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21"),
            "demo: \"echo\" called with too many args (max 20) - \"echo [args]\"\n");
}

TEST(Exit, EndsTheProcessWithTheLeadingNumber) {
  Console console;
  EXPECT_EQ(exitStatusOf(console, "exit"), 0);
  EXPECT_EQ(exitStatusOf(console, "exit 3"), 3);
  EXPECT_EQ(exitStatusOf(console, "exit -1"), -1);
  EXPECT_EQ(exitStatusOf(console, "exit +4"), 4);
  EXPECT_EQ(exitStatusOf(console, "exit ' 12abc'"), 12);
  EXPECT_EQ(exitStatusOf(console, "exit abc"), 0);
  EXPECT_EQ(exitStatusOf(console, "exit +-4"), 0);
  EXPECT_EQ(exitStatusOf(console, "exit ''"), 0);
  EXPECT_EQ(exitStatusOf(console, "exit 99999999999"), 2147483647);
}

TEST(Quit, EndsTheLoopAtThePrompt) {
  Console console("quit;one a\none b\n");
  EXPECT_EQ(console.loop(), "[demo] ");
  EXPECT_EQ(console.calls.size(), 0u);
}

TEST(Quit, EndsOnlyTheCommandFileInACommandFile) {
  const TemporaryDirectory directory;
  const std::string file = directory.write("cmds.txt", "one a\nquit;one b\none c\n");
  Console console("<'" + file + "'\none d\n");
  EXPECT_EQ(console.loop(), "[demo] demo: stream terminated with quit\n[demo] [demo] ");
  EXPECT_THAT(console.calls, ElementsAre("demo 1|one|a", "demo 1|one|b", "demo 1|one|d"));
}

TEST(Verbose, TakesYesNoAndTheProgressSwitch) {
  Console console;
  console.piece("verbose yes");
  EXPECT_TRUE(console.interpreter.verbose);
  console.piece("verbose Y");
  console.piece("verbose maybe");
  EXPECT_TRUE(console.interpreter.verbose);
  EXPECT_TRUE(console.interpreter.progress);
  console.piece("verbose -progress");
  EXPECT_FALSE(console.interpreter.progress);
  console.piece("verbose +progress");
  EXPECT_TRUE(console.interpreter.progress);
  console.piece("verbose no");
  EXPECT_FALSE(console.interpreter.verbose);
}

TEST(StoredSettings, AreOnExactlyForALowerCaseY) {
  Console console;
  console.piece("coredump yes");
  console.piece("panicsave y");
  EXPECT_TRUE(console.interpreter.coredump);
  EXPECT_TRUE(console.interpreter.panicsave);
  console.piece("coredump Y");
  console.piece("panicsave true");
  EXPECT_FALSE(console.interpreter.coredump);
  EXPECT_FALSE(console.interpreter.panicsave);
}

TEST(Timestamp, WritesTheSecondsSince1970) {
  Console console;
  const std::int64_t before = platform::currentTime();
  const std::int64_t shown = std::stoll(console.piece("timestamp"));
  EXPECT_GE(shown, before);
  EXPECT_LE(shown, platform::currentTime());
}

TEST(Redirection, SendsOutputToAFileThatNamesEachCommand) {
  const TemporaryDirectory directory;
  const std::string file = directory.path("out.txt");
  Console console("echo before\n> '" + file + "'\necho a;echo b\n# comment\n;\necho 'c\n" + ">> '" +
                  directory.path("more.txt") + "'\necho d\n");
  EXPECT_EQ(console.loop(), "[demo] before\n[demo] ");
  EXPECT_EQ(directory.read("out.txt"),
            "[demo] echo aa\necho b\nb\n[demo] [demo] [demo] echo 'c\nMissing Match ' in 'c\n"
            "[demo] >> '" +
                directory.path("more.txt") + "'\n");
  EXPECT_EQ(directory.read("more.txt"), "[demo] echo d\nd\n[demo] ");
}

TEST(Redirection, OverwritesOrAppends) {
  const TemporaryDirectory directory;
  directory.write("out.txt", "old\n");
  Console console;
  console.piece(">> '" + directory.path("out.txt") + "'");
  console.piece("none\n");
  console.interpreter.output->flush();
  EXPECT_EQ(directory.read("out.txt"), "old\nnone\n");
  console.piece("> '" + directory.path("out.txt") + "'");
  EXPECT_EQ(directory.read("out.txt"), "");
}

TEST(Redirection, AFileThatCannotBeOpenedLeavesTheOutputAsItWas) {
  Console console;
  EXPECT_EQ(console.piece("> no/such/file"),
            "demo redirectout(>): could not open \"no/such/file\"\n");
  EXPECT_EQ(console.piece(">> no/such/file"),
            "demo redirectout(>>): could not open \"no/such/file\"\n");
  EXPECT_EQ(console.piece("echo still here"), "still here\n");
}

TEST(Recording, WritesEachAcceptedCommandWithItsWordsQuoted) {
  const TemporaryDirectory directory;
  Console console("one 'a b';two c,d\nnot found\none\necho 'x\nrecord\n");
  console.loop({"record '" + directory.path("rec.txt") + "'"});
  EXPECT_EQ(directory.read("rec.txt"), "\"one\" \"a b\"\n\"two\" \"c\" \"d\"\n\"record\"\n");
}

TEST(Recording, CommentsOutIncludesAndIndentsWhatTheyRun) {
  const TemporaryDirectory directory;
  const std::string inner = directory.write("inner.txt", "one b\n#note\n");
  const std::string outer = directory.write("outer.txt", "< '" + inner + "'\none c\n");
  Console console("<'" + outer + "'\n# done\n");
  console.loop({"record '" + directory.path("rec.txt") + "'", "# no line end"});
  EXPECT_EQ(directory.read("rec.txt"), "# no line end#\"<\" \"" + outer + "\"\n#\t\"<\" \"" +
                                           inner +
                                           "\"\n\t\t\"one\" \"b\"\n#\t\tnote\n"
                                           "\t\"one\" \"c\"\n# done\n");
}

TEST(Recording, GoesToOneFileAtATime) {
  const TemporaryDirectory directory;
  Console console;
  EXPECT_EQ(console.piece("record"), "No record file open\n");
  EXPECT_EQ(console.piece("record no/such/file"), "Could not open \"no/such/file\"\n");
  EXPECT_EQ(console.piece("record '" + directory.path("a.txt") + "'"), "");
  EXPECT_EQ(console.piece("record '" + directory.path("b.txt") + "'"),
            "Record file already open\n");
  EXPECT_FALSE(directory.has("b.txt"));
  EXPECT_EQ(console.piece("record"), "");
  EXPECT_EQ(console.piece("record"), "No record file open\n");
}

TEST(GeneralCommands, AnIdWithoutACommandIsUnavailable) {
  Console console;
  const std::vector<std::string> words = {"word"};
  const CommandTable general = generalCommands(console.interpreter);
  for (const std::int32_t id : {0, 5, 10, 16, -1}) {
    EXPECT_EQ(general.handler(id, words), 1);
  }
  EXPECT_EQ(console.written(),
            "demo: command \"word\" unavailable\n"
            "demo: command \"word\" unavailable\n"
            "demo: command \"word\" unavailable\n"
            "demo: command \"word\" unavailable\n"
            "demo: command \"word\" unavailable\n");
}

}  // namespace
}  // namespace vrel
