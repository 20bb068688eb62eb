#include "ui/file_dialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <deque>

#include "support/temporary_directory.h"

namespace vrel {
namespace {

using test::TemporaryDirectory;
using testing::UnorderedElementsAre;

using Lines = std::vector<std::string>;

constexpr const char* kFilter = "Matching views (plan.view two?words.view);;All views (*.view)";

constexpr const char* kExportFilter =
    "XML (*.xml);;HTML (*.htm; *.html);;CSV (Comma delimited) (*.csv)";

// Somebody who uses the dialogs that come up, one step each time the program waits for input.
class Person : public QObject {
 public:
  using Step = std::function<void(QWidget& dialog)>;

  explicit Person(std::deque<Step> steps) : steps_(std::move(steps)) { waitForInput(); }
  ~Person() override { EXPECT_TRUE(steps_.empty()) << "the dialog was gone too early"; }

 private:
  void waitForInput() { QTimer::singleShot(1, this, &Person::act); }

  void act() {
    // A step may open another dialog, in which the next one is due.
    waitForInput();
    QWidget* const dialog = QApplication::activeModalWidget();
    if (dialog == nullptr) {
      return;
    }
    if (steps_.empty()) {
      giveUpInTime(*dialog);
      return;
    }
    sinceLastStep_.start();
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    step(*dialog);
  }

  void giveUpInTime(QWidget& dialog) {
    if (sinceLastStep_.hasExpired(5000)) {
      ADD_FAILURE() << "nobody ends " << dialog.metaObject()->className();
      static_cast<QDialog&>(dialog).reject();
    }
  }

  std::deque<Step> steps_;
  QElapsedTimer sinceLastStep_;
};

QLineEdit* nameEdit(QWidget& dialog) {
  return dialog.findChild<QLineEdit*>("fileNameEdit");
}

Person::Step type(const QString& name) {
  return [name](QWidget& dialog) {
    QApplication::setActiveWindow(&dialog);
    nameEdit(dialog)->setFocus();
    nameEdit(dialog)->selectAll();
    QTest::keyClicks(nameEdit(dialog), name);
  };
}

Person::Step press(Qt::Key key) {
  return [key](QWidget& dialog) {
    QWidget* const edit = nameEdit(dialog);
    QTest::keyClick(edit != nullptr ? edit : &dialog, key);
  };
}

// Chooses the kind that stands so many places below or, with a negative number, above.
Person::Step goToKind(int places) {
  return [places](QWidget& dialog) {
    auto* kinds = dialog.findChild<QComboBox*>("fileTypeCombo");
    kinds->setFocus();
    for (int i = 0; i < std::abs(places); ++i) {
      QTest::keyClick(kinds, places > 0 ? Qt::Key_Down : Qt::Key_Up);
    }
  };
}

Person::Step expectName(const QString& name) {
  return [name](QWidget& dialog) { EXPECT_EQ(nameEdit(dialog)->text(), name); };
}

// A box over the dialog.
Person::Step answerBox(const QString& text, QMessageBox::StandardButton button) {
  return [text, button](QWidget& dialog) {
    auto* box = qobject_cast<QMessageBox*>(&dialog);
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(box->text().contains(text)) << box->text().toStdString();
    box->button(button)->click();
  };
}

// The names of the files and folders that the dialog lists, once it has looked; "(never)" when an
// expected one does not come.
Lines listed(QWidget& dialog, const char* expected) {
  auto* view = dialog.findChild<QListView*>("listView");
  Lines names;
  const bool there = QTest::qWaitFor([&] {
    names.clear();
    for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row) {
      const QModelIndex entry = view->model()->index(row, 0, view->rootIndex());
      names.push_back(entry.data().toString().toStdString());
    }
    return std::find(names.begin(), names.end(), expected) != names.end();
  });
  return there ? names : Lines{"(never)"};
}

struct FileDialogTest : testing::Test {
  FileDialogTest() {
    // The toolkit keeps what was visited in the user's settings.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       QString::fromStdString(settings.path()));
    folder.write("plan.view", "");
    folder.write("two words.view", "");
    folder.write("foreign.view", "");
    folder.write("plan.txt", "");
    folder.write("deeper/below.view", "");
  }

