#include "cmd/document.h"

#include "cmd/application_commands.h"
#include "expr/cell_edit.h"
#include "expr/recalculation.h"
#include "model/table_sort.h"

namespace vrel {
namespace {

// What formulas about the session's table work on. What they keep in the scratch field is the
// session's when the object ends.
struct SessionFormulas {
  explicit SessionFormulas(Session& owner)
      : session(owner),
        context{.table = *owner.table, .notice = *owner.notice, .scratch = owner.formulaScratch} {}
  SessionFormulas(const SessionFormulas&) = delete;
  SessionFormulas& operator=(const SessionFormulas&) = delete;
  ~SessionFormulas() { session.formulaScratch = context.scratch; }

  Session& session;
  FormulaContext context;
};

}  // namespace

ReportView& replaceView(Session& session) {
  session.view = std::make_unique<ReportView>(makeReportView(*session.table, *session.notice));
  applyFormatSettings(*session.view, session.format);
  return *session.view;
}

ReportView& currentView(Session& session) {
  return session.view ? *session.view : replaceView(session);
}

void recalculate(Session& session) {
  SessionFormulas formulas(session);
  recalculateTable(formulas.context, session.functions);
}

void runInverseFormulas(Session& session) {
  sortTuples(*session.table);
  SessionFormulas formulas(session);
  Evaluator evaluator(formulas.context, session.functions);
  applyInverseFormulas(evaluator);
}

void debugMessage(Session& session, std::string_view text) {
  // These lines go straight to standard output, which may be the interpreter's output, too.
  session.interpreter.output->flush();
  toolkitMessage(session.interpreter.toolkitMessages, ToolkitMessage::Debug, text);
}

HostLink hostLink(Session& session) {
  return {.format = session.format,
          .environment = session.environment,
          .log = session.log,
          .toolkitMessages = session.interpreter.toolkitMessages,
          .announce = [&session](std::string_view line) {
            announceToHost(*session.interpreter.output, line);
          }};
}

ReportGrid layOutReport(Session& session) {
  ReportGrid grid = layOut(*session.view);
  if (grid.notEnoughKeys) {
    session.notice->warning(editorTitle(*session.notice),
                            notEnoughKeysWarning(*session.view, *session.notice));
  }
  return grid;
}

bool needTable(Session& session, std::string_view message) {
  if (session.table->loaded) {
    return true;
  }
  session.interpreter.output->write(message);
  errorExit(session);
  return false;
}

bool needView(Session& session, std::string_view message) {
  if (session.view) {
    return true;
  }
  session.interpreter.output->write(message);
  errorExit(session);
  return false;
}

}  // namespace vrel
