#include "model/field_value.h"

#include <gtest/gtest.h>

#include "model/date.h"

namespace vrel {
namespace {

FieldDef fieldOf(FieldType type) {
  FieldDef field;
  field.name = "Field";
  field.type = type;
  return field;
}

FieldDef monthsField() {
  FieldDef field = fieldOf(FieldType::Period);
  for (const char* name : {"Zeta", "Alpha", "Mid"}) {
    field.periodNames.add(name);
  }
  return field;
}

/// A text read by the type and written again.
std::string roundTrip(FieldType type, std::string_view text, Quoting quoting = Quoting::None,
                      const FormatSettings& settings = {}) {
  FieldDef field = fieldOf(type);
  const Cell cell = parseValue(field, text);
  return formatValue({&field, cell}, settings, quoting);
}

int compared(FieldDef& field, std::string_view a, std::string_view b) {
  const FieldValue first = {&field, parseValue(field, a)};
  const FieldValue second = {&field, parseValue(field, b)};
  return compareValues(first, second);
}

TEST(StringValue, IsShownAsItStands) {
  EXPECT_EQ(roundTrip(FieldType::String, "Steel pipe"), "Steel pipe");
  EXPECT_EQ(roundTrip(FieldType::String, "Steel pipe", Quoting::Quoted), "\"Steel pipe\"");
  EXPECT_EQ(roundTrip(FieldType::String, " a\"b ", Quoting::Quoted), "\" a\"b \"");
}

TEST(StringValue, NoTextAndTwoDoubleQuotesAreEmptyInBothForms) {
  const FieldDef field = fieldOf(FieldType::String);
  for (const Quoting quoting : {Quoting::None, Quoting::Quoted}) {
    EXPECT_EQ(formatValue({&field, emptyCell()}, FormatSettings{}, quoting), "");
    EXPECT_EQ(roundTrip(FieldType::String, "", quoting), "");
    EXPECT_EQ(roundTrip(FieldType::String, "\"\"", quoting), "");
  }
}

TEST(StringValue, EqualTextsAreStoredOnce) {
  FieldDef field = fieldOf(FieldType::String);
  const Cell first = parseValue(field, "Bolt");
  EXPECT_NE(parseValue(field, "Nut").text, first.text);
  EXPECT_EQ(parseValue(field, "Bolt").text, first.text);
  EXPECT_EQ(parseValue(field, "").text, emptyCell().text);
}

TEST(StringValue, ComparesByUnsignedBytes) {
  FieldDef field = fieldOf(FieldType::String);
  EXPECT_EQ(compared(field, "abc", "abd"), -1);
  EXPECT_EQ(compared(field, "abd", "abc"), 1);
  EXPECT_EQ(compared(field, "abc", "abc"), 0);
  EXPECT_EQ(compared(field, "ab", "abc"), -1);
  EXPECT_EQ(compared(field, "Z", "a"), -1);
  EXPECT_EQ(compared(field, "\xc3\xa9", "z"), 1);
  EXPECT_EQ(compared(field, "", "a"), -1);
}

TEST(StringValue, NoTextComparesLikeTheEmptyText) {
  FieldDef field = fieldOf(FieldType::String);
  EXPECT_EQ(compareValues({&field, emptyCell()}, {&field, parseValue(field, "")}), 0);
  EXPECT_EQ(compareValues({&field, emptyCell()}, {&field, parseValue(field, "a")}), -1);
}

TEST(NumberValue, IsShownByTheNumberSettings) {
  EXPECT_EQ(roundTrip(FieldType::Number, "1,234_5"), "12,345.0000000000");
  EXPECT_EQ(roundTrip(FieldType::Number, "1.5", Quoting::Quoted), "1.5000000000");
}

TEST(NumberValue, AStarReturnsAsAStarOrInFull) {
  EXPECT_EQ(roundTrip(FieldType::Number, "  *"), "*");
  FormatSettings settings;
  settings.largeNumberStar = false;
  EXPECT_EQ(roundTrip(FieldType::Number, "  *", Quoting::None, settings),
            "100,000,000,000,000,000,000.0000000000");
}

TEST(NumberValue, UndefinedIsShownAsThatWord) {
  EXPECT_EQ(roundTrip(FieldType::Number, "undefined"), "undefined");
  EXPECT_EQ(roundTrip(FieldType::Number, "undefinedly", Quoting::Quoted), "undefined");
  EXPECT_EQ(roundTrip(FieldType::Number, "Undefined"), "0.0000000000");
}

TEST(NumberValue, UndefinedComparesAsZero) {
  FieldDef field = fieldOf(FieldType::Number);
  EXPECT_EQ(compared(field, "undefined", "0"), 0);
  EXPECT_EQ(compared(field, "undefined", "1"), -1);
  EXPECT_EQ(compared(field, "undefined", "-1"), 1);
}

TEST(NumberValue, ComparesByNumber) {
  FieldDef field = fieldOf(FieldType::Number);
  EXPECT_EQ(compared(field, "9", "10"), -1);
  EXPECT_EQ(compared(field, "10", "9"), 1);
  EXPECT_EQ(compared(field, "1.0", "1"), 0);
}

TEST(ExpressionValue, IsShownLikeANumber) {
  EXPECT_EQ(roundTrip(FieldType::Expression, "1234.5"), "1,234.5000000000");
  EXPECT_EQ(roundTrip(FieldType::Expression, "undefined"), "0.0000000000");
}

TEST(ExpressionValue, AFailedFormulaIsShownAsAnError) {
  const FieldDef field = fieldOf(FieldType::Expression);
  const FieldValue value = {&field, numberCell(kErrorValue)};
  EXPECT_EQ(formatValue(value, FormatSettings{}, Quoting::None), "*error*");
  EXPECT_EQ(formatValue(value, FormatSettings{}, Quoting::Quoted), "\"*error*\"");
}

TEST(ExpressionValue, OnlyExpressionsShowTheErrorText) {
  const FieldDef field = fieldOf(FieldType::Number);
  EXPECT_EQ(formatValue({&field, numberCell(kErrorValue)}, FormatSettings{}, Quoting::None), "*");
}

TEST(ExpressionValue, ComparesByNumber) {
  FieldDef field = fieldOf(FieldType::Expression);
  EXPECT_EQ(compared(field, "9", "10"), -1);
}

TEST(BooleanValue, IsYesByItsFirstLetter) {
  for (const char* text : {"true", "Yes", "y", "T", "yellow"}) {
    EXPECT_EQ(roundTrip(FieldType::Boolean, text), "Yes") << text;
  }
  for (const char* text : {"false", "no", "0", "", "1", " yes", "on"}) {
    EXPECT_EQ(roundTrip(FieldType::Boolean, text), "No") << text;
  }
}

TEST(BooleanValue, StandsInQuotesWhenQuoted) {
  EXPECT_EQ(roundTrip(FieldType::Boolean, "y", Quoting::Quoted), "\"Yes\"");
  EXPECT_EQ(roundTrip(FieldType::Boolean, "n", Quoting::Quoted), "\"No\"");
}

TEST(BooleanValue, NoComesBeforeYes) {
  FieldDef field = fieldOf(FieldType::Boolean);
  EXPECT_EQ(compared(field, "n", "y"), -1);
  EXPECT_EQ(compared(field, "y", "n"), 1);
  EXPECT_EQ(compared(field, "y", "true"), 0);
}

TEST(DateValue, IsShownByTheDateFormat) {
  FormatSettings settings;
  EXPECT_EQ(roundTrip(FieldType::Date, "5-Aug-2014", Quoting::None, settings),
            "2014-08-05 00:00:00");
  settings.dateFormat = "%D";
  EXPECT_EQ(roundTrip(FieldType::Date, "5-Aug-2014", Quoting::None, settings), "08/05/14");
  settings.dateFormat = "%d-%b-%Y";
  EXPECT_EQ(roundTrip(FieldType::Date, "8/5/2014", Quoting::Quoted, settings), "\"05-Aug-2014\"");
}

TEST(DateValue, ComparesByTime) {
  FieldDef field = fieldOf(FieldType::Date);
  EXPECT_EQ(compared(field, "1-Feb-2014", "1-Jan-2015"), -1);
  EXPECT_EQ(compared(field, "1-Jan-2015", "1-Feb-2014"), 1);
  EXPECT_EQ(compared(field, "1/1/2015", "1-Jan-15"), 0);
}

TEST(PeriodValue, IsTheFirstPeriodOfThatName) {
  FieldDef field = monthsField();
  EXPECT_EQ(parseValue(field, "Mid").period, 2);
  EXPECT_EQ(parseValue(field, "unknown").period, 0);
  const FieldValue value = {&field, parseValue(field, "Alpha")};
  EXPECT_EQ(formatValue(value, FormatSettings{}, Quoting::None), "Alpha");
  EXPECT_EQ(formatValue(value, FormatSettings{}, Quoting::Quoted), "\"Alpha\"");
}

TEST(PeriodValue, ComparesByPositionNotByName) {
  FieldDef field = monthsField();
  EXPECT_EQ(compared(field, "Zeta", "Alpha"), -1);
  EXPECT_EQ(compared(field, "Mid", "Alpha"), 1);
  EXPECT_EQ(compared(field, "Mid", "Mid"), 0);
}

TEST(PeriodValueDeathTest, AnIndexOutsideTheListAborts) {
  const FieldDef field = monthsField();
  Cell cell = emptyCell();
  cell.period = 3;
  EXPECT_DEATH(formatValue({&field, cell}, FormatSettings{}, Quoting::None),
               "Period index 3 is outside the 3 period names of field \"Field\"\\.");
  cell.period = -1;
  EXPECT_DEATH(formatValue({&field, cell}, FormatSettings{}, Quoting::None), "Period index -1");
}

TEST(Values, OfDifferentTypesCompareEqual) {
  FieldDef number = fieldOf(FieldType::Number);
  FieldDef text = fieldOf(FieldType::String);
  FieldDef expression = fieldOf(FieldType::Expression);
  const Cell two = parseValue(number, "2");
  EXPECT_EQ(compareValues({&number, two}, {&text, parseValue(text, "a")}), 0);
  EXPECT_EQ(compareValues({&number, two}, {&expression, parseValue(expression, "5")}), 0);
}

TEST(Values, WithoutATypeAreEmptyAndEqual) {
  FieldDef field = fieldOf(FieldType::Unset);
  const Cell cell = parseValue(field, "text");
  EXPECT_EQ(cell.bits, 0u);
  EXPECT_EQ(formatValue({&field, cell}, FormatSettings{}, Quoting::Quoted), "");
  EXPECT_EQ(compareValues({&field, cell}, {&field, numberCell(5)}), 0);
}

TEST(Values, FreshCellsAreEmptyOfEveryType) {
  FormatSettings settings;
  settings.dateFormat = "%Y";
  const auto fresh = [&](FieldType type) {
    const FieldDef field = fieldOf(type);
    return formatValue({&field, emptyCell()}, settings, Quoting::None);
  };
  EXPECT_EQ(fresh(FieldType::String), "");
  EXPECT_EQ(fresh(FieldType::Number), "0.0000000000");
  EXPECT_EQ(fresh(FieldType::Boolean), "No");
  EXPECT_EQ(fresh(FieldType::Expression), "0.0000000000");
}

TEST(PlainNumbers, SwitchesEverythingOffAndAfterwardsTheUnderscoreStaysOff) {
  FormatSettings settings;
  settings.thousandsSeparators = false;
  settings.zeroUnderscore = true;
  {
    const PlainNumbers plain(settings);
    EXPECT_FALSE(settings.thousandsSeparators);
    EXPECT_FALSE(settings.largeNumberStar);
    EXPECT_FALSE(settings.zeroUnderscore);
  }
  EXPECT_TRUE(settings.thousandsSeparators);
  EXPECT_TRUE(settings.largeNumberStar);
  EXPECT_FALSE(settings.zeroUnderscore);
}

}  // namespace
}  // namespace vrel
