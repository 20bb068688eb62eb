// The texts that decide how wide a column must be.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "model/format_settings.h"
#include "model/report_grid.h"

namespace vrel {

/// The longest of the different texts that a column shows in all of its rows, at most `howMany`
/// of them, the longest first; the heading is not among them. Length is counted in characters:
/// which of these texts is widest is for the font to say.
std::vector<std::string> longestTexts(const ReportGrid& grid, const FormatSettings& settings,
                                      std::size_t column, std::size_t howMany);

}  // namespace vrel
