#include "plan_table.h"

#include <algorithm>
#include <cstring>
#include <map>

#include "model/table_reader.h"
#include "table_generator.h"

namespace vrel::bench {

const std::string& planFile(std::int64_t tuples) {
  static std::map<std::int64_t, std::string> files;
  std::string& file = files[tuples];
  if (file.empty()) {
    PlanShape shape;
    shape.items = itemsForTuples(static_cast<std::uint64_t>(tuples));
    TextOutput output = TextOutput::toMemory(file);
    writePlan(shape, output);
    output.flush();
  }
  return file;
}

TextInput inputOver(const std::string& text) {
  return TextInput([&text, at = std::size_t{0}](char* buffer, std::size_t capacity) mutable {
    const std::size_t count = std::min(capacity, text.size() - at);
    std::memcpy(buffer, text.data() + at, count);
    at += count;
    return count;
  });
}

void load(Table& table, std::int64_t tuples) {
  TextInput input = inputOver(planFile(tuples));
  loadFromFile(table, input);
  settleTypes(table);
}

}  // namespace vrel::bench
