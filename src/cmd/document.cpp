#include "cmd/document.h"

#include "cmd/application_commands.h"
#include "expr/recalculation.h"
#include "model/report_layout.h"

namespace vrel {

ReportView& replaceView(Session& session) {
  session.view = std::make_unique<ReportView>(makeReportView(*session.table, *session.notice));
  applyFormatSettings(*session.view, session.format);
  return *session.view;
}

ReportView& currentView(Session& session) {
  return session.view ? *session.view : replaceView(session);
}

void recalculate(Session& session) {
  recalculateTable(*session.table, *session.notice, session.formulaScratch, session.functions);
}

void debugMessage(Session& session, std::string_view text) {
  // These lines go straight to standard output, which may be the interpreter's output, too.
  session.interpreter.output->flush();
  toolkitMessage(session.interpreter.toolkitMessages, ToolkitMessage::Debug, text);
}

HostLink hostLink(Session& session) {
  return {
      .format = session.format,
      .environment = session.environment,
      .log = session.log,
      .debug = [&session](std::string_view text) { debugMessage(session, text); },
      .announce =
          [&session](std::string_view line) { announceToHost(*session.interpreter.output, line); }};
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
