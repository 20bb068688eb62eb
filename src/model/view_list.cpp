#include "model/view_list.h"

#include <fmt/format.h>

#include "base/platform.h"
#include "base/text_file.h"
#include "base/working_directory.h"
#include "model/view_file.h"

namespace vrel {
namespace {

constexpr std::string_view kExtension = ".view";

bool fits(const ViewSearch& search, const std::string& name) {
  // Whoever opens a pipe waits for its other end.
  if (platform::isSpecialFile(name)) {
    return false;
  }
  const std::optional<std::string> file = readTextFile(name);
  return file && viewFileFits(search.table, *file, search.notice, search.errors);
}

}  // namespace

std::vector<std::string> validViewList(const ViewSearch& search, const std::string& directory) {
  std::vector<std::string> list;
  DirectoryVisit visit(search.log);
  if (!visit.home()) {
    return list;
  }
  if (!visit.enter(directory)) {
    logLine(search.log, "Unable to change to new directory");
    return list;
  }
  for (std::string& name : platform::directoryEntries(".")) {
    if (name.ends_with(kExtension) && fits(search, name)) {
      search.debug(fmt::format("Found file {}", name));
      list.push_back(std::move(name));
    }
  }
  search.errors.flush();
  search.debug("The list of views is not sorted");
  return list;
}

}  // namespace vrel
