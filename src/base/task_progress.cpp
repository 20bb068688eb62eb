#include "base/task_progress.h"

#include <algorithm>

namespace vrel {
namespace {

constexpr std::chrono::milliseconds kBetweenTold{50};

// A part counts as this many steps to whoever is told.
constexpr std::uint64_t kStepsOfPart = 1000;

}  // namespace

TaskProgress::TaskProgress(Notice& notice, std::string_view task, std::size_t parts)
    : notice_(notice), task_(notice.translate(task)), parts_(parts), nextTold_(Clock::now()) {}

TaskProgress::~TaskProgress() {
  const std::uint64_t total = parts_ * kStepsOfPart;
  notice_.progress(task_, total, total);
}

bool TaskProgress::at(std::size_t part, std::size_t done, std::size_t count) {
  if (cancelled_ || Clock::now() < nextTold_) {
    return !cancelled_;
  }
  const std::uint64_t step = count == 0 ? 0 : done * kStepsOfPart / count;
  const std::uint64_t total = parts_ * kStepsOfPart;
  // The end is told once, by the destructor.
  cancelled_ = !notice_.progress(task_, std::min(part * kStepsOfPart + step, total - 1), total);
  nextTold_ = Clock::now() + kBetweenTold;
  return !cancelled_;
}

}  // namespace vrel
