#include "base/notice.h"

namespace vrel {

std::string editorTitle(Notice& notice) {
  return notice.translate(translatable("vrel", "Data Editor"));
}

std::string withValue(std::string text, std::string_view value) {
  const std::size_t place = text.find("%1");
  return place == std::string::npos ? text : text.replace(place, 2, value);
}

std::string noticeText(Notice& notice, std::string_view text, std::string_view value) {
  return withValue(notice.translate(text), value);
}

}  // namespace vrel
