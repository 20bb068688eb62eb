// Tables of any size for measuring: the same shape and seed give the same bytes everywhere.
#pragma once

#include <cstdint>
#include <string>

#include "base/text_output.h"

namespace vrel::bench {

/// A plan: every item at every location in every period, its lines shuffled. Eight columns: three
/// keys, four numbers with two decimals, one boolean; about 54 bytes a line without notes.
struct PlanShape {
  std::uint32_t items = 100;
  std::uint32_t locations = 10;
  /// Names of periods must fit into one header line: at most 800.
  std::uint32_t periods = 24;
  /// A note for each of a line's values.
  bool notes = false;
  std::uint64_t seed = 1;
};

/// A sparse table: `tuples` lines spread evenly over the rows, each in a column of its own within
/// its row. The same columns as a plan, but for the period, which is a text here: so many columns
/// are no periods.
struct SparseShape {
  std::uint32_t rows = 100'000;
  std::uint32_t columns = 10'000;
  std::uint32_t tuples = 1'000'000;
  std::uint64_t seed = 1;
};

/// The least number of items for which a plan has that many tuples.
std::uint32_t itemsForTuples(std::uint64_t tuples);

void writePlan(const PlanShape& shape, TextOutput& output);
void writeSparse(const SparseShape& shape, TextOutput& output);

/// A view over either table: Item and Location down the rows, the third key across, the four
/// numbers as data, the boolean hidden.
void writeView(std::string_view thirdKey, TextOutput& output);

/// Names of the third key of the two tables.
inline constexpr std::string_view kPlanColumnField = "Period";
inline constexpr std::string_view kSparseColumnField = "Bucket";

}  // namespace vrel::bench
