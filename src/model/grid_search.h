// Looking for a text among the shown texts of a report, labels and data, regardless of case as
// `foldCase` sees it.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string_view>

#include "model/format_settings.h"
#include "model/grid_area.h"
#include "model/report_grid.h"

namespace vrel {

enum class SearchOutcome { Found, NotFound, Cancelled };

struct SearchResult {
  SearchOutcome outcome = SearchOutcome::NotFound;
  /// Where the text was found.
  GridPlace place = {};
  /// The search went on at the other end of the report before it found the text.
  bool wrapped = false;
};

/// Told now and then how many of the rows are done; the search stops when it returns false.
using SearchProgress = std::function<bool(std::size_t rowsDone, std::size_t rows)>;

/// The next cell behind `from` whose text contains `text`, row by row, from the first cell on
/// without a `from`. After the last cell the search goes on with the first; `from` itself is looked
/// at last. An empty text is found nowhere.
SearchResult findNext(const ReportGrid& grid, const FormatSettings& settings, std::string_view text,
                      std::optional<GridPlace> from, const SearchProgress& progress = {});

/// The same the other way: back from `from`, or from the last cell.
SearchResult findPrevious(const ReportGrid& grid, const FormatSettings& settings,
                          std::string_view text, std::optional<GridPlace> from,
                          const SearchProgress& progress = {});

}  // namespace vrel
