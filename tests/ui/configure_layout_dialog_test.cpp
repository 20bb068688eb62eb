#include "ui/configure_layout_dialog.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <algorithm>

#include "support/views.h"
#include "ui/desk.h"
#include "ui/z_tabs.h"

namespace vrel {
namespace {

using test::Desk;
using test::listsOf;
using test::menuEntry;
using test::supplyPlan;

using Lines = std::vector<std::string>;

constexpr const char* kMime = "x-qnt/x-order";

struct LayoutDialog : testing::Test {
  LayoutDialog() { open(); }

  void open() {
    menuEntry(*window, "&Configure", "Lay&out...")->trigger();
    dialog = window->findChild<ConfigureLayoutDialog*>("order dialog");
    QApplication::setActiveWindow(dialog);
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
  }

  FieldZone* zone(const char* name) const {
    auto* found = dialog->findChild<FieldZone*>(name);
    EXPECT_NE(found, nullptr) << name;
    return found;
  }

  // The button of a field as the zones have it.
  FieldButton* button(const QString& name) const {
    for (const char* each : {"columnsZone", "tabsZone", "spreadZone"}) {
      for (FieldButton* found : zone(each)->buttons()) {
        if (found->name() == name) {
          return found;
        }
      }
    }
    ADD_FAILURE() << name.toStdString();
    return nullptr;
  }

  // "zone: texts", as they stand below each other.
  std::string shown() const {
    Lines zones;
    for (const char* name : {"columnsZone", "tabsZone", "spreadZone"}) {
      QList<FieldButton*> buttons = zone(name)->findChildren<FieldButton*>();
      buttons.removeIf([](const FieldButton* each) { return each->isHidden(); });
      std::sort(buttons.begin(), buttons.end(),
                [](const FieldButton* a, const FieldButton* b) { return a->y() < b->y(); });
      std::string line;
      for (const FieldButton* each : buttons) {
        line += (line.empty() ? "" : " ") + each->text().toStdString();
      }
      zones.push_back(line);
    }
    return zones[0] + " / " + zones[1] + " / " + zones[2];
  }

  std::string focused() const {
    auto* found = qobject_cast<FieldButton*>(QApplication::focusWidget());
    return found == nullptr ? "(no field)" : found->name().toStdString();
  }

  static void press(QWidget* from, QPoint by, Qt::MouseButton with = Qt::LeftButton) {
    const QPoint at = from->rect().center();
    QTest::mousePress(from, with, {}, at);
    QMouseEvent moved(QEvent::MouseMove, at + by, from->mapToGlobal(at + by), Qt::NoButton, with,
                      Qt::NoModifier);
    QApplication::sendEvent(from, &moved);
  }

