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
    for (const char* name : {"plan.tbl", "plan.view", "session.cmd"}) {
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
                                 "\"Demand,  Supply,  Storage,  Price  and  Active\"\n"
                                 "\"(Item  and  Location  by  Period)\"\n\n"
                                 "Item\tLocation\t\t05-Jan-2026\t12-Jan-2026\t"));
  EXPECT_THAT(report, HasSubstr("\n\"Apple juice\"\t\"Bremen\"\t\"Demand\"\t603.00\t585.00\t"));
  EXPECT_THAT(report, HasSubstr("\n\t\t\"Storage\"\t692.00\t707.00\t"));
  // Three title lines, an empty one, the labels, an empty one, and five rows a series.
  EXPECT_EQ(std::count(report.begin(), report.end(), '\n'), 6 + 12 * 4 * 5);

  const std::string dump = host.read("plan.dump");
  EXPECT_THAT(dump, HasSubstr("\"Apple juice\"\t\"Bremen\"\t\"05-Jan-2026\"\t603.00\t0.00\t692.00\t"
                              "14.90\tYes\n"));
}

TEST_F(Example, TheReportIsWrittenByThreeCommandWords) {
  const Outcome outcome =
      host.run({"readTable plan.tbl", "readView plan.view", "exportreport noquotes plan.sp"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_THAT(host.read("plan.sp"), StartsWith("Soft drinks, weekly supply plan\n"
                                               "Demand,  Supply,  Storage,  Price  and  Active\n"));
}

}  // namespace
}  // namespace vrel
