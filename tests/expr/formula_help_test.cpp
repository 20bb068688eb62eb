#include "expr/formula_help.h"

#include <gtest/gtest.h>

#include "support/formulas.h"

namespace vrel {
namespace {

using test::allFunctions;

using Lines = std::vector<std::string>;

FieldDef fieldOf(const std::string& name, FieldType type) {
  FieldDef field;
  field.name = name;
  field.type = type;
  return field;
}

std::vector<FieldDef> planFields() {
  std::vector<FieldDef> fields;
  fields.push_back(fieldOf("Item", FieldType::String));
  fields.push_back(fieldOf("Plan", FieldType::Number));
  fields.push_back(fieldOf("Net Demand", FieldType::Number));
  fields.push_back(fieldOf("Open", FieldType::Boolean));
  fields.push_back(fieldOf("Stock", FieldType::Expression));
  return fields;
}

// "ok", or the error with what it stands at, or the names without a number.
std::string checked(std::string_view text) {
  const FormulaCheck check = checkFormulaText(text, allFunctions(), planFields());
  if (check.isBlank) {
    return "blank";
  }
  std::string result = check.isFormula() ? "ok" : "error " + std::to_string(int(check.error));
  if (!check.isFormula()) {
    result.append(" at ").append(std::to_string(check.start)).append(" <");
    result.append(text.substr(check.start, check.length)).append(">");
    result.append(check.function.empty() ? "" : " ").append(check.function).append(check.usage);
  }
  constexpr const char* kKinds[] = {" no field ", " no numbers ", " function "};
  for (const UnknownName& each : check.unknown) {
    result.append(kKinds[static_cast<int>(each.kind)]).append(each.name).append(" <");
    result.append(text.substr(each.start, each.length)).append(">");
  }
  return result;
}

// The texts and, where the cursor stands in them, a bar.
Lines completed(std::string_view text) {
  const std::optional<WrittenWord> word = wordBefore(text, text.size());
  if (!word) {
    return {"nothing"};
  }
  Lines lines;
  for (const Completion& each : completionsOf(*word, allFunctions(), planFields())) {
    lines.push_back(std::string(text.substr(0, word->start)) + each.text.substr(0, each.cursor) +
                    "|" + each.text.substr(each.cursor));
  }
  return lines;
}

TEST(FormulaCheck, FindsNothingWrongWithAFormula) {
  EXPECT_EQ(checked("Plan * 2 + 'Net Demand:-1' + Stock:#1 - IF(Open, 1, ' ')"), "ok");
}

TEST(FormulaCheck, TellsAMissingFormula) {
  EXPECT_EQ(checked(""), "blank");
  EXPECT_EQ(checked(" \t"), "blank");
}

TEST(FormulaCheck, TellsWhereASyntaxErrorStands) {
  EXPECT_EQ(checked("Plan * / 2"), "error 1 at 7 </>");
  EXPECT_EQ(checked("Plan *"), "error 1 at 6 <>");
  EXPECT_EQ(checked("Plan * 'Net"), "error 1 at 7 <'Net>");
  EXPECT_EQ(checked("Plan == 2"), "error 1 at 6 <=>");
}

TEST(FormulaCheck, NamesFunctionsThatAreNotThereOrCalledOtherwise) {
  EXPECT_EQ(checked("1 + Foo(2)"), "error 2 at 4 <Foo> Foo");
  EXPECT_EQ(checked("ROUND()"), "error 3 at 0 <ROUND> ROUND(x, [num decimal places])");
}

TEST(FormulaCheck, WarnsOfNamesWithoutANumber) {
  EXPECT_EQ(checked("Plam + Item + 'No such:-1'"),
            "ok no field Plam <Plam> no numbers Item <Item> no field No such <'No such:-1'>");
  EXPECT_EQ(checked("IF(TRUE, RED(), 0)"), "ok function TRUE <TRUE>");
}

TEST(FormulaCheck, LeavesTextArgumentsAlone) {
  EXPECT_EQ(checked("Cover(#day, #Plan, #Stock)"), "ok");
}

TEST(Completions, AreFieldsThenFunctions) {
  EXPECT_EQ(completed("P"), (Lines{"Plan|", "PERCENT(|)", "PI()|", "PINK()|", "POS(|)", "POWER(|)",
                                   "PRODUCT(|)", "Prev(|)"}));
}

TEST(Completions, AreFoundRegardlessOfCaseExactOnesFirst) {
  EXPECT_EQ(completed("1+pl"), (Lines{"1+Plan|"}));
  EXPECT_EQ(completed("Pr"), (Lines{"Prev(|)", "PRODUCT(|)"}));
}

TEST(Completions, HaveQuotesWhereTheirNameNeedsThem) {
  EXPECT_EQ(completed("2*net"), (Lines{"2*'Net Demand'|", "2*NETOL(|)"}));
  EXPECT_EQ(completed("2*'Net D"), (Lines{"2*'Net Demand'|"}));
  EXPECT_EQ(completed("2*'P"), (Lines{"2*Plan|"}));
}

TEST(Completions, OfTextArgumentsAreFields) {
  EXPECT_EQ(completed("Prev(#p"), (Lines{"Prev(#Plan|"}));
  EXPECT_EQ(completed("Prev(#N"), (Lines{"Prev('#Net Demand'|"}));
  EXPECT_EQ(completed("Prev('#N"), (Lines{"Prev('#Net Demand'|"}));
}

TEST(Completions, OfAnOperatorWordGoOn) {
  EXPECT_EQ(completed("Plan OR"), (Lines{"Plan ORANGE()|"}));
}

TEST(Completions, LeaveOutFieldsThatFormulasCannotName) {
  std::vector<FieldDef> fields = planFields();
  fields.push_back(fieldOf("Plan:b", FieldType::Number));
  fields.push_back(fieldOf("Plan", FieldType::Expression));
  const auto found = completionsOf({.prefix = "Pla"}, allFunctions(), fields);
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].text, "Plan");
}

