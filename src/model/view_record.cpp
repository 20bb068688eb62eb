#include "model/view_record.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <system_error>

#include "base/words.h"

namespace vrel {
namespace {

constexpr std::string_view kTrue = "True";
constexpr std::string_view kFalse = "False";

// A decimal number without what stands behind its point; the text as it is when it is none.
std::string_view withoutFraction(std::string_view text) {
  const std::size_t point = text.find('.');
  if (point == std::string_view::npos ||
      text.find_first_not_of("0123456789", point + 1) != std::string_view::npos) {
    return text;
  }
  return text.substr(0, point);
}

}  // namespace

std::optional<std::size_t> findTagValue(Arguments arguments, std::string_view tag) {
  std::optional<std::size_t> found;
  for (std::size_t i = 0; i + 1 < arguments.size(); ++i) {
    if (arguments[i] != tag) {
      continue;
    }
    // Tags and values alternate from the start: a title that reads like a tag is none.
    if (i % 2 == 0) {
      return i + 1;
    }
    if (!found) {
      found = i + 1;
    }
  }
  return found;
}

std::string_view tagText(Arguments arguments, std::string_view tag) {
  const std::optional<std::size_t> value = findTagValue(arguments, tag);
  return value ? std::string_view(arguments[*value]) : std::string_view();
}

bool tagIsTrue(Arguments arguments, std::string_view tag) {
  return tagText(arguments, tag) == kTrue;
}

int tagNumber(Arguments arguments, std::string_view tag) {
  return wholeNumber(tagText(arguments, tag));
}

std::optional<int> parseWholeNumber(std::string_view text) {
  text = withoutFraction(trimBlanks(text));
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') {
    text.remove_prefix(1);
  }
  int number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (stop != end || error == std::errc::invalid_argument) {
    return std::nullopt;
  }
  if (error == std::errc::result_out_of_range) {
    return text[0] == '-' ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
  }
  return number;
}

int wholeNumber(std::string_view text) {
  return parseWholeNumber(text).value_or(0);
}

std::string viewFileText(std::string_view text) {
  std::string result(text);
  std::replace(result.begin(), result.end(), '"', '\'');
  std::replace(result.begin(), result.end(), '\n', ' ');
  return result;
}

void addWord(std::string& line, std::string_view word) {
  line += word;
  line += ' ';
}

void addQuoted(std::string& line, std::string_view text) {
  line += '"';
  line += viewFileText(text);
  addWord(line, "\"");
}

void addNumber(std::string& line, int number) {
  addWord(line, std::to_string(number));
}

void addTruth(std::string& line, bool truth) {
  addQuoted(line, truth ? kTrue : kFalse);
}

}  // namespace vrel
