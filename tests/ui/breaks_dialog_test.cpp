#include "ui/breaks_dialog.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include "model/view_file.h"
#include "support/views.h"
#include "ui/choice_delegate.h"
#include "ui/configure_break_dialog.h"
#include "ui/desk.h"
#include "ui/fitting.h"

namespace vrel {
namespace {

using test::breakOf;
using test::Desk;
using test::supplyPlan;
using Lines = std::vector<std::string>;

template <typename Control>
Control* find(const QDialog& dialog, const char* name) {
  auto* control = dialog.findChild<Control*>(name);
  EXPECT_NE(control, nullptr) << name;
  return control;
}

struct BreaksOfAPlan : testing::Test {
  BreaksOfAPlan() {
    for (int field = 0; field < 5; ++field) {
      desk.view.breaks[static_cast<std::size_t>(field)].fieldIndex = field;
    }
    desk.inDialog = [this](QDialog& dialog) {
      dialog.show();
      QCoreApplication::processEvents();
      if (auto* breaks = qobject_cast<BreaksDialogImpl*>(&dialog)) {
        inBreaks(*breaks);
      } else if (auto* definition = qobject_cast<ConfigureBreakDialog*>(&dialog)) {
        inDefinition(*definition);
      }
      dialog.hide();
    };
    window = desk.openWindow();
  }

  void configure(std::function<void(BreaksDialogImpl&)> use) {
    inBreaks = std::move(use);
    test::menuEntry(*window, "&Configure", "&Breaks...")->trigger();
  }

  // Opens the dialog over the break in a row of the list.
  void define(int row, std::function<void(ConfigureBreakDialog&)> use) {
    inDefinition = std::move(use);
    configure([row](BreaksDialogImpl& dialog) {
      auto* list = find<QTreeWidget>(dialog, "breakList");
      list->setCurrentItem(list->topLevelItem(row));
      QTest::keyClick(list, Qt::Key_Return);
    });
  }

  static Lines rows(const QDialog& dialog) {
    Lines lines;
    const auto* list = find<QTreeWidget>(dialog, "breakList");
    for (int row = 0; row < list->topLevelItemCount(); ++row) {
      const QTreeWidgetItem& item = *list->topLevelItem(row);
      QStringList texts;
      for (int column = 0; column < list->columnCount(); ++column) {
        texts << (column == 2 ? (item.checkState(2) == Qt::Checked ? "on" : "off")
                              : item.text(column));
      }
      lines.push_back(texts.join(u'|').toStdString());
    }
    return lines;
  }

  // The report's rows, labels included.
  Lines report() {
    Lines lines;
    const ReportTableModel& model = window->model();
    for (int row = 0; row < model.rowCount(); ++row) {
      QStringList texts;
      for (int column = 0; column < model.columnCount(); ++column) {
        texts << model.index(row, column).data().toString();
      }
      lines.push_back(texts.join(u'|').toStdString());
    }
    return lines;
  }

