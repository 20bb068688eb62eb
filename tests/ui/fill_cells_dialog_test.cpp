#include "ui/fill_cells_dialog.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>

#include "ui/desk.h"
#include "ui/fitting.h"

namespace vrel {
namespace {

using test::Desk;
using test::supplyPlan;
using Lines = std::vector<std::string>;

struct FillDialog : testing::Test {
  FillDialog() { window = desk.openWindow(); }

  void open(std::size_t row, std::size_t column) {
    window->tables().setCurrentPlace({row, column});
    test::menuEntry(*window, "&Edit", "&Fill Cells...")->trigger();
    QCoreApplication::processEvents();
    dialog = window->findChild<FillCellsDialogImpl*>();
    ASSERT_NE(dialog, nullptr);
  }

  template <typename Control>
  Control* find(const char* name) const {
    auto* control = dialog->findChild<Control*>(name);
    EXPECT_NE(control, nullptr) << name;
    return control;
  }
  int row() const { return find<QSpinBox>("rowBox")->value(); }
  int column() const { return find<QSpinBox>("columnBox")->value(); }
  QString value() const { return find<QLineEdit>("valueEdit")->text(); }
  void apply(const QString& text) {
    auto* edit = find<QLineEdit>("valueEdit");
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
    QTest::mouseClick(find<QPushButton>("applyButton"), Qt::LeftButton);
  }
  void choose(const char* area) { find<QRadioButton>(area)->click(); }

  Lines report() const {
    Lines lines;
    for (int line = 0; line < window->model().rowCount(); ++line) {
      QStringList texts;
      for (int each = 2; each < window->model().columnCount(); ++each) {
        texts << window->model().index(line, each).data().toString();
      }
      lines.push_back(texts.join(u'|').toStdString());
    }
    return lines;
  }

