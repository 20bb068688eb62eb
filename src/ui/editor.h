// The door to the window: what the commands know of it. No toolkit type passes through here, so
// that the window's module is loaded only when a window is needed.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/log.h"
#include "base/notice.h"
#include "base/paths.h"
#include "base/settings_file.h"
#include "base/text_output.h"
#include "base/toolkit_messages.h"
#include "expr/function_registry.h"
#include "expr/host_messages.h"
#include "model/format_settings.h"
#include "model/report_view.h"
#include "output/text_export.h"

namespace vrel {

/// What the window works on; everything is owned by the session and outlives the window.
struct EditorContext {
  ReportView& view;
  FormatSettings& format;
  ExportSwitches& exports;
  Log& log;
  ToolkitMessageFilter& toolkitMessages;
  const EnvironmentLookup& environment;
  /// Standard error: where faults in view files and failing exports are told.
  TextOutput& errors;
  /// The user's, as the settings file has them.
  Settings& settings;
  /// What formulas may call, and where they keep their scratch field.
  const FunctionRegistry& functions;
  Cell& formulaScratch;
  /// The road of accepted edits.
  HostLink host;
  /// The session's notice; the window puts message boxes in its place while it is up.
  Notice*& notice;
  /// The process's command-line words, the program path first.
  std::vector<std::string> arguments;
  /// The title argument, escapes decoded; nothing without one.
  std::optional<std::string> title;
  /// Readable as soon as the process is asked to terminate; -1 when there is none.
  int terminationDescriptor = -1;
  /// Saves what must be saved and ends the process.
  std::function<void()> terminate;
};

/// How the window came to its end. Closing it is ending the process, with exit status 0: nothing
/// is written to the host after it.
enum class EditorResult { Closed, NoDisplay };

/// Shows the window and runs its event loop until the last window is closed.
using RunEditor = EditorResult(EditorContext& context);

/// Name of the module, and of the function in it, that runs the editor.
inline constexpr const char* kEditorModule = "vrel_ui";
inline constexpr const char* kRunEditorFunction = "vrelRunEditor";

}  // namespace vrel
