#include "ui/view_files.h"

#include <fmt/format.h>

#include <QDir>
#include <QFileInfo>

#include "base/platform.h"
#include "base/text_file.h"
#include "expr/ui/to_text.h"
#include "ui/view_save.h"

namespace vrel {

namespace {

constexpr std::string_view kFilter =
    translatable("vrel", "Matching views (%1);;All views (*.view)");

void critical(const EditorContext& context, std::string_view text, std::string_view value) {
  Notice& notice = *context.notice;
  notice.critical(editorTitle(notice), noticeText(notice, text, value));
}

// Beside the current view, when it has a file.
QString viewFolder(const ReportView& view) {
  const QFileInfo file(toText(view.fileName));
  return view.fileName.empty() || !file.dir().exists() ? QDir::currentPath() : file.absolutePath();
}

std::string matchingViews(const EditorContext& context, const QString& folder) {
  std::string patterns;
  for (const std::string& name : validViewList(viewSearch(context), folder.toStdString())) {
    patterns += patterns.empty() ? "" : " ";
    patterns += filterPattern(name).toStdString();
  }
  return patterns;
}

// The name that is offered for saving; none for a view that nothing names.
QString offeredName(const EditorContext& context) {
  const std::string name = saveWarningName(context.view.fileName, context.title.value_or(""));
  return isUntitled(name) ? QString() : toText(name);
}

FileQuestion viewQuestion(const EditorContext& context, std::string_view caption) {
  Notice& notice = *context.notice;
  const QString folder = viewFolder(context.view);
  return {.caption = toText(notice.translate(caption)),
          .filter = toText(noticeText(notice, kFilter, matchingViews(context, folder))),
          .extensions = {{QStringLiteral("view")}},
          .folder = folder,
          .file = offeredName(context)};
}

// Whoever opens a pipe waits for its other end.
bool mayBeOpened(const std::string& name) {
  return !isUntitled(name) && !platform::isSpecialFile(name);
}

void tellUnreadable(const EditorContext& context, const std::string& name) {
  critical(context, translatable("vrel", "Unable to open file \"%1\" for loading expressions."),
           name);
}

bool isPlain(char32_t letter) {
  return letter < 0x80 &&
         (QChar(letter).isLetterOrNumber() || letter == '.' || letter == '_' || letter == '-');
}

}  // namespace

ViewSearch viewSearch(const EditorContext& context) {
  return {.table = *context.view.table,
          .log = context.log,
          .debug = context.host.debug,
          .notice = *context.notice,
          .errors = context.errors};
}

ViewReading viewReading(const EditorContext& context) {
  return {.format = context.format,
          .environment = context.environment,
          .notice = *context.notice,
          .errors = context.errors,
          .functions = context.functions,
          .formulaScratch = context.formulaScratch};
}

QString filterPattern(const std::string& fileName) {
  QString pattern;
  for (const char32_t letter : toText(fileName).toStdU32String()) {
    pattern += QLatin1Char(isPlain(letter) ? static_cast<char>(letter) : '?');
  }
  return pattern;
}

std::string chooseView(const EditorContext& context, QWidget* parent, const AskForFile& ask,
                       std::string_view caption) {
  const std::string chosen = ask(parent, viewQuestion(context, caption)).path.toStdString();
  if (chosen.empty()) {
    return {};
  }
  std::string name = chosenViewName(chosen);
  if (name.empty()) {
    critical(context,
             translatable("vrel", "File name \"%1\" contains a character that is not allowed."),
             chosen);
  }
  return name;
}

std::optional<OpenedView> openChosenView(const EditorContext& context, const std::string& name) {
  std::optional<OpenedView> opened;
  if (mayBeOpened(name)) {
    opened = openViewFile(name, *context.view.table, viewReading(context));
  }
  if (!opened || opened->fault == ViewFault::CannotOpen) {
    tellUnreadable(context, name);
    return std::nullopt;
  }
  if (opened->fault == ViewFault::DoesNotMatch) {
    tellMismatch(context, name);
    return std::nullopt;
  }
  return opened;
}

std::optional<std::vector<FieldDef>> readChosenFields(const EditorContext& context,
                                                      const std::string& name) {
  const std::optional<std::string> file = mayBeOpened(name) ? readTextFile(name) : std::nullopt;
  if (!file) {
    tellUnreadable(context, name);
    return std::nullopt;
  }
  std::vector<FieldDef> fields = readFieldRecords(*file, context.errors);
  context.errors.flush();
  return fields;
}

void tellMismatch(const EditorContext& context, const std::string& name) {
  critical(context, translatable("vrel", "View file \"%1\" does not match data"), name);
}

bool saveCurrentView(const EditorContext& context) {
  ReportView& view = context.view;
  if (view.fileName.empty()) {
    return false;
  }
  logLine(context.log, fmt::format("slotFileSaveView: Calling ViewSave to save to current view {}",
                                   view.fileName));
  if (ViewSave(view, view.fileName, context.log, *context.notice)) {
    view.modified = false;
  }
  logLine(context.log, "slotFileSaveView: done calling ViewSave");
  return true;
}

void saveViewAs(const EditorContext& context, QWidget* parent, const AskForFile& ask) {
  logLine(context.log, "slotFileSaveViewAs: save view as called");
  const std::string name = chooseView(context, parent, ask, translatable("vrel", "Save View As"));
  logLine(context.log, fmt::format("slotFileSaveViewAs: view to be saved to is {}", name));
  if (name.empty()) {
    return;
  }
  logLine(context.log, "slotFileSaveViewAs: calling ViewSave");
  if (ViewSave(context.view, name, context.log, *context.notice)) {
    context.view.fileName = name;
    context.view.modified = false;
  }
  logLine(context.log, "slotFileSaveViewAs: done");
}

void deleteView(const EditorContext& context, QWidget* parent, const AskForFile& ask) {
  const std::string name = chooseView(context, parent, ask, translatable("vrel", "Delete View"));
  Notice& notice = *context.notice;
  if (!name.empty() &&
      notice.confirm(notice.translate(translatable("vrel", "Data Editor: Delete View")),
                     noticeText(notice, translatable("vrel", "Delete view \"%1\"?"), name)) &&
      !platform::removeFile(name)) {
    critical(context, translatable("vrel", "Cannot delete \"%1\"."), name);
  }
}

}  // namespace vrel
