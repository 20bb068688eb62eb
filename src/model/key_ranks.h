// Ranks: small integers that order tuples as their values would.
//
// Sorting and grouping compare these, never values: each column's distinct values are ranked once,
// and the ranks of several columns are combined into one integer per tuple.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "model/table.h"

namespace vrel {

/// One rank per tuple: equal ranks mean equal values, a smaller rank an earlier value. All ranks
/// are below `count`; some below it may not occur.
struct KeyRanks {
  std::vector<std::uint32_t> ranks;
  std::uint64_t count = 1;
};

/// Ranks of the tuples by several fields, the first deciding first. `kNoField` entries are
/// skipped; without any field all ranks are 0.
KeyRanks rankTuples(const Table& table, std::span<const int> fields);

/// Tuple positions in the order of their ranks; equal ranks keep their order.
std::vector<std::uint32_t> sortedOrder(const KeyRanks& keys);

/// The distinct combinations of some fields' values, in order.
struct KeyGroups {
  /// For each group a tuple that has its values.
  std::vector<std::uint32_t> representative;
  /// For each tuple its group.
  std::vector<std::uint32_t> groupOf;

  std::size_t size() const { return representative.size(); }
};

inline constexpr std::uint32_t kNoGroup = 0xffffffff;

/// Groups all tuples for which `included` is true (every tuple when it is empty); the others have
/// the group `kNoGroup`. Without any field there is one group, unless no tuple is included.
KeyGroups groupTuples(const Table& table, std::span<const int> fields,
                      const std::vector<bool>& included = {});

}  // namespace vrel
