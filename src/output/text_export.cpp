#include "output/text_export.h"

#include <fmt/format.h>

#include <algorithm>

#include "model/row_cells.h"
#include "model/value_writer.h"

namespace vrel {
namespace {

constexpr const char* kCannotOpen = translatable("vrel", "Cannot open \"%1\"");

/// From this length on a text needs a point to count as a number; shorter ones may lack it.
constexpr std::size_t kLongNumber = 9;
/// Two decimals whatever the report's precision is.
constexpr std::string_view kZeroText = "0.00";

void writeInQuotes(TextPen& pen, std::string_view text) {
  pen.put('"');
  pen.write(text);
  pen.put('"');
}

/// The title, each of its lines in quotes of its own when quoting is on.
void writeTitle(std::string_view title, Quoting quoting, TextPen& pen) {
  if (quoting == Quoting::None) {
    pen.write(title);
  } else {
    pen.put('"');
    for (const char byte : title) {
      pen.write(byte == '\n' ? "\"\n\"" : std::string_view(&byte, 1));
    }
    pen.put('"');
  }
  pen.write("\n\n");
}

void writeLabelLine(const ReportGrid& grid, const FormatSettings& settings, TextPen& pen) {
  for (const int index : grid.xFields) {
    const FieldDef& field = grid.table->field(index);
    // A hidden field keeps its column: only its name is left out.
    pen.write(field.hidden ? std::string_view() : field.name);
    pen.write(field.name.empty() ? "\t\t" : "\t");
  }
  if (grid.hasDataNameColumn()) {
    pen.put('\t');
  }
  for (std::size_t column = grid.labelColumns; column < grid.columns; ++column) {
    pen.write(columnHeading(grid, settings, column));
    pen.put('\t');
  }
  pen.write("\n\n");
}

/// Writes the rows of a grid from its entries, so that empty stretches cost no search.
class BodyWriter {
 public:
  BodyWriter(const ReportGrid& grid, const FormatSettings& settings, Quoting quoting, TextPen& pen)
      : grid_(grid),
        rowsPerGroup_(grid.rowsPerGroup()),
        columnsPerGroup_(grid.columnsPerGroup()),
        hasSummaries_(!grid.rowLines.breaks.empty() || !grid.columnLines.breaks.empty()),
        settings_(settings),
        quoting_(quoting),
        pen_(pen) {
    FormatSettings plainSettings = settings;
    const PlainNumbers plain(plainSettings);
    for (const int field : grid.xFields) {
      labels_.emplace_back(grid.table->field(field), settings, Quoting::None);
    }
    for (const int field : grid.dataFields) {
      data_.emplace_back(grid.table->field(field), plainSettings, quoting);
    }
  }

  void write() {
    for (std::size_t row = 0; row < grid_.rows; ++row) {
      cellsPassed_ = 0;
      if (hasSummaries_) {
        writeAnyRow(row);
      } else {
        writePlainRow(row);
      }
      goTo(std::max(grid_.columns, std::size_t{1}) - 1);
      pen_.put('\n');
    }
  }

 private:
  /// Writes the tabs that lead to a column.
  void goTo(std::size_t column) {
    if (column == cellsPassed_ + 1) {
      pen_.put('\t');
    } else {
      pen_.fill('\t', column - cellsPassed_);
    }
    cellsPassed_ = column;
  }

  void writePlainRow(std::size_t row) {
    for (std::size_t column = 0; column < grid_.labelColumns; ++column) {
      goTo(column);
      writeLabel(row, column);
    }
    writeRowData(row);
  }

  /// The same in a report with summaries.
  void writeAnyRow(std::size_t row) {
    for (std::size_t column = 0; column < grid_.labelColumns; ++column) {
      goTo(column);
      writeAnyLabel(row, column);
    }
    writeAnyRowData(row);
  }

  void writeLabel(std::size_t row, std::size_t column) {
    if (column >= grid_.xFields.size()) {
      const int field = grid_.dataFields[row % rowsPerGroup_];
      writeShownText(pen_, grid_.table->field(field).name, CellPlace::Label, quoting_);
    } else if (const std::optional<CellRef> label = labelAt(grid_, row, column)) {
      const Cell cell = grid_.table->cell(label->tuple, label->field);
      writeShownText(pen_, labels_[column].text(cell), CellPlace::Label, quoting_);
    }
  }

