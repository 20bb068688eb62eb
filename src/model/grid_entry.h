// The sparse cells of a laid-out report.
#pragma once

#include <cstdint>

namespace vrel {

/// A tuple in its column group, within one row group.
struct GridEntry {
  std::uint32_t columnGroup;
  std::uint32_t tuple;
};

}  // namespace vrel
