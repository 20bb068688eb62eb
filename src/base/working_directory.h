// Visits to other directories: the process's working directory, changed for a while.
#pragma once

#include <optional>
#include <string>

#include "base/log.h"

namespace vrel {

/// Takes the process into another directory and, when the object ends, back to where it was.
class DirectoryVisit {
 public:
  /// Remembers the working directory; the log says when it cannot be had. The log must outlive the
  /// object.
  explicit DirectoryVisit(Log& log);
  DirectoryVisit(const DirectoryVisit&) = delete;
  DirectoryVisit& operator=(const DirectoryVisit&) = delete;
  /// Returns, if anything was entered; the log says when that fails.
  ~DirectoryVisit();

  /// Where the visit began; nothing when there is no way back.
  const std::optional<std::string>& home() const { return home_; }
  /// Makes a directory the current one. False, with nothing changed, when that fails or when there
  /// is no way back.
  bool enter(const std::string& directory);

 private:
  Log& log_;
  std::optional<std::string> home_;
  bool away_ = false;
};

}  // namespace vrel
