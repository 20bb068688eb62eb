#include "ui/main_window.h"

#include <gtest/gtest.h>

#include <QMenuBar>
#include <QTemporaryDir>
#include <QTest>

#include "ui/desk.h"

namespace vrel {
namespace {

using test::Desk;
using test::supplyPlan;
using test::tableOf;

using Lines = std::vector<std::string>;

struct MainWindow : testing::Test {
  void open() { window = desk.openWindow(); }

  QAction* entry(const QString& menu, const QString& text) const {
    return test::menuEntry(*window, menu, text);
  }

  Desk desk{supplyPlan(), {"Item Place", "Week", "", "Plan Seen"}, true};
  std::unique_ptr<VrelMainWindow> window;
};

// Entries of a menu, "-" for a separator, those of a submenu indented.
void listEntries(const QMenu& menu, const std::string& indent, Lines& lines) {
  for (const QAction* action : menu.actions()) {
    lines.push_back(indent + (action->isSeparator() ? "-" : action->text().toStdString()));
    if (action->menu() != nullptr) {
      listEntries(*action->menu(), indent + "  ", lines);
    }
  }
}

TEST_F(MainWindow, HasItsNameAndTheClassicStyle) {
  open();
  EXPECT_EQ(window->objectName(), "VREL main window");
  EXPECT_EQ(QApplication::style()->name(), "windows");
}

TEST_F(MainWindow, ALongWordInTheTitleDoesNotWidenIt) {
  desk.view.userTitle = std::string(700, 'W');
  open();
  EXPECT_LT(window->minimumSizeHint().width(), 600);
  auto* title = window->findChild<QLabel*>("reportTitle");
  ASSERT_NE(title, nullptr);
  EXPECT_TRUE(title->toolTip().startsWith(QString(700, 'W'))) << "the whole of a cut title";
}

TEST_F(MainWindow, HasThreeMenus) {
  open();
  Lines lines;
  for (const QAction* title : window->menuBar()->actions()) {
    lines.push_back(title->text().toStdString());
    listEntries(*title->menu(), "  ", lines);
  }
  EXPECT_EQ(lines, (Lines{"&File",
                          "  &Print...",
                          "  &Export",
                          "  Export &As...",
                          "  -",
                          "  &Open View...",
                          "  &Save View",
                          "  Save &View As...",
                          "  -",
                          "  &Import Expressions...",
                          "  Import &Highlighting...",
                          "  -",
                          "  &Delete View...",
                          "  -",
                          "  &Close",
                          "&Edit",
                          "  &Fill Cells...",
                          "  -",
                          "  &Recalculate",
                          "    &All Inverse Formulas",
                          "&Configure",
                          "  &Swap Data Row/Column",
                          "  &Display...",
                          "  Lay&out...",
                          "  -",
                          "  &Breaks...",
                          "  &Expressions...",
                          "  &Highlighting...",
                          "  &List Functions...",
                          "  -",
                          "  &Fields..."}));
}

TEST_F(MainWindow, NoMenuEntryHasAShortcut) {
  open();
  for (const QAction* action : window->menuBar()->findChildren<QAction*>()) {
    EXPECT_TRUE(action->shortcuts().isEmpty()) << action->text().toStdString();
  }
}

TEST_F(MainWindow, ItsSlotsKeepTheirOrder) {
  Lines names;
  const QMetaObject& meta = VrelMainWindow::staticMetaObject;
  for (int method = meta.methodOffset(); method < meta.methodCount(); ++method) {
    names.push_back(meta.method(method).methodSignature().toStdString());
  }
  EXPECT_EQ(names, (Lines{"slotFilePrint()",           "slotFileExport()",
                          "slotFileExportAs()",        "slotFileLoadView()",
                          "slotFileSaveView()",        "slotFileSaveViewAs()",
                          "slotFileReadExpressions()", "slotFileReadHighlighting()",
                          "slotFileDeleteView()",      "slotFileClose()",
                          "slotEditFillCells()",       "slotEditRecalculateAllInverse()",
                          "slotConfigSwapData()",      "slotConfigDisplay()",
                          "slotConfigOrder()",         "slotConfigBreaks()",
                          "slotConfigExpressions()",   "slotConfigHighlighting()",
                          "slotConfigListFunctions()", "slotConfigFields()",
                          "saveWarning(QString)"}));
}

TEST_F(MainWindow, ShowsTheReportUnderItsTitle) {
  desk.view.userTitle = "Plan & <supply>";
  desk.view.showSystemTitle = false;
  open();
  auto* title = window->findChild<QLabel*>("reportTitle");
  ASSERT_NE(title, nullptr);
  EXPECT_EQ(title->text(), "Plan & <supply>");
  EXPECT_EQ(title->textFormat(), Qt::PlainText);
  EXPECT_TRUE(title->isVisible());
  EXPECT_EQ(window->tables().cellText(0, 2), "1,200");
  EXPECT_TRUE(window->tables().regularTable()->hasFocus());
}

TEST_F(MainWindow, WithoutATitleTheReportHasAllTheRoom) {
  desk.view.showSystemTitle = false;
  open();
  EXPECT_FALSE(window->findChild<QLabel*>("reportTitle")->isVisible());
}

TEST_F(MainWindow, SwapDataTurnsTheReportAndMarksTheViewAsModified) {
  open();
  EXPECT_EQ(window->tables().cellText(0, 3), "11");
  entry("&Configure", "&Swap Data Row/Column")->trigger();
  EXPECT_FALSE(desk.view.dataInColumns);
  EXPECT_TRUE(desk.view.modified);
  EXPECT_EQ(window->tables().cellText(0, 2), "Plan");
  EXPECT_EQ(window->tables().cellText(1, 3), "11");
  entry("&Configure", "&Swap Data Row/Column")->trigger();
  EXPECT_TRUE(desk.view.dataInColumns);
  EXPECT_EQ(window->tables().cellText(0, 3), "11");
}

TEST_F(MainWindow, MnemonicsLeadThroughTheMenus) {
  open();
  QApplication::setActiveWindow(window.get());
  QTest::keyClick(window.get(), Qt::Key_C, Qt::AltModifier);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_S);
  EXPECT_FALSE(desk.view.dataInColumns);
}

TEST_F(MainWindow, ClosesAtOnceWhenNothingWasChanged) {
  open();
  entry("&File", "&Close")->trigger();
  EXPECT_EQ(desk.endings, 1);
  EXPECT_TRUE(desk.notice.shown.empty());
}

TEST_F(MainWindow, ClosingTheWindowIsTheSame) {
  open();
  window->close();
  EXPECT_EQ(desk.endings, 1);
  desk.view.modified = true;
  desk.notice.answer = Answer::Cancel;
  window->close();
  EXPECT_EQ(desk.endings, 1);
  EXPECT_TRUE(window->isVisible());
}

TEST_F(MainWindow, AsksAboutUnsavedChangesAndStaysWhenCancelled) {
  desk.view.fileName = "/somewhere/plan.view";
  open();
  entry("&Configure", "&Swap Data Row/Column")->trigger();
  entry("&File", "&Close")->trigger();
  EXPECT_EQ(desk.notice.shown,
            Lines{"question|Data Editor|Do you want to save changes to \"plan.view\"?"});
  EXPECT_EQ(desk.endings, 0);
  EXPECT_TRUE(desk.view.modified);
  EXPECT_TRUE(window->isVisible());
}

TEST_F(MainWindow, EndsWithoutSavingWhenTheAnswerIsNo) {
  const QTemporaryDir folder;
  desk.view.fileName = folder.filePath("plan.view").toStdString();
  desk.view.modified = true;
  desk.notice.answer = Answer::No;
  open();
  window->slotFileClose();
  EXPECT_EQ(desk.endings, 1);
  EXPECT_FALSE(QFile::exists(folder.filePath("plan.view")));
}

TEST_F(MainWindow, TheQuestionNamesTheViewAfterTheTitleWhenItHasNoFile) {
  desk.context.title = "/data/models/week12.dat";
  open();
  EXPECT_FALSE(window->saveWarning(""));
  desk.context.title = std::nullopt;
  EXPECT_FALSE(window->saveWarning(""));
  EXPECT_EQ(desk.notice.shown,
            (Lines{"question|Data Editor|Do you want to save changes to \"week12.view\"?",
                   "question|Data Editor|Do you want to save changes to \"untitled.view\"?"}));
}

TEST_F(MainWindow, SavesAndEndsWhenTheAnswerIsYes) {
  const QTemporaryDir folder;
  desk.view.fileName = folder.filePath("plan.view").toStdString();
  desk.view.modified = true;
  desk.notice.answer = Answer::Yes;
  open();
  window->slotFileClose();
  EXPECT_EQ(desk.endings, 1);
  EXPECT_FALSE(desk.view.modified);
  EXPECT_EQ(desk.logLines(), (Lines{"slotFileSaveView: Calling ViewSave to save to current view " +
                                        desk.view.fileName,
                                    "ViewSave: open view file", "ViewSave: write view file",
                                    "ViewSave: done writing view file", "ViewSave: done",
                                    "slotFileSaveView: done calling ViewSave"}));
  QFile file(folder.filePath("plan.view"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_TRUE(file.readAll().contains("addfield"));
}

struct PagedWindow : MainWindow {
  PagedWindow() {
    desk.view.axis(Axis::Z) = {0};
    desk.view.axis(Axis::X) = {1};
  }
  QTabBar* tabBar() { return window->findChild<QTabBar*>("zTabBar"); }
};

TEST_F(PagedWindow, HasATabForEachPage) {
  open();
  EXPECT_TRUE(window->findChild<QWidget*>("zTabs")->isVisible());
  ASSERT_EQ(tabBar()->count(), 2);
  EXPECT_EQ(tabBar()->tabText(0), "Bolt");
  EXPECT_EQ(tabBar()->tabText(1), "Gear");
  EXPECT_EQ(window->tables().cellText(0, 1), "1,200");
}

TEST_F(PagedWindow, ATabLeadsToItsPage) {
  open();
  QTest::mouseClick(tabBar(), Qt::LeftButton, {}, tabBar()->tabRect(1).center());
  EXPECT_EQ(desk.view.zIndex, 1);
  EXPECT_EQ(window->tables().cellText(0, 1), "3,200");
  EXPECT_EQ(tabBar()->currentIndex(), 1);
}

TEST_F(PagedWindow, TheStepButtonsLeadToTheNeighbouringPages) {
  open();
  QTest::mouseClick(window->findChild<QToolButton*>("zTabsIncrement"), Qt::LeftButton);
  EXPECT_EQ(desk.view.zIndex, 1);
  EXPECT_EQ(window->tables().cellText(0, 1), "3,200");
  QTest::mouseClick(window->findChild<QToolButton*>("zTabsDecrement"), Qt::LeftButton);
  EXPECT_EQ(desk.view.zIndex, 0);
  EXPECT_EQ(window->tables().cellText(0, 1), "1,200");
}

TEST_F(MainWindow, HasNoTabsWithoutZFields) {
  open();
  EXPECT_FALSE(window->findChild<QWidget*>("zTabs")->isVisible());
}

TEST_F(MainWindow, WarnsOncePerLayoutWhenKeysAreMissing) {
  desk.view.userTitle = "Plan";
  desk.view.axis(Axis::X) = {0};
  open();
  const std::string warning =
      "warning|Data Editor|Not enough keys to properly display data\nextracted by "
      "report\n\"Plan\".";
  window->warnOfMissingKeys();
  EXPECT_EQ(desk.notice.shown, Lines{warning});
  entry("&Configure", "&Swap Data Row/Column")->trigger();
  EXPECT_EQ(desk.notice.shown, (Lines{warning, warning}));
}

TEST_F(MainWindow, DoesNotWarnWhenTheKeysSuffice) {
  open();
  window->warnOfMissingKeys();
  EXPECT_TRUE(desk.notice.shown.empty());
}

}  // namespace
}  // namespace vrel
