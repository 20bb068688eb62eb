#include "ui/field_dialog.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QComboBox>
#include <QPushButton>
#include <QTest>

#include "expr/formula.h"
#include "support/views.h"
#include "ui/choice_delegate.h"
#include "ui/desk.h"
#include "ui/fitting.h"

namespace vrel {
namespace {

using test::Desk;
using test::listsOf;
using test::supplyPlan;
using Lines = std::vector<std::string>;

struct Fields : testing::Test {
  Fields() { window = desk.openWindow(); }

  // Opens the dialog from the menu; the user does these things in it.
  void configure(const std::function<void(QDialog&)>& use) {
    desk.inDialog = [&](QDialog& dialog) {
      dialog.show();
      QCoreApplication::processEvents();
      use(dialog);
      QCoreApplication::processEvents();
    };
    test::menuEntry(*window, "&Configure", "&Fields...")->trigger();
  }

  static ChoiceTableView& table(QDialog& dialog) {
    return *dialog.findChild<ChoiceTableView*>("fieldTable");
  }

  static QString shown(QDialog& dialog, int row, int column) {
    return table(dialog).model()->index(row, column).data().toString();
  }

  // Chooses by the keyboard, from the list that F2 opens.
  static void choose(QDialog& dialog, int row, int column, const QString& text) {
    ChoiceTableView& view = table(dialog);
    view.setFocus();
    view.setCurrentIndex(view.model()->index(row, column));
    QTest::keyClick(&view, Qt::Key_F2);
    QCoreApplication::processEvents();
    auto* box = view.findChild<QComboBox*>();
    ASSERT_NE(box, nullptr);
    const int entry = box->findText(text);
    ASSERT_GE(entry, 0) << text.toStdString();
    box->view()->setCurrentIndex(box->model()->index(entry, 0));
    QTest::keyClick(box->view(), Qt::Key_Return);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }

  static void press(QDialog& dialog, const char* button) {
    QTest::mouseClick(dialog.findChild<QPushButton*>(button), Qt::LeftButton);
  }

  QString cell(int row, int column) { return window->tables().cellText(row, column); }

  Desk desk{supplyPlan(), {"Item Place", "Week", "", "Plan Seen"}, true};
  std::unique_ptr<VrelMainWindow> window;
};

TEST_F(Fields, HaveARowEachWithClassificationAndType) {
  Lines rows;
  configure([&](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Configure Fields");
    EXPECT_EQ(dialog.findChild<QLabel*>("captionLabel")->text(),
              "Field, Classifications and Data Type");
    for (int row = 0; row < 5; ++row) {
      rows.push_back(
          (shown(dialog, row, 0) + "|" + shown(dialog, row, 1) + "|" + shown(dialog, row, 2))
              .toStdString());
    }
  });
  EXPECT_EQ(rows, (Lines{"Item|Key|String", "Place|Key|String", "Week|Key|Period",
                         "Plan|Data, can be edited|Number", "Seen|Data, read only|Number"}));
}

TEST_F(Fields, AreReachedByAssistiveTechnology) {
  configure([](QDialog& dialog) {
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&table(dialog))->text(QAccessible::Name),
              "Field, Classifications and Data Type");
    EXPECT_TRUE(table(dialog).hasFocus()) << "the keyboard begins in the list";
  });
}

TEST_F(Fields, CanBeReadAndReachedByKeyboard) {
  configure([](QDialog& dialog) {
    EXPECT_EQ(test::clippedTexts(dialog), QStringList());
    EXPECT_EQ(test::sharedMnemonics(dialog), QStringList());
  });
}

TEST_F(Fields, ThatAreAppliedAsTheyWereChangeNothing) {
  configure([](QDialog& dialog) { press(dialog, "applyButton"); });
  EXPECT_FALSE(desk.view.modified);
  EXPECT_EQ(listsOf(desk.view), "x 0 1, y 2, data 3 4");
}

