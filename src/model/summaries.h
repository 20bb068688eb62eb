// The numbers of summaries: what each break's operations make of the plain cells that a summary
// covers.
//
// All are computed at once, in passes over the plain cells, and kept as sparsely as these: a
// summary over cells that are all missing has no number.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "model/break_positions.h"
#include "model/grid_entry.h"

namespace vrel {

/// The plain cells of a report. The entries of row group g are `entries[rowStart[g]]` up to
/// `entries[rowStart[g + 1]]`, in the order of their column groups.
struct PlainCells {
  const Table& table;
  std::span<const int> dataFields;
  std::size_t columnGroups;
  std::span<const std::uint32_t> rowStart;
  std::span<const GridEntry> entries;
};

/// The numbers of all crossings of ranges of rows with keys, where a key is one column group or
/// one range of them. The keys of range r that have numbers are `keys[start[r]]` up to
/// `keys[start[r + 1]]`, in order.
struct SummaryNumbers {
  std::vector<std::uint32_t> start;
  std::vector<std::uint32_t> keys;
  /// `width` numbers per key.
  std::vector<double> numbers;
  std::size_t width = 0;
  /// By data field its place among a key's numbers; `kNoNumber` for one without.
  std::vector<std::size_t> placeOf;

  static constexpr std::size_t kNoNumber = static_cast<std::size_t>(-1);

  std::span<const std::uint32_t> keysOf(std::size_t range) const {
    return std::span(keys).subspan(start[range], start[range + 1] - start[range]);
  }
  /// The number of a data field by the position of its key in `keys`; `placeOf` must have one.
  double numberAt(std::size_t position, std::size_t data) const {
    return numbers[position * width + placeOf[data]];
  }
};

/// The number of one crossing; nothing when no cell contributes to it.
std::optional<double> numberAt(const SummaryNumbers& numbers, std::size_t range, std::uint32_t key,
                               std::size_t data);

struct Summaries {
  /// By break on the rows: ranges are its summaries, keys are column groups.
  std::vector<SummaryNumbers> rows;
  /// By break on the columns: ranges are row groups, keys are its summaries.
  std::vector<SummaryNumbers> columns;
  /// By break on the rows and then by break on the columns: the row break's operations over the
  /// block of cells that the summaries of both cover.
  std::vector<SummaryNumbers> crossings;
};

/// Computes the numbers of all summaries. Only fields of type number and expression contribute.
Summaries computeSummaries(const PlainCells& cells, const AxisLines& rowLines,
                           const AxisLines& columnLines);

/// Computes anew the numbers in which the cells at these places take part, each as
/// `computeSummaries` would.
void updateSummaries(Summaries& summaries, const PlainCells& cells, const AxisLines& rowLines,
                     const AxisLines& columnLines, std::span<const GroupPlace> changed);

}  // namespace vrel
