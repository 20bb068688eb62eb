#include "ui/desk.h"

#include <QMenu>
#include <QMenuBar>

#include "base/words.h"
#include "expr/field_functions.h"
#include "support/logged.h"

namespace vrel::test {

namespace {

std::vector<int> fieldsNamed(const Table& table, const std::string& names) {
  std::vector<int> fields;
  for (const std::string& name : splitWords(names).words) {
    for (std::size_t field = 0; field < table.fieldCount(); ++field) {
      if (table.fields[field].name == name) {
        fields.push_back(static_cast<int>(field));
      }
    }
  }
  return fields;
}

ReportView viewOver(Table& table, const Axes& axes, bool dataInColumns) {
  ReportView view;
  view.table = &table;
  view.axis(Axis::X) = fieldsNamed(table, axes.x);
  view.axis(Axis::Y) = fieldsNamed(table, axes.y);
  view.axis(Axis::Z) = fieldsNamed(table, axes.z);
  view.axis(Axis::Data) = fieldsNamed(table, axes.data);
  view.breaks.resize(table.fieldCount());
  view.dataInColumns = dataInColumns;
  return view;
}

QAction* entryIn(const QList<QAction*>& actions, const QString& text) {
  for (QAction* action : actions) {
    if (action->text() == text) {
      return action;
    }
    QAction* const below =
        action->menu() == nullptr ? nullptr : entryIn(action->menu()->actions(), text);
    if (below != nullptr) {
      return below;
    }
  }
  return nullptr;
}

}  // namespace

void AnsweringNotice::critical(std::string_view title, std::string_view text) {
  note("critical", title, text);
}

void AnsweringNotice::warning(std::string_view title, std::string_view text) {
  note("warning", title, text);
}

Answer AnsweringNotice::question(std::string_view title, std::string_view text) {
  note("question", title, text);
  return answer;
}

bool AnsweringNotice::confirm(std::string_view title, std::string_view text) {
  note("confirm", title, text);
  return confirms;
}

std::string AnsweringNotice::translate(std::string_view text) {
  return QCoreApplication::translate("vrel", std::string(text).c_str()).toStdString();
}

void AnsweringNotice::note(std::string_view kind, std::string_view title, std::string_view text) {
  shown.push_back(std::string(kind).append("|").append(title).append("|").append(text));
}

Desk::Desk(Table given, const Axes& axes, bool dataInColumns)
    : table(std::move(given)),
      log(openTestLog()),
      environment([this](const char* name) {
        return std::string_view(name) == "TMPDIR" ? directory.path() : std::string();
      }),
      errors([this](std::string_view text) {
        errorText += text;
        return true;
      }),
      view(viewOver(table, axes, dataInColumns)),
      context{.view = view,
              .format = format,
              .exports = exports,
              .log = log,
              .toolkitMessages = toolkitMessages,
              .environment = environment,
              .errors = errors,
              .settings = settings,
              .functions = functions,
              .formulaScratch = formulaScratch,
              .host = {.format = format,
                       .environment = environment,
                       .log = log,
                       .debug = [](std::string_view) {},
                       .announce = [this](std::string_view line) { announced.emplace_back(line); }},
              .notice = noticeInForce,
              .arguments = {"vrel"},
              .title = std::nullopt,
              .terminationDescriptor = -1,
              .terminate = [] {}} {
  format.precision = 0;
  addAllFunctions(functions);
}

Desk::~Desk() = default;

WindowSeams Desk::seams() {
  WindowSeams seams;
  seams.endProcess = [this] { ++endings; };
  seams.chooseOpenFile = [this](QWidget*, const FileQuestion& question) {
    return answer("open|", question);
  };
  seams.runDialog = [this](QDialog& dialog) {
    QStringList texts(dialog.windowTitle());
    for (const QLabel* label : dialog.findChildren<QLabel*>()) {
      texts << label->text();
    }
    dialogs << texts.join(u'|');
    inDialog(dialog);
  };
  seams.chooseSaveFile = [this](QWidget*, const FileQuestion& question) {
    return answer("save|", question);
  };
  seams.spooler = {.printers = [this] { return printers; },
                   .run =
                       [this](const std::string& command) {
                         commands.push_back(command);
                         return commandResult;
                       },
                   .sendRaw = [](const platform::Printer&, std::string_view,
                                 const std::string&) { return std::nullopt; }};
  return seams;
}

ChosenFile Desk::answer(const QString& kind, const FileQuestion& question) {
  askedFor.push_back((kind + question.caption + "|" + question.filter).toStdString());
  lastQuestion = question;
  return {.path = chosenFile, .filter = chosenFilter};
}

std::unique_ptr<VrelMainWindow> Desk::openWindow() {
  auto window = std::make_unique<VrelMainWindow>(context, seams());
  window->layOutReport();
  window->resize(700, 400);
  window->show();
  QCoreApplication::processEvents();
  return window;
}

std::string Desk::lastMessage() const {
  if (announced.empty()) {
    return "(nothing announced)";
  }
  const std::string& line = announced.back();
  return directory.read(line.substr(3, line.size() - 4));
}

std::vector<std::string> Desk::logLines() const {
  return loggedLines(log);
}

Table supplyPlan() {
  Table table = tableOf("Item:String Place:String Week:Period Plan:Number Seen:Number", "W1 W2 W3",
                        {"Bolt Lyon W1 1200 11", "Bolt Lyon W2 1300 12", "Bolt Lyon W3 1400 13",
                         "Bolt Oslo W1 2200 21", "Bolt Oslo W2 2300 22", "Bolt Oslo W3 2400 23",
                         "Gear Lyon W1 3200 31", "Gear Lyon W2 3300 32", "Gear Lyon W3 3400 33",
                         "Gear Oslo W1 4200 41", "Gear Oslo W3 4400 43"});
  table.field(3).classification = Classification::DataReadWrite;
  return table;
}

QAction* menuEntry(const QMainWindow& window, const QString& menu, const QString& text) {
  const QAction* const title = entryIn(window.menuBar()->actions(), menu);
  return title == nullptr ? nullptr : entryIn(title->menu()->actions(), text);
}

}  // namespace vrel::test
