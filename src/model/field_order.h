// Taking fields from one place to another on the axes over which the report is laid out.
#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "model/report_view.h"

namespace vrel {

/// The axes of the layout as the user goes through them: label columns, page tabs, headings.
inline constexpr std::array<Axis, 3> kLayoutAxes = {Axis::X, Axis::Z, Axis::Y};

/// A place in the list of an axis.
struct LayoutPlace {
  Axis axis = Axis::X;
  std::size_t index = 0;

  bool operator==(const LayoutPlace&) const = default;
};

/// Where a field stands on the axes of the layout; nothing when it stands on none of them.
std::optional<LayoutPlace> placeInLayout(const ReportView& view, int field);

/// Where a field stands once it was put in front of the one that stands at a place now, or at the
/// end of the list when none does. Nothing when that changes nothing, or when the field or the axis
/// is none of the layout.
std::optional<LayoutPlace> placeAfterMove(const ReportView& view, int field, LayoutPlace before);

/// Takes a field there. Returns whether anything changed.
bool moveField(ReportView& view, int field, LayoutPlace before);

/// Up and down are within a list; back and on lead to the axes beside it.
enum class FieldStep { Up, Down, Back, On };

/// The place that `moveField` takes for one step: the next one within the list, or on the axis
/// beside it the same place as far as its list reaches. Nothing where there is no such step.
std::optional<LayoutPlace> placeOfStep(const ReportView& view, int field, FieldStep step);

}  // namespace vrel
