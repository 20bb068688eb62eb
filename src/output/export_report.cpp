#include "output/export_report.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <utility>

#include "base/platform.h"
#include "base/version.h"
#include "model/report_pages.h"
#include "output/csv_export.h"
#include "output/html_report.h"
#include "output/smart_graph.h"

namespace vrel {

/// One export.
struct ExportJob {
  const ReportExport& report;
  const ExportFileType& type;
  /// As chosen at first, then as written.
  std::string name;
  /// Why the export failed: one line, for standard error.
  std::string failure = {};
  /// The same where the file itself says why, for the user alone.
  std::string_view failureInFile = {};
};

namespace {

constexpr std::string_view kTask = translatable("vrel", "Exporting...");
/// The host leaves it in the directory in which the program works.
constexpr const char* kSmartDataFile = "qnt.smart";
constexpr const char* kCannotOpenHtml = translatable("vrel", "Error: Could not open file \"%1\".");

void log(const ExportJob& job, std::string_view step) {
  logLine(job.report.log, fmt::format("exportInGivenFormatFile: {}", step));
}

/// The name with its type's ending behind it, unless it holds one anywhere.
std::string withEnding(const ExportJob& job) {
  for (const std::string_view ending : job.type.endings) {
    if (job.name.find(ending) != std::string::npos) {
      return job.name;
    }
  }
  return job.name + std::string(job.type.endings.front());
}

bool writeXml(ExportJob& job, TaskProgress& progress) {
  job.name = withEnding(job);
  log(job, fmt::format("export to xml file {}", job.name));
  const SmartGraphFiles files = {.input = kSmartDataFile,
                                 .output = job.name,
                                 .version = productVersion(job.report.environment)};
  TextOutput failure = TextOutput::toMemory(job.failure);
  const bool whole = writeSmartGraph(files, progress, failure);
  job.failureInFile = kSmartGraphMismatch;
  log(job, "done exporting xml file");
  return whole;
}

bool fail(ExportJob& job, std::string failure) {
  job.failure = std::move(failure);
  return false;
}

bool writeHtml(ExportJob& job, TaskProgress& progress) {
  job.name = withEnding(job);
  log(job, fmt::format("open HTML file {}", job.name));
  SafeFile file(job.name);
  if (!file.isOpen()) {
    return fail(job, withValue(kCannotOpenHtml, job.name) + "\n");
  }
  HtmlReportWriter writer;
  writer.fullDocument = true;
  writer.border = true;
  writer.title = reportTitle(job.report.view);
  // An empty one is written, too.
  writer.footer = "";
  writer.userName = job.report.environment("USERNAME");
  writer.creationTime = platform::currentTime();
  log(job, "export z dimension");
  ReportPages pages(job.report.view, PageChoice::All);
  if (!writeHtmlReport(writer, pages, job.report.format, file.output(), progress)) {
    return false;
  }
  if (!file.commit()) {
    return fail(job, withValue(kCannotOpenHtml, job.name) + "\n");
  }
  log(job, "done exporting html file");
  return true;
}

bool writeCsv(ExportJob& job, TaskProgress& progress) {
  const ReportExport& report = job.report;
  report.switches.csvMode = true;
  report.switches.quoting = false;
  job.name = exportFileNameWithExtension(job.name, report.switches);
  log(job, "export to csv file");
  logLine(report.log, "ExportAsOKCB: exporting to text file");
  const std::string nameBefore = std::exchange(report.view.exportFileName, job.name);
  TextOutput failure = TextOutput::toMemory(job.failure);
  const bool written =
      TextExportViewData(report.view, report.format, report.log, progress, failure);
  if (!written) {
    report.view.exportFileName = nameBefore;
  }
  logLine(report.log, "ExportAsOKCB: finished");
  log(job, "done exporting csv file");
  return written;
}

constexpr std::array<std::string_view, 1> kXmlEndings = {".xml"};
constexpr std::array<std::string_view, 2> kHtmlEndings = {".html", ".htm"};
constexpr std::array<std::string_view, 1> kCsvEndings = {".csv"};

constexpr std::array<ExportFileType, 3> kTypes = {{
    {translatable("vrel", "XML (*.xml)"), kXmlEndings, writeXml},
    {translatable("vrel", "HTML (*.htm; *.html)"), kHtmlEndings, writeHtml},
    {translatable("vrel", "CSV (Comma delimited) (*.csv)"), kCsvEndings, writeCsv},
}};

enum class Ending { Written, Failed, Cancelled };

Ending runJob(ExportJob& job) {
  TaskProgress progress(job.report.notice, kTask);
  if (job.type.write(job, progress)) {
    return Ending::Written;
  }
  return progress.isCancelled() ? Ending::Cancelled : Ending::Failed;
}

/// Absolute, with the separator behind it only at the root.
std::string directoryOf(const std::string& name) {
  const std::string path = platform::absolutePath(name);
  const std::string separators = {'/', platform::kPathSeparator};
  const std::size_t last = path.find_last_of(separators);
  const std::size_t first = path.find_first_of(separators);
  return path.substr(0, last == first ? last + 1 : last);
}

// What stands in quotes in a failure is the file that it is about.
std::string translatedFailure(std::string_view failure, Notice& notice) {
  const std::size_t first = failure.find('"');
  const std::size_t last = failure.rfind('"');
  if (first == last) {
    return notice.translate(failure);
  }
  const std::string text =
      std::string(failure.substr(0, first + 1)).append("%1").append(failure.substr(last));
  return noticeText(notice, text, failure.substr(first + 1, last - first - 1));
}

void tellFailure(const ExportJob& job) {
  const ReportExport& report = job.report;
  report.errors.write(job.failure);
  report.errors.flush();
  std::string_view text = job.failure.empty() ? job.failureInFile : job.failure;
  if (text.ends_with('\n')) {
    text.remove_suffix(1);
  }
  // Nobody who sees the window sees standard error.
  if (report.notice.hasWindow()) {
    report.notice.critical(editorTitle(report.notice), translatedFailure(text, report.notice));
  }
}

const ExportFileType* typeOfFilter(std::string_view filter, Notice& notice) {
  const auto type =
      std::find_if(kTypes.begin(), kTypes.end(), [&](const ExportFileType& candidate) {
        return notice.translate(candidate.filter) == filter;
      });
  return type == kTypes.end() ? nullptr : &*type;
}

}  // namespace

std::span<const ExportFileType> exportFileTypes() {
  return kTypes;
}

const ExportFileType* exportTypeOfName(std::string_view name) {
  for (const ExportFileType& type : kTypes) {
    for (const std::string_view ending : type.endings) {
      if (name.ends_with(ending)) {
        return &type;
      }
    }
  }
  return nullptr;
}

bool exportInGivenFormatFile(const std::string& name, std::string_view filter,
                             const ReportExport& report) {
  const ExportFileType* const type = typeOfFilter(filter, report.notice);
  if (type == nullptr) {
    return false;
  }
  ExportJob job = {.report = report, .type = *type, .name = name};
  switch (runJob(job)) {
    case Ending::Written:
      report.view.exportFileName = job.name;
      report.lastVisitedDirectory = directoryOf(job.name);
      return true;
    case Ending::Failed:
      tellFailure(job);
      return false;
    case Ending::Cancelled:
      return false;
  }
  return false;
}

}  // namespace vrel
