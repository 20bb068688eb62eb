// The console filter for the window toolkit's diagnostics.
#pragma once

#include <optional>
#include <string_view>

namespace vrel {

enum class ToolkitMessage { Debug, Warning, Critical, Fatal };

/// Whether diagnostics reach the console, decided by the environment at the first message.
struct ToolkitMessageFilter {
  std::optional<bool> enabled;
};

/// Passes debug and warning messages on to standard output when console diagnostics are enabled;
/// drops critical ones. A fatal message is shown the same way and then aborts the process. When
/// diagnostics are not enabled all are dropped, fatal ones too.
void toolkitMessage(ToolkitMessageFilter& filter, ToolkitMessage kind, std::string_view text);

}  // namespace vrel
