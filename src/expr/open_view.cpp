#include "expr/open_view.h"

#include <algorithm>

#include "base/platform.h"
#include "base/text_file.h"
#include "base/working_directory.h"
#include "expr/recalculation.h"

namespace vrel {
namespace {

constexpr const char* kUserViewFolder = "UserViews";

// The view's path, which still leads to it when the working directory is another one.
std::string userViewPath(const std::string& directory, const std::string& name) {
  return directory + platform::kPathSeparator + kUserViewFolder + platform::kPathSeparator + name;
}

}  // namespace

OpenedView openViewFile(const std::string& path, const Table& table, const ViewReading& reading) {
  OpenedView opened{.path = path, .fault = ViewFault::None, .parsed = std::nullopt};
  const std::optional<std::string> file = readTextFile(path);
  if (!file) {
    opened.fault = ViewFault::CannotOpen;
    return opened;
  }
  opened.parsed = parseFittingView(*file, table, reading.notice, reading.errors);
  reading.errors.flush();
  if (!opened.parsed) {
    opened.fault = ViewFault::DoesNotMatch;
  }
  return opened;
}

bool takeOpenedView(ReportView& view, OpenedView opened, const ViewReading& reading) {
  if (!opened.parsed) {
    return false;
  }
  ReportView fresh = makeReportView(*view.table, reading.notice);
  fresh.shortTitle = view.shortTitle;
  if (!applyView(fresh, *std::move(opened.parsed), reading.format, reading.environment,
                 reading.notice)) {
    return false;
  }
  fresh.fileName = std::move(opened.path);
  view = std::move(fresh);
  recalculateTable(*view.table, reading.notice, reading.formulaScratch, reading.functions);
  return true;
}

std::string userViewName(std::string_view shortTitle) {
  return std::string(shortTitle.substr(0, shortTitle.rfind('.') + 1)).append("view");
}

bool chooseUserView(ReportView& view, const ViewSearch& search, const ViewReading& reading) {
  if (view.shortTitle.empty()) {
    return false;
  }
  DirectoryVisit visit(search.log);
  // Most reports come without a folder of user views.
  if (!visit.enter(kUserViewFolder)) {
    return false;
  }
  const std::vector<std::string> list = validViewList(search, ".");
  const std::string name = userViewName(view.shortTitle);
  if (std::find(list.begin(), list.end(), name) == list.end()) {
    return false;
  }
  OpenedView opened = openViewFile(name, *view.table, reading);
  opened.path = userViewPath(*visit.home(), name);
  return takeOpenedView(view, std::move(opened), reading);
}

}  // namespace vrel
