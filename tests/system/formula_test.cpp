// Formulas as a host meets them: computed when a view is read, on command, and backwards.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "system/host.h"

namespace vrel {
namespace {

using test::Host;
using test::Outcome;
using testing::HasSubstr;
using testing::MatchesRegex;

constexpr const char* kTable =
    "FieldNames:\tItem\tWeek\tDemand\tSupply\t\n"
    "FieldTypes:\tString\tDate\tNumber\tNumber\t\n"
    "PeriodValues:\t-\t\n"
    "Nut\t1/12/2026\t10\t5\t### ,,,n2\n"
    "Nut\t1/5/2026\t10\t25\t### ,,,n1\n"
    "Bolt\t1/5/2026\t4\t8\t### ,,,b1\n";

// A host whose message files come to lie in a folder of their own.
class FormulaHost : public Host {
 public:
  FormulaHost() {
    write("plan.tbl", kTable);
    write("home/empty", "");
    environment["HOME"] = directory.path("home");
  }

  // Writes a view with these formula fields behind the plain ones.
  void writeView(const std::string& formulas, const std::string& periodFile = "") {
    write("plan.view",
          "setdateformat \"%d.%m.\"\nprecision 1\nperiodfilename \"" + periodFile +
              "\"\n"
              "addfield <Name> \"Item\" <Type> \"string\" <Classification> \"key\" <Hide> No\n"
              "addfield <Name> \"Week\" <Type> \"date\" <Classification> \"key\" <Hide> No\n"
              "addfield <Name> \"Demand\" <Type> \"number\" <Classification> \"dataReadOnly\"\n"
              "addfield <Name> \"Supply\" <Type> \"number\" <Classification> \"dataReadWrite\"\n" +
              formulas +
              "definexfields \"0\"\ndefineyfields \"1\"\ndefinedatafields \"2\" \"3\"\n");
  }

  // Runs the commands after the table and the view, and a dump of the table behind them.
  std::string dumpAfter(const std::vector<std::string>& commands = {}) {
    std::vector<std::string> words = {"readTable plan.tbl", "readView plan.view"};
    words.insert(words.end(), commands.begin(), commands.end());
    words.insert(words.end(), {"> plan.dump", "dumptable", "> stderr", "quit"});
    outcome = run(words);
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 0);
    const std::string dump = read("plan.dump");
    const std::size_t first = dump.find('"');
    return dump.substr(first, dump.rfind('\n', dump.rfind("> stderr")) + 1 - first);
  }

