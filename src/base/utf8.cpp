#include "base/utf8.h"

#include <algorithm>

namespace vrel {

std::size_t characterCount(std::string_view text) {
  constexpr unsigned kContinuationMask = 0xc0;
  constexpr unsigned kContinuation = 0x80;
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char byte) {
    return (static_cast<unsigned char>(byte) & kContinuationMask) != kContinuation;
  }));
}

}  // namespace vrel
