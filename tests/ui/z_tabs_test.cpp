#include "ui/z_tabs.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

namespace vrel {
namespace {

struct ZTabsTest : testing::Test {
  ZTabsTest() { tabs.resize(500, 40); }

  void setPages(int count, int current) {
    tabs.setPages(count, current, [](int page) { return QString("Page %1").arg(page + 1); });
    tabs.show();
  }
  QToolButton* button(const char* name) { return tabs.findChild<QToolButton*>(name); }
  QTabBar* bar() { return tabs.findChild<QTabBar*>("zTabBar"); }
  QList<int> pagesChosen() const {
    QList<int> pages;
    for (const auto& arguments : chosen) {
      pages << arguments[0].toInt();
    }
    return pages;
  }

  ZTabs tabs;
  QSignalSpy chosen{&tabs, &ZTabs::zIndexChanged};
};

TEST_F(ZTabsTest, IsFoundByItsNameAndHiddenWithoutPages) {
  EXPECT_EQ(tabs.objectName(), "zTabs");
  tabs.show();
  tabs.setPages(0, 0, {});
  EXPECT_FALSE(tabs.isVisible());
}

TEST_F(ZTabsTest, ShowsATabForEachPageAndMarksTheCurrentOne) {
  setPages(3, 1);
  EXPECT_EQ(bar()->count(), 3);
  EXPECT_EQ(bar()->tabText(2), "Page 3");
  EXPECT_EQ(bar()->currentIndex(), 1);
  EXPECT_TRUE(chosen.isEmpty());
}

TEST_F(ZTabsTest, AClickOnATabChoosesItsPage) {
  setPages(3, 0);
  QTest::mouseClick(bar(), Qt::LeftButton, {}, bar()->tabRect(2).center());
  EXPECT_EQ(pagesChosen(), QList<int>{2});
}

TEST_F(ZTabsTest, TheButtonsStepFromPageToPage) {
  setPages(3, 1);
  QTest::mouseClick(button("zTabsIncrement"), Qt::LeftButton);
  EXPECT_EQ(pagesChosen(), QList<int>{2});
  setPages(3, 2);
  QTest::mouseClick(button("zTabsDecrement"), Qt::LeftButton);
  EXPECT_EQ(pagesChosen(), (QList<int>{2, 1}));
}

TEST_F(ZTabsTest, NoStepLeadsBeyondTheFirstOrLastPage) {
  setPages(2, 0);
  EXPECT_FALSE(button("zTabsDecrement")->isEnabled());
  EXPECT_TRUE(button("zTabsIncrement")->isEnabled());
  tabs.decrementZIndex();
  setPages(2, 1);
  EXPECT_FALSE(button("zTabsIncrement")->isEnabled());
  tabs.incrementZIndex();
  EXPECT_TRUE(chosen.isEmpty());
}

TEST_F(ZTabsTest, OfThousandsOfPagesOnlyThoseAroundTheCurrentOneHaveTabs) {
  int textsMade = 0;
  tabs.setPages(5000, 3000, [&textsMade](int page) {
    ++textsMade;
    return QString::number(page);
  });
  EXPECT_EQ(textsMade, ZTabs::kMostTabs);
  EXPECT_EQ(bar()->count(), ZTabs::kMostTabs);
  EXPECT_EQ(bar()->tabText(bar()->currentIndex()), "3000");
  tabs.incrementZIndex();
  EXPECT_EQ(pagesChosen(), QList<int>{3001});
}

TEST_F(ZTabsTest, TheLastOfThousandsOfPagesStandsAtTheEnd) {
  setPages(5000, 4999);
  EXPECT_EQ(bar()->currentIndex(), ZTabs::kMostTabs - 1);
  EXPECT_EQ(bar()->tabText(ZTabs::kMostTabs - 1), "Page 5000");
}

TEST_F(ZTabsTest, ATabShowsItsTextAsItStandsAndCutsALongOne) {
  const QString name = "R&D " + QString(60, 'x');
  tabs.setPages(1, 0, [name](int) { return name; });
  EXPECT_EQ(bar()->tabText(0), "R&&D " + QString(35, 'x') + QString(QChar(0x2026)));
  EXPECT_EQ(bar()->tabToolTip(0), name);
}

TEST_F(ZTabsTest, EveryPartHasANameForAssistiveTools) {
  EXPECT_EQ(button("zTabsIncrement")->accessibleName(), "Next page");
  EXPECT_EQ(button("zTabsDecrement")->accessibleName(), "Previous page");
  EXPECT_EQ(bar()->accessibleName(), "Pages");
}

}  // namespace
}  // namespace vrel
