#include "ui/print_options_dialog.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <algorithm>

#include "ui/desk.h"

namespace vrel {
namespace {

using test::Desk;
using test::supplyPlan;

using Lines = std::vector<std::string>;

// The controls of the dialog, by their object names.
struct Controls {
  explicit Controls(QDialog& shown) : dialog(shown) {}

  template <typename Control>
  Control* find(const char* name) const {
    auto* control = dialog.findChild<Control*>(name);
    EXPECT_NE(control, nullptr) << name;
    return control;
  }
  bool isEnabled(const char* name) const { return find<QWidget>(name)->isEnabled(); }
  bool isChecked(const char* name) const { return find<QAbstractButton>(name)->isChecked(); }
  QString text(const char* name) const { return find<QLineEdit>(name)->text(); }
  int number(const char* name) const { return find<QSpinBox>(name)->value(); }
  void click(const char* name) const {
    auto* button = find<QAbstractButton>(name);
    QTest::mouseClick(button, Qt::LeftButton, {}, {8, button->height() / 2});
  }
  void type(const char* name, const QString& text) const {
    auto* edit = find<QWidget>(name);
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(edit, text);
  }
  void choose(const char* name, const QString& entry) const {
    auto* box = find<QComboBox>(name);
    const int index = box->findText(entry);
    EXPECT_GE(index, 0) << entry.toStdString();
    box->setFocus();
    while (box->currentIndex() != index) {
      const int before = box->currentIndex();
      QTest::keyClick(box, before < index ? Qt::Key_Down : Qt::Key_Up);
      ASSERT_NE(box->currentIndex(), before);
    }
  }

  QDialog& dialog;
};

struct PrintDialog : testing::Test {
  PrintDialog() {
    dialog.show();
    QCoreApplication::processEvents();
  }

