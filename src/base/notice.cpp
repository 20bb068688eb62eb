#include "base/notice.h"

namespace vrel {

std::string editorTitle(Notice& notice) {
  return notice.translate("Data Editor");
}

std::string noticeText(Notice& notice, std::string_view text, std::string_view value) {
  std::string result = notice.translate(text);
  const std::size_t place = result.find("%1");
  return place == std::string::npos ? result : result.replace(place, 2, value);
}

}  // namespace vrel
