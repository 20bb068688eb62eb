// The pass that leaves one tuple for each place in the report.
#pragma once

#include "base/notice.h"
#include "base/paths.h"
#include "model/report_view.h"

namespace vrel {

/// Removes tuples that have the same values in the view's key fields as another one. While a window
/// is up, and the environment asks for it, a box warns when some were removed. Returns true when
/// none was.
bool removeDuplicateKeys(ReportView& view, const EnvironmentLookup& environment, Notice& notice);

}  // namespace vrel
