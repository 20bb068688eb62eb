// What a host hears of changed values: the line on standard output and the file that it names.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "system/host.h"

namespace vrel {
namespace {

using test::Host;
using test::Outcome;
using testing::HasSubstr;
using testing::MatchesRegex;

constexpr const char* kPlan =
    "FieldNames:\tItem\tPeriod\tQty\tActive\t\n"
    "FieldTypes:\tString\tPeriod\tNumber\tBoolean\t\n"
    "PeriodValues:\tP1\tP2\t\n"
    "Nut\tP2\t1234.5\tYes\t### n1,n2,n3,n4\n"
    "Bolt\tP1\t5\tNo\t### ,,b3\n"
    "Pin\tP1\t7\tNo\n";

const std::vector<std::string> kSession = {"readTable plan.tbl", "RecalculateInverseFormulas",
                                           "quit"};

// A host whose message files come to lie in a folder of their own.
class MessageHost : public Host {
 public:
  MessageHost() {
    write("plan.tbl", kPlan);
    write("home/empty", "");
    environment["HOME"] = directory.path("home");
  }
};

TEST(HostMessage, IsAnnouncedOnStandardOutputAndHoldsTheTable) {
  MessageHost host;
  const Outcome outcome = host.run(kSession);
  EXPECT_EQ(outcome.err, "");
  ASSERT_THAT(outcome.out, MatchesRegex("DEIDE[0-9]{9}\n"));
  EXPECT_EQ(host.read("home/" + outcome.out.substr(3, 11)),
            "b3 \"5.00000000000\"\n"
            "n1 \"Nut\"\nn2 \"P2\"\nn3 \"1234.50000000000\"\nn4 \"Yes\"\n");
}

TEST(HostMessage, HoldsNoFormulasWhichHaveNoNotes) {
  MessageHost host;
  host.write("plan.tbl",
             "FieldNames:\tItem\tQty\t\nFieldTypes:\tString\tNumber\t\nPeriodValues:\tP1\t\n"
             "Nut\t5\t### n1,n2,surplus\n");
  host.write("plan.view",
             "addfield <Name> Item <Type> string <Classification> key\n"
             "addfield <Name> Qty <Type> number <Classification> dataReadWrite\n"
             "addfield <Name> Twice <Type> expression <Expression> Qty*2 <InverseExpression> "
             "\"Assign(#Qty, 8)\"\n");
  const Outcome outcome =
      host.run({"readTable plan.tbl", "readView plan.view", "RecalculateInverseFormulas", "quit"});
  EXPECT_EQ(outcome.err, "");
  ASSERT_THAT(outcome.out, MatchesRegex("DEIDE[0-9]{9}\n"));
  EXPECT_EQ(host.read("home/" + outcome.out.substr(3, 11)), "n1 \"Nut\"\nn2 \"8.00000000000\"\n");
}

TEST(HostMessage, IsToldOfInTheDebugOutputBeforeItIsAnnounced) {
  MessageHost host;
  host.environment["QNT_ENABLE_CONSOLE_DEBUG_INFO"] = "";
  EXPECT_THAT(host.run(kSession).out,
              MatchesRegex("Sorry, not implemented: send the data update to Korv\\(\\) in "
                           "vrel/FillCells\n"
                           "SendUpdateMessageToHostApp\\( /.*/home/DE[0-9]{9}, DE \\)\n"
                           "DEIDE[0-9]{9}\n"));
}

TEST(HostMessage, LeavesTheNumbersOfTheReportAsTheyWere) {
  MessageHost host;
  host.run({"readTable plan.tbl", "RecalculateInverseFormulas", "> plan.dump", "dumptable"});
  EXPECT_THAT(host.read("plan.dump"), HasSubstr("\"Nut\"\tP2\t1,234.5000000000\tYes\n"));
}

TEST(HostMessage, ThatCannotBeWrittenIsLostAndLogged) {
  MessageHost host;
  host.environment["HOME"] = host.directory.path("none");
  const Outcome outcome = host.run(kSession);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(host.read("vrel.log"),
              HasSubstr("> Cannot open message file " + host.directory.path("none/DE")));
  EXPECT_THAT(host.read("vrel.log"), HasSubstr(" - change lost!\n"));
}

}  // namespace
}  // namespace vrel
