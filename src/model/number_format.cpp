#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cstring>

#include "model/field_value.h"

namespace vrel {
namespace {

// Strict ISO C++ knows no integer of 128 bits.
__extension__ typedef unsigned __int128 Uint128;

constexpr int kDefaultPrecision = 6;
constexpr int kMaxPrecision = 512;
/// Up to here 10^precision fits 64 bits, and its product with a fraction 128 bits.
constexpr int kMaxExactPrecision = 19;

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

/// Writes an integer of four to eight digits with separators, like `putInteger`.
char* putSeparatedDigits(char* to, std::uint64_t value) {
  const std::uint64_t digits = eightDigits(static_cast<std::uint32_t>(value));
  const int zeros = leadingZeros(digits);
  const std::uint64_t bytes = digits + kZeroDigits;
  // "dd,ddd,d" and "dd", of which the leading zeros and a separator among them are shifted out.
  constexpr std::uint64_t kSeparators = 0x002c000000'2c0000;
  const std::uint64_t low = (bytes & 0xffff) | ((bytes << 8) & 0x0000ffffff000000) |
                            ((bytes << 16) & 0xff00000000000000) | kSeparators;
  const Uint128 text = static_cast<Uint128>(bytes >> 48) << 64 | low;
  const int skipped = zeros + (zeros >= 2 ? 1 : 0);
  const Uint128 shown = text >> (8 * skipped);
  putWord(to, static_cast<std::uint64_t>(shown));
  putWord(to + 8, static_cast<std::uint64_t>(shown >> 64));
  return to + 10 - skipped;
}

char* putIntegerWithSeparators(char* to, std::uint64_t value) {
  if (value < 1000) {
    return putInteger(to, value);
  }
  if (value < kTenToEight) {
    return putSeparatedDigits(to, value);
  }
  to = putIntegerWithSeparators(to, value / 1000);
  putEightDigits(to, value % 1000 * 100000);
  std::memmove(to + 1, to, 3);
  *to = ',';
  return to + 4;
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

/// The exact road is for magnitudes below 2^63 with up to 19 decimals.
bool fitsFixedPoint(int biasedExponent, int precision) {
  return biasedExponent < kExponentBias + 63 && precision <= kMaxExactPrecision;
}

FixedPoint toFixedPoint(std::uint64_t bits, int biasedExponent, int precision) {
  constexpr std::uint64_t kHiddenBit = std::uint64_t{1} << kMantissaBits;
  std::uint64_t mantissa = bits & (kHiddenBit - 1);
  if (biasedExponent != 0) {
    mantissa |= kHiddenBit;
  }
  const int exponent = std::max(biasedExponent, 1) - kExponentBias - kMantissaBits;
  if (exponent >= 0) {
    return {mantissa << exponent, 0};
  }
  return roundFraction(mantissa, -exponent, precision);
}

/// Puts "," into an integer part that stands in `begin` to `end`, moving what follows up to
/// `textEnd`; returns the new end.
char* insertSeparators(char* begin, char* end, char* textEnd) {
  const auto digits = end - begin;
  const auto separators = digits > 3 ? (digits - 1) / 3 : 0;
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

/// The road for numbers of any size.
char* putAnyNumber(char* buffer, double number, int precision, bool separators) {
  char* const end =
      std::to_chars(buffer, buffer + kMaxNumberLength, number, std::chars_format::fixed, precision)
          .ptr;
  if (!separators) {
    return end;
  }
  char* const begin = buffer + (*buffer == '-' ? 1 : 0);
  return insertSeparators(begin, std::find(begin, end, '.'), end);
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
  const auto bits = std::bit_cast<std::uint64_t>(number);
  const auto biasedExponent = static_cast<int>((bits >> kMantissaBits) & 0x7ff);
  if (!fitsFixedPoint(biasedExponent, precision)) {
    return putAnyNumber(buffer, number, precision, settings.thousandsSeparators);
  }
  const FixedPoint fixed = toFixedPoint(bits, biasedExponent, precision);
  char* at = buffer;
  if (bits >> 63 != 0) {
    *at++ = '-';
  }
  at = settings.thousandsSeparators ? putIntegerWithSeparators(at, fixed.integer)
                                    : putInteger(at, fixed.integer);
  if (precision == 0) {
    return at;
  }
  *at++ = '.';
  return putDecimals(at, fixed.decimals, precision);
}

std::string formatNumber(double number, const FormatSettings& settings) {
  std::array<char, kMaxNumberLength> buffer;
  return {buffer.data(), formatNumber(buffer.data(), number, settings)};
}

}  // namespace vrel
