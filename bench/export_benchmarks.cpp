// What writing a whole report costs, on one thread and without files. Tab-separated text is the
// yardstick of the other forms: compare what was measured in the same run.
#include <benchmark/benchmark.h>

#include <array>
#include <string>
#include <utility>

#include "model/report_pages.h"
#include "model/table_reader.h"
#include "output/html_report.h"
#include "output/postscript_report.h"
#include "output/text_export.h"
#include "plan_table.h"
#include "silent_notice.h"
#include "table_generator.h"

namespace {

using namespace vrel;

constexpr std::int64_t kTuples = 250'000;
constexpr int kDemand = 3;
constexpr int kFlag = 7;

/// A report over a table that is generated.
struct MeasuredReport {
  MeasuredReport() = default;
  MeasuredReport(const MeasuredReport&) = delete;
  MeasuredReport& operator=(const MeasuredReport&) = delete;

  /// Items and places down, the third key across, four numbers a tuple.
  void makeView() {
    view = makeReportView(table, notice);
    view.axis(Axis::X) = {0, 1};
    view.axis(Axis::Y) = {2};
    view.axis(Axis::Data) = {3, 4, 5, 6};
    view.axis(Axis::Hidden) = {kFlag};
    settings.precision = 2;
  }

  bench::SilentNotice notice;
  Table table;
  ReportView view;
  FormatSettings settings;
};

/// A million cells, all filled, in 24 columns.
void makePlan(MeasuredReport& report) {
  bench::load(report.table, kTuples);
  report.makeView();
}

/// The same side by side.
void makeWidePlan(MeasuredReport& report) {
  makePlan(report);
  report.view.dataInColumns = true;
}

/// With sums for each item, for every four places, and over the periods.
void makePlanWithBreaks(MeasuredReport& report) {
  makePlan(report);
  for (const auto& [field, frequency] : {std::pair{0, 1}, {1, 4}, {2, kBreakAtEnd}}) {
    BreakDefinition& definition = report.view.breaks[static_cast<std::size_t>(field)];
    definition.frequency = frequency;
    for (const int data : report.view.axis(Axis::Data)) {
      setOperation(definition, data, BreakOperation::Sum);
    }
  }
}

/// With a z page for each place. Laying the pages out counts.
void makePagedPlan(MeasuredReport& report) {
  makePlan(report);
  report.view.axis(Axis::X) = {0};
  report.view.axis(Axis::Z) = {1};
}

/// With one of the four numbers editable.
void makeEditablePlan(MeasuredReport& report) {
  makePlan(report);
  report.table.field(kDemand).classification = Classification::DataReadWrite;
}

/// A million filled cells among 50 million.
void makeSparse(MeasuredReport& report) {
  std::string file;
  TextOutput output = TextOutput::toMemory(file);
  bench::writeSparse({.columns = 500}, output);
  output.flush();
  TextInput input = bench::inputOver(file);
  loadFromFile(report.table, input);
  settleTypes(report.table);
  report.makeView();
  report.view.axis(Axis::Data) = {kDemand};
}

void writeText(MeasuredReport& report, ReportPages& pages, TextOutput& output) {
  Log log;
  for (std::size_t page = 0; page < pages.count(); ++page) {
    writeReportText(report.view, pages.layOut(page), Quoting::None, report.settings, log, output);
  }
}

void writeHtml(MeasuredReport& report, ReportPages& pages, TextOutput& output) {
  TaskProgress progress(report.notice, "Writing");
  HtmlReportWriter writer;
  writer.title = "Plan";
  writer.footer = "";
  writeHtmlReport(writer, pages, report.settings, output, progress);
}

/// On letter paper with grid lines, in letters of 10 points.
void writePrint(MeasuredReport& report, ReportPages& pages, TextOutput& output) {
  TaskProgress progress(report.notice, "Writing");
  PrintJob job;
  job.title = "Plan";
  writePostScript(job, pages, report.settings, output, progress);
}

struct ReportKind {
  const char* name;
  void (*make)(MeasuredReport& report);
};

constexpr std::array kReports = {
    ReportKind{"plan", makePlan},
    ReportKind{"wide", makeWidePlan},
    ReportKind{"breaks", makePlanWithBreaks},
    ReportKind{"pages", makePagedPlan},
    ReportKind{"editable", makeEditablePlan},
    ReportKind{"sparse", makeSparse},
};

struct Form {
  const char* name;
  void (*write)(MeasuredReport& report, ReportPages& pages, TextOutput& output);
};

/// The yardstick comes first.
constexpr std::array kForms = {
    Form{"text", writeText},
    Form{"html", writeHtml},
    Form{"postscript", writePrint},
};

void writing(benchmark::State& state, const ReportKind& kind, const Form& form) {
  MeasuredReport report;
  kind.make(report);
  ReportPages pages(report.view, PageChoice::All);
  std::int64_t bytes = 0;
  for (auto _ : state) {
    TextOutput output([&bytes](std::string_view text) {
      bytes += static_cast<std::int64_t>(text.size());
      return true;
    });
    form.write(report, pages, output);
  }
  state.SetBytesProcessed(bytes);
}

}  // namespace

int main(int argc, char** argv) {
  for (const ReportKind& kind : kReports) {
    for (const Form& form : kForms) {
      const std::string name = std::string(kind.name) + "/" + form.name;
      benchmark::RegisterBenchmark(name.c_str(), writing, kind, form)
          ->Unit(benchmark::kMillisecond);
    }
  }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
