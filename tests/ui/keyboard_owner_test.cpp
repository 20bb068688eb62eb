// Who has the keyboard: the report, a cell's editor, the menu bar or the find bar.
#include <gtest/gtest.h>

#include <QMenuBar>
#include <QTest>

#include "ui/desk.h"

namespace vrel {
namespace {

using test::Desk;
using test::supplyPlan;

// Rows 0 to 3 are "Bolt" and "Gear", each at two places; the plans can be edited.
struct KeyboardOwner : testing::Test {
  void open(const std::string& x = "Item Place", const std::string& pages = "") {
    desk = std::make_unique<Desk>(supplyPlan(), test::Axes{x, "Week", pages, "Plan"}, false);
    window = desk->openWindow();
    QApplication::setActiveWindow(window.get());
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    regular = window->tables().regularTable();
    regular->setFocus();
  }

  static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  static void type(const std::string& text) {
    for (const char character : text) {
      QTest::keyClick(QApplication::focusWidget(), character);
    }
  }
  static void pressAlt() {
    QWidget* const owner = QApplication::focusWidget();
    QTest::keyPress(owner, Qt::Key_Alt, Qt::AltModifier);
    QTest::keyRelease(owner, Qt::Key_Alt);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  void openFindBar() {
    QTest::keyClick(window.get(), Qt::Key_F, Qt::ControlModifier);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  std::string cell(int row, int column) const {
    return window->tables().cellText(row, column).toStdString();
  }
  std::optional<GridPlace> place() const { return window->tables().currentPlace(); }
  QString editorText() const {
    return regular->cellEditor() == nullptr ? "(closed)" : regular->cellEditor()->text();
  }

  std::unique_ptr<Desk> desk;
  std::unique_ptr<VrelMainWindow> window;
  DataTable* regular = nullptr;
};

TEST_F(KeyboardOwner, KeysGoOnFromWhatWasFoundInTheOtherTable) {
  open();
  window->tables().setCurrentPlace({1, 3});
  openFindBar();
  type("gear");
  press(Qt::Key_Return);
  press(Qt::Key_Escape);
  EXPECT_EQ(place(), (GridPlace{2, 0}));
  press(Qt::Key_Down);
  EXPECT_EQ(place(), (GridPlace{3, 0}));
}

TEST_F(KeyboardOwner, FindingTakesWhatIsBeingTypedAndGivesTheKeyboardBackToTheReport) {
  open("Item", "Place");
  type("5");
  openFindBar();
  EXPECT_EQ(cell(0, 1), "5");
  press(Qt::Key_Escape);
  EXPECT_TRUE(regular->hasFocus()) << "not the buttons beside the page tabs";
}

TEST_F(KeyboardOwner, TheMenuBarGivesItBackToWhatIsBeingTyped) {
  open();
  type("1");
  pressAlt();
  ASSERT_TRUE(window->menuBar()->hasFocus());
  press(Qt::Key_Escape);
  type("2");
  EXPECT_EQ(editorText(), "12");
  EXPECT_EQ(cell(0, 2), "1,200") << "not taken yet";
  press(Qt::Key_Tab);
  EXPECT_EQ(cell(0, 2), "12");
}

TEST_F(KeyboardOwner, GoingFromTheMenuBarElsewhereTakesWhatIsBeingTyped) {
  open();
  type("1");
  pressAlt();
  ASSERT_TRUE(window->menuBar()->hasFocus());
  openFindBar();
  EXPECT_EQ(cell(0, 2), "1");
  EXPECT_EQ(editorText(), "(closed)");
  press(Qt::Key_Escape);
  EXPECT_TRUE(regular->hasFocus()) << "the menus do not get it back";
}

}  // namespace
}  // namespace vrel
