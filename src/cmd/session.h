// Everything that lives as long as the process.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "base/log.h"
#include "base/notice.h"
#include "base/paths.h"
#include "base/settings_file.h"
#include "base/text_output.h"
#include "cmd/console_notice.h"
#include "cmd/interpreter.h"
#include "expr/function_registry.h"
#include "model/format_settings.h"
#include "model/report_view.h"
#include "model/table.h"
#include "output/text_export.h"

namespace vrel {

/// Its parts refer to each other, so that it stays where it was made.
struct Session {
  Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  Interpreter interpreter;
  /// Standard error, where some messages go wherever the interpreter's output goes.
  std::unique_ptr<TextOutput> errors = std::make_unique<TextOutput>(standardErrorOutput());
  Log log;
  EnvironmentLookup environment = processEnvironment();
  /// Notices as lines on the interpreter's output.
  ConsoleNotice consoleNotice = ConsoleNotice(interpreter);
  /// The notice in force; the window replaces it while it is up.
  Notice* notice = &consoleNotice;
  FormatSettings format;
  /// What formulas may call.
  FunctionRegistry functions;
  /// The value of the formulas' scratch field.
  Cell formulaScratch = emptyCell();
  ExportSwitches exports;
  /// Never null; empty and not loaded until a table was read.
  std::unique_ptr<Table> table = std::make_unique<Table>();
  /// Built over `table`; null before a table or view was read.
  std::unique_ptr<ReportView> view;
  /// The process's command-line words, the program path first.
  std::vector<std::string> arguments;
  /// Empty until `ui` starts.
  std::string lastViewFileName;
  std::string childParameters;
  /// The window's user's; read when the window opens.
  Settings settings;
  // Stored for the command files that set them; nothing asks for them.
  bool xsync = false;
  bool abortOnWarnings = false;
  bool exitOnCmdError = false;
};

/// Writes out whatever is still held back on the way to the outside.
void flushAll(Session& session);

/// Sets the name of the last-view file from a title; from now on a termination request saves the
/// view there.
void setLastViewName(Session& session, std::string_view title);

/// Writes the view to the last-view file, when there is a view and the file can be written, and
/// ends the process with status 0.
void saveLastViewAndEnd(Session& session);

}  // namespace vrel
