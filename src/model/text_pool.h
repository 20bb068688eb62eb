// Texts stored once each, so that equal texts have equal ids.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace vrel {

/// Memory for texts that live as long as the arena; handed-out views stay valid.
class TextArena {
 public:
  /// A copy of the text.
  std::string_view store(std::string_view text);
  void clear();

 private:
  std::vector<std::unique_ptr<char[]>> blocks_;
  char* at_ = nullptr;
  std::size_t room_ = 0;
};

/// The distinct texts of one column. Id 0 stands for no text at all; others count from 1.
class TextPool {
 public:
  TextPool() { clear(); }
  TextPool(TextPool&&) = default;
  TextPool& operator=(TextPool&&) = default;

  /// The id of a text, which is stored when it is new.
  std::uint32_t intern(std::string_view text);
  /// The id of a text, or nothing when no such text was stored.
  std::optional<std::uint32_t> find(std::string_view text) const;
  /// The text of an id; empty for id 0.
  std::string_view text(std::uint32_t id) const { return texts_[id]; }
  /// One more than the largest id.
  std::uint32_t size() const { return static_cast<std::uint32_t>(texts_.size()); }
  void clear();

 private:
  struct Slot {
    std::uint32_t hash;
    std::uint32_t id;
  };

  std::size_t slotOf(std::string_view text, std::uint32_t hash) const;
  void grow();

  TextArena arena_;
  std::vector<std::string_view> texts_;
  std::vector<Slot> slots_;
};

}  // namespace vrel
