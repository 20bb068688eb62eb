#include "ui/view_files.h"

#include <gtest/gtest.h>

#include <filesystem>
#ifndef Q_OS_WIN
#include <sys/stat.h>
#endif

#include "support/inside.h"
#include "support/views.h"
#include "ui/desk.h"
#include "ui/view_save.h"

namespace vrel {
namespace {

using test::Desk;
using test::Inside;
using test::savedText;
using test::supplyPlan;
using test::tableOf;

using Lines = std::vector<std::string>;

struct ViewFiles : testing::Test {
  ViewFiles() {
    desk.view.showSystemTitle = false;
    turned = desk.view;
    turned.dataInColumns = false;
    turned.userTitle = "Turned";
  }

  void open() { window = desk.openWindow(); }

  void trigger(const char* text) { test::menuEntry(*window, "&File", text)->trigger(); }

  // Chooses a file in the dialog that the entry opens.
  void trigger(const char* text, const std::string& file) {
    desk.chosenFile = QString::fromStdString(file);
    trigger(text);
  }

  std::string title() const {
    return window->findChild<QLabel*>("reportTitle")->text().toStdString();
  }

  // All that a view that is not opened leaves alone.
  std::string state() const {
    return savedText(desk.view) + desk.view.fileName + std::to_string(desk.format.precision) +
           desk.format.dateFormat + (desk.view.modified ? "modified" : "") + title() +
           window->tables().cellText(0, 2).toStdString();
  }

