#include "base/working_directory.h"

#include "base/platform.h"

namespace vrel {

DirectoryVisit::DirectoryVisit(Log& log) : log_(log), home_(platform::currentDirectory()) {
  if (!home_) {
    logLine(log_, "Unable to determine current working directory");
  }
}

DirectoryVisit::~DirectoryVisit() {
  if (away_ && !platform::changeDirectory(*home_)) {
    logLine(log_, "Unable to return to working directory");
  }
}

bool DirectoryVisit::enter(const std::string& directory) {
  const bool entered = home_ && platform::changeDirectory(directory);
  away_ = away_ || entered;
  return entered;
}

}  // namespace vrel
