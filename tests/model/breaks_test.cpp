#include "model/breaks.h"

#include <gtest/gtest.h>

#include <array>
#include <initializer_list>
#include <limits>

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

// The result of an operation over some numbers, at least one.
double resultOf(BreakOperation operation, std::initializer_list<double> numbers) {
  const BreakArithmetic& arithmetic = arithmeticOf(operation);
  double result = arithmetic.start;
  std::uint32_t count = 0;
  for (const double number : numbers) {
    result = arithmetic.step(result, number, count++);
  }
  return arithmetic.finish(result, count);
}

constexpr double kHuge = 3e20;
constexpr double kLargest = std::numeric_limits<double>::max();

TEST(BreakArithmetic, SumAddsUntilSomethingIsUnbounded) {
  EXPECT_EQ(resultOf(BreakOperation::Sum, {1, 2.5, -7}), -3.5);
  EXPECT_EQ(resultOf(BreakOperation::Sum, {1, kHuge, -5}), 1e20);
  EXPECT_EQ(resultOf(BreakOperation::Sum, {1e20, -1e20}), 1e20);
  EXPECT_EQ(resultOf(BreakOperation::Sum, {6e19, 6e19}), 1e20);
  EXPECT_EQ(resultOf(BreakOperation::Sum, {6e19, 6e19, -6e19}), 1e20) << "it stays unbounded";
}

TEST(BreakArithmetic, MinimumKeepsTheSmallest) {
  EXPECT_EQ(resultOf(BreakOperation::Minimum, {3, 5}), 3);
  EXPECT_EQ(resultOf(BreakOperation::Minimum, {5, -3, 4}), -3);
  EXPECT_EQ(resultOf(BreakOperation::Minimum, {kHuge, 7}), 7);
  EXPECT_EQ(resultOf(BreakOperation::Minimum, {kHuge, kLargest}), 1e20);
  EXPECT_EQ(arithmeticOf(BreakOperation::Minimum).start, kLargest);
}

TEST(BreakArithmetic, MaximumKeepsTheLargestButIsNeverNegative) {
  EXPECT_EQ(resultOf(BreakOperation::Maximum, {3, 5, 4}), 5);
  EXPECT_EQ(resultOf(BreakOperation::Maximum, {-3, -5}), 0);
  EXPECT_EQ(resultOf(BreakOperation::Maximum, {3, kHuge}), 1e20);
}

TEST(BreakArithmetic, AverageDividesBySoManyNumbers) {
  EXPECT_EQ(resultOf(BreakOperation::Average, {1, 2, 6}), 3);
  EXPECT_EQ(resultOf(BreakOperation::Average, {4}), 4);
  EXPECT_EQ(resultOf(BreakOperation::Average, {1, kHuge}), 1e20);
  EXPECT_EQ(resultOf(BreakOperation::Average, {6e19, 6e19}), 1e20);
}

TEST(BreakArithmetic, FirstAndLastTakeANumberAsItIs) {
  EXPECT_EQ(resultOf(BreakOperation::First, {0, 2, 3}), 0) << "a first 0 is not passed over";
  EXPECT_EQ(resultOf(BreakOperation::First, {kHuge, 2}), kHuge);
  EXPECT_EQ(resultOf(BreakOperation::Last, {1, 2, -3}), -3);
  EXPECT_EQ(resultOf(BreakOperation::Last, {1, kHuge}), kHuge);
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
