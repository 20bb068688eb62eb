// The whole interface in each language: all texts can be read, and all mnemonics reached.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLibraryInfo>
#include <QMenu>
#include <QMenuBar>
#include <QTranslator>

#include "expr/formula.h"
#include "ui/desk.h"
#include "ui/fitting.h"

namespace vrel {
namespace {

using test::clippedTexts;
using test::Desk;
using test::sharedMnemonics;
using test::supplyPlan;

std::string joined(const QStringList& texts) {
  return texts.join(u'\n').toStdString();
}

// In English the two texts are fixed; their shared letter goes to them in turn.
QStringList mnemonicFaults(const QWidget& dialog) {
  QStringList shared = sharedMnemonics(dialog);
  shared.removeAll(QStringLiteral("a: &Actions, &Apply"));
  return shared;
}

// A small screen.
constexpr QSize kRoom(1024, 700);

Table planWithFormula() {
  Table table = test::tableOf("Item:String Week:Period Plan:Number Stock:Number", "W1 W2",
                              {"Bolt W1 1 2", "Gear W2 3 4"});
  table.field(2).classification = Classification::DataReadWrite;
  FieldDef& stock = table.field(3);
  stock.type = FieldType::Expression;
  stock.classification = Classification::DataReadOnly;
  setText(stock.expression, "Plan + 1");
  setText(stock.highlightExpression, "RED()");
  return table;
}

class InterfaceIn : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    const QString code = QLatin1String(GetParam());
    if (code != QLatin1String("en")) {
      const QString toolkit = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
      ASSERT_TRUE(toolkitTexts.load(QStringLiteral("qtbase_") + code, toolkit));
      ASSERT_TRUE(texts.load(QStringLiteral(VREL_TRANSLATIONS "/qnt_") + code));
    }
    QCoreApplication::installTranslator(&toolkitTexts);
    QCoreApplication::installTranslator(&texts);
    desk.view.breaks[1].fieldIndex = 1;
    desk.inDialog = [this](QDialog& dialog) { look(dialog); };
    window = desk.openWindow();
  }

  ~InterfaceIn() override {
    QCoreApplication::removeTranslator(&texts);
    QCoreApplication::removeTranslator(&toolkitTexts);
  }

  // Triggers the entries whose text says that a dialog follows, and looks at each dialog.
  void openAll(const QMenu& menu) {
    for (QAction* entry : menu.actions()) {
      if (entry->text().endsWith(QLatin1String("..."))) {
        entry->trigger();
        lookAtOpenDialogs();
      }
    }
  }

  void lookAtOpenDialogs() {
    for (auto* dialog : window->findChildren<QDialog*>()) {
      if (dialog->isVisible()) {
        look(*dialog);
      }
    }
  }

  void look(QDialog& dialog) {
    dialog.show();
    QCoreApplication::processEvents();
    seen << dialog.objectName();
    EXPECT_EQ(joined(clippedTexts(dialog)), "") << dialog.objectName().toStdString();
    EXPECT_EQ(joined(mnemonicFaults(dialog)), "") << dialog.objectName().toStdString();
    const QSize least = dialog.minimumSizeHint();
    EXPECT_LE(least.width(), kRoom.width()) << dialog.objectName().toStdString();
    EXPECT_LE(least.height(), kRoom.height()) << dialog.objectName().toStdString();
    openFurther(dialog);
    dialog.close();
  }

  // What opens from a dialog: the definition of a break, the editor of a formula.
  void openFurther(QDialog& dialog) {
    auto* list = dialog.findChild<QAbstractItemView*>();
    const bool leadsOn =
        dialog.inherits("vrel::BreaksDialogImpl") || dialog.inherits("vrel::FormulaListDialog");
    if (!leadsOn || list == nullptr) {
      return;
    }
    list->setCurrentIndex(list->model()->index(0, 0));
    QTest::keyClick(list, Qt::Key_Return);
    QCoreApplication::processEvents();
    for (auto* further : window->findChildren<QDialog*>()) {
      if (further->isVisible() && further != &dialog) {
        look(*further);
      }
    }
  }

  QTranslator texts;
  QTranslator toolkitTexts;
  Desk desk{planWithFormula(), {"Item", "Week", "", "Plan Stock"}, false};
  std::unique_ptr<VrelMainWindow> window;
  QStringList seen;
};

INSTANTIATE_TEST_SUITE_P(All, InterfaceIn,
                         testing::Values("en", "zh_CN", "zh_TW", "de", "fr", "ja", "es"),
                         [](const auto& parameter) { return std::string(parameter.param); });

TEST_P(InterfaceIn, EveryDialogCanBeReadAndReached) {
  for (const QAction* title : window->menuBar()->actions()) {
    openAll(*title->menu());
  }
  EXPECT_EQ(seen.size(), 12) << seen.join(u' ').toStdString();
}

TEST_P(InterfaceIn, EveryMenuEntryHasALetterOfItsOwn) {
  const auto textsOf = [](const QList<QAction*>& actions) {
    QStringList entries;
    for (const QAction* action : actions) {
      entries << action->text();
    }
    return entries;
  };
  const QList<QAction*> titles = window->menuBar()->actions();
  EXPECT_EQ(joined(sharedMnemonics(textsOf(titles))), "");
  for (const QAction* title : titles) {
    EXPECT_EQ(joined(sharedMnemonics(textsOf(title->menu()->actions()))), "")
        << title->text().toStdString();
  }
}

TEST_P(InterfaceIn, TheWindowCanBeRead) {
  window->resize(kRoom);
  QTest::keyClick(window->tables().regularTable(), Qt::Key_F, Qt::ControlModifier);
  QCoreApplication::processEvents();
  EXPECT_EQ(joined(clippedTexts(*window->statusBar())), "");
  auto* findBar = window->findChild<FindBar*>();
  ASSERT_NE(findBar, nullptr);
  EXPECT_EQ(joined(clippedTexts(*findBar)), "");
  EXPECT_EQ(joined(sharedMnemonics(*findBar)), "");
}

}  // namespace
}  // namespace vrel
