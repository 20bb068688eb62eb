// Laying out: which tuple stands in which cell of the grid.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "model/key_ranks.h"
#include "model/report_grid.h"

namespace vrel {

/// Lays the view's current z page out; sorts the table first and brings `view.zIndex` into range.
ReportGrid layOut(ReportView& view);

/// Lays out page after page of one report. What the pages have in common is found once, so that
/// each page costs what stands on it and not what stands in the table.
class PageLayouts {
 public:
  /// Sorts the table first. The view outlives the object; neither its fields nor the table's keys
  /// change while the object lives.
  explicit PageLayouts(ReportView& view);

  /// The grid of a z page, as `layOut` makes it; the page becomes the view's current one.
  ReportGrid layOut(int zIndex);

 private:
  // The groups of one axis over all pages, and what they are numbered on the present one.
  struct AxisGroups {
    AxisGroups() = default;
    explicit AxisGroups(KeyGroups groups);

    // Numbers the groups that occur among these tuples, or all of them; returns for each a tuple
    // that has its values.
    std::vector<std::uint32_t> number(std::span<const std::uint32_t> tuples, bool withEmpty);

    KeyGroups all;
    std::vector<std::uint32_t> numbers;
    std::vector<std::uint32_t> occurring;
  };

  ReportView& view_;
  // Without cells.
  ReportGrid common_;
  AxisGroups rows_;
  AxisGroups columns_;
  // The tuples of page p are those from `pageStart_[p]` up to `pageStart_[p + 1]`, in table order.
  std::vector<std::uint32_t> tuples_;
  std::vector<std::uint32_t> pageStart_;
};

}  // namespace vrel
