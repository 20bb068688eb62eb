#include "output/translate.h"

#include <fmt/format.h>

#include <vector>

#include "model/table_sort.h"

namespace vrel {
namespace {

/// A longer line is read in pieces, each of which counts as a line.
constexpr std::size_t kMaxLineBytes = 2047;
constexpr std::string_view kSeparators = "\t\n";
constexpr std::string_view kLastColumn = "###";

constexpr std::string_view kWarning = "Translate: line {}, warning - {}.\n";
constexpr std::string_view kMissingColumns = "Missing column(s).";
constexpr std::string_view kExtraColumns = "Ignoring extra column(s).";
constexpr std::string_view kUnknownKey = "Unknown key value(s) - record ignored.";

/// The columns of a record: runs of separators count as one, so that no column is empty. A column
/// that begins with "###" is the last.
void splitColumns(std::string_view line, std::vector<std::string_view>& columns) {
  columns.clear();
  std::size_t at = line.find_first_not_of(kSeparators);
  while (at != std::string_view::npos) {
    columns.push_back(line.substr(at, line.find_first_of(kSeparators, at) - at));
    if (columns.back().starts_with(kLastColumn)) {
      return;
    }
    at = line.find_first_not_of(kSeparators, at + columns.back().size());
  }
}

/// The key cells of a record, one cell per table field. Nothing when a key text is none of the
/// table's, which then has no such tuple; such texts are not added to the table.
std::optional<std::vector<Cell>> keyCells(Table& table,
                                          const std::vector<std::string_view>& columns) {
  std::vector<Cell> cells(table.fieldCount(), emptyCell());
  for (const int key : table.sortKeys) {
    if (key == kNoField) {
      continue;
    }
    const auto index = static_cast<std::size_t>(key);
    FieldDef& field = table.fields[index];
    if (field.type == FieldType::String) {
      const std::optional<std::uint32_t> text = field.texts.find(columns[index]);
      if (!text) {
        return std::nullopt;
      }
      cells[index].text = *text;
    } else {
      cells[index] = parseValue(field, columns[index]);
    }
  }
  return cells;
}

std::optional<std::size_t> findRecord(Table& table, const std::vector<std::string_view>& columns) {
  const std::optional<std::vector<Cell>> wanted = keyCells(table, columns);
  return wanted ? findTuple(table, wanted->data(), table.sortKeys) : std::nullopt;
}

void writePairs(const Table& table, std::size_t tuple, const std::vector<std::string_view>& columns,
                TextOutput& output) {
  NoteReader notes(table, tuple);
  for (std::size_t i = 0; i < table.fieldCount(); ++i) {
    const std::optional<std::string_view> note = notes.next();
    if (!note) {
      return;
    }
    if (!table.fields[i].isKey() && !note->empty()) {
      output.write(*note);
      output.write(" \"");
      output.write(columns[i]);
      output.write("\"\n");
    }
  }
}

}  // namespace

void translate(Table& table, TextInput& input, TextOutput& output, TextOutput& errors) {
  sortTuples(table);
  std::vector<std::string_view> columns;
  std::uint64_t lineNumber = 0;
  const auto warn = [&](std::string_view message) {
    errors.write(fmt::format(kWarning, lineNumber, message));
  };
  while (const std::optional<std::string_view> line = input.readLine(kMaxLineBytes)) {
    ++lineNumber;
    if (line->starts_with('#')) {
      continue;
    }
    splitColumns(*line, columns);
    if (columns.size() < table.fieldCount()) {
      warn(kMissingColumns);
      continue;
    }
    if (columns.size() > table.fieldCount()) {
      warn(kExtraColumns);
    }
    if (const std::optional<std::size_t> tuple = findRecord(table, columns)) {
      writePairs(table, *tuple, columns, output);
    } else {
      warn(kUnknownKey);
    }
  }
}

}  // namespace vrel
