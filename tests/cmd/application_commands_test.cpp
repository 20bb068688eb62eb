#include "cmd/application_commands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cmd/application_test.h"
#include "cmd/document.h"
#include "model/key_pass.h"

namespace vrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kPlan =
    "FieldNames:\tItem\tPeriod\tQty\t\n"
    "FieldTypes:\tString\tPeriod\tNumber\t\n"
    "PeriodValues:\tP1\tP2\t\n"
    "B\tP2\t4\t### n1,n2,n3\n"
    "A\tP1\t5\n"
    "B\tP2\t6\n";

// The plan as `dumptable` writes it.
constexpr const char* kDumpHeader = "\"Item\"\t\"Period\"\t\"Qty\"\n";

class ApplicationCommands : public test::ApplicationTest {
 protected:
  void readPlan() {
    files.write("plan.tbl", kPlan);
    ASSERT_EQ(run("readTable " + quoted("plan.tbl")), "");
  }
};

TEST_F(ApplicationCommands, StandInTheTableInTheirOrder) {
  std::vector<std::string> records;
  for (const CommandRecord& record : applicationCommands(session).records) {
    records.push_back(fmt::format("{} {} {} {} {}", record.id, record.name, record.minArgs,
                                  record.maxArgs, record.usage));
  }
  EXPECT_THAT(
      records,
      ElementsAre(
          "1 smart 1 1 fname.mgt", "2 readTable 1 1 fname", "3 printreport 0 1 [\"print cmd\"]",
          "4 exportreport 0 2 [quotes/noquotes] [filename]", "5 readView 1 1 fname",
          "6 guessView 0 0 no_args", "7 readDesc 1 1 fname", "8 readData 1 1 fname",
          "9 RecalculateFormulas 0 0 no_args", "10 RecalculateInverseFormulas 0 0 no_args",
          "12 dumptable 0 0 no_args", "11 aggregate 0 0 no_args", "15 appendTranslate 1 1 y/n",
          "14 translate 2 2 fromFile toFile", "17 xsync 1 1 y/n", "18 abortOnWarnings 1 1 y/n",
          "19 exitOnCmdError 1 1 y/n", "13 ui 0 1 [title]",
          "16 parameters 1 1 child_process_parameters", "20 rm 1 1 file", "21 cd 1 1 directory"));
}

TEST_F(ApplicationCommands, WithNothingBehindThemAreUnavailable) {
  EXPECT_EQ(run("readDesc x"), "fExecute: command \"readDesc\" unavailable\n");
  EXPECT_EQ(run("readData x"), "fExecute: command \"readData\" unavailable\n");
}

TEST_F(ApplicationCommands, OutsideTheTableAreUnavailableButForIdZero) {
  const std::vector<std::string> words = {"word"};
  EXPECT_EQ(fExecute(session, 0, words), 1);
  EXPECT_EQ(fExecute(session, 22, words), 1);
  EXPECT_EQ(fExecute(session, -1, words), 1);
  session.interpreter.output->flush();
  EXPECT_EQ(out(),
            "fExecute: command \"word\" unavailable\nfExecute: command \"word\" unavailable\n");
}

TEST_F(ApplicationCommands, NeedATableAndTakeTheErrorExitWithoutOne) {
  const std::vector<std::pair<std::string, std::string>> failures = {
      {"readView v", "cidReadView: no table loaded, function stopped\n"},
      {"guessView", "cidGuessView: no table loaded, function stopped\n"},
      {"RecalculateFormulas", "cidRecalculateFormulas: no table loaded, function stopped.\n"},
      {"RecalculateInverseFormulas",
       "cidRecalculateInverseFormulas: no table loaded, function stopped.\n"},
      {"translate a b", "cidTranslate: no table loaded, function stopped.\n"},
      {"ui", "cidUI: need valid tuple info.\n"},
      {"ui plan", "cidUI: cannot display \"plan\" - need valid tuple info.\n"},
      {"exportreport", "cidExtractReport: need valid tuple info.\n"},
      {"exportreport quotes f",
       "cidExtractReport: cannot display \"quotes\" - need valid tuple info.\n"},
  };
  for (const auto& [command, message] : failures) {
    EXPECT_EQ(run(command), message) << command;
  }
  run("exitOnCmdError y");
  for (const auto& [command, message] : failures) {
    EXPECT_EQ(run(command), message + "Exiting... (bye).\n(status -2)") << command;
  }
}

