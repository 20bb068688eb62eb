// Whole files as texts.
#pragma once

#include <optional>
#include <string>

namespace vrel {

/// The bytes of a file; nothing when it cannot be opened or holds more than 64 MiB.
std::optional<std::string> readTextFile(const std::string& path);

}  // namespace vrel
