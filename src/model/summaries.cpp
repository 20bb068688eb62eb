#include "model/summaries.h"

#include <algorithm>
#include <numeric>
#include <tuple>

#include "model/field_value.h"

namespace vrel {
namespace {

// Collects the numbers of one range of rows after the other.
class RangeCollector {
 public:
  RangeCollector(const PlainCells& cells, const AxisBreak& operations, std::size_t keyCount)
      : tuples_(cells.table.cells.data()),
        fields_(cells.table.fieldCount()),
        resultOf_(keyCount, 0) {
    numbers_.start.push_back(0);
    numbers_.placeOf.assign(cells.dataFields.size(), SummaryNumbers::kNoNumber);
    for (const std::size_t data : operations.computed) {
      const int field = cells.dataFields[data];
      if (cells.table.field(field).hasNumbers()) {
        numbers_.placeOf[data] = computed_.size();
        computed_.push_back(
            {static_cast<std::size_t>(field), &arithmeticOf(operations.operations[data])});
      }
    }
    numbers_.width = computed_.size();
    onlyAdds_ = std::all_of(computed_.begin(), computed_.end(),
                            [](const Computed& one) { return one.arithmetic->step == addBounded; });
  }

  bool hasNothingToCompute() const { return computed_.empty(); }

  /// Adds cells that belong to one key, in their order.
  void add(std::uint32_t key, std::span<const GridEntry> entries) {
    const std::size_t index = resultFor(key);
    std::uint32_t& count = results_[index].count;
    double* const numbers = running_.data() + index * computed_.size();
    if (onlyAdds_) {
      addToTotals(numbers, entries);
    } else {
      takeSteps(numbers, entries, count);
    }
    count += static_cast<std::uint32_t>(entries.size());
  }

  /// Has a tuple's cells brought from memory while other work is done.
  void fetch(std::uint32_t tuple) const {
    for (const Computed& one : computed_) {
      __builtin_prefetch(tuples_ + tuple * fields_ + one.field);
    }
  }

  void endRange() {
    sortResults();
    for (const std::uint32_t index : order_) {
      const KeyResult& result = results_[index];
      numbers_.keys.push_back(result.key);
      const double* running = running_.data() + index * computed_.size();
      for (const Computed& one : computed_) {
        numbers_.numbers.push_back(one.arithmetic->finish(*running++, result.count));
      }
    }
    numbers_.start.push_back(static_cast<std::uint32_t>(numbers_.keys.size()));
    results_.clear();
    running_.clear();
  }

  const SummaryNumbers& ranges() const { return numbers_; }
  SummaryNumbers take() { return std::move(numbers_); }
  /// Drops the ranges that have ended; the memory is used again.
  void dropRanges() {
    numbers_.start.resize(1);
    numbers_.keys.clear();
    numbers_.numbers.clear();
  }

 private:
  struct Computed {
    std::size_t field;
    const BreakArithmetic* arithmetic;
  };
  struct KeyResult {
    std::uint32_t key;
    std::uint32_t count;
  };

  void takeSteps(double* numbers, std::span<const GridEntry> entries, std::uint32_t before) const {
    for (const GridEntry& entry : entries) {
      const Cell* const cells = tuples_ + entry.tuple * fields_;
      for (std::size_t i = 0; i < computed_.size(); ++i) {
        numbers[i] =
            computed_[i].arithmetic->step(numbers[i], numberOf(cells[computed_[i].field]), before);
      }
      ++before;
    }
  }

  static double totalWith(double total, Cell cell) {
    // An undefined number, which counts as 0, is below nothing.
    return total < kUnbounded && cell.number < kUnbounded ? total + cell.number
                                                          : addBounded(total, numberOf(cell), 0);
  }

  // Totals are what reports mostly have: a call for each number of each cell, and memory for what
  // they come to so far, would take several times as long as adding them.
  void addToTotals(double* numbers, std::span<const GridEntry> entries) const {
    for (std::size_t i = 0; i < computed_.size(); ++i) {
      const Cell* const column = tuples_ + computed_[i].field;
      double total = numbers[i];
      for (const GridEntry& entry : entries) {
        total = totalWith(total, column[entry.tuple * fields_]);
      }
      numbers[i] = total;
    }
  }

  // Where the range's result for a key stands; a new one starts as its operations say.
  std::size_t resultFor(std::uint32_t key) {
    // What an earlier range left here is recognised by its not pointing back to the key.
    const std::uint32_t known = resultOf_[key];
    if (known < results_.size() && results_[known].key == key) {
      return known;
    }
    resultOf_[key] = static_cast<std::uint32_t>(results_.size());
    results_.push_back({key, 0});
    for (const Computed& one : computed_) {
      running_.push_back(one.arithmetic->start);
    }
    return results_.size() - 1;
  }

  void sortResults() {
    order_.resize(results_.size());
    std::iota(order_.begin(), order_.end(), 0U);
    const auto byKey = [this](std::uint32_t a, std::uint32_t b) {
      return results_[a].key < results_[b].key;
    };
    if (!std::is_sorted(order_.begin(), order_.end(), byKey)) {
      std::sort(order_.begin(), order_.end(), byKey);
    }
  }

