#include "model/field_value.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "model/date.h"

namespace vrel {
namespace {

void appendNumber(std::string& text, double number, const FormatSettings& settings) {
  std::array<char, kMaxNumberLength> buffer;
  text.append(buffer.data(), formatNumber(buffer.data(), number, settings));
}

void appendText(std::string& text, std::string_view part, Quoting quoting) {
  if (quoting == Quoting::None) {
    text += part;
    return;
  }
  text += '"';
  text += part;
  text += '"';
}

template <typename T>
int sign(T a, T b) {
  return a < b ? -1 : a > b ? 1 : 0;
}

int compareTexts(const FieldValue& a, const FieldValue& b) {
  return stringText(*a.owner, a.cell).compare(stringText(*b.owner, b.cell));
}

}  // namespace

Cell parseValue(FieldDef& field, std::string_view text) {
  constexpr std::string_view kYes = "yYtT";
  Cell cell = emptyCell();
  switch (field.type) {
    case FieldType::String:
      // The empty text is the same as none, so that equal texts have equal ids.
      cell.text = text.empty() ? 0 : field.texts.intern(text);
      break;
    case FieldType::Number:
    case FieldType::Expression:
      return parseNumber(text);
    case FieldType::Boolean:
      cell.boolean = !text.empty() && kYes.find(text.front()) != std::string_view::npos;
      break;
    case FieldType::Date:
      cell.time = parseDate(text).seconds;
      break;
    case FieldType::Period:
      cell.period = field.periodNames.find(text);
      break;
    case FieldType::Unset:
      break;
  }
  return cell;
}

std::string_view periodName(const FieldDef& field, Cell cell) {
  if (cell.period < 0 || cell.period >= field.periodNames.size()) {
    std::fprintf(stderr, "Period index %d is outside the %d period names of field \"%s\".\n",
                 static_cast<int>(cell.period), static_cast<int>(field.periodNames.size()),
                 field.name.c_str());
    std::abort();
  }
  return field.periodNames.name(cell.period);
}

void appendValue(std::string& text, const FieldDef& field, Cell cell,
                 const FormatSettings& settings, Quoting quoting) {
  switch (field.type) {
    case FieldType::String: {
      const std::string_view value = stringText(field, cell);
      if (!isEmptyText(value)) {
        appendText(text, value, quoting);
      }
      break;
    }
    case FieldType::Number:
      if (isUndefined(cell)) {
        text += kUndefinedText;
      } else {
        appendNumber(text, cell.number, settings);
      }
      break;
    case FieldType::Boolean:
      appendText(text, booleanText(cell), quoting);
      break;
    case FieldType::Date:
      appendDate(text, cell.time, settings.dateFormat, quoting);
      break;
    case FieldType::Expression:
      if (numberOf(cell) == kErrorValue) {
        appendText(text, kErrorText, quoting);
      } else {
        appendNumber(text, numberOf(cell), settings);
      }
      break;
    case FieldType::Period:
      appendText(text, periodName(field, cell), quoting);
      break;
    case FieldType::Unset:
      break;
  }
}

std::string formatValue(const FieldValue& value, const FormatSettings& settings, Quoting quoting) {
  std::string text;
  appendValue(text, *value.owner, value.cell, settings, quoting);
  return text;
}

int compareValues(const FieldValue& a, const FieldValue& b) {
  if (a.owner->type != b.owner->type) {
    return 0;
  }
  switch (a.owner->type) {
    case FieldType::String:
      return sign(compareTexts(a, b), 0);
    case FieldType::Number:
    case FieldType::Expression:
      return sign(numberOf(a.cell), numberOf(b.cell));
    case FieldType::Boolean:
      return sign(a.cell.boolean, b.cell.boolean);
    case FieldType::Date:
      return sign(a.cell.time, b.cell.time);
    case FieldType::Period:
      return sign(a.cell.period, b.cell.period);
    case FieldType::Unset:
      break;
  }
  return 0;
}

}  // namespace vrel
