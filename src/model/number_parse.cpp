#include "model/number_parse.h"

#include <charconv>
#include <cmath>
#include <string>

#include "base/words.h"
#include "model/field_value.h"

namespace vrel {
namespace {

/// The number that fills the whole text; 0 for anything else.
double wholeNumber(std::string_view text) {
  const char* at = text.data();
  const char* const end = at + text.size();
  double value = 0;
  if (parsePlainDecimal(at, end, value) && at == end) {
    return value;
  }
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  const bool isWhole = error == std::errc{} && stop == end && std::isfinite(value);
  return isWhole ? value : 0;
}

/// A number without separators, with the sign and the blanks that `std::from_chars` refuses.
double signedNumber(std::string_view text) {
  text = trimBlanks(text);
  if (text.starts_with('+')) {
    text.remove_prefix(1);
    if (text.starts_with('-')) {
      return 0;
    }
  }
  return wholeNumber(text);
}

double numberWithSeparators(std::string_view text) {
  std::string plain;
  plain.reserve(text.size());
  for (const char byte : text) {
    if (byte != '_' && byte != ',') {
      plain += byte;
    }
  }
  return signedNumber(plain);
}

}  // namespace

Cell parseNumber(std::string_view text) {
  while (!text.empty() && isBlank(text.front())) {
    text.remove_prefix(1);
  }
  const char* at = text.data();
  const char* const end = at + text.size();
  double value = 0;
  if (parsePlainDecimal(at, end, value) && at == end) {
    return numberCell(value);
  }
  if (text.starts_with('*')) {
    return numberCell(kUnbounded);
  }
  if (text.starts_with("undefined")) {
    return undefinedCell();
  }
  const bool hasSeparators = text.find_first_of("_,") != std::string_view::npos;
  return numberCell(hasSeparators ? numberWithSeparators(text) : signedNumber(text));
}

}  // namespace vrel
