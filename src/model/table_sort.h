// Order in the table: sorting, search by key, duplicate keys.
#pragma once

#include <cstddef>
#include <optional>
#include <span>

#include "model/table.h"

namespace vrel {

/// Puts the tuples in key order (the key fields in column order, the date column last) and
/// rebuilds the computed period lengths; does neither when they stand so already.
void sortTuples(Table& table);

/// Puts the tuples in the order of the given fields; tuples equal on all keep their order.
void sortByKeys(Table& table, std::span<const int> keys);

/// Position of a tuple whose values of the key fields equal those of `wanted` (one cell per table
/// field), by binary search; the tuples must stand in the order of `keys`.
std::optional<std::size_t> findTuple(const Table& table, const Cell* wanted,
                                     std::span<const int> keys);

/// Sorts by the given fields and keeps the first tuple of each run of equal keys. Returns true
/// when none was dropped; otherwise the table is marked as aggregated.
bool removeDuplicateKeys(Table& table, std::span<const int> keys);

}  // namespace vrel
