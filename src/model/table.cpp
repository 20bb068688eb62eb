#include "model/table.h"

#include <cstdint>
#include <utility>

#include "base/platform.h"

namespace vrel {
namespace {

constexpr std::size_t kFirstCells = 4096;

// Past the note that begins at `at`: to its comma or to the line feed that ends all notes.
const char* endOfNote(const char* at) {
  char quote = 0;
  for (; *at != '\n'; ++at) {
    if (quote != 0) {
      quote = *at == quote ? '\0' : quote;
    } else if (*at == '"' || *at == '\'') {
      quote = *at;
    } else if (*at == ',') {
      break;
    }
  }
  return at;
}

}  // namespace

CellBlock::CellBlock(CellBlock&& other) noexcept
    : data_(std::exchange(other.data_, nullptr)),
      size_(std::exchange(other.size_, 0)),
      capacity_(std::exchange(other.capacity_, 0)) {}

CellBlock& CellBlock::operator=(CellBlock&& other) noexcept {
  if (this != &other) {
    clear();
    data_ = std::exchange(other.data_, nullptr);
    size_ = std::exchange(other.size_, 0);
    capacity_ = std::exchange(other.capacity_, 0);
  }
  return *this;
}

CellBlock::~CellBlock() {
  clear();
}

bool CellBlock::reserve(std::size_t count) {
  count = std::max(count, kFirstCells);
  if (count <= capacity_) {
    return true;
  }
  constexpr std::size_t kMostCells = SIZE_MAX / sizeof(Cell) / 2;
  void* memory = nullptr;
  if (count <= kMostCells) {
    memory = data_ == nullptr
                 ? platform::allocateLarge(count * sizeof(Cell))
                 : platform::growLarge(data_, capacity_ * sizeof(Cell), count * sizeof(Cell));
  }
  if (memory == nullptr) {
    return false;
  }
  data_ = static_cast<Cell*>(memory);
  capacity_ = count;
  return true;
}

void CellBlock::clear() {
  if (data_ != nullptr) {
    platform::freeLarge(data_, capacity_ * sizeof(Cell));
  }
  data_ = nullptr;
  size_ = 0;
  capacity_ = 0;
}

void clear(Table& table) {
  table = Table();
}

Cell* appendTuple(Table& table) {
  Cell* cells = table.cells.extend(table.fieldCount());
  if (cells == nullptr) {
    return nullptr;
  }
  ++table.tupleCount;
  if (!table.notes.empty()) {
    table.notes.push_back(nullptr);
  }
  return cells;
}

std::optional<std::string_view> NoteReader::next() {
  if (at_ == nullptr || fieldsLeft_ == 0) {
    return std::nullopt;
  }
  --fieldsLeft_;
  const char* const end = endOfNote(at_);
  const std::string_view note(at_, static_cast<std::size_t>(end - at_));
  at_ = *end == '\n' ? nullptr : end + 1;
  return note;
}

std::string_view noteOf(const Table& table, std::size_t tuple, int field) {
  NoteReader notes(table, tuple);
  std::optional<std::string_view> note = notes.next();
  for (; field > 0 && note; --field) {
    note = notes.next();
  }
  return note.value_or(std::string_view());
}

std::uint8_t highlightOf(const Table& table, std::size_t tuple, int field) {
  const auto column = static_cast<std::size_t>(field);
  if (column >= table.highlights.size()) {
    return 0;
  }
  const Highlights& highlights = table.highlights[column];
  return tuple < highlights.byTuple.size() ? highlights.byTuple[tuple] : highlights.common;
}

bool replaceFields(Table& table, std::vector<FieldDef> fields, std::span<const int> source) {
  CellBlock cells;
  if (!cells.reserve(table.tupleCount * fields.size())) {
    return false;
  }
  for (std::size_t i = 0; i < table.tupleCount; ++i) {
    const Cell* from = table.tuple(i);
    Cell* to = cells.extend(fields.size());
    for (std::size_t f = 0; f < fields.size(); ++f) {
      to[f] = source[f] == kNoField ? emptyCell() : from[static_cast<std::size_t>(source[f])];
    }
  }
  table.fields = std::move(fields);
  table.cells = std::move(cells);
  table.highlights.clear();
  table.sortedBy.clear();
  ++table.arrangement;
  return true;
}

int compareTuples(const Table& table, const Cell* a, const Cell* b, std::span<const int> keys) {
  for (const int key : keys) {
    if (key == kNoField) {
      continue;
    }
    const auto index = static_cast<std::size_t>(key);
    const FieldDef& field = table.fields[index];
    const int order = compareValues({&field, a[index]}, {&field, b[index]});
    if (order != 0) {
      return order;
    }
  }
  return 0;
}

}  // namespace vrel
