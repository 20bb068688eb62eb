// The whole interface in each language: all texts can be read, and all mnemonics reached.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLibraryInfo>
#include <QMenu>
#include <QMenuBar>
#include <QTranslator>

#include "ui/every_dialog.h"
#include "ui/fitting.h"

namespace vrel {
namespace {

using test::clippedTexts;
using test::sharedMnemonics;

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
    dialogs.look = look;
    dialogs.openWindow();
    window = dialogs.window.get();
  }

  ~InterfaceIn() override {
    QCoreApplication::removeTranslator(&texts);
    QCoreApplication::removeTranslator(&toolkitTexts);
  }

  static void look(QDialog& dialog) {
    EXPECT_EQ(joined(clippedTexts(dialog)), "") << dialog.objectName().toStdString();
    EXPECT_EQ(joined(mnemonicFaults(dialog)), "") << dialog.objectName().toStdString();
    const QSize least = dialog.minimumSizeHint();
    EXPECT_LE(least.width(), kRoom.width()) << dialog.objectName().toStdString();
    EXPECT_LE(least.height(), kRoom.height()) << dialog.objectName().toStdString();
  }

  QTranslator texts;
  QTranslator toolkitTexts;
  test::EveryDialog dialogs;
  VrelMainWindow* window = nullptr;
};

INSTANTIATE_TEST_SUITE_P(All, InterfaceIn,
                         testing::Values("en", "zh_CN", "zh_TW", "de", "fr", "ja", "es"),
                         [](const auto& parameter) { return std::string(parameter.param); });

TEST_P(InterfaceIn, EveryDialogCanBeReadAndReached) {
  dialogs.openAll();
  EXPECT_EQ(dialogs.seen.size(), 12) << joined(dialogs.seen);
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
