#include "ui/configure_display_dialog.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QCheckBox>
#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QTest>

#include "expr/recalculation.h"
#include "support/formula_table.h"
#include "support/views.h"
#include "ui/desk.h"
#include "ui/field_list.h"

namespace vrel {
namespace {

using test::Desk;
using test::FormulaTable;
using test::listsOf;
using test::menuEntry;

using Lines = std::vector<std::string>;

// The days of cover follow from the lengths of the periods.
Table coverPlan() {
  FormulaTable made("Item:String Due:String Cost:Number Spare:Number Demand:Number Stock:Number",
                    "-", {"Bolt 1/31/2014 7 8 10 30", "Bolt 2/28/2014 7 8 10 1234.5"},
                    {{"Cover", "Depletion(#Demand, 0, #Stock, #d)"}});
  for (const int field : {0, 1}) {
    made.table.field(field).classification = Classification::Key;
  }
  return std::move(made.table);
}

struct DisplayDialog : testing::Test {
  DisplayDialog() {
    desk.view.axis(Axis::Hidden) = {3, 2};
    desk.view.precision = 1;
    desk.view.userTitle = "Plan";
    applyFormatSettings(desk.view, desk.format);
    FormulaContext context{.table = desk.table, .notice = desk.notice};
    recalculateTable(context, desk.functions);
    window = desk.openWindow();
    desk.view.modified = false;
  }

  // Opens the dialog; `use` is what the user does in it.
  void open(const std::function<void()>& use) {
    int shown = 0;
    desk.inDialog = [&](QDialog& opened) {
      ++shown;
      dialog = &opened;
      opened.show();
      QApplication::setActiveWindow(&opened);
      ASSERT_TRUE(QTest::qWaitForWindowActive(&opened));
      use();
    };
    menuEntry(*window, "&Configure", "&Display...")->trigger();
    EXPECT_EQ(shown, 1);
  }

  template <typename Control>
  Control* find(const char* name) const {
    auto* control = dialog->findChild<Control*>(name);
    EXPECT_NE(control, nullptr) << name;
    return control;
  }
  void click(const char* name) const {
    auto* button = find<QAbstractButton>(name);
    QTest::mouseClick(button, Qt::LeftButton, {}, {8, button->height() / 2});
  }
  void type(const char* name, const QString& text) const {
    auto* edit = find<QLineEdit>(name);
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
  }
  std::string text(const char* name) const { return find<QLineEdit>(name)->text().toStdString(); }
  bool isEnabled(const char* name) const { return find<QWidget>(name)->isEnabled(); }

  static std::string entries(const QListWidget& list) {
    std::string line;
    for (int row = 0; row < list.count(); ++row) {
      line += (line.empty() ? "" : " ") + list.item(row)->text().toStdString();
    }
    return line;
  }
  // "available / shown".
  std::string lists() const {
    return entries(*find<QListWidget>("availableList")) + " / " +
           entries(*find<QListWidget>("shownList"));
  }
  QListWidgetItem* entry(const char* list, const QString& name) const {
    return find<QListWidget>(list)->findItems(name, Qt::MatchExactly).value(0);
  }
  std::string heading(int column) const {
    return window->model()
        .headerData(column, Qt::Horizontal, Qt::DisplayRole)
        .toString()
        .toStdString();
  }
  // Clicks one entry, and more of them with Ctrl held.
  void select(const char* name, const QStringList& fields) const {
    auto* list = find<QListWidget>(name);
    Qt::KeyboardModifiers held;
    for (const QString& field : fields) {
      const QRect place = list->visualItemRect(entry(name, field));
      QTest::mouseClick(list->viewport(), Qt::LeftButton, held, place.center());
      held = Qt::ControlModifier;
    }
  }

