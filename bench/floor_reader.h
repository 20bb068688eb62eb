// The floor: the least that any program must do on one thread to have a table in memory.
//
// It maps the file, splits it at tabs and line feeds, converts numbers with std::from_chars, keeps
// each distinct key text once and typed rows of eight bytes a value. It takes every file to be
// well-formed, knows nothing but the types of the columns and skips notes. Times of the program are
// given as multiples of this.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace vrel::bench {

union FloorCell {
  double number;
  std::uint64_t text;
};

/// Distinct texts, numbered from 0.
class FloorTexts {
 public:
  FloorTexts();
  std::uint32_t intern(std::string_view text);
  const std::vector<std::string_view>& texts() const { return texts_; }

 private:
  struct Slot {
    std::string_view text;
    std::uint32_t hash;
    // One more than the text's number; 0 marks a free slot.
    std::uint32_t id;
  };

  std::string_view store(std::string_view text);
  void grow();

  std::vector<Slot> slots_;
  std::vector<std::string_view> texts_;
  std::vector<std::unique_ptr<char[]>> blocks_;
  char* at_ = nullptr;
  std::size_t room_ = 0;
};

enum class FloorType { Text, Number, Boolean };

struct FloorTable {
  std::vector<FloorType> types;
  std::vector<FloorTexts> texts;
  std::unique_ptr<FloorCell[], void (*)(FloorCell*)> cells{nullptr, nullptr};
  std::size_t rows = 0;
};

FloorTable readFloor(std::string_view file);

/// The sum of all numbers, and the count of all distinct texts and true booleans: what shows that
/// everything was read.
double checksum(const FloorTable& table);

}  // namespace vrel::bench
