#include "model/breaks.h"

#include <gtest/gtest.h>

#include <array>

namespace vrel {
namespace {

TEST(BreakOperations, HaveNamesAndShortNamesByCode) {
  constexpr std::array<std::array<std::string_view, 2>, 7> kNames = {{
      {"Nothing", "Nil"},
      {"Sum", "Sum"},
      {"Minimum", "Min"},
      {"Maximum", "Max"},
      {"Average", "Avg"},
      {"First", "1st"},
      {"Last", "Last"},
  }};
  for (int code = 0; code < 7; ++code) {
    const auto operation = static_cast<BreakOperation>(code);
    const auto& names = kNames[static_cast<std::size_t>(code)];
    EXPECT_EQ(operationName(operation), names[0]);
    EXPECT_EQ(operationShortName(operation), names[1]);
    EXPECT_EQ(operationFromName(names[0]), operation);
  }
}

TEST(BreakOperations, AreFoundByTheirExactNameOnly) {
  EXPECT_EQ(operationFromName("sum"), std::nullopt);
  EXPECT_EQ(operationFromName("Min"), std::nullopt);
  EXPECT_EQ(operationFromName(""), std::nullopt);
}

TEST(BreakDefinition, StartsAsAnActiveResultThatNeverComes) {
  const BreakDefinition definition;
  EXPECT_EQ(definition.name, "Result");
  EXPECT_FALSE(definition.breakAfter);
  EXPECT_TRUE(definition.active);
  EXPECT_EQ(definition.firstBreak, 0);
  EXPECT_EQ(definition.frequency, 0);
  EXPECT_EQ(kBreakAtEnd, 0x200000);
}

TEST(BreakDefinition, HasNothingForFieldsWithoutAnOperation) {
  BreakDefinition definition;
  EXPECT_EQ(operationOf(definition, 7), BreakOperation::Nothing);
  setOperation(definition, 2, BreakOperation::Last);
  EXPECT_EQ(operationOf(definition, 1), BreakOperation::Nothing);
  EXPECT_EQ(operationOf(definition, 2), BreakOperation::Last);
  EXPECT_EQ(operationOf(definition, 3), BreakOperation::Nothing);
  setOperation(definition, 2, BreakOperation::Sum);
  EXPECT_EQ(operationOf(definition, 2), BreakOperation::Sum);
}

}  // namespace
}  // namespace vrel