  // Two label columns, then Plan and Seen for each of three weeks; Gear in Oslo has no second week.
  Desk desk{supplyPlan(), {"Item Place", "Week", "", "Plan Seen"}, true};
  std::unique_ptr<VrelMainWindow> window;
  FillCellsDialogImpl* dialog = nullptr;
};

TEST_F(FillDialog, StandsBesideTheReportWithTheCurrentCell) {
  open(1, 4);
  EXPECT_EQ(dialog->windowTitle(), "Fill Cells");
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_FALSE(dialog->isModal());
  EXPECT_EQ(row(), 2);
  EXPECT_EQ(column(), 3);
  EXPECT_EQ(value(), "2300") << "as it is typed, without separators";
  EXPECT_EQ(find<QSpinBox>("rowBox")->maximum(), 4);
  EXPECT_EQ(find<QSpinBox>("columnBox")->maximum(), 6);
  EXPECT_TRUE(desk.dialogs.isEmpty());
  EXPECT_FALSE(desk.view.modified);
}

TEST_F(FillDialog, CanBeReadAndReachedByKeyboard) {
  open(0, 2);
  EXPECT_EQ(test::clippedTexts(*dialog), QStringList());
  EXPECT_EQ(test::sharedMnemonics(*dialog), QStringList());
}

TEST_F(FillDialog, BeginsInTheFirstColumnWhenTheCursorIsOnALabel) {
  open(2, 1);
  EXPECT_EQ(row(), 3);
  EXPECT_EQ(column(), 1);
  EXPECT_EQ(value(), "");
}

TEST_F(FillDialog, EnablesWhatTheChoiceNeeds) {
  open(0, 2);
  EXPECT_TRUE(find<QRadioButton>("rowCB")->isChecked());
  EXPECT_TRUE(find<QSpinBox>("rowBox")->isEnabled());
  EXPECT_FALSE(find<QSpinBox>("columnBox")->isEnabled());
  choose("colCB");
  EXPECT_FALSE(find<QRadioButton>("rowCB")->isChecked());
  EXPECT_FALSE(find<QSpinBox>("rowBox")->isEnabled());
  EXPECT_TRUE(find<QSpinBox>("columnBox")->isEnabled());
  choose("entireTableCB");
  EXPECT_FALSE(find<QSpinBox>("rowBox")->isEnabled());
  EXPECT_FALSE(find<QSpinBox>("columnBox")->isEnabled());
}

TEST_F(FillDialog, FillsARow) {
  open(0, 2);
  apply("7");
  EXPECT_EQ(report(), (Lines{"7|11|7|12|7|13", "2,200|21|2,300|22|2,400|23",
                             "3,200|31|3,300|32|3,400|33", "4,200|41|||4,400|43"}));
  EXPECT_TRUE(desk.view.modified);
  EXPECT_TRUE(dialog->isVisible()) << "there may be more to fill";
  EXPECT_EQ(desk.announced.size(), 1U);
  EXPECT_EQ(desk.notice.shown, Lines()) << "read-only cells in between are no matter";
}

TEST_F(FillDialog, FillsAColumn) {
  open(0, 2);
  choose("colCB");
  find<QSpinBox>("columnBox")->setValue(5);
  apply("1,234");
  EXPECT_EQ(report(), (Lines{"1,200|11|1,300|12|1,234|13", "2,200|21|2,300|22|1,234|23",
                             "3,200|31|3,300|32|1,234|33", "4,200|41|||1,234|43"}));
}

TEST_F(FillDialog, FillsTheEntireTable) {
  open(0, 2);
  choose("entireTableCB");
  apply("Seen*2");
  EXPECT_EQ(report(), (Lines{"22|11|24|12|26|13", "42|21|44|22|46|23", "62|31|64|32|66|33",
                             "82|41|||86|43"}));
}

TEST_F(FillDialog, IsAppliedByEnterAndClosedByEscape) {
  open(0, 2);
  QTest::keyClicks(find<QLineEdit>("valueEdit"), "7");
  QTest::keyClick(find<QLineEdit>("valueEdit"), Qt::Key_Return);
  EXPECT_EQ(report()[0], "7|11|7|12|7|13");
  QTest::keyClick(dialog, Qt::Key_Escape);
  EXPECT_FALSE(dialog->isVisible());
}

TEST_F(FillDialog, IsTakenBackAsOneStep) {
  open(0, 2);
  choose("entireTableCB");
  apply("7");
  QApplication::setActiveWindow(window.get());
  window->tables().regularTable()->setFocus();
  QTest::keyClick(window->tables().regularTable(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(report(), (Lines{"1,200|11|1,300|12|1,400|13", "2,200|21|2,300|22|2,400|23",
                             "3,200|31|3,300|32|3,400|33", "4,200|41|||4,400|43"}));
}

TEST_F(FillDialog, LeavesTheCursorWhereItIs) {
  open(3, 6);
  apply("7");
  EXPECT_EQ(window->tables().currentPlace(), (GridPlace{3, 6}));
  EXPECT_EQ(row(), 4);
}

TEST_F(FillDialog, FollowsTheCursorInTheReport) {
  open(0, 2);
  window->tables().setCurrentPlace({2, 6});
  EXPECT_EQ(row(), 3);
  EXPECT_EQ(column(), 5);
  EXPECT_EQ(value(), "1200") << "the text is the user's";
}

TEST_F(FillDialog, ATypedRowStaysWhileTheCursorDoes) {
  open(0, 2);
  find<QSpinBox>("rowBox")->setValue(3);
  apply("7");
  EXPECT_EQ(report()[2], "7|31|7|32|7|33");
  EXPECT_EQ(row(), 3);
  window->layOutReport();
  EXPECT_EQ(row(), 3);
}

TEST_F(FillDialog, BeginsAtTheCursorAgainWhenItIsOpenedAgain) {
  open(0, 2);
  find<QSpinBox>("rowBox")->setValue(3);
  open(0, 2);
  EXPECT_EQ(row(), 1);
}

TEST(FillDialogAlone, TakesNoSecondFillWhileOneIsUnderWay) {
  Lines seen;
  FillCellsDialogImpl* self = nullptr;
  FillCellsDialogImpl dialog([&](const FillRequest& request) {
    seen.push_back(std::string(request.text) + (self->isEnabled() ? " on" : " off"));
  });
  self = &dialog;
  dialog.setText("7");
  dialog.slotApply();
  EXPECT_EQ(seen, (Lines{"7 off"}));
  EXPECT_TRUE(dialog.isEnabled());
}

TEST_F(FillDialog, RefusesAFieldThatMayOnlyBeRead) {
  open(0, 3);
  choose("colCB");
  apply("7");
  EXPECT_EQ(desk.notice.shown,
            (Lines{"critical|Data Editor|Cannot perform change - field is read-only."}));
  EXPECT_FALSE(desk.view.modified);
  EXPECT_TRUE(desk.announced.empty());
}

TEST_F(FillDialog, RefusesARowAtAnEmptyPosition) {
  open(3, 4);
  const auto before = report();
  apply("7");
  EXPECT_EQ(report(), before);
  EXPECT_EQ(desk.notice.shown, (Lines{"critical|Data Editor|Invalid Row or Column."}));
}

TEST_F(FillDialog, RefusesARowWithoutCells) {
  desk.view.breaks[0].frequency = 1;
  setOperation(desk.view.breaks[0], 3, BreakOperation::Sum);
  window->layOutReport();
  open(2, 2);
  apply("7");
  EXPECT_EQ(desk.notice.shown, (Lines{"critical|Data Editor|Invalid Row or Column."}));
}

TEST_F(FillDialog, TellsOnceHowManyCellsRefuseTheText) {
  open(0, 2);
  apply("soon");
  EXPECT_EQ(desk.notice.shown,
            (Lines{"warning|Data Editor|Cells that do not take \"soon\" and stay as they were: 3 "
                   "of 3."}));
  desk.notice.shown.clear();
  choose("entireTableCB");
  apply("1 / (Plan - 1300)");
  EXPECT_EQ(desk.notice.shown,
            (Lines{"warning|Data Editor|Cells that do not take \"1 / (Plan - 1300)\" and stay as "
                   "they were: 1 of 11."}));
}

TEST_F(FillDialog, TellsTheBeginningOfALongTextThatIsRefused) {
  open(0, 2);
  find<QLineEdit>("valueEdit")->setText(QString(200, 'x'));
  dialog->slotApply();
  EXPECT_EQ(desk.notice.shown,
            (Lines{"warning|Data Editor|Cells that do not take \"" + std::string(100, 'x') +
                   "...\" and stay as they were: 3 of 3."}));
}

TEST_F(FillDialog, TakesNoEmptyTextForANumber) {
  open(0, 2);
  apply("");
  EXPECT_EQ(desk.notice.shown,
            (Lines{"warning|Data Editor|Cells that cannot be empty and stay as they were: 3 of "
                   "3."}));
  EXPECT_EQ(report()[0], "1,200|11|1,300|12|1,400|13");
}

TEST_F(FillDialog, KeepsWithinTheReportThatIsShown) {
  open(3, 6);
  desk.view.axis(Axis::X) = {0};
  desk.view.axis(Axis::Z) = {1};
  window->layOutReport();
  EXPECT_EQ(find<QSpinBox>("rowBox")->maximum(), 2);
  desk.view.axis(Axis::Data) = {3};
  window->layOutReport();
  EXPECT_EQ(find<QSpinBox>("columnBox")->maximum(), 3);
}

TEST_F(FillDialog, WaitsForARefusedTextInACell) {
  open(0, 2);
  QTest::keyClicks(window->tables().regularTable(), "soon");
  find<QLineEdit>("valueEdit")->setText("7");
  QTest::mouseClick(find<QPushButton>("applyButton"), Qt::LeftButton);
  EXPECT_EQ(report()[0], "1,200|11|1,300|12|1,400|13");
}

TEST_F(FillDialog, WarnsWhenTheHostCannotBeTold) {
  open(0, 2);
  desk.environment = [](const char*) { return "/nowhere"; };
  apply("7");
  EXPECT_EQ(desk.notice.shown,
            (Lines{"warning|Data Editor|The change could not be sent to the host application: its "
                   "message file cannot be written."}));
  EXPECT_EQ(report()[0], "7|11|7|12|7|13");
}

TEST_F(FillDialog, IsTheSameOneWhenItIsOpenedAgain) {
  open(0, 2);
  const FillCellsDialogImpl* const first = dialog;
  choose("colCB");
  open(2, 4);
  EXPECT_EQ(dialog, first);
  EXPECT_EQ(row(), 3);
  EXPECT_EQ(value(), "3300");
  EXPECT_TRUE(find<QRadioButton>("colCB")->isChecked());
}

}  // namespace
}  // namespace vrel
