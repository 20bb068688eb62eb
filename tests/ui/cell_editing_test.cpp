#include <QSignalSpy>

#include "model/table_sort.h"
#include "support/tables.h"
#include "ui/tables_desk.h"

namespace vrel {
namespace {

using test::supplyPlan;
using test::tableOf;
using test::TablesDesk;

// "Plan" can be edited, "Seen" beside it only read. A text that is a number is taken, others are
// refused.
struct CellEditing : TablesDesk {
  void SetUp() override { edit(supplyPlan(), "Plan Seen"); }

  void edit(Table table, const std::string& data) {
    open(std::move(table), {"Item Place", "Week", "", data}, true);
    model->setEdit([this](CellRef cell, const QString& text) {
      edits << text;
      if (onEdit) {
        onEdit();
      }
      bool isNumber = false;
      const double number = text.toDouble(&isNumber);
      if (isNumber) {
        desk->table.cell(cell.tuple, cell.field).number = number;
      }
      return isNumber;
    });
    valueChanges = std::make_unique<QSignalSpy>(regular, &DataTable::valueChanged);
  }
  void TearDown() override {
    valueChanges.reset();
    TablesDesk::TearDown();
  }

  CopyPasteLineEdit* editor() const { return regular->cellEditor(); }
  QString editorText() const { return editor() == nullptr ? "(closed)" : editor()->text(); }
  QString shown(int row, int column) const {
    return regular->model()->index(row, column).data().toString();
  }

