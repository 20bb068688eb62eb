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

// How the cells of one field are ranked.
struct FieldRanks {
  const FieldDef* field;
  std::size_t column;
  // By text for a field of texts, by tuple for numbers and dates; empty where the cell is its own
  // rank.
  KeyRanks ranks;

  std::uint32_t at(Cell cell, std::size_t tuple) const {
    switch (field->type) {
      case FieldType::String:
        return ranks.ranks[cell.text];
      case FieldType::Boolean:
        return cell.boolean ? 1 : 0;
      case FieldType::Period:
        return static_cast<std::uint32_t>(cell.period);
      case FieldType::Unset:
        return 0;  // Values without a type compare equal.
      default:
        return ranks.ranks[tuple];
    }
  }
};

FieldRanks rankField(const Table& table, int index) {
  const FieldDef& field = table.field(index);
  FieldRanks result{&field, static_cast<std::size_t>(index), {}};
  switch (field.type) {
    case FieldType::String:
      result.ranks = rankTexts(field.texts);
      break;
    case FieldType::Boolean:
      result.ranks.count = 2;
      break;
    case FieldType::Period:
      result.ranks.count = static_cast<std::uint64_t>(std::max(field.periodNames.size(), 1));
      break;
    case FieldType::Number:
    case FieldType::Expression:
      result.ranks = rankDistinct(table.tupleCount, [&table, index](std::size_t i) {
        return orderedBits(numberOf(table.cell(i, index)));
      });
      break;
    case FieldType::Date:
      result.ranks = rankDistinct(table.tupleCount, [&table, index](std::size_t i) {
        return orderedBits(table.cell(i, index).time);
      });
      break;
    case FieldType::Unset:
      break;
  }
  return result;
}

// Makes the fields the next deciding keys, in one pass over the tuples. The ranks have room for
// all of them.
void appendFields(KeyRanks& keys, const Table& table, std::span<const FieldRanks> fields) {
  for (std::size_t i = 0; i < table.tupleCount; ++i) {
    const Cell* tuple = table.tuple(i);
    std::uint32_t rank = keys.ranks[i];
    for (const FieldRanks& field : fields) {
      rank =
          rank * static_cast<std::uint32_t>(field.ranks.count) + field.at(tuple[field.column], i);
    }
    keys.ranks[i] = rank;
  }
  for (const FieldRanks& field : fields) {
    keys.count *= field.ranks.count;
  }
}

// Makes a field the next deciding key whose ranks would not fit behind those so far: the
// combinations that occur are ranked anew.
void appendWideField(KeyRanks& keys, const Table& table, const FieldRanks& field) {
  keys = rankDistinct(table.tupleCount, [&](std::size_t i) {
    return std::uint64_t{keys.ranks[i]} << 32 | field.at(table.tuple(i)[field.column], i);
  });
}

// How many of the fields fit behind the ranks so far.
std::size_t countFitting(const KeyRanks& keys, std::span<const FieldRanks> fields) {
  std::uint64_t count = keys.count;
  std::size_t fitting = 0;
  while (fitting < fields.size() && count * fields[fitting].ranks.count <= kMaxRankCount) {
    count *= fields[fitting].ranks.count;
    ++fitting;
  }
  return fitting;
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
  std::vector<FieldRanks> ranked;
  for (const int field : fields) {
    if (field != kNoField) {
      ranked.push_back(rankField(table, field));
    }
  }
  KeyRanks keys;
  keys.ranks.assign(table.tupleCount, 0);
  std::span<const FieldRanks> left = ranked;
  while (!left.empty()) {
    const std::size_t fitting = countFitting(keys, left);
    if (fitting > 0) {
      appendFields(keys, table, left.first(fitting));
    } else {
      appendWideField(keys, table, left.front());
    }
    left = left.subspan(std::max<std::size_t>(fitting, 1));
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
