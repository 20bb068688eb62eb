// Texts on their way to and from Windows, which takes UTF-16 where this program has UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace vrel::platform {

std::wstring wide(std::string_view text);
std::string utf8(std::wstring_view text);

}  // namespace vrel::platform
