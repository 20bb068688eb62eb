#include "base/wide_text_windows.h"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace vrel::platform {

std::wstring wide(std::string_view text) {
  const int length =
      MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), nullptr, 0);
  std::wstring result(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), result.data(),
                      length);
  return result;
}

std::string utf8(std::wstring_view text) {
  const int length = WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                         nullptr, 0, nullptr, nullptr);
  std::string result(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), result.data(), length,
                      nullptr, nullptr);
  return result;
}

}  // namespace vrel::platform
