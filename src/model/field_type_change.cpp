#include "model/field_type_change.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

#include "base/words.h"
#include "model/date.h"
#include "model/edit_text.h"

namespace vrel {
namespace {

// The period of a date that is written otherwise than the period names are.
class PeriodsByTime {
 public:
  explicit PeriodsByTime(const PeriodNames& names) {
    for (std::int32_t i = 0; i < names.size(); ++i) {
      const ParsedDate date = parseDate(names.name(i));
      if (date.accepted) {
        periods_.emplace(date.seconds, i);
      }
    }
  }

  // The first period when no name stands for the time.
  [[nodiscard]] std::int32_t find(std::int64_t time) const {
    const auto period = periods_.find(time);
    return period == periods_.end() ? 0 : period->second;
  }

 private:
  std::unordered_map<std::int64_t, std::int32_t> periods_;
};

// How many different values a field can hold of which each has a number; 0 when they have none.
std::size_t numberedValues(const FieldDef& field) {
  switch (field.type) {
    case FieldType::String:
      return field.texts.size();
    case FieldType::Period:
      return static_cast<std::size_t>(field.periodNames.size());
    default:
      return 0;
  }
}

std::size_t numberOfValue(const FieldDef& field, Cell cell) {
  return field.type == FieldType::String ? cell.text : static_cast<std::size_t>(cell.period);
}

// Reads values of one field anew, from their texts as they are shown, as values of another one.
// Texts and periods, of which there are few different ones, are converted once each.
class ColumnConverter {
 public:
  ColumnConverter(const FieldDef& from, FieldDef& to, const FormatSettings& settings)
      : from_(from), to_(to), settings_(settings), known_(numberedValues(from)) {
    if (from.type == FieldType::Date && to.type == FieldType::Period) {
      periodsByTime_.emplace(to.periodNames);
    }
  }

  Cell convert(Cell cell) {
    if (known_.empty()) {
      return convertAnew(cell);
    }
    std::optional<Cell>& known = known_[numberOfValue(from_, cell)];
    if (!known) {
      known = convertAnew(cell);
    }
    return *known;
  }

 private:
  Cell convertAnew(Cell cell) {
    text_.clear();
    appendValue(text_, from_, cell, settings_, Quoting::None);
    Cell converted = parseValue(to_, text_);
    // A column of periods that settled to dates must not fall into one period because the view
    // shows dates in another form than the names have.
    if (periodsByTime_ && to_.periodNames.name(converted.period) != text_) {
      converted.period = periodsByTime_->find(cell.time);
    }
    return converted;
  }

