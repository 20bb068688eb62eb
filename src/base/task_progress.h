// Telling a person how far a long task is, without asking at every step.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>

#include "base/notice.h"

namespace vrel {

/// The progress of one task that consists of equally long parts, such as the pages of a document.
class TaskProgress {
 public:
  /// `task` is told in the user's language. The notice outlives the object.
  TaskProgress(Notice& notice, std::string_view task, std::size_t parts = 1);
  TaskProgress(const TaskProgress&) = delete;
  TaskProgress& operator=(const TaskProgress&) = delete;
  /// Tells that the task has come to its end.
  ~TaskProgress();

  /// From now on the task has this many parts.
  void setParts(std::size_t parts) { parts_ = parts; }

  /// `done` of the `count` steps of a part, counted from 0, are done. Returns false from the moment
  /// on when the user has cancelled the task. Cheap enough for every row of a report.
  bool at(std::size_t part, std::size_t done, std::size_t count);
  bool isCancelled() const { return cancelled_; }

 private:
  using Clock = std::chrono::steady_clock;

  Notice& notice_;
  std::string task_;
  std::size_t parts_;
  Clock::time_point nextTold_;
  bool cancelled_ = false;
};

}  // namespace vrel
