#include "expr/edit_history.h"

#include <algorithm>
#include <utility>

namespace vrel {
namespace {

// Changes that are kept at most: some hundred megabytes.
constexpr std::size_t kMostChanges = 10'000'000;

}  // namespace

void clear(EditHistory& history) {
  history.done.clear();
  history.undone.clear();
}

void addStep(EditHistory& history, EditStep step) {
  history.undone.clear();
  history.done.push_back(std::move(step));
  std::size_t changes = 0;
  const auto tooMany = [&changes](const EditStep& one) {
    changes += one.changes.size();
    return changes > kMostChanges;
  };
  const auto oldest = std::find_if(history.done.rbegin(), history.done.rend(), tooMany);
  history.done.erase(history.done.begin(), oldest.base());
}

}  // namespace vrel
