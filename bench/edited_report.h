// The plan as a report in which supplies can be edited, with all that editing it needs.
#pragma once

#include <filesystem>
#include <string>

#include "expr/recalculation.h"
#include "expr/report_edit.h"
#include "model/report_layout.h"
#include "plan_with_formulas.h"

namespace vrel::bench {

inline constexpr std::int64_t kTuples = 1'000'000;
inline constexpr int kSupply = 4;

/// Of a million tuples, with sums over all levels. Messages go to a directory of their own.
struct EditedReport {
  EditedReport() : plan(kTuples), directory(std::filesystem::temp_directory_path() / "vrel_bench") {
    std::filesystem::create_directories(directory);
    Table& table = plan.table;
    table.field(kSupply).classification = Classification::DataReadWrite;
    view = makeReportView(table, plan.notice);
    view.axis(Axis::X) = {0, 1};
    view.axis(Axis::Y) = {2};
    view.axis(Axis::Data) = {3, kSupply, 8, 10};
    view.dataInColumns = true;
    for (const int field : {0, 1, 2}) {
      BreakDefinition& definition = view.breaks[static_cast<std::size_t>(field)];
      definition.frequency = field == 1 ? 2 : kBreakAtEnd;
      for (const int data : view.axis(Axis::Data)) {
        setOperation(definition, data, BreakOperation::Sum);
      }
    }
    recalculateTable(plan.context, plan.functions);
    grid = layOut(view);
  }
  EditedReport(const EditedReport&) = delete;
  EditedReport& operator=(const EditedReport&) = delete;
  ~EditedReport() { std::filesystem::remove_all(directory); }

  PlanWithFormulas plan;
  std::filesystem::path directory;
  ReportView view;
  ReportGrid grid;
  FormatSettings format;
  EnvironmentLookup environment = [this](const char* name) {
    return std::string_view(name) == "TMPDIR" ? directory.string() : std::string();
  };
  Log log;
  // The host takes its messages away.
  HostLink host{.format = format,
                .environment = environment,
                .log = log,
                .debug = [](std::string_view) {},
                .announce =
                    [this](std::string_view line) {
                      std::filesystem::remove(directory / line.substr(3, line.size() - 4));
                    }};
  Notice* notice = &plan.notice;
  Cell scratch = emptyCell();
  ReportEditor editor{.view = view,
                      .functions = plan.functions,
                      .scratch = scratch,
                      .notice = notice,
                      .host = host};
};

/// The one that a program's benchmarks share; each leaves it as it found it.
inline EditedReport& editedReport() {
  static EditedReport report;
  return report;
}

}  // namespace vrel::bench
