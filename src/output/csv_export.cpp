#include "output/csv_export.h"

#include <fmt/format.h>

#include "model/value_writer.h"

namespace vrel {
namespace {

constexpr std::string_view kCsvExtension = ".csv";
constexpr std::string_view kReportExtension = ".sp";

void writeFields(const Table& table, TextPen& pen) {
  for (std::size_t i = 0; i < table.fieldCount(); ++i) {
    pen.write(i == 0 ? "\"" : ",\"");
    pen.write(table.fields[i].name);
    pen.put('"');
  }
  pen.put('\n');
}

/// False when the task was cancelled.
bool writeTuples(const Table& table, const FormatSettings& settings, TaskProgress& progress,
                 TextPen& pen) {
  std::vector<ValueWriter> writers = makeValueWriters(table.fields, settings, Quoting::Quoted);
  for (std::size_t tuple = 0; tuple < table.tupleCount; ++tuple) {
    if (!progress.at(0, tuple, table.tupleCount)) {
      return false;
    }
    const Cell* cells = table.tuple(tuple);
    for (std::size_t i = 0; i < writers.size(); ++i) {
      if (i > 0) {
        pen.put(',');
      }
      writers[i].write(pen, cells[i]);
    }
    pen.put('\n');
  }
  return true;
}

/// False when the task was cancelled.
bool writeTable(const Table& table, const FormatSettings& settings, Log& log,
                TaskProgress& progress, TextOutput& output) {
  TextPen pen(output);
  logLine(log, "TextExportViewData: write fields");
  writeFields(table, pen);
  logLine(log, "TextExportViewData: write tuples");
  return writeTuples(table, settings, progress, pen);
}

}  // namespace

std::string exportFileNameWithExtension(const std::string& name, const ExportSwitches& switches) {
  const std::string_view extension = switches.csvMode ? kCsvExtension : kReportExtension;
  return name.ends_with(extension) ? name : name + std::string(extension);
}

bool TextExportViewData(const ReportView& view, FormatSettings& settings, Log& log,
                        TaskProgress& progress, TextOutput& errors) {
  const PlainNumbers plain(settings);
  logLine(log, fmt::format("TextExportViewData: open export file {}", view.exportFileName));
  SafeFile file(view.exportFileName);
  if (!file.isOpen()) {
    reportExportFailure(view, errors);
    return false;
  }
  if (!writeTable(*view.table, settings, log, progress, file.output())) {
    return false;
  }
  if (!file.commit()) {
    reportExportFailure(view, errors);
    return false;
  }
  logLine(log, "TextExportViewData: done");
  return true;
}

}  // namespace vrel