TEST_F(ApplicationCommands, ThatNeedAViewTakeTheErrorExitWithoutOne) {
  readPlan();
  const std::vector<std::pair<std::string, std::string>> failures = {
      {"RecalculateFormulas", "cidRecalculateFormulas: no view loaded, function stopped.\n"},
      {"RecalculateInverseFormulas",
       "cidRecalculateInverseFormulas: no view loaded, function stopped.\n"},
      {"translate a b", "cidTranslate: no view loaded, function stopped.\n"},
  };
  session.view.reset();
  for (const auto& [command, message] : failures) {
    EXPECT_EQ(run(command), message) << command;
    session.exitOnCmdError = true;
    EXPECT_EQ(run(command), message + "Exiting... (bye).\n(status -2)") << command;
    session.exitOnCmdError = false;
  }
}

TEST_F(ApplicationCommands, WithoutATableDumpAndAggregateDoNothing) {
  run("exitOnCmdError y");
  EXPECT_EQ(run("dumptable"), "");
  EXPECT_EQ(run("aggregate"), "");
  EXPECT_EQ(session.view, nullptr);
}

TEST_F(ApplicationCommands, ReadTableLoadsAndGuessesAView) {
  readPlan();
  EXPECT_EQ(run("dumptable"), std::string(kDumpHeader) +
                                  "\"B\"\tP2\t4.0000000000\n"
                                  "\"A\"\tP1\t5.0000000000\n"
                                  "\"B\"\tP2\t6.0000000000\n");
  ASSERT_NE(session.view, nullptr);
  EXPECT_THAT(session.view->axis(Axis::X), ElementsAre(0));
  EXPECT_THAT(session.view->axis(Axis::Y), ElementsAre(1));
  EXPECT_THAT(session.view->axis(Axis::Data), ElementsAre(2));
  EXPECT_EQ(session.view->table, session.table.get());
}

TEST_F(ApplicationCommands, ReadTablePutsTheFreshViewsSettingsInForce) {
  session.format.precision = 2;
  session.format.dateFormat = "%Y";
  readPlan();
  EXPECT_EQ(session.format.precision, 10);
  EXPECT_EQ(session.format.dateFormat, "%d-%b-%Y");
}

TEST_F(ApplicationCommands, ReadTableTurnsFieldsWhoseValuesAreAllDatesIntoDates) {
  files.write("dates.tbl",
              "FieldNames:\tItem\tDay\t\nFieldTypes:\tString\tDate\t\nPeriodValues:\t-\t\n"
              "A\t01/31/2014\nB\t5-Aug-2014\n");
  EXPECT_EQ(run("readTable " + quoted("dates.tbl")), "");
  EXPECT_EQ(session.table->field(0).type, FieldType::String);
  EXPECT_EQ(session.table->field(1).type, FieldType::Date);
}

TEST_F(ApplicationCommands, ReadTableOfAMissingFileLeavesNoTableAndNoView) {
  readPlan();
  const std::string message = "cidReadTable: cannot open file \"" + files.path("no.tbl") + "\"\n";
  EXPECT_EQ(run("readTable " + quoted("no.tbl")), message);
  EXPECT_EQ(session.view, nullptr);
  EXPECT_EQ(run("dumptable"), "");
  EXPECT_EQ(run("guessView"), "cidGuessView: no table loaded, function stopped\n");
  run("exitOnCmdError y");
  EXPECT_EQ(run("readTable " + quoted("no.tbl")), message + "Exiting... (bye).\n(status -2)");
}

TEST_F(ApplicationCommands, ReadTableGoesOnAfterAFailedLoad) {
  files.write("bad.tbl", "FieldNames:\tItem\t\nno types\n");
  EXPECT_EQ(run("readTable " + quoted("bad.tbl")), "cidReadTable: call to loadFromFile() fails\n");
  ASSERT_NE(session.view, nullptr);
  EXPECT_FALSE(session.table->loaded);
  EXPECT_EQ(run("dumptable"), "");
  run("exitOnCmdError y");
  EXPECT_EQ(run("readTable " + quoted("bad.tbl")),
            "cidReadTable: call to loadFromFile() fails\nExiting... (bye).\n(status -2)");
}

