// Made-up view files over a small table: each is refused or applied, and a view that was applied
// can be laid out, and reads back as it was written.
#include "model/view_file.h"

#include "fuzzing.h"
#include "model/report_layout.h"
#include "silent_notice.h"

using vrel::fuzz::require;

namespace {

// A column of every type that a table file declares, and one of dates. The one column of periods
// has names, so that no value can lie outside them.
constexpr const char* kTable =
    "FieldNames:\tItem\tDay\tPeriod\tDemand\tStock\tOpen\t\n"
    "FieldTypes:\tString\tString\tPeriod\tNumber\tNumber\tBoolean\t\n"
    "PeriodValues:\tW1\tW2\tW3\t\n"
    "Bolt\t1/1/2024\tW1\t10\t30\tYes\t### b1,,,b4\n"
    "Bolt\t1/8/2024\tW2\t10.5\t0\tNo\n"
    "Bolt\t1/15/2024\tW3\t-3\tundefined\tNo\n"
    "Nut\t1/1/2024\tW1\t*\t1234567.891\tYes\n"
    "Nut\t1/8/2024\tW2\t0\t1e-7\tNo\n"
    "Nut\t1/8/2024\tW2\t4\t5\tYes\n";

vrel::Table datedTable() {
  vrel::Table table = vrel::fuzz::tableFrom(kTable);
  vrel::settleTypes(table);
  return table;
}

std::string savedText(const vrel::ReportView& view) {
  std::string text;
  vrel::TextOutput output = vrel::TextOutput::toMemory(text);
  vrel::writeViewFile(view, output);
  output.flush();
  return text;
}

// A table with its view, as a session has them.
struct Desk {
  bool read(std::string_view file) {
    std::string errors;
    vrel::TextOutput output = vrel::TextOutput::toMemory(errors);
    const vrel::EnvironmentLookup environment = [](const char*) { return std::string(); };
    return vrel::readViewFile(view, file, settings, environment, notice, output);
  }

  void layOutPages() {
    vrel::ReportGrid grid = vrel::layOut(view);
    const auto pages = static_cast<int>(grid.zGroups.size());
    for (int page = 0; page < pages; ++page) {
      view.zIndex = page;
      grid = vrel::layOut(view);
      vrel::zPageText(grid, settings, page);
      vrel::fuzz::showReport(grid, settings);
    }
    vrel::fuzz::showReport(grid, settings);
  }

  vrel::bench::SilentNotice notice;
  vrel::Table table = datedTable();
  vrel::ReportView view = vrel::makeReportView(table, notice);
  vrel::FormatSettings settings;
};

// Made-up names must not lead to files outside the directory of the run.
bool namesAFileElsewhere(std::string_view file) {
  constexpr std::string_view kCommand = "periodfilename";
  for (std::size_t at = file.find(kCommand); at != std::string_view::npos;
       at = file.find(kCommand, at + 1)) {
    if (file.substr(at, file.find('\n', at) - at).find('/') != std::string_view::npos) {
      return true;
    }
  }
  return false;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view file = vrel::fuzz::madeUpFile(data, size);
  if (namesAFileElsewhere(file)) {
    return 0;
  }
  Desk desk;
  const std::string before = savedText(desk.view);
  if (!desk.read(file)) {
    require(savedText(desk.view) == before, "a refused file changes nothing");
    return 0;
  }
  desk.layOutPages();
  const std::string saved = savedText(desk.view);
  require(desk.read(saved), "a written view fits its table");
  require(savedText(desk.view) == saved, "a written view reads back as it was");
  return 0;
}
