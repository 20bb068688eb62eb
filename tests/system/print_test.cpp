// Printing as a host asks for it, with no display and no real printer.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "system/host.h"

namespace vrel {
namespace {

using test::Host;
using test::Outcome;
using testing::StartsWith;

constexpr const char* kPlan =
    "FieldNames:\tItem\tWeek\tQty\t\n"
    "FieldTypes:\tString\tString\tNumber\t\n"
    "PeriodValues:\t\n"
    "Bolt\tW1\t5\n"
    "Nut\tW2\t1234.5\n";

std::string viewWith(const std::string& printOptions) {
  return "setusertitle \"Week plan\"\n"
         "precision 2\n"
         "addfield <Name> \"Item\" <Type> \"string\" <Classification> \"key\" <Hide> No\n"
         "addfield <Name> \"Week\" <Type> \"string\" <Classification> \"key\" <Hide> No\n"
         "addfield <Name> \"Qty\" <Type> \"number\" <Classification> \"dataReadWrite\" <Hide> No\n"
         "definexfields \"0\"\n"
         "defineyfields \"1\"\n"
         "definedatafields \"2\"\n"
         "defineprintoptions " +
         printOptions + "\n";
}

constexpr const char* kAscii = "<PrinterType> 1 <PageWidthChars> 40";

constexpr const char* kPrinted =
    "               Week plan        Page 1.1\n"
    "\n"
    "Item |   W1 |       W2\n"
    "-----+------+---------\n"
    "Bolt | 5.00 |\n"
    "Nut  |      | 1,234.50\n"
    "\f";

// A host in whose PATH other programs stand for the spooler's.
class PrintCommand : public testing::Test {
 protected:
  Host host_;

  void SetUp() override {
    host_.write("plan.tbl", kPlan);
    host_.write("plan.view", viewWith(kAscii));
    host_.environment["PATH"] = host_.directory.path("bin") + ":/usr/bin:/bin";
    host_.environment["TMPDIR"] = host_.directory.path("tmp");
    std::filesystem::create_directory(host_.directory.path("tmp"));
    addProgram("lpstat", "exit 1");
    // Notes its words, and keeps the file, which comes last.
    addProgram("lpr",
               "echo \"$@\" | sed 's/deprn[0-9]*/deprn#/' > \"$OLDPWD/words\"\n"
               "for file; do :; done; cat \"$file\" > \"$OLDPWD/paper\"");
  }

  void addProgram(const std::string& name, const std::string& script) {
    host_.write("bin/" + name,
                "#!/bin/sh\nOLDPWD='" + host_.directory.path() + "'\n" + script + "\n");
    std::filesystem::permissions(host_.directory.path("bin/" + name),
                                 std::filesystem::perms::owner_all);
  }

  Outcome print(const std::string& command) {
    return host_.run({"readTable plan.tbl", "readView plan.view", command, "echo never"});
  }
  bool leftNoFile() const { return std::filesystem::is_empty(host_.directory.path("tmp")); }
};

TEST_F(PrintCommand, HandsTheReportToItsArgumentAndEndsTheProcess) {
  const Outcome outcome = print("printreport \"cat %s > paper && echo printed\"");
  EXPECT_EQ(outcome.out, "printed\n");
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(host_.read("paper"), kPrinted);
  EXPECT_TRUE(leftNoFile());
}

TEST_F(PrintCommand, PutsTheFileBehindACommandThatDoesNotPlaceIt) {
  print("printreport 'tee paper <'");
  EXPECT_EQ(host_.read("paper"), kPrinted);
}

TEST_F(PrintCommand, TakesTheViewsPrintCommandWithoutAnArgument) {
  host_.write("plan.view",
              viewWith(std::string(kAscii) + " <PrintCommand> \"cat %s > from_view\""));
  EXPECT_EQ(print("printreport").status, 0);
  EXPECT_EQ(host_.read("from_view"), kPrinted);
}

TEST_F(PrintCommand, SendsTheReportToThePreferredPrinter) {
  addProgram("lpstat",
             "case \"$LC_ALL$1\" in C-e) echo office; echo hall;; "
             "C-d) echo 'system default destination: hall';; esac");
  const Outcome outcome = print("printreport");
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(host_.read("words"), "-P hall " + host_.directory.path("tmp") + "/deprn#\n");
  EXPECT_EQ(host_.read("paper"), kPrinted);
  EXPECT_TRUE(leftNoFile());
}

TEST_F(PrintCommand, SendsTheReportToTheFirstPrinterWhenNoneIsPreferred) {
  addProgram("lpstat",
             "case \"$1\" in -e) echo office; echo hall;; "
             "-d) echo 'no system default destination';; esac");
  print("printreport");
  EXPECT_THAT(host_.read("words"), StartsWith("-P office "));
}

TEST_F(PrintCommand, WithoutAPrinterSaysThatThePrintIsCancelled) {
  const Outcome outcome = print("printreport");
  EXPECT_EQ(outcome.err, "Error attempting to print. Print cancelled.\n");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(leftNoFile());
}

TEST_F(PrintCommand, ThatFailsIsToldOnTheOutputStream) {
  const Outcome outcome =
      host_.run({"readTable plan.tbl", "readView plan.view", "> told", "printreport \"exit 3 #\""});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err + outcome.out, "");
  EXPECT_EQ(host_.read("told"),
            "printreport \"exit 3 #\""
            "Error attempting to print. Print cancelled.\n");
  EXPECT_TRUE(leftNoFile());
}

TEST_F(PrintCommand, ThatFindsNoPlaceForItsFileSaysSo) {
  std::filesystem::remove(host_.directory.path("tmp"));
  const Outcome outcome = print("printreport \"cat %s\"");
  EXPECT_THAT(outcome.err, testing::MatchesRegex("Unable to print to \".*/tmp/deprn.*\"\\.\n"));
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.status, 0);
}

TEST_F(PrintCommand, NeedsATable) {
  const Outcome outcome =
      host_.run({"printreport", "printreport lp", "exitOnCmdError y", "printreport lp"});
  EXPECT_EQ(outcome.err,
            "cidPrintReport: need valid tuple info.\n"
            "cidPrintReport: cannot display \"lp\" - need valid tuple info.\n"
            "cidPrintReport: cannot display \"lp\" - need valid tuple info.\n"
            "Exiting... (bye).\n");
  EXPECT_EQ(outcome.status, 254);
}

}  // namespace
}  // namespace vrel
