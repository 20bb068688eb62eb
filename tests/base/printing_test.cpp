// What hands files to printers.
#include <gtest/gtest.h>

#include "base/platform.h"

namespace vrel::platform {
namespace {

#ifdef _WIN32

TEST(SpoolCommand, NamesServerPrinterAndFile) {
  EXPECT_EQ(spoolCommand({.server = "\\\\hall", .name = "big"}, "c:\\tmp\\deprn1"),
            "lpr -S \"\\\\hall\" -P \"big\" \"c:\\tmp\\deprn1\"");
}

TEST(SpoolCommand, HasThePrintersNameTwiceWithoutAServer) {
  EXPECT_EQ(spoolCommand({.server = "", .name = "big"}, "deprn1"),
            "lpr -S \"big\" -P \"big\" \"deprn1\"");
}

TEST(SpoolRaw, FailsForAPrinterThatIsNotThere) {
  EXPECT_EQ(spoolRaw({.server = "", .name = "no such printer"}, "My Document", "no such file"),
            std::optional(false));
}

#else

TEST(SpoolCommand, NamesServerPrinterAndFile) {
  EXPECT_EQ(spoolCommand({.server = "hall", .name = "big"}, "/tmp/deprn1"),
            "lpr -H \"hall\" -P \"big\" \"/tmp/deprn1\"");
}

TEST(SpoolCommand, NamesNoServerWhereThereIsNone) {
  EXPECT_EQ(spoolCommand({.server = "", .name = "big"}, "/tmp/deprn1"),
            "lpr -P \"big\" \"/tmp/deprn1\"");
}

TEST(SpoolRaw, IsNoRoadHere) {
  EXPECT_EQ(spoolRaw({.server = "", .name = "big"}, "My Document", "/tmp/deprn1"), std::nullopt);
}

TEST(QuotedWord, KeepsEveryByteFromTheCommandProcessor) {
  EXPECT_EQ(quotedWord("a b"), "\"a b\"");
  EXPECT_EQ(quotedWord("$HOME `x` \"y\" \\z"), "\"\\$HOME \\`x\\` \\\"y\\\" \\\\z\"");
  EXPECT_EQ(runCommand("test " + quotedWord("$HOME\"`") + " = '$HOME\"`'"), 0);
}

#endif

}  // namespace
}  // namespace vrel::platform
