#include "model/copied_block.h"

#include <algorithm>
#include <limits>

#include "model/cell_texts.h"
#include "model/grid_area.h"

namespace vrel {
namespace {

constexpr char kTab = '\t';
constexpr char kLineFeed = '\n';
constexpr char kQuote = '"';
constexpr std::string_view kCrLf = "\r\n";
// What a text must not hold outside quotes.
constexpr std::string_view kQuotedBytes = "\t\n\r\"";

// Memory that is filled between two signs of progress.
constexpr std::size_t kBytesPerSign = 1 << 20;

// The grid cells of a region; what lies outside the grid is left out.
GridArea areaOf(const ReportGrid& grid, const CopiedRegion& region) {
  GridArea area{0, 0, grid.rows, grid.columns};
  if (!region.hasWholeColumns()) {
    area.firstRow = std::min(static_cast<std::size_t>(region.firstRow), grid.rows);
    area.rows = std::min(static_cast<std::size_t>(region.rows), grid.rows - area.firstRow);
  }
  if (!region.hasWholeRows()) {
    area.firstColumn = std::min(static_cast<std::size_t>(region.firstColumn), grid.columns);
    area.columns =
        std::min(static_cast<std::size_t>(region.columns), grid.columns - area.firstColumn);
  }
  return area;
}

// Copies row after row; empty stretches of the grid cost next to nothing.
class RowCopier {
 public:
  RowCopier(const ReportGrid& grid, const FormatSettings& settings, const GridArea& area,
            TextBlock& texts)
      : grid_(grid), texts_(grid, settings), area_(area), block_(texts) {}

  void copy(std::size_t row) {
    std::size_t column = area_.firstColumn;
    for (; column < std::min(grid_.labelColumns, area_.endColumn()); ++column) {
      block_.addText(texts_.label(row, column));
    }
    findRowCells(grid_, row, {column, area_.endColumn()}, cells_);
    for (const RowCell& cell : cells_) {
      addEmptyTexts(cell.column - column);
      block_.addText(texts_.text(cell));
      column = cell.column + 1;
    }
    addEmptyTexts(area_.endColumn() - column);
    block_.endRow();
  }

 private:
  void addEmptyTexts(std::size_t count) {
    for (; count > 0; --count) {
      block_.addText({});
    }
  }

