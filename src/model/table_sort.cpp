#include "model/table_sort.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

#include "model/key_ranks.h"

namespace vrel {
namespace {

// Lines ahead of the one being copied that are fetched while it is: the rows of an unsorted table
// stand all over memory.
constexpr std::size_t kPrefetchDistance = 12;

// Keeps the values of the tuples named by `order`, in that order; none stay none.
template <typename Value>
void arrange(std::vector<Value>& values, const std::vector<std::uint32_t>& order) {
  if (values.empty()) {
    return;
  }
  std::vector<Value> arranged(order.size());
  std::transform(order.begin(), order.end(), arranged.begin(),
                 [&values](std::uint32_t tuple) { return values[tuple]; });
  values = std::move(arranged);
}

// Keeps the tuples named by `order`, in that order. False, with the tuples as they were, when there
// is no memory for the copy.
bool arrangeTuples(Table& table, const std::vector<std::uint32_t>& order) {
  const std::size_t fields = table.fieldCount();
  CellBlock cells;
  Cell* to = cells.extend(order.size() * fields);
  if (to == nullptr) {
    return false;
  }
  for (std::size_t i = 0; i < order.size(); ++i) {
    if (i + kPrefetchDistance < order.size()) {
      __builtin_prefetch(table.tuple(order[i + kPrefetchDistance]));
    }
    std::memcpy(to + i * fields, table.tuple(order[i]), fields * sizeof(Cell));
  }
  table.cells = std::move(cells);
  arrange(table.notes, order);
  for (Highlights& column : table.highlights) {
    arrange(column.byTuple, order);
  }
  table.tupleCount = order.size();
  ++table.arrangement;
  return true;
}

void findDateColumn(Table& table) {
  if (table.dateColumn >= 0 && table.field(table.dateColumn).type == FieldType::Date) {
    return;
  }
  const auto date = std::find_if(table.fields.begin(), table.fields.end(),
                                 [](const FieldDef& f) { return f.type == FieldType::Date; });
  if (date != table.fields.end()) {
    table.dateColumn = static_cast<int>(date - table.fields.begin());
  }
  table.dateColumn = std::max(table.dateColumn, 0);
}

void buildKeyLists(Table& table) {
  table.groupKeys.clear();
  bool dateIsKey = false;
  for (int i = 0; i < static_cast<int>(table.fieldCount()); ++i) {
    if (!table.field(i).isKey()) {
      continue;
    }
    if (i == table.dateColumn) {
      dateIsKey = true;
    } else {
      table.groupKeys.push_back(i);
    }
  }
  table.sortKeys = table.groupKeys;
  if (dateIsKey) {
    table.sortKeys.push_back(table.dateColumn);
  }
}

// The last period of each series has no next one and so no length.
void rebuildPeriodLengths(Table& table) {
  clearComputedLengths(table.periodLengths);
  if (table.fields.empty() || table.field(table.dateColumn).type != FieldType::Date) {
    return;
  }
  for (std::size_t i = 0; i + 1 < table.tupleCount; ++i) {
    if (compareTuples(table, table.tuple(i), table.tuple(i + 1), table.groupKeys) >= 0) {
      const std::int64_t start = table.cell(i, table.dateColumn).time;
      const std::int64_t next = table.cell(i + 1, table.dateColumn).time;
      addComputedLength(table.periodLengths, start, next - start);
    }
  }
}

}  // namespace

void sortByKeys(Table& table, std::span<const int> keys) {
  if (table.sortedBy == std::vector<int>(keys.begin(), keys.end()) && !keys.empty()) {
    return;
  }
  const KeyRanks ranks = rankTuples(table, keys);
  if (std::is_sorted(ranks.ranks.begin(), ranks.ranks.end()) ||
      arrangeTuples(table, sortedOrder(ranks))) {
    table.sortedBy.assign(keys.begin(), keys.end());
  }
}

void sortTuples(Table& table) {
  findDateColumn(table);
  buildKeyLists(table);
  const bool standsSorted = table.sortedBy == table.sortKeys;
  if (standsSorted && !table.periodLengths.computed.empty()) {
    return;
  }
  sortByKeys(table, table.sortKeys);
  rebuildPeriodLengths(table);
}

std::optional<std::size_t> findTuple(const Table& table, const Cell* wanted,
                                     std::span<const int> keys) {
  std::size_t low = 0;
  std::size_t high = table.tupleCount;
  while (low < high) {
    const std::size_t middle = (low + high) / 2;
    const int order = compareTuples(table, wanted, table.tuple(middle), keys);
    if (order == 0) {
      return middle;
    }
    if (order < 0) {
      high = middle;
    } else {
      low = middle + 1;
    }
  }
  return std::nullopt;
}

bool removeDuplicateKeys(Table& table, std::span<const int> keys) {
  const KeyRanks ranks = rankTuples(table, keys);
  std::vector<std::uint32_t> order = sortedOrder(ranks);
  const auto last = std::unique(
      order.begin(), order.end(),
      [&ranks](std::uint32_t a, std::uint32_t b) { return ranks.ranks[a] == ranks.ranks[b]; });
  const bool dropped = last != order.end();
  order.erase(last, order.end());
  if (dropped || !std::is_sorted(order.begin(), order.end())) {
    if (!arrangeTuples(table, order)) {
      return true;
    }
  }
  table.sortedBy.assign(keys.begin(), keys.end());
  if (dropped) {
    clearComputedLengths(table.periodLengths);
  }
  table.aggregated = table.aggregated || dropped;
  return !dropped;
}

}  // namespace vrel
