#include "model/text_pool.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vrel {
namespace {

TEST(TextPool, EqualTextsHaveEqualIds) {
  TextPool pool;
  const std::uint32_t bolt = pool.intern("Bolt");
  const std::uint32_t nut = pool.intern("Nut");
  EXPECT_EQ(pool.intern("Bolt"), bolt);
  EXPECT_NE(bolt, nut);
  EXPECT_EQ(pool.text(bolt), "Bolt");
  EXPECT_EQ(pool.text(nut), "Nut");
}

TEST(TextPool, NoTextIsNotTheEmptyText) {
  TextPool pool;
  EXPECT_EQ(pool.text(0), "");
  EXPECT_EQ(pool.find(""), std::nullopt);
  EXPECT_EQ(pool.intern(""), 1U);
  EXPECT_EQ(pool.find(""), 1U);
}

TEST(TextPool, FindingStoresNothing) {
  TextPool pool;
  EXPECT_EQ(pool.find("Bolt"), std::nullopt);
  EXPECT_EQ(pool.size(), 1U);
}

TEST(TextPool, KeepsManyTextsOfAllLengthsApart) {
  TextPool pool;
  std::vector<std::string> texts;
  for (int i = 0; i < 20000; ++i) {
    texts.push_back(std::string(static_cast<std::size_t>(i % 40), 'x') + std::to_string(i));
  }
  texts.push_back(std::string(3 << 20, 'y'));
  std::vector<std::uint32_t> ids;
  for (const std::string& text : texts) {
    ids.push_back(pool.intern(text));
  }
  for (std::size_t i = 0; i < texts.size(); ++i) {
    ASSERT_EQ(pool.text(ids[i]), texts[i]);
    ASSERT_EQ(pool.find(texts[i]), ids[i]);
  }
  EXPECT_EQ(pool.size(), texts.size() + 1);
}

TEST(TextPool, ClearingForgetsEverything) {
  TextPool pool;
  pool.intern("Bolt");
  pool.clear();
  EXPECT_EQ(pool.size(), 1U);
  EXPECT_EQ(pool.find("Bolt"), std::nullopt);
}

}  // namespace
}  // namespace vrel
