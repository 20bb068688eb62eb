#include "ui/choice_table.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QTest>

#include "ui/choice_delegate.h"

namespace vrel {
namespace {

// Two fields with a colour each; the second one has no choice of size.
struct ChoiceTable : testing::Test {
  ChoiceTable() {
    const QStringList colours = {"Red", "Green", "Blue"};
    model.setRows({"Field", "Colour", "Size"}, {{"Item", {{colours, 0}, {{"Small", "Large"}, 1}}},
                                                {"Place", {{colours, -1}, {{"Small"}, 0}}}});
    view.setModel(&model);
    view.resize(view.sizeHint());
    view.show();
    view.setFocus();
    QCoreApplication::processEvents();
  }

  QString text(int row, int column) const { return model.index(row, column).data().toString(); }
  QComboBox* editor() const {
    for (auto* box : view.findChildren<QComboBox*>()) {
      if (box->isVisible()) {
        return box;
      }
    }
    return nullptr;
  }
  // The list of choices that is open.
  QAbstractItemView* openList() const {
    QCoreApplication::processEvents();
    return editor() == nullptr || !editor()->view()->isVisible() ? nullptr : editor()->view();
  }

  ChoiceTableModel model;
  QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
  ChoiceTableView view;
};

TEST_F(ChoiceTable, ShowsNamesAndChoices) {
  EXPECT_EQ(text(0, 0), "Item");
  EXPECT_EQ(text(0, 1), "Red");
  EXPECT_EQ(text(0, 2), "Large");
  EXPECT_EQ(text(1, 1), "") << "nothing is chosen";
  EXPECT_EQ(model.headerData(1, Qt::Horizontal, Qt::DisplayRole), "Colour");
  EXPECT_EQ(view.currentIndex(), model.index(0, 1)) << "the keyboard begins at a choice";
}

TEST_F(ChoiceTable, OpensItsChoicesByTheKeyboard) {
  for (const auto& [key, modifiers] : std::vector<std::pair<Qt::Key, Qt::KeyboardModifiers>>{
           {Qt::Key_F2, {}}, {Qt::Key_Space, {}}, {Qt::Key_Down, Qt::AltModifier}}) {
    model.setData(model.index(0, 1), 0, ChoiceDelegate::kChosenRole);
    QTest::keyClick(&view, key, modifiers);
    QAbstractItemView* const list = openList();
    ASSERT_NE(list, nullptr) << key;
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(text(0, 1), "Green") << key;
    QCoreApplication::processEvents();
    EXPECT_EQ(editor(), nullptr) << key;
    EXPECT_TRUE(view.hasFocus()) << key;
  }
}

TEST_F(ChoiceTable, OpensItsChoicesByAClick) {
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                    view.visualRect(model.index(1, 1)).center());
  ASSERT_NE(openList(), nullptr);
  EXPECT_EQ(editor()->count(), 3);
}

TEST_F(ChoiceTable, ALetterChoosesAtOnce) {
  QTest::keyClick(&view, Qt::Key_B);
  EXPECT_EQ(text(0, 1), "Blue");
  EXPECT_EQ(openList(), nullptr);
}

TEST_F(ChoiceTable, EscapeLeavesTheChoiceAsItWas) {
  QTest::keyClick(&view, Qt::Key_F2);
  ASSERT_NE(openList(), nullptr);
  QTest::keyClick(openList(), Qt::Key_Down);
  QTest::keyClick(openList(), Qt::Key_Escape);
  ASSERT_NE(editor(), nullptr);
  QTest::keyClick(editor(), Qt::Key_Escape);
  EXPECT_EQ(editor(), nullptr);
  EXPECT_EQ(text(0, 1), "Red");
}

TEST_F(ChoiceTable, ReturnInAClosedListChoosesAndGoesNoFurther) {
  QTest::keyClick(&view, Qt::Key_F2);
  ASSERT_NE(openList(), nullptr);
  editor()->hidePopup();
  editor()->setCurrentIndex(2);
  QTest::keyClick(editor(), Qt::Key_Return);
  EXPECT_EQ(text(0, 1), "Blue");
  EXPECT_EQ(editor(), nullptr);
}

TEST_F(ChoiceTable, WhatLeavesNoChoiceDoesNotOpen) {
  EXPECT_FALSE(model.index(1, 2).flags().testFlag(Qt::ItemIsEditable));
  EXPECT_TRUE(model.index(0, 2).flags().testFlag(Qt::ItemIsEditable));
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                    view.visualRect(model.index(1, 2)).center());
  EXPECT_EQ(openList(), nullptr);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                    view.visualRect(model.index(0, 0)).center());
  EXPECT_EQ(openList(), nullptr);
}

TEST_F(ChoiceTable, ARefusedChoiceIsNotShown) {
  std::vector<std::vector<int>> asked;
  model.setChoose([&asked](int row, int cell, int choice) {
    asked.push_back({row, cell, choice});
    return false;
  });
  EXPECT_FALSE(model.setData(model.index(1, 1), 2, ChoiceDelegate::kChosenRole));
  EXPECT_EQ(text(1, 1), "");
  EXPECT_EQ(asked, (std::vector<std::vector<int>>{{1, 0, 2}}));
}

TEST_F(ChoiceTable, TheSameChoiceIsNoChange) {
  int asked = 0;
  model.setChoose([&asked](int, int, int) { return ++asked > 0; });
  EXPECT_TRUE(model.setData(model.index(0, 1), 0, ChoiceDelegate::kChosenRole));
  EXPECT_EQ(asked, 0);
  EXPECT_FALSE(model.setData(model.index(0, 1), 3, ChoiceDelegate::kChosenRole));
  EXPECT_FALSE(model.setData(model.index(0, 0), 1, ChoiceDelegate::kChosenRole));
}

TEST_F(ChoiceTable, LeavesRoomForItsLongestChoice) {
  EXPECT_GT(view.columnWidth(1), view.fontMetrics().horizontalAdvance("Green"));
  EXPECT_GE(view.rowHeight(0), view.fontMetrics().height());
}

}  // namespace
}  // namespace vrel