  const ReportGrid& grid_;
  CellTexts texts_;
  const GridArea area_;
  TextBlock& block_;
  std::vector<RowCell> cells_;
};

void appendText(std::string& clipboard, std::string_view text) {
  if (text.find_first_of(kQuotedBytes) == std::string_view::npos) {
    clipboard += text;
    return;
  }
  clipboard += kQuote;
  for (const char byte : text) {
    clipboard.append(byte == kQuote ? 2 : 1, byte);
  }
  clipboard += kQuote;
}

// Length of the line end with which a text begins; 0 when it begins with none.
std::size_t lineEndLength(std::string_view text) {
  if (text.starts_with(kCrLf)) {
    return kCrLf.size();
  }
  return text.starts_with(kLineFeed) ? 1 : 0;
}

bool endsText(std::string_view rest) {
  return rest.empty() || rest.front() == kTab || lineEndLength(rest) > 0;
}

// Length of the text up to the next tab or line end.
std::size_t plainLength(std::string_view rest) {
  const std::size_t end = std::min(rest.find_first_of("\t\n"), rest.size());
  const bool beforeLineFeed = end > 0 && end < rest.size() && rest[end] == kLineFeed;
  return beforeLineFeed && rest[end - 1] == '\r' ? end - 1 : end;
}

// Length of the quoted text with which `rest` begins, quotes included. Nothing when it begins with
// none: then a quote at its beginning is nothing but a quote.
std::optional<std::size_t> quotedLength(std::string_view rest) {
  if (!rest.starts_with(kQuote)) {
    return std::nullopt;
  }
  std::size_t at = rest.find(kQuote, 1);
  while (at != std::string_view::npos && rest.substr(at + 1).starts_with(kQuote)) {
    at = rest.find(kQuote, at + 2);
  }
  return at != std::string_view::npos && endsText(rest.substr(at + 1)) ? std::optional(at + 1)
                                                                       : std::nullopt;
}

std::string withSingleQuotes(std::string_view text) {
  std::string single;
  for (std::size_t i = 0; i < text.size(); ++i) {
    single += text[i];
    i += text[i] == kQuote ? 1 : 0;
  }
  return single;
}

// Takes a text off the front of `rest`.
void readText(std::string_view& rest, TextBlock& block) {
  if (const std::optional<std::size_t> quoted = quotedLength(rest)) {
    block.addText(withSingleQuotes(rest.substr(1, *quoted - 2)));
    rest.remove_prefix(*quoted);
    return;
  }
  const std::size_t length = plainLength(rest);
  block.addText(rest.substr(0, length));
  rest.remove_prefix(length);
}

void readRow(std::string_view& rest, TextBlock& block) {
  readText(rest, block);
  while (rest.starts_with(kTab)) {
    rest.remove_prefix(1);
    readText(rest, block);
  }
  block.endRow();
  rest.remove_prefix(lineEndLength(rest));
}

}  // namespace

void TextBlock::addText(std::string_view text) {
  bytes_ += text;
  textEnds_.push_back(bytes_.size());
}

void TextBlock::endRow() {
  rowEnds_.push_back(textEnds_.size());
  columns_ = std::max(columns_, columns(rows() - 1));
}

std::optional<std::string_view> TextBlock::text(std::size_t row, std::size_t column) const {
  if (row >= rows() || column >= columns(row)) {
    return std::nullopt;
  }
  const std::size_t index = rowStart(row) + column;
  const std::size_t start = index == 0 ? 0 : textEnds_[index - 1];
  return std::string_view(bytes_).substr(start, textEnds_[index] - start);
}

CopiedBlock copyRegion(const ReportGrid& grid, const FormatSettings& settings,
                       const CopiedRegion& region) {
  CopiedBlock block;
  copyRegion(grid, settings, region, {.memory = std::numeric_limits<std::size_t>::max()}, block);
  return block;
}

CopyOutcome copyRegion(const ReportGrid& grid, const FormatSettings& settings,
                       const CopiedRegion& region, const CopyLimits& limits, CopiedBlock& block) {
  block = CopiedBlock{.region = region, .texts = {}, .labelColumns = 0};
  const GridArea area = areaOf(grid, region);
  // Each text takes something, be it empty.
  if (area.columns > 0 && area.rows > limits.memory / sizeof(std::size_t) / area.columns) {
    return CopyOutcome::TooLarge;
  }
  RowCopier copier(grid, settings, area, block.texts);
  std::size_t sign = kBytesPerSign;
  for (std::size_t row = 0; row < area.rows; ++row) {
    copier.copy(area.firstRow + row);
    if (block.texts.memory() > limits.memory) {
      return CopyOutcome::TooLarge;
    }
    if (limits.progress && block.texts.memory() >= sign) {
      sign = block.texts.memory() + kBytesPerSign;
      if (!limits.progress(row + 1, area.rows)) {
        return CopyOutcome::Cancelled;
      }
    }
  }
  if (region.hasWholeRows() && area.rows > 0) {
    block.labelColumns = grid.labelColumns;
  }
  return CopyOutcome::Copied;
}

std::string clipboardText(const CopiedBlock& block) {
  const TextBlock& texts = block.texts;
  std::string clipboard;
  for (std::size_t row = 0; row < texts.rows(); ++row) {
    for (std::size_t column = 0; column < texts.columns(row); ++column) {
      if (column > 0) {
        clipboard += kTab;
      }
      appendText(clipboard, *texts.text(row, column));
    }
    clipboard += kLineFeed;
  }
  if (texts.rows() == 1 && texts.columns() == 1 && clipboard.size() > 1) {
    clipboard.pop_back();
  }
  return clipboard;
}

CopiedBlock blockFromClipboard(std::string_view text) {
  CopiedBlock block;
  while (!text.empty()) {
    readRow(text, block.texts);
  }
  block.region.rows = static_cast<std::int64_t>(block.texts.rows());
  block.region.columns = static_cast<std::int64_t>(block.texts.columns());
  return block;
}

}  // namespace vrel
