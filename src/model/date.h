// Dates: reading and writing calendar times, which are seconds since 1970-01-01 UTC shown in
// local time.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "model/field_value.h"

namespace vrel {

/// A date read from text. When no reader accepts the text, `seconds` is the current time and
/// `accepted` is false.
struct ParsedDate {
  std::int64_t seconds = 0;
  bool accepted = false;
};

/// Reads a date with the month as a number ("month day year", then an optional time) or as an
/// abbreviation ("day year" with the abbreviation anywhere). Parts are separated by any of
/// "," "/" "-" blank ":".
ParsedDate parseDate(std::string_view text);

/// Appends the text of a calendar time in local time. In the quoted form the pattern itself is
/// enclosed in double quotes.
void appendDate(std::string& text, std::int64_t seconds, const std::string& pattern,
                Quoting quoting);

}  // namespace vrel
