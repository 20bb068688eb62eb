#include "model/edit_text.h"

#include <gtest/gtest.h>

namespace vrel {
namespace {

FieldDef fieldOf(FieldType type) {
  FieldDef field;
  field.type = type;
  return field;
}

std::string edited(double number, FieldType type = FieldType::Number) {
  const FieldDef field = fieldOf(type);
  FormatSettings settings;
  settings.precision = 2;
  return editText({&field, numberCell(number)}, settings);
}

std::string typed(std::string_view text, FieldType type = FieldType::Number) {
  return typedText(fieldOf(type), text);
}

TEST(EditText, ANumberHasAllItsDigitsAndNoSeparators) {
  EXPECT_EQ(edited(1234567.891), "1234567.891");
  EXPECT_EQ(edited(1.0 / 3), "0.333333333333333");
  EXPECT_EQ(edited(0.1 + 0.2), "0.3");
  EXPECT_EQ(edited(-12), "-12");
  EXPECT_EQ(edited(1e17), "1e+17");
  EXPECT_EQ(edited(2.5, FieldType::Expression), "2.5");
}

TEST(EditText, ZeroHasNoSign) {
  EXPECT_EQ(edited(-0.0), "0");
}

TEST(EditText, AnExactNumberHasUpTo15Digits) {
  EXPECT_EQ(exactNumber(1234567.25), "1234567.25");
  EXPECT_EQ(exactNumber(2.0 / 3), "0.666666666666667");
  EXPECT_EQ(exactNumber(-0.0), "0");
}

TEST(EditText, SpecialNumbersReadAsShown) {
  EXPECT_EQ(edited(kUnbounded), "*");
  EXPECT_EQ(edited(kErrorValue), "*") << "an error is no number below the unbounded one";
  const FieldDef field = fieldOf(FieldType::Number);
  EXPECT_EQ(editText({&field, undefinedCell()}, FormatSettings()), "undefined");
}

TEST(EditText, OtherTypesReadAsShown) {
  const FieldDef field = fieldOf(FieldType::Boolean);
  EXPECT_EQ(editText({&field, Cell{.boolean = true}}, FormatSettings()), "Yes");
}

TEST(TypedText, ANumberAsItIsShownLosesItsSeparators) {
  EXPECT_EQ(typed("1,234"), "1234");
  EXPECT_EQ(typed(" -12,345,678.90 "), "-12345678.90");
  EXPECT_EQ(typed("*"), "1e+20");
  EXPECT_EQ(typed("1,234", FieldType::Expression), "1234");
}

TEST(TypedText, ACommaThatDoesNotSeparateThousandsStays) {
  for (const char* text : {"1,5", "12,34,567", "1234,567", ",123", "1,2345", "1,234,", "1,23a",
                           "1,234.5,6", "MAX(1,234)", "-,123"}) {
    EXPECT_EQ(typed(text), text);
  }
}

TEST(TypedText, AFormulaStaysAsItIs) {
  EXPECT_EQ(typed("2*3"), "2*3");
  EXPECT_EQ(typed(" Demand + 1 "), " Demand + 1 ");
}

TEST(TypedText, TheWordsOfABooleanAreItsValues) {
  EXPECT_EQ(typed("Yes", FieldType::Boolean), "1");
  EXPECT_EQ(typed(" No ", FieldType::Boolean), "0");
  EXPECT_EQ(typed("Demand > 0", FieldType::Boolean), "Demand > 0");
  EXPECT_EQ(typed("Yes"), "Yes");
}

TEST(TypedText, TextsOfOtherTypesStay) {
  EXPECT_EQ(typed("1,234", FieldType::String), "1,234");
  EXPECT_EQ(typed("*", FieldType::String), "*");
}

}  // namespace
}  // namespace vrel
