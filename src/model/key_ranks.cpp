#include "model/key_ranks.h"

#include <algorithm>
#include <bit>
#include <numeric>
#include <string_view>
#include <utility>

namespace vrel {
namespace {

constexpr std::uint64_t kMaxRankCount = std::uint64_t{1} << 32;

// An integer whose order is that of the number; the two zeros are one value.
std::uint64_t orderedBits(double number) {
  constexpr std::uint64_t kSign = std::uint64_t{1} << 63;
  const auto bits = std::bit_cast<std::uint64_t>(number == 0 ? 0.0 : number);
  return (bits & kSign) != 0 ? ~bits : bits | kSign;
}

std::uint64_t orderedBits(std::int64_t time) {
  return static_cast<std::uint64_t>(time) ^ (std::uint64_t{1} << 63);
}

// The first eight bytes of a text as an integer in the order of the text.
std::uint64_t prefixOf(std::string_view text) {
  std::uint64_t prefix = 0;
  for (std::size_t i = 0; i < 8; ++i) {
    prefix = prefix << 8 | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0U);
  }
  return prefix;
}

struct PrefixedText {
  std::uint64_t prefix;
  std::uint32_t id;
};

// By text id the rank of the text. Id 0, no text, ranks like the empty text.
KeyRanks rankTexts(const TextPool& pool) {
  std::vector<PrefixedText> order(pool.size());
  for (std::uint32_t id = 0; id < pool.size(); ++id) {
    order[id] = {prefixOf(pool.text(id)), id};
  }
  std::sort(order.begin(), order.end(), [&pool](const PrefixedText& a, const PrefixedText& b) {
    return a.prefix != b.prefix ? a.prefix < b.prefix : pool.text(a.id) < pool.text(b.id);
  });
  KeyRanks result;
  result.ranks.resize(order.size());
  std::uint32_t rank = 0;
  for (std::size_t i = 0; i < order.size(); ++i) {
    rank += i > 0 && pool.text(order[i].id) != pool.text(order[i - 1].id) ? 1 : 0;
    result.ranks[order[i].id] = rank;
  }
  result.count = std::uint64_t{rank} + 1;
  return result;
}

// A set of distinct 64-bit keys, numbered in the order of arrival.
class KeySet {
 public:
  std::uint32_t add(std::uint64_t key) {
    if ((keys_.size() + 1) * 2 > slots_.size()) {
      grow();
    }
    std::uint32_t& slot = slots_[slotOf(key)];
    if (slot == kFree) {
      slot = static_cast<std::uint32_t>(keys_.size());
      keys_.push_back(key);
    }
    return slot;
  }
  const std::vector<std::uint64_t>& keys() const { return keys_; }

 private:
  static constexpr std::uint32_t kFree = 0xffffffff;

  std::size_t slotOf(std::uint64_t key) const {
    const std::size_t mask = slots_.size() - 1;
    const std::uint64_t hash = key * 0x9e37'79b9'7f4a'7c15;
    std::size_t at = (hash ^ hash >> 32) & mask;
    while (slots_[at] != kFree && keys_[slots_[at]] != key) {
      at = (at + 1) & mask;
    }
    return at;
  }

  void grow() {
    slots_.assign(std::max<std::size_t>(slots_.size() * 2, 64), kFree);
    for (std::uint32_t i = 0; i < keys_.size(); ++i) {
      slots_[slotOf(keys_[i])] = i;
    }
  }