  Desk desk{supplyPlan(), {"Item Place", "Week", "", "Plan Seen"}, true};
  std::function<void(BreaksDialogImpl&)> inBreaks = [](BreaksDialogImpl&) {};
  std::function<void(ConfigureBreakDialog&)> inDefinition = [](ConfigureBreakDialog&) {};
  std::unique_ptr<VrelMainWindow> window;
};

TEST_F(BreaksOfAPlan, AreListedWithTheirSettings) {
  desk.view.breaks[1] = breakOf(1, 24, {{3, BreakOperation::Sum}, {4, BreakOperation::First}});
  desk.view.breaks[1].firstBreak = 3;
  desk.view.breaks[1].active = false;
  Lines lines;
  configure([&](BreaksDialogImpl& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Breaks");
    EXPECT_EQ(find<QLabel>(dialog, "keyFieldsLabel")->text(), "Key Fields:");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(find<QTreeWidget>(dialog, "breakList"))
                  ->text(QAccessible::Name),
              "Key Fields:");
    lines = rows(dialog);
  });
  EXPECT_EQ(lines, (Lines{"Item|Result|on|Never|Same as Frequency|Nothing",
                          "Place|Total|off|Every 24th Change|At 3rd Change|Plan: Sum, Seen: 1st",
                          "Week|Result|on|Never|Same as Frequency|Nothing"}));
  EXPECT_FALSE(desk.view.modified);
}

TEST_F(BreaksOfAPlan, AreSuspendedAndActivatedFromTheActionsMenu) {
  desk.view.breaks[0] = breakOf(0, 1, {{3, BreakOperation::Sum}});
  window->layOutReport();
  ASSERT_EQ(report().size(), 6U) << "four rows and a summary for each item";
  configure([this](BreaksDialogImpl& dialog) {
    const auto* bar = dialog.findChild<QMenuBar*>();
    ASSERT_NE(bar, nullptr);
    ASSERT_EQ(bar->actions().size(), 1);
    EXPECT_EQ(bar->actions().first()->text(), "&Actions");
    const QList<QAction*> entries = bar->actions().first()->menu()->actions();
    ASSERT_EQ(entries.size(), 2);
    EXPECT_EQ(entries[0]->text(), "Suspend All Breaks");
    EXPECT_EQ(entries[1]->text(), "Activate All Breaks");
    entries[1]->trigger();
    EXPECT_FALSE(desk.view.modified) << "they are all active";
    entries[0]->trigger();
    EXPECT_TRUE(desk.view.modified);
    EXPECT_EQ(report().size(), 4U);
    EXPECT_EQ(rows(dialog)[0], "Item|Total|off|Every Change|Same as Frequency|Plan: Sum");
    desk.view.modified = false;
    entries[0]->trigger();
    EXPECT_FALSE(desk.view.modified) << "none is active any more";
    entries[1]->trigger();
    EXPECT_EQ(report().size(), 6U);
    EXPECT_EQ(rows(dialog)[0], "Item|Total|on|Every Change|Same as Frequency|Plan: Sum");
  });
}

TEST_F(BreaksOfAPlan, AreSuspendedOneByOneWithSpaceOrTheMouse) {
  desk.view.breaks[0] = breakOf(0, 1, {{3, BreakOperation::Sum}});
  window->layOutReport();
  configure([this](BreaksDialogImpl& dialog) {
    auto* list = find<QTreeWidget>(dialog, "breakList");
    EXPECT_TRUE(list->hasFocus());
    QTest::keyClick(list, Qt::Key_Space);
    EXPECT_FALSE(desk.view.breaks[0].active);
    EXPECT_TRUE(desk.view.modified);
    EXPECT_EQ(report().size(), 4U);
    const QRect cell = list->visualRect(list->indexFromItem(list->topLevelItem(0), 2));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, {cell.left() + 10, cell.center().y()});
    EXPECT_TRUE(desk.view.breaks[0].active);
    EXPECT_EQ(report().size(), 6U);
  });
}

TEST_F(BreaksOfAPlan, OpenByEnterADoubleClickOrTheButton) {
  int opened = 0;
  inDefinition = [&](ConfigureBreakDialog& dialog) {
    ++opened;
    EXPECT_EQ(dialog.windowTitle(), "Define Break");
    EXPECT_EQ(find<QLabel>(dialog, "fieldNameLabel")->text(), "Place");
  };
  configure([](BreaksDialogImpl& dialog) {
    auto* list = find<QTreeWidget>(dialog, "breakList");
    list->setCurrentItem(list->topLevelItem(1));
    QTest::keyClick(list, Qt::Key_Return);
    const QRect cell = list->visualRect(list->indexFromItem(list->topLevelItem(1), 0));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, cell.center());
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, cell.center());
    QTest::mouseClick(find<QPushButton>(dialog, "defineButton"), Qt::LeftButton);
  });
  EXPECT_EQ(opened, 3);
  EXPECT_FALSE(desk.view.modified);
}

TEST_F(BreaksOfAPlan, ShowTheirChangedSettingsInTheListAgain) {
  Lines lines;
  inDefinition = [](ConfigureBreakDialog& dialog) {
    find<QComboBox>(dialog, "frequencyBox")->setCurrentIndex(1);
    QTest::keyClicks(find<QLineEdit>(dialog, "nameEdit"), "!");
  };
  configure([&lines](BreaksDialogImpl& dialog) {
    QTest::mouseClick(find<QPushButton>(dialog, "defineButton"), Qt::LeftButton);
    lines = rows(dialog);
  });
  EXPECT_EQ(lines[0], "Item|Result!|on|Every Change|Same as Frequency|Nothing");
}

TEST_F(BreaksOfAPlan, CanBeReadAndReachedByKeyboard) {
  inDefinition = [](ConfigureBreakDialog& dialog) {
    EXPECT_EQ(test::clippedTexts(dialog), QStringList());
    EXPECT_EQ(test::sharedMnemonics(dialog), QStringList());
  };
  configure([](BreaksDialogImpl& dialog) {
    EXPECT_EQ(test::clippedTexts(dialog), QStringList());
    EXPECT_EQ(test::sharedMnemonics(dialog), QStringList());
    QTest::mouseClick(find<QPushButton>(dialog, "defineButton"), Qt::LeftButton);
  });
}