TEST(WordBefore, IsEmptyWhereAWordMayBegin) {
  for (const char* text : {"", "Plan + ", "(", "Plan+", "MAX(1,", "a !"}) {
    const std::optional<WrittenWord> word = wordBefore(text, std::string_view(text).size());
    ASSERT_TRUE(word) << text;
    EXPECT_EQ(word->prefix, "") << text;
    EXPECT_EQ(word->start, std::string_view(text).size()) << text;
  }
}

TEST(WordBefore, IsNothingWhereNoneMayBeCompleted) {
  for (const char* text : {"12", "1.2.3", "Plan:-1", "'Net Demand'", "(1)"}) {
    EXPECT_FALSE(wordBefore(text, std::string_view(text).size())) << text;
  }
}

TEST(WordBefore, EndsAtTheCursor) {
  const std::optional<WrittenWord> word = wordBefore("Seen + Planned * 2", 9);
  ASSERT_TRUE(word);
  EXPECT_EQ(word->prefix, "Pl");
  EXPECT_EQ(word->start, 7U);
}

TEST(FunctionCall, HasTheCursorBehindItWhenItTakesNoArguments) {
  EXPECT_EQ(functionCall(*allFunctions().find("RED")).cursor, 5U);
  EXPECT_EQ(functionCall(*allFunctions().find("ABS")).cursor, 4U);
}

TEST(ConstantColour, IsKnownWithoutValues) {
  EXPECT_EQ(constantColour("RED()", allFunctions()), 1U);
  EXPECT_EQ(constantColour(" 4 ", allFunctions()), 4U);
  EXPECT_EQ(constantColour("IF(Plan,RED(),BLUE())", allFunctions()), std::nullopt);
  EXPECT_EQ(constantColour("9", allFunctions()), std::nullopt);
  EXPECT_EQ(constantColour("-1", allFunctions()), std::nullopt);
  EXPECT_EQ(constantColour("RED(", allFunctions()), std::nullopt);
}

}  // namespace
}  // namespace vrel
