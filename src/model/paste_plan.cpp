#include "model/paste_plan.h"

namespace vrel {
namespace {

// Kept word for word, the missing "not" included.
constexpr std::string_view kRegionMismatch =
    translatable("vrel", "Region for pasting does match copied data region.");
constexpr std::string_view kColumnsOutside =
    translatable("vrel", "Column range is outside of table size.");
constexpr std::string_view kRowsOutside =
    translatable("vrel", "Row range is outside of table size.");
constexpr std::string_view kSelectedCellSkipped =
    translatable("vrel", "Selected cell in paste area is read only and has not been changed.");
constexpr std::string_view kCellsOfSelectionSkipped =
    translatable("vrel", "At least one cell in paste area is read only and has not been changed.");
constexpr std::string_view kPlacedCellsSkipped = translatable(
    "vrel", "One or more cells in paste area are read only and have not been changed.");

PastePlan refused(std::string_view reason) {
  return {.refusal = reason, .area = {}, .source = {}, .skippedWarning = {}};
}

// All copied texts but the labels.
GridArea sourceOf(const CopiedBlock& copied) {
  return {0, copied.labelColumns, copied.rows(), copied.columns()};
}

bool isOneCell(const GridArea& area) {
  return area.rows == 1 && area.columns == 1;
}

bool isEmpty(const GridArea& area) {
  return area.rows == 0 || area.columns == 0;
}

PastePlan planOverSelection(const CopiedBlock& copied, const PasteTarget& target) {
  const GridArea& area = *target.selection;
  PastePlan plan{.refusal = {},
                 .area = area,
                 .source = sourceOf(copied),
                 .skippedWarning = kCellsOfSelectionSkipped};
  if (isOneCell(area) && isOneCell(plan.source)) {
    plan.skippedWarning = kSelectedCellSkipped;
  }
  if (copied.region.hasWholeRows() && area.rows == plan.source.rows) {
    // Label columns in front of the data cells have no copied text: for them these unsigned places
    // lie far beyond the block.
    plan.source.firstColumn += area.firstColumn - target.dataCells.firstColumn;
    plan.source.columns = area.columns;
  } else if (copied.region.hasWholeColumns() && area.columns == plan.source.columns) {
    plan.source.firstRow += area.firstRow - target.dataCells.firstRow;
    plan.source.rows = area.rows;
  } else if (area.rows % plan.source.rows != 0 || area.columns % plan.source.columns != 0) {
    return refused(kRegionMismatch);
  }
  return plan;
}

PastePlan planAtCurrentCell(const CopiedBlock& copied, const PasteTarget& target) {
  const CopiedRegion& region = copied.region;
  const GridArea& cells = target.dataCells;
  const GridArea source = sourceOf(copied);
  const GridArea area{region.hasWholeColumns() ? cells.firstRow : target.current.row,
                      region.hasWholeRows() ? cells.firstColumn : target.current.column,
                      source.rows, source.columns};
  if (area.endColumn() > cells.endColumn()) {
    return refused(kColumnsOutside);
  }
  if (area.endRow() > cells.endRow()) {
    return refused(kRowsOutside);
  }
  return {.refusal = {}, .area = area, .source = source, .skippedWarning = kPlacedCellsSkipped};
}

// Whether the user chose cells to paste into, and did not just click on one.
bool hasSelection(const PasteTarget& target, const GridArea& source) {
  if (!target.selection || isEmpty(*target.selection)) {
    return false;
  }
  const bool justCurrent = isOneCell(*target.selection) && target.selection->holds(target.current);
  return !justCurrent || isOneCell(source);
}

}  // namespace

PastePlan planPaste(const CopiedBlock& copied, const PasteTarget& target) {
  const GridArea source = sourceOf(copied);
  if (isEmpty(source)) {
    return {};
  }
  return hasSelection(target, source) ? planOverSelection(copied, target)
                                      : planAtCurrentCell(copied, target);
}

std::optional<std::string_view> pastedText(const PastePlan& plan, const CopiedBlock& copied,
                                           GridPlace place) {
  const std::size_t row = (place.row - plan.area.firstRow) % plan.source.rows;
  const std::size_t column = (place.column - plan.area.firstColumn) % plan.source.columns;
  return copied.texts.text(plan.source.firstRow + row, plan.source.firstColumn + column);
}

}  // namespace vrel