TEST_F(BreaksOfAPlan, AreDefinedWithTheControlsAsUsersKnowThem) {
  Lines texts;
  define(0, [&texts](ConfigureBreakDialog& dialog) {
    for (const char* name : {"nameLabel", "frequencyLabel", "firstBreakLabel", "operationLabel"}) {
      texts.push_back(find<QLabel>(dialog, name)->text().toStdString());
      EXPECT_NE(find<QLabel>(dialog, name)->buddy(), nullptr) << name;
    }
    for (const char* name : {"activeBox", "blankAfterBox"}) {
      texts.push_back(find<QCheckBox>(dialog, name)->text().toStdString());
    }
  });
  EXPECT_EQ(texts, (Lines{"&Name:", "Break &Frequency:", "F&irst Break:", "At Break, Compute",
                          "Acti&ve", "Put A &Blank Row After Break"}));
}

TEST_F(BreaksOfAPlan, AreWrittenAtOnceControlByControl) {
  define(0, [this](ConfigureBreakDialog& dialog) {
    const BreakDefinition& item = desk.view.breaks[0];
    auto* frequency = find<QComboBox>(dialog, "frequencyBox");
    frequency->setFocus();
    QTest::keyClick(frequency, Qt::Key_Down);
    EXPECT_EQ(item.frequency, 1);
    EXPECT_EQ(report().size(), 4U) << "nothing is computed yet";
    auto* operations = find<ChoiceTableView>(dialog, "operationTable");
    operations->setFocus();
    EXPECT_EQ(operations->model()->index(0, 0).data().toString(), "Plan");
    QTest::keyClick(operations, Qt::Key_S);
    EXPECT_EQ(operationOf(item, 3), BreakOperation::Sum);
    EXPECT_EQ(operations->model()->index(0, 1).data().toString(), "Sum");
    QCoreApplication::processEvents();
    EXPECT_EQ(report()[2], "Result||3,400||3,600||3,800|")
        << "the report follows when the list of choices is closed";
    QTest::keyClick(find<QCheckBox>(dialog, "blankAfterBox"), Qt::Key_Space);
    EXPECT_TRUE(item.breakAfter);
    EXPECT_EQ(report()[3], "|||||||");
    QTest::keyClick(find<QCheckBox>(dialog, "activeBox"), Qt::Key_Space);
    EXPECT_FALSE(item.active);
    EXPECT_EQ(report().size(), 4U);
    auto* first = find<QComboBox>(dialog, "firstBreakBox");
    first->setFocus();
    QTest::keyClick(first, Qt::Key_Down);
    EXPECT_EQ(item.firstBreak, 1);
  });
  EXPECT_TRUE(desk.view.modified);
}

TEST_F(BreaksOfAPlan, TakeATypedNameAtOnceAndShowItWhenTheFieldIsLeft) {
  desk.view.breaks[0] = breakOf(0, 1, {{3, BreakOperation::Sum}});
  window->layOutReport();
  define(0, [this](ConfigureBreakDialog& dialog) {
    auto* name = find<QLineEdit>(dialog, "nameEdit");
    EXPECT_EQ(name->text(), "Total");
    name->selectAll();
    QTest::keyClicks(name, "Sum of it");
    EXPECT_EQ(desk.view.breaks[0].name, "Sum of it");
    EXPECT_TRUE(desk.view.modified);
    QTest::keyClick(name, Qt::Key_Tab);
    EXPECT_EQ(report()[2].substr(0, 9), "Sum of it");
    name->setFocus();
    QTest::keyClicks(name, "s");
  });
  EXPECT_EQ(desk.view.breaks[0].name, "Sum of its");
}

TEST_F(BreaksOfAPlan, ShowATypedNameWhenItsFieldIsLeft) {
  desk.view.breaks[0] = breakOf(0, 1, {{3, BreakOperation::Sum}});
  window->layOutReport();
  define(0, [this](ConfigureBreakDialog& dialog) {
    QTest::keyClicks(find<QLineEdit>(dialog, "nameEdit"), "s");
    EXPECT_EQ(report()[2].substr(0, 7), "Total||") << "not at every key";
    QTest::keyClick(find<QLineEdit>(dialog, "nameEdit"), Qt::Key_Tab);
    EXPECT_EQ(report()[2].substr(0, 7), "Totals|");
  });
}

TEST_F(BreaksOfAPlan, ShowATypedNameWhenTheDialogIsClosed) {
  desk.view.breaks[0] = breakOf(0, 1, {{3, BreakOperation::Sum}});
  define(0, [this](ConfigureBreakDialog& dialog) {
    QTest::keyClicks(find<QLineEdit>(dialog, "nameEdit"), "s");
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_EQ(report()[2].substr(0, 7), "Totals|");
  });
}

