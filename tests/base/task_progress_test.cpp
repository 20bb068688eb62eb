#include "base/task_progress.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "support/views.h"

namespace vrel {
namespace {

class ToldNotice : public test::SilentNotice {
 public:
  bool progress(std::string_view task, std::uint64_t done, std::uint64_t total) override {
    told.push_back(std::string(task) + " " + std::to_string(done) + "/" + std::to_string(total));
    return !cancel;
  }

  std::vector<std::string> told;
  bool cancel = false;
};

TEST(TaskProgress, TellsTheFirstStepAndTheEnd) {
  ToldNotice notice;
  {
    TaskProgress progress(notice, "Writing", 4);
    EXPECT_TRUE(progress.at(1, 5, 10));
    EXPECT_FALSE(progress.isCancelled());
  }
  EXPECT_THAT(notice.told, testing::ElementsAre("[Writing] 1500/4000", "[Writing] 4000/4000"));
}

TEST(TaskProgress, DoesNotAskAtEveryStep) {
  ToldNotice notice;
  TaskProgress progress(notice, "Writing");
  for (int i = 0; i < 100; ++i) {
    progress.at(0, 0, 100);
  }
  EXPECT_LT(notice.told.size(), 50U);
}

TEST(TaskProgress, TellsNoEndBeforeTheTaskIsOver) {
  ToldNotice notice;
  TaskProgress progress(notice, "Writing");
  progress.at(0, 10, 10);
  EXPECT_THAT(notice.told, testing::ElementsAre("[Writing] 999/1000"));
}

TEST(TaskProgress, StaysCancelled) {
  ToldNotice notice;
  notice.cancel = true;
  TaskProgress progress(notice, "Writing");
  EXPECT_FALSE(progress.at(0, 1, 10));
  notice.cancel = false;
  EXPECT_FALSE(progress.at(0, 2, 10));
  EXPECT_TRUE(progress.isCancelled());
}

}  // namespace
}  // namespace vrel
