#include "model/period_file.h"

#include <gtest/gtest.h>

#include <cmath>

#include "model/date.h"
#include "model/table_sort.h"
#include "support/tables.h"
#include "support/temporary_directory.h"
#include "support/views.h"

namespace vrel {
namespace {

using test::TemporaryDirectory;

class English : public test::SilentNotice {
 public:
  std::string translate(std::string_view text) override { return std::string(text); }
};

// What a file's text leaves in a store.
struct Parsed {
  bool ok = false;
  PeriodLengths lengths;
  std::string report;
};

Parsed parsed(std::string_view file, std::size_t reportSize = kPeriodReportSize) {
  Parsed result;
  TextInput input = TextInput::fromMemory(std::string(file));
  English notice;
  result.ok = parsePeriodFile(result.lengths, input, notice, result.report, reportSize);
  return result;
}

std::string times(int count, std::string_view line) {
  std::string text;
  for (int i = 0; i < count; ++i) {
    text += line;
  }
  return text;
}

std::int64_t timeOf(std::string_view date) {
  const ParsedDate parsedDate = parseDate(date);
  EXPECT_TRUE(parsedDate.accepted) << date;
  return parsedDate.seconds;
}

TEST(PeriodFile, StatesLengthsOfPeriodsInUnits) {
  const Parsed file = parsed("W01 weeks 1\nW01 days 7\nW02 days 2.5\nQ1 months 3\n");
  EXPECT_TRUE(file.ok);
  EXPECT_EQ(file.report, "");
  EXPECT_EQ(statedLength(file.lengths, "W01", "weeks"), 1.0);
  EXPECT_EQ(statedLength(file.lengths, "W01", "days"), 7.0);
  EXPECT_EQ(statedLength(file.lengths, "W01", "months"), std::nullopt);
  EXPECT_EQ(statedLength(file.lengths, "W02", "days"), 2.5);
  EXPECT_EQ(statedLength(file.lengths, "Q1", "months"), 3.0);
  EXPECT_EQ(statedLength(file.lengths, "q1", "months"), std::nullopt);
  EXPECT_EQ(statedLength(file.lengths, "W03", "days"), std::nullopt);
  EXPECT_EQ(statedLength(file.lengths, "W01", "years"), std::nullopt);
}

TEST(PeriodFile, WordsAreSplitLikeThoseOfCommandLines) {
  const Parsed file = parsed("'Q 1','months',\"3\"\n\t W1,days\t4 \r\nlast weeks 5");
  EXPECT_EQ(file.report, "");
  EXPECT_EQ(statedLength(file.lengths, "Q 1", "months"), 3.0);
  EXPECT_EQ(statedLength(file.lengths, "W1", "days"), 4.0);
  EXPECT_EQ(statedLength(file.lengths, "last", "weeks"), 5.0);
}

TEST(PeriodFile, CommentsAreSkipped) {
  const Parsed file = parsed("# W1 days 1\n  \t# W2 days 2\nW3 days 3\n");
  EXPECT_TRUE(file.ok);
  EXPECT_EQ(file.lengths.statedByText.size(), 1U);
  EXPECT_EQ(statedLength(file.lengths, "W3", "days"), 3.0);
}

TEST(PeriodFile, PeriodsThatAreDatesCountForTheirTimeToo) {
  const Parsed file = parsed("8/1/2014 days 31\n01-Sep-2014 days 30\nW01 days 7\n");
  EXPECT_EQ(statedLengthFrom(file.lengths, timeOf("1-Aug-2014"), "days"), 31.0);
  EXPECT_EQ(statedLengthFrom(file.lengths, timeOf("1-Aug-2014"), "weeks"), std::nullopt);
  EXPECT_EQ(statedLengthFrom(file.lengths, timeOf("9/1/2014"), "days"), 30.0);
  EXPECT_EQ(statedLength(file.lengths, "8/1/2014", "days"), 31.0);
  EXPECT_EQ(statedLength(file.lengths, "1-Aug-2014", "days"), std::nullopt)
      << "texts are compared as they stand";
  EXPECT_EQ(file.lengths.statedByStart.size(), 2U) << "a label is the start of nothing";
}

TEST(PeriodFile, ALabelDoesNotStandForTheBeginningOf1970) {
  EXPECT_EQ(statedLengthFrom(parsed("W01 days 7\n").lengths, 0, "days"), std::nullopt);
}

TEST(PeriodFile, TheFirstOfSeveralLengthsStays) {
  const Parsed file = parsed("8/1/2014 days 31\n8/1/2014 days 30\n1-Aug-2014 days 29\n");
  EXPECT_TRUE(file.ok);
  EXPECT_EQ(statedLength(file.lengths, "8/1/2014", "days"), 31.0);
  EXPECT_EQ(statedLength(file.lengths, "1-Aug-2014", "days"), 29.0);
  EXPECT_EQ(statedLengthFrom(file.lengths, timeOf("8/1/2014"), "days"), 31.0);
}

TEST(PeriodFile, UnitsAreWrittenInSmallLetters) {
  const Parsed file = parsed("W1 Days 1\nW2 day 1\nW3 hours 1\n");
  EXPECT_FALSE(file.ok);
  EXPECT_EQ(file.report,
            "line   1:  Invalid time unit\nline   2:  Invalid time unit\n"
            "line   3:  Invalid time unit\n");
  EXPECT_TRUE(file.lengths.statedByText.empty());
}

TEST(PeriodFile, DurationsAreDigitsAndPoints) {
  const Parsed file = parsed("W1 days 1e3\nW2 days -5\nW3 days 2.5\nW4 days +1\nW5 days inf\n");
  EXPECT_FALSE(file.ok);
  EXPECT_EQ(file.report,
            "line   1:  Invalid time duration\nline   2:  Invalid time duration\n"
            "line   4:  Invalid time duration\nline   5:  Invalid time duration\n");
  EXPECT_EQ(statedLength(file.lengths, "W1", "days"), std::nullopt);
  EXPECT_EQ(statedLength(file.lengths, "W3", "days"), 2.5);
}

TEST(PeriodFile, DurationsOfDigitsAndPointsAreReadAsFarAsTheyAreNumbers) {
  const Parsed file =
      parsed("A days .\nB days 1.2.3\nC days .5\nD days 7.\nE days ''\nF days 007\n");
  EXPECT_TRUE(file.ok);
  EXPECT_EQ(statedLength(file.lengths, "A", "days"), 0.0);
  EXPECT_EQ(statedLength(file.lengths, "B", "days"), 1.2);
  EXPECT_EQ(statedLength(file.lengths, "C", "days"), 0.5);
  EXPECT_EQ(statedLength(file.lengths, "D", "days"), 7.0);
  EXPECT_EQ(statedLength(file.lengths, "E", "days"), 0.0);
  EXPECT_EQ(statedLength(file.lengths, "F", "days"), 7.0);
}

TEST(PeriodFile, DurationsBeyondAllNumbersAreInfiniteOrNothing) {
  const Parsed file =
      parsed("A days 1" + times(400, "0") + "\nB days 0." + times(400, "0") + "1\n");
  EXPECT_TRUE(std::isinf(statedLength(file.lengths, "A", "days").value_or(0)));
  EXPECT_EQ(statedLength(file.lengths, "B", "days"), 0.0);
}

TEST(PeriodFile, ALineCanHaveTwoErrors) {
  const Parsed file = parsed("W1 years -1\n");
  EXPECT_FALSE(file.ok);
  EXPECT_EQ(file.report, "line   1:  Invalid time unit\nline   1:  Invalid time duration\n");
}

TEST(PeriodFile, ALineHasThreeWords) {
  const Parsed file = parsed("W1 days\n\nW1 days 1 2\n   \nW2 days 1\n");
  EXPECT_FALSE(file.ok);
  EXPECT_EQ(file.report,
            "line   1:  Wrong number of arguments\nline   2:  Wrong number of arguments\n"
            "line   3:  Wrong number of arguments\nline   4:  Wrong number of arguments\n");
  EXPECT_EQ(file.lengths.statedByText.size(), 1U);
}

TEST(PeriodFile, QuotesMustBeClosed) {
  const Parsed file = parsed("\"W1 days 1\nW2 'days 1\nW3 days `1\n");
  EXPECT_EQ(file.report,
            "line   1:  Missing matching \"\nline   2:  Missing matching '\n"
            "line   3:  Missing matching `\n");
}

TEST(PeriodFile, CommentsCountAsLinesAndNumbersAreRightAligned) {
  EXPECT_EQ(parsed("# a comment\n" + times(8, "W days 1\n") + "bad\n").report,
            "line  10:  Wrong number of arguments\n");
  EXPECT_EQ(parsed(times(999, "#\n") + "bad\n").report, "line 1000:  Wrong number of arguments\n");
}

TEST(PeriodFile, LongLinesAreReadInPiecesThatCountAsLines) {
  // The first piece of 2048 bytes ends in the middle of the comment.
  const std::string comment = "#" + std::string(2047, 'x');
  const Parsed file = parsed(comment + "W1 days 1\n");
  EXPECT_TRUE(file.ok);
  EXPECT_EQ(statedLength(file.lengths, "W1", "days"), 1.0);
  EXPECT_EQ(parsed(comment + "bad\n").report, "line   2:  Wrong number of arguments\n");
  EXPECT_EQ(parsed("#" + std::string(2046, 'x') + "\nbad\n").report,
            "line   2:  Wrong number of arguments\n");
}

// 29 bytes each: 31 of them have 899 bytes, which is all that fits beside the closing NUL.
constexpr std::string_view kBadUnit = "W years 1\n";

std::string unitErrors(int first, int last) {
  std::string text;
  for (int line = first; line <= last; ++line) {
    text += (line < 10 ? "line   " : "line  ") + std::to_string(line) + ":  Invalid time unit\n";
  }
  return text;
}

TEST(PeriodFileReport, HoldsAllThatFits) {
  const Parsed file = parsed(times(31, kBadUnit));
  EXPECT_EQ(file.report, unitErrors(1, 31));
  EXPECT_EQ(file.report.size(), 899U);
}

TEST(PeriodFileReport, EndsWithTheWordsThatTellOfMore) {
  // 29 lines of 30 bytes leave 29 bytes.
  const Parsed file = parsed(times(30, "W days \"1\n"));
  std::string lines;
  for (int line = 1; line <= 29; ++line) {
    lines += (line < 10 ? "line   " : "line  ") + std::to_string(line) + ":  Missing matching \"\n";
  }
  EXPECT_EQ(file.report, lines + "\nToo Many Errors.");
  EXPECT_EQ(file.report.size(), 887U);
}

TEST(PeriodFileReport, TheLastLineMakesWayForTheWordsThatTellOfMore) {
  const Parsed file = parsed(times(32, kBadUnit));
  EXPECT_EQ(file.report, unitErrors(1, 30) + "\nToo Many Errors.");
  EXPECT_LT(file.report.size(), 900U);
}

TEST(PeriodFileReport, NothingFollowsTheWordsThatTellOfMore) {
  // Shorter errors behind the first that finds no room are dropped, too.
  EXPECT_EQ(parsed(times(32, kBadUnit) + times(500, "W years x\n") + "`\n").report,
            unitErrors(1, 30) + "\nToo Many Errors.");
}

TEST(PeriodFileReport, StaysBelowItsSizeHoweverSmall) {
  EXPECT_EQ(parsed(kBadUnit, 30).report, "line   1:  Invalid time unit\n");
  EXPECT_EQ(parsed(kBadUnit, 29).report, "\nToo Many Errors.");
  EXPECT_EQ(parsed(kBadUnit, 18).report, "\nToo Many Errors.");
  EXPECT_EQ(parsed(kBadUnit, 17).report, "");
  EXPECT_FALSE(parsed(kBadUnit, 17).ok);
  EXPECT_EQ(parsed(kBadUnit, 0).report, "");
}

TEST(PeriodFile, ReplacesTheLengthsOfAnEarlierOneAndLeavesComputedOnesAlone) {
  PeriodLengths lengths;
  addComputedLength(lengths, 86400, 86400 * 7);
  addStatedLength(lengths, "8/1/2014", "days", 1);
  std::string report = "an old one";
  TextInput input = TextInput::fromMemory("W2 days 2\n");
  English notice;
  EXPECT_TRUE(parsePeriodFile(lengths, input, notice, report));
  EXPECT_EQ(report, "");
  EXPECT_EQ(statedLength(lengths, "8/1/2014", "days"), std::nullopt);
  EXPECT_EQ(statedLengthFrom(lengths, timeOf("8/1/2014"), "days"), std::nullopt);
  EXPECT_EQ(statedLength(lengths, "W2", "days"), 2.0);
  EXPECT_EQ(computedLength(lengths, 86400, "weeks"), 1.0);
}

TEST(PeriodFile, AnEmptyOneLeavesNoLengths) {
  const Parsed file = parsed("");
  EXPECT_TRUE(file.ok);
  EXPECT_TRUE(file.lengths.statedByText.empty());
}

TEST(PeriodFile, CutOffOrSpoiltAnywhereItIsReadOrReported) {
  const std::string file = "# periods\nW1 days 7\n\"Q 1\" months 3.5\n8/1/2014 weeks 4\n";
  for (std::size_t length = 0; length <= file.size(); ++length) {
    const Parsed cut = parsed(std::string_view(file).substr(0, length));
    EXPECT_EQ(cut.ok, cut.report.empty()) << "cut at " << length;
  }
  for (const char bad : {'\0', '"', '\n', '-', '\xff', ','}) {
    for (std::size_t i = 0; i < file.size(); ++i) {
      std::string spoilt = file;
      spoilt[i] = bad;
      const Parsed result = parsed(spoilt);
      EXPECT_EQ(result.ok, result.report.empty()) << "byte " << i;
    }
  }
}

// Takes down what is said, in a language of its own.
class Listener : public test::SilentNotice {
 public:
  void critical(std::string_view title, std::string_view text) override {
    heard += std::string(title) + ": " + std::string(text) + "\n";
  }
  std::string heard;
};

class ReadPeriodFileTest : public testing::Test {
 protected:
  ReadPeriodFileTest()
      : table_(test::tableOf("Item:String Day:String", "p", {"b 1/1/2014", "a 1/8/2014"})),
        view_(makeReportView(table_, listener_)) {}

