#include "model/field_order.h"

#include <algorithm>

namespace vrel {
namespace {

std::optional<std::size_t> numberOfAxis(Axis axis) {
  const auto found = std::find(kLayoutAxes.begin(), kLayoutAxes.end(), axis);
  return found == kLayoutAxes.end()
             ? std::nullopt
             : std::optional(static_cast<std::size_t>(found - kLayoutAxes.begin()));
}

std::optional<LayoutPlace> placeWithin(const ReportView& view, LayoutPlace from, FieldStep step) {
  if (step == FieldStep::Up) {
    return from.index == 0 ? std::nullopt : std::optional(LayoutPlace{from.axis, from.index - 1});
  }
  // The field goes behind the next one, which is in front of the one after that.
  return from.index + 1 == view.axis(from.axis).size()
             ? std::nullopt
             : std::optional(LayoutPlace{from.axis, from.index + 2});
}

std::optional<LayoutPlace> placeBeside(const ReportView& view, LayoutPlace from, FieldStep step) {
  const std::size_t axis = *numberOfAxis(from.axis);
  const std::size_t last = kLayoutAxes.size() - 1;
  if (step == FieldStep::Back ? axis == 0 : axis == last) {
    return std::nullopt;
  }
  const Axis target = kLayoutAxes[step == FieldStep::Back ? axis - 1 : axis + 1];
  return LayoutPlace{target, std::min(from.index, view.axis(target).size())};
}

}  // namespace

std::optional<LayoutPlace> placeInLayout(const ReportView& view, int field) {
  for (const Axis axis : kLayoutAxes) {
    const std::vector<int>& fields = view.axis(axis);
    const auto found = std::find(fields.begin(), fields.end(), field);
    if (found != fields.end()) {
      return LayoutPlace{axis, static_cast<std::size_t>(found - fields.begin())};
    }
  }
  return std::nullopt;
}

std::optional<LayoutPlace> placeAfterMove(const ReportView& view, int field, LayoutPlace before) {
  const std::optional<LayoutPlace> from = placeInLayout(view, field);
  if (!from || !numberOfAxis(before.axis)) {
    return std::nullopt;
  }
  LayoutPlace place = {before.axis, std::min(before.index, view.axis(before.axis).size())};
  // Once the field is taken out, those behind it stand one place further up.
  if (from->axis == place.axis && from->index < place.index) {
    --place.index;
  }
  return place == *from ? std::nullopt : std::optional(place);
}

bool moveField(ReportView& view, int field, LayoutPlace before) {
  const std::optional<LayoutPlace> place = placeAfterMove(view, field, before);
  if (!place) {
    return false;
  }
  std::erase(view.axis(placeInLayout(view, field)->axis), field);
  std::vector<int>& target = view.axis(place->axis);
  target.insert(target.begin() + static_cast<std::ptrdiff_t>(place->index), field);
  return true;
}

std::optional<LayoutPlace> placeOfStep(const ReportView& view, int field, FieldStep step) {
  const std::optional<LayoutPlace> from = placeInLayout(view, field);
  if (!from) {
    return std::nullopt;
  }
  const bool within = step == FieldStep::Up || step == FieldStep::Down;
  return within ? placeWithin(view, *from, step) : placeBeside(view, *from, step);
}

}  // namespace vrel