TEST_F(BreaksOfAPlan, ShowAChangedNameWhenTheDialogIsClosedWithoutAWordFromItsField) {
  desk.view.breaks[0] = breakOf(0, 1, {{3, BreakOperation::Sum}});
  window->layOutReport();
  define(0, [this](ConfigureBreakDialog& dialog) {
    find<QPushButton>(dialog, "closeButton")->setFocus();
    dialog.slotBreakNameChanged("Whole");
    EXPECT_EQ(report()[2].substr(0, 6), "Total|");
    dialog.accept();
    EXPECT_EQ(report()[2].substr(0, 6), "Whole|");
  });
}

TEST_F(BreaksOfAPlan, KeepNumbersThatAreNotOffered) {
  desk.view.breaks[0].frequency = 11;
  desk.view.breaks[0].firstBreak = 15;
  define(0, [this](ConfigureBreakDialog& dialog) {
    auto* frequency = find<QComboBox>(dialog, "frequencyBox");
    EXPECT_EQ(frequency->currentText(), "Every 11 Changes");
    EXPECT_EQ(frequency->count(), 16);
    EXPECT_EQ(find<QComboBox>(dialog, "firstBreakBox")->currentText(), "At Change 15");
    EXPECT_EQ(desk.view.breaks[0].frequency, 11);
    frequency->setCurrentIndex(frequency->findText("At End"));
    EXPECT_EQ(desk.view.breaks[0].frequency, 2097152);
    frequency->setCurrentIndex(frequency->findText("Every 11 Changes"));
    EXPECT_EQ(desk.view.breaks[0].frequency, 11);
  });
  EXPECT_EQ(desk.view.breaks[0].firstBreak, 15);
}

TEST_F(BreaksOfAPlan, SayWhyTheyShowNothing) {
  define(0, [](ConfigureBreakDialog& dialog) {
    auto* label = find<QLabel>(dialog, "obstacleLabel");
    auto* active = find<QCheckBox>(dialog, "activeBox");
    EXPECT_EQ(label->text(), "This break shows nothing: choose how often it comes.");
    active->click();
    EXPECT_EQ(label->text(), "This break shows nothing: it is not active.");
    active->click();
    find<QComboBox>(dialog, "frequencyBox")->setCurrentIndex(1);
    EXPECT_EQ(label->text(),
              "This break shows nothing: choose what to compute for at least one data field.");
    auto* operations = find<ChoiceTableView>(dialog, "operationTable")->model();
    operations->setData(operations->index(1, 1), 4, ChoiceDelegate::kChosenRole);
    EXPECT_EQ(label->text(), "");
  });
  EXPECT_EQ(operationOf(desk.view.breaks[0], 4), BreakOperation::Average);
}

TEST_F(BreaksOfAPlan, OfAFieldOnNoAxisSaySo) {
  desk.view.axis(Axis::Y) = {};
  desk.view.axis(Axis::Z) = {2};
  define(2, [](ConfigureBreakDialog& dialog) {
    EXPECT_EQ(find<QLabel>(dialog, "obstacleLabel")->text(),
              "This break shows nothing: its field is neither in the rows nor in the columns of "
              "the report.");
  });
}

TEST_F(BreaksOfAPlan, ThatAreOnlyLookedAtChangeNothing) {
  define(0, [](ConfigureBreakDialog& dialog) {
    dialog.slotBreakNameChanged("Result");
    dialog.slotActiveToggled(true);
    dialog.slotBlankAfterToggled(false);
    dialog.slotFrequencyChanged(0);
    dialog.slotFirstBreakChanged(0);
    dialog.slotBreakOptionChanged(0, 0);
    QTest::mouseClick(find<QPushButton>(dialog, "closeButton"), Qt::LeftButton);
  });
  EXPECT_FALSE(desk.view.modified);
}

TEST_F(BreaksOfAPlan, KeepTheirFixedNamesInTheViewFile) {
  define(0, [](ConfigureBreakDialog& dialog) {
    auto* operations = find<ChoiceTableView>(dialog, "operationTable")->model();
    operations->setData(operations->index(0, 1), 2, ChoiceDelegate::kChosenRole);
    find<QComboBox>(dialog, "frequencyBox")->setCurrentIndex(14);
  });
  const std::string saved = test::savedText(desk.view);
  EXPECT_NE(saved.find("addbreak <FieldIndex> 0 <Name> \"Result\" <FirstBreak> 0 <Frequency> "
                       "2097152 <BreakAfter> \"False\" <Active> \"True\" <BreakOperations> "
                       "\"Nothing\" \"Nothing\" \"Nothing\" \"Minimum\" \"Nothing\""),
            std::string::npos)
      << saved;
}

}  // namespace
}  // namespace vrel
