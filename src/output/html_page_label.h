// What the pages of an HTML report are called, and the names by which its links find them.
#pragma once

#include <string>
#include <string_view>

namespace vrel {

/// "title : subtitle"; the title alone when there is no subtitle.
std::string htmlPageLabel(std::string_view title, std::string_view subtitle);

/// The label with blanks, points, slashes, colons and question marks as "%" and two capital hex
/// digits; all else stays as it is, quotes and bytes beyond ASCII too.
std::string htmlAnchorName(std::string_view pageLabel);

}  // namespace vrel
