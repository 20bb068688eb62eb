// Commands that show or export the report.

#include <optional>

#include "cmd/application_commands.h"
#include "cmd/document.h"
#include "cmd/title.h"
#include "output/print_report.h"
#include "ui/editor.h"

namespace vrel {
namespace {

constexpr std::string_view kUntitled = "data";
constexpr std::string_view kExportExtension = ".sp";

// Whether there is a report to show; if not, says so and takes the error exit.
bool needTupleInfo(Session& session, std::string_view handler, Words words) {
  if (words.size() > 1) {
    return needTable(session, fmt::format("{}: cannot display \"{}\" - need valid tuple info.\n",
                                          handler, words[1]));
  }
  return needTable(session, fmt::format("{}: need valid tuple info.\n", handler));
}

void reportFailure(Session& session, std::string_view message) {
  session.interpreter.output->write(message);
  errorExit(session);
}

void reportNoDisplay(Session& session) {
  reportFailure(session, "cidUI: cannot open a display.\n");
}

// Runs the window from its module, which comes with the toolkit and is loaded only here.
void runWindow(Session& session, RunEditor& runEditor, std::optional<std::string> title) {
  EditorContext context{.view = currentView(session),
                        .format = session.format,
                        .exports = session.exports,
                        .log = session.log,
                        .toolkitMessages = session.interpreter.toolkitMessages,
                        .environment = session.environment,
                        .errors = *session.errors,
                        .settings = session.settings,
                        .functions = session.functions,
                        .formulaScratch = session.formulaScratch,
                        .host = hostLink(session),
                        .notice = session.notice,
                        .arguments = session.arguments,
                        .title = std::move(title),
                        .terminationDescriptor = platform::terminationDescriptor(),
                        .terminate = [&session] { saveLastViewAndEnd(session); }};
  if (context.title) {
    context.view.shortTitle = shortTitle(*context.title);
  }
  flushAll(session);
  if (runEditor(context) == EditorResult::NoDisplay) {
    reportNoDisplay(session);
    return;
  }
  // Closing the window is ending the process.
  session.interpreter.endProcess(0);
}

std::string withExportExtension(const std::string& viewFileName) {
  return viewFileName.substr(0, viewFileName.rfind('.')).append(kExportExtension);
}

// Where the report goes: the name given, or, for a report that has been exported before, one made
// from its view file's name.
std::string exportFileName(const ReportView& view, Words words) {
  if (words.size() > 2) {
    return words[2];
  }
  return view.exportFileName.empty() ? std::string() : withExportExtension(view.fileName);
}

}  // namespace

void cidUI(Session& session, Words words) {
  if (!needTupleInfo(session, "cidUI", words)) {
    return;
  }
  setLastViewName(session, words.size() > 1 ? std::string_view(words[1]) : kUntitled);
  if (!platform::displayAvailable()) {
    debugMessage(session, "CreateUI()");
    reportNoDisplay(session);
    return;
  }
  std::string error;
  void* const runEditor =
      platform::loadFunction(platform::programDirectory() + platform::kPathSeparator +
                                 platform::moduleFileName(kEditorModule),
                             kRunEditorFunction, error);
  if (runEditor == nullptr) {
    reportFailure(session, fmt::format("cidUI: cannot load the window: {}\n", error));
    return;
  }
  std::optional<std::string> title;
  if (words.size() > 1) {
    title = decodeTitle(words[1]);
  }
  runWindow(session, *reinterpret_cast<RunEditor*>(runEditor), std::move(title));
}

void cidPrintReport(Session& session, Words words) {
  if (!needTupleInfo(session, "cidPrintReport", words)) {
    return;
  }
  debugMessage(session, "CreateUI()");
  ReportView& view = currentView(session);
  layOutReport(session);
  if (words.size() > 1) {
    view.printOptions.printCommand = words[1];
  }
  flushAll(session);
  const Spooler spooler;
  const bool byCommand = !view.printOptions.printCommand.empty();
  printReport({view, session.format, session.environment, *session.notice, spooler},
              {.file = {}, .printer = byCommand ? std::nullopt : firstPrinter(spooler.printers())});
  session.interpreter.endProcess(0);
}

void cidExtractReport(Session& session, Words words) {
  if (!needTupleInfo(session, "cidExtractReport", words)) {
    return;
  }
  debugMessage(session, "CreateUI()");
  ReportView& view = currentView(session);
  const ReportGrid grid = layOutReport(session);
  if (words.size() > 1) {
    session.exports.quoting = words[1].starts_with('q');
  }
  view.exportFileName = exportFileName(view, words);
  session.interpreter.output->flush();
  ExportViewData(view, grid, session.exports, session.format, session.log, *session.errors);
  session.interpreter.endProcess(0);
}

}  // namespace vrel
