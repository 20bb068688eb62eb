#include "model/edit_text.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "base/words.h"

namespace vrel {
namespace {

constexpr int kTypedDigits = 15;
constexpr std::size_t kGroup = 3;

bool isDigits(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// Whether an integer part has its "," before every three digits, counted from the right, and at
// least one.
bool isGrouped(std::string_view digits) {
  std::size_t comma = digits.find(',');
  if (comma == 0 || comma == std::string_view::npos || comma > kGroup ||
      !isDigits(digits.substr(0, comma))) {
    return false;
  }
  while (comma != std::string_view::npos) {
    digits.remove_prefix(comma + 1);
    comma = digits.find(',');
    if (std::min(comma, digits.size()) != kGroup || !isDigits(digits.substr(0, kGroup))) {
      return false;
    }
  }
  return true;
}

// Whether a text is a number with separators as numbers are shown with. A lone comma elsewhere,
// such as a decimal one, must not be dropped: that would make another number of it.
bool isGroupedNumber(std::string_view text) {
  if (text.starts_with('-') || text.starts_with('+')) {
    text.remove_prefix(1);
  }
  const std::size_t point = std::min(text.find('.'), text.size());
  return isGrouped(text.substr(0, point)) &&
         (point == text.size() || isDigits(text.substr(point + 1)));
}

std::string typedNumber(std::string_view text) {
  const std::string_view trimmed = trimBlanks(text);
  if (trimmed == "*") {
    return fmt::format("{}", kUnbounded);
  }
  if (!isGroupedNumber(trimmed)) {
    return std::string(text);
  }
  std::string plain(trimmed);
  std::erase(plain, ',');
  return plain;
}

}  // namespace

std::string exactNumber(double number) {
  // Not "-0", which would be read as a formula.
  return fmt::format("{:.{}g}", number == 0 ? 0.0 : number, kTypedDigits);
}

std::string editText(const FieldValue& value, const FormatSettings& settings) {
  if (!value.owner->hasNumbers() || isUndefined(value.cell) || value.cell.number >= kUnbounded) {
    return formatValue(value, settings, Quoting::None);
  }
  return exactNumber(value.cell.number);
}

std::string typedText(const FieldDef& field, std::string_view text) {
  if (field.hasNumbers()) {
    return typedNumber(text);
  }
  if (field.type == FieldType::Boolean) {
    const std::string_view word = trimBlanks(text);
    for (const bool truth : {false, true}) {
      if (word == booleanText(Cell{.boolean = truth})) {
        return truth ? "1" : "0";
      }
    }
  }
  return std::string(text);
}

}  // namespace vrel
