// Whole files as texts.
#pragma once

#include <optional>
#include <string>

namespace vrel {

/// The bytes of a file; nothing when it cannot be opened.
std::optional<std::string> readTextFile(const std::string& path);

}  // namespace vrel