  Outcome outcome;
};

std::string formula(const std::string& name, const std::string& expression,
                    const std::string& inverse = "_undefined_") {
  return "addfield <Name> \"" + name +
         "\" <Type> \"expression\" <Classification> \"dataReadWrite\"" +
         " <Hide> No <Expression> \"" + expression + "\" <InverseExpression> \"" + inverse +
         "\" <HighlightExpression> \"BLACK()\"\n";
}

TEST(HostFormulas, AreComputedWhenAViewIsRead) {
  FormulaHost host;
  host.writeView(formula("Storage", "Prev(#Storage, 100) + Supply - Demand") +
                 formula("Share", "Demand / ('Demand:#1' + Next(#Demand))"));
  EXPECT_EQ(host.dumpAfter(),
            "\"Item\"\t\"Week\"\t\"Demand\"\t\"Supply\"\t\"Storage\"\t\"Share\"\n"
            "\"Bolt\"\t\"05.01.\"\t4.0\t8.0\t104.0\t1.0\n"
            "\"Nut\"\t\"05.01.\"\t10.0\t25.0\t115.0\t0.5\n"
            "\"Nut\"\t\"12.01.\"\t10.0\t5.0\t110.0\t1.0\n");
}

TEST(HostFormulas, ThatFailOrNameEachOtherShowAnError) {
  FormulaHost host;
  host.writeView(formula("First", "Second + 1") + formula("Second", "First + 1") +
                 formula("Third", "Demand / (Supply - 5)") + formula("Fourth", "Nothing"));
  EXPECT_EQ(
      host.dumpAfter(),
      "\"Item\"\t\"Week\"\t\"Demand\"\t\"Supply\"\t\"First\"\t\"Second\"\t\"Third\"\t\"Fourth\"\n"
      "\"Bolt\"\t\"05.01.\"\t4.0\t8.0\t*error*\t*error*\t1.3\t*error*\n"
      "\"Nut\"\t\"05.01.\"\t10.0\t25.0\t*error*\t*error*\t0.5\t*error*\n"
      "\"Nut\"\t\"12.01.\"\t10.0\t5.0\t*error*\t*error*\t*error*\t*error*\n");
}

TEST(HostFormulas, MeasurePeriodsByTheirDatesOrAsThePeriodFileStates) {
  FormulaHost host;
  host.writeView(formula("Cover", "Depletion(#Demand, 0, #Supply, #weeks)"));
  EXPECT_EQ(host.dumpAfter(),
            "\"Item\"\t\"Week\"\t\"Demand\"\t\"Supply\"\t\"Cover\"\n"
            "\"Bolt\"\t\"05.01.\"\t4.0\t8.0\t8.0\n"
            "\"Nut\"\t\"05.01.\"\t10.0\t25.0\t5.5\n"
            "\"Nut\"\t\"12.01.\"\t10.0\t5.0\t0.5\n")
      << "four weeks for a first date, the time since the one before for another";
  host.write("lengths.per", "# a period of two weeks\n12-Jan-2026 weeks 2\n5-Jan-2026 weeks 3\n");
  host.writeView(formula("Cover", "Depletion(#Demand, 0, #Supply, #weeks)"), "lengths.per");
  EXPECT_EQ(host.dumpAfter(),
            "\"Item\"\t\"Week\"\t\"Demand\"\t\"Supply\"\t\"Cover\"\n"
            "\"Bolt\"\t\"05.01.\"\t4.0\t8.0\t6.0\n"
            "\"Nut\"\t\"05.01.\"\t10.0\t25.0\t6.0\n"
            "\"Nut\"\t\"12.01.\"\t10.0\t5.0\t1.0\n");
}

TEST(HostFormulas, AreComputedAnewOnCommand) {
  FormulaHost host;
  host.writeView(formula("Rest", "Next(#Rest) + Demand"));
  const std::string header = "\"Item\"\t\"Week\"\t\"Demand\"\t\"Supply\"\t\"Rest\"\n";
  EXPECT_EQ(host.dumpAfter(), header +
                                  "\"Bolt\"\t\"05.01.\"\t4.0\t8.0\t4.0\n"
                                  "\"Nut\"\t\"05.01.\"\t10.0\t25.0\t10.0\n"
                                  "\"Nut\"\t\"12.01.\"\t10.0\t5.0\t10.0\n");
  EXPECT_EQ(host.dumpAfter({"RecalculateFormulas"}), header +
                                                         "\"Bolt\"\t\"05.01.\"\t4.0\t8.0\t4.0\n"
                                                         "\"Nut\"\t\"05.01.\"\t10.0\t25.0\t20.0\n"
                                                         "\"Nut\"\t\"12.01.\"\t10.0\t5.0\t10.0\n")
      << "the next tuple's field stands where it was computed last";
  EXPECT_EQ(host.outcome.out, "") << "no message for the host";
}

TEST(HostFormulas, RunBackwardsAndTellTheHostWhatChanged) {
  FormulaHost host;
  host.writeView(formula("Twice", "2 * Supply", "Assign(#Supply, Twice / 2 + Demand)") +
                 formula("Storage", "Prev(#Storage) + Supply - Demand"));
  EXPECT_EQ(host.dumpAfter({"RecalculateInverseFormulas"}),
            "\"Item\"\t\"Week\"\t\"Demand\"\t\"Supply\"\t\"Twice\"\t\"Storage\"\n"
            "\"Bolt\"\t\"05.01.\"\t4.0\t12.0\t24.0\t8.0\n"
            "\"Nut\"\t\"05.01.\"\t10.0\t35.0\t70.0\t25.0\n"
            "\"Nut\"\t\"12.01.\"\t10.0\t15.0\t30.0\t30.0\n");
  ASSERT_THAT(host.outcome.out, MatchesRegex("DEIDE[0-9]{9}\n"));
  EXPECT_EQ(host.read("home/" + host.outcome.out.substr(3, 11)),
            "b1 \"12.00000000000\"\nn1 \"35.00000000000\"\nn2 \"15.00000000000\"\n");
}

TEST(HostFormulas, KeepTheScratchFieldFromOneCommandToTheNext) {
  FormulaHost host;
  host.writeView(formula("Kept", "' '", "Assign('# ', ' ' + 1)"));
  const std::string header = "\"Item\"\t\"Week\"\t\"Demand\"\t\"Supply\"\t\"Kept\"\n";
  const std::string counted = header +
                              "\"Bolt\"\t\"05.01.\"\t4.0\t8.0\t3.0\n"
                              "\"Nut\"\t\"05.01.\"\t10.0\t25.0\t3.0\n"
                              "\"Nut\"\t\"12.01.\"\t10.0\t5.0\t3.0\n";
  EXPECT_EQ(host.dumpAfter({"RecalculateInverseFormulas"}), counted);
  EXPECT_EQ(
      host.dumpAfter({"RecalculateInverseFormulas", "readTable plan.tbl", "readView plan.view"}),
      counted);
}

TEST(HostFormulas, SendAnEmptyMessageWhereNoValueIsKnownToTheHost) {
  FormulaHost host;
  host.write("plan.tbl", "FieldNames:\tQty\t\nFieldTypes:\tNumber\t\nPeriodValues:\t-\t\n5\t\n");
  const Outcome outcome = host.run({"readTable plan.tbl", "RecalculateInverseFormulas", "quit"});
  ASSERT_THAT(outcome.out, MatchesRegex("DEIDE[0-9]{9}\n"));
  EXPECT_EQ(host.read("home/" + outcome.out.substr(3, 11)), "");
}

TEST(HostFormulas, NeedATable) {
  FormulaHost host;
  Outcome outcome = host.run({"RecalculateFormulas", "RecalculateInverseFormulas", "quit"});
  EXPECT_EQ(outcome.err,
            "cidRecalculateFormulas: no table loaded, function stopped.\n"
            "cidRecalculateInverseFormulas: no table loaded, function stopped.\n");
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.status, 0);
}

