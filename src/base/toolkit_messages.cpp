#include "base/toolkit_messages.h"

#include <cstdio>
#include <cstdlib>

#include "base/platform.h"

namespace vrel {

void toolkitMessage(ToolkitMessageFilter& filter, ToolkitMessage kind, std::string_view text) {
  if (!filter.enabled) {
    filter.enabled = platform::environmentIsSet("QNT_ENABLE_CONSOLE_DEBUG_INFO");
  }
  if (!*filter.enabled || kind == ToolkitMessage::Critical) {
    return;
  }
  std::fwrite(text.data(), 1, text.size(), stdout);
  std::fputc('\n', stdout);
  std::fflush(stdout);
  if (kind == ToolkitMessage::Fatal) {
    std::abort();
  }
}

}  // namespace vrel
