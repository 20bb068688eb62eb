// Numbers of formulas as whole numbers.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace vrel {

/// Toward zero; what lies beyond the range becomes its end, what is no number 0.
inline std::int32_t toInt32(double number) {
  if (std::isnan(number)) {
    return 0;
  }
  constexpr double kLowest = std::numeric_limits<std::int32_t>::min();
  constexpr double kHighest = std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(std::clamp(number, kLowest, kHighest));
}

}  // namespace vrel