  const Cell* tuples_;
  std::size_t fields_;
  std::vector<Computed> computed_;
  // All operations are sums or averages.
  bool onlyAdds_ = false;
  std::vector<KeyResult> results_;
  // The numbers so far, as many per result as are computed.
  std::vector<double> running_;
  std::vector<std::uint32_t> resultOf_;
  std::vector<std::uint32_t> order_;
  SummaryNumbers numbers_;
};

// Entries that are added at once: few enough for their cells to stay at hand while one number after
// the other is computed of them.
constexpr std::size_t kLongestRun = 256;

// Calls `visit` with each key of the entries' columns and the neighbouring entries that share it.
template <typename Visit>
void forEachRun(std::span<const GridEntry> entries, std::span<const std::uint32_t> keyOfColumn,
                Visit visit) {
  for (std::size_t first = 0; first < entries.size();) {
    const std::uint32_t key = keyOfColumn[entries[first].columnGroup];
    const std::size_t end = std::min(first + kLongestRun, entries.size());
    std::size_t last = first + 1;
    while (last < end && keyOfColumn[entries[last].columnGroup] == key) {
      ++last;
    }
    visit(key, entries.subspan(first, last - first));
    first = last;
  }
}

// The entries of some rows.
std::span<const GridEntry> entriesOf(const PlainCells& cells, std::uint32_t firstRow,
                                     std::uint32_t endRow) {
  return cells.entries.first(cells.rowStart[endRow]).subspan(cells.rowStart[firstRow]);
}

// By group the summary of one break that covers it.
std::vector<std::uint32_t> coveringTurns(const AxisBreak& one) {
  std::vector<std::uint32_t> turns;
  for (std::uint32_t turn = 0; turn < one.ends.size(); ++turn) {
    turns.resize(one.ends[turn], turn);
  }
  return turns;
}

std::vector<std::uint32_t> countedFrom(std::uint32_t first, std::size_t count) {
  std::vector<std::uint32_t> numbers(count);
  std::iota(numbers.begin(), numbers.end(), first);
  return numbers;
}

// One kind of summaries: ranges of rows by their ends, columns by the keys to which their groups
// belong.
struct SummaryKind {
  const AxisBreak& operations;
  std::span<const std::uint32_t> rangeEnds;
  std::span<const std::uint32_t> keyOfColumn;
};

SummaryNumbers collect(const PlainCells& cells, const SummaryKind& kind) {
  RangeCollector collector(cells, kind.operations, kind.keyOfColumn.size());
  if (collector.hasNothingToCompute()) {
    return collector.take();
  }
  const auto add = [&collector](std::uint32_t key, std::span<const GridEntry> entries) {
    collector.add(key, entries);
  };
  std::uint32_t row = 0;
  for (const std::uint32_t end : kind.rangeEnds) {
    forEachRun(entriesOf(cells, row, end), kind.keyOfColumn, add);
    collector.endRange();
    row = end;
  }
  return collector.take();
}

// A number of a summary, by its range and its key.
struct RangeKey {
  std::uint32_t range;
  std::uint32_t key;

  bool operator==(const RangeKey&) const = default;
  bool operator<(const RangeKey& other) const {
    return std::tie(range, key) < std::tie(other.range, other.key);
  }
};

std::vector<RangeKey> affectedNumbers(const SummaryKind& kind,
                                      std::span<const GroupPlace> changed) {
  std::vector<RangeKey> affected;
  for (const GroupPlace& place : changed) {
    const auto end = std::upper_bound(kind.rangeEnds.begin(), kind.rangeEnds.end(), place.row);
    affected.push_back(
        {static_cast<std::uint32_t>(end - kind.rangeEnds.begin()), kind.keyOfColumn[place.column]});
  }
  std::sort(affected.begin(), affected.end());
  affected.erase(std::unique(affected.begin(), affected.end()), affected.end());
  return affected;
}

// Puts the numbers of the one range of `fresh` in the place of those of a range of `numbers`.
void replaceNumbers(SummaryNumbers& numbers, std::uint32_t range, const SummaryNumbers& fresh) {
  const std::span<const std::uint32_t> keys = numbers.keysOf(range);
  for (std::size_t i = 0; i < fresh.keys.size(); ++i) {
    const auto place = std::lower_bound(keys.begin(), keys.end(), fresh.keys[i]) - keys.begin();
    const std::size_t to = (numbers.start[range] + static_cast<std::size_t>(place)) * numbers.width;
    for (std::size_t one = 0; one < numbers.width; ++one) {
      numbers.numbers[to + one] = fresh.numbers[i * numbers.width + one];
    }
  }
}

// Computes some keys of one kind's ranges anew, range after range.
class RangeRefresher {
 public:
  RangeRefresher(const PlainCells& cells, const SummaryKind& kind)
      : cells_(cells),
        kind_(kind),
        collector_(cells, kind.operations, kind.keyOfColumn.size()),
        isWanted_(kind.keyOfColumn.size()) {
    run_.reserve(kLongestRun);
  }