  // What is heard when the view names a file.
  std::string read(const std::string& name) {
    view_.periodFileName = name;
    readPeriodFile(view_, listener_);
    return std::exchange(listener_.heard, {});
  }

  TemporaryDirectory directory_;
  Listener listener_;
  Table table_;
  ReportView view_;
};

TEST_F(ReadPeriodFileTest, ReadsIntoTheTable) {
  EXPECT_EQ(read(directory_.write("plan.per", "W1 days 7\n")), "");
  EXPECT_EQ(statedLength(table_.periodLengths, "W1", "days"), 7.0);
}

TEST_F(ReadPeriodFileTest, AFileThatCannotBeOpenedIsToldAndChangesNothing) {
  read(directory_.write("plan.per", "W1 days 7\n"));
  const std::string missing = directory_.path("none.per");
  EXPECT_EQ(read(missing), "[Data Editor]: [Unable to open file \"" + missing + "\".]\n");
  EXPECT_EQ(read(directory_.path()),
            "[Data Editor]: [Unable to open file \"" + directory_.path() + "\".]\n");
  EXPECT_EQ(statedLength(table_.periodLengths, "W1", "days"), 7.0);
}

TEST_F(ReadPeriodFileTest, ErrorsAreToldInThePlaceOfTheFilesName) {
  EXPECT_EQ(read(directory_.write("plan.per", "W1 days 7\nW2 days\nW3 years 1\n")),
            "[Data Editor]: [Errors in period file \"[line   2:  [Wrong number of arguments]]\n"
            "[line   3:  [Invalid time unit]]\n\".]\n");
  EXPECT_EQ(statedLength(table_.periodLengths, "W1", "days"), 7.0);
}

TEST_F(ReadPeriodFileTest, EveryKindOfErrorIsToldInTheUsersLanguage) {
  EXPECT_EQ(read(directory_.write("plan.per", "'W1 days 7\nW2 days -1\n")),
            "[Data Editor]: [Errors in period file \"[line   1:  [Missing matching ']]\n"
            "[line   2:  [Invalid time duration]]\n\".]\n");
  const std::string many = read(directory_.write("plan.per", times(50, "W3 years 1\n")));
  EXPECT_TRUE(many.ends_with("]]\n\n[Too Many Errors.]\".]\n")) << many;
}

TEST_F(ReadPeriodFileTest, AnEmptyNameReadsNothingAndSaysNothing) {
  read(directory_.write("plan.per", "W1 days 7\n"));
  EXPECT_EQ(read(""), "");
  EXPECT_EQ(read(std::string("\0none", 5)), "");
  EXPECT_EQ(statedLength(table_.periodLengths, "W1", "days"), 7.0);
}

TEST_F(ReadPeriodFileTest, SortingKeepsWhatTheFileStates) {
  read(directory_.write("plan.per", "W1 days 7\n1/1/2014 days 8\n"));
  sortTuples(table_);
  removeDuplicateKeys(table_, std::vector<int>{0});
  EXPECT_EQ(statedLength(table_.periodLengths, "W1", "days"), 7.0);
  EXPECT_EQ(statedLengthFrom(table_.periodLengths, timeOf("1/1/2014"), "days"), 8.0);
}

TEST_F(ReadPeriodFileTest, AnotherTableHasNoLengths) {
  read(directory_.write("plan.per", "W1 days 7\n1/1/2014 days 8\n"));
  TextInput input =
      TextInput::fromMemory("FieldNames:\tA\t\nFieldTypes:\tString\t\nPeriodValues:\tp\t\n");
  ASSERT_TRUE(loadFromFile(table_, input));
  EXPECT_TRUE(table_.periodLengths.statedByText.empty());
  EXPECT_TRUE(table_.periodLengths.statedByStart.empty());
}

}  // namespace
}  // namespace vrel
