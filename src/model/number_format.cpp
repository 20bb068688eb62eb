#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>
#include <optional>

#include "model/field_value.h"

namespace vrel {
namespace {

// Strict ISO C++ knows no integer of 128 bits, and its extension no alias declaration.
// NOLINTNEXTLINE(modernize-use-using)
__extension__ typedef unsigned __int128 Uint128;

/// Up to here 10^precision fits 64 bits, and its product with a fraction 128 bits.
constexpr int kMaxExactPrecision = 19;
constexpr double kTwoTo63 = 9223372036854775808.0;

constexpr std::array<std::uint64_t, kMaxExactPrecision + 1> kPowersOfTen = [] {
  std::array<std::uint64_t, kMaxExactPrecision + 1> powers{};
  std::uint64_t power = 1;
  for (std::uint64_t& entry : powers) {
    entry = power;
    power *= 10;
  }
  return powers;
}();

constexpr std::uint64_t kTenToEight = 100000000;
constexpr std::uint64_t kZeroDigits = 0x3030303030303030;
static_assert(std::endian::native == std::endian::little, "a word's low byte stands first");

/// The eight digits of a number below 10^8 as the bytes of a word, the first digit lowest.
std::uint64_t eightDigits(std::uint32_t value) {
  // Lanes of 32, 16 and 8 bits are divided side by side by multiplying with rounded reciprocals.
  const std::uint64_t fours = (value / 10000) | (std::uint64_t{value % 10000} << 32);
  const std::uint64_t hundreds = ((fours * 10486) >> 20) & 0x0000007f0000007f;
  const std::uint64_t pairs = hundreds | ((fours - 100 * hundreds) << 16);
  const std::uint64_t tens = ((pairs * 103) >> 10) & 0x000f000f000f000f;
  return tens | ((pairs - 10 * tens) << 8);
}

void putWord(char* to, std::uint64_t word) {
  std::memcpy(to, &word, sizeof word);
}

void putEightDigits(char* to, std::uint64_t value) {
  putWord(to, eightDigits(static_cast<std::uint32_t>(value)) + kZeroDigits);
}

/// Leading zeros of the digits in a word; the last digit never counts.
int leadingZeros(std::uint64_t digits) {
  return std::countr_zero(digits | (std::uint64_t{1} << 56)) / 8;
}

/// Writes an integer; up to eight bytes behind its end may change.
char* putInteger(char* to, std::uint64_t value) {
  if (value >= kTenToEight) {
    to = putInteger(to, value / kTenToEight);
    putEightDigits(to, value % kTenToEight);
    return to + 8;
  }
  const std::uint64_t digits = eightDigits(static_cast<std::uint32_t>(value));
  const int zeros = leadingZeros(digits);
  putWord(to, (digits + kZeroDigits) >> (8 * zeros));
  return to + 8 - zeros;
}

/// Puts "," into an integer that stands in `begin` to `end`, moving what follows it up to
/// `textEnd`; returns the new end of the text.
char* insertSeparators(char* begin, char* end, char* textEnd) {
  const auto digits = end - begin;
  if (digits <= 3) {
    return textEnd;
  }
  const auto separators = (digits - 1) / 3;
  std::memmove(end + separators, end, static_cast<std::size_t>(textEnd - end));
  char* from = end;
  char* to = end + separators;
  while (to != from) {
    from -= 3;
    to -= 3;
    std::memmove(to, from, 3);
    *--to = ',';
  }
  return textEnd + separators;
}

/// Writes an integer of at most six digits, which stand in a word, with its "," when it has more
/// than three; up to eight bytes behind its end may change. No branch: the lengths of a report's
/// numbers are hard to foresee.
char* putGrouped(char* to, std::uint64_t word, int digits) {
  const int separators = digits > 3 ? 1 : 0;
  const int ahead = digits - 3 * separators;
  putWord(to, word);
  to[ahead] = ',';
  putWord(to + ahead + separators, word >> (8 * ahead));
  return to + digits + separators;
}

/// Writes a number below 10^count with leading zeros; up to 16 bytes behind it may change.
char* putDecimals(char* to, std::uint64_t value, int count) {
  if (count <= 8) {
    putEightDigits(to, value * kPowersOfTen[static_cast<std::size_t>(8 - count)]);
    return to + count;
  }
  if (count <= 16) {
    const std::uint64_t digits = value * kPowersOfTen[static_cast<std::size_t>(16 - count)];
    putEightDigits(to, digits / kTenToEight);
    putEightDigits(to + 8, digits % kTenToEight);
    return to + count;
  }
  to = putDecimals(to, value / kTenToEight, count - 8);
  putEightDigits(to, value % kTenToEight);
  return to + 8;
}

/// A magnitude as integer part and rounded decimals.
struct FixedPoint {
  std::uint64_t integer;
  std::uint64_t decimals;
};

/// Splits mantissa / 2^shift exactly and rounds what lies behind the decimals, a tie to the even
/// last digit.
FixedPoint roundFraction(std::uint64_t mantissa, int shift, int precision) {
  std::uint64_t integer = 0;
  std::uint64_t fraction = mantissa;
  if (shift < 64) {
    integer = mantissa >> shift;
    fraction = mantissa & ((std::uint64_t{1} << shift) - 1);
  }
  const std::uint64_t power = kPowersOfTen[static_cast<std::size_t>(precision)];
  const Uint128 scaled = static_cast<Uint128>(fraction) * power;
  if (shift >= 127) {
    // The product has at most 117 bits: less than half of the last digit.
    return {integer, 0};
  }
  // Just below half a unit, or half a unit when the last digit is odd: without a branch, for
  // every second number is rounded up.
  const std::uint64_t lastDigit =
      precision == 0 ? integer : static_cast<std::uint64_t>(scaled >> shift);
  const Uint128 rounding = (Uint128{1} << (shift - 1)) - 1 + (lastDigit & 1);
  const auto decimals = static_cast<std::uint64_t>((scaled + rounding) >> shift);
  const std::uint64_t carry = decimals == power ? 1 : 0;
  return {integer + carry, decimals - carry * power};
}

constexpr int kMantissaBits = 52;
constexpr int kExponentBias = 1023;

FixedPoint toFixedPoint(std::uint64_t bits, int precision) {
  constexpr std::uint64_t kHiddenBit = std::uint64_t{1} << kMantissaBits;
  std::uint64_t mantissa = bits & (kHiddenBit - 1);
  const auto biasedExponent = static_cast<int>((bits >> kMantissaBits) & 0x7ff);
  if (biasedExponent != 0) {
    mantissa |= kHiddenBit;
  }
  const int exponent = std::max(biasedExponent, 1) - kExponentBias - kMantissaBits;
  if (exponent >= 0) {
    return {mantissa << exponent, 0};
  }
  return roundFraction(mantissa, -exponent, precision);
}

/// The road for any number that is not negative.
char* putAnyNumber(char* to, double magnitude, int precision, bool separators) {
  char* const end =
      std::to_chars(to, to + kMaxNumberLength - 1, magnitude, std::chars_format::fixed, precision)
          .ptr;
  return separators ? insertSeparators(to, std::find(to, end, '.'), end) : end;
}

/// The quick road: numbers that are close to a decimal with up to this many places.
constexpr int kMaxQuickPlaces = 4;
constexpr int kMaxQuickPrecision = 15;
constexpr std::array<double, kMaxQuickPlaces + 1> kQuickScales = {1, 10, 100, 1000, 10000};

/// By precision, the magnitudes up to which the quick road is safe. Where it rounds to the
/// precision itself, the scaled number must leave ten bits for its fraction. Where it only adds
/// zeros, the distance between the number and the decimal that it is closest to, at most half of
/// its last bit, must be too small to show.
constexpr std::array<double, kMaxQuickPrecision + 1> kQuickLimits = [] {
  std::array<double, kMaxQuickPrecision + 1> limits{};
  double scale = 1;
  for (std::size_t i = 0; i < limits.size(); ++i) {
    limits[i] = (i <= kMaxQuickPlaces ? 8.7e12 : 4.5e15) / scale;
    scale *= 10;
  }
  return limits;
}();

/// The scaled number as an integer when that is what it rounds to for certain.
std::optional<std::uint64_t> quickInteger(double magnitude, int places, int precision) {
  const double scale = kQuickScales[static_cast<std::size_t>(places)];
  const double scaled = magnitude * scale;
  // A sum that rounds wrongly is found out below; the library's rounding is a call.
  // NOLINTNEXTLINE(bugprone-incorrect-roundings)
  const auto integer = static_cast<std::int64_t>(scaled + 0.5);
  const auto whole = static_cast<double>(integer);
  const bool certain =
      places == precision ? std::abs(scaled - whole) < 0.499 : whole / scale == magnitude;
  return certain ? std::optional(static_cast<std::uint64_t>(integer)) : std::nullopt;
}

/// Writes integer / 10^places for an integer below 10^16, with zeros up to the precision.
char* putQuick(char* to, std::uint64_t integer, int places, int precision, bool separators) {
  char* const begin = to;
  std::uint64_t digits;
  int zeros = 0;
  if (integer < kTenToEight) {
    digits = eightDigits(static_cast<std::uint32_t>(integer));
    // The last digit ahead of the point is written even when it is 0.
    zeros = std::countr_zero(digits | (std::uint64_t{1} << (8 * (7 - places)))) / 8;
  } else {
    to = putInteger(to, integer / kTenToEight);
    digits = eightDigits(static_cast<std::uint32_t>(integer % kTenToEight));
  }
  const std::uint64_t bytes = digits + kZeroDigits;
  const int count = 8 - places - zeros;
  if (separators && count <= 6 && to == begin) {
    to = putGrouped(to, bytes >> (8 * zeros), count);
  } else {
    putWord(to, bytes >> (8 * zeros));
    to += count;
    to = separators ? insertSeparators(begin, to, to) : to;
  }
  if (precision == 0) {
    return to;
  }
  putWord(to, (bytes >> (8 * (8 - places))) << 8 | '.');
  putWord(to + 1 + places, kZeroDigits);
  putWord(to + 9 + places, kZeroDigits);
  return to + 1 + precision;
}

/// The exact road: numbers below 2^63 with up to 19 decimals.
char* putExact(char* to, std::uint64_t bits, int precision, bool separators) {
  const FixedPoint fixed = toFixedPoint(bits, precision);
  char* end = putInteger(to, fixed.integer);
  if (separators) {
    end = insertSeparators(to, end, end);
  }
  if (precision == 0) {
    return end;
  }
  *end++ = '.';
  return putDecimals(end, fixed.decimals, precision);
}

}  // namespace

char* formatNumber(char* buffer, double number, const FormatSettings& settings) {
  if ((number >= kUnbounded && settings.largeNumberStar) ||
      (number == 0 && settings.zeroUnderscore)) {
    *buffer = number == 0 ? '_' : '*';
    return buffer + 1;
  }
  const int precision =
      settings.precision < 0 ? kDefaultPrecision : std::min(settings.precision, kMaxPrecision);
  const bool separators = settings.thousandsSeparators;
  const double magnitude = std::abs(number);
  *buffer = '-';
  char* const to = buffer + (std::signbit(number) ? 1 : 0);
  if (precision <= kMaxQuickPrecision &&
      magnitude < kQuickLimits[static_cast<std::size_t>(precision)]) {
    const int places = std::min(precision, kMaxQuickPlaces);
    if (const auto integer = quickInteger(magnitude, places, precision)) {
      return putQuick(to, *integer, places, precision, separators);
    }
  }
  if (precision <= kMaxExactPrecision && magnitude < kTwoTo63) {
    return putExact(to, std::bit_cast<std::uint64_t>(magnitude), precision, separators);
  }
  return putAnyNumber(to, magnitude, precision, separators);
}

std::string formatNumber(double number, const FormatSettings& settings) {
  std::array<char, kMaxNumberLength> buffer;
  return {buffer.data(), formatNumber(buffer.data(), number, settings)};
}

}  // namespace vrel
