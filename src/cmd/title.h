// Report titles as hosts pass them.
#pragma once

#include <string>
#include <string_view>

namespace vrel {

/// The title with each "#" and four hexadecimal digits replaced by the character of that code, in
/// UTF-8; two codes may form one character beyond the first 65536. Any other "#" stays.
std::string decodeTitle(std::string_view title);

/// The part of a decoded title after its last "/", by which messages name the report.
std::string shortTitle(std::string_view decodedTitle);

}  // namespace vrel
