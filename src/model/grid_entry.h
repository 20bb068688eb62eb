// The sparse cells of a laid-out report.
#pragma once

#include <cstdint>

namespace vrel {

/// A tuple in its column group, within one row group.
struct GridEntry {
  std::uint32_t columnGroup;
  std::uint32_t tuple;
};

/// The row group and the column group whose cells show one tuple's values.
struct GroupPlace {
  std::uint32_t row;
  std::uint32_t column;

  bool operator==(const GroupPlace&) const = default;
};

}  // namespace vrel