  const FieldDef& from_;
  FieldDef& to_;
  const FormatSettings& settings_;
  // Where dates become periods.
  std::optional<PeriodsByTime> periodsByTime_;
  // By text or period.
  std::vector<std::optional<Cell>> known_;
  std::string text_;
};

// Longer than any number that is written out with all its digits.
constexpr std::size_t kMaxDigits = 1100;

// The shortest decimal that is read as the number.
std::string decimalOf(double number) {
  std::array<char, kMaxDigits> buffer;
  const auto result =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed);
  return {buffer.data(), result.ptr};
}

// Whether a number is all that a text says: leading zeros, which codes have, are lost in it, and so
// are digits beyond its reach.
bool saysNumber(std::string_view text, const FieldDef& field, Cell number) {
  if (isUndefined(number)) {
    return text == kUndefinedText;
  }
  if (trimBlanks(text) == "*") {
    return true;
  }
  std::string digits = typedText(field, trimBlanks(text));
  if (digits.find('.') != std::string::npos) {
    digits.erase(digits.find_last_not_of('0') + 1);
    digits.erase(digits.find_last_not_of('.') + 1);
  }
  return digits == decimalOf(number.number);
}

bool isTruthWord(std::string_view text) {
  constexpr std::array<std::string_view, 8> kWords = {"yes",  "y", "no",    "n",
                                                      "true", "t", "false", "f"};
  std::string word(text);
  std::transform(word.begin(), word.end(), word.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
  return std::find(kWords.begin(), kWords.end(), word) != kWords.end();
}

// Whether a text says all of the value that was read from it.
bool saysValue(std::string_view text, const FieldDef& field, Cell cell) {
  switch (field.type) {
    case FieldType::Number:
      return saysNumber(text, field, cell);
    case FieldType::Boolean:
      return isTruthWord(text);
    case FieldType::Date:
      return parseDate(text).accepted;
    case FieldType::Period:
      return periodName(field, cell) == text;
    default:
      return true;
  }
}

// Whether a text can be read as the very value of a field without texts of its own.
bool readsAs(std::string_view text, const FieldDef& field, Cell cell) {
  switch (field.type) {
    case FieldType::Number: {
      const Cell number = parseNumber(text);
      return isUndefined(cell) ? isUndefined(number)
                               : !isUndefined(number) && number.number == cell.number;
    }
    case FieldType::Boolean:
      // What begins with none of these letters is a No.
      return (text.find_first_of("yYtT") == 0) == cell.boolean;
    case FieldType::Date: {
      const ParsedDate date = parseDate(text);
      return date.accepted && date.seconds == cell.time;
    }
    default:
      return true;
  }
}

// Finds out what a change of type keeps: a text is kept when the value says as much as it does,
// any other value when it can be read from what it has become.
class KeepingCheck {
 public:
  KeepingCheck(const FieldDef& from, FieldDef& to, const FormatSettings& settings)
      : from_(from),
        to_(to),
        settings_(settings),
        converter_(from, to, settings),
        known_(numberedValues(from)) {}

  bool keeps(Cell cell) {
    if (known_.empty()) {
      return readsBack(cell);
    }
    std::optional<bool>& known = known_[numberOfValue(from_, cell)];
    if (!known) {
      known = saysValue(textOf(from_, cell), to_, converter_.convert(cell));
    }
    return *known;
  }

 private:
  const std::string& textOf(const FieldDef& field, Cell cell) {
    text_.clear();
    appendValue(text_, field, cell, settings_, Quoting::None);
    return text_;
  }

  bool readsBack(Cell cell) {
    // What is no date has become the present time, and what is no period the first one.
    if (to_.type == FieldType::Date && !parseDate(textOf(from_, cell)).accepted) {
      return false;
    }
    const Cell converted = converter_.convert(cell);
    if (to_.type == FieldType::Period && from_.type != FieldType::Date) {
      return periodName(to_, converted) == textOf(from_, cell);
    }
    return readsAs(textOf(to_, converted), from_, cell);
  }

  const FieldDef& from_;
  FieldDef& to_;
  const FormatSettings& settings_;
  ColumnConverter converter_;
  std::vector<std::optional<bool>> known_;
  std::string text_;
};

}  // namespace

bool takesType(const FieldDef& field, FieldType type) {
  return type != FieldType::Unset && type != field.type &&
         (type != FieldType::Period || field.periodNames.size() > 0);
}

void changeType(Table& table, int column, FieldType type, const FormatSettings& settings) {
  FieldDef& field = table.field(column);
  FieldDef converted;
  converted.type = type;
  // A field of periods needs its names for both types.
  if (type == FieldType::Period) {
    std::swap(converted.periodNames, field.periodNames);
  }
  ColumnConverter converter(field, converted, settings);
  for (std::size_t i = 0; i < table.tupleCount; ++i) {
    table.cell(i, column) = converter.convert(table.cell(i, column));
  }
  if (type == FieldType::Period) {
    std::swap(converted.periodNames, field.periodNames);
  }
  field.type = type;
  field.texts = std::move(converted.texts);
  table.sortedBy.clear();
  // A value noted earlier is none of this type.
  ++table.arrangement;
}

LostValues lostValues(const Table& table, int column, FieldType type,
                      const FormatSettings& settings) {
  const FieldDef& field = table.field(column);
  FieldDef converted;
  converted.type = type;
  for (std::int32_t i = 0; type == FieldType::Period && i < field.periodNames.size(); ++i) {
    converted.periodNames.add(field.periodNames.name(i));
  }
  KeepingCheck check(field, converted, settings);
  LostValues lost;
  for (std::size_t i = 0; i < table.tupleCount; ++i) {
    if (!check.keeps(table.cell(i, column)) && lost.count++ == 0) {
      lost.first = formatValue(table.value(i, column), settings, Quoting::None);
    }
  }
  return lost;
}

}  // namespace vrel
