#include "floor_reader.h"

#include <sys/mman.h>

#include <charconv>
#include <cstdlib>
#include <cstring>

namespace vrel::bench {
namespace {

std::uint32_t hashOf(std::string_view text) {
  constexpr std::uint64_t kFactor = 0x9e37'79b9'7f4a'7c15;
  std::uint64_t hash = text.size();
  const char* at = text.data();
  std::size_t left = text.size();
  for (; left >= 8; left -= 8, at += 8) {
    std::uint64_t word;
    std::memcpy(&word, at, 8);
    hash = (hash ^ word) * kFactor;
    hash ^= hash >> 32;
  }
  std::uint64_t word = 0;
  std::memcpy(&word, at, left);
  // The product's upper half tells the texts apart; multiplied again, all its bits do.
  hash = (hash ^ word) * kFactor;
  return static_cast<std::uint32_t>(((hash ^ (hash >> 32)) * kFactor) >> 32);
}

// The text behind the keyword of a header line, and the file behind that line.
std::string_view headerLine(std::string_view& file, std::string_view keyword) {
  const std::size_t end = file.find('\n');
  const std::string_view line = file.substr(0, end);
  file.remove_prefix(end + 1);
  return line.substr(line.find(keyword) + keyword.size());
}

std::vector<FloorType> columnTypes(std::string_view line) {
  std::vector<FloorType> types;
  while (!line.empty()) {
    const std::string_view name = line.substr(0, line.find('\t'));
    types.push_back(name == "Number"    ? FloorType::Number
                    : name == "Boolean" ? FloorType::Boolean
                                        : FloorType::Text);
    line.remove_prefix(std::min(line.size(), name.size() + 1));
  }
  return types;
}

double numberIn(std::string_view text) {
  double number = 0;
  const char* const end = text.data() + text.size();
  const auto [stopped, error] = std::from_chars(text.data(), end, number);
  return error == std::errc() && stopped == end ? number : 0;
}

}  // namespace

FloorTexts::FloorTexts() : slots_(64) {}

std::uint32_t FloorTexts::intern(std::string_view text) {
  const std::uint32_t hash = hashOf(text);
  const std::size_t mask = slots_.size() - 1;
  std::size_t slot = hash & mask;
  for (; slots_[slot].id != 0; slot = (slot + 1) & mask) {
    if (slots_[slot].hash == hash && slots_[slot].text == text) {
      return slots_[slot].id - 1;
    }
  }
  texts_.push_back(store(text));
  const auto id = static_cast<std::uint32_t>(texts_.size());
  slots_[slot] = {texts_.back(), hash, id};
  if (texts_.size() * 2 > slots_.size()) {
    grow();
  }
  return id - 1;
}

std::string_view FloorTexts::store(std::string_view text) {
  if (text.size() > room_) {
    room_ = std::max<std::size_t>(text.size(), 65536);
    at_ = blocks_.emplace_back(std::make_unique_for_overwrite<char[]>(room_)).get();
  }
  std::memcpy(at_, text.data(), text.size());
  const std::string_view stored(at_, text.size());
  at_ += text.size();
  room_ -= text.size();
  return stored;
}

void FloorTexts::grow() {
  std::vector<Slot> old(slots_.size() * 2);
  old.swap(slots_);
  const std::size_t mask = slots_.size() - 1;
  for (const Slot& moved : old) {
    if (moved.id != 0) {
      std::size_t slot = moved.hash & mask;
      while (slots_[slot].id != 0) {
        slot = (slot + 1) & mask;
      }
      slots_[slot] = moved;
    }
  }
}

FloorTable readFloor(std::string_view file) {
  FloorTable table;
  headerLine(file, "FieldNames:");
  table.types = columnTypes(headerLine(file, "FieldTypes:"));
  headerLine(file, "PeriodValues:");
  const std::size_t columns = table.types.size();
  table.texts.resize(columns);

  // Two bytes are the least a value takes, so that this is room enough; what is not used is never
  // touched. Large pages spare most of the faults.
  constexpr std::size_t kLargePage = std::size_t{2} << 20;
  const std::size_t bytes =
      (file.size() / 2 * sizeof(FloorCell) + kLargePage) / kLargePage * kLargePage;
  auto* cells = static_cast<FloorCell*>(std::aligned_alloc(kLargePage, bytes));
  madvise(cells, bytes, MADV_HUGEPAGE);
  table.cells = {cells, [](FloorCell* memory) { std::free(memory); }};

  const char* at = file.data();
  const char* const end = at + file.size();
  FloorCell* cell = cells;
  while (at < end) {
    for (std::size_t column = 0; column < columns; ++column, ++cell) {
      const char* const begin = at;
      while (*at != '\t' && *at != '\n') {
        ++at;
      }
      const std::string_view value(begin, static_cast<std::size_t>(at - begin));
      ++at;
      switch (table.types[column]) {
        case FloorType::Number:
          cell->number = numberIn(value);
          break;
        case FloorType::Boolean:
          cell->text = value.starts_with('Y') ? 1 : 0;
          break;
        case FloorType::Text:
          cell->text = table.texts[column].intern(value);
          break;
      }
    }
    if (at[-1] != '\n') {
      at = static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at))) + 1;
    }
    ++table.rows;
  }
  return table;
}

double checksum(const FloorTable& table) {
  double sum = 0;
  const FloorCell* cell = table.cells.get();
  for (std::size_t row = 0; row < table.rows; ++row) {
    for (const FloorType type : table.types) {
      sum += type == FloorType::Number    ? cell->number
             : type == FloorType::Boolean ? static_cast<double>(cell->text)
                                          : 0;
      ++cell;
    }
  }
  for (const FloorTexts& texts : table.texts) {
    sum += static_cast<double>(texts.texts().size());
  }
  return sum;
}

}  // namespace vrel::bench