  QStringList edits;
  std::function<void()> onEdit;
  std::unique_ptr<QSignalSpy> valueChanges;
};

TEST_F(CellEditing, TypingReplacesTheContent) {
  press(Qt::Key_7);
  ASSERT_NE(editor(), nullptr);
  EXPECT_TRUE(editor()->hasFocus());
  EXPECT_EQ(editorText(), "7");
  type("5");
  EXPECT_EQ(editorText(), "75");
  EXPECT_EQ(edits, QStringList());
}

TEST_F(CellEditing, TheEditorHasTheEstablishedNameAndNoFrameAndHidesTheCell) {
  press(Qt::Key_F2);
  ASSERT_NE(editor(), nullptr);
  EXPECT_EQ(editor()->objectName(), "qt_tableeditor");
  EXPECT_EQ(editor()->accessibleName(), "Cell value");
  EXPECT_FALSE(editor()->hasFrame());
  EXPECT_TRUE(editor()->autoFillBackground());
  EXPECT_TRUE(editor()->alignment().testFlag(Qt::AlignRight)) << "it is a number";
  EXPECT_EQ(editor()->geometry(), regular->visualRect(regular->currentIndex()));
}

TEST_F(CellEditing, F2GoesOnBehindTheContent) {
  press(Qt::Key_F2);
  EXPECT_EQ(editorText(), "1200");
  type("5");
  EXPECT_EQ(editorText(), "12005");
}

TEST_F(CellEditing, ADoubleClickGoesOnBehindTheContent) {
  const QPoint cell = middle(regular, 1, 2);
  QTest::mouseClick(regular->viewport(), Qt::LeftButton, {}, cell);
  QTest::mouseDClick(regular->viewport(), Qt::LeftButton, {}, cell);
  EXPECT_EQ(editorText(), "2300");
  type("5");
  EXPECT_EQ(editorText(), "23005");
}

TEST_F(CellEditing, BackspaceEmptiesTheCellToBeTyped) {
  press(Qt::Key_Backspace);
  EXPECT_EQ(editorText(), "");
  EXPECT_EQ(edits, QStringList());
}

TEST_F(CellEditing, ReadOnlyCellsLabelsAndEmptyCellsDoNotOpen) {
  for (const GridPlace cell : {GridPlace{0, 3}, GridPlace{3, 4}, GridPlace{0, 0}}) {
    tables->setCurrentPlace(cell);
    press(Qt::Key_7);
    press(Qt::Key_F2);
    press(Qt::Key_Backspace);
    EXPECT_EQ(regular->cellEditor(), nullptr);
    EXPECT_EQ(frozen->cellEditor(), nullptr);
  }
  const QPoint readOnly = middle(regular, 0, 1);
  QTest::mouseDClick(regular->viewport(), Qt::LeftButton, {}, readOnly);
  EXPECT_EQ(editor(), nullptr);
}

TEST_F(CellEditing, CommandKeysAreNotTyped) {
  press(Qt::Key_C, Qt::ControlModifier);
  press(Qt::Key_X, Qt::AltModifier);
  EXPECT_EQ(editor(), nullptr);
}

TEST_F(CellEditing, EnterTakesTheTextAndTheEditorOpensAgainWithTheNewValueSelected) {
  type("75.5");
  press(Qt::Key_Return);
  EXPECT_EQ(edits, QStringList{"75.5"});
  EXPECT_EQ(editorText(), "75.5");
  EXPECT_EQ(editor()->selectedText(), "75.5");
  EXPECT_EQ(place(), "0/2");
  ASSERT_EQ(valueChanges->count(), 1);
  EXPECT_EQ(valueChanges->at(0), (QVariantList{0, 0}));
}

TEST_F(CellEditing, TypingAfterEnterReplacesTheValueAgain) {
  type("75");
  press(Qt::Key_Return);
  type("8");
  EXPECT_EQ(editorText(), "8");
  press(Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(edits, (QStringList{"75", "8"}));
}

TEST_F(CellEditing, EnterOnAnUnchangedTextClosesAndGoesDown) {
  type("75");
  press(Qt::Key_Return);
  press(Qt::Key_Return);
  EXPECT_EQ(editorText(), "(closed)");
  EXPECT_EQ(place(), "1/2");
  EXPECT_EQ(edits, QStringList{"75"});
  EXPECT_EQ(valueChanges->count(), 1);
  EXPECT_TRUE(regular->hasFocus());
}

TEST_F(CellEditing, ShiftEnterGoesUp) {
  tables->setCurrentPlace({2, 2});
  press(Qt::Key_F2);
  press(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(editorText(), "(closed)");
  EXPECT_EQ(place(), "1/2");
  press(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(place(), "0/2");
}

TEST_F(CellEditing, EnterOnACellThatIsNotEditedGoesDown) {
  press(Qt::Key_Return);
  EXPECT_EQ(place(), "1/2");
  press(Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(place(), "2/2");
  EXPECT_EQ(editor(), nullptr);
}

TEST_F(CellEditing, ARefusedTextStaysInTheEditorToBeCorrected) {
  type("abc");
  press(Qt::Key_Return);
  EXPECT_EQ(edits, QStringList{"abc"});
  EXPECT_EQ(editorText(), "abc");
  EXPECT_EQ(editor()->selectedText(), "abc");
  EXPECT_EQ(shown(0, 0), "1,200");
  EXPECT_EQ(valueChanges->count(), 1);
  press(Qt::Key_Return);
  EXPECT_EQ(editorText(), "(closed)");
  EXPECT_EQ(place(), "1/2");
  EXPECT_EQ(edits, QStringList{"abc"}) << "the same text is not tried again";
}

TEST_F(CellEditing, EscapeLeavesTheCellAsItWas) {
  type("75");
  press(Qt::Key_Escape);
  EXPECT_EQ(editorText(), "(closed)");
  EXPECT_EQ(edits, QStringList());
  EXPECT_EQ(shown(0, 0), "1,200");
  EXPECT_EQ(place(), "0/2");
  EXPECT_TRUE(regular->hasFocus());
}

TEST_F(CellEditing, TabAndShiftTabTakeTheTextAndGoOn) {
  type("75");
  press(Qt::Key_Tab);
  EXPECT_EQ(place(), "0/3");
  EXPECT_EQ(editorText(), "(closed)");
  tables->setCurrentPlace({0, 4});
  type("76");
  press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(place(), "0/3");
  EXPECT_EQ(edits, (QStringList{"75", "76"}));
  EXPECT_EQ(valueChanges->count(), 2);
}

TEST_F(CellEditing, UpAndDownTakeTheTextAndGoOn) {
  type("75");
  press(Qt::Key_Down);
  EXPECT_EQ(place(), "1/2");
  EXPECT_EQ(editorText(), "(closed)");
  type("76");
  press(Qt::Key_Up);
  EXPECT_EQ(place(), "0/2");
  EXPECT_EQ(edits, (QStringList{"75", "76"}));
}

TEST_F(CellEditing, WithARefusedTextTabAndArrowsStay) {
  for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Down, Qt::Key_Up}) {
    type("abc" + QString::number(edits.size()));
    press(key);
    EXPECT_EQ(place(), "0/2");
    EXPECT_EQ(editorText(), edits.last());
    EXPECT_EQ(editor()->selectedText(), edits.last());
  }
  EXPECT_EQ(edits, (QStringList{"abc0", "abc1", "abc2"}));
}

TEST_F(CellEditing, LeftAndRightMoveWithinTheText) {
  press(Qt::Key_F2);
  press(Qt::Key_Left);
  type("5");
  EXPECT_EQ(editorText(), "12050");
  EXPECT_EQ(place(), "0/2");
}

TEST_F(CellEditing, PageKeysDoNotLeaveTheEditor) {
  press(Qt::Key_F2);
  press(Qt::Key_PageDown);
  EXPECT_EQ(editorText(), "1200");
  EXPECT_EQ(place(), "0/2");
}

TEST_F(CellEditing, ClickingAnotherCellTakesTheText) {
  type("75");
  click(regular, 2, 1);
  EXPECT_EQ(edits, QStringList{"75"});
  EXPECT_EQ(editorText(), "(closed)");
  EXPECT_EQ(place(), "2/3");
  EXPECT_EQ(valueChanges->count(), 1);
}

TEST_F(CellEditing, ClickingALabelTakesTheText) {
  type("75");
  click(frozen, 2, 1);
  EXPECT_EQ(edits, QStringList{"75"});
  EXPECT_EQ(editorText(), "(closed)");
  EXPECT_EQ(place(), "2/1");
}

TEST_F(CellEditing, GoingToAnotherWidgetTakesTheText) {
  QLineEdit other(window.get());
  other.show();
  type("75");
  other.setFocus();
  EXPECT_EQ(edits, QStringList{"75"});
  EXPECT_EQ(editorText(), "(closed)");
  EXPECT_TRUE(other.hasFocus()) << "the keyboard is not taken back";
}

TEST_F(CellEditing, ARefusedTextIsGivenUpWhenTheUserGoesElsewhere) {
  QLineEdit other(window.get());
  other.show();
  type("abc");
  other.setFocus();
  EXPECT_EQ(edits, QStringList{"abc"});
  EXPECT_EQ(editorText(), "(closed)");
  EXPECT_EQ(shown(0, 0), "1,200");
  EXPECT_TRUE(other.hasFocus());
}

TEST_F(CellEditing, MovingTheCursorFromOutsideTakesTheText) {
  type("75");
  tables->setCurrentPlace({3, 2});
  EXPECT_EQ(edits, QStringList{"75"});
  EXPECT_EQ(editorText(), "(closed)");
  EXPECT_EQ(place(), "3/2");
}

TEST_F(CellEditing, EndingItFromOutsideTakesTheText) {
  type("75");
  tables->endEditing();
  EXPECT_EQ(edits, QStringList{"75"});
  EXPECT_EQ(editorText(), "(closed)");
  tables->endEditing();
  EXPECT_EQ(edits, QStringList{"75"});
}

TEST_F(CellEditing, ZoomingTakesTheText) {
  type("75");
  tables->setZoom(150);
  EXPECT_EQ(edits, QStringList{"75"});
  EXPECT_EQ(editorText(), "(closed)");
}

TEST_F(CellEditing, SelectingAColumnTakesTheText) {
  type("75");
  QTest::mouseClick(regular->heading()->viewport(), Qt::LeftButton, {},
                    QPoint(regular->heading()->sectionViewportPosition(2) + 10, 8));
  EXPECT_EQ(edits, QStringList{"75"});
  EXPECT_EQ(editorText(), "(closed)");
  EXPECT_EQ(selection(), "0/4+4/1");
}

TEST_F(CellEditing, AMessageBoxAboutTheTextDoesNotTakeItAgain) {
  onEdit = [this] {
    QMessageBox box(QMessageBox::Warning, "QNT Error", "no number", QMessageBox::Ok, window.get());
    QTimer::singleShot(0, &box, &QMessageBox::accept);
    box.exec();
  };
  type("abc");
  press(Qt::Key_Return);
  EXPECT_EQ(edits, QStringList{"abc"});
  EXPECT_EQ(editorText(), "abc");
  QApplication::setActiveWindow(window.get());
  EXPECT_TRUE(editor()->hasFocus());
}

TEST_F(CellEditing, AMessageBoxOnTheWayOutDoesNotTakeItAgain) {
  onEdit = [this] {
    QMessageBox box(QMessageBox::Warning, "QNT Error", "no number", QMessageBox::Ok, window.get());
    QTimer::singleShot(0, &box, &QMessageBox::accept);
    box.exec();
  };
  type("abc");
  click(regular, 2, 1);
  EXPECT_EQ(edits, QStringList{"abc"});
  EXPECT_EQ(editorText(), "(closed)");
  EXPECT_EQ(place(), "2/3");
}

TEST_F(CellEditing, AReportLaidOutAgainByTheEditKeepsTheCell) {
  onEdit = [this] { layOutAgain(); };
  tables->setCurrentPlace({1, 4});
  type("75");
  press(Qt::Key_Return);
  EXPECT_EQ(place(), "1/4");
  EXPECT_EQ(editorText(), "75");
  press(Qt::Key_Return);
  EXPECT_EQ(editorText(), "(closed)");
  EXPECT_EQ(place(), "2/4");
}

TEST_F(CellEditing, WhereAnotherValueStandsAfterTheEditNothingIsOpened) {
  onEdit = [this] {
    sortByKeys(desk->table, std::vector<int>{1, 0, 2});
    layOutAgain();
  };
  type("75");
  press(Qt::Key_Return);
  EXPECT_EQ(editorText(), "(closed)");
  EXPECT_EQ(place(), "0/2");
  EXPECT_TRUE(regular->hasFocus());
}

TEST_F(CellEditing, TypingTheSameNumberIsNoEdit) {
  type("1200");
  press(Qt::Key_Return);
  EXPECT_EQ(edits, QStringList());
  EXPECT_EQ(valueChanges->count(), 0);
  EXPECT_EQ(place(), "1/2");
}

TEST_F(CellEditing, ABooleanIsNotOpenedAgain) {
  Table table = tableOf("Item:String Place:String Week:String Active:Boolean", "",
                        {"Bolt Lyon W1 Yes", "Bolt Oslo W1 No"});
  table.field(3).classification = Classification::DataReadWrite;
  edit(std::move(table), "Active");
  EXPECT_EQ(shown(0, 0), "Yes");
  type("0");
  press(Qt::Key_Return);
  EXPECT_EQ(edits, QStringList{"0"});
  EXPECT_EQ(valueChanges->count(), 1);
  EXPECT_EQ(editorText(), "(closed)");
  EXPECT_EQ(place(), "0/2");
  type("maybe");
  press(Qt::Key_Return);
  EXPECT_EQ(edits, (QStringList{"0", "maybe"}));
  EXPECT_EQ(editorText(), "(closed)") << "nor after a refusal";
}

TEST_F(CellEditing, TheEditorGrowsToTheRightWithItsTextUpToTheTablesEdge) {
  press(Qt::Key_F2);
  const QRect cell = regular->visualRect(regular->currentIndex());
  type("0123456789012345");
  EXPECT_EQ(editor()->geometry().topLeft(), cell.topLeft());
  EXPECT_EQ(editor()->height(), cell.height());
  EXPECT_GT(editor()->width(), cell.width());
  EXPECT_GE(editor()->width(), editor()->fontMetrics().horizontalAdvance(editor()->text()));
  editor()->setText(QString(500, '9'));
  EXPECT_EQ(editor()->geometry().right(), regular->viewport()->rect().right());
  editor()->setText("1");
  EXPECT_EQ(editor()->geometry(), cell);
}

TEST_F(CellEditing, AValueThatChangesMeanwhileDoesNotDisturbTheTyping) {
  type("75");
  model->valuesChanged();
  EXPECT_EQ(editorText(), "75");
  press(Qt::Key_Escape);
  press(Qt::Key_F2);
  desk->table.cell(0, 3).number = 900;
  model->valuesChanged();
  EXPECT_EQ(editorText(), "900") << "nothing was typed yet";
}

TEST_F(CellEditing, TheEditorsOwnMenuDoesNotEndTheEditing) {
  type("75");
  QContextMenuEvent wish(QContextMenuEvent::Mouse, QPoint(2, 2),
                         editor()->mapToGlobal(QPoint(2, 2)));
  QApplication::sendEvent(editor(), &wish);
  QWidget* menu = QApplication::activePopupWidget();
  ASSERT_NE(menu, nullptr);
  QCoreApplication::processEvents();
  EXPECT_EQ(editorText(), "75");
  EXPECT_EQ(edits, QStringList());
  menu->close();
}

TEST_F(CellEditing, AnotherMenuEndsIt) {
  type("75");
  QMenu menu(window.get());
  menu.addAction("Save");
  menu.popup(window->mapToGlobal(QPoint(5, 5)));
  QFocusEvent out(QEvent::FocusOut, Qt::PopupFocusReason);
  if (editor() != nullptr) {
    QApplication::sendEvent(editor(), &out);
  }
  EXPECT_EQ(edits, QStringList{"75"});
  EXPECT_EQ(editorText(), "(closed)");
}

}  // namespace
}  // namespace vrel