TEST_F(Fields, ThatAreCancelledChangeNothing) {
  configure([](QDialog& dialog) {
    choose(dialog, 1, 1, "Data, read only");
    press(dialog, "cancelButton");
  });
  EXPECT_FALSE(desk.view.modified);
  EXPECT_TRUE(desk.table.field(1).isKey());
  configure([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  EXPECT_FALSE(desk.view.modified);
}

TEST_F(Fields, MoveToTheDataWhenTheyAreKeysNoMore) {
  configure([](QDialog& dialog) {
    choose(dialog, 1, 1, "Data, can be edited");
    EXPECT_EQ(shown(dialog, 1, 1), "Data, can be edited");
    EXPECT_EQ(dialog.result(), QDialog::Rejected) << "nothing is taken yet";
    press(dialog, "applyButton");
  });
  EXPECT_TRUE(desk.view.modified);
  EXPECT_EQ(listsOf(desk.view), "x 0, y 2, data 1 3 4");
  EXPECT_EQ(cell(0, 1), "Oslo") << "of two tuples in one cell the later one shows";
  EXPECT_EQ(desk.table.tupleCount, 11U) << "and the other one stays";
  EXPECT_EQ(desk.table.sortKeys, (std::vector<int>{0, 2}));
  EXPECT_EQ(desk.notice.shown.size(), 1U);
}

TEST_F(Fields, MoveToTheRowsWhenTheyBecomeKeys) {
  configure([](QDialog& dialog) {
    choose(dialog, 4, 1, "Key");
    press(dialog, "applyButton");
  });
  EXPECT_EQ(listsOf(desk.view), "x 4 0 1, y 2, data 3");
  EXPECT_EQ(cell(0, 0), "11");
  EXPECT_EQ(desk.notice.shown, Lines());
}

TEST_F(Fields, MustHaveADataField) {
  configure([this](QDialog& dialog) {
    choose(dialog, 3, 1, "Key");
    EXPECT_EQ(desk.notice.shown, Lines());
    choose(dialog, 4, 1, "Key");
    EXPECT_EQ(desk.notice.shown, (Lines{"warning|Data Editor: classification error|There must "
                                        "always be at least one Data field."}));
    EXPECT_EQ(shown(dialog, 4, 1), "Data, read only") << "back to what it was";
    press(dialog, "applyButton");
  });
  EXPECT_EQ(listsOf(desk.view), "x 3 0 1, y 2, data 4");
}

TEST_F(Fields, MustHaveAKeyField) {
  configure([this](QDialog& dialog) {
    choose(dialog, 0, 1, "Data, read only");
    choose(dialog, 1, 1, "Data, read only");
    choose(dialog, 2, 1, "Data, can be edited");
    EXPECT_EQ(desk.notice.shown, (Lines{"warning|Data Editor: classification error|There must "
                                        "always be at least one Key field."}));
    EXPECT_EQ(shown(dialog, 2, 1), "Key");
  });
}

TEST_F(Fields, TakeAnotherTypeWithTheirValues) {
  configure([](QDialog& dialog) {
    choose(dialog, 3, 2, "String");
    press(dialog, "applyButton");
  });
  EXPECT_EQ(desk.notice.shown, Lines()) << "no value is lost";
  EXPECT_EQ(desk.table.field(3).type, FieldType::String);
  EXPECT_EQ(cell(0, 2), "1,200");
  EXPECT_TRUE(desk.view.modified);
  EXPECT_NE(test::savedText(desk.view).find(
                "<Name> \"Plan\" <Index> \"3\" <Type> \"string\" <Classification> "
                "\"dataReadWrite\""),
            std::string::npos);
}

TEST_F(Fields, AskBeforeValuesAreLost) {
  configure([](QDialog& dialog) {
    choose(dialog, 1, 2, "Number");
    press(dialog, "applyButton");
    EXPECT_TRUE(dialog.isVisible()) << "the user thinks better of it";
  });
  EXPECT_EQ(desk.notice.shown,
            (Lines{"confirm|Data Editor|Some values cannot be kept in the new type of their "
                   "field:\n\nPlace as Number: 11 of 11 values, the first is \"Lyon\"\n\nThey will "
                   "be other values, and nothing brings them back. Change the types all the "
                   "same?"}));
  EXPECT_EQ(desk.table.field(1).type, FieldType::String);
  EXPECT_FALSE(desk.view.modified);
}

TEST(ManyFields, AreNotAllNamedInTheQuestion) {
  std::string fields = "Key:String";
  std::string tuple = "k";
  for (int i = 1; i <= 12; ++i) {
    fields += " F" + std::to_string(i) + ":String";
    tuple += " " + std::string(50, 'x');
  }
  Desk desk(test::tableOf(fields, "", {tuple}), {"Key", "", "", "F1"}, true);
  FieldDialogImpl dialog(desk.table, desk.format, desk.noticeInForce);
  QAbstractItemModel& model = *dialog.findChild<ChoiceTableView*>("fieldTable")->model();
  for (int row = 1; row <= 12; ++row) {
    model.setData(model.index(row, 1), 2, ChoiceDelegate::kChosenRole);
    model.setData(model.index(row, 2), 1, ChoiceDelegate::kChosenRole);
  }
  dialog.slotApply();
  ASSERT_EQ(desk.notice.shown.size(), 1U);
  const QString question = QString::fromStdString(desk.notice.shown[0]);
  EXPECT_TRUE(question.contains("\nF10 as Number: 1 of 1 values, the first is \"" +
                                QString(40, 'x') + "...\"\nand more in 2 other fields\n"))
      << desk.notice.shown[0];
  EXPECT_FALSE(question.contains("F11"));
}

TEST_F(Fields, ChangeWhenTheUserAcceptsTheLoss) {
  desk.notice.confirms = true;
  configure([](QDialog& dialog) {
    choose(dialog, 1, 2, "Number");
    press(dialog, "applyButton");
  });
  EXPECT_EQ(desk.table.field(1).type, FieldType::Number);
  EXPECT_EQ(cell(0, 1), "0");
  EXPECT_EQ(desk.table.tupleCount, 11U);
}

TEST_F(Fields, OfferPeriodsOnlyWhereThereAreNames) {
  configure([](QDialog& dialog) {
    const QAbstractItemModel& model = *table(dialog).model();
    EXPECT_EQ(model.index(0, 2).data(ChoiceDelegate::kTextsRole).toStringList(),
              (QStringList{"String", "Number", "Boolean", "Date"}));
    EXPECT_EQ(model.index(2, 2).data(ChoiceDelegate::kTextsRole).toStringList(),
              (QStringList{"String", "Number", "Boolean", "Date", "Period"}));
  });
}

TEST_F(Fields, EndWhatCanBeTakenBack) {
  desk.view.modified = false;
  const QModelIndex first = window->model().index(0, 2);
  const_cast<ReportTableModel&>(window->model()).setData(first, "5", Qt::EditRole);
  EXPECT_EQ(cell(0, 2), "5");
  configure([](QDialog& dialog) {
    choose(dialog, 3, 1, "Data, read only");
    press(dialog, "applyButton");
  });
  QApplication::setActiveWindow(window.get());
  window->tables().regularTable()->setFocus();
  QTest::keyClick(window->tables().regularTable(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(cell(0, 2), "5") << "a field that may not be edited keeps its value";
}

struct FormulaFields : testing::Test {
  FormulaFields() : desk(planWithFormula(), {"Item", "Week", "", "Plan Before"}, true) {
    window = desk.openWindow();
  }

  // A formula that looks at the tuple before of the same item and place.
  static Table planWithFormula() {
    Table table = supplyPlan();
    std::vector<int> source = {0, 1, 2, 3, kNoField};
    std::vector<FieldDef> fields(5);
    for (std::size_t i = 0; i < 4; ++i) {
      fields[i] = std::move(table.fields[i]);
    }
    fields[4].name = "Before";
    fields[4].type = FieldType::Expression;
    fields[4].classification = Classification::DataReadOnly;
    setText(fields[4].expression, "Plan:-1");
    replaceFields(table, std::move(fields), source);
    return table;
  }

  Desk desk;
  std::unique_ptr<VrelMainWindow> window;
};

TEST_F(FormulaFields, StayFormulas) {
  desk.inDialog = [](QDialog& dialog) {
    const QModelIndex type = Fields::table(dialog).model()->index(4, 2);
    EXPECT_EQ(type.data().toString(), "Expression");
    EXPECT_FALSE(type.flags().testFlag(Qt::ItemIsEditable));
    EXPECT_EQ(type.data(ChoiceDelegate::kTextsRole).toStringList(), QStringList("Expression"));
  };
  test::menuEntry(*window, "&Configure", "&Fields...")->trigger();
}

TEST_F(FormulaFields, AreComputedAnewWhenTheKeysChange) {
  desk.inDialog = [](QDialog& dialog) {
    dialog.show();
    Fields::choose(dialog, 1, 1, "Data, read only");
    Fields::press(dialog, "applyButton");
  };
  test::menuEntry(*window, "&Configure", "&Fields...")->trigger();
  std::vector<double> before;
  for (std::size_t i = 0; i < desk.table.tupleCount; ++i) {
    before.push_back(desk.table.cell(i, 4).number);
  }
  // Each item is one series now, in the order of the weeks.
  EXPECT_EQ(before[1], 1200) << "Oslo's first week looks at Lyon's";
  EXPECT_EQ(before[2], 2200);
}

}  // namespace
}  // namespace vrel
