#include "ui/export_files.h"

#include <fmt/format.h>

#include <QDir>

#include "expr/ui/to_text.h"
#include "output/export_report.h"
#include "ui/user_settings.h"

namespace vrel {

namespace {

// Empty when the user was nowhere yet.
std::string lastVisited(const EditorContext& context) {
  const std::vector<std::string>& path = context.settings.lastVisitedPath;
  return path.empty() ? std::string() : path.front();
}

void exportTo(const EditorContext& context, const std::string& name, std::string_view filter) {
  std::string visited;
  const ReportExport report = {.view = context.view,
                               .format = context.format,
                               .switches = context.exports,
                               .log = context.log,
                               .notice = *context.notice,
                               .errors = context.errors,
                               .environment = context.environment,
                               .lastVisitedDirectory = visited};
  exportInGivenFormatFile(name, filter, report);
  if (!visited.empty() && visited != lastVisited(context)) {
    saveLastVisitedDirectory(context.settings, visited, context.environment,
                             settingsWarning(context), *context.notice);
  }
}

FileQuestion exportQuestion(const EditorContext& context) {
  QStringList filters;
  QList<QStringList> extensions;
  for (const ExportFileType& type : exportFileTypes()) {
    filters << toText(context.notice->translate(type.filter));
    QStringList& ofType = extensions.emplaceBack();
    for (const std::string_view ending : type.endings) {
      // Without its dot.
      ofType << toText(ending.substr(1));
    }
  }
  return {.caption = toText(context.notice->translate(translatable("vrel", "Export As"))),
          .filter = filters.join(QStringLiteral(";;")),
          .extensions = extensions,
          .folder = lastVisitedFolder(context),
          .file = {}};
}

}  // namespace

QString lastVisitedFolder(const EditorContext& context) {
  const QString folder = toText(lastVisited(context));
  return folder.isEmpty() || !QDir(folder).exists() ? QDir::currentPath() : folder;
}

void ExportViewCB(const EditorContext& context, QWidget* parent, const AskForFile& ask) {
  // The export itself changes the view's.
  const std::string name = context.view.exportFileName;
  const ExportFileType* const type = exportTypeOfName(name);
  if (type == nullptr) {
    logLine(context.log, "ExportViewCB: Calling ExportAsCB");
    ExportAsCB(context, parent, ask);
    return;
  }
  logLine(context.log, fmt::format("ExportViewCB: export to {}", name));
  logLine(context.log, "ExportViewCB: calling exportInGivenFormatFile");
  exportTo(context, name, context.notice->translate(type->filter));
  logLine(context.log, "ExportViewCB: finished");
}

void ExportAsCB(const EditorContext& context, QWidget* parent, const AskForFile& ask) {
  const ChosenFile chosen = ask(parent, exportQuestion(context));
  if (chosen.path.isEmpty()) {
    return;
  }
  const std::string name = chosen.path.toStdString();
  logLine(context.log, fmt::format("ExportAsCB: export to file {}", name));
  logLine(context.log, "ExportAsCB: calling exportInGivenFormatFile");
  exportTo(context, name, chosen.filter.toStdString());
  logLine(context.log, "ExportAsCB: finished");
}

}  // namespace vrel
