#include "model/value_writer.h"

#include <gtest/gtest.h>

namespace vrel {
namespace {

struct Sample {
  FieldType type;
  std::vector<std::string> texts;
};

const std::vector<Sample> kSamples = {
    {FieldType::String, {"Bolt", "", "\"\"", "a\"b", "Bolt"}},
    {FieldType::Number, {"0", "1234.5", "*", "undefined", "-7", "1e300"}},
    {FieldType::Boolean, {"y", "n"}},
    {FieldType::Date, {"5-Aug-2014", "6-Aug-2014", "5-Aug-2014", "1/2/2015 13:30"}},
    {FieldType::Expression, {"0", "1234.5", "*", "undefined"}},
    {FieldType::Period, {"Jan", "Feb", "?"}},
    {FieldType::Unset, {"x"}},
};

std::string writtenBy(ValueWriter& writer, Cell cell) {
  std::string text;
  TextOutput output = TextOutput::toMemory(text);
  {
    TextPen pen(output);
    writer.write(pen, cell);
  }
  output.flush();
  return text;
}

FieldDef fieldOf(FieldType type) {
  FieldDef field;
  field.type = type;
  field.periodNames.add("Jan");
  field.periodNames.add("Feb");
  return field;
}

void expectSameTexts(const FieldDef& field, const std::vector<Cell>& cells,
                     const FormatSettings& settings, Quoting quoting) {
  ValueWriter writer(field, settings, quoting);
  for (const Cell cell : cells) {
    const std::string expected = formatValue({&field, cell}, settings, quoting);
    EXPECT_EQ(writtenBy(writer, cell), expected);
    EXPECT_EQ(writer.text(cell), expected);
  }
}

TEST(ValueWriter, WritesWhatFormatValueGives) {
  FormatSettings starsOff;
  starsOff.largeNumberStar = false;
  starsOff.zeroUnderscore = true;
  starsOff.precision = 2;
  starsOff.dateFormat = "%D";
  for (const Sample& sample : kSamples) {
    FieldDef field = fieldOf(sample.type);
    std::vector<Cell> cells = {emptyCell()};
    for (const std::string& text : sample.texts) {
      cells.push_back(parseValue(field, text));
    }
    for (const Quoting quoting : {Quoting::None, Quoting::Quoted}) {
      expectSameTexts(field, cells, FormatSettings{}, quoting);
      expectSameTexts(field, cells, starsOff, quoting);
    }
  }
}

TEST(ValueWriter, WritesTheWordForAFailedFormulaOnlyInFormulaFields) {
  FormatSettings settings;
  settings.largeNumberStar = false;
  for (const FieldType type : {FieldType::Expression, FieldType::Number}) {
    const FieldDef field = fieldOf(type);
    expectSameTexts(field, {numberCell(kErrorValue), undefinedCell()}, settings, Quoting::Quoted);
  }
}

TEST(ValueWriter, TextsOfAnyLengthAreWrittenWhole) {
  FieldDef field = fieldOf(FieldType::String);
  const Cell cell = parseValue(field, std::string(100000, 'x'));
  ValueWriter writer(field, FormatSettings{}, Quoting::None);
  EXPECT_EQ(writtenBy(writer, cell), std::string(100000, 'x'));
}

TEST(DateTexts, ManyDatesKeepTheirOwnTexts) {
  DateTexts dates("%Y %j %H", Quoting::Quoted);
  constexpr std::int64_t kHour = 3600;
  for (int round = 0; round < 2; ++round) {
    for (std::int64_t i = 0; i < 3000; ++i) {
      FieldDef field = fieldOf(FieldType::Date);
      FormatSettings settings;
      settings.dateFormat = "%Y %j %H";
      const Cell cell = {.time = i * 5 * kHour};
      ASSERT_EQ(dates.text(cell.time), formatValue({&field, cell}, settings, Quoting::Quoted));
    }
  }
}

}  // namespace
}  // namespace vrel
