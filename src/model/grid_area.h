// Blocks of cells of a report.
#pragma once

#include <cstddef>

namespace vrel {

/// A cell of the report grid, label columns counted.
struct GridPlace {
  std::size_t row = 0;
  std::size_t column = 0;

  bool operator==(const GridPlace&) const = default;
};

/// A block of cells of the report grid, label columns counted.
struct GridArea {
  std::size_t firstRow = 0;
  std::size_t firstColumn = 0;
  std::size_t rows = 0;
  std::size_t columns = 0;

  std::size_t endRow() const { return firstRow + rows; }
  std::size_t endColumn() const { return firstColumn + columns; }
  bool holds(GridPlace place) const {
    return place.row >= firstRow && place.row < endRow() && place.column >= firstColumn &&
           place.column < endColumn();
  }
  bool operator==(const GridArea&) const = default;
};

}  // namespace vrel
