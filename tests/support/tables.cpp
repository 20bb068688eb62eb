#include "support/tables.h"

#include <algorithm>

#include "base/words.h"

namespace vrel::test {
namespace {

FormatSettings shortNumbers() {
  FormatSettings settings;
  settings.precision = 0;
  return settings;
}

}  // namespace

Table tableFrom(std::string_view text) {
  Table table;
  TextInput input = TextInput::fromMemory(std::string(text));
  loadFromFile(table, input);
  return table;
}

Table tableOf(std::string_view fields, std::string_view periods,
              const std::vector<std::string>& lines) {
  std::string names = "FieldNames:";
  std::string types = "FieldTypes:";
  for (const std::string& field : splitWords(fields).words) {
    names += "\t" + field.substr(0, field.find(':'));
    types += "\t" + field.substr(field.find(':') + 1);
  }
  std::string text = names + "\t\n" + types + "\t\nPeriodValues:";
  for (const std::string& period : splitWords(periods).words) {
    text += "\t" + period;
  }
  text += "\t\n";
  for (std::string line : lines) {
    const std::size_t notes = std::min(line.find("###"), line.size());
    std::replace(line.begin(), line.begin() + static_cast<std::ptrdiff_t>(notes), ' ', '\t');
    text += line + "\n";
  }
  return tableFrom(text);
}

std::vector<std::string> tuplesOf(const Table& table) {
  std::vector<std::string> lines;
  for (std::size_t i = 0; i < table.tupleCount; ++i) {
    std::string line;
    for (int f = 0; f < static_cast<int>(table.fieldCount()); ++f) {
      line += (f > 0 ? " " : "") + formatValue(table.value(i, f), shortNumbers(), Quoting::None);
    }
    lines.push_back(line);
  }
  return lines;
}

std::vector<std::string> gridLines(const ReportGrid& grid) {
  std::vector<std::string> lines(1);
  for (std::size_t column = 0; column < grid.columns; ++column) {
    std::string heading = columnHeading(grid, shortNumbers(), column);
    std::replace(heading.begin(), heading.end(), '\n', '/');
    lines[0] += (column > 0 ? "|" : "") + heading;
  }
  for (std::size_t row = 0; row < grid.rows; ++row) {
    std::string& line = lines.emplace_back();
    for (std::size_t column = 0; column < grid.columns; ++column) {
      line += (column > 0 ? "|" : "") + cellText(grid, shortNumbers(), row, column);
    }
  }
  return lines;
}

}  // namespace vrel::test
