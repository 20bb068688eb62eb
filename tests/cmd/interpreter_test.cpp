#include "cmd/interpreter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cmd/console.h"
#include "support/temporary_directory.h"

namespace vrel {
namespace {

using test::Console;
using test::TemporaryDirectory;
using testing::ElementsAre;
using testing::IsEmpty;

std::string words(int count) {
  std::string line = "some";
  for (int i = 1; i < count; ++i) {
    line += " w";
  }
  return line;
}

TEST(Piece, CallsTheHandlerWithTheCommandsIdAndWords) {
  Console console;
  EXPECT_EQ(console.piece("  some 'a b',c\td\n"), "");
  EXPECT_EQ(console.result, PieceResult::Found);
  EXPECT_THAT(console.calls, ElementsAre("demo 3|some|a b|c|d"));
}

TEST(Piece, WithoutWordsDoesNothing) {
  Console console;
  EXPECT_EQ(console.piece(" , \n"), "");
  EXPECT_EQ(console.result, PieceResult::NotRun);
  EXPECT_EQ(console.piece(""), "");
  EXPECT_THAT(console.calls, IsEmpty());
}

TEST(Piece, OfAnUnknownCommandIsReported) {
  Console console;
  EXPECT_EQ(console.piece("One x\n"), "demo: command \"One\" not found\n");
  EXPECT_EQ(console.result, PieceResult::NotRun);
}

TEST(Piece, WithAnUnclosedQuoteIsReportedWithoutALineEndOfItsOwn) {
  Console console;
  EXPECT_EQ(console.piece("some 'a"), "Missing Match ' in 'a");
  EXPECT_EQ(console.result, PieceResult::NotRun);
  EXPECT_EQ(console.piece("some x \"b c\n"), "Missing Match \" in \"b c\n");
  EXPECT_EQ(console.piece("some `"), "Missing Match ` in `");
  EXPECT_THAT(console.calls, IsEmpty());
}

TEST(Piece, BeginningWithTheCommentSignIsAComment) {
  Console console;
  EXPECT_EQ(console.piece("# one a\n"), "");
  EXPECT_EQ(console.result, PieceResult::NotRun);
  EXPECT_EQ(console.piece(" # one a"), "demo: command \"#\" not found\n");
}

TEST(Piece, HasAtMost512Words) {
  Console console;
  EXPECT_EQ(console.piece(words(513)), "demo: too many words (max 512)\n");
  EXPECT_EQ(console.piece(words(512)),
            "demo: \"some\" called with too many args (max 20) - \"some [args]\"\n");
  EXPECT_THAT(console.calls, IsEmpty());
}

TEST(Piece, HandsOnTheWishToEndTheLoop) {
  Console console;
  console.piece("stop");
  EXPECT_EQ(console.result, PieceResult::EndLoop);
}

TEST(ShortForm, ABlankIsInsertedBehindTheSign) {
  Console console;
  EXPECT_EQ(console.piece("<no/file.txt\n"), "FStack: could not open file \"no/file.txt\"\n");
  EXPECT_EQ(console.piece(">no/file.txt"), "demo redirectout(>): could not open \"no/file.txt\"\n");
  EXPECT_EQ(console.piece(">>no/file.txt"),
            "demo redirectout(>>): could not open \"no/file.txt\"\n");
  EXPECT_EQ(console.piece("?zz"), "\tCmdName     MinArgs MaxArgs \tUsage\n\"zz\", No match.\n");
}

TEST(ShortForm, ASignFollowedByABlankOrATabStaysAsItIs) {
  Console console;
  EXPECT_EQ(console.piece("< no/file"), "FStack: could not open file \"no/file\"\n");
  EXPECT_EQ(console.piece("<\tno/file"), "FStack: could not open file \"no/file\"\n");
  EXPECT_EQ(console.piece(">> no/file"), "demo redirectout(>>): could not open \"no/file\"\n");
  EXPECT_EQ(console.piece("<"), "demo: \"<\" called with too few args (min 1) - \"< file_name\"\n");
  EXPECT_EQ(console.piece(">>"),
            "demo: \">>\" called with too few args (min 1) - \">> file_name\"\n");
}

TEST(ShortForm, TwoSignsFollowedByATabAreSplit) {
  Console console;
  EXPECT_EQ(console.piece(">>\tfile"),
            "demo: \">\" called with too many args (max 1) - \"> file_name\"\n");
}

TEST(ShortForm, ASecondSignMakesAnAppendingRedirectionWhateverTheFirst) {
  Console console;
  EXPECT_EQ(console.piece("!>no/file"), "demo redirectout(>>): could not open \"no/file\"\n");
}

TEST(ArgumentCheck, TellsTooFewAndTooManyArguments) {
  Console console;
  EXPECT_EQ(console.piece("two a"),
            "demo: \"two\" called with too few args (min 2) - \"two from to\"\n");
  EXPECT_EQ(console.result, PieceResult::Found);
  EXPECT_EQ(console.piece("one a b"),
            "demo: \"one\" called with too many args (max 1) - \"one word\"\n");
  EXPECT_THAT(console.calls, IsEmpty());
}

TEST(ArgumentCheck, ConsoleInformationRaisesTheMaximumForThisCall) {
  Console console;
  EXPECT_EQ(console.piece("one a -consInfo b c d e f g"), "");
  EXPECT_THAT(console.calls, ElementsAre("demo 1|one|a|-consInfo|b|c|d|e|f|g"));
  EXPECT_EQ(console.piece("one a -consInfo b c d e f g h"),
            "demo: \"one\" called with too many args (max 8) - \"one word\"\n");
  EXPECT_EQ(console.piece("one a b"),
            "demo: \"one\" called with too many args (max 1) - \"one word\"\n");
}

TEST(ArgumentCheck, ConsoleInformationCountsAsTheSecondArgumentOnly) {
  Console console;
  EXPECT_EQ(console.piece("one -consInfo b"),
            "demo: \"one\" called with too many args (max 1) - \"one word\"\n");
}

TEST(ArgumentCheck, AMaximumOfZeroStaysRaised) {
  Console console;
  EXPECT_EQ(console.piece("none a"),
            "demo: \"none\" called with too many args (max 0) - \"none no_args\"\n");
  EXPECT_EQ(console.piece("none a -consInfo"), "");
  EXPECT_EQ(console.piece("none a b c d e f g h"), "");
  EXPECT_EQ(console.piece("none a b c d e f g h i"),
            "demo: \"none\" called with too many args (max 8) - \"none no_args\"\n");
}

TEST(ArgumentCheck, TooFewArgumentsWithConsoleInformationLeaveTheMaximumRaised) {
  Console console;
  console.add({"more", {{1, "three", 3, 3, "a b c"}}, console.noting("more")});
  EXPECT_EQ(console.piece("three a b c d"),
            "demo: \"three\" called with too many args (max 3) - \"three a b c\"\n");
  EXPECT_EQ(console.piece("three a -consInfo"),
            "demo: \"three\" called with too few args (min 3) - \"three a b c\"\n");
  EXPECT_EQ(console.piece("three a b c d"), "");
}

TEST(Tables, TheLaterOneWinsAndTellsWhatItReplaces) {
  Console console;
  EXPECT_EQ(console.registered, "");
  console.add({"more", {{7, "echo", 0, 1, ""}, {8, "one", 0, 0, ""}}, console.noting("more")});
  EXPECT_EQ(console.registered,
            "DbgAddCommands: warning: more:echo replaces *** General ***:echo\n"
            "DbgAddCommands: warning: more:one replaces demo:one\n");
  EXPECT_EQ(console.added, 0);
  EXPECT_EQ(console.piece("echo a"), "");
  EXPECT_THAT(console.calls, ElementsAre("more 7|echo|a"));
}

TEST(Tables, AWrongCountLeavesAnEarlierTableItsChance) {
  Console console;
  console.add({"more", {{8, "one", 0, 0, "no_args"}}, console.noting("more")});
  EXPECT_EQ(console.piece("one a"),
            "demo: \"one\" called with too many args (max 0) - \"one no_args\"\n");
  EXPECT_THAT(console.calls, ElementsAre("demo 1|one|a"));
}

TEST(Tables, AnEmptyOneIsTakenSilently) {
  Console console;
  console.add({"empty", {}, console.noting("empty")});
  EXPECT_EQ(console.registered, "");
  EXPECT_EQ(console.loop(), "[empty] ");
}

TEST(Tables, TheTitleHasAtMost255Bytes) {
  Console console;
  console.add({std::string(300, 't'), {}, console.noting("long")});
  EXPECT_EQ(console.loop(), "[" + std::string(255, 't') + "] ");
}

TEST(Tables, ThereIsRoomForThirty) {
  Console console;
  for (int i = 3; i <= 30; ++i) {
    console.add({fmt::format("t{}", i), {}, console.noting("t")});
  }
  EXPECT_EQ(console.registered, "");
  console.add({"t31", {}, console.noting("t")});
  EXPECT_EQ(console.registered, "DbgAddCommands: too many command tables (max 30): t31\n");
  EXPECT_EQ(console.loop(), "[t30] ");
}

TEST(Loop, RunsArgumentsThenStandardInput) {
  Console console("one c\none d");
  EXPECT_EQ(console.loop({"one a", "one b"}), "[demo] [demo] [demo] ");
  EXPECT_EQ(console.loopResult, 1);
  EXPECT_THAT(console.calls,
              ElementsAre("demo 1|one|a", "demo 1|one|b", "demo 1|one|c", "demo 1|one|d"));
}

TEST(Loop, StartsWithTheWindowWhenItIsInteractive) {
  Console console;
  EXPECT_EQ(console.loop({"one a"}, LoopStart::Interactive),
            "demo: command \"ui\" not found\n[demo] ");
}

TEST(Loop, CutsLinesAtEverySemicolonBeforeQuotes) {
  Console console("one a;one b\necho 'a;b'\n");
  EXPECT_EQ(console.loop(),
            "[demo] [demo] Missing Match ' in 'ademo: command \"b'\" not found\n[demo] ");
  EXPECT_THAT(console.calls, ElementsAre("demo 1|one|a", "demo 1|one|b"));
}

TEST(Loop, ASemicolonEndsAComment) {
  Console console("# a comment; one f\n");
  console.loop();
  EXPECT_THAT(console.calls, ElementsAre("demo 1|one|f"));
}

TEST(Loop, EndsWhenAHandlerAsksForItAndLeavesTheRest) {
  Console console("one a;stop;one b\none c\n");
  EXPECT_EQ(console.loop(), "[demo] ");
  EXPECT_EQ(console.loopResult, 1);
  EXPECT_THAT(console.calls, ElementsAre("demo 1|one|a", "demo 5|stop"));
}

TEST(Loop, AnArgumentThatAsksForTheEndLeavesStandardInputUnread) {
  Console console("one c\n");
  EXPECT_EQ(console.loop({"stop;one a", "one b"}), "");
  EXPECT_THAT(console.calls, ElementsAre("demo 5|stop"));
}

TEST(Loop, ReadsLongLinesInPiecesThatRunByThemselves) {
  // 4095 bytes end inside the second word.
  Console console("one " + std::string(4091, 'x') + "none\n");
  EXPECT_EQ(console.loop(), "[demo] [demo] [demo] ");
  EXPECT_THAT(console.calls, ElementsAre("demo 1|one|" + std::string(4091, 'x'), "demo 2|none"));
}

TEST(Loop, ALongArgumentRunsAsAWhole) {
  Console console;
  console.loop({"one " + std::string(10000, 'x')});
  EXPECT_THAT(console.calls, ElementsAre("demo 1|one|" + std::string(10000, 'x')));
}

TEST(Loop, AsksForTerminationBetweenPiecesAndWhenInputEnds) {
  Console console("one a;one b\n");
  int asked = 0;
  console.interpreter.checkTermination = [&asked] { ++asked; };
  console.loop();
  // Two lines read (the second is the end) and two pieces run.
  EXPECT_EQ(asked, 4);
}

TEST(Verbose, ShowsEachPieceAsItWasTyped) {
  Console console("verbose y\n one a;<x\n;,\n# c\nverbose n\none b\n");
  EXPECT_EQ(console.loop(),
            "[demo] [demo] #  one a# <x\nFStack: could not open file \"x\"\n"
            "[demo] [demo] [demo] # verbose n\n[demo] [demo] ");
}

TEST(CommandFile, IsReadBeforeTheRestOfStandardInputAndWithoutPrompts) {
  const TemporaryDirectory directory;
  const std::string file = directory.write("cmds.txt", "one a\r\none b");
  Console console("< '" + file + "'\none c\n");
  EXPECT_EQ(console.loop(), "[demo] [demo] [demo] ");
  EXPECT_THAT(console.calls, ElementsAre("demo 1|one|a", "demo 1|one|b", "demo 1|one|c"));
}

TEST(CommandFile, NestsTenDeepAndNoDeeper) {
  const TemporaryDirectory directory;
  const std::string file = directory.path("self.txt");
  directory.write("self.txt", "< '" + file + "'\none x\n");
  Console console("<'" + file + "'\n");
  EXPECT_EQ(console.loop(), "[demo] FStack: too many stack levels\n[demo] ");
  EXPECT_EQ(console.calls.size(), 10u);
}

TEST(CommandFile, ThatCannotBeOpenedIsReported) {
  Console console;
  EXPECT_FALSE(FStackPush(console.interpreter, "no/file"));
  EXPECT_EQ(console.written(), "FStack: could not open file \"no/file\"\n");
  EXPECT_FALSE(FStackPop(console.interpreter));
}

}  // namespace
}  // namespace vrel