  // Drags over the zone to a height and drops there, as the toolkit does; returns whether the zone
  // took it.
  static bool drop(FieldZone* onto, int y, const QMimeData* mime) {
    const QPoint at(onto->width() / 2, y);
    QDragEnterEvent enter(at, Qt::MoveAction, mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(onto, &enter);
    if (!enter.isAccepted()) {
      QDropEvent unwanted(at, Qt::MoveAction, mime, Qt::LeftButton, Qt::NoModifier);
      unwanted.ignore();
      QApplication::sendEvent(onto, &unwanted);
      return unwanted.isAccepted();
    }
    QDragMoveEvent move(at, Qt::MoveAction, mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(onto, &move);
    QDropEvent dropped(at, Qt::MoveAction, mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(onto, &dropped);
    return dropped.isAccepted();
  }

  // Drags a field's button by the mouse; `meanwhile` happens while it is held over the report.
  void drag(const QString& name, const std::function<void(const QMimeData* mime)>& meanwhile) {
    int drags = 0;
    dialog->setRunDrag([&](QDrag& dragged) {
      ++drags;
      meanwhile(dragged.mimeData());
      return Qt::MoveAction;
    });
    press(button(name), {4, 0});
    EXPECT_EQ(drags, 1);
    QCoreApplication::processEvents();
  }

  void dragTo(const QString& name, FieldZone* onto, int y) {
    drag(name, [&](const QMimeData* mime) { EXPECT_TRUE(drop(onto, y, mime)); });
  }

  void key(const QString& name, Qt::Key key, Qt::KeyboardModifiers held) {
    button(name)->setFocus();
    QTest::keyClick(button(name), key, held);
    QCoreApplication::processEvents();
  }

  QStringList menuOf(const QString& name) {
    QTest::mouseClick(button(name), Qt::LeftButton);
    QStringList entries;
    for (const QAction* each : menu()->actions()) {
      entries << (each->isSeparator() ? "-" : each->text()) + (each->isEnabled() ? "" : " (off)");
    }
    return entries;
  }
  QMenu* menu() const { return dialog->findChild<QMenu*>("fieldMenu"); }
  // The letter is the entry's mnemonic.
  void choose(const QString& name, Qt::Key letter) {
    QTest::mouseClick(button(name), Qt::LeftButton);
    QTest::keyClick(menu(), letter);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    EXPECT_EQ(menu(), nullptr);
  }

  Desk desk{supplyPlan(), {"Item Place", "Week", "", "Plan Seen"}, true};
  std::unique_ptr<VrelMainWindow> window = desk.openWindow();
  ConfigureLayoutDialog* dialog = nullptr;
};

TEST_F(LayoutDialog, SaysWhatItsAreasAreFor) {
  EXPECT_EQ(dialog->windowTitle(), "Layout");
  EXPECT_FALSE(dialog->isModal());
  Lines texts;
  for (const QLabel* label : dialog->findChildren<QLabel*>()) {
    texts.push_back(label->text().toStdString());
  }
  std::sort(texts.begin(), texts.end());
  EXPECT_EQ(
      texts,
      (Lines{"By keyboard: Ctrl+Up and Ctrl+Down move a field within its area, Ctrl+Left and "
             "Ctrl+Right move it to the area beside it.",
             "Creating tabs:", "Drag and drop buttons into this area to create tabs in the report",
             "Drag and drop buttons into this area to spread data horizontally.",
             "Drag buttons up and down within the area below to rearrange column order",
             "Reordering columns:", "Spreading data horizontally:",
             "Use the buttons below to reorder the tabular data in the report. You will see "
             "the effects of reordering in the report in the main window"}));
}

TEST_F(LayoutDialog, ShowsAFlatButtonForEachFieldOfTheThreeLists) {
  EXPECT_EQ(shown(), "Item Place /  / Week");
  EXPECT_TRUE(button("Item")->isFlat());
  EXPECT_EQ(button("Item")->accessibleName(), "Item");
  EXPECT_EQ(zone("tabsZone")->accessibleName(), "Creating tabs:");
}

TEST_F(LayoutDialog, OpensWithTheFirstFieldInFocus) {
  EXPECT_EQ(focused(), "Item");
}

TEST_F(LayoutDialog, TheAreasHaveThePalettesWhite) {
  for (const char* name : {"columnsZone", "tabsZone", "spreadZone"}) {
    const QImage image = zone(name)->grab().toImage();
    EXPECT_EQ(image.pixelColor(image.width() / 2, image.height() - 3),
              dialog->palette().color(QPalette::Base))
        << name;
  }
}

TEST_F(LayoutDialog, ADragStartsAfterFourPixels) {
  int drags = 0;
  dialog->setRunDrag([&drags](QDrag&) {
    ++drags;
    return Qt::IgnoreAction;
  });
  press(button("Item"), {2, 1});
  EXPECT_EQ(drags, 0);
  QTest::mouseRelease(button("Item"), Qt::LeftButton, {}, {-5, -5});
  press(button("Item"), {5, 5}, Qt::RightButton);
  EXPECT_EQ(drags, 0);
  press(button("Item"), {-2, 2});
  EXPECT_EQ(drags, 1);
  EXPECT_FALSE(button("Item")->isDown());
}

TEST_F(LayoutDialog, ADragThatLeavesTheButtonBeforeItsFourPixelsStartsOnce) {
  int drags = 0;
  dialog->setRunDrag([&drags](QDrag&) {
    ++drags;
    return Qt::IgnoreAction;
  });
  FieldButton* const item = button("Item");
  const QPoint edge(item->width() / 2, item->height() - 1);
  const auto moveBy = [&](int way) {
    const QPoint at = edge + QPoint(0, way);
    QMouseEvent moved(QEvent::MouseMove, at, item->mapToGlobal(at), Qt::NoButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(item, &moved);
  };
  QTest::mousePress(item, Qt::LeftButton, {}, edge);
  for (const int way : {1, 2, 3}) {
    moveBy(way);
  }
  EXPECT_EQ(drags, 0);
  moveBy(4);
  moveBy(5);
  EXPECT_EQ(drags, 1);
}

TEST_F(LayoutDialog, WhatIsDraggedNamesTheButtonInEightBytes) {
  QByteArray item;
  QByteArray place;
  drag("Item", [&](const QMimeData* mime) {
    EXPECT_EQ(mime->formats(), QStringList(kMime));
    item = mime->data(kMime);
  });
  drag("Place", [&](const QMimeData* mime) { place = mime->data(kMime); });
  EXPECT_EQ(item.size(), 8);
  EXPECT_EQ(place.size(), 8);
  EXPECT_NE(item, place);
}

TEST_F(LayoutDialog, ADropIntoAnotherAreaChangesTheReportAtOnce) {
  EXPECT_EQ(window->tables().cellText(0, 1), "Lyon");
  dragTo("Place", zone("tabsZone"), 5);
  EXPECT_EQ(listsOf(desk.view), "x 0, y 2, z 1, data 3 4");
  EXPECT_EQ(shown(), "Item / Place / Week");
  EXPECT_EQ(window->findChild<ZTabs*>("zTabs")->isVisible(), true);
  EXPECT_EQ(window->tables().cellText(0, 1), "1,200");
  EXPECT_TRUE(desk.view.modified);
  EXPECT_EQ(focused(), "Place");
}

TEST_F(LayoutDialog, TheAreaOfHeadingsSpreadsTheDataAndThatOfColumnsLabelsTheRows) {
  dragTo("Place", zone("spreadZone"), 1);
  EXPECT_EQ(listsOf(desk.view), "x 0, y 1 2, data 3 4");
  EXPECT_EQ(
      window->model().headerData(1, Qt::Horizontal, Qt::DisplayRole).toString().section('\n', 0, 0),
      "Lyon");
  dragTo("Week", zone("columnsZone"), 1000);
  EXPECT_EQ(listsOf(desk.view), "x 0 2, y 1, data 3 4");
  EXPECT_EQ(window->tables().cellText(1, 1), "W2");
}

TEST_F(LayoutDialog, ADropBelowAllButtonsOfItsOwnAreaMovesAFieldToTheEnd) {
  dragTo("Item", zone("columnsZone"), zone("columnsZone")->height() - 2);
  EXPECT_EQ(listsOf(desk.view), "x 1 0, y 2, data 3 4");
  EXPECT_EQ(shown(), "Place Item /  / Week");
  EXPECT_EQ(window->tables().cellText(0, 0), "Lyon");
}

TEST_F(LayoutDialog, AFieldGoesInFrontOfTheFirstButtonWhoseLowerEdgeIsBelowTheDrop) {
  FieldZone* const columns = zone("columnsZone");
  const QRect item = button("Item")->geometry();
  EXPECT_EQ(columns->dropIndex(item.top()), 0);
  EXPECT_EQ(columns->dropIndex(item.top() + item.height() - 1), 0);
  EXPECT_EQ(columns->dropIndex(item.top() + item.height()), 1);
  EXPECT_EQ(columns->dropIndex(5000), 2);
  dragTo("Week", columns, item.top() + item.height());
  EXPECT_EQ(listsOf(desk.view), "x 0 2 1, data 3 4");
}

TEST_F(LayoutDialog, DownwardsTheFieldItselfDoesNotCount) {
  dragTo("Week", zone("columnsZone"), 1000);
  ASSERT_EQ(shown(), "Item Place Week /  / ");
  dragTo("Item", zone("columnsZone"), button("Week")->y() + 1);
  EXPECT_EQ(shown(), "Place Item Week /  / ");
}

TEST_F(LayoutDialog, ADropWhereTheFieldStandsChangesNothing) {
  const FieldButton* const before = button("Item");
  dragTo("Item", zone("columnsZone"), button("Place")->y() + 1);
  EXPECT_EQ(listsOf(desk.view), "x 0 1, y 2, data 3 4");
  EXPECT_FALSE(desk.view.modified);
  EXPECT_EQ(button("Item"), before);
}

TEST_F(LayoutDialog, ADropOfAnythingElseIsIgnored) {
  QMimeData text;
  text.setText("Item");
  QMimeData wrongType;
  wrongType.setData("x-qnt/x-other", button("Item")->identity());
  QMimeData wrongBytes;
  wrongBytes.setData(kMime, QByteArray(8, '\x01'));
  QMimeData tooShort;
  tooShort.setData(kMime, button("Item")->identity().left(7));
  QMimeData notDragged;
  notDragged.setData(kMime, button("Place")->identity());
  drag("Item", [&](const QMimeData*) {
    for (const QMimeData* mime : {&text, &wrongType, &wrongBytes, &tooShort, &notDragged}) {
      EXPECT_FALSE(drop(zone("tabsZone"), 5, mime));
      EXPECT_EQ(zone("tabsZone")->marked(), std::nullopt);
    }
  });
  EXPECT_EQ(listsOf(desk.view), "x 0 1, y 2, data 3 4");
  EXPECT_FALSE(desk.view.modified);
}

TEST_F(LayoutDialog, ADropWithoutADragOfThisDialogIsIgnored) {
  QMimeData foreign;
  foreign.setData(kMime, button("Item")->identity());
  EXPECT_FALSE(drop(zone("tabsZone"), 5, &foreign));
  EXPECT_EQ(listsOf(desk.view), "x 0 1, y 2, data 3 4");
}

TEST_F(LayoutDialog, ShowsWhereADropWouldGo) {
  FieldZone* const columns = zone("columnsZone");
  button("Week")->setFocus();
  const QImage calm = columns->grab().toImage();
  drag("Week", [&](const QMimeData* mime) {
    const auto moveTo = [&](int y) {
      QDragMoveEvent move({9, y}, Qt::MoveAction, mime, Qt::LeftButton, Qt::NoModifier);
      QApplication::sendEvent(columns, &move);
    };
    QDragEnterEvent enter({9, 1}, Qt::MoveAction, mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(columns, &enter);
    EXPECT_EQ(columns->marked(), 0);
    const QImage first = columns->grab().toImage();
    EXPECT_NE(first, calm);
    moveTo(button("Place")->y() + 1);
    EXPECT_EQ(columns->marked(), 1);
    EXPECT_NE(columns->grab().toImage(), first);
    moveTo(2000);
    EXPECT_EQ(columns->marked(), 2);
    QDragLeaveEvent leave;
    QApplication::sendEvent(columns, &leave);
    EXPECT_EQ(columns->marked(), std::nullopt);
  });
  EXPECT_EQ(columns->grab().toImage(), calm);
}

TEST_F(LayoutDialog, ARefreshWhileADropIsUnderWayKeepsTheButtons) {
  const FieldButton* const item = button("Item");
  drag("Item", [&](const QMimeData* mime) {
    dialog->showView();
    EXPECT_EQ(button("Item"), item);
    EXPECT_TRUE(drop(zone("tabsZone"), 5, mime));
  });
  EXPECT_EQ(shown(), "Place / Item / Week");
}

TEST_F(LayoutDialog, CtrlOrAltWithUpAndDownMovesAFieldWithinItsArea) {
  key("Item", Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(shown(), "Place Item /  / Week");
  EXPECT_EQ(focused(), "Item");
  EXPECT_TRUE(desk.view.modified);
  key("Item", Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ(shown(), "Item Place /  / Week");
  key("Item", Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(shown(), "Place Item /  / Week");
  key("Item", Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(shown(), "Item Place /  / Week");
  EXPECT_EQ(window->tables().cellText(0, 0), "Bolt");
}

TEST_F(LayoutDialog, CtrlWithLeftAndRightMovesAFieldToTheAreaBeside) {
  key("Item", Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(shown(), "Place / Item / Week");
  EXPECT_EQ(focused(), "Item");
  key("Item", Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(shown(), "Place /  / Item Week");
  key("Item", Qt::Key_Left, Qt::ControlModifier);
  key("Item", Qt::Key_Left, Qt::ControlModifier);
  EXPECT_EQ(shown(), "Item Place /  / Week");
  EXPECT_EQ(focused(), "Item");
}

TEST_F(LayoutDialog, AtTheEdgesTheKeysMoveNothing) {
  key("Item", Qt::Key_Up, Qt::ControlModifier);
  key("Item", Qt::Key_Left, Qt::ControlModifier);
  key("Place", Qt::Key_Down, Qt::ControlModifier);
  key("Week", Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(shown(), "Item Place /  / Week");
  EXPECT_FALSE(desk.view.modified);
}

TEST_F(LayoutDialog, PlainArrowsGoFromButtonToButton) {
  button("Item")->setFocus();
  const auto goTo = [this](Qt::Key key) {
    QTest::keyClick(QApplication::focusWidget(), key);
    return focused();
  };
  EXPECT_EQ(goTo(Qt::Key_Down), "Place");
  EXPECT_EQ(goTo(Qt::Key_Down), "Place");
  EXPECT_EQ(goTo(Qt::Key_Right), "Week") << "over the area without fields";
  EXPECT_EQ(goTo(Qt::Key_Right), "Week");
  EXPECT_EQ(goTo(Qt::Key_Left), "Item");
  EXPECT_EQ(goTo(Qt::Key_Up), "Item");
  EXPECT_EQ(listsOf(desk.view), "x 0 1, y 2, data 3 4");
}

TEST_F(LayoutDialog, TabGoesThroughTheButtonsAsTheyStand) {
  key("Place", Qt::Key_Up, Qt::ControlModifier);
  Lines order = {focused()};
  for (int i = 0; i < 3; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    order.push_back(QApplication::focusWidget()->objectName() == "okButton" ? "OK" : focused());
  }
  EXPECT_EQ(order, (Lines{"Place", "Item", "Week", "OK"}));
}

TEST_F(LayoutDialog, AClickShowsTheMovesInAMenu) {
  EXPECT_EQ(menuOf("Item"),
            (QStringList{"Move &Up\tCtrl+Up (off)", "Move &Down\tCtrl+Down", "-",
                         "Make a &Column (off)", "Make &Tabs", "&Spread Horizontally"}));
}

TEST_F(LayoutDialog, TheMenuKeyShowsThemToo) {
  QContextMenuEvent wanted(QContextMenuEvent::Keyboard, {2, 2},
                           button("Week")->mapToGlobal(QPoint(2, 2)));
  QApplication::sendEvent(button("Week"), &wanted);
  ASSERT_NE(menu(), nullptr);
  EXPECT_TRUE(menu()->isVisible());
  EXPECT_EQ(menu()->actions().last()->isEnabled(), false);
}

TEST_F(LayoutDialog, TheMenuMovesFields) {
  choose("Item", Qt::Key_D);
  EXPECT_EQ(shown(), "Place Item /  / Week");
  choose("Item", Qt::Key_U);
  EXPECT_EQ(shown(), "Item Place /  / Week");
  choose("Item", Qt::Key_S);
  EXPECT_EQ(shown(), "Place /  / Week Item");
  choose("Week", Qt::Key_T);
  EXPECT_EQ(shown(), "Place / Week / Item");
  choose("Item", Qt::Key_C);
  EXPECT_EQ(shown(), "Place Item / Week / ");
  EXPECT_EQ(dialog->focusWidget(), button("Item"));
}

TEST_F(LayoutDialog, AllFieldsMayLeaveAnArea) {
  key("Week", Qt::Key_Left, Qt::ControlModifier);
  key("Item", Qt::Key_Right, Qt::ControlModifier);
  key("Place", Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(shown(), " / Place Item Week / ");
  EXPECT_EQ(listsOf(desk.view), "z 1 0 2, data 3 4");
  EXPECT_EQ(window->tables().cellText(0, 0), "1,200");
}

TEST_F(LayoutDialog, FewerPagesLeaveAPageThatIsThere) {
  dragTo("Item", zone("tabsZone"), 0);
  desk.view.zIndex = 1;
  window->layOutReport();
  dragTo("Item", zone("columnsZone"), 0);
  EXPECT_EQ(desk.view.zIndex, 0);
  EXPECT_EQ(listsOf(desk.view), "x 0 1, y 2, data 3 4");
  EXPECT_EQ(window->tables().cellText(0, 2), "1,200");
}

TEST_F(LayoutDialog, FollowsTheViewWhereverItIsChanged) {
  desk.table.field(0).name = "R&D <b>";
  desk.view.axis(Axis::X) = {1};
  desk.view.axis(Axis::Z) = {0};
  window->layOutReport();
  QCoreApplication::processEvents();
  EXPECT_EQ(shown(), "Place / R&&D <b> / Week");
  EXPECT_EQ(button("R&D <b>")->accessibleName(), "R&D <b>");
}

TEST_F(LayoutDialog, ALayoutThatLeavesTheListsTouchesNoButton) {
  button("Place")->setFocus();
  const FieldButton* const place = button("Place");
  menuEntry(*window, "&Configure", "&Swap Data Row/Column")->trigger();
  EXPECT_EQ(button("Place"), place);
  EXPECT_EQ(focused(), "Place");
}

TEST_F(LayoutDialog, OkAndEscapeCloseItAndWhatWasMovedStays) {
  key("Item", Qt::Key_Down, Qt::ControlModifier);
  QTest::mouseClick(dialog->findChild<QPushButton*>("okButton"), Qt::LeftButton);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(listsOf(desk.view), "x 1 0, y 2, data 3 4");
  const ConfigureLayoutDialog* const first = dialog;
  open();
  EXPECT_EQ(dialog, first);
  EXPECT_TRUE(dialog->isVisible());
  QTest::keyClick(dialog, Qt::Key_Escape);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(listsOf(desk.view), "x 1 0, y 2, data 3 4");
}

TEST_F(LayoutDialog, EnterOnAFieldIsOk) {
  key("Item", Qt::Key_Return, {});
  EXPECT_FALSE(dialog->isVisible());
}

TEST_F(LayoutDialog, WhatIsMovedIsSavedAndOpenedAgain) {
  dragTo("Item", zone("tabsZone"), 0);
  desk.chosenFile = QString::fromStdString(desk.directory.path("moved.view"));
  menuEntry(*window, "&File", "Save &View As...")->trigger();
  key("Item", Qt::Key_Left, Qt::ControlModifier);
  desk.view.modified = false;
  menuEntry(*window, "&File", "&Open View...")->trigger();
  QCoreApplication::processEvents();
  EXPECT_EQ(desk.notice.shown, Lines());
  EXPECT_EQ(listsOf(desk.view), "x 1, y 2, z 0, data 3 4");
  EXPECT_EQ(shown(), "Place / Item / Week");
}

TEST_F(LayoutDialog, ARefusedTextInACellIsFirstToBeCorrected) {
  QApplication::setActiveWindow(window.get());
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  QTableView* const cells = window->tables().regularTable();
  cells->setFocus();
  window->tables().setCurrentPlace({0, 2});
  QTest::keyClicks(QApplication::focusWidget(), "1");
  QTest::keyClicks(QApplication::focusWidget(), " +");
  dragTo("Item", zone("tabsZone"), 0);
  EXPECT_EQ(listsOf(desk.view), "x 0 1, y 2, data 3 4");
  EXPECT_EQ(desk.dialogs.size(), 1) << "the error in the formula is shown";
}

TEST_F(LayoutDialog, WarnsWhenTheReportHasNotEnoughKeys) {
  desk.view.shortTitle = "plan.tbl";
  desk.view.axis(Axis::Y).clear();
  desk.view.axis(Axis::Hidden) = {2};
  dragTo("Item", zone("tabsZone"), 0);
  EXPECT_EQ(desk.notice.shown,
            (Lines{"warning|Data Editor|Not enough keys to properly display data\nextracted by "
                   "report\n\"plan.tbl\"."}));
}

TEST_F(LayoutDialog, WarnsOnceWhenTheCurrentValueStandsOnAnotherPageNow) {
  desk.view.axis(Axis::Y).clear();
  desk.view.axis(Axis::Hidden) = {2};
  window->layOutReport();
  window->tables().setCurrentPlace({3, 2});
  key("Item", Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(listsOf(desk.view), "x 1, z 0, data 3 4, hidden 2");
  EXPECT_EQ(desk.view.zIndex, 1);
  EXPECT_EQ(desk.notice.shown.size(), 1U);
}

TEST(LayoutDialogWithManyFields, ScrollsToTheButtonThatHasTheFocus) {
  std::string fields;
  std::string names;
  std::string line;
  for (int i = 0; i < 60; ++i) {
    fields += "K" + std::to_string(i) + ":String ";
    names += "K" + std::to_string(i) + " ";
    line += "v ";
  }
  Desk desk(test::tableOf(fields + "Qty:Number", "p", {line + "1"}), {names, "", "", "Qty"}, true);
  const std::unique_ptr<VrelMainWindow> window = desk.openWindow();
  menuEntry(*window, "&Configure", "Lay&out...")->trigger();
  auto* dialog = window->findChild<ConfigureLayoutDialog*>("order dialog");
  QApplication::setActiveWindow(dialog);
  ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
  auto* zone = dialog->findChild<FieldZone*>("columnsZone");
  EXPECT_LT(dialog->height(), 800);
  EXPECT_GT(zone->height(), dialog->height());
  zone->buttons().at(58)->setFocus();
  QTest::keyClick(zone->buttons().at(58), Qt::Key_Down, Qt::ControlModifier);
  QCoreApplication::processEvents();
  const FieldButton* const last = zone->buttons().last();
  EXPECT_EQ(last->name(), "K58");
  EXPECT_TRUE(last->hasFocus());
  EXPECT_FALSE(last->visibleRegion().isEmpty());
}

}  // namespace
}  // namespace vrel
