// Commands that read, change and write the table and its view.

#include <optional>

#include "cmd/application_commands.h"
#include "cmd/document.h"
#include "expr/open_view.h"
#include "expr/report_edit.h"
#include "model/key_pass.h"
#include "model/table_dump.h"
#include "model/table_reader.h"
#include "output/translate.h"

namespace vrel {
namespace {

void guessFreshView(Session& session) {
  ReportView& view = replaceView(session);
  settleTypes(*session.table);
  if (!guessView(view)) {
    print(session.interpreter, "cidGuessView: error not enough indexs to go around\n");
  }
}

ViewReading viewReading(Session& session) {
  return {.format = session.format,
          .environment = session.environment,
          .notice = *session.notice,
          .errors = *session.errors,
          .functions = session.functions,
          .formulaScratch = session.formulaScratch};
}

bool canRecalculate(Session& session, std::string_view handler) {
  return needTable(session, fmt::format("{}: no table loaded, function stopped.\n", handler)) &&
         needView(session, fmt::format("{}: no view loaded, function stopped.\n", handler));
}

}  // namespace

void cidReadTable(Session& session, Words words) {
  // The view goes with the table that it shows.
  session.view.reset();
  session.table = std::make_unique<Table>();
  std::optional<TextInput> file = TextInput::open(words[1]);
  if (!file) {
    print(session.interpreter, "cidReadTable: cannot open file \"{}\"\n", words[1]);
    errorExit(session);
    return;
  }
  if (!loadFromFile(*session.table, *file)) {
    print(session.interpreter, "cidReadTable: call to loadFromFile() fails\n");
    errorExit(session);
  }
  file.reset();
  guessFreshView(session);
}

void cidReadView(Session& session, Words words) {
  if (!needTable(session, "cidReadView: no table loaded, function stopped\n")) {
    return;
  }
  // Stays when the view file cannot be read.
  ReportView& view = replaceView(session);
  const ViewReading reading = viewReading(session);
  OpenedView opened = openViewFile(words[1], *session.table, reading);
  if (opened.fault == ViewFault::CannotOpen) {
    print(session.interpreter, "cidReadView: cannot open file \"{}\"\n", words[1]);
    errorExit(session);
    return;
  }
  if (!takeOpenedView(view, std::move(opened), reading)) {
    print(session.interpreter, "cidReadView: view file \"{}\" does not match table data\n",
          words[1]);
    errorExit(session);
  }
}

void cidGuessView(Session& session, Words) {
  if (needTable(session, "cidGuessView: no table loaded, function stopped\n")) {
    guessFreshView(session);
  }
}

void cidRecalculateFormulas(Session& session, Words) {
  if (canRecalculate(session, "cidRecalculateFormulas")) {
    recalculate(session);
    layOutReport(session);
  }
}

void cidRecalculateInverseFormulas(Session& session, Words) {
  if (!canRecalculate(session, "cidRecalculateInverseFormulas")) {
    return;
  }
  ReportEditor editor{.view = *session.view,
                      .functions = session.functions,
                      .scratch = session.formulaScratch,
                      .notice = session.notice,
                      .host = hostLink(session)};
  recalculateInverseFormulas(editor);
  layOutReport(session);
}

void cidAggregate(Session& session, Words) {
  if (session.table->loaded) {
    removeDuplicateKeys(currentView(session), session.environment, *session.notice);
  }
}

void cidDumpTable(Session& session, Words) {
  if (session.table->loaded) {
    dumpTable(*session.table, session.format, *session.interpreter.output);
  }
}

void cidTranslate(Session& session, Words words) {
  if (!needTable(session, "cidTranslate: no table loaded, function stopped.\n") ||
      !needView(session, "cidTranslate: no view loaded, function stopped.\n")) {
    return;
  }
  std::optional<TextInput> input = TextInput::open(words[1]);
  if (!input) {
    print(session.interpreter, "cidTranslate: cannot open input file \"{}\"\n", words[1]);
    return;
  }
  const WriteMode mode = session.exports.appendTranslate ? WriteMode::Append : WriteMode::Truncate;
  const std::unique_ptr<TextOutput> output = openOutput(words[2], mode);
  if (!output) {
    print(session.interpreter, "cidTranslate: cannot open output file \"{}\"\n", words[2]);
    return;
  }
  translate(*session.table, *input, *output, *session.errors);
}

}  // namespace vrel
