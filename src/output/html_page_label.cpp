#include "output/html_page_label.h"

#include <fmt/format.h>

namespace vrel {

std::string htmlPageLabel(std::string_view title, std::string_view subtitle) {
  return subtitle.empty() ? std::string(title) : fmt::format("{} : {}", title, subtitle);
}

std::string htmlAnchorName(std::string_view pageLabel) {
  constexpr std::string_view kMasked = " ./:?";
  std::string name;
  for (const char byte : pageLabel) {
    if (kMasked.find(byte) == std::string_view::npos) {
      name += byte;
    } else {
      name += fmt::format("%{:02X}", static_cast<unsigned char>(byte));
    }
  }
  return name;
}

}  // namespace vrel
