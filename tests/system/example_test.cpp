// The example as the README shows it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>

#include "system/host.h"

namespace vrel {
namespace {

using test::Host;
using test::Outcome;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::StartsWith;

std::string exampleFile(const std::string& name) {
  std::ifstream file(VREL_EXAMPLES "/" + name, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

// A host in a folder of its own with the example's files.
class Example : public testing::Test {
 protected:
  Example() {
    for (const char* name : {"plan.tbl", "plan.view", "plan.per", "session.cmd", "print.cmd"}) {
      host.write(name, exampleFile(name));
    }
  }

  Host host;
};

TEST_F(Example, TheSessionLeavesTheReportAndTheTableWithoutAWord) {
  const Outcome outcome = host.run({"< session.cmd"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.out, "");

  const std::string report = host.read("plan.sp");
  EXPECT_THAT(report, StartsWith("\"Soft drinks, weekly supply plan\"\n"
                                 "\"Demand,  Supply,  Storage,  Cover,  Price  and  Active\"\n"
                                 "\"(Group,  Item  and  Location  by  Period)\"\n\n"
                                 "Group\tItem\tLocation\t\t05-Jan-2026\t12-Jan-2026\t"));
  EXPECT_THAT(report, HasSubstr("\t15-Jun-2026\tAll weeks\t\n"));
  EXPECT_THAT(report,
              HasSubstr("\n\"Juice\"\t\"Apple juice\"\t\"Bremen\"\t\"Demand\"\t603.00\t585.00\t"));
  EXPECT_THAT(report, HasSubstr("\n\t\t\t\"Storage\"\t692.00\t707.00\t"));
  EXPECT_THAT(report, HasSubstr("\n\t\t\t\"Cover\"\t1.22\t1.34\t"));
  // Three title lines, an empty one, the labels, an empty one; six rows a series, four summary rows
  // and an empty one an item, and four summary rows at the end.
  EXPECT_EQ(std::count(report.begin(), report.end(), '\n'), 6 + 12 * (4 * 6 + 4 + 1) + 4);

  const std::string dump = host.read("plan.dump");
  EXPECT_THAT(dump,
              HasSubstr("\"Juice\"\t\"Apple juice\"\t\"Bremen\"\t\"05-Jan-2026\"\t603.00\t0.00\t"
                        "1,295.00\t14.90\tYes\t692.00\t1.22\n"));
}

TEST_F(Example, TheReportSumsUpDepotsItemsAndWeeks) {
  host.run({"readTable plan.tbl", "readView plan.view", "exportreport noquotes plan.sp"});
  const std::string report = host.read("plan.sp");
  EXPECT_THAT(report, HasSubstr("\n\tAll depots\t\tDemand\t1752.00\t1629.00\t"));
  EXPECT_THAT(report, HasSubstr("\nAll items\t\t\tDemand\t21678.00\t22106.00\t"));
  EXPECT_THAT(report, HasSubstr("\t31163.00\t623845.00\n"));
  // The worst storage anywhere, where the supplier of iced tea fails.
  EXPECT_THAT(report, HasSubstr("\t23.00\t-660.00\t-1260.00\t-2060.00\t-2730.00\t"));
}

TEST_F(Example, IsPrintedInTheLandscapeOnPagesThatItCounts) {
  const Outcome outcome = host.run({"< print.cmd"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out + outcome.err, "");
  const std::string print = host.read("plan.ps");
  EXPECT_THAT(print, StartsWith("%!PS-Adobe-\n"
                                "%%DocumentFonts: Helvetica\n"
                                "%%Title: Soft drinks, weekly supply plan\n"));
  EXPECT_THAT(print, HasSubstr("\n90 rotate 0 -612.0000 translate\n"));
  std::size_t pages = 0;
  for (std::size_t at = print.find("\n%%Page: "); at != std::string::npos;
       at = print.find("\n%%Page: ", at + 1)) {
    ++pages;
  }
  EXPECT_THAT(print, HasSubstr("\n%%Pages: " + std::to_string(pages) + "\n"));
  // Two pages across.
  EXPECT_EQ(pages % 2, 0U);
  EXPECT_GT(pages, 0U);
}

TEST_F(Example, TheInverseFormulasHandThePlanBackToTheHost) {
  host.write("home/empty", "");
  host.environment["HOME"] = host.directory.path("home");
  const Outcome outcome =
      host.run({"readTable plan.tbl", "readView plan.view", "RecalculateInverseFormulas", "quit"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  ASSERT_THAT(outcome.out, MatchesRegex("DEIDE[0-9]{9}\n"));
  const std::string message = host.read("home/" + outcome.out.substr(3, 11));
  EXPECT_THAT(message, StartsWith("plan/0001/group \"Juice\"\n"
                                  "plan/0001/item \"Apple juice\"\n"
                                  "plan/0001/location \"Bremen\"\n"
                                  "plan/0001/period \"05-Jan-2026\"\n"
                                  "plan/0001/demand \"603.00000000000\"\n"
                                  "plan/0001/supply \"0.00000000000\"\n"
                                  "plan/0001/opening \"1295.00000000000\"\n"
                                  "plan/0001/price \"14.90000000000\"\n"
                                  "plan/0001/active \"Yes\"\n"));
  EXPECT_EQ(std::count(message.begin(), message.end(), '\n'), 12 * 4 * 24 * 9);
}

TEST_F(Example, TheReportIsWrittenByThreeCommandWords) {
  const Outcome outcome =
      host.run({"readTable plan.tbl", "readView plan.view", "exportreport noquotes plan.sp"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_THAT(host.read("plan.sp"), StartsWith("Soft drinks, weekly supply plan\n"
                                               "Demand,  Supply,  Storage,  Cover,  Price  and  "
                                               "Active\n"));
}

}  // namespace
}  // namespace vrel
