// The view files in a directory.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/log.h"
#include "base/notice.h"
#include "base/text_output.h"
#include "model/table.h"

namespace vrel {

/// What view files are looked for with. Nothing is owned.
struct ViewSearch {
  const Table& table;
  Log& log;
  /// Writes a line to the debug output.
  std::function<void(std::string_view text)> debug;
  Notice& notice;
  /// Where faults in view files are told.
  TextOutput& errors;
};

/// The names of the view files in a directory that fit the table, in the directory's order.
std::vector<std::string> validViewList(const ViewSearch& search, const std::string& directory);

}  // namespace vrel
