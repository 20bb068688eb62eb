// What pasting a copied block does: which cells it reaches and which copied text each of them
// gets, or why it is refused.
//
// A plan is a few numbers, however many cells it reaches. Whether a cell may be changed is asked by
// the caller, cell by cell; the plan says which warning is due when one may not.
#pragma once

#include <optional>
#include <string_view>

#include "model/copied_block.h"
#include "model/grid_area.h"

namespace vrel {

/// Title of the boxes that show refusals and warnings.
inline constexpr std::string_view kPasteTitle = translatable("vrel", "QNT Error");

/// Where the user pastes.
struct PasteTarget {
  /// All data cells of the report; the label columns are none.
  GridArea dataCells;
  std::optional<GridArea> selection;
  GridPlace current;
};

struct PastePlan {
  /// Why nothing is pasted, to be translated and shown; empty when there is no reason.
  std::string_view refusal;
  /// The cells that are reached.
  GridArea area;
  /// The part of the copied texts that is repeated over the area; it may reach beyond them.
  GridArea source;
  /// The warning to close with, to be translated and shown, when a cell that gets a text was left
  /// as it is because it is read only.
  std::string_view skippedWarning;
};

/// Plans a paste. A selection that is just the current cell counts as none when more than one cell
/// was copied: a click selects the cell that it makes current. Without a selection the block's
/// first cell goes to the current cell, where whole rows begin in the first column and whole
/// columns in the first row. With a selection as high as copied whole rows each column gets what
/// was copied from the same column; likewise for whole columns.
PastePlan planPaste(const CopiedBlock& copied, const PasteTarget& target);

/// The text that a cell of the plan's area gets; nothing for a cell that stays as it is.
std::optional<std::string_view> pastedText(const PastePlan& plan, const CopiedBlock& copied,
                                           GridPlace place);

}  // namespace vrel
