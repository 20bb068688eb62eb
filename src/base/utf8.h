// Characters of UTF-8 texts.
#pragma once

#include <cstddef>
#include <string_view>

namespace vrel {

/// How many characters a text has; bytes that continue none count none.
std::size_t characterCount(std::string_view text);

}  // namespace vrel
