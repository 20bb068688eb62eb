// The smart-graph document: a table file as XML, for the graphs of the host.
#pragma once

#include <string>
#include <string_view>

#include "base/notice.h"
#include "base/task_progress.h"
#include "base/text_output.h"

namespace vrel {

struct SmartGraphFiles {
  /// A table file.
  std::string input;
  std::string output;
  /// The product's version, which the document names.
  std::string version;
};

/// What ends the document of an input in which a line has not as many values as there are fields.
inline constexpr const char* kSmartGraphMismatch =
    translatable("vrel", "Error: Data does not match fields");

/// Writes the document; returns whether it is whole. A file that cannot be opened or written is
/// told by a line on `errors`; that one, or a cancelled task, leaves an existing output as it was.
/// Where a line does not match the fields the document ends, with `kSmartGraphMismatch` in it.
bool writeSmartGraph(const SmartGraphFiles& files, TaskProgress& progress, TextOutput& errors);

}  // namespace vrel
