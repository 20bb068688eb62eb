#include "model/date.h"

#include <algorithm>
#include <array>
#include <ctime>

#include "base/platform.h"

namespace vrel {
namespace {

constexpr std::string_view kDefaultPattern = "%Y-%m-%d %H:%M:%S";
constexpr std::size_t kBufferSize = 512;

constexpr std::size_t kMaxGroups = 6;
constexpr int kMaxShortDigits = 2;
constexpr int kMaxYearDigits = 4;

/// The digit groups of a date text, in their order.
struct Groups {
  std::array<int, kMaxGroups> values{};
  std::array<int, kMaxGroups> digits{};
  std::size_t count = 0;
};

/// A date as its text gives it; the month counts from 1.
struct DateParts {
  int year = 0;
  int month = 0;
  int day = 0;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

char toUpper(char byte) {
  return byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - 'a' + 'A') : byte;
}

std::string upperCased(std::string_view text) {
  std::string upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(), toUpper);
  return upper;
}

bool isDigit(char byte) {
  return byte >= '0' && byte <= '9';
}

/// Letters of other languages are bytes from 128 on.
bool isLetter(char byte) {
  return (byte >= 'A' && byte <= 'Z') || static_cast<unsigned char>(byte) >= 128;
}

bool isSeparator(char byte) {
  return byte == ',' || byte == '/' || byte == '-' || byte == ' ' || byte == ':';
}

/// Adds the groups of a text; false when it holds anything but digits and separators, or too many
/// or too long groups.
bool addGroups(Groups& groups, std::string_view text) {
  std::size_t at = 0;
  while (at < text.size()) {
    if (isSeparator(text[at])) {
      ++at;
      continue;
    }
    if (!isDigit(text[at]) || groups.count == kMaxGroups) {
      return false;
    }
    int& value = groups.values[groups.count];
    int& digits = groups.digits[groups.count];
    for (; at < text.size() && isDigit(text[at]); ++at) {
      value = value * 10 + (text[at] - '0');
      if (++digits > kMaxYearDigits) {
        return false;
      }
    }
    ++groups.count;
  }
  return true;
}

/// The year meant by a written one; years from `firstAsWritten` on stand as they are.
int fullYear(int written, int firstAsWritten) {
  if (written < 70) {
    return 2000 + written;
  }
  return written < firstAsWritten ? 1900 + written : written;
}

int daysInMonth(int year, int month) {
  constexpr std::array<int, 12> kDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool leapYear = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
  return kDays[static_cast<std::size_t>(month - 1)] + (month == 2 && leapYear ? 1 : 0);
}

bool isValid(const DateParts& date) {
  return date.month >= 1 && date.month <= 12 && date.day >= 1 &&
         date.day <= daysInMonth(date.year, date.month) && date.hour < 24 && date.minute < 60 &&
         date.second < 60;
}

/// Whether the groups have the lengths of short numbers with a year at `yearIndex`.
bool groupLengthsFit(const Groups& groups, std::size_t yearIndex) {
  for (std::size_t i = 0; i < groups.count; ++i) {
    if (i != yearIndex && groups.digits[i] > kMaxShortDigits) {
      return false;
    }
  }
  return groups.count > yearIndex;
}

/// Takes the time of day from the groups that follow the year; missing ones are 0.
void setTime(DateParts& date, const Groups& groups, std::size_t yearIndex) {
  const std::array<int*, 3> parts = {&date.hour, &date.minute, &date.second};
  for (std::size_t i = 0; i < parts.size() && yearIndex + 1 + i < groups.count; ++i) {
    *parts[i] = groups.values[yearIndex + 1 + i];
  }
}

/// "month day year" and an optional time.
std::optional<DateParts> readNumericDate(std::string_view text) {
  Groups groups;
  constexpr std::size_t kYear = 2;
  if (!addGroups(groups, text) || !groupLengthsFit(groups, kYear)) {
    return std::nullopt;
  }
  DateParts date;
  date.month = groups.values[0];
  date.day = groups.values[1];
  date.year = fullYear(groups.values[kYear], 1900);
  setTime(date, groups, kYear);
  return date;
}

using MonthNames = std::array<std::string, 12>;

MonthNames makeMonthNames() {
  MonthNames names;
  for (std::size_t month = 0; month < names.size(); ++month) {
    std::tm date{};
    date.tm_mon = static_cast<int>(month);
    date.tm_mday = 1;
    std::array<char, 64> buffer;
    const std::size_t length = std::strftime(buffer.data(), buffer.size(), "%b", &date);
    names[month] = upperCased({buffer.data(), length});
  }
  return names;
}

/// Upper-case abbreviations in the language that was in force at the first use.
const MonthNames& monthNames() {
  static const MonthNames names = makeMonthNames();
  return names;
}

/// "day year" and an optional time, with a month's name at any place.
std::optional<DateParts> readNamedDate(std::string_view text) {
  const MonthNames& names = monthNames();
  for (std::size_t month = 0; month < names.size(); ++month) {
    const std::string& name = names[month];
    const std::size_t place = name.empty() ? std::string_view::npos : text.find(name);
    if (place == std::string_view::npos) {
      continue;
    }
    std::size_t rest = place + name.size();
    while (rest < text.size() && isLetter(text[rest])) {
      ++rest;
    }
    Groups groups;
    constexpr std::size_t kYear = 1;
    if (!addGroups(groups, text.substr(0, place)) || !addGroups(groups, text.substr(rest)) ||
        groups.count > kMaxGroups - 1 || !groupLengthsFit(groups, kYear)) {
      return std::nullopt;
    }
    DateParts date;
    date.month = static_cast<int>(month) + 1;
    date.day = groups.values[0];
    // Here a written 1900 is no full year yet: it means 3800.
    date.year = fullYear(groups.values[kYear], 1901);
    setTime(date, groups, kYear);
    return date;
  }
  return std::nullopt;
}

std::int64_t toSeconds(const DateParts& date) {
  std::tm local{};
  local.tm_year = date.year - 1900;
  local.tm_mon = date.month - 1;
  local.tm_mday = date.day;
  local.tm_hour = date.hour;
  local.tm_min = date.minute;
  local.tm_sec = date.second;
  return platform::secondsFromLocalTime(local);
}

/// The pattern that is handed to `strftime`.
std::string effectivePattern(const std::string& pattern, Quoting quoting) {
  std::string effective = pattern.empty() ? std::string(kDefaultPattern) : pattern;
  if (quoting == Quoting::Quoted) {
    effective = '"' + effective + '"';
  }
  // Once quoted the pattern is another one, so that only the plain form is replaced.
  return effective == "%D" ? "%m/%d/%y" : effective;
}

}  // namespace

ParsedDate parseDate(std::string_view text) {
  const std::string upper = upperCased(text);
  for (const auto& reader : {readNumericDate, readNamedDate}) {
    const std::optional<DateParts> date = reader(upper);
    if (date && isValid(*date)) {
      return {.seconds = toSeconds(*date), .accepted = true};
    }
  }
  return {.seconds = platform::currentTime(), .accepted = false};
}

void appendDate(std::string& text, std::int64_t seconds, const std::string& pattern,
                Quoting quoting) {
  const std::tm local = platform::localTime(seconds);
  std::array<char, kBufferSize> buffer;
  const std::size_t length = std::strftime(buffer.data(), buffer.size(),
                                           effectivePattern(pattern, quoting).c_str(), &local);
  text.append(buffer.data(), length);
}

}  // namespace vrel
