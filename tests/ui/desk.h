// A table, a view and everything else that a window works on, with a person who answers at once.
#pragma once

#include <QAction>
#include <QMainWindow>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "support/tables.h"
#include "support/temporary_directory.h"
#include "ui/editor.h"
#include "ui/main_window.h"

namespace vrel::test {

/// Notes every notice and answers questions with `answer` and `confirms`.
class AnsweringNotice : public Notice {
 public:
  Answer answer = Answer::Cancel;
  bool confirms = false;
  /// "kind|title|text", in order.
  std::vector<std::string> shown;

  void critical(std::string_view title, std::string_view text) override;
  void warning(std::string_view title, std::string_view text) override;
  Answer question(std::string_view title, std::string_view text) override;
  bool confirm(std::string_view title, std::string_view text) override;
  void beep() override {}
  bool progress(std::string_view, std::uint64_t, std::uint64_t) override { return true; }
  std::string translate(std::string_view text) override;
  bool hasWindow() const override { return true; }

 private:
  void note(std::string_view kind, std::string_view title, std::string_view text);
};

/// Names of fields by axis, separated by blanks.
struct Axes {
  std::string x;
  std::string y;
  std::string z;
  std::string data;
};

/// Owns what a session owns, over a table made by `tableOf`.
class Desk {
 public:
  Desk(Table table, const Axes& axes, bool dataInColumns);
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;
  ~Desk();

  /// Seams that count endings and hand out `chosenFile`, chosen from `chosenFilter`.
  WindowSeams seams();
  /// A shown window with the report laid out.
  std::unique_ptr<VrelMainWindow> openWindow();
  /// The message file that was announced last.
  std::string lastMessage() const;
  /// The lines logged so far, without their times.
  std::vector<std::string> logLines() const;

  /// Where message files go.
  TemporaryDirectory directory;
  Table table;
  FormatSettings format;
  ExportSwitches exports;
  Log log;
  ToolkitMessageFilter toolkitMessages;
  EnvironmentLookup environment;
  /// What was told about faulty view files.
  std::string errorText;
  TextOutput errors;
  Settings settings;
  FunctionRegistry functions;
  Cell formulaScratch = emptyCell();
  /// The lines announced to the host.
  std::vector<std::string> announced;
  AnsweringNotice notice;
  Notice* noticeInForce = &notice;
  ReportView view;
  EditorContext context;
  int endings = 0;
  /// The titles and labels of the dialogs that were shown.
  QStringList dialogs;
  /// What the user does in each dialog that is shown.
  std::function<void(QDialog& dialog)> inDialog = [](QDialog&) {};
  /// The printers there are, the commands that were run, and their result.
  std::vector<platform::Printer> printers;
  std::vector<std::string> commands;
  int commandResult = 0;
  /// What file dialogs are answered with.
  QString chosenFile;
  QString chosenFilter;
  /// "open" or "save", caption and filter of each file dialog, in order.
  std::vector<std::string> askedFor;
  FileQuestion lastQuestion;

 private:
  ChosenFile answer(const QString& kind, const FileQuestion& question);
};

/// Two items at two places over three weeks, 24 data cells in two fields: "Plan" can be edited,
/// "Seen" only read. One combination has no tuple.
Table supplyPlan();

/// The entry of that text in a menu of the menu bar or in one of its submenus; null when there is
/// none.
QAction* menuEntry(const QMainWindow& window, const QString& menu, const QString& text);

}  // namespace vrel::test