  PrintOptionsDialogImpl dialog{[this](QWidget*, PrinterType type) {
    askedFor = type;
    return chosen;
  }};
  Controls controls{dialog};
  PrinterType askedFor = PrinterType::Ascii;
  QString chosen;
};

PrintOptions unusualOptions() {
  PrintOptions options;
  options.repeatRowLabels = false;
  options.repeatColumnLabels = false;
  options.printAllPages = true;
  options.title = "Plan";
  options.footer = "draft";
  options.printCommand = "lp %s";
  options.printerType = PrinterType::Ascii;
  options.paperType = 10;
  options.landscape = true;
  options.separators = false;
  options.fitToWidth = true;
  options.widthPages = 3;
  options.fitToHeight = true;
  options.heightPages = 4;
  options.bestOnePageFit = true;
  options.fontSize = 7;
  options.pageWidthChars = 80;
  options.pageHeightChars = 50;
  options.addHeader = false;
  options.borders = false;
  return options;
}

TEST_F(PrintDialog, ShowsTheDefaultsAtFirst) {
  EXPECT_EQ(dialog.windowTitle(), "Print Options");
  EXPECT_TRUE(dialog.options() == PrintOptions());
  EXPECT_TRUE(controls.isChecked("useFontSizeBox"));
  EXPECT_EQ(controls.number("fontSizeBox"), 10);
  EXPECT_EQ(controls.find<QComboBox>("paperTypeBox")->currentText(), "Letter");
  EXPECT_EQ(controls.find<QComboBox>("printerTypeBox")->currentText(), "PostScript");
}

TEST_F(PrintDialog, NamesItsControlsAsUsersKnowThem) {
  Lines texts;
  for (const char* name : {"titleLabel", "footerLabel", "printerTypeLabel", "printerLabel",
                           "fileNameLabel", "widthPagesBoxUnit", "heightPagesBoxUnit",
                           "fontSizeUnit", "pageWidthLabel", "pageHeightLabel"}) {
    texts.push_back(controls.find<QLabel>(name)->text().remove(u'&').toStdString());
  }
  for (const char* name :
       {"repeatRowsBox", "repeatColumnsBox", "allPagesBox", "printToFileBox", "fitWidthBox",
        "fitHeightBox", "onePageBox", "useFontSizeBox", "portraitButton", "landscapeButton",
        "gridBox", "applyButton", "applyAndPrintButton"}) {
    texts.push_back(controls.find<QAbstractButton>(name)->text().remove(u'&').toStdString());
  }
  EXPECT_EQ(texts, (Lines{"Title:",
                          "Footer:",
                          "Printer Type:",
                          "Printer:",
                          "File name:",
                          "Page(s)",
                          "Page(s)",
                          "Points",
                          "Page Width (chars)",
                          "Page Height (chars)",
                          "Repeat Row Headings",
                          "Repeat Column Headings",
                          "Print All Z Dimensions on Separate Pages",
                          "Print to file",
                          "Fit Width to",
                          "Fit Height to",
                          "Fit on One Page",
                          "Use Font Size",
                          "Portrait",
                          "Landscape",
                          "Show Grid",
                          "Apply",
                          "Apply and Print"}));
}

TEST_F(PrintDialog, OffersEveryPrinterTypeAndPaper) {
  Lines types;
  auto* typeBox = controls.find<QComboBox>("printerTypeBox");
  for (int i = 0; i < typeBox->count(); ++i) {
    types.push_back(typeBox->itemText(i).toStdString());
  }
  EXPECT_EQ(types, (Lines{"PostScript", "ASCII", "HTML"}));
  auto* papers = controls.find<QComboBox>("paperTypeBox");
  EXPECT_EQ(papers->count(), 18);
  EXPECT_EQ(papers->itemText(11), "A5");
}

TEST_F(PrintDialog, ReturnsEveryOptionThatItWasGiven) {
  dialog.setOptions(unusualOptions());
  EXPECT_TRUE(dialog.options() == unusualOptions());
}

TEST_F(PrintDialog, KeepsAPaperThatNobodyKnows) {
  PrintOptions options;
  options.paperType = 18;
  dialog.setOptions(options);
  EXPECT_EQ(controls.find<QComboBox>("paperTypeBox")->currentText(), "unknown");
  EXPECT_EQ(dialog.options().paperType, 18);
}

TEST_F(PrintDialog, TakesWhatTheUserTypesAndClicks) {
  controls.type("titleEdit", "Weekly plan");
  controls.type("footerEdit", "draft");
  controls.click("repeatRowsBox");
  controls.click("allPagesBox");
  controls.choose("paperTypeBox", "A4");
  controls.click("landscapeButton");
  controls.click("gridBox");
  controls.type("fontSizeBox", "12");
  PrintOptions expected;
  expected.title = "Weekly plan";
  expected.footer = "draft";
  expected.repeatRowLabels = false;
  expected.printAllPages = true;
  expected.paperType = 10;
  expected.landscape = true;
  expected.separators = false;
  expected.fontSize = 12;
  EXPECT_TRUE(dialog.options() == expected);
}

TEST_F(PrintDialog, UsesTheFontSizeWhenNothingIsFitted) {
  controls.click("fitWidthBox");
  EXPECT_FALSE(controls.isChecked("useFontSizeBox"));
  EXPECT_FALSE(controls.isEnabled("fontSizeBox"));
  EXPECT_TRUE(controls.isEnabled("widthPagesBox"));
  EXPECT_FALSE(controls.isEnabled("heightPagesBox"));
  controls.click("useFontSizeBox");
  EXPECT_FALSE(controls.isChecked("fitWidthBox"));
  EXPECT_TRUE(controls.isEnabled("fontSizeBox"));
  controls.click("useFontSizeBox");
  EXPECT_TRUE(controls.isChecked("useFontSizeBox"));
}

TEST_F(PrintDialog, EnablesWhatCountsForThePrinterType) {
  const auto enabled = [this] {
    Lines names;
    for (const char* name : {"scalingGroup", "paperTypeBox", "landscapeButton", "gridBox",
                             "repeatRowsBox", "pageWidthBox", "bordersBox"}) {
      if (controls.isEnabled(name)) {
        names.emplace_back(name);
      }
    }
    return names;
  };
  EXPECT_EQ(enabled(),
            (Lines{"scalingGroup", "paperTypeBox", "landscapeButton", "gridBox", "repeatRowsBox"}));
  controls.choose("printerTypeBox", "ASCII");
  EXPECT_EQ(enabled(), (Lines{"gridBox", "repeatRowsBox", "pageWidthBox"}));
  controls.choose("printerTypeBox", "HTML");
  EXPECT_EQ(enabled(), (Lines{"bordersBox"}));
}

TEST_F(PrintDialog, TellsAScreenReaderTheNameOfEveryControl) {
  for (QWidget* control : dialog.findChildren<QWidget*>()) {
    const bool isControl = control->focusPolicy() != Qt::NoFocus &&
                           control->parentWidget()->focusPolicy() == Qt::NoFocus;
    QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(control);
    EXPECT_TRUE(!isControl || (told != nullptr && !told->text(QAccessible::Name).isEmpty()))
        << control->objectName().toStdString();
  }
}

TEST_F(PrintDialog, HasNoMnemonicTwiceAmongTheControlsInUse) {
  for (const char* type : {"PostScript", "ASCII", "HTML"}) {
    controls.choose("printerTypeBox", type);
    Lines keys;
    const auto add = [&keys](const QWidget& owner, const QString& text) {
      const QString key = QKeySequence::mnemonic(text).toString();
      if (owner.isEnabled() && !key.isEmpty()) {
        keys.push_back(key.toStdString());
      }
    };
    for (const QLabel* label : dialog.findChildren<QLabel*>()) {
      const QWidget* const named = label->buddy() == nullptr ? label : label->buddy();
      add(*named, label->text());
    }
    for (const QAbstractButton* button : dialog.findChildren<QAbstractButton*>()) {
      add(*button, button->text());
    }
    std::sort(keys.begin(), keys.end());
    EXPECT_GE(keys.size(), 10U);
    EXPECT_TRUE(std::adjacent_find(keys.begin(), keys.end()) == keys.end())
        << type << " " << *std::adjacent_find(keys.begin(), keys.end());
  }
}

TEST_F(PrintDialog, SaysWhenThereAreNoPrinters) {
  EXPECT_EQ(controls.find<QComboBox>("printerBox")->currentText(), "No Printers Available");
  EXPECT_FALSE(controls.isEnabled("printerBox"));
  EXPECT_FALSE(dialog.target().printer);
}

TEST_F(PrintDialog, PrintsToThePreferredPrinterUntilAnotherIsChosen) {
  const std::vector<platform::Printer> printers = {
      {.server = "", .name = "office"},
      {.server = "hall", .name = "big", .isDefault = true},
      {.server = "", .name = "small"}};
  dialog.setPrinters(printers);
  EXPECT_EQ(controls.find<QComboBox>("printerBox")->currentText(), "big (hall)");
  EXPECT_EQ(dialog.target().printer->name, "big");
  controls.choose("printerBox", "small");
  EXPECT_EQ(dialog.target().printer->name, "small");
  dialog.setPrinters(printers);
  EXPECT_EQ(dialog.target().printer->name, "small");
  dialog.setPrinters({printers[0], printers[1]});
  EXPECT_EQ(dialog.target().printer->name, "big");
  dialog.setPrinters({printers[0]});
  EXPECT_EQ(dialog.target().printer->name, "office");
}

TEST_F(PrintDialog, PrintsToTheNamedFileWhenThatIsWanted) {
  EXPECT_FALSE(controls.isEnabled("fileNameEdit"));
  EXPECT_FALSE(dialog.target().file);
  controls.click("printToFileBox");
  controls.type("fileNameEdit", "/tmp/plan.ps");
  EXPECT_EQ(dialog.target().file, "/tmp/plan.ps");
}

TEST_F(PrintDialog, TakesTheFileThatTheUserLooksFor) {
  controls.click("printToFileBox");
  chosen = "/tmp/other.ps";
  controls.click("browseButton");
  EXPECT_EQ(askedFor, PrinterType::PostScript);
  EXPECT_EQ(controls.text("fileNameEdit"), "/tmp/other.ps");
  chosen = "";
  controls.click("browseButton");
  EXPECT_EQ(controls.text("fileNameEdit"), "/tmp/other.ps");
}

struct PrintMenu : testing::Test {
  void print(const std::function<void(const Controls&)>& use) {
    desk.inDialog = [use](QDialog& dialog) {
      dialog.show();
      use(Controls(dialog));
    };
    if (!window) {
      window = desk.openWindow();
    }
    test::menuEntry(*window, "&File", "&Print...")->trigger();
  }

