// Paper sizes by their codes.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace vrel {

/// Points, portrait.
struct Paper {
  std::string_view name;
  int width;
  int height;
};

/// All papers; the code of each is its place in the list.
std::span<const Paper> paperTypes();

/// The name of a code; "unknown" for one that no paper has.
std::string_view paperName(std::int32_t code);

/// The paper of a code; Letter for one that no paper has.
const Paper& paperOf(std::int32_t code);

}  // namespace vrel
