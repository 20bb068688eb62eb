#include "base/version.h"

#include <gtest/gtest.h>

#include "support/temporary_directory.h"

namespace vrel {
namespace {

std::string versionIn(const std::string& home) {
  return productVersion(
      [&home](const char* name) { return std::string(name) == "KORVHOME" ? home : std::string(); });
}

TEST(ProductVersion, IsTheFirstLineOfTheInstallationsFile) {
  const test::TemporaryDirectory home;
  home.write(".version", " 7.1 beta \r\n2\n");
  EXPECT_EQ(versionIn(home.path()), "7.1 beta");
}

TEST(ProductVersion, IsTheProgramsOwnWithoutOne) {
  const test::TemporaryDirectory home;
  EXPECT_EQ(versionIn(home.path()), VREL_VERSION);
  home.write(".version", "\n");
  EXPECT_EQ(versionIn(home.path()), VREL_VERSION);
  EXPECT_EQ(versionIn(""), VREL_VERSION);
}

}  // namespace
}  // namespace vrel
