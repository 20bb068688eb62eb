#include "model/table_reader.h"

#include <fmt/format.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/words.h"
#include "model/date.h"
#include "model/number_parse.h"

namespace vrel {
namespace {

// Lines are read in pieces of this size, each of which counts as a line.
constexpr std::size_t kLineBytes = 8191;

constexpr std::string_view kEntryEnd = "###";
constexpr std::string_view kNotesStart = "### ";

struct DeclaredType {
  std::string_view name;
  FieldType type;
  Classification classification;
  bool isDateColumn;
};

// A "Date" column holds texts: only its place as date column and key comes from the declaration.
constexpr std::array<DeclaredType, 5> kDeclaredTypes = {{
    {"String", FieldType::String, Classification::Key, false},
    {"Number", FieldType::Number, Classification::DataReadOnly, false},
    {"Boolean", FieldType::Boolean, Classification::DataReadOnly, false},
    {"Date", FieldType::String, Classification::Key, true},
    {"Period", FieldType::Period, Classification::Key, true},
}};

// Takes the next entry from `text`: leading delimiters are skipped, the entry runs to the next one.
// Nothing when no entry is left.
std::optional<std::string_view> nextEntry(std::string_view& text, std::string_view delimiters) {
  const std::size_t begin = text.find_first_not_of(delimiters);
  if (begin == std::string_view::npos) {
    text = {};
    return std::nullopt;
  }
  text.remove_prefix(begin);
  const std::string_view entry = text.substr(0, text.find_first_of(delimiters));
  text.remove_prefix(entry.size() + (entry.size() < text.size() ? 1 : 0));
  return entry;
}

// The next header line's text behind the keyword; nothing at the end or without the keyword.
std::optional<std::string> headerLine(TextInput& input, std::string_view keyword) {
  std::optional<std::string_view> line = input.readLine(kLineBytes);
  while (line && (line->front() == '#' || line->front() == '\n')) {
    line = input.readLine(kLineBytes);
  }
  const std::size_t at = line ? line->find(keyword) : std::string_view::npos;
  return at == std::string_view::npos
             ? std::nullopt
             : std::optional<std::string>(line->substr(at + keyword.size()));
}

// The entries of a name or type line. Only the first one may end at the line feed: a later one
// keeps it, because hosts end these lines with a tab or an entry that begins with "###".
std::vector<std::string> headerEntries(std::string_view text) {
  std::vector<std::string> entries;
  std::optional<std::string_view> entry = nextEntry(text, "\t\n");
  while (entry && *entry != "\n" && !entry->starts_with(kEntryEnd)) {
    entries.emplace_back(*entry);
    entry = nextEntry(text, "\t");
  }
  return entries;
}

void declareType(Table& table, std::size_t index, std::string_view name) {
  for (const DeclaredType& declared : kDeclaredTypes) {
    if (declared.name == name) {
      table.fields[index].type = declared.type;
      table.fields[index].classification = declared.classification;
      if (declared.isDateColumn) {
        table.dateColumn = static_cast<int>(index);
      }
    }
  }
}

bool readNames(Table& table, TextInput& input) {
  const std::optional<std::string> line = headerLine(input, "FieldNames:");
  if (!line) {
    return false;
  }
  for (std::string& name : headerEntries(*line)) {
    FieldDef& field = table.fields.emplace_back();
    field.name = std::move(name);
    field.type = FieldType::String;
    field.classification = Classification::Key;
  }
  return !table.fields.empty();
}

bool readTypes(Table& table, TextInput& input) {
  const std::optional<std::string> line = headerLine(input, "FieldTypes:");
  if (!line) {
    return false;
  }
  const std::vector<std::string> entries = headerEntries(*line);
  for (std::size_t i = 0; i < std::min(entries.size(), table.fields.size()); ++i) {
    declareType(table, i, entries[i]);
  }
  return !entries.empty();
}

bool readPeriodValues(Table& table, TextInput& input) {
  const std::optional<std::string> line = headerLine(input, "PeriodValues:");
  if (!line || table.dateColumn < 0) {
    return line.has_value();
  }
  PeriodNames& names = table.field(table.dateColumn).periodNames;
  std::string_view text = *line;
  while (const auto entry = nextEntry(text, "\t\n")) {
    names.add(*entry);
    if (entry->starts_with(kEntryEnd)) {
      break;
    }
  }
  return names.size() > 0;
}

[[noreturn]] void abortOnSurplus(std::string_view entry) {
  fmt::print(stderr, "loadFromFile: unexpected entry \"{}\" behind the values of a tuple\n", entry);
  std::fflush(stderr);
  std::abort();
}

// Takes the notes entry with which a tuple's values end; `text` runs to the end of the line.
void storeNotes(Table& table, std::string_view text) {
  if (!text.starts_with(kNotesStart)) {
    abortOnSurplus(trimBlanks(text));
  }
  text.remove_prefix(kNotesStart.size());
  if (table.notes.empty()) {
    table.notes.resize(table.tupleCount, nullptr);
    table.notedFields = table.fieldCount();
  }
  const bool ended = text.ends_with('\n');
  table.notes.back() = table.noteArena.store(ended ? text : std::string(text) + '\n').data();
}

const char* skipTabs(const char* at, const char* end) {
  while (at != end && *at == '\t') {
    ++at;
  }
  return at;
}

const char* findTab(const char* at, const char* end) {
  while (at != end && *at != '\t') {
    ++at;
  }
  return at;
}

// Reads the entry at `at` into a cell; returns the entry's end. Most numbers are plain decimals,
// which need no look for the entry's end beforehand.
const char* readEntry(FieldDef& field, const char* at, const char* end, Cell& cell) {
  if (field.type == FieldType::Number) {
    const char* stop = at;
    double number = 0;
    if (parsePlainDecimal(stop, end, number) && (stop == end || *stop == '\t')) {
      cell = numberCell(number);
      return stop;
    }
  }
  const char* const entryEnd = findTab(at, end);
  cell = parseValue(field, {at, static_cast<std::size_t>(entryEnd - at)});
  return entryEnd;
}

// Reads one data line into a new tuple; false when there is no memory for it.
bool readTuple(Table& table, std::string_view line) {
  Cell* const cells = appendTuple(table);
  if (cells == nullptr) {
    return false;
  }
  const char* const lineEnd = line.data() + line.size();
  const char* const end = lineEnd - (line.ends_with('\n') ? 1 : 0);
  const char* at = skipTabs(line.data(), end);
  std::size_t count = 0;
  while (at != end) {
    const std::string_view rest(at, static_cast<std::size_t>(lineEnd - at));
    if (count == table.fieldCount() || rest.starts_with(kEntryEnd)) {
      storeNotes(table, rest);
      break;
    }
    at = skipTabs(readEntry(table.fields[count], at, end, cells[count]), end);
    ++count;
  }
  std::fill(cells + count, cells + table.fieldCount(), emptyCell());
  return true;
}

bool readData(Table& table, TextInput& input) {
  while (const std::optional<std::string_view> line = input.readLine(kLineBytes)) {
    if (line->front() == '#') {
      table.comment = trimBlanks(*line);
    } else if (line->front() != '\n' && !readTuple(table, *line)) {
      return false;
    }
  }
  return true;
}

// The time of each of a field's distinct texts or period names, by text id or period index;
// nothing when one that a cell may show is no date.
std::optional<std::vector<std::int64_t>> datesOf(const FieldDef& field,
                                                 const std::vector<bool>& used) {
  std::vector<std::int64_t> times(used.size(), 0);
  for (std::size_t i = 0; i < used.size(); ++i) {
    if (used[i]) {
      const ParsedDate date = parseDate(field.type == FieldType::String
                                            ? field.texts.text(static_cast<std::uint32_t>(i))
                                            : field.periodNames.name(static_cast<std::int32_t>(i)));
      if (!date.accepted) {
        return std::nullopt;
      }
      times[i] = date.seconds;
    }
  }
  return times;
}

std::size_t textOrPeriod(const FieldDef& field, Cell cell) {
  return field.type == FieldType::String ? cell.text : static_cast<std::size_t>(cell.period);
}

void settleType(Table& table, int index) {
  FieldDef& field = table.field(index);
  const bool isText = field.type == FieldType::String;
  if (!isText && field.type != FieldType::Period) {
    return;
  }
  std::vector<bool> used(isText ? field.texts.size()
                                : static_cast<std::size_t>(field.periodNames.size()));
  for (std::size_t i = 0; i < table.tupleCount; ++i) {
    const std::size_t shown = textOrPeriod(field, table.cell(i, index));
    if (shown >= used.size() || (isText && shown == 0)) {
      return;  // No text, or a period of a field without names: no date.
    }
    used[shown] = true;
  }
  const std::optional<std::vector<std::int64_t>> times = datesOf(field, used);
  if (!times) {
    return;
  }
  for (std::size_t i = 0; i < table.tupleCount; ++i) {
    Cell& cell = table.cell(i, index);
    cell = Cell{.time = (*times)[textOrPeriod(field, cell)]};
  }
  field.type = FieldType::Date;
  field.texts.clear();
  table.sortedBy.clear();
}

}  // namespace

bool loadFromFile(Table& table, TextInput& input) {
  clear(table);
  if (!readNames(table, input) || !readTypes(table, input) || !readPeriodValues(table, input)) {
    return false;
  }
  if (!readData(table, input)) {
    clear(table);
    return false;
  }
  table.loaded = true;
  return true;
}

void settleTypes(Table& table) {
  if (table.tupleCount == 0) {
    return;
  }
  for (std::size_t i = 0; i < table.fieldCount(); ++i) {
    settleType(table, static_cast<int>(i));
  }
}

}  // namespace vrel