  void writeRowData(std::size_t row) {
    const std::size_t group = row / rowsPerGroup_;
    const std::size_t firstData = row % rowsPerGroup_;
    for (std::size_t i = grid_.rowStart[group]; i < grid_.rowStart[group + 1]; ++i) {
      const GridEntry& entry = grid_.entries[i];
      const Cell* cells = grid_.table->tuple(entry.tuple);
      const std::size_t column = grid_.labelColumns + entry.columnGroup * columnsPerGroup_;
      for (std::size_t k = 0; k < columnsPerGroup_; ++k) {
        const auto field = static_cast<std::size_t>(grid_.dataFields[firstData + k]);
        goTo(column + k);
        data_[firstData + k].write(pen_, cells[field]);
      }
    }
  }

  void writeAnyLabel(std::size_t row, std::size_t column) {
    if (column < grid_.xFields.size() && rowLineAt(grid_, row).kind == LineKind::Group) {
      writeLabel(row, column);
    } else {
      writeShownText(pen_, cellText(grid_, settings_, row, column), CellPlace::Label, quoting_);
    }
  }

  void writeAnyRowData(std::size_t row) {
    findRowCells(grid_, row, cells_);
    for (const RowCell& cell : cells_) {
      goTo(cell.column);
      if (cell.tuple == RowCell::kSummary) {
        writeShownText(pen_, formatNumber(cell.number, settings_), CellPlace::Data, quoting_);
      } else {
        data_[cell.data].write(pen_, grid_.table->cell(cell.tuple, grid_.dataFields[cell.data]));
      }
    }
  }

  const ReportGrid& grid_;
  const std::size_t rowsPerGroup_;
  const std::size_t columnsPerGroup_;
  const bool hasSummaries_;
  const FormatSettings& settings_;
  Quoting quoting_;
  TextPen& pen_;
  std::vector<ValueWriter> labels_;
  std::vector<ValueWriter> data_;
  /// The present row's, in a report with summaries.
  std::vector<RowCell> cells_;
  /// Tabs written in this row so far.
  std::size_t cellsPassed_ = 0;
};

}  // namespace

bool isNumericText(std::string_view text) {
  const auto points = std::count(text.begin(), text.end(), '.');
  const auto signs = std::count(text.begin(), text.end(), '-');
  const bool onlyNumberBytes = text.find_first_not_of("0123456789.-,") == std::string_view::npos;
  return !text.empty() && onlyNumberBytes && points <= 1 && signs <= 1 &&
         (text.size() < kLongNumber || points == 1);
}

void writeShownText(TextPen& pen, std::string_view shown, CellPlace place, Quoting quoting) {
  const std::string_view text = shown == "_" ? kZeroText : shown;
  if (place == CellPlace::Data && isNumericText(text)) {
    std::string plain(text);
    std::erase(plain, ',');
    pen.write(plain);
  } else if (quoting == Quoting::Quoted && !text.empty()) {
    writeInQuotes(pen, text);
  } else {
    pen.write(text);
  }
}

void writeReportText(const ReportView& view, const ReportGrid& grid, Quoting quoting,
                     const FormatSettings& settings, Log& log, TextOutput& output) {
  TextPen pen(output);
  logLine(log, "ExportViewData: write header");
  logLine(log, "ExportViewData: write title");
  writeTitle(reportTitle(view), quoting, pen);
  logLine(log, "ExportViewData: write columns");
  writeLabelLine(grid, settings, pen);
  logLine(log, "ExportViewData: write body");
  BodyWriter(grid, settings, quoting, pen).write();
}

void ExportViewData(const ReportView& view, const ReportGrid& grid, const ExportSwitches& switches,
                    FormatSettings& settings, Log& log, TextOutput& errors) {
  logLine(log, "ExportViewData: open file");
  SafeFile file(view.exportFileName);
  if (!file.isOpen()) {
    reportExportFailure(view, errors);
    return;
  }
  const FormatSettings shown = settings;
  const PlainNumbers plain(settings);
  writeReportText(view, grid, switches.quoting ? Quoting::Quoted : Quoting::None, shown, log,
                  file.output());
  if (!file.commit()) {
    reportExportFailure(view, errors);
    return;
  }
  logLine(log, "ExportViewData: done");
}

void reportExportFailure(const ReportView& view, TextOutput& errors) {
  errors.write(withValue(kCannotOpen, view.exportFileName) + "\n");
}

}  // namespace vrel
