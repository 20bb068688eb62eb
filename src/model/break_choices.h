// What can be chosen for a break, and what keeps a break from showing.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "base/notice.h"
#include "model/report_view.h"

namespace vrel {

/// A number of changes that can be chosen, under a text that is to be translated.
struct BreakChoice {
  std::int32_t code;
  const char* text;
};

/// What `BreakDefinition::frequency` can be, in the order in which it is offered.
std::span<const BreakChoice> frequencyChoices();
/// The same for `BreakDefinition::firstBreak`.
std::span<const BreakChoice> firstBreakChoices();
/// All operations, in the order in which they are offered.
std::span<const BreakOperation> breakOperations();

/// The text of any frequency, also of one that is not offered.
std::string frequencyText(std::int32_t frequency, Notice& notice);
/// The text of any first break.
std::string firstBreakText(std::int32_t firstBreak, Notice& notice);

/// What a break computes for the view's data fields: "Plan: Sum, Seen: Avg".
std::string computedText(const ReportView& view, const BreakDefinition& definition, Notice& notice);

/// The breaks that concern the report, as positions among `ReportView::breaks`: those of the x axis
/// first, then those of the y axis, then those of all other keys by their fields. Several of one
/// field keep their order.
std::vector<std::size_t> listedBreaks(const ReportView& view);

/// Why a break shows no summaries; the first that there is in this order.
enum class BreakObstacle : std::uint8_t { None, NotOnAxis, Suspended, NeverDue, NothingComputed };
BreakObstacle obstacleOf(const ReportView& view, const BreakDefinition& definition);

/// Makes all breaks of a view active, or suspends them.
void setAllActive(ReportView& view, bool active);

}  // namespace vrel