constexpr const char* kView =
    "numberoffields 3\n"
    "setusertitle \"Week plan\"\n"
    "precision 1\n"
    "addfield <Name> \"Item\" <Type> \"string\" <Classification> \"key\" <Hide> No\n"
    "addfield <Name> \"Period\" <Type> \"period\" <Classification> \"key\" <Hide> No\n"
    "addfield <Name> \"Qty\" <Type> \"number\" <Classification> \"dataReadWrite\" <Hide> No\n"
    "definexfields \"0\"\n"
    "defineyfields \"1\"\n"
    "definedatafields \"2\"\n"
    "setflags <DataInColumns> \"True\" <ShowSystemTitle> \"False\"\n";

TEST_F(ApplicationCommands, ReadViewAppliesAFileAndCombinesEqualKeys) {
  readPlan();
  files.write("plan.view", kView);
  EXPECT_EQ(run("readView " + quoted("plan.view")), "");
  EXPECT_EQ(errors, "");
  EXPECT_EQ(session.view->fileName, files.path("plan.view"));
  EXPECT_EQ(session.view->userTitle, "Week plan");
  EXPECT_EQ(session.format.precision, 1);
  EXPECT_TRUE(session.table->aggregated);
  EXPECT_EQ(run("dumptable"), std::string(kDumpHeader) + "\"A\"\tP1\t5.0\n\"B\"\tP2\t4.0\n");
}

TEST_F(ApplicationCommands, ReadViewThatFailsLeavesTheFreshView) {
  readPlan();
  files.write("plan.view", kView);
  run("readView " + quoted("plan.view"));
  const std::string message = "cidReadView: cannot open file \"" + files.path("no.view") + "\"\n";
  EXPECT_EQ(run("readView " + quoted("no.view")), message);
  EXPECT_EQ(session.view->fileName, "");
  EXPECT_EQ(session.view->userTitle, "Default View Title");
  EXPECT_EQ(session.format.precision, 10);
  run("exitOnCmdError y");
  EXPECT_EQ(run("readView " + quoted("no.view")), message + "Exiting... (bye).\n(status -2)");
}

TEST_F(ApplicationCommands, ReadViewRefusesAFileThatDoesNotFit) {
  readPlan();
  std::string other = kView;
  other.replace(other.find("Qty"), 3, "Quantity");
  files.write("other.view", other);
  const std::string message =
      "cidReadView: view file \"" + files.path("other.view") + "\" does not match table data\n";
  EXPECT_EQ(run("readView " + quoted("other.view")), message);
  EXPECT_EQ(session.view->fileName, "");
  EXPECT_FALSE(session.table->aggregated);
  run("exitOnCmdError y");
  EXPECT_EQ(run("readView " + quoted("other.view")), message + "Exiting... (bye).\n(status -2)");
}

TEST_F(ApplicationCommands, GuessViewReplacesTheView) {
  readPlan();
  files.write("plan.view", kView);
  run("readView " + quoted("plan.view"));
  EXPECT_EQ(run("guessView"), "");
  EXPECT_EQ(session.view->userTitle, "Default View Title");
  EXPECT_EQ(session.view->fileName, "");
  EXPECT_EQ(session.format.precision, 10);
}

TEST_F(ApplicationCommands, RecalculateLaysTheReportOut) {
  readPlan();
  session.view->shortTitle = "plan.tbl";
  const std::string warning =
      "Not enough keys to properly display data extracted by report \"plan.tbl\".\n";
  EXPECT_EQ(run("RecalculateFormulas"), warning);
  // The message to the host.
  testing::internal::CaptureStdout();
  EXPECT_EQ(run("RecalculateInverseFormulas"), warning);
  const std::string announced = testing::internal::GetCapturedStdout();
  ASSERT_EQ(announced.size(), 15U);
  EXPECT_TRUE(files.has(announced.substr(3, 11)));
  EXPECT_EQ(run("aggregate"), "");
  EXPECT_EQ(run("RecalculateFormulas"), "");
}