TEST(HostFormulas, EndTheProgramWithoutATableWhenErrorsDo) {
  for (const std::string command : {"RecalculateFormulas", "RecalculateInverseFormulas"}) {
    FormulaHost host;
    const Outcome outcome = host.run({"exitOnCmdError y", command, "echo never"});
    EXPECT_EQ(outcome.err,
              "cid" + command + ": no table loaded, function stopped.\nExiting... (bye).\n");
    EXPECT_EQ(outcome.status, 254);
  }
}

TEST(HostFormulas, TellOfPeriodFilesThatCannotBeRead) {
  FormulaHost host;
  host.writeView(formula("Cover", "Depletion(#Demand, 0, #Supply, #weeks)"), "none.per");
  const Outcome outcome = host.run({"readTable plan.tbl", "readView plan.view", "quit"});
  EXPECT_THAT(outcome.err, HasSubstr("Unable to open file \"none.per\"."));
}

TEST(HostFormulas, StandInTheExportedReport) {
  FormulaHost host;
  host.writeView(formula("Storage", "Prev(#Storage) + Supply - Demand"));
  host.write("plan.view", host.read("plan.view") + "definehiddenfields \"2\" \"3\"\n" +
                              "setflags <ShowSystemTitle> \"False\"\nsetusertitle \"Stock\"\n");
  host.run({"readTable plan.tbl", "readView plan.view", "exportreport noquotes plan.sp"});
  EXPECT_EQ(host.read("plan.sp"),
            "Stock\n\nItem\t05.01.\t12.01.\t\n\nBolt\t4.0\t\nNut\t15.0\t10.0\n");
}

}  // namespace
}  // namespace vrel
