#include "ui/find_bar.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

namespace vrel {
namespace {

// A window with something that has the focus and the bar below it.
struct FindBarTest : testing::Test {
  FindBarTest() {
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(&table);
    layout->addWidget(&bar);
    window.resize(600, 200);
    window.show();
    QApplication::setActiveWindow(&window);
    table.setFocus();
  }

  QLineEdit* edit() { return bar.findChild<QLineEdit*>("findText"); }
  QString message() { return bar.findChild<QLabel*>("findMessage")->text(); }
  QPushButton* next() { return bar.findChild<QPushButton*>("findNextButton"); }
  QPushButton* previous() { return bar.findChild<QPushButton*>("findPreviousButton"); }

  void open() { QTest::keyClick(&table, Qt::Key_F, Qt::ControlModifier); }
  void openWith(const QString& text) {
    open();
    QTest::keyClicks(edit(), text);
  }
  static QStringList texts(const QSignalSpy& spy) {
    QStringList texts;
    for (const auto& arguments : spy) {
      texts << arguments[0].toString();
    }
    return texts;
  }

  QWidget window;
  QLineEdit table{&window};
  FindBar bar{&window};
  QSignalSpy forward{&bar, &FindBar::findNext};
  QSignalSpy backward{&bar, &FindBar::findPrevious};
  QSignalSpy closed{&bar, &FindBar::closed};
};

TEST_F(FindBarTest, IsHiddenUntilCtrlF) {
  EXPECT_EQ(bar.objectName(), "findBar");
  EXPECT_FALSE(bar.isVisible());
  open();
  EXPECT_TRUE(bar.isVisible());
  EXPECT_TRUE(edit()->hasFocus());
}

TEST_F(FindBarTest, OpensAgainWithItsTextSelected) {
  openWith("bolt");
  bar.dismiss();
  open();
  EXPECT_EQ(edit()->selectedText(), "bolt");
  QTest::keyClicks(edit(), "nut");
  EXPECT_EQ(bar.text(), "nut");
}

TEST_F(FindBarTest, EnterAsksForTheNextAndShiftEnterForThePreviousPlace) {
  openWith("bolt");
  QTest::keyClick(edit(), Qt::Key_Return);
  QTest::keyClick(edit(), Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(texts(forward), (QStringList{"bolt", "bolt"}));
  EXPECT_TRUE(backward.isEmpty());
  QTest::keyClick(edit(), Qt::Key_Return, Qt::ShiftModifier);
  QTest::keyClick(edit(), Qt::Key_Enter, Qt::ShiftModifier | Qt::KeypadModifier);
  EXPECT_EQ(texts(backward), (QStringList{"bolt", "bolt"}));
  EXPECT_EQ(forward.size(), 2);
}

TEST_F(FindBarTest, TheButtonsDoTheSame) {
  openWith("bolt");
  QTest::mouseClick(next(), Qt::LeftButton);
  QTest::mouseClick(previous(), Qt::LeftButton);
  EXPECT_EQ(texts(forward), QStringList{"bolt"});
  EXPECT_EQ(texts(backward), QStringList{"bolt"});
}

TEST_F(FindBarTest, F3WorksInTheWholeWindowAndAfterClosing) {
  openWith("bolt");
  table.setFocus();
  QTest::keyClick(&table, Qt::Key_F3);
  EXPECT_EQ(texts(forward), QStringList{"bolt"});
  bar.dismiss();
  QTest::keyClick(&table, Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(texts(backward), QStringList{"bolt"});
  EXPECT_FALSE(bar.isVisible());
}

TEST_F(FindBarTest, F3WithoutATextOpensTheBar) {
  QTest::keyClick(&table, Qt::Key_F3);
  EXPECT_TRUE(bar.isVisible());
  EXPECT_TRUE(forward.isEmpty());
  bar.dismiss();
  QTest::keyClick(&table, Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_TRUE(bar.isVisible());
  EXPECT_TRUE(backward.isEmpty());
}

TEST_F(FindBarTest, EscapeClosesItAndGivesTheFocusBack) {
  open();
  QTest::keyClick(edit(), Qt::Key_Escape);
  EXPECT_FALSE(bar.isVisible());
  EXPECT_TRUE(table.hasFocus());
  EXPECT_EQ(closed.size(), 1);
}

TEST_F(FindBarTest, TheCloseButtonDoesTheSame) {
  open();
  // A second Ctrl+F must not take the bar itself for where the focus was.
  QTest::keyClick(edit(), Qt::Key_F, Qt::ControlModifier);
  QTest::mouseClick(bar.findChild<QToolButton*>("findCloseButton"), Qt::LeftButton);
  EXPECT_FALSE(bar.isVisible());
  EXPECT_TRUE(table.hasFocus());
  EXPECT_EQ(closed.size(), 1);
}

TEST_F(FindBarTest, WithoutATextThereIsNothingToFind) {
  open();
  EXPECT_FALSE(next()->isEnabled());
  EXPECT_FALSE(previous()->isEnabled());
  QTest::keyClick(edit(), Qt::Key_Return);
  EXPECT_TRUE(forward.isEmpty());
  QTest::keyClicks(edit(), "b");
  EXPECT_TRUE(next()->isEnabled());
  EXPECT_TRUE(previous()->isEnabled());
}

TEST_F(FindBarTest, SaysWhatCameOfTheSearch) {
  openWith("bolt");
  bar.searchForward();
  bar.showResult({SearchOutcome::NotFound, {}, false});
  EXPECT_EQ(message(), "Not found");
  bar.showResult({SearchOutcome::Cancelled, {}, false});
  EXPECT_EQ(message(), "Cancelled");
  bar.showResult({SearchOutcome::Found, {}, true});
  EXPECT_EQ(message(), "Continued from the top");
  bar.showResult({SearchOutcome::Found, {}, false});
  EXPECT_EQ(message(), "");
  bar.searchBackward();
  bar.showResult({SearchOutcome::Found, {}, true});
  EXPECT_EQ(message(), "Continued from the bottom");
}

TEST_F(FindBarTest, AMessageGoesWithTheNextSearchTextOrClosing) {
  openWith("bolt");
  const SearchResult nothing;
  bar.showResult(nothing);
  QTest::keyClicks(edit(), "s");
  EXPECT_EQ(message(), "");
  bar.showResult(nothing);
  bar.searchForward();
  EXPECT_EQ(message(), "");
  bar.showResult(nothing);
  bar.dismiss();
  EXPECT_EQ(message(), "");
}

TEST_F(FindBarTest, EveryPartHasAName) {
  const auto* label = bar.findChild<QLabel*>("findLabel");
  EXPECT_EQ(label->text(), "Fi&nd:");
  EXPECT_EQ(label->buddy(), edit());
  EXPECT_EQ(next()->text(), "Ne&xt");
  EXPECT_EQ(previous()->text(), "Pre&vious");
  EXPECT_EQ(bar.findChild<QToolButton*>("findCloseButton")->accessibleName(), "Close the find bar");
}

TEST_F(FindBarTest, TabGoesFromTheTextThroughTheButtons) {
  openWith("bolt");
  QTest::keyClick(edit(), Qt::Key_Tab);
  EXPECT_TRUE(next()->hasFocus());
  QTest::keyClick(next(), Qt::Key_Tab);
  EXPECT_TRUE(previous()->hasFocus());
  QTest::keyClick(previous(), Qt::Key_Tab);
  EXPECT_TRUE(bar.findChild<QToolButton*>("findCloseButton")->hasFocus());
}

}  // namespace
}  // namespace vrel