  FileQuestion question(const QString& filter = kFilter) const {
    return {.caption = "Open View",
            .filter = filter,
            .extensions = {{"view"}},
            .folder = QString::fromStdString(folder.path()),
            .file = "plan.view"};
  }

  std::string opened(std::deque<Person::Step> steps, const QString& filter = kFilter) const {
    const Person person(std::move(steps));
    return askForOpenFile(nullptr, question(filter)).path.toStdString();
  }

  std::string saved(std::deque<Person::Step> steps) const {
    const Person person(std::move(steps));
    return askForSaveFile(nullptr, question()).path.toStdString();
  }

  // Path and kind of a file that is chosen for saving from three kinds.
  std::string exported(std::deque<Person::Step> steps, const QString& offered = "") const {
    const Person person(std::move(steps));
    const ChosenFile chosen =
        askForSaveFile(nullptr, {.caption = "Export As",
                                 .filter = kExportFilter,
                                 .extensions = {{"xml"}, {"html", "htm"}, {"csv"}},
                                 .folder = QString::fromStdString(folder.path()),
                                 .file = offered});
    return (chosen.path + "|" + chosen.filter).toStdString();
  }

  TemporaryDirectory settings;
  TemporaryDirectory folder;
};

TEST_F(FileDialogTest, OpensTheFileWhoseNameIsTyped) {
  EXPECT_EQ(opened({type("foreign.view"), press(Qt::Key_Return)}), folder.path("foreign.view"));
}

TEST_F(FileDialogTest, WithoutExtensionsANameStaysAsItIsTyped) {
  const auto openedFromAll = [this](const QString& name) {
    const Person person({type(name), press(Qt::Key_Return)});
    FileQuestion all = question("All files (*)");
    all.extensions = {};
    return askForOpenFile(nullptr, all).path.toStdString();
  };
  folder.write("periods", "");
  EXPECT_EQ(openedFromAll("plan.txt"), folder.path("plan.txt"));
  EXPECT_EQ(openedFromAll("periods"), folder.path("periods"));
}

TEST_F(FileDialogTest, IsTheToolkitsOwnWithItsCaption) {
  opened({[](QWidget& dialog) {
    auto& files = dynamic_cast<QFileDialog&>(dialog);
    EXPECT_EQ(files.windowTitle(), "Open View");
    EXPECT_TRUE(files.testOption(QFileDialog::DontUseNativeDialog));
    EXPECT_EQ(files.acceptMode(), QFileDialog::AcceptOpen);
    EXPECT_EQ(files.nameFilters(),
              QStringList({"Matching views (plan.view two?words.view)", "All views (*.view)"}));
    files.reject();
  }});
}

TEST_F(FileDialogTest, NothingIsChosenWhenItIsCancelled) {
  EXPECT_EQ(opened({type("plan.view"), press(Qt::Key_Escape)}), "");
  EXPECT_EQ(saved({type("plan.view"), press(Qt::Key_Escape)}), "");
}

TEST_F(FileDialogTest, ShowsTheMatchingFilesOrAll) {
  opened({[](QWidget& dialog) {
    auto& files = dynamic_cast<QFileDialog&>(dialog);
    EXPECT_THAT(listed(dialog, "deeper"),
                UnorderedElementsAre("deeper", "plan.view", "two words.view"));
    files.findChild<QComboBox*>("fileTypeCombo")->setFocus();
    QTest::keyClick(files.findChild<QComboBox*>("fileTypeCombo"), Qt::Key_Down);
    EXPECT_THAT(listed(dialog, "foreign.view"),
                UnorderedElementsAre("deeper", "plan.view", "two words.view", "foreign.view"));
    files.reject();
  }});
}

TEST_F(FileDialogTest, AKindWithoutAPatternShowsNoFile) {
  opened({[](QWidget& dialog) {
           auto& files = dynamic_cast<QFileDialog&>(dialog);
           auto* kinds = files.findChild<QComboBox*>("fileTypeCombo");
           EXPECT_THAT(listed(dialog, "deeper"), UnorderedElementsAre("deeper"));
           QTest::keyClick(kinds, Qt::Key_Down);
           EXPECT_THAT(
               listed(dialog, "foreign.view"),
               UnorderedElementsAre("deeper", "plan.view", "two words.view", "foreign.view"));
           QTest::keyClick(kinds, Qt::Key_Up);
           EXPECT_TRUE(QTest::qWaitFor([&] { return listed(dialog, "deeper").size() == 1; }));
           files.reject();
         }},
         "Matching views ();;All views (*.view)");
}

TEST_F(FileDialogTest, TheExtensionNeedNotBeTyped) {
  EXPECT_EQ(opened({type("plan"), press(Qt::Key_Return)}), folder.path("plan.view"));
  EXPECT_EQ(saved({type("new"), press(Qt::Key_Return)}), folder.path("new.view"));
  EXPECT_EQ(saved({type("new.2014"), press(Qt::Key_Return)}), folder.path("new.2014.view"));
}

TEST_F(FileDialogTest, AFolderIsEnteredAndGetsNoExtension) {
  const auto seeFiles = [](QWidget& dialog) {
    EXPECT_THAT(listed(dialog, "below.view"), UnorderedElementsAre("below.view"));
  };
  EXPECT_EQ(opened({type("deeper"), press(Qt::Key_Return), seeFiles, type("below"),
                    press(Qt::Key_Return)},
                   "All views (*.view)"),
            folder.path("deeper/below.view"));
}

TEST_F(FileDialogTest, TheUsersOwnFolderIsAFolder) {
  const QByteArray home = qgetenv("HOME");
  qputenv("HOME", QByteArray::fromStdString(folder.path()));
  opened({type("~/deeper"), press(Qt::Key_Return), [this](QWidget& dialog) {
            auto& files = dynamic_cast<QFileDialog&>(dialog);
            EXPECT_EQ(files.directory().path().toStdString(), folder.path("deeper"));
            files.reject();
          }});
  qputenv("HOME", home);
}

TEST_F(FileDialogTest, AFileThatIsNotThereCannotBeOpened) {
  EXPECT_EQ(opened({type("none"), press(Qt::Key_Return), answerBox("none.view", QMessageBox::Ok),
                    press(Qt::Key_Escape)}),
            "");
}

TEST_F(FileDialogTest, OffersANameForSaving) {
  EXPECT_EQ(saved({[](QWidget& dialog) { EXPECT_EQ(nameEdit(dialog)->text(), "plan.view"); },
                   press(Qt::Key_Return), answerBox("plan.view", QMessageBox::Yes)}),
            folder.path("plan.view"));
}

TEST_F(FileDialogTest, AsksBeforeAFileIsReplacedAlsoWhenItsExtensionWasNotTyped) {
  EXPECT_EQ(saved({type("foreign"), press(Qt::Key_Return),
                   answerBox("foreign.view", QMessageBox::No), type("new"), press(Qt::Key_Return)}),
            folder.path("new.view"));
}

TEST_F(FileDialogTest, AQuoteInANameIsPartOfIt) {
  folder.write("ird.view", "");
  EXPECT_EQ(opened({type("we\"ird"), press(Qt::Key_Return)}), folder.path("we\"ird.view"));
  EXPECT_EQ(saved({type("we\"ird.view"), press(Qt::Key_Return)}), folder.path("we\"ird.view"));
  EXPECT_EQ(saved({type("we\"ird"), press(Qt::Key_Escape)}), "");
}

TEST_F(FileDialogTest, ATildeMayBeginAName) {
  folder.write("~last_plan.view", "");
  EXPECT_EQ(opened({type("~last_plan"), press(Qt::Key_Return)}), folder.path("~last_plan.view"));
}

TEST_F(FileDialogTest, TheExtensionFollowsTheKind) {
  EXPECT_EQ(exported({type("new"), press(Qt::Key_Return)}),
            folder.path("new.xml") + "|XML (*.xml)");
  EXPECT_EQ(exported({type("new"), goToKind(1), press(Qt::Key_Return)}),
            folder.path("new.html") + "|HTML (*.htm; *.html)");
  EXPECT_EQ(exported({goToKind(2), type("new"), press(Qt::Key_Return)}),
            folder.path("new.csv") + "|CSV (Comma delimited) (*.csv)");
}

TEST_F(FileDialogTest, AKindMayHaveSeveralExtensions) {
  for (const char* name : {"new.htm", "new.html"}) {
    EXPECT_EQ(exported({goToKind(1), type(name), press(Qt::Key_Return)}),
              folder.path(name) + "|HTML (*.htm; *.html)");
  }
}

TEST_F(FileDialogTest, ANameOfAnotherKindGetsTheExtensionOfItsOwn) {
  EXPECT_EQ(exported({type("new.csv"), press(Qt::Key_Return)}),
            folder.path("new.csv.xml") + "|XML (*.xml)");
}

TEST_F(FileDialogTest, ANameThatStandsThereTakesTheExtensionOfTheKind) {
  exported({expectName("plan.xml"), goToKind(1), expectName("plan.html"), goToKind(1),
            expectName("plan.csv"), goToKind(-2), expectName("plan.xml"), press(Qt::Key_Escape)},
           "plan.xml");
}

TEST_F(FileDialogTest, OnlyTheExtensionOfAKindIsTakenAway) {
  exported({type("week.2014"), goToKind(2), expectName("week.2014"), type("a.xml.b"), goToKind(-1),
            expectName("a.xml.b"), type("a.htm"), goToKind(-1), expectName("a.xml"),
            press(Qt::Key_Escape)});
}

TEST_F(FileDialogTest, ShowsTheFilesOfAllExtensionsOfAKind) {
  for (const char* name : {"a.xml", "b.htm", "c.html", "d.csv"}) {
    folder.write(name, "");
  }
  exported({[](QWidget& dialog) {
              EXPECT_THAT(listed(dialog, "a.xml"), UnorderedElementsAre("deeper", "a.xml"));
            },
            goToKind(1),
            [](QWidget& dialog) {
              EXPECT_THAT(listed(dialog, "b.htm"),
                          UnorderedElementsAre("deeper", "b.htm", "c.html"));
            },
            press(Qt::Key_Escape)});
}

TEST_F(FileDialogTest, AsksBeforeTheFileOfTheChosenKindIsReplaced) {
  folder.write("plan.html", "");
  EXPECT_EQ(exported({goToKind(1), type("plan"), press(Qt::Key_Return),
                      answerBox("plan.html", QMessageBox::No), press(Qt::Key_Return),
                      answerBox("plan.html", QMessageBox::Yes)}),
            folder.path("plan.html") + "|HTML (*.htm; *.html)");
}

TEST_F(FileDialogTest, AsksBeforeAFileWithAQuoteInItsNameIsReplaced) {
  folder.write("we\"ird.xml", "");
  EXPECT_EQ(
      exported({type("we\"ird"), press(Qt::Key_Return), answerBox("we\"ird.xml", QMessageBox::No),
                press(Qt::Key_Return), answerBox("we\"ird.xml", QMessageBox::Yes)}),
      folder.path("we\"ird.xml") + "|XML (*.xml)");
}

TEST_F(FileDialogTest, NoKindIsChosenWhenItIsCancelled) {
  EXPECT_EQ(exported({type("new"), press(Qt::Key_Escape)}), "|");
}

}  // namespace
}  // namespace vrel
