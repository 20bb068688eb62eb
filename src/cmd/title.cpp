#include "cmd/title.h"

#include <charconv>
#include <cstdint>
#include <optional>

namespace vrel {
namespace {

constexpr std::size_t kEscapeLength = 5;
constexpr std::uint32_t kReplacement = 0xfffd;

bool isHighHalf(std::uint32_t code) {
  return code >= 0xd800 && code < 0xdc00;
}
bool isLowHalf(std::uint32_t code) {
  return code >= 0xdc00 && code < 0xe000;
}

std::optional<std::uint32_t> escapeAt(std::string_view text, std::size_t at) {
  if (at + kEscapeLength > text.size() || text[at] != '#') {
    return std::nullopt;
  }
  std::uint32_t code = 0;
  const char* const end = text.data() + at + kEscapeLength;
  const auto parsed = std::from_chars(text.data() + at + 1, end, code, 16);
  return parsed.ec == std::errc() && parsed.ptr == end ? std::optional(code) : std::nullopt;
}

void appendUtf8(std::string& text, std::uint32_t code) {
  const auto put = [&text](std::uint32_t byte) { text += static_cast<char>(byte); };
  if (code < 0x80) {
    put(code);
    return;
  }
  if (code < 0x800) {
    put(0xc0 | code >> 6);
  } else {
    if (code < 0x10000) {
      put(0xe0 | code >> 12);
    } else {
      put(0xf0 | code >> 18);
      put(0x80 | (code >> 12 & 0x3f));
    }
    put(0x80 | (code >> 6 & 0x3f));
  }
  put(0x80 | (code & 0x3f));
}

}  // namespace

std::string decodeTitle(std::string_view title) {
  std::string decoded;
  std::size_t at = 0;
  while (at < title.size()) {
    std::optional<std::uint32_t> code = escapeAt(title, at);
    if (!code) {
      decoded += title[at++];
      continue;
    }
    at += kEscapeLength;
    const std::optional<std::uint32_t> next = escapeAt(title, at);
    if (isHighHalf(*code) && next && isLowHalf(*next)) {
      *code = 0x10000 + ((*code - 0xd800) << 10) + (*next - 0xdc00);
      at += kEscapeLength;
    } else if (isHighHalf(*code) || isLowHalf(*code)) {
      code = kReplacement;
    }
    appendUtf8(decoded, *code);
  }
  return decoded;
}

std::string shortTitle(std::string_view decodedTitle) {
  return std::string(decodedTitle.substr(decodedTitle.rfind('/') + 1));
}

}  // namespace vrel
