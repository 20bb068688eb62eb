#include "support/views.h"

#include <array>

#include "model/view_file.h"

namespace vrel::test {

std::string listsOf(const ReportView& view) {
  constexpr std::array<std::string_view, kAxisCount> kNames = {"x", "y", "z", "data", "hidden"};
  std::string text;
  for (std::size_t axis = 0; axis < kAxisCount; ++axis) {
    if (view.axes[axis].empty()) {
      continue;
    }
    text += (text.empty() ? "" : ", ") + std::string(kNames[axis]);
    for (const int field : view.axes[axis]) {
      text += " " + std::to_string(field);
    }
  }
  return text;
}

std::string savedText(const ReportView& view) {
  std::string text;
  TextOutput output = TextOutput::toMemory(text);
  writeViewFile(view, output);
  output.flush();
  return text;
}

}  // namespace vrel::test
