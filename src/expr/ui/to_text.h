// The program's texts, which are UTF-8, as the toolkit's.
#pragma once

#include <QString>
#include <string_view>

namespace vrel {

/// The same text; what is no UTF-8 in it is replaced.
inline QString toText(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace vrel