  // `wanted` names keys of one range.
  void refresh(SummaryNumbers& numbers, std::span<const RangeKey> wanted) {
    const std::uint32_t range = wanted.front().range;
    setWanted(wanted, true);
    collect(range);
    setWanted(wanted, false);
    replaceNumbers(numbers, range, collector_.ranges());
    collector_.dropRanges();
  }

 private:
  void setWanted(std::span<const RangeKey> keys, bool isWanted) {
    for (const RangeKey& one : keys) {
      isWanted_[one.key] = isWanted ? 1 : 0;
    }
  }

  void collect(std::uint32_t range) {
    const std::uint32_t firstRow = range == 0 ? 0 : kind_.rangeEnds[range - 1];
    for (const GridEntry& entry : entriesOf(cells_, firstRow, kind_.rangeEnds[range])) {
      const std::uint32_t key = kind_.keyOfColumn[entry.columnGroup];
      if (isWanted_[key] != 0) {
        take(key, entry);
      }
    }
    addRun();
    collector_.endRange();
  }

  // A single column's cells stand far from each other: all of a run are on their way before the
  // first one is looked at.
  void take(std::uint32_t key, const GridEntry& entry) {
    if (key != keyOfRun_ || run_.size() == kLongestRun) {
      addRun();
      keyOfRun_ = key;
    }
    if (run_.empty() || entry.tuple != run_.back().tuple + 1) {
      collector_.fetch(entry.tuple);
    }
    run_.push_back(entry);
  }

  void addRun() {
    if (!run_.empty()) {
      collector_.add(keyOfRun_, run_);
      run_.clear();
    }
  }

  const PlainCells& cells_;
  const SummaryKind& kind_;
  RangeCollector collector_;
  // By key.
  std::vector<std::uint8_t> isWanted_;
  // Entries of one key that are not added yet.
  std::vector<GridEntry> run_;
  std::uint32_t keyOfRun_ = 0;
};

void update(SummaryNumbers& numbers, const PlainCells& cells, const SummaryKind& kind,
            std::span<const GroupPlace> changed) {
  if (numbers.width == 0) {
    return;
  }
  const std::vector<RangeKey> affected = affectedNumbers(kind, changed);
  RangeRefresher refresher(cells, kind);
  for (auto first = affected.begin(); first != affected.end();) {
    const auto last = std::find_if(
        first, affected.end(), [first](const RangeKey& one) { return one.range != first->range; });
    refresher.refresh(numbers, {first, last});
    first = last;
  }
}

// Calls `visit` with each kind of summaries of a report, the list to which its numbers belong and
// their position in it.
template <typename Visit>
void forEachKind(Summaries& summaries, const PlainCells& cells, const AxisLines& rowLines,
                 const AxisLines& columnLines, Visit visit) {
  if (!rowLines.breaks.empty()) {
    const auto ownKeys = countedFrom(0, cells.columnGroups);
    std::size_t crossing = 0;
    for (std::size_t i = 0; i < rowLines.breaks.size(); ++i) {
      const AxisBreak& row = rowLines.breaks[i];
      visit(summaries.rows, i, SummaryKind{row, row.ends, ownKeys});
      for (const AxisBreak& column : columnLines.breaks) {
        visit(summaries.crossings, crossing++, SummaryKind{row, row.ends, coveringTurns(column)});
      }
    }
  }
  if (!columnLines.breaks.empty()) {
    const auto singleRows = countedFrom(1, cells.rowStart.size() - 1);
    for (std::size_t i = 0; i < columnLines.breaks.size(); ++i) {
      const AxisBreak& column = columnLines.breaks[i];
      visit(summaries.columns, i, SummaryKind{column, singleRows, coveringTurns(column)});
    }
  }
}

}  // namespace

std::optional<double> numberAt(const SummaryNumbers& numbers, std::size_t range, std::uint32_t key,
                               std::size_t data) {
  if (numbers.placeOf[data] == SummaryNumbers::kNoNumber) {
    return std::nullopt;
  }
  const std::span<const std::uint32_t> keys = numbers.keysOf(range);
  const auto found = std::lower_bound(keys.begin(), keys.end(), key);
  if (found == keys.end() || *found != key) {
    return std::nullopt;
  }
  return numbers.numberAt(static_cast<std::size_t>(&*found - numbers.keys.data()), data);
}

Summaries computeSummaries(const PlainCells& cells, const AxisLines& rowLines,
                           const AxisLines& columnLines) {
  Summaries summaries;
  forEachKind(summaries, cells, rowLines, columnLines,
              [&cells](std::vector<SummaryNumbers>& list, std::size_t, const SummaryKind& kind) {
                list.push_back(collect(cells, kind));
              });
  return summaries;
}

void updateSummaries(Summaries& summaries, const PlainCells& cells, const AxisLines& rowLines,
                     const AxisLines& columnLines, std::span<const GroupPlace> changed) {
  forEachKind(summaries, cells, rowLines, columnLines,
              [&](std::vector<SummaryNumbers>& list, std::size_t position,
                  const SummaryKind& kind) { update(list[position], cells, kind, changed); });
}

}  // namespace vrel
