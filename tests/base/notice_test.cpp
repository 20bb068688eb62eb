#include "base/notice.h"

#include <gtest/gtest.h>

#include "support/views.h"

namespace vrel {
namespace {

TEST(NoticeText, HasTheValueInItsPlaceAfterTheTranslation) {
  test::SilentNotice notice;
  EXPECT_EQ(noticeText(notice, "No \"%1\" here", "a%1b"), "[No \"a%1b\" here]");
  EXPECT_EQ(noticeText(notice, "Nothing here", "a"), "[Nothing here]");
}

TEST(EditorTitle, IsTranslated) {
  test::SilentNotice notice;
  EXPECT_EQ(editorTitle(notice), "[Data Editor]");
}

}  // namespace
}  // namespace vrel