  // Drags what is selected with an entry and drops it at a place of a list.
  void drag(const char* from, const QString& field, const char* to, QPoint place) const {
    auto* source = find<FieldList>(from);
    auto* target = find<FieldList>(to)->viewport();
    int drags = 0;
    source->setRunDrag([&](QDrag& dragged) {
      ++drags;
      const QMimeData* const mime = dragged.mimeData();
      QDragEnterEvent enter(place, Qt::MoveAction, mime, Qt::LeftButton, Qt::NoModifier);
      QApplication::sendEvent(target, &enter);
      EXPECT_TRUE(enter.isAccepted());
      QDragMoveEvent move(place, Qt::MoveAction, mime, Qt::LeftButton, Qt::NoModifier);
      QApplication::sendEvent(target, &move);
      EXPECT_TRUE(move.isAccepted());
      QDropEvent drop(place, Qt::MoveAction, mime, Qt::LeftButton, Qt::NoModifier);
      QApplication::sendEvent(target, &drop);
      EXPECT_TRUE(drop.isAccepted());
      return Qt::MoveAction;
    });
    const QPoint start = source->visualItemRect(entry(from, field)).center();
    QTest::mousePress(source->viewport(), Qt::LeftButton, {}, start);
    for (const int way : {3, 15, 30}) {
      const QPoint at = start + QPoint(way, 0);
      QMouseEvent moved(QEvent::MouseMove, at, source->viewport()->mapToGlobal(at), Qt::NoButton,
                        Qt::LeftButton, Qt::NoModifier);
      QApplication::sendEvent(source->viewport(), &moved);
    }
    EXPECT_EQ(drags, 1);
    QTest::mouseRelease(source->viewport(), Qt::LeftButton, {}, start);
  }