TEST_F(ApplicationCommands, AggregateKeepsOneTupleForEachKey) {
  readPlan();
  session.view.reset();
  EXPECT_EQ(run("aggregate"), "");
  EXPECT_NE(session.view, nullptr);
  EXPECT_EQ(run("dumptable"), std::string(kDumpHeader) +
                                  "\"A\"\tP1\t5.0000000000\n"
                                  "\"B\"\tP2\t4.0000000000\n");
}

TEST_F(ApplicationCommands, TranslateWritesNotesAndNewTexts) {
  readPlan();
  files.write("from.txt", "# comment\nB\tP2\t7\nC\tP1\t8\n");
  EXPECT_EQ(run("translate " + quoted("from.txt") + " " + quoted("to.txt")), "");
  EXPECT_EQ(files.read("to.txt"), "n3 \"7\"\n");
  EXPECT_EQ(errors, "Translate: line 3, warning - Unknown key value(s) - record ignored..\n");
}

TEST_F(ApplicationCommands, TranslateAppendsWhenThatIsSwitchedOn) {
  readPlan();
  files.write("from.txt", "B\tP2\t7\n");
  const std::string command = "translate " + quoted("from.txt") + " " + quoted("to.txt");
  run(command);
  run(command);
  EXPECT_EQ(files.read("to.txt"), "n3 \"7\"\n");
  run("appendTranslate T");
  run(command);
  EXPECT_EQ(files.read("to.txt"), "n3 \"7\"\nn3 \"7\"\n");
}

TEST_F(ApplicationCommands, TranslateTellsWhatCannotBeOpenedWithoutTheErrorExit) {
  readPlan();
  run("exitOnCmdError y");
  EXPECT_EQ(run("translate no/from " + quoted("to.txt")),
            "cidTranslate: cannot open input file \"no/from\"\n");
  EXPECT_FALSE(files.has("to.txt"));
  files.write("from.txt", "");
  EXPECT_EQ(run("translate " + quoted("from.txt") + " no/to"),
            "cidTranslate: cannot open output file \"no/to\"\n");
}

TEST_F(ApplicationCommands, TheSwitchesDifferInWhatCountsAsYes) {
  const auto answers = [this](const std::string& command, const bool& value) {
    std::string yes;
    for (const char* word : {"y", "yes", "Y", "t", "T", "n", "1", "''"}) {
      EXPECT_EQ(run(command + " " + word), "");
      yes += value ? std::string(word) + " " : "";
    }
    return yes;
  };
  EXPECT_EQ(answers("appendTranslate", session.exports.appendTranslate), "y yes Y t T ");
  EXPECT_EQ(answers("exitOnCmdError", session.exitOnCmdError), "y yes Y t T ");
  EXPECT_EQ(answers("xsync", session.xsync), "y yes ");
  EXPECT_EQ(answers("abortOnWarnings", session.abortOnWarnings), "y yes ");
}

TEST_F(ApplicationCommands, ParametersTurnsUnderscoresIntoBlanks) {
  run("parameters xsync_y");
  EXPECT_EQ(session.childParameters, "xsync y");
  run("parameters ''");
  EXPECT_EQ(session.childParameters, "");
}

TEST_F(ApplicationCommands, RmDeletesAFileOrSaysThatItCannot) {
  files.write("a.txt", "");
  run("exitOnCmdError y");
  EXPECT_EQ(run("rm " + quoted("a.txt")), "");
  EXPECT_FALSE(files.has("a.txt"));
  EXPECT_EQ(run("rm " + quoted("a.txt")), "cidRM: rm of \"" + files.path("a.txt") + "\" fails.\n");
}

TEST_F(ApplicationCommands, CdToAMissingDirectoryTakesTheErrorExit) {
  EXPECT_EQ(run("cd no/such"), "cidCD: cd to \"no/such\" fails.\n");
  run("exitOnCmdError t");
  EXPECT_EQ(run("cd no/such"), "cidCD: cd to \"no/such\" fails.\nExiting... (bye).\n(status -2)");
}

