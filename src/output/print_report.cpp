#include "output/print_report.h"

#include <algorithm>

#include "base/task_progress.h"
#include "base/text_output.h"
#include "model/paper.h"
#include "model/report_pages.h"
#include "output/ascii_report.h"
#include "output/html_report.h"
#include "output/postscript_report.h"

namespace vrel {
namespace {

constexpr std::string_view kPrefix = "deprn";
// Under which a printer's queue shows a raw job.
constexpr std::string_view kJobName = "My Document";
// For whom a document is.
constexpr const char* kUserName = "USERNAME";
constexpr std::string_view kCommandFile = "%s";

// What a writer of one printer type works with.
struct Writing {
  const PrintContext& context;
  const PrintTarget& target;
  ReportPages& pages;
  TextOutput& output;
  TaskProgress& progress;
};

bool writeAsciiPages(const Writing& writing) {
  const PrintContext& context = writing.context;
  const PrintOptions& options = context.view.printOptions;
  const AsciiJob job = {.title = printTitle(context.view),
                        .footer = options.footer,
                        .pageHeading = context.notice.translate(translatable("vrel", "Page %1.%2")),
                        .pageWidth = static_cast<std::size_t>(options.pageWidthChars),
                        .pageHeight = static_cast<std::size_t>(options.pageHeightChars),
                        .gridLines = options.separators,
                        .repeatLabels = options.repeatRowLabels,
                        .repeatHeadings = options.repeatColumnLabels,
                        .target = writing.target.file ? PageTarget::File : PageTarget::Printer};
  return writeAsciiReport(job, writing.pages, context.format, writing.output, writing.progress);
}

bool writePostScriptPages(const Writing& writing) {
  const PrintContext& context = writing.context;
  const PrintOptions& options = context.view.printOptions;
  const Paper& paper = paperOf(options.paperType);
  const PrintJob job = {.pageWidth = static_cast<double>(paper.width),
                        .pageHeight = static_cast<double>(paper.height),
                        .landscape = options.landscape,
                        .bestOnePageFit = options.bestOnePageFit,
                        .fitToWidth = options.fitToWidth,
                        .widthPages = options.widthPages,
                        .fitToHeight = options.fitToHeight,
                        .heightPages = options.heightPages,
                        .fontSize = static_cast<double>(options.fontSize),
                        .gridLines = options.separators,
                        .title = printTitle(context.view),
                        .footer = options.footer,
                        .repeatLabels = options.repeatRowLabels,
                        .repeatHeadings = options.repeatColumnLabels,
                        .userName = context.environment(kUserName),
                        .created = platform::currentTime()};
  return writePostScript(job, writing.pages, context.format, writing.output, writing.progress);
}

bool writeHtmlPages(const Writing& writing) {
  const PrintContext& context = writing.context;
  const PrintOptions& options = context.view.printOptions;
  const HtmlReportWriter writer = {.fullDocument = options.addHeader,
                                   .border = options.borders,
                                   .banner = true,
                                   .title = printTitle(context.view),
                                   .footer = options.footer,
                                   .userName = context.environment(kUserName),
                                   .creationTime = platform::currentTime()};
  return writeHtmlReport(writer, writing.pages, context.format, writing.output, writing.progress);
}

// By printer type.
constexpr bool (*kWriters[])(const Writing&) = {writePostScriptPages, writeAsciiPages,
                                                writeHtmlPages};

bool writeDocument(const PrintContext& context, const PrintTarget& target, TextOutput& output) {
  const PrintOptions& options = context.view.printOptions;
  TaskProgress progress(context.notice, translatable("vrel", "Printing..."));
  ReportPages pages(context.view, options.printAllPages ? PageChoice::All : PageChoice::Current);
  return kWriters[static_cast<std::size_t>(options.printerType)](
      {context, target, pages, output, progress});
}

PrintResult fail(Notice& notice, const std::string& text) {
  notice.critical(editorTitle(notice), text);
  return PrintResult::Failed;
}

// Writes the print file.
PrintResult writePrintFile(const PrintContext& context, const PrintTarget& target,
                           const std::string& path) {
  Notice& notice = context.notice;
  SafeFile file(path);
  if (!file.isOpen()) {
    return fail(notice,
                noticeText(notice, translatable("vrel", "Unable to print to \"%1\"."), path));
  }
  if (!writeDocument(context, target, file.output())) {
    return PrintResult::Cancelled;
  }
  return file.commit()
             ? PrintResult::Printed
             : fail(notice,
                    noticeText(notice, translatable("vrel", "Closing file \"%1\" fails."), path));
}

// Whether the print file has reached the printer.
bool handOver(const PrintContext& context, const PrintTarget& target, const std::string& path) {
  const PrintOptions& options = context.view.printOptions;
  if (!options.printCommand.empty()) {
    return context.spooler.run(printCommandFor(options.printCommand, path)) == 0;
  }
  if (!target.printer) {
    return false;
  }
  if (options.printerType == PrinterType::Ascii) {
    if (const auto sent = context.spooler.sendRaw(*target.printer, kJobName, path)) {
      return *sent;
    }
  }
  return context.spooler.run(platform::spoolCommand(*target.printer, path)) == 0;
}

}  // namespace

PrintResult printReport(const PrintContext& context, const PrintTarget& target) {
  if (target.file) {
    return writePrintFile(context, target, *target.file);
  }
  const std::string path = temporaryFileName(context.environment, kPrefix);
  PrintResult result = writePrintFile(context, target, path);
  if (result == PrintResult::Printed && !handOver(context, target, path)) {
    Notice& notice = context.notice;
    result =
        fail(notice,
             notice.translate(translatable("vrel", "Error attempting to print. Print cancelled.")));
  }
  platform::removeFile(path);
  return result;
}

std::optional<platform::Printer> firstPrinter(const std::vector<platform::Printer>& printers) {
  const auto preferred = std::find_if(printers.begin(), printers.end(),
                                      [](const auto& each) { return each.isDefault; });
  if (preferred != printers.end()) {
    return *preferred;
  }
  return printers.empty() ? std::nullopt : std::optional(printers.front());
}

std::string printTitle(const ReportView& view) {
  const std::string& title = view.printOptions.title;
  return title.empty() ? defaultPrintTitle(view) : title;
}

std::string defaultPrintTitle(const ReportView& view) {
  return view.userTitle.empty() ? systemTitle(view) : view.userTitle;
}

std::string printCommandFor(const std::string& command, const std::string& path) {
  const std::string word = platform::quotedWord(path);
  std::string complete = command;
  std::size_t at = complete.find(kCommandFile);
  if (at == std::string::npos) {
    return complete + " " + word;
  }
  for (; at != std::string::npos; at = complete.find(kCommandFile, at + word.size())) {
    complete.replace(at, kCommandFile.size(), word);
  }
  return complete;
}

}  // namespace vrel
