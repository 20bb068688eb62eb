// Edits that can be taken back.
#pragma once

#include <cstdint>
#include <vector>

#include "expr/formula_context.h"

namespace vrel {

/// What one edit stored, in order.
struct EditStep {
  std::vector<CellChange> changes;
};

/// The edits of a session, as far as they can be taken back or done again.
struct EditHistory {
  /// The latest last.
  std::vector<EditStep> done;
  /// Those taken back, the earliest last.
  std::vector<EditStep> undone;
  /// `Table::arrangement` when they were noted: once the cells have moved, the steps are void.
  std::uint64_t arrangement = 0;
};

/// Forgets all steps.
void clear(EditHistory& history);

/// Adds a new edit; those taken back cannot be done again after it. The earliest steps are
/// forgotten where all together hold more changes than memory should be spent on.
void addStep(EditHistory& history, EditStep step);

}  // namespace vrel
