// The quick road from the digits of a plain decimal number to its value.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace vrel {

/// The powers of ten that a double holds exactly.
inline constexpr std::array<double, 23> kExactPowersOfTen = {
    1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
    1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

/// Takes "-", digits, "." and digits from the text ahead of `end`, each part optional but for one
/// digit. When they can be converted exactly at once (at most 19 digits, which without the point
/// are a number below 2^53), sets `value`, leaves `at` at the first byte not taken and returns
/// true. Otherwise changes nothing and returns false: the text may still be a number.
inline bool parsePlainDecimal(const char*& at, const char* end, double& value) {
  const char* p = at;
  const bool negative = p != end && *p == '-';
  p += negative ? 1 : 0;
  const char* const start = p;
  std::uint64_t digits = 0;
  unsigned digit;
  while (p != end && (digit = static_cast<unsigned char>(*p) - unsigned{'0'}) <= 9) {
    digits = digits * 10 + digit;
    ++p;
  }
  auto digitCount = p - start;
  std::ptrdiff_t decimals = 0;
  if (p != end && *p == '.') {
    const char* const fraction = ++p;
    while (p != end && (digit = static_cast<unsigned char>(*p) - unsigned{'0'}) <= 9) {
      digits = digits * 10 + digit;
      ++p;
    }
    decimals = p - fraction;
    digitCount += decimals;
  }
  // Up to 19 digits cannot have overflown; both operands of the one division are exact, so that
  // its result is the correctly rounded value.
  constexpr std::ptrdiff_t kMaxDigits = 19;
  if (digitCount == 0 || digitCount > kMaxDigits || digits >> 53 != 0) {
    return false;
  }
  const auto whole = static_cast<double>(static_cast<std::int64_t>(digits));
  const double magnitude =
      decimals == 0 ? whole : whole / kExactPowersOfTen[static_cast<std::size_t>(decimals)];
  value = negative ? -magnitude : magnitude;
  at = p;
  return true;
}

}  // namespace vrel