  test::TemporaryDirectory folder;
  Desk desk{supplyPlan(), {"Item Place", "Week", "", "Plan Seen"}, true};
  ReportView turned;
  std::unique_ptr<VrelMainWindow> window;
};

std::string foreignView() {
  test::SilentNotice notice;
  Table table = tableOf("Other:String", "", {});
  return savedText(makeReportView(table, notice));
}

TEST(FilterPattern, IsThePlainName) {
  EXPECT_EQ(filterPattern("plan.2014-05_new.view"), "plan.2014-05_new.view");
}

TEST(FilterPattern, HasAQuestionMarkForWhatAFilterCannotHold) {
  EXPECT_EQ(filterPattern("a b;c(d)[e]*.view"), "a?b?c?d??e??.view");
  EXPECT_EQ(filterPattern("K\xc3\xa4se \xf0\x9f\xa7\x80.view"), "K?se??.view");
}

TEST_F(ViewFiles, TheDialogListsTheMatchingViewsOfItsFolder) {
  const std::string fitting = savedText(desk.view);
  desk.view.fileName = folder.write("my plan.view", fitting);
  folder.write("foreign.view", foreignView());
  open();
  trigger("&Open View...");
  EXPECT_EQ(desk.askedFor, Lines{"open|Open View|Matching views (my?plan.view);;"
                                 "All views (*.view)"});
  EXPECT_EQ(desk.lastQuestion.extensions, QList<QStringList>({{"view"}}));
}

TEST_F(ViewFiles, SeveralMatchingViewsAreSeparatedByBlanks) {
  desk.view.fileName = folder.path("plan.view");
  folder.write("a.view", savedText(desk.view));
  folder.write("b.view", savedText(desk.view));
  open();
  trigger("&Open View...");
  const std::string filter = desk.lastQuestion.filter.toStdString();
  EXPECT_TRUE(filter == "Matching views (a.view b.view);;All views (*.view)" ||
              filter == "Matching views (b.view a.view);;All views (*.view)")
      << filter;
}

TEST_F(ViewFiles, WhereNoViewMatchesTheListIsEmpty) {
  desk.view.fileName = folder.path("plan.view");
  folder.write("foreign.view", foreignView());
  open();
  trigger("Save &View As...");
  EXPECT_EQ(desk.askedFor, Lines{"save|Save View As|Matching views ();;All views (*.view)"});
}

TEST_F(ViewFiles, TheDialogStartsBesideTheCurrentView) {
  desk.view.fileName = folder.path("plan.view");
  open();
  trigger("Save &View As...");
  EXPECT_EQ(desk.lastQuestion.folder, QString::fromStdString(folder.path()));
  EXPECT_EQ(desk.lastQuestion.file, "plan.view");
}

TEST_F(ViewFiles, TheDialogStartsInTheWorkingDirectoryWithoutAViewFile) {
  const Inside inside(folder.path());
  open();
  trigger("Save &View As...");
  EXPECT_EQ(desk.lastQuestion.folder, QString::fromStdString(folder.path()));
  EXPECT_EQ(desk.lastQuestion.file, "");
  desk.view.fileName = "/no/such/folder/plan.view";
  trigger("Save &View As...");
  EXPECT_EQ(desk.lastQuestion.folder, QString::fromStdString(folder.path()));
}

TEST_F(ViewFiles, AViewWithoutAFileIsOfferedUnderTheNameOfItsTitle) {
  desk.context.title = "/data/models/week12.dat";
  open();
  trigger("Save &View As...");
  EXPECT_EQ(desk.lastQuestion.file, "week12.view");
}

TEST_F(ViewFiles, OpenViewShowsTheReportByTheChosenView) {
  turned.precision = 2;
  const std::string path = folder.write("turned.view", savedText(turned));
  open();
  EXPECT_EQ(window->tables().cellText(0, 2), "1,200");
  trigger("&Open View...", path);
  EXPECT_EQ(desk.view.fileName, path);
  EXPECT_EQ(title(), "Turned");
  EXPECT_EQ(window->tables().cellText(0, 2), "Plan");
  EXPECT_EQ(window->tables().cellText(0, 3), "1,200.00");
  EXPECT_FALSE(desk.view.modified);
  EXPECT_EQ(desk.notice.shown, Lines{});
}

TEST_F(ViewFiles, OpenViewAddsTheExtension) {
  const std::string path = folder.write("turned.view", savedText(turned));
  open();
  trigger("&Open View...", folder.path("turned"));
  EXPECT_EQ(desk.view.fileName, path);
}

TEST_F(ViewFiles, OpenViewComputesTheFormulasOfTheView) {
  turned.precision = 0;
  std::string text = savedText(turned);
  const std::string field =
      "addfield <Name> Both <Type> expression <Classification> dataReadOnly <Expression> "
      "Plan+Seen\n";
  text.insert(text.find("definexfields"), field);
  text += "definehiddenfields 3 4\n";
  open();
  trigger("&Open View...", folder.write("both.view", text));
  EXPECT_EQ(title(), "Turned");
  EXPECT_EQ(window->tables().cellText(0, 2), "1,211");
}

TEST_F(ViewFiles, OpenViewCombinesTuplesThatItsKeysDoNotTellApart) {
  turned.axis(Axis::X) = {0};
  turned.axis(Axis::Hidden) = {1};
  open();
  trigger("&Open View...", folder.write("few.view", savedText(turned)));
  EXPECT_EQ(desk.notice.shown, Lines{});
  EXPECT_EQ(desk.table.tupleCount, 6U);
}

TEST_F(ViewFiles, OpenViewEndsWhatCanBeTakenBack) {
  turned.precision = 0;
  std::string texts = savedText(turned);
  texts.replace(texts.find("\"number\""), 8, "\"string\"");
  for (const std::string& view : {savedText(turned), texts}) {
    open();
    auto* edits = window->findChild<EditDesk*>();
    edits->type({0, 3}, "7");
    edits->type({1, 3}, "8");
    edits->undo();
    const std::size_t sent = desk.announced.size();
    desk.notice.answer = Answer::No;
    trigger("&Open View...", folder.write("next.view", view));
    edits->undo();
    edits->redo();
    EXPECT_EQ(window->tables().cellText(0, 3), "7");
    EXPECT_EQ(window->tables().cellText(0, 4), "1,300");
    EXPECT_EQ(desk.announced.size(), sent);
    EXPECT_FALSE(desk.view.modified);
  }
}

TEST_F(ViewFiles, OpenViewWithoutAChoiceDoesNothing) {
  open();
  const std::string before = state();
  trigger("&Open View...");
  EXPECT_EQ(desk.notice.shown, Lines{});
  EXPECT_EQ(state(), before);
}

TEST_F(ViewFiles, OpenViewAsksAboutUnsavedChangesFirst) {
  desk.view.modified = true;
  desk.view.fileName = folder.path("plan.view");
  open();
  const std::string before = state();
  trigger("&Open View...", folder.write("turned.view", savedText(turned)));
  EXPECT_EQ(desk.notice.shown,
            Lines{"question|Data Editor|Do you want to save changes to \"plan.view\"?"});
  EXPECT_EQ(desk.askedFor, Lines{}) << "cancelled before a file is chosen";
  EXPECT_EQ(state(), before);
}

TEST_F(ViewFiles, OpenViewSavesTheChangesWhenToldSo) {
  desk.view.modified = true;
  desk.view.fileName = folder.path("plan.view");
  desk.notice.answer = Answer::Yes;
  open();
  const std::string saved = savedText(desk.view);
  trigger("&Open View...", folder.write("turned.view", savedText(turned)));
  EXPECT_EQ(folder.read("plan.view"), saved);
  EXPECT_EQ(title(), "Turned");
}

TEST_F(ViewFiles, OpenViewDropsTheChangesWhenToldSo) {
  desk.view.modified = true;
  desk.view.fileName = folder.path("plan.view");
  desk.notice.answer = Answer::No;
  open();
  trigger("&Open View...", folder.write("turned.view", savedText(turned)));
  EXPECT_FALSE(folder.has("plan.view"));
  EXPECT_EQ(title(), "Turned");
  EXPECT_FALSE(desk.view.modified);
}

TEST_F(ViewFiles, AFileThatCannotBeOpenedIsNotLoaded) {
  open();
  const std::string before = state();
  trigger("&Open View...", folder.path("none.view"));
  EXPECT_EQ(desk.notice.shown, Lines{"critical|Data Editor|Unable to open file \"" +
                                     folder.path("none.view") + "\" for loading expressions."});
  EXPECT_EQ(state(), before);
}

#ifndef Q_OS_WIN
TEST_F(ViewFiles, OpeningAViewDoesNotWaitForAPipe) {
  mkfifo(folder.path("pipe.view").c_str(), 0600);
  open();
  trigger("&Open View...", folder.path("pipe.view"));
  EXPECT_EQ(desk.notice.shown, Lines{"critical|Data Editor|Unable to open file \"" +
                                     folder.path("pipe.view") + "\" for loading expressions."});
}
#endif

TEST_F(ViewFiles, ThePlaceholderNameIsNeverLoaded) {
  const std::string path = folder.write("untitled.view", savedText(turned));
  open();
  const std::string before = state();
  trigger("&Open View...", path);
  EXPECT_EQ(desk.notice.shown, Lines{"critical|Data Editor|Unable to open file \"" + path +
                                     "\" for loading expressions."});
  EXPECT_EQ(state(), before);
}

TEST_F(ViewFiles, AViewThatDoesNotMatchIsNotLoaded) {
  const std::string path = folder.write("foreign.view", foreignView());
  desk.view.fileName = folder.path("plan.view");
  open();
  const std::string before = state();
  trigger("&Open View...", path);
  EXPECT_EQ(desk.notice.shown,
            Lines{"critical|Data Editor|View file \"" + path + "\" does not match data"});
  EXPECT_EQ(state(), before);
}

TEST_F(ViewFiles, FaultsInAChosenViewAreErrors) {
  open();
  trigger("&Open View...", folder.write("bad.view", "nonsense\n"));
  EXPECT_EQ(desk.errorText,
            "Unknown command \"nonsense\" in line 1\nError in view file in line 1\n");
}

TEST_F(ViewFiles, NothingIsLookedForInTheTableWhileAViewIsOpened) {
  // A sign of progress gives the window the chance to paint.
  struct : test::AnsweringNotice {
    bool progress(std::string_view, std::uint64_t, std::uint64_t) override {
      rows = std::max(rows, window->model().rowCount());
      return true;
    }
    VrelMainWindow* window = nullptr;
    int rows = -1;
  } watching;
  std::string text = savedText(turned);
  text.insert(text.find("definexfields"),
              "addfield <Name> One <Type> expression <Classification> dataReadOnly <Expression> "
              "1\n");
  open();
  watching.window = window.get();
  desk.noticeInForce = &watching;
  trigger("&Open View...", folder.write("one.view", text));
  EXPECT_EQ(watching.rows, 0);
  EXPECT_GT(window->model().rowCount(), 0);
}

TEST_F(ViewFiles, DeleteViewRemovesTheFileOnceThatIsConfirmed) {
  const std::string path = folder.write("old.view", "");
  desk.notice.confirms = true;
  open();
  trigger("&Delete View...", folder.path("old"));
  EXPECT_EQ(desk.askedFor.front().substr(0, 17), "open|Delete View|");
  EXPECT_EQ(desk.notice.shown,
            Lines{"confirm|Data Editor: Delete View|Delete view \"" + path + "\"?"});
  EXPECT_FALSE(folder.has("old.view"));
}

TEST_F(ViewFiles, DeleteViewKeepsTheFileWhenItIsCancelled) {
  const std::string path = folder.write("old.view", "");
  open();
  trigger("&Delete View...", path);
  EXPECT_EQ(desk.notice.shown.size(), 1U);
  EXPECT_TRUE(folder.has("old.view"));
}

TEST_F(ViewFiles, DeleteViewWithoutAChoiceAsksNothing) {
  open();
  trigger("&Delete View...");
  EXPECT_EQ(desk.notice.shown, Lines{});
}

TEST_F(ViewFiles, AFileThatCannotBeDeletedIsTold) {
  desk.notice.confirms = true;
  open();
  trigger("&Delete View...", folder.path("none.view"));
  EXPECT_EQ(desk.notice.shown.back(),
            "critical|Data Editor|Cannot delete \"" + folder.path("none.view") + "\".");
}

TEST_F(ViewFiles, AFileNameWithAForbiddenCharacterIsRefusedEverywhere) {
  for (const char* entry : {"&Open View...", "Save &View As...", "&Delete View..."}) {
    open();
    desk.notice.shown.clear();
    trigger(entry, folder.path("a*b"));
    EXPECT_EQ(desk.notice.shown, Lines{"critical|Data Editor|File name \"" + folder.path("a*b") +
                                       "\" contains a character that is not allowed."})
        << entry;
  }
  EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST_F(ViewFiles, AFolderMayHaveAnyName) {
  std::filesystem::create_directory(folder.path("John's plans"));
  open();
  trigger("Save &View As...", folder.path("John's plans") + "/plan");
  EXPECT_EQ(desk.notice.shown, Lines{});
  EXPECT_TRUE(folder.has("John's plans/plan.view"));
}

TEST_F(ViewFiles, SaveViewAsWritesTheChosenFileAndKeepsItsName) {
  desk.view.modified = true;
  open();
  trigger("&Save View", folder.path("other"));
  const std::string path = folder.path("other.view");
  EXPECT_EQ(desk.view.fileName, path);
  EXPECT_FALSE(desk.view.modified);
  EXPECT_EQ(folder.read("other.view"), savedText(desk.view));
  EXPECT_EQ(desk.logLines(),
            (Lines{"slotFileSaveView: Calling slotFileSaveViewAs",
                   "slotFileSaveViewAs: save view as called",
                   "slotFileSaveViewAs: view to be saved to is " + path,
                   "slotFileSaveViewAs: calling ViewSave", "ViewSave: open view file",
                   "ViewSave: write view file", "ViewSave: done writing view file",
                   "ViewSave: done", "slotFileSaveViewAs: done"}));
}

TEST_F(ViewFiles, SaveViewAsWithoutAChoiceSavesNothing) {
  desk.view.modified = true;
  open();
  trigger("Save &View As...");
  EXPECT_EQ(desk.view.fileName, "");
  EXPECT_TRUE(desk.view.modified);
  EXPECT_TRUE(desk.notice.shown.empty());
  EXPECT_EQ(desk.logLines(), (Lines{"slotFileSaveViewAs: save view as called",
                                    "slotFileSaveViewAs: view to be saved to is "}));
}

TEST_F(ViewFiles, AViewThatCannotBeSavedStaysModified) {
  desk.view.fileName = "/no/such/folder/plan.view";
  desk.view.modified = true;
  open();
  trigger("&Save View");
  EXPECT_TRUE(desk.view.modified);
  EXPECT_EQ(desk.notice.shown,
            Lines{"critical|Data Editor|Unable to open file \"/no/such/folder/plan.view\" for "
                  "saving."});
}

TEST_F(ViewFiles, ThePlaceholderNameIsNeverWritten) {
  const Inside inside(folder.path());
  desk.view.fileName = "untitled.view";
  open();
  trigger("&Save View");
  trigger("Save &View As...", folder.path("untitled.view"));
  EXPECT_EQ(desk.notice.shown,
            (Lines{"critical|Data Editor|Unable to open file \"untitled.view\" for saving.",
                   "critical|Data Editor|Unable to open file \"" + folder.path("untitled.view") +
                       "\" for saving."}));
  EXPECT_FALSE(folder.has("untitled.view"));
}

TEST_F(ViewFiles, SavingWithoutANameAsksForOne) {
  EXPECT_FALSE(ViewSave(desk.view, "", desk.log, desk.notice));
  EXPECT_EQ(desk.notice.shown, Lines{"critical|Data Editor|Please specify file name for saving."});
  EXPECT_EQ(desk.logLines(), Lines{"ViewSave: done"});
}

TEST_F(ViewFiles, AViewThatCannotBeWrittenWholeIsNotSaved) {
  std::filesystem::create_symlink("/dev/full", folder.path("full.view"));
  desk.view.fileName = folder.path("full.view");
  desk.view.modified = true;
  open();
  trigger("&Save View");
  EXPECT_EQ(desk.notice.shown, Lines{"critical|Data Editor|Unable to open file \"" +
                                     folder.path("full.view") + "\" for saving."});
  EXPECT_TRUE(desk.view.modified);
  EXPECT_EQ(desk.logLines(), (Lines{"slotFileSaveView: Calling ViewSave to save to current view " +
                                        folder.path("full.view"),
                                    "ViewSave: open view file", "ViewSave: write view file",
                                    "ViewSave: done", "slotFileSaveView: done calling ViewSave"}));
}

TEST_F(ViewFiles, AFolderOfThatNameIsNoView) {
  std::filesystem::create_directory(folder.path("plan.view"));
  desk.notice.confirms = true;
  open();
  trigger("&Open View...", folder.path("plan.view"));
  trigger("Save &View As...", folder.path("plan.view"));
  trigger("&Delete View...", folder.path("plan.view"));
  const std::string path = "\"" + folder.path("plan.view") + "\"";
  EXPECT_EQ(desk.notice.shown,
            (Lines{"critical|Data Editor|Unable to open file " + path + " for loading expressions.",
                   "critical|Data Editor|Unable to open file " + path + " for saving.",
                   "confirm|Data Editor: Delete View|Delete view " + path + "?",
                   "critical|Data Editor|Cannot delete " + path + "."}));
  EXPECT_TRUE(folder.has("plan.view"));
}

}  // namespace
}  // namespace vrel