TEST_F(ApplicationCommands, ExportReportWritesTheReportAndEndsTheProcess) {
  readPlan();
  run("aggregate");
  EXPECT_EQ(run("exportreport quotes " + quoted("plan.sp")), "(status 0)");
  EXPECT_EQ(files.read("plan.sp"),
            "\"Default View Title\"\n\"Qty  (Aggregated)\"\n\"(Item  by  Period)\"\n\n"
            "Item\tP1\tP2\t\n\n"
            "\"A\"\t5.0000000000\t\n"
            "\"B\"\t\t4.0000000000\n");
  EXPECT_EQ(errors, "");
}

TEST_F(ApplicationCommands, ExportReportWarnsOfMissingKeys) {
  readPlan();
  EXPECT_EQ(run("exportreport noquotes " + quoted("plan.sp")),
            "Not enough keys to properly display data extracted by report "
            "\"Default View Title\".\n(status 0)");
}

TEST_F(ApplicationCommands, ExportReportQuotesExactlyForALeadingQ) {
  readPlan();
  run("aggregate");
  for (const char* word : {"quotes", "q"}) {
    run("exportreport " + std::string(word) + " " + quoted("plan.sp"));
    EXPECT_TRUE(session.exports.quoting) << word;
  }
  for (const char* word : {"noquotes", "Quotes", "x", "''"}) {
    session.exports.quoting = true;
    run("exportreport " + std::string(word) + " " + quoted("plan.sp"));
    EXPECT_FALSE(session.exports.quoting) << word;
  }
  session.exports.quoting = true;
  session.view->fileName = files.path("plan.view");
  run("exportreport");
  EXPECT_TRUE(session.exports.quoting);
}

TEST_F(ApplicationCommands, ExportReportWithoutAnyFileNameSaysSo) {
  readPlan();
  run("aggregate");
  EXPECT_EQ(run("exportreport"), "(status 0)");
  EXPECT_EQ(errors, "Cannot open \"\"\n");
}

TEST_F(ApplicationCommands, ExportReportNamesALaterExportAfterTheViewFile) {
  readPlan();
  run("aggregate");
  session.view->exportFileName = "earlier";
  session.view->fileName = files.path("week.plan.view");
  EXPECT_EQ(run("exportreport"), "(status 0)");
  EXPECT_TRUE(files.has("week.plan.sp"));
  session.view->fileName = files.path("week");
  run("exportreport quotes");
  EXPECT_TRUE(files.has("week.sp"));
}

/// Notes warnings like a window would show them.
class FakeWindow : public ConsoleNotice {
 public:
  using ConsoleNotice::ConsoleNotice;
  void warning(std::string_view title, std::string_view text) override {
    shown.push_back(fmt::format("{}: {}", title, text));
  }
  bool hasWindow() const override { return true; }

  std::vector<std::string> shown;
};

TEST_F(ApplicationCommands, RemovedTuplesAreWarnedOfInAWindowWhenTheEnvironmentAsksForIt) {
  const auto warnings = [this](const std::string& asked, bool duplicates) {
    readPlan();
    FakeWindow window(session.interpreter);
    const EnvironmentLookup environment = [&asked](const char* name) {
      return name == std::string("QNT_REPORT_WARN_DUPLICATE") ? asked : std::string();
    };
    if (!duplicates) {
      session.table->tupleCount = 2;
    }
    EXPECT_EQ(removeDuplicateKeys(*session.view, environment, window), !duplicates);
    return window.shown;
  };
  const auto warning =
      ElementsAre("Data Editor: Warning: Some data with non-unique keys was removed.");
  EXPECT_THAT(warnings("Yes", true), warning);
  EXPECT_THAT(warnings("YES", true), warning);
  EXPECT_THAT(warnings("yes", true), IsEmpty());
  EXPECT_THAT(warnings("", true), IsEmpty());
  EXPECT_THAT(warnings("Yes", false), IsEmpty());
}

TEST_F(ApplicationCommands, RemovedTuplesAreNotWarnedOfWithoutAWindow) {
  readPlan();
  session.environment = [](const char*) { return std::string("Yes"); };
  EXPECT_EQ(run("aggregate"), "");
}

}  // namespace
}  // namespace vrel
