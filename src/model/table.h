// The table: the host's data as typed fields and tuples.
//
// The cells of all tuples stand in one block, tuple after tuple, so that a tuple is one stretch of
// memory. Reading, sorting and dumping are in files of their own; this one is the store.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/field.h"
#include "model/field_value.h"
#include "model/period_lengths.h"

namespace vrel {

/// Stands for no field in a field-index list.
inline constexpr int kNoField = 65535;

/// Where a value stands in a table.
struct CellRef {
  std::uint32_t tuple;
  int field;

  bool operator==(const CellRef&) const = default;
};

/// A growing block of cells, without initialisation and without copies where the system can grow
/// memory in place.
class CellBlock {
 public:
  CellBlock() = default;
  CellBlock(CellBlock&& other) noexcept;
  CellBlock& operator=(CellBlock&& other) noexcept;
  ~CellBlock();

  Cell* data() { return data_; }
  const Cell* data() const { return data_; }
  std::size_t size() const { return size_; }
  /// Room for `count` cells in all; what stands there is kept. False when there is no memory.
  bool reserve(std::size_t count);
  /// Adds `count` cells whose values are not set yet and returns the first; null, with nothing
  /// added, when there is no memory.
  Cell* extend(std::size_t count) {
    if (size_ + count > capacity_ && !reserve(std::max(size_ + count, capacity_ * 2))) {
      return nullptr;
    }
    Cell* first = data_ + size_;
    size_ += count;
    return first;
  }
  void clear();

 private:
  Cell* data_ = nullptr;
  std::size_t size_ = 0;
  std::size_t capacity_ = 0;
};

/// The colours of one column's cells, as indices into the list of colours: one for all of them, or
/// one for each tuple.
struct Highlights {
  std::uint8_t common = 0;
  std::vector<std::uint8_t> byTuple;
};

/// One table. Tuples are named by their position, which sorting changes.
struct Table {
  /// In column order.
  std::vector<FieldDef> fields;
  CellBlock cells;
  std::size_t tupleCount = 0;
  /// The notes of each tuple as one text, comma-separated and ended by a line feed; null for a
  /// tuple without notes. Empty when no tuple has any.
  std::vector<const char*> notes;
  TextArena noteArena;
  /// The fields that the table file declared; those behind them are formulas, which have no notes.
  std::size_t notedFields = 0;
  /// By column; missing ones are without colour.
  std::vector<Highlights> highlights;
  /// The last comment among the data lines.
  std::string comment;
  /// A table file was read to its end.
  bool loaded = false;
  /// Removing duplicate keys has dropped tuples.
  bool aggregated = false;
  /// The field that holds each tuple's period or date; -1 when there is none.
  int dateColumn = -1;
  PeriodLengths periodLengths;
  /// The key fields with the date column last: the order of the sorted table.
  std::vector<int> sortKeys;
  /// The same without the date column: tuples equal on these belong to one series.
  std::vector<int> groupKeys;
  /// The fields by which the tuples stand in order now; empty when they do not.
  std::vector<int> sortedBy;
  /// Counts how often tuples or fields have moved or changed their type: what was noted of their
  /// places and values before is void.
  std::uint64_t arrangement = 0;

  std::size_t fieldCount() const { return fields.size(); }
  Cell* tuple(std::size_t index) { return cells.data() + index * fields.size(); }
  const Cell* tuple(std::size_t index) const { return cells.data() + index * fields.size(); }
  Cell& cell(std::size_t tupleIndex, int field) {
    return tuple(tupleIndex)[static_cast<std::size_t>(field)];
  }
  const Cell& cell(std::size_t tupleIndex, int field) const {
    return tuple(tupleIndex)[static_cast<std::size_t>(field)];
  }
  const FieldDef& field(int index) const { return fields[static_cast<std::size_t>(index)]; }
  FieldDef& field(int index) { return fields[static_cast<std::size_t>(index)]; }
  FieldValue value(std::size_t tupleIndex, int fieldIndex) const {
    return {&field(fieldIndex), cell(tupleIndex, fieldIndex)};
  }
};

/// Back to an empty table that is not loaded.
void clear(Table& table);

/// Appends a tuple whose cells are not set yet and returns it; null when there is no memory for it.
Cell* appendTuple(Table& table);

/// Hands out the notes of one tuple, field by field.
class NoteReader {
 public:
  NoteReader(const Table& table, std::size_t tuple)
      : fieldsLeft_(table.notedFields), at_(table.notes.empty() ? nullptr : table.notes[tuple]) {}
  /// The next field's note, which may be empty; nothing behind the last one.
  std::optional<std::string_view> next();

 private:
  // The text may hold more notes than there are fields to have them.
  std::size_t fieldsLeft_;
  // Where the next note begins; null when there is none.
  const char* at_;
};

/// The note of one cell, by which the host recognises it; empty when it has none.
std::string_view noteOf(const Table& table, std::size_t tuple, int field);

/// The colour of one cell.
std::uint8_t highlightOf(const Table& table, std::size_t tuple, int field);

/// Replaces the fields: column i of the new table takes its cells from column `source[i]` of the
/// old one, or fresh cells when that is `kNoField`. The key lists must be rebuilt by a sort.
/// False, with nothing changed, when memory runs out.
bool replaceFields(Table& table, std::vector<FieldDef> fields, std::span<const int> source);

/// Compares two tuples field by field; the first difference decides. `kNoField` is skipped.
int compareTuples(const Table& table, const Cell* a, const Cell* b, std::span<const int> keys);

}  // namespace vrel
