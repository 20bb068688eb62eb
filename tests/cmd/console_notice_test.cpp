#include "cmd/console_notice.h"

#include <gtest/gtest.h>

#include "cmd/console.h"

namespace vrel {
namespace {

using test::Console;

TEST(ConsoleNotice, WritesEachNoticeAsOneLine) {
  Console console;
  ConsoleNotice notice(console.interpreter);
  notice.warning("Data Editor", "Not enough keys to properly display data\nextracted by\n\"x\".");
  notice.critical("QNT Error", "It failed.");
  EXPECT_EQ(console.written(),
            "Not enough keys to properly display data extracted by \"x\".\nIt failed.\n");
}

TEST(ConsoleNotice, NeverWaitsForAnAnswer) {
  Console console;
  ConsoleNotice notice(console.interpreter);
  EXPECT_EQ(notice.question("Data Editor", "Save?"), Answer::Cancel);
  EXPECT_FALSE(notice.confirm("Data Editor: Delete View", "Delete?"));
  EXPECT_TRUE(notice.progress("Reading", 1, 2));
  EXPECT_FALSE(notice.hasWindow());
  EXPECT_EQ(notice.translate("text"), "text");
  EXPECT_EQ(console.written(), "");
}

}  // namespace
}  // namespace vrel
