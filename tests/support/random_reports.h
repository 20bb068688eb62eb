// Random reports for tests that compare with a computation cell by cell.
#pragma once

#include <random>

#include "model/report_grid.h"

namespace vrel::test {

/// A small sparse report of one z page with numbers, texts and flags, among them empty texts and
/// numbers that are undefined, errors or unbounded; in all layouts, with breaks on both axes.
class RandomReport {
 public:
  explicit RandomReport(std::mt19937& random);
  RandomReport(const RandomReport&) = delete;
  RandomReport& operator=(const RandomReport&) = delete;

  Table table;
  ReportView view;
  ReportGrid grid;
};

/// A number from 0 up to, not including, `end`.
std::size_t randomBelow(std::mt19937& random, std::size_t end);

/// A block of cells within another one, at least one cell in size.
GridArea randomAreaIn(std::mt19937& random, const GridArea& area);

}  // namespace vrel::test