  Desk desk{coverPlan(), {"Item", "Due", "", "Demand Stock Cover"}, true};
  std::unique_ptr<VrelMainWindow> window;
  QDialog* dialog = nullptr;
};

TEST_F(DisplayDialog, ShowsTheSettingsOfTheView) {
  desk.view.repeatLabels = true;
  desk.view.periodFileName = "weeks.txt";
  open([&] {
    EXPECT_EQ(dialog->windowTitle(), "Display");
    EXPECT_EQ(lists(), "Cost Spare / Demand Stock Cover");
    EXPECT_TRUE(find<QCheckBox>("showDuplicateLabels")->isChecked());
    EXPECT_TRUE(find<QCheckBox>("showSystemTitle")->isChecked());
    EXPECT_FALSE(find<QCheckBox>("showEmptyRowsAndColumns")->isChecked());
    EXPECT_EQ(text("date"), "%d-%b-%Y");
    EXPECT_EQ(text("precisionText"), "1");
    EXPECT_EQ(text("periodFileText"), "weeks.txt");
    EXPECT_EQ(text("userTitleText"), "Plan");
    EXPECT_EQ(find<QGroupBox>("fieldsGroup")->title(), "Data Fields");
    EXPECT_EQ(find<QLabel>("shownLabel")->text(), "Show (Ordered)");
    EXPECT_EQ(find<QListWidget>("shownList")->accessibleName(), "Data Fields");
    EXPECT_EQ(find<QPushButton>("applyButton")->text(), "&Apply");
  });
}

TEST_F(DisplayDialog, MovesFieldsBetweenTheListsByItsButtons) {
  open([&] {
    select("availableList", {"Spare"});
    click("showButton");
    EXPECT_EQ(lists(), "Cost / Demand Stock Cover Spare");
    click("showButton");
    EXPECT_EQ(lists(), " / Demand Stock Cover Spare Cost") << "the next entry is selected";
    EXPECT_FALSE(isEnabled("showButton"));
    select("shownList", {"Demand", "Cover"});
    click("hideButton");
    EXPECT_EQ(lists(), "Demand Cover / Stock Spare Cost");
    click("applyButton");
    EXPECT_EQ(listsOf(desk.view), "x 0, y 1, data 5 3 2, hidden 4 6");
  });
  EXPECT_EQ(window->tables().cellText(0, 1), "30.0");
  EXPECT_EQ(window->tables().cellText(0, 2), "8.0");
}

TEST_F(DisplayDialog, MovesFieldsBetweenTheListsByADoubleClick) {
  open([&] {
    const auto doubleClick = [&](const char* name, const QString& field) {
      auto* list = find<QListWidget>(name);
      const QPoint place = list->visualItemRect(entry(name, field)).center();
      QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
      QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
    };
    doubleClick("availableList", "Cost");
    EXPECT_EQ(lists(), "Spare / Demand Stock Cover Cost");
    doubleClick("shownList", "Stock");
    EXPECT_EQ(lists(), "Spare Stock / Demand Cover Cost");
  });
}

TEST_F(DisplayDialog, OrdersTheShownFields) {
  open([&] {
    select("shownList", {"Cover"});
    click("upButton");
    EXPECT_EQ(lists(), "Cost Spare / Demand Cover Stock");
    click("upButton");
    click("upButton");
    EXPECT_EQ(lists(), "Cost Spare / Cover Demand Stock");
    select("shownList", {"Cover", "Demand"});
    click("downButton");
    EXPECT_EQ(lists(), "Cost Spare / Stock Cover Demand");
    click("downButton");
    EXPECT_EQ(lists(), "Cost Spare / Stock Cover Demand");
    click("applyButton");
    EXPECT_EQ(listsOf(desk.view), "x 0, y 1, data 5 6 4, hidden 3 2");
  });
}

TEST_F(DisplayDialog, TheButtonsThatMoveFieldsKeepTheKeyboard) {
  open([&] {
    const auto press = [&](const char* name) {
      auto* button = find<QPushButton>(name);
      button->setFocus();
      QTest::keyClick(button, Qt::Key_Space);
      EXPECT_TRUE(button->hasFocus()) << name;
    };
    select("shownList", {"Demand"});
    press("downButton");
    press("downButton");
    EXPECT_EQ(lists(), "Cost Spare / Stock Cover Demand");
    press("upButton");
    EXPECT_EQ(lists(), "Cost Spare / Stock Demand Cover");
    press("hideButton");
    EXPECT_EQ(lists(), "Cost Spare Demand / Stock Cover");
    select("availableList", {"Cost"});
    press("showButton");
    EXPECT_EQ(lists(), "Spare Demand / Stock Cover Cost");
  });
}

TEST_F(DisplayDialog, TheKeyboardAloneShowsAndOrdersFields) {
  open([&] {
    auto* available = find<QListWidget>("availableList");
    // A button that is pressed by its letter acts a little later.
    const auto press = [&](Qt::Key letter, const std::string& expected) {
      QTest::keyClick(QApplication::focusWidget(), letter, Qt::AltModifier);
      EXPECT_TRUE(QTest::qWaitFor([&] { return lists() == expected; })) << lists();
    };
    available->setFocus();
    QTest::keyClick(available, Qt::Key_Down);
    press(Qt::Key_S, "Cost / Demand Stock Cover Spare");
    press(Qt::Key_U, "Cost / Demand Stock Spare Cover");
    press(Qt::Key_N, "Cost / Demand Stock Cover Spare");
    press(Qt::Key_H, "Cost Spare / Demand Stock Cover");
  });
}

TEST_F(DisplayDialog, TheListsTakeNoDropFromElsewhere) {
  open([&] {
    QListWidget other;
    other.addItem("Foreign");
    const std::unique_ptr<QMimeData> mime(other.model()->mimeData({other.model()->index(0, 0)}));
    auto* list = find<QListWidget>("shownList");
    QDragEnterEvent enter({5, 5}, Qt::CopyAction | Qt::MoveAction, mime.get(), Qt::LeftButton,
                          Qt::NoModifier);
    QApplication::sendEvent(list->viewport(), &enter);
    EXPECT_FALSE(enter.isAccepted());
    QDropEvent drop({5, 5}, Qt::CopyAction | Qt::MoveAction, mime.get(), Qt::LeftButton,
                    Qt::NoModifier);
    QApplication::sendEvent(list->viewport(), &drop);
    EXPECT_EQ(lists(), "Cost Spare / Demand Stock Cover");
  });
}

TEST_F(DisplayDialog, FieldsAreDraggedWithinAndBetweenTheLists) {
  open([&] {
    const auto upper = [&](const char* list, const QString& field) {
      return find<QListWidget>(list)->visualItemRect(entry(list, field)).topLeft() + QPoint(20, 1);
    };
    const auto lower = [&](const char* list, const QString& field) {
      return find<QListWidget>(list)->visualItemRect(entry(list, field)).bottomLeft() +
             QPoint(20, -1);
    };
    drag("shownList", "Cover", "shownList", upper("shownList", "Demand"));
    EXPECT_EQ(lists(), "Cost Spare / Cover Demand Stock");
    drag("shownList", "Cover", "shownList", lower("shownList", "Demand"));
    EXPECT_EQ(lists(), "Cost Spare / Demand Cover Stock");
    drag("availableList", "Spare", "shownList", upper("shownList", "Stock"));
    EXPECT_EQ(lists(), "Cost / Demand Cover Spare Stock");
    drag("shownList", "Demand", "availableList", {20, 100});
    EXPECT_EQ(lists(), "Cost Demand / Cover Spare Stock");
    click("applyButton");
    EXPECT_EQ(listsOf(desk.view), "x 0, y 1, data 6 3 5, hidden 2 4");
  });
}

TEST_F(DisplayDialog, AllSelectedFieldsAreDragged) {
  open([&] {
    select("shownList", {"Demand", "Cover"});
    drag("shownList", "Cover", "availableList", {20, 1});
    EXPECT_EQ(lists(), "Demand Cover Cost Spare / Stock");
  });
}

TEST_F(DisplayDialog, ADragThatEndsNowhereLeavesTheFieldsWhereTheyAre) {
  open([&] {
    auto* list = find<FieldList>("shownList");
    list->setRunDrag([](QDrag&) { return Qt::IgnoreAction; });
    const QPoint start = list->visualItemRect(list->item(0)).center();
    QTest::mousePress(list->viewport(), Qt::LeftButton, {}, start);
    for (const int way : {3, 30}) {
      QMouseEvent moved(QEvent::MouseMove, start + QPoint(way, 0),
                        list->viewport()->mapToGlobal(start + QPoint(way, 0)), Qt::NoButton,
                        Qt::LeftButton, Qt::NoModifier);
      QApplication::sendEvent(list->viewport(), &moved);
    }
    EXPECT_EQ(lists(), "Cost Spare / Demand Stock Cover");
  });
}

TEST_F(DisplayDialog, AppliesOnlyWhileAFieldIsShown) {
  open([&] {
    select("shownList", {"Demand", "Stock", "Cover"});
    click("hideButton");
    EXPECT_EQ(lists(), "Cost Spare Demand Stock Cover / ");
    EXPECT_FALSE(isEnabled("applyButton"));
    EXPECT_FALSE(isEnabled("closeButton"));
    EXPECT_TRUE(isEnabled("cancelButton"));
    click("showButton");
    EXPECT_TRUE(isEnabled("applyButton"));
    EXPECT_TRUE(isEnabled("closeButton"));
  });
}

TEST_F(DisplayDialog, ApplyTakesAllSettingsAndLeavesTheDialogOpen) {
  open([&] {
    click("showDuplicateLabels");
    click("showSystemTitle");
    click("showEmptyRowsAndColumns");
    type("date", "%m/%Y");
    type("precisionText", "3");
    type("userTitleText", "Plan & <more>");
    EXPECT_FALSE(desk.view.modified);
    click("applyButton");
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(desk.view.modified);
    EXPECT_EQ(window->findChild<QLabel*>("reportTitle")->text(), "Plan & <more>");
    EXPECT_EQ(window->tables().cellText(0, 2), "30.000");
  });
  EXPECT_EQ(heading(1), "01/2014\nDemand");
  EXPECT_TRUE(desk.view.repeatLabels);
  EXPECT_FALSE(desk.view.showSystemTitle);
  EXPECT_TRUE(desk.view.showEmptyRowsAndColumns);
  EXPECT_EQ(desk.view.dateFormat, "%m/%Y");
  EXPECT_EQ(desk.format.dateFormat, "%m/%Y");
  EXPECT_EQ(desk.view.precision, 3);
  EXPECT_EQ(desk.view.userTitle, "Plan & <more>");
  EXPECT_EQ(desk.notice.shown, Lines());
}

TEST_F(DisplayDialog, WhatIsAppliedIsSavedAndOpenedAgain) {
  open([&] {
    select("shownList", {"Demand"});
    click("hideButton");
    click("showEmptyRowsAndColumns");
    type("precisionText", "0");
    type("userTitleText", "Other");
    click("closeButton");
  });
  desk.chosenFile = QString::fromStdString(desk.directory.path("shown.view"));
  menuEntry(*window, "&File", "Save &View As...")->trigger();
  open([&] {
    click("showEmptyRowsAndColumns");
    type("precisionText", "9");
    click("closeButton");
  });
  desk.view.modified = false;
  menuEntry(*window, "&File", "&Open View...")->trigger();
  open([&] {
    EXPECT_EQ(lists(), "Cost Spare Demand / Stock Cover");
    EXPECT_TRUE(find<QCheckBox>("showEmptyRowsAndColumns")->isChecked());
    EXPECT_EQ(text("precisionText"), "0");
    EXPECT_EQ(text("userTitleText"), "Other");
  });
  EXPECT_EQ(listsOf(desk.view), "x 0, y 1, data 5 6, hidden 3 2 4");
}

TEST_F(DisplayDialog, AnApplyThatChangesNothingLeavesTheViewUnmodified) {
  desk.view.precision = -1;
  open([&] {
    EXPECT_EQ(text("precisionText"), "6");
    click("showSystemTitle");
    click("showSystemTitle");
    click("applyButton");
    EXPECT_FALSE(desk.view.modified);
    click("closeButton");
  });
  EXPECT_FALSE(desk.view.modified);
  EXPECT_EQ(desk.view.precision, -1);
}

TEST_F(DisplayDialog, ATextThatIsNotEditedStaysAsItIs) {
  desk.view.userTitle = "two\nlines \xff";
  open([&] {
    click("showSystemTitle");
    click("applyButton");
  });
  EXPECT_FALSE(desk.view.showSystemTitle);
  EXPECT_EQ(desk.view.userTitle, "two\nlines \xff");
}

TEST_F(DisplayDialog, CancelAndEscapeLeaveTheViewAlone) {
  for (const bool byKey : {false, true}) {
    open([&] {
      type("userTitleText", "Other");
      click("showSystemTitle");
      if (byKey) {
        QTest::keyClick(dialog, Qt::Key_Escape);
      } else {
        click("cancelButton");
      }
      EXPECT_FALSE(dialog->isVisible());
    });
  }
  EXPECT_EQ(desk.view.userTitle, "Plan");
  EXPECT_TRUE(desk.view.showSystemTitle);
  EXPECT_FALSE(desk.view.modified);
}

TEST_F(DisplayDialog, CancelKeepsWhatWasApplied) {
  open([&] {
    type("userTitleText", "Applied");
    click("applyButton");
    type("userTitleText", "Not applied");
    click("cancelButton");
  });
  EXPECT_EQ(desk.view.userTitle, "Applied");
}

TEST_F(DisplayDialog, EnterTakesTheSettingsAndCloses) {
  open([&] {
    type("userTitleText", "Other");
    QTest::keyClick(find<QLineEdit>("userTitleText"), Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible());
  });
  EXPECT_EQ(desk.view.userTitle, "Other");
}

TEST_F(DisplayDialog, ThePrecisionTakesDigitsUpToItsLargestNumber) {
  open([&] {
    const auto typed = [&](const QString& keys) {
      type("precisionText", keys);
      return text("precisionText");
    };
    EXPECT_EQ(typed("-+4a.5 "), "45");
    EXPECT_EQ(typed("512"), "512");
    EXPECT_EQ(typed("513"), "51");
    EXPECT_EQ(typed("0007"), "000");
    EXPECT_TRUE(isEnabled("applyButton"));
    EXPECT_EQ(typed(""), "");
    EXPECT_FALSE(isEnabled("applyButton"));
    EXPECT_FALSE(isEnabled("closeButton"));
  });
}

TEST_F(DisplayDialog, ShowsAnExampleOfTheDateFormatWhileItIsTyped) {
  open([&] {
    const auto example = [&] { return find<QLabel>("dateExample")->text().toStdString(); };
    EXPECT_EQ(example(), "Example: 25-Aug-2014");
    type("date", "%Y");
    EXPECT_EQ(example(), "Example: 2014");
    type("date", "%Y week %U %");
    EXPECT_EQ(example().substr(0, 23), "Example: 2014 week 34 %");
    type("date", "");
    EXPECT_EQ(example(), "Example: 2014-08-25 17:30:00");
    find<QLineEdit>("date")->setText(QString(700, 'W'));
    EXPECT_LT(dialog->minimumSizeHint().width(), 1000);
  });
}

struct PeriodFile : DisplayDialog {
  void write(const std::string& name, const std::string& lines) const {
    desk.directory.write(name, lines);
  }
  QString path(const std::string& name) const {
    return QString::fromStdString(desk.directory.path(name));
  }
  // The cover of the first tuple, which lasts three periods of their stated lengths.
  std::string cover() { return window->tables().cellText(0, 3).toStdString(); }
};

TEST_F(PeriodFile, IsDefaultWhenTheViewHasNone) {
  open([&] {
    EXPECT_EQ(text("periodFileText"), "<default>");
    click("showSystemTitle");
    click("applyButton");
    EXPECT_EQ(desk.view.periodFileName, "");
    type("periodFileText", "");
    click("applyButton");
    EXPECT_EQ(desk.view.periodFileName, "");
  });
  EXPECT_EQ(desk.notice.shown, Lines());
}

TEST_F(PeriodFile, ChangedLengthsRecalculateTheFormulas) {
  ASSERT_EQ(cover(), "76.0") << "20 days, as no period is known before, and twice 28";
  write("periods.txt", "1/31/2014 days 5\n2/28/2014 days 7\n");
  open([&] {
    type("periodFileText", path("periods.txt"));
    click("applyButton");
    EXPECT_EQ(cover(), "19.0") << "5 days and twice 7";
    EXPECT_TRUE(desk.view.modified);
  });
  EXPECT_EQ(desk.view.periodFileName, desk.directory.path("periods.txt"));
  EXPECT_EQ(desk.notice.shown, Lines());
}

TEST_F(PeriodFile, IsTakenOutByEmptyingTheTextOrByDefault) {
  for (const char* none : {"", "  ", "<default>"}) {
    desk.view.periodFileName = "weeks.txt";
    open([&] {
      type("periodFileText", none);
      click("applyButton");
    });
    EXPECT_EQ(desk.view.periodFileName, "") << none;
  }
}

TEST_F(PeriodFile, SaysWhenItCannotBeOpened) {
  open([&] {
    type("periodFileText", path("missing.txt"));
    click("applyButton");
  });
  EXPECT_EQ(desk.notice.shown, (Lines{"critical|Data Editor|Unable to open file \"" +
                                      desk.directory.path("missing.txt") + "\"."}));
  EXPECT_EQ(desk.view.periodFileName, desk.directory.path("missing.txt"));
}

TEST_F(PeriodFile, ApplyReadsItAgainOnceItsErrorsAreCorrected) {
  write("periods.txt", "1/31/2014 Days 5\n2/28/2014 days 7\n");
  open([&] {
    type("periodFileText", path("periods.txt"));
    click("applyButton");
    EXPECT_EQ(desk.notice.shown, (Lines{"critical|Data Editor|Errors in period file \"line   1:  "
                                        "Invalid time unit\n\"."}));
    EXPECT_EQ(cover(), "34.0") << "the line without errors counts";
    write("periods.txt", "1/31/2014 days 5\n2/28/2014 days 7\n");
    desk.view.modified = false;
    click("applyButton");
    EXPECT_EQ(cover(), "19.0");
    EXPECT_FALSE(desk.view.modified) << "the view names the same file";
  });
  EXPECT_EQ(desk.notice.shown.size(), 1U);
}

TEST_F(PeriodFile, OtherSettingsDoNotReadItAgain) {
  desk.view.periodFileName = desk.directory.path("missing.txt");
  open([&] {
    click("showSystemTitle");
    click("applyButton");
    click("closeButton");
  });
  EXPECT_EQ(desk.notice.shown, Lines());
}

TEST_F(PeriodFile, IsLookedForBesideThePresentOne) {
  write("deeper/periods.txt", "");
  desk.view.periodFileName = desk.directory.path("deeper/periods.txt");
  desk.chosenFile = path("deeper/other.txt");
  open([&] {
    click("browseButton");
    EXPECT_EQ(text("periodFileText"), path("deeper/other.txt").toStdString());
    desk.chosenFile.clear();
    click("browseButton");
    EXPECT_EQ(text("periodFileText"), path("deeper/other.txt").toStdString());
  });
  EXPECT_EQ(desk.askedFor,
            (Lines{"open|Period File|All files (*)", "open|Period File|All files (*)"}));
  EXPECT_EQ(desk.lastQuestion.folder, path("deeper"));
  desk.view.periodFileName = "";
  open([&] { click("browseButton"); });
  EXPECT_EQ(desk.lastQuestion.folder, QDir::currentPath());
}

TEST_F(DisplayDialog, EveryControlHasANameForThoseWhoCannotSeeIt) {
  open([&] {
    for (const QWidget* each : dialog->findChildren<QWidget*>()) {
      if (each->focusPolicy() == Qt::NoFocus || each->objectName().startsWith("qt_")) {
        continue;
      }
      QAccessibleInterface* const seen =
          QAccessible::queryAccessibleInterface(const_cast<QWidget*>(each));
      EXPECT_FALSE(seen->text(QAccessible::Name).isEmpty()) << each->objectName().toStdString();
    }
  });
}

}  // namespace
}  // namespace vrel
