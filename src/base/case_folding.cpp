#include "base/case_folding.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace vrel {
namespace {

// Every `step`th code from `first` to `last` is a capital letter; its small one is `distance` on.
struct CapitalLetters {
  std::int32_t first;
  std::int32_t last;
  std::int32_t step;
  std::int32_t distance;
};

// Ordered. All letters here, capital and small, take two bytes in UTF-8.
constexpr std::array<CapitalLetters, 22> kCapitals = {{
    {0xc0, 0xd6, 1, 32},   {0xd8, 0xde, 1, 32},   {0x100, 0x12e, 2, 1},    {0x132, 0x136, 2, 1},
    {0x139, 0x147, 2, 1},  {0x14a, 0x176, 2, 1},  {0x178, 0x178, 1, -121}, {0x179, 0x17d, 2, 1},
    {0x386, 0x386, 1, 38}, {0x388, 0x38a, 1, 37}, {0x38c, 0x38c, 1, 64},   {0x38e, 0x38f, 1, 63},
    {0x391, 0x3a1, 1, 32}, {0x3a3, 0x3ab, 1, 32}, {0x3c2, 0x3c2, 1, 1},    {0x400, 0x40f, 1, 80},
    {0x410, 0x42f, 1, 32}, {0x460, 0x480, 2, 1},  {0x48a, 0x4be, 2, 1},    {0x4c0, 0x4c0, 1, 15},
    {0x4c1, 0x4cd, 2, 1},  {0x4d0, 0x52e, 2, 1},
}};

std::int32_t smallLetter(std::int32_t code) {
  const auto* const range =
      std::lower_bound(kCapitals.begin(), kCapitals.end(), code,
                       [](const CapitalLetters& each, std::int32_t c) { return each.last < c; });
  const bool isCapital =
      range != kCapitals.end() && code >= range->first && (code - range->first) % range->step == 0;
  return isCapital ? code + range->distance : code;
}

bool isTwoByteLead(unsigned char byte) {
  return byte >= 0xc2 && byte <= 0xdf;
}

bool isContinuation(unsigned char byte) {
  return (byte & 0xc0U) == 0x80;
}

void foldTwoBytes(char* bytes) {
  const std::int32_t lead = static_cast<unsigned char>(bytes[0]) & 0x1f;
  const std::int32_t rest = static_cast<unsigned char>(bytes[1]) & 0x3f;
  const std::int32_t code = smallLetter(lead << 6 | rest);
  bytes[0] = static_cast<char>(0xc0 | code >> 6);
  bytes[1] = static_cast<char>(0x80 | (code & 0x3f));
}

}  // namespace

void foldCase(std::string& text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if (byte >= 'A' && byte <= 'Z') {
      text[i] = static_cast<char>(byte + ('a' - 'A'));
    } else if (isTwoByteLead(byte) && i + 1 < text.size() &&
               isContinuation(static_cast<unsigned char>(text[i + 1]))) {
      foldTwoBytes(&text[i]);
      ++i;
    }
  }
}

}  // namespace vrel
