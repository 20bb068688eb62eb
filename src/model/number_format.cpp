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

constexpr std::array<char, 200> kDigitPairs = [] {
  std::array<char, 200> pairs{};
  for (std::size_t i = 0; i < 100; ++i) {
    pairs[2 * i] = static_cast<char>('0' + i / 10);
    pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
  }
  return pairs;
}();

void putPair(char* to, std::uint32_t value) {
  std::memcpy(to, kDigitPairs.data() + 2 * std::size_t{value}, 2);
}

void putEightDigits(char* to, std::uint32_t value) {
  const std::uint32_t high = value / 10000;
  const std::uint32_t low = value % 10000;
  putPair(to, high / 100);
  putPair(to + 2, high % 100);
  putPair(to + 4, low / 100);
  putPair(to + 6, low % 100);
}

/// Writes exactly `count` digits, with leading zeros.
char* putDigits(char* to, std::uint64_t value, int count) {
  char* at = to + count;
  while (at - to >= 8) {
    at -= 8;
    putEightDigits(at, static_cast<std::uint32_t>(value % 100000000));
    value /= 100000000;
  }
  auto rest = static_cast<std::uint32_t>(value);
  while (at - to >= 2) {
    at -= 2;
    putPair(at, rest % 100);
    rest /= 100;
  }
  if (at != to) {
    *to = static_cast<char>('0' + rest);
  }
  return to + count;
}

/// Decimal digits of a number; 1 for 0.
int countDigits(std::uint64_t value) {
  // 1233/4096 is a little more than log10(2), close enough for 64 bits.
  const auto guess = static_cast<int>(std::bit_width(value | 1)) * 1233 >> 12;
  return guess + ((value | 1) >= kPowersOfTen[static_cast<std::size_t>(guess)] ? 1 : 0);
}

char* putInteger(char* to, std::uint64_t value) {
  return putDigits(to, value, countDigits(value));
}

char* putIntegerWithSeparators(char* to, std::uint64_t value) {
  const int digits = countDigits(value);
  char* const end = to + digits + (digits - 1) / 3;
  char* at = end;
  while (value >= 1000) {
    const auto group = static_cast<std::uint32_t>(value % 1000);
    value /= 1000;
    at -= 4;
    at[0] = ',';
    at[1] = static_cast<char>('0' + group / 100);
    putPair(at + 2, group % 100);
  }
  putDigits(to, value, static_cast<int>(at - to));
  return end;
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
  auto decimals = static_cast<std::uint64_t>(scaled >> shift);
  const Uint128 rest = scaled & ((Uint128{1} << shift) - 1);
  const Uint128 half = Uint128{1} << (shift - 1);
  const std::uint64_t lastDigit = precision == 0 ? integer : decimals;
  if (rest > half || (rest == half && lastDigit % 2 != 0)) {
    ++decimals;
  }
  if (decimals == power) {
    return {integer + 1, 0};
  }
  return {integer, decimals};
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
  return putDigits(at, fixed.decimals, precision);
}

std::string formatNumber(double number, const FormatSettings& settings) {
  std::array<char, kMaxNumberLength> buffer;
  return {buffer.data(), formatNumber(buffer.data(), number, settings)};
}

}  // namespace vrel
