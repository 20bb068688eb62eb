#include "ui/create_ui.h"

#include <gtest/gtest.h>

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

TEST_F(CreateUITest, ATitleNamesTheWindowAndItsLastPartTheReport) {
  desk.context.title = "/data/100%1 models/week12.dat";
  const auto window = CreateUI(desk.context, desk.seams());
  EXPECT_EQ(window->windowTitle(), "Output of: /data/100%1 models/week12.dat");
  EXPECT_EQ(desk.view.shortTitle, "week12.dat");
}

TEST_F(CreateUITest, ATitleWithoutAFolderNamesTheReportAsItStands) {
  desk.context.title = "plan.tbl";
  const auto window = CreateUI(desk.context, desk.seams());
  EXPECT_EQ(desk.view.shortTitle, "plan.tbl");
}

EnvironmentLookup environmentOf(std::map<std::string, std::string> variables) {
  return [variables = std::move(variables)](const char* name) {
    const auto found = variables.find(name);
    return found == variables.end() ? std::string() : found->second;
  };
}

#ifndef Q_OS_WIN
TEST(Display, CannotBeOpenedWhenNoneIsNamed) {
  EXPECT_FALSE(canOpenDisplay(environmentOf({})));
}

TEST(Display, CannotBeOpenedWhenItsServerIsNotThere) {
  EXPECT_FALSE(canOpenDisplay(environmentOf({{"DISPLAY", ":9999"}})));
  EXPECT_FALSE(canOpenDisplay(environmentOf({{"DISPLAY", ":9999"}, {"QT_QPA_PLATFORM", "xcb"}})));
}
#endif

TEST(Display, IsNotAskedForWhenAnotherPlatformWasChosen) {
  EXPECT_TRUE(canOpenDisplay(environmentOf({{"QT_QPA_PLATFORM", "offscreen"}})));
  EXPECT_TRUE(canOpenDisplay(environmentOf({{"WAYLAND_DISPLAY", "wayland-0"}})));
}

TEST(DefaultFont, IsArialUnicodeAtEightPoints) {
  EXPECT_EQ(defaultFont().family(), "Arial Unicode MS");
  EXPECT_EQ(defaultFont().pointSize(), 8);
}

}  // namespace
}  // namespace vrel
