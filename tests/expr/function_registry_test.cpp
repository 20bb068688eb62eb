#include "expr/function_registry.h"

#include <gtest/gtest.h>

#include "expr/function_arguments.h"
#include "expr/parser.h"
#include "support/formulas.h"

namespace vrel {
namespace {

template <int value>
bool fixed(const FunctionArguments& /*arguments*/, double& result) {
  result = value;
  return true;
}

std::vector<std::string> namesOf(const FunctionRegistry& functions) {
  std::vector<std::string> names;
  for (const FunctionRecord& record : functions.records()) {
    names.push_back(record.name);
  }
  return names;
}

std::string parsedWith(const FunctionRegistry& functions, std::string_view text) {
  const ParseResult result = parseExpression(text, functions);
  return result.expression ? test::treeOf(*result.expression) : "error";
}

TEST(FunctionRegistry, KeepsFunctionsInTheOrderOfTheirBytes) {
  FunctionRegistry functions;
  for (const char* name : {"b", "a", "B", "ab", "\xc3\xa4", "Z", ""}) {
    functions.add({.name = name, .function = fixed<1>});
  }
  EXPECT_EQ(namesOf(functions),
            (std::vector<std::string>{"", "B", "Z", "a", "ab", "b", "\xc3\xa4"}));
}

TEST(FunctionRegistry, FindsFunctionsByTheirExactNames) {
  FunctionRegistry functions;
  functions.add({.name = "Cover", .minimum = 3, .maximum = 4, .usage = "(#timeUnit)"});
  ASSERT_NE(functions.find("Cover"), nullptr);
  EXPECT_EQ(functions.find("Cover")->usage, "(#timeUnit)");
  EXPECT_EQ(functions.find("COVER"), nullptr);
  EXPECT_EQ(functions.find("Cove"), nullptr);
  EXPECT_EQ(functions.find("Covers"), nullptr);
  EXPECT_EQ(functions.find(""), nullptr);
}

TEST(FunctionRegistry, FindsNothingWhenEmpty) {
  EXPECT_EQ(FunctionRegistry().find("Cover"), nullptr);
}

TEST(FunctionRegistry, ReplacesAFunctionOfTheSameName) {
  FunctionRegistry functions;
  functions.add({.name = "F", .function = fixed<1>, .minimum = 1, .maximum = 2, .usage = "(x)"});
  functions.add({.name = "F", .function = fixed<2>, .minimum = 3, .maximum = 4, .usage = "(y)"});
  ASSERT_EQ(functions.records().size(), 1U);
  const FunctionRecord& record = functions.records()[0];
  EXPECT_EQ(record.function, fixed<2>);
  EXPECT_EQ(record.minimum, 3);
  EXPECT_EQ(record.maximum, 4);
  EXPECT_EQ(record.usage, "(y)");
}

TEST(FunctionRegistry, AReplacedConstantIsNoConstantAnyMore) {
  FunctionRegistry functions;
  functions.add({.name = "F", .function = fixed<5>, .constant = true});
  EXPECT_EQ(parsedWith(functions, "F()"), "5");
  functions.add({.name = "F", .function = fixed<5>});
  EXPECT_EQ(parsedWith(functions, "F()"), "(F)");
}

TEST(FunctionRegistry, AFunctionReplacedByAConstantIsFolded) {
  FunctionRegistry functions;
  functions.add({.name = "F", .function = fixed<5>});
  functions.add({.name = "F", .function = fixed<6>, .constant = true});
  EXPECT_EQ(parsedWith(functions, "F()"), "6");
}

int calls = 0;

bool counted(const FunctionArguments& arguments, double& result) {
  result = ++calls;
  EXPECT_EQ(arguments.count(), 0);
  EXPECT_EQ(arguments.context(), nullptr);
  return true;
}

TEST(FunctionRegistry, AConstantIsCalledOncePerMentionWithoutArgumentsOrContext) {
  FunctionRegistry functions;
  functions.add({.name = "F", .function = counted, .constant = true});
  calls = 0;
  const ParseResult result = parseExpression("F() * 10 + F()", functions);
  EXPECT_EQ(calls, 2);
  EXPECT_EQ(test::treeOf(*result.expression), "(+ (* 1 10) 2)");
  evaluate(*result.expression);
  EXPECT_EQ(calls, 2);
}

TEST(FunctionRegistry, CutsNamesAfter63BytesAndUsagesAfter131) {
  FunctionRegistry functions;
  functions.add({.name = std::string(64, 'n'), .usage = std::string(132, 'u')});
  functions.add({.name = std::string(63, 'm'), .usage = std::string(131, 'v')});
  EXPECT_EQ(namesOf(functions),
            (std::vector<std::string>{std::string(63, 'm'), std::string(63, 'n')}));
  EXPECT_EQ(functions.records()[0].usage, std::string(131, 'v'));
  EXPECT_EQ(functions.records()[1].usage, std::string(131, 'u'));
}

void fill(FunctionRegistry& functions, int count) {
  for (int i = 0; i < count; ++i) {
    functions.add({.name = "F" + std::to_string(i), .function = fixed<1>});
  }
}

TEST(FunctionRegistry, Holds256Functions) {
  FunctionRegistry functions;
  fill(functions, 256);
  EXPECT_EQ(functions.records().size(), 256U);
}

TEST(FunctionRegistry, ReplacesFunctionsWhenFull) {
  FunctionRegistry functions;
  fill(functions, 256);
  functions.add({.name = "F255", .function = fixed<2>});
  EXPECT_EQ(functions.find("F255")->function, fixed<2>);
}

#if GTEST_HAS_DEATH_TEST
TEST(FunctionRegistryDeathTest, EndsTheProcessForOneMore) {
  FunctionRegistry functions;
  fill(functions, 256);
  EXPECT_DEATH(functions.add({.name = "G", .function = fixed<1>}),
               "^DRegisterFunc: out of available functions\\.\n");
}
#endif

}  // namespace
}  // namespace vrel