  explicit PrintMenu(const test::Axes& axes = {"Item Place", "Week", "", "Plan Seen"})
      : desk(supplyPlan(), axes, true) {}

  Desk desk;
  std::unique_ptr<VrelMainWindow> window;
};

/// A page for each item.
struct PagedPrintMenu : PrintMenu {
  PagedPrintMenu() : PrintMenu({"Place", "Week", "Item", "Plan"}) {}
};

TEST_F(PrintMenu, ShowsTheViewsOptions) {
  desk.view.printOptions = unusualOptions();
  print([](const Controls& controls) {
    EXPECT_EQ(controls.text("titleEdit"), "Plan");
    controls.click("cancelButton");
  });
  EXPECT_FALSE(desk.view.modified);
}

TEST_F(PrintMenu, HintsAtTheTitleThatIsPrintedOtherwise) {
  desk.view.userTitle = "Soft drinks";
  print([](const Controls& controls) {
    EXPECT_EQ(controls.find<QLineEdit>("titleEdit")->placeholderText(), "Soft drinks");
    controls.click("cancelButton");
  });
}

TEST_F(PrintMenu, ApplyTakesTheOptionsAndMarksTheViewModified) {
  print([](const Controls& controls) {
    controls.type("titleEdit", "On paper");
    controls.click("applyButton");
    EXPECT_TRUE(controls.dialog.isVisible());
    controls.click("cancelButton");
  });
  EXPECT_EQ(desk.view.printOptions.title, "On paper");
  EXPECT_TRUE(desk.view.modified);
  EXPECT_TRUE(desk.commands.empty());
}

TEST_F(PrintMenu, CancelLeavesTheOptionsAlone) {
  print([](const Controls& controls) {
    controls.type("titleEdit", "On paper");
    controls.click("cancelButton");
  });
  EXPECT_EQ(desk.view.printOptions.title, "");
  EXPECT_FALSE(desk.view.modified);
}

TEST_F(PrintMenu, EnterPressesTheButtonThatHasTheFocus) {
  print([](const Controls& controls) {
    controls.type("titleEdit", "On paper");
    controls.find<QPushButton>("cancelButton")->setFocus();
    QTest::keyClick(controls.find<QPushButton>("cancelButton"), Qt::Key_Return);
    EXPECT_FALSE(controls.dialog.isVisible());
  });
  EXPECT_EQ(desk.view.printOptions.title, "");
  print([](const Controls& controls) {
    controls.type("titleEdit", "On paper");
    controls.find<QPushButton>("applyButton")->setFocus();
    QTest::keyClick(controls.find<QPushButton>("applyButton"), Qt::Key_Return);
    EXPECT_TRUE(controls.dialog.isVisible());
    controls.click("cancelButton");
  });
  EXPECT_EQ(desk.view.printOptions.title, "On paper");
  EXPECT_TRUE(desk.commands.empty());
  EXPECT_TRUE(desk.notice.shown.empty());
}

TEST_F(PrintMenu, EnterInAFieldPrintsAndEscapeDoesNot) {
  desk.printers = {{.server = "", .name = "office"}};
  print([](const Controls& controls) {
    QTest::keyClick(controls.find<QLineEdit>("titleEdit"), Qt::Key_Escape);
    EXPECT_FALSE(controls.dialog.isVisible());
  });
  EXPECT_EQ(desk.commands.size(), 0U);
  print([](const Controls& controls) {
    controls.find<QLineEdit>("footerEdit")->setFocus();
    QTest::keyClick(controls.find<QLineEdit>("footerEdit"), Qt::Key_Return);
  });
  EXPECT_EQ(desk.commands.size(), 1U);
}

TEST_F(PrintMenu, ApplyWithoutAChangeLeavesTheViewUnmodified) {
  print([](const Controls& controls) { controls.click("applyButton"); });
  EXPECT_FALSE(desk.view.modified);
}

TEST_F(PrintMenu, ApplyAndPrintHandsThePrintFileToThePrinter) {
  desk.printers = {{.server = "", .name = "office"}};
  print([](const Controls& controls) { controls.click("applyAndPrintButton"); });
  ASSERT_EQ(desk.commands.size(), 1U);
  EXPECT_TRUE(desk.commands[0].find("-P \"office\"") != std::string::npos);
  EXPECT_TRUE(desk.notice.shown.empty());
}

TEST_F(PrintMenu, PrintsToAFile) {
  const std::string path = desk.directory.path("plan.txt");
  print([&path](const Controls& controls) {
    controls.choose("printerTypeBox", "ASCII");
    controls.click("printToFileBox");
    controls.type("fileNameEdit", QString::fromStdString(path));
    controls.click("applyAndPrintButton");
  });
  EXPECT_NE(desk.directory.read("plan.txt").find("Page 1.1"), std::string::npos);
  EXPECT_TRUE(desk.notice.shown.empty());
}

TEST_F(PagedPrintMenu, PrintsWhatWasJustTypedOnAllPagesAndStaysOnItsOwn) {
  desk.view.zIndex = 1;
  window = desk.openWindow();
  QApplication::setActiveWindow(window.get());
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  QTableView* const cells = window->tables().regularTable();
  cells->setFocus();
  window->tables().setCurrentPlace({0, 1});
  QTest::keyClicks(QApplication::focusWidget(), "7");
  const std::string path = desk.directory.path("plan.txt");
  print([&path](const Controls& controls) {
    controls.choose("printerTypeBox", "ASCII");
    controls.click("allPagesBox");
    controls.click("printToFileBox");
    controls.type("fileNameEdit", QString::fromStdString(path));
    controls.click("applyAndPrintButton");
  });
  const std::string printed = desk.directory.read("plan.txt");
  EXPECT_NE(printed.find("Lyon  | 1,200 | 1,300 | 1,400\n"), std::string::npos) << printed;
  EXPECT_NE(printed.find("Lyon  |     7 | 3,300 | 3,400\n"), std::string::npos) << printed;
  EXPECT_EQ(desk.view.zIndex, 1);
  EXPECT_EQ(window->tables().cellText(0, 1), "7");
  QTest::keyClick(cells, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(window->tables().cellText(0, 1), "3,200");
}

TEST_F(PrintMenu, ShowsTheDialogAgainAfterAFailure) {
  int shown = 0;
  const std::string path = desk.directory.path("missing/plan.ps");
  print([&](const Controls& controls) {
    if (shown++ == 0) {
      controls.click("printToFileBox");
      controls.type("fileNameEdit", QString::fromStdString(path));
      controls.click("applyAndPrintButton");
    } else {
      EXPECT_EQ(controls.text("fileNameEdit").toStdString(), path);
      controls.click("cancelButton");
    }
  });
  EXPECT_EQ(shown, 2);
  EXPECT_EQ(desk.notice.shown,
            (Lines{"critical|Data Editor|Unable to print to \"" + path + "\"."}));
}

TEST_F(PrintMenu, KeepsTheOneDialog) {
  const QDialog* first = nullptr;
  print([&](const Controls& controls) {
    first = &controls.dialog;
    controls.click("cancelButton");
  });
  print([&](const Controls& controls) {
    EXPECT_EQ(&controls.dialog, first);
    controls.click("cancelButton");
  });
}

TEST_F(PrintMenu, LooksForThePrintFileByItsType) {
  desk.chosenFile = "/tmp/found.html";
  print([](const Controls& controls) {
    controls.choose("printerTypeBox", "HTML");
    controls.click("printToFileBox");
    controls.click("browseButton");
    EXPECT_EQ(controls.text("fileNameEdit"), "/tmp/found.html");
    controls.click("cancelButton");
  });
  EXPECT_EQ(desk.askedFor, (Lines{"save|Print to file|HTML (*.html)"}));
}

}  // namespace
}  // namespace vrel
