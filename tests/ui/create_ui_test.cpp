#include "ui/create_ui.h"

#include <gtest/gtest.h>

#include <clocale>
#include <map>

#include "support/inside.h"
#include "support/views.h"
#include "ui/desk.h"
#include "ui/editor_application.h"

namespace vrel {
namespace {

using test::Desk;
using test::supplyPlan;

struct CreateUITest : testing::Test {
  Desk desk{supplyPlan(), {"Item Place", "Week", "", "Plan"}, true};
};

TEST_F(CreateUITest, ShowsTheReportInAMaximisedWindow) {
  const auto window = CreateUI(desk.context, desk.seams());
  EXPECT_TRUE(window->isVisible());
  EXPECT_TRUE(window->isMaximized());
  EXPECT_EQ(window->windowTitle(), "Data Editor");
  EXPECT_FALSE(window->windowIcon().isNull());
  EXPECT_EQ(window->tables().cellText(0, 2), "1,200");
}

TEST_F(CreateUITest, RestoresTheNormalCursor) {
  const auto window = CreateUI(desk.context, desk.seams());
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(CreateUITest, ATitleNamesTheWindow) {
  desk.context.title = "/data/100%1 models/week12.dat";
  const auto window = CreateUI(desk.context, desk.seams());
  EXPECT_EQ(window->windowTitle(), "Output of: /data/100%1 models/week12.dat");
}

// A report that is named after week12.dat, in a folder where there may be views of the user's own.
struct UserViewTest : CreateUITest {
  UserViewTest() {
    own.userTitle = "My own view";
    desk.view.shortTitle = "week12.dat";
  }

  std::unique_ptr<VrelMainWindow> windowWith(const std::string& userView) {
    folder.write("UserViews/" + userView, test::savedText(own));
    return CreateUI(desk.context, desk.seams());
  }

  test::TemporaryDirectory folder;
  test::Inside inside{folder.path()};
  ReportView own = desk.view;
};

TEST_F(UserViewTest, IsShownWhenItBelongsToTheTitle) {
  const auto window = windowWith("week12.view");
  EXPECT_EQ(desk.view.userTitle, "My own view");
  EXPECT_TRUE(window->findChild<QLabel*>("reportTitle")->text().startsWith("My own view"));
}

TEST_F(UserViewTest, OfAnotherTitleLeavesTheCurrentView) {
  const auto window = windowWith("other.view");
  EXPECT_EQ(desk.view.userTitle, "");
}

TEST_F(UserViewTest, IsSpokenOfOnceTheWindowStandsThere) {
  own.axis(Axis::X) = {0};
  own.axis(Axis::Hidden) = {1};
  own.periodFileName = "none.per";
  desk.environment = [](const char* name) {
    return std::string_view(name) == "QNT_REPORT_WARN_DUPLICATE" ? "YES" : std::string();
  };
  const auto window = windowWith("week12.view");
  EXPECT_EQ(desk.notice.shown, std::vector<std::string>{});
  EXPECT_EQ(desk.noticeInForce, &desk.notice);
  QCoreApplication::processEvents();
  EXPECT_EQ(desk.notice.shown,
            (std::vector<std::string>{
                "warning|Data Editor|Warning: Some data with non-unique keys was removed.",
                "critical|Data Editor|Unable to open file \"none.per\"."}));
}

TEST_F(CreateUITest, WarnsWhenTheKeysDoNotSuffice) {
  desk.view.axis(Axis::X) = {0};
  desk.view.axis(Axis::Hidden) = {1};
  const auto window = CreateUI(desk.context, desk.seams());
  QCoreApplication::processEvents();
  EXPECT_EQ(desk.notice.shown,
            std::vector<std::string>{"warning|Data Editor|Not enough keys to properly display "
                                     "data\nextracted by report\n\"\"."});
}

EnvironmentLookup environmentOf(std::map<std::string, std::string> variables) {
  return [variables = std::move(variables)](const char* name) {
    const auto found = variables.find(name);
    return found == variables.end() ? std::string() : found->second;
  };
}

#ifndef Q_OS_WIN
TEST(PlatformPlugins, EndWithTheOneThatAlwaysStarts) {
  EXPECT_EQ(platformPlugins(environmentOf({{"DISPLAY", ":0"}})), "xcb;offscreen");
  EXPECT_EQ(platformPlugins(environmentOf({{"WAYLAND_DISPLAY", "wayland-0"}})),
            "wayland;xcb;offscreen");
}
#endif

TEST(PlatformPlugins, AreThoseThatTheUserChose) {
  EXPECT_EQ(platformPlugins(environmentOf({{"QT_QPA_PLATFORM", "vnc"}})), "vnc;offscreen");
  EXPECT_EQ(platformPlugins(environmentOf({{"QT_QPA_PLATFORM", "offscreen"}})), "offscreen");
}

TEST(EditorApplication, KeepsNumbersAndDatesInTheProgramsOwnForm) {
  EXPECT_STREQ(std::setlocale(LC_CTYPE, nullptr), "C.UTF-8");
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
  EXPECT_STREQ(std::setlocale(LC_TIME, nullptr), "C");
}

TEST(EditorApplication, PassesDiagnosticsThroughTheConsoleFilter) {
  testing::internal::CaptureStdout();
  {
    const FilteredToolkitMessages filtered;
    qDebug("a debug message");
    qWarning("a warning");
    qCritical("a critical message");
  }
  qDebug("not for the console");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "a debug message\na warning\n");
}

}  // namespace
}  // namespace vrel
