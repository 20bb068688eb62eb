// The number and date settings that every formatting call shares.
#pragma once

#include <string>

namespace vrel {

/// What a negative precision counts as, and the largest one that counts.
inline constexpr int kDefaultPrecision = 6;
inline constexpr int kMaxPrecision = 512;

/// One set per session. Views set the precision and the date format; exports and host messages
/// switch separators, star and underscore off while they write.
struct FormatSettings {
  /// Digits behind the decimal point; a negative value counts as `kDefaultPrecision`, one above
  /// `kMaxPrecision` as that.
  int precision = 10;
  /// "," before every three digits of the integer part.
  bool thousandsSeparators = true;
  /// Values of 1e20 and more print as "*".
  bool largeNumberStar = true;
  /// Zero prints as "_".
  bool zeroUnderscore = false;
  /// A `strftime` pattern; empty stands for "%Y-%m-%d %H:%M:%S".
  std::string dateFormat;
};

/// Numbers without separators, star and underscore while the object lives. Afterwards separators
/// and star are on and the underscore is off, whatever they were before: an export resets them.
class PlainNumbers {
 public:
  explicit PlainNumbers(FormatSettings& settings) : settings_(settings) {
    settings_.thousandsSeparators = false;
    settings_.largeNumberStar = false;
    settings_.zeroUnderscore = false;
  }
  PlainNumbers(const PlainNumbers&) = delete;
  PlainNumbers& operator=(const PlainNumbers&) = delete;
  ~PlainNumbers() {
    settings_.thousandsSeparators = true;
    settings_.largeNumberStar = true;
  }

 private:
  FormatSettings& settings_;
};

}  // namespace vrel
