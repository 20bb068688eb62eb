#include "base/utf8.h"

#include <gtest/gtest.h>

namespace vrel {
namespace {

TEST(CharacterCount, CountsCharactersRatherThanBytes) {
  EXPECT_EQ(characterCount(""), 0U);
  EXPECT_EQ(characterCount("Plan"), 4U);
  EXPECT_EQ(characterCount("K\xc3\xb6ln"), 4U);
  EXPECT_EQ(characterCount("\xe8\xa8\x88\xe5\x88\x92"), 2U);
}

}  // namespace
}  // namespace vrel
