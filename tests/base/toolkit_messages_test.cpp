#include "base/toolkit_messages.h"

#include <gtest/gtest.h>

namespace vrel {
namespace {

std::string consoleOf(bool enabled, ToolkitMessage kind) {
  ToolkitMessageFilter filter{enabled};
  testing::internal::CaptureStdout();
  toolkitMessage(filter, kind, "text");
  return testing::internal::GetCapturedStdout();
}

TEST(ToolkitMessages, DebugAndWarningMessagesReachTheConsoleWhenEnabled) {
  EXPECT_EQ(consoleOf(true, ToolkitMessage::Debug), "text\n");
  EXPECT_EQ(consoleOf(true, ToolkitMessage::Warning), "text\n");
}

TEST(ToolkitMessages, CriticalMessagesAreDropped) {
  EXPECT_EQ(consoleOf(true, ToolkitMessage::Critical), "");
}

TEST(ToolkitMessages, WhenNotEnabledAllAreDroppedFatalOnesToo) {
  EXPECT_EQ(consoleOf(false, ToolkitMessage::Debug), "");
  EXPECT_EQ(consoleOf(false, ToolkitMessage::Warning), "");
  EXPECT_EQ(consoleOf(false, ToolkitMessage::Critical), "");
  EXPECT_EQ(consoleOf(false, ToolkitMessage::Fatal), "");
}

#ifndef _WIN32
TEST(ToolkitMessagesDeathTest, AFatalMessageIsShownAndAborts) {
  ToolkitMessageFilter filter{true};
  EXPECT_EXIT(
      {
        // The death test looks at standard error.
        dup2(2, 1);
        toolkitMessage(filter, ToolkitMessage::Fatal, "it broke");
      },
      testing::KilledBySignal(SIGABRT), "it broke\n");
}

TEST(ToolkitMessages, AnyValueOfTheVariableEnablesOnceForAll) {
  ASSERT_EQ(setenv("QNT_ENABLE_CONSOLE_DEBUG_INFO", "", 1), 0);
  ToolkitMessageFilter filter;
  testing::internal::CaptureStdout();
  toolkitMessage(filter, ToolkitMessage::Debug, "first");
  ASSERT_EQ(unsetenv("QNT_ENABLE_CONSOLE_DEBUG_INFO"), 0);
  toolkitMessage(filter, ToolkitMessage::Debug, "second");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "first\nsecond\n");
  ToolkitMessageFilter later;
  testing::internal::CaptureStdout();
  toolkitMessage(later, ToolkitMessage::Debug, "third");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}
#endif

}  // namespace
}  // namespace vrel
