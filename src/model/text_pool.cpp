#include "model/text_pool.h"

#include <algorithm>
#include <cstring>

namespace vrel {
namespace {

constexpr std::size_t kFirstBlock = 4096;
constexpr std::size_t kLargestBlock = std::size_t{1} << 20;
constexpr std::size_t kFirstSlots = 16;

template <typename Word>
std::uint64_t load(const char* from) {
  Word word;
  std::memcpy(&word, from, sizeof word);
  return word;
}

std::uint64_t mix(std::uint64_t hash, std::uint64_t word) {
  hash = (hash ^ word) * 0x9e37'79b9'7f4a'7c15;
  return hash ^ (hash >> 32);
}

// The last bytes of a text as one word; texts of eight bytes and more may overlap what was mixed.
std::uint64_t tail(std::string_view text) {
  const char* end = text.data() + text.size();
  if (text.size() >= 8) {
    return load<std::uint64_t>(end - 8);
  }
  if (text.size() >= 4) {
    return load<std::uint32_t>(text.data()) << 32 | load<std::uint32_t>(end - 4);
  }
  std::uint64_t word = 0;
  for (const char byte : text) {
    word = word << 8 | static_cast<unsigned char>(byte);
  }
  return word;
}

std::uint32_t hashOf(std::string_view text) {
  std::uint64_t hash = text.size();
  for (std::size_t at = 0; at + 8 < text.size(); at += 8) {
    hash = mix(hash, load<std::uint64_t>(text.data() + at));
  }
  return static_cast<std::uint32_t>(mix(hash, tail(text)));
}

}  // namespace

std::string_view TextArena::store(std::string_view text) {
  if (text.size() > room_) {
    const std::size_t doubled = kFirstBlock << std::min<std::size_t>(blocks_.size(), 8);
    room_ = std::max(std::min(doubled, kLargestBlock), text.size());
    blocks_.push_back(std::make_unique_for_overwrite<char[]>(room_));
    at_ = blocks_.back().get();
  }
  char* const begin = at_;
  std::copy(text.begin(), text.end(), begin);
  at_ += text.size();
  room_ -= text.size();
  return {begin, text.size()};
}

void TextArena::clear() {
  blocks_.clear();
  at_ = nullptr;
  room_ = 0;
}

std::size_t TextPool::slotOf(std::string_view text, std::uint32_t hash) const {
  const std::size_t mask = slots_.size() - 1;
  std::size_t at = hash & mask;
  while (slots_[at].id != 0 && (slots_[at].hash != hash || texts_[slots_[at].id] != text)) {
    at = (at + 1) & mask;
  }
  return at;
}

std::uint32_t TextPool::intern(std::string_view text) {
  const std::uint32_t hash = hashOf(text);
  Slot* slot = &slots_[slotOf(text, hash)];
  if (slot->id != 0) {
    return slot->id;
  }
  const std::uint32_t id = size();
  texts_.push_back(arena_.store(text));
  *slot = {hash, id};
  if (texts_.size() * 2 > slots_.size()) {
    grow();
  }
  return id;
}

std::optional<std::uint32_t> TextPool::find(std::string_view text) const {
  const Slot& slot = slots_[slotOf(text, hashOf(text))];
  return slot.id == 0 ? std::nullopt : std::optional(slot.id);
}

void TextPool::grow() {
  std::vector<Slot> old(slots_.size() * 2);
  old.swap(slots_);
  const std::size_t mask = slots_.size() - 1;
  for (const Slot& slot : old) {
    if (slot.id != 0) {
      std::size_t at = slot.hash & mask;
      while (slots_[at].id != 0) {
        at = (at + 1) & mask;
      }
      slots_[at] = slot;
    }
  }
}

void TextPool::clear() {
  arena_.clear();
  texts_.assign(1, std::string_view());
  slots_.assign(kFirstSlots, Slot{0, 0});
}

}  // namespace vrel
