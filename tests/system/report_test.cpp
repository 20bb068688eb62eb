// A host's sessions: tables, views, exports, and what goes wrong with them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>

#include "system/host.h"

namespace vrel {
namespace {

using test::Host;
using test::Outcome;
using testing::EndsWith;
using testing::StartsWith;

constexpr const char* kPlan =
    "# a plan\n\n"
    "FieldNames:\tItem\tPeriod\tQty\tActive\t\n"
    "FieldTypes:\tString\tPeriod\tNumber\tBoolean\t\n"
    "PeriodValues:\tP1\tP2\t\n"
    "Nut\tP2\t1234.5\tYes\t### n1,n2,n3,n4\n"
    "Bolt\tP1\t5\tNo\n";

constexpr const char* kView =
    "setusertitle \"Week plan\"\n"
    "precision 2\n"
    "addfield <Name> \"Item\" <Type> \"string\" <Classification> \"key\" <Hide> No\n"
    "addfield <Name> \"Period\" <Type> \"period\" <Classification> \"key\" <Hide> No\n"
    "addfield <Name> \"Qty\" <Type> \"number\" <Classification> \"dataReadWrite\" <Hide> No\n"
    "addfield <Name> \"Active\" <Type> \"boolean\" <Classification> \"dataReadWrite\" <Hide> No\n"
    "definexfields \"0\"\n"
    "defineyfields \"1\"\n"
    "definedatafields \"2\"\n"
    "definehiddenfields \"3\"\n"
    "setflags <DataInColumns> \"True\" <ShowSystemTitle> \"False\"\n";

TEST(HostSession, ReadsATableAndAViewAndExportsTheReport) {
  Host host;
  host.write("plan.tbl", kPlan);
  host.write("plan.view", kView);
  const Outcome outcome = host.run(
      {"readTable plan.tbl", "readView plan.view", "exportreport quotes plan.sp", "echo never"});
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(host.read("plan.sp"),
            "\"Week plan\"\n\nItem\tP1\tP2\t\n\n\"Bolt\"\t5.00\t\n\"Nut\"\t\t1234.50\n");
}

TEST(HostSession, ExportsWithoutQuotesAsWell) {
  Host host;
  host.write("plan.tbl", kPlan);
  host.write("plan.view", kView);
  host.run({"readTable plan.tbl;readView plan.view;exportreport noquotes plan.sp"});
  EXPECT_EQ(host.read("plan.sp"), "Week plan\n\nItem\tP1\tP2\t\n\nBolt\t5.00\t\nNut\t\t1234.50\n");
}

TEST(HostSession, ExportsSummaryRowsAndColumns) {
  Host host;
  host.write("plan.tbl",
             "FieldNames:\tItem\tPlace\tPeriod\tQty\tPrice\t\n"
             "FieldTypes:\tString\tString\tPeriod\tNumber\tNumber\t\n"
             "PeriodValues:\tP1\tP2\tP3\t\n"
             "Bolt\tOslo\tP1\t1000\t2\nBolt\tOslo\tP2\t500\t4\n"
             "Bolt\tParis\tP1\t10\t3\nBolt\tParis\tP3\t20\t6\n"
             "Nut\tOslo\tP2\t7\t1\n");
  host.write("plan.view",
             "setusertitle \"Totals\"\n"
             "precision 1\n"
             "addfield <Name> \"Item\" <Type> \"string\" <Classification> \"key\" <Hide> No\n"
             "addfield <Name> \"Place\" <Type> \"string\" <Classification> \"key\" <Hide> No\n"
             "addfield <Name> \"Period\" <Type> \"period\" <Classification> \"key\" <Hide> No\n"
             "addfield <Name> \"Qty\" <Type> \"number\" <Classification> \"dataReadWrite\"\n"
             "addfield <Name> \"Price\" <Type> \"number\" <Classification> \"dataReadOnly\"\n"
             "definexfields \"0\" \"1\"\n"
             "defineyfields \"2\"\n"
             "definedatafields \"3\" \"4\"\n"
             "setflags <DataInColumns> \"False\" <ShowSystemTitle> \"False\"\n"
             "addbreak <FieldIndex> 0 <Name> \"Item total\" <FirstBreak> 0 <Frequency> 1 "
             "<BreakAfter> \"True\" <Active> \"True\" <BreakOperations> \"Nothing\" \"Nothing\" "
             "\"Nothing\" \"Sum\" \"Average\"\n"
             "addbreak <FieldIndex> 1 <Name> \"Unused\" <FirstBreak> 0 <Frequency> 1 "
             "<BreakAfter> \"False\" <Active> \"False\" <BreakOperations> \"Nothing\" \"Nothing\" "
             "\"Nothing\" \"Sum\" \"Sum\"\n"
             "addbreak <FieldIndex> 2 <Name> \"Year\" <FirstBreak> 0 <Frequency> 2097152 "
             "<BreakAfter> \"False\" <Active> \"True\" <BreakOperations> \"Nothing\" \"Nothing\" "
             "\"Nothing\" \"Sum\" \"Maximum\"\n");
  const Outcome outcome =
      host.run({"readTable plan.tbl", "readView plan.view", "exportreport quotes plan.sp"});
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(host.read("plan.sp"),
            "\"Totals\"\n\n"
            "Item\tPlace\t\tP1\tP2\tP3\tYear\t\n\n"
            "\"Bolt\"\t\"Oslo\"\t\"Qty\"\t1000.0\t500.0\t\t1500.0\n"
            "\t\t\"Price\"\t2.0\t4.0\t\t4.0\n"
            "\t\"Paris\"\t\"Qty\"\t10.0\t\t20.0\t30.0\n"
            "\t\t\"Price\"\t3.0\t\t6.0\t6.0\n"
            "\"Item total\"\t\t\"Qty\"\t1010.0\t500.0\t20.0\t1530.0\n"
            "\t\t\"Price\"\t2.5\t4.0\t6.0\t3.8\n"
            "\t\t\t\t\t\t\n"
            "\"Nut\"\t\"Oslo\"\t\"Qty\"\t\t7.0\t\t7.0\n"
            "\t\t\"Price\"\t\t1.0\t\t1.0\n"
            "\"Item total\"\t\t\"Qty\"\t\t7.0\t\t7.0\n"
            "\t\t\"Price\"\t\t1.0\t\t1.0\n"
            "\t\t\t\t\t\t\n");
}

TEST(HostSession, DumpsTheTableIntoAFile) {
  Host host;
  host.write("plan.tbl", kPlan);
  const Outcome outcome = host.run({}, "readTable plan.tbl\n> plan.dump\ndumptable\nquit\n");
  EXPECT_EQ(outcome.err, "[vrel] [vrel] ");
  EXPECT_EQ(host.read("plan.dump"),
            "[vrel] dumptable\n\"Item\"\t\"Period\"\t\"Qty\"\t\"Active\"\n"
            "\"Nut\"\tP2\t1,234.5000000000\tYes\n"
            "\"Bolt\"\tP1\t5.0000000000\tNo\n[vrel] quit\n");
}

TEST(HostSession, RunsFromACommandFileInAnotherDirectory) {
  Host host;
  host.environment["TMPDIR"] = host.directory.path();
  host.write("data/plan.tbl", kPlan);
  host.write("data/session.cmd",
             "cd data\nreadTable plan.tbl\nguessView\naggregate\nRecalculateFormulas\n"
             "RecalculateInverseFormulas\nexportreport quotes plan.sp\n");
  const Outcome outcome = host.run({"<data/session.cmd"});
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(host.read("data/plan.sp"), StartsWith("\"Default View Title\"\n\"Qty  and  Active\"\n"
                                                    "\"(Item  by  Period)\"\n\n"));
}

TEST(HostSession, TranslatesTypedTextsIntoUpdates) {
  Host host;
  host.write("plan.tbl", kPlan);
  host.write("from.txt", "Nut\tP2\t9\tNo\nNut\tP2\nNut\tP2\t8\tYes\textra\nPin\tP1\t1\tNo\n");
  const Outcome outcome = host.run({"readTable plan.tbl", "translate from.txt to.txt",
                                    "appendTranslate T", "translate from.txt to.txt", "quit"});
  const std::string updates = "n3 \"9\"\nn4 \"No\"\nn3 \"8\"\nn4 \"Yes\"\n";
  const std::string warnings =
      "Translate: line 2, warning - Missing column(s)..\n"
      "Translate: line 3, warning - Ignoring extra column(s)..\n"
      "Translate: line 4, warning - Unknown key value(s) - record ignored..\n";
  EXPECT_EQ(host.read("to.txt"), updates + updates);
  EXPECT_EQ(outcome.err, warnings + warnings);
}

TEST(HostSession, TheExampleRuns) {
  Host host;
  for (const char* name : {"plan.tbl", "plan.view", "plan.per", "session.cmd"}) {
    std::filesystem::copy_file(std::string(VREL_EXAMPLES) + "/" + name, host.directory.path(name));
  }
  const Outcome outcome = host.run({"<session.cmd"});
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(host.read("plan.sp"), StartsWith("\"Soft drinks, weekly supply plan\"\n"));
  EXPECT_THAT(host.read("plan.dump"), EndsWith("> stderr\n"));
}

TEST(FailedCommands, EndTheProcessOnlyWhenToldTo) {
  Host host;
  const Outcome goesOn = host.run({"readView plan.view", "echo on"});
  EXPECT_EQ(goesOn.err, "cidReadView: no table loaded, function stopped\non\n[vrel] ");
  EXPECT_EQ(goesOn.status, 0);
  const Outcome ends = host.run({"exitOnCmdError y", "readView plan.view", "echo on"});
  EXPECT_EQ(ends.err, "cidReadView: no table loaded, function stopped\nExiting... (bye).\n");
  EXPECT_EQ(ends.status, 254);
}

TEST(FailedCommands, LoseWhatTheyReplace) {
  Host host;
  host.write("plan.tbl", kPlan);
  EXPECT_EQ(host.run({"readTable plan.tbl", "readTable none.tbl", "dumptable", "guessView"}).err,
            "cidReadTable: cannot open file \"none.tbl\"\n"
            "cidGuessView: no table loaded, function stopped\n[vrel] ");
}

TEST(FailedCommands, TellOfFilesThatAreNoTables) {
  Host host;
  host.write("bad.tbl", "not a table\n");
  host.write("empty.tbl", "");
  EXPECT_EQ(host.run({"readTable bad.tbl", "readTable empty.tbl", "dumptable", "exportreport"}).err,
            "cidReadTable: call to loadFromFile() fails\n"
            "cidReadTable: call to loadFromFile() fails\n"
            "cidExtractReport: need valid tuple info.\n[vrel] ");
}

TEST(FailedCommands, ATableThatContradictsItselfAborts) {
  Host host;
  host.write("bad.tbl", std::string(kPlan) + "Nut\tP1\t1\tNo\tsurplus\n");
  const Outcome outcome = host.run({"echo before", "readTable bad.tbl"});
  EXPECT_THAT(outcome.err, StartsWith("before\n"));
  EXPECT_THAT(outcome.err, testing::HasSubstr("surplus"));
  EXPECT_EQ(outcome.status, -SIGABRT);
}

TEST(FailedCommands, TellOfViewsThatDoNotFit) {
  Host host;
  host.write("plan.tbl", kPlan);
  host.write("other.view", "addfield <Name> \"Other\" <Type> \"number\"\n");
  host.write("broken.view", std::string(kView) + "nonsense\n");
  const Outcome outcome =
      host.run({"readTable plan.tbl", "readView other.view", "readView broken.view",
                "readView none.view", "exportreport noquotes plan.sp"});
  EXPECT_EQ(outcome.err,
            "cidReadView: view file \"other.view\" does not match table data\n"
            "Unknown command \"nonsense\" in line 12\n"
            "Error in view file in line 12\n"
            "cidReadView: view file \"broken.view\" does not match table data\n"
            "cidReadView: cannot open file \"none.view\"\n");
  EXPECT_THAT(host.read("plan.sp"), StartsWith("Default View Title\n"));
}

TEST(PeriodFiles, ThatAreMissingOrFaultyAreToldOnOneLineEachAndDoNoHarm) {
  Host host;
  host.write("plan.tbl", kPlan);
  host.write("missing.view", std::string(kView) + "periodfilename \"none.per\"\n");
  host.write("faulty.view", std::string(kView) + "periodfilename faulty.per\n");
  host.write("sound.view", std::string(kView) + "periodfilename sound.per\n");
  host.write("faulty.per", "# lengths\nP1 days 7\nP1 Days 1e3\nP2 weeks\n'P2 weeks 1\n");
  host.write("sound.per", "P1 days 7\nP2 weeks 1\n");
  const Outcome outcome =
      host.run({"exitOnCmdError y", "readTable plan.tbl", "readView missing.view",
                "readView faulty.view", "readView sound.view", "exportreport noquotes plan.sp"});
  EXPECT_EQ(outcome.err,
            "Unable to open file \"none.per\".\n"
            "Errors in period file \"line   3:  Invalid time unit line   3:  Invalid time duration "
            "line   4:  Wrong number of arguments line   5:  Missing matching ' \".\n");
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(host.read("plan.sp"), "Week plan\n\nItem\tP1\tP2\t\n\nBolt\t5.00\t\nNut\t\t1234.50\n");
}

TEST(FailedCommands, AnExportThatCannotBeWrittenIsToldAndEndsTheProcessAllTheSame) {
  Host host;
  host.write("plan.tbl", kPlan);
  const Outcome missing = host.run({"readTable plan.tbl", "exportreport"});
  EXPECT_EQ(missing.err, "Cannot open \"\"\n");
  EXPECT_EQ(missing.status, 0);
  const Outcome unwritable = host.run({"readTable plan.tbl", "exportreport quotes no/plan.sp"});
  EXPECT_EQ(unwritable.err, "Cannot open \"no/plan.sp\"\n");
  EXPECT_EQ(unwritable.status, 0);
}

TEST(FailedCommands, TellWhatCannotBeRemovedOrEntered) {
  Host host;
  host.write("a.txt", "");
  EXPECT_EQ(host.run({"rm a.txt", "rm a.txt", "cd none"}).err,
            "cidRM: rm of \"a.txt\" fails.\ncidCD: cd to \"none\" fails.\n[vrel] ");
  EXPECT_FALSE(host.directory.has("a.txt"));
}

TEST(FailedCommands, OfNoUseAreUnavailable) {
  Host host;
  EXPECT_EQ(host.run({"readDesc x", "readData x"}).err,
            "fExecute: command \"readDesc\" unavailable\n"
            "fExecute: command \"readData\" unavailable\n[vrel] ");
}

TEST(Keys, ThatDoNotTellTuplesApartAreWarnedOf) {
  Host host;
  host.write("plan.tbl", std::string(kPlan) + "Bolt\tP1\t6\tNo\n");
  const Outcome outcome = host.run({"readTable plan.tbl", "exportreport quotes plan.sp"});
  EXPECT_EQ(outcome.err,
            "Not enough keys to properly display data extracted by report "
            "\"Default View Title\".\n");
  EXPECT_EQ(host.run({"readTable plan.tbl", "aggregate", "exportreport quotes plan.sp"}).err, "");
}

TEST(Window, NeedsATable) {
  Host host;
  EXPECT_EQ(host.run({"ui", "ui plan"}).err,
            "cidUI: need valid tuple info.\n"
            "cidUI: cannot display \"plan\" - need valid tuple info.\n[vrel] ");
}

TEST(Window, NeedsADisplay) {
  Host host;
  host.write("plan.tbl", kPlan);
  host.environment["QNT_ENABLE_CONSOLE_DEBUG_INFO"] = "";
  const Outcome goesOn = host.run({"readTable plan.tbl", "ui plan", "echo on"});
  EXPECT_EQ(goesOn.err, "cidUI: cannot open a display.\non\n[vrel] ");
  EXPECT_EQ(goesOn.out, "CreateUI()\n");
  const Outcome ends = host.run({"exitOnCmdError y", "readTable plan.tbl", "ui plan"});
  EXPECT_EQ(ends.err, "cidUI: cannot open a display.\nExiting... (bye).\n");
  EXPECT_EQ(ends.status, 254);
}

}  // namespace
}  // namespace vrel
