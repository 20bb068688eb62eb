// Why a formula has no value.
#pragma once

namespace vrel {

inline constexpr int kNoError = 0;
inline constexpr int kDivisionByZero = 102;
inline constexpr int kUnresolvedField = 103;
inline constexpr int kFunctionFailed = 104;

}  // namespace vrel
