#include "model/longest_texts.h"

#include <algorithm>
#include <string_view>

#include "base/utf8.h"
#include "model/cell_texts.h"

namespace vrel {
namespace {

// Keeps the longest of the texts that it is shown; of equally long ones the first.
class Longest {
 public:
  explicit Longest(std::size_t howMany) : howMany_(howMany) {}

  void add(std::string_view text) {
    const bool isFull = kept_.size() == howMany_;
    // Most texts fall at the first glance: a text has no more characters than bytes.
    if (text.empty() || (isFull && text.size() <= shortest())) {
      return;
    }
    const std::size_t length = characterCount(text);
    if ((isFull && length <= shortest()) || isKept(text)) {
      return;
    }
    if (isFull) {
      kept_.pop_back();
    }
    const auto place =
        std::upper_bound(kept_.begin(), kept_.end(), length,
                         [](std::size_t wanted, const Kept& each) { return wanted > each.length; });
    kept_.insert(place, {length, std::string(text)});
  }

  std::vector<std::string> texts() const {
    std::vector<std::string> texts;
    for (const Kept& each : kept_) {
      texts.push_back(each.text);
    }
    return texts;
  }

 private:
  struct Kept {
    std::size_t length;
    std::string text;
  };

  std::size_t shortest() const { return kept_.back().length; }
  bool isKept(std::string_view text) const {
    return std::any_of(kept_.begin(), kept_.end(),
                       [text](const Kept& each) { return each.text == text; });
  }

  std::size_t howMany_;
  // The longest first.
  std::vector<Kept> kept_;
};

}  // namespace

std::vector<std::string> longestTexts(const ReportGrid& grid, const FormatSettings& settings,
                                      std::size_t column, std::size_t howMany) {
  if (howMany == 0) {
    return {};
  }
  Longest longest(howMany);
  CellTexts texts(grid, settings);
  std::vector<RowCell> cells;
  for (std::size_t row = 0; row < grid.rows; ++row) {
    if (column < grid.labelColumns) {
      longest.add(texts.label(row, column));
      continue;
    }
    findRowCells(grid, row, {column, column + 1}, cells);
    for (const RowCell& cell : cells) {
      longest.add(texts.text(cell));
    }
  }
  return longest.texts();
}

}  // namespace vrel