  std::vector<std::uint64_t> keys_;
  std::vector<std::uint32_t> slots_;
};

// Ranks the keys without gaps: distinct keys are found by hashing, and only those are sorted.
template <typename KeyAt>
KeyRanks rankDistinct(std::size_t count, KeyAt keyAt) {
  KeySet set;
  KeyRanks result;
  result.ranks.resize(count);
  for (std::size_t i = 0; i < count; ++i) {
    result.ranks[i] = set.add(keyAt(i));
  }
  std::vector<std::uint32_t> order(set.keys().size());
  std::iota(order.begin(), order.end(), 0U);
  std::sort(order.begin(), order.end(),
            [&set](std::uint32_t a, std::uint32_t b) { return set.keys()[a] < set.keys()[b]; });
  std::vector<std::uint32_t> rankOf(order.size());
  for (std::uint32_t rank = 0; rank < order.size(); ++rank) {
    rankOf[order[rank]] = rank;
  }
  for (std::uint32_t& rank : result.ranks) {
    rank = rankOf[rank];
  }
  result.count = std::max<std::uint64_t>(order.size(), 1);
  return result;
}

// Makes `rankAt(tuple)`, which stays below `count`, the next deciding key.
template <typename RankAt>
void appendKey(KeyRanks& keys, std::uint64_t count, RankAt rankAt) {
  const std::size_t tuples = keys.ranks.size();
  if (keys.count * count <= kMaxRankCount) {
    const auto factor = static_cast<std::uint32_t>(count);
    for (std::size_t i = 0; i < tuples; ++i) {
      keys.ranks[i] = keys.ranks[i] * factor + rankAt(i);
    }
    keys.count *= count;
    return;
  }
  keys = rankDistinct(
      tuples, [&](std::size_t i) { return std::uint64_t{keys.ranks[i]} << 32 | rankAt(i); });
}

void appendField(KeyRanks& keys, const Table& table, int index) {
  const FieldDef& field = table.field(index);
  const auto cellAt = [&table, index](std::size_t i) { return table.cell(i, index); };
  switch (field.type) {
    case FieldType::String: {
      const KeyRanks texts = rankTexts(field.texts);
      appendKey(keys, texts.count, [&](std::size_t i) { return texts.ranks[cellAt(i).text]; });
      return;
    }
    case FieldType::Boolean:
      appendKey(keys, 2, [&](std::size_t i) { return cellAt(i).boolean ? 1U : 0U; });
      return;
    case FieldType::Period:
      appendKey(keys, static_cast<std::uint64_t>(std::max(field.periodNames.size(), 1)),
                [&](std::size_t i) { return static_cast<std::uint32_t>(cellAt(i).period); });
      return;
    case FieldType::Number:
    case FieldType::Expression: {
      const KeyRanks numbers = rankDistinct(
          table.tupleCount, [&](std::size_t i) { return orderedBits(numberOf(cellAt(i))); });
      appendKey(keys, numbers.count, [&](std::size_t i) { return numbers.ranks[i]; });
      return;
    }
    case FieldType::Date: {
      const KeyRanks times = rankDistinct(
          table.tupleCount, [&](std::size_t i) { return orderedBits(cellAt(i).time); });
      appendKey(keys, times.count, [&](std::size_t i) { return times.ranks[i]; });
      return;
    }
    case FieldType::Unset:
      return;  // Values without a type compare equal.
  }
}

// Ranks without gaps, by marking those that occur.
std::vector<std::uint32_t> numberOccurring(const KeyRanks& keys, const std::vector<bool>& included,
                                           std::uint32_t& groups) {
  std::vector<std::uint32_t> number(keys.count, 0);
  for (std::size_t i = 0; i < keys.ranks.size(); ++i) {
    if (included.empty() || included[i]) {
      number[keys.ranks[i]] = 1;
    }
  }
  groups = 0;
  for (std::uint32_t& entry : number) {
    const std::uint32_t occurs = entry;
    entry = groups;
    groups += occurs;
  }
  return number;
}

constexpr unsigned kDigitBits = 11;
constexpr std::size_t kDigits = std::size_t{1} << kDigitBits;

// One pass of a radix sort: stable by the digit of the rank, which stands in the upper half.
void sortByDigit(const std::vector<std::uint64_t>& from, std::vector<std::uint64_t>& to,
                 unsigned shift) {
  std::vector<std::uint32_t> next(kDigits + 1, 0);
  const auto digit = [shift](std::uint64_t entry) {
    return static_cast<std::size_t>(entry >> (32 + shift)) & (kDigits - 1);
  };
  for (const std::uint64_t entry : from) {
    ++next[digit(entry) + 1];
  }
  std::partial_sum(next.begin(), next.end(), next.begin());
  for (const std::uint64_t entry : from) {
    to[next[digit(entry)]++] = entry;
  }
}

}  // namespace

KeyRanks rankTuples(const Table& table, std::span<const int> fields) {
  KeyRanks keys;
  keys.ranks.assign(table.tupleCount, 0);
  for (const int field : fields) {
    if (field != kNoField) {
      appendField(keys, table, field);
    }
  }
  return keys;
}

std::vector<std::uint32_t> sortedOrder(const KeyRanks& keys) {
  std::vector<std::uint64_t> entries(keys.ranks.size());
  for (std::size_t i = 0; i < entries.size(); ++i) {
    entries[i] = std::uint64_t{keys.ranks[i]} << 32 | i;
  }
  std::vector<std::uint64_t> sorted(entries.size());
  const auto bits = static_cast<unsigned>(std::bit_width(keys.count - 1));
  for (unsigned shift = 0; shift < bits; shift += kDigitBits) {
    sortByDigit(entries, sorted, shift);
    entries.swap(sorted);
  }
  std::vector<std::uint32_t> order(entries.size());
  std::transform(entries.begin(), entries.end(), order.begin(),
                 [](std::uint64_t entry) { return static_cast<std::uint32_t>(entry); });
  return order;
}

KeyGroups groupTuples(const Table& table, std::span<const int> fields,
                      const std::vector<bool>& included) {
  KeyRanks keys = rankTuples(table, fields);
  const std::uint64_t fewRanks = std::max<std::uint64_t>(2 * table.tupleCount, 1 << 16);
  if (keys.count > fewRanks) {
    keys = rankDistinct(table.tupleCount, [&keys](std::size_t i) { return keys.ranks[i]; });
  }
  std::uint32_t count = 0;
  const std::vector<std::uint32_t> number = numberOccurring(keys, included, count);
  KeyGroups groups;
  groups.representative.resize(count);
  groups.groupOf = std::move(keys.ranks);
  for (std::uint32_t i = 0; i < groups.groupOf.size(); ++i) {
    std::uint32_t& group = groups.groupOf[i];
    if (included.empty() || included[i]) {
      group = number[group];
      groups.representative[group] = i;
    } else {
      group = kNoGroup;
    }
  }
  return groups;
}

}  // namespace vrel
