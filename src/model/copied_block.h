// What was copied from the report: a block of texts, where it stood, and its form on the clipboard,
// by which it goes to and comes from spreadsheet programs.
//
// On the clipboard texts are separated by tabs and rows are ended by line feeds. A text that holds
// a tab, a line end or a double quote stands in double quotes, with its own ones doubled.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/format_settings.h"
#include "model/report_grid.h"

namespace vrel {

/// Texts in rows, which may differ in length. There is no allocation per text.
class TextBlock {
 public:
  /// Adds a text to the last row, which `endRow` ends.
  void addText(std::string_view text);
  void endRow();

  std::size_t rows() const { return rowEnds_.size(); }
  /// Of the longest row.
  std::size_t columns() const { return columns_; }
  /// Of one row.
  std::size_t columns(std::size_t row) const { return rowEnds_[row] - rowStart(row); }
  /// Nothing where the row ends before the column, and behind the last row.
  std::optional<std::string_view> text(std::size_t row, std::size_t column) const;
  /// What the texts take, about.
  std::size_t memory() const { return bytes_.size() + textEnds_.size() * sizeof(std::size_t); }

 private:
  std::size_t rowStart(std::size_t row) const { return row == 0 ? 0 : rowEnds_[row - 1]; }

  std::string bytes_;
  // By text: where it ends in `bytes_`.
  std::vector<std::size_t> textEnds_;
  // By row: where it ends among the texts.
  std::vector<std::size_t> rowEnds_;
  std::size_t columns_ = 0;
};

/// The cells that were copied; columns are those of the report, label columns counted.
struct CopiedRegion {
  /// In place of a count of columns: whole rows; in place of a count of rows: whole columns.
  static constexpr std::int64_t kWhole = -1;

  std::int64_t firstRow = 0;
  std::int64_t firstColumn = 0;
  std::int64_t rows = 0;
  std::int64_t columns = 0;

  bool hasWholeRows() const { return columns == kWhole; }
  bool hasWholeColumns() const { return rows == kWhole; }
  bool operator==(const CopiedRegion&) const = default;
};

struct CopiedBlock {
  CopiedRegion region;
  TextBlock texts;
  /// How many texts at the beginning of each row are labels; these are not pasted.
  std::size_t labelColumns = 0;

  std::size_t rows() const { return texts.rows(); }
  /// The labels not counted.
  std::size_t columns() const { return texts.columns() - labelColumns; }
};

/// Copies the shown texts of a region of the grid. Whole rows have their labels in front, for the
/// eye and for spreadsheets; whole columns are copied from the first row on.
CopiedBlock copyRegion(const ReportGrid& grid, const FormatSettings& settings,
                       const CopiedRegion& region);

enum class CopyOutcome { Copied, Cancelled, TooLarge };

/// How much of a large region is copied, and who is told about it.
struct CopyLimits {
  /// Told now and then how many of the rows are done; copying stops when it returns false.
  std::function<bool(std::size_t rowsDone, std::size_t rows)> progress = {};
  /// Texts that take more are too many: on its way to another program a block takes several times
  /// its memory.
  std::size_t memory = std::size_t{512} << 20;
};

/// The same within limits. The block is complete only when the outcome is `Copied`.
CopyOutcome copyRegion(const ReportGrid& grid, const FormatSettings& settings,
                       const CopiedRegion& region, const CopyLimits& limits, CopiedBlock& block);

/// The block's texts, labels included, as the clipboard takes them. A lone text has no line end,
/// so that it can be pasted within a line.
std::string clipboardText(const CopiedBlock& block);

/// The block that a clipboard's text stands for, whoever put it there: lines may end in CR LF, the
/// last one may lack its end, rows may differ in length. A double quote that opens no quoted text
/// stands for itself. The empty text is a block without rows.
CopiedBlock blockFromClipboard(std::string_view text);

}  // namespace vrel
