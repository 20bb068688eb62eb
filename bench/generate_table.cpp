// Writes a generated table, or the view that goes with it, to a file.
//
//   generate_table plan TUPLES FILE [notes]
//   generate_table sparse ROWS COLUMNS TUPLES FILE
//   generate_table plan-view FILE
//   generate_table sparse-view FILE
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "table_generator.h"

namespace {

using namespace vrel;
using namespace vrel::bench;

std::uint32_t number(const std::string& text) {
  return static_cast<std::uint32_t>(std::strtoul(text.c_str(), nullptr, 10));
}

// Nothing is left under the file's name when it could not be written whole.
template <class Write>
int writeFile(const std::string& path, Write write) {
  SafeFile file(path);
  if (!file.isOpen()) {
    std::fprintf(stderr, "generate_table: cannot open \"%s\"\n", path.c_str());
    return 1;
  }
  write(file.output());
  return file.commit() ? 0 : 1;
}

int generate(const std::vector<std::string>& words) {
  const std::string kind = words.empty() ? "" : words[0];
  if (kind == "plan" && (words.size() == 3 || (words.size() == 4 && words[3] == "notes"))) {
    PlanShape shape;
    shape.items = itemsForTuples(number(words[1]));
    shape.notes = words.size() == 4;
    return writeFile(words[2], [&](TextOutput& output) { writePlan(shape, output); });
  }
  if (kind == "sparse" && words.size() == 5) {
    SparseShape shape;
    shape.rows = number(words[1]);
    shape.columns = number(words[2]);
    shape.tuples = number(words[3]);
    return writeFile(words[4], [&](TextOutput& output) { writeSparse(shape, output); });
  }
  if ((kind == "plan-view" || kind == "sparse-view") && words.size() == 2) {
    const std::string_view third = kind == "plan-view" ? kPlanColumnField : kSparseColumnField;
    return writeFile(words[1], [&](TextOutput& output) { writeView(third, output); });
  }
  std::fputs(
      "usage: generate_table plan TUPLES FILE [notes]\n"
      "       generate_table sparse ROWS COLUMNS TUPLES FILE\n"
      "       generate_table plan-view FILE\n"
      "       generate_table sparse-view FILE\n",
      stderr);
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  return generate({argv + 1, argv + argc});
}
