// Everything that lives as long as the process.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "base/log.h"
#include "base/notice.h"
#include "base/paths.h"
#include "cmd/interpreter.h"
#include "model/format_settings.h"
#include "model/report_view.h"
#include "model/table.h"
#include "output/text_export.h"
#include "ui/editor.h"

namespace vrel {

struct Session {
  Interpreter interpreter;
  Log log;
  EnvironmentLookup environment;
  /// Notices as lines on the interpreter's output.
  std::unique_ptr<Notice> consoleNotice;
  /// The notice in force; the window replaces it while it is up.
  Notice* notice = nullptr;
  FormatSettings format;
  ExportSwitches exports;
  std::unique_ptr<Table> table;
  /// Built over `table`; null before a table or view was read.
  std::unique_ptr<ReportView> view;
  std::vector<std::string> arguments;
  /// Empty until `ui` starts.
  std::string lastViewFileName;
  std::string childParameters;
  // Stored for the command files that set them; nothing asks for them.
  bool xsync = false;
  bool abortOnWarnings = false;
  bool exitOnCmdError = false;
};

}  // namespace vrel
