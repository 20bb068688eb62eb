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

ReportView viewOf(Table& table, std::vector<int> x, std::vector<int> y, std::vector<int> z,
                  std::vector<int> data) {
  ReportView view;
  view.table = &table;
  view.axis(Axis::X) = std::move(x);
  view.axis(Axis::Y) = std::move(y);
  view.axis(Axis::Z) = std::move(z);
  view.axis(Axis::Data) = std::move(data);
  return view;
}

BreakDefinition breakOf(int field, int frequency, const std::map<int, BreakOperation>& operations) {
  BreakDefinition definition;
  definition.name = "Total";
  definition.frequency = frequency;
  definition.fieldIndex = field;
  for (const auto& [operand, operation] : operations) {
    setOperation(definition, operand, operation);
  }
  return definition;
}

std::string savedText(const ReportView& view) {
  std::string text;
  TextOutput output = TextOutput::toMemory(text);
  writeViewFile(view, output);
  output.flush();
  return text;
}

}  // namespace vrel::test
