// Columns of formula fields that come and go under a view.
#pragma once

#include <span>

#include "model/report_view.h"

namespace vrel {

/// Gives the view's table other columns: column i of the new table is column `source[i]` of the old
/// one, or that of a new formula field when that is `kNoField`. Each old column is named at most
/// once, plain ones exactly once and in their order. The view's lists and breaks follow: fields
/// that are gone leave them, and there is one break for each field. New fields stand in no list
/// yet. False, with nothing changed, when memory runs out.
bool arrangeFields(ReportView& view, std::span<const int> source);

}  // namespace vrel
