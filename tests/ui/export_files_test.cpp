#include "ui/export_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTest>

#include "support/inside.h"
#include "ui/desk.h"

namespace vrel {
namespace {

using test::Desk;
using test::Inside;
using test::supplyPlan;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;

using Lines = std::vector<std::string>;

constexpr const char* kXml = "XML (*.xml)";
constexpr const char* kHtml = "HTML (*.htm; *.html)";
constexpr const char* kCsv = "CSV (Comma delimited) (*.csv)";
constexpr const char* kAsked =
    "save|Export As|XML (*.xml);;HTML (*.htm; *.html);;CSV (Comma delimited) (*.csv)";

constexpr const char* kPlanAsCsv =
    "\"Item\",\"Place\",\"Week\",\"Plan\",\"Seen\"\n"
    "\"Bolt\",\"Lyon\",\"W1\",1200,11\n";

struct ExportFiles : testing::Test {
  ExportFiles() { window = desk.openWindow(); }

  void trigger(const char* text) { test::menuEntry(*window, "&File", text)->trigger(); }

  // Chooses a file and its type in the dialog that comes up.
  void trigger(const char* text, const std::string& file, const char* filter) {
    desk.chosenFile = QString::fromStdString(file);
    desk.chosenFilter = filter;
    trigger(text);
  }

  test::TemporaryDirectory folder;
  Inside inside{folder.path()};
  Desk desk{supplyPlan(), {"Item Place", "Week", "", "Plan Seen"}, true};
  std::unique_ptr<VrelMainWindow> window;
};

TEST_F(ExportFiles, ExportAsAsksForAFileOfOneOfThreeTypes) {
  trigger("Export &As...");
  EXPECT_EQ(desk.askedFor, Lines{kAsked});
  EXPECT_EQ(desk.lastQuestion.extensions, QList<QStringList>({{"xml"}, {"html", "htm"}, {"csv"}}));
  EXPECT_EQ(desk.lastQuestion.file, "");
}

TEST_F(ExportFiles, ExportAsDoesNothingWhenItIsCancelled) {
  desk.view.exportFileName = "before.csv";
  trigger("Export &As...");
  EXPECT_EQ(desk.view.exportFileName, "before.csv");
  EXPECT_THAT(desk.settings.lastVisitedPath, IsEmpty());
  EXPECT_EQ(desk.logLines(), Lines{"slotFileExportAs: Calling ExportAsCB"});
}

TEST_F(ExportFiles, ExportAsWritesTheChosenType) {
  trigger("Export &As...", folder.path("plan.csv"), kCsv);
  EXPECT_THAT(folder.read("plan.csv"), HasSubstr(kPlanAsCsv));
  trigger("Export &As...", folder.path("plan.htm"), kHtml);
  EXPECT_THAT(folder.read("plan.htm"), HasSubstr("<table border>\n"));
  folder.write("qnt.smart", "FieldNames:\tA\na\n");
  trigger("Export &As...", folder.path("plan.xml"), kXml);
  EXPECT_THAT(folder.read("plan.xml"), HasSubstr("<qnt-smart version="));
  EXPECT_EQ(desk.view.exportFileName, folder.path("plan.xml"));
  EXPECT_THAT(desk.notice.shown, IsEmpty());
}

TEST_F(ExportFiles, ExportAsLogsItsSteps) {
  trigger("Export &As...", folder.path("plan.htm"), kHtml);
  EXPECT_EQ(desk.logLines(),
            (Lines{"slotFileExportAs: Calling ExportAsCB",
                   "ExportAsCB: export to file " + folder.path("plan.htm"),
                   "ExportAsCB: calling exportInGivenFormatFile",
                   "exportInGivenFormatFile: open HTML file " + folder.path("plan.htm"),
                   "exportInGivenFormatFile: export z dimension",
                   "exportInGivenFormatFile: done exporting html file", "ExportAsCB: finished"}));
}

TEST_F(ExportFiles, ExportAsStartsWhereTheUserWasLast) {
  trigger("Export &As...");
  EXPECT_EQ(desk.lastQuestion.folder, QDir::currentPath());
  folder.write("reports/other.csv", "");
  trigger("Export &As...", folder.path("reports/plan.csv"), kCsv);
  EXPECT_THAT(desk.settings.lastVisitedPath, ElementsAre(folder.path("reports")));
  trigger("Export &As...");
  EXPECT_EQ(desk.lastQuestion.folder, QString::fromStdString(folder.path("reports")));
  desk.settings.lastVisitedPath = {"/no/such/folder"};
  trigger("Export &As...");
  EXPECT_EQ(desk.lastQuestion.folder, QDir::currentPath());
}

TEST_F(ExportFiles, ExportWritesTheLastFileAgain) {
  trigger("Export &As...", folder.path("plan.csv"), kCsv);
  folder.write("plan.csv", "changed since");
  trigger("&Export");
  EXPECT_EQ(desk.askedFor.size(), 1U);
  EXPECT_THAT(folder.read("plan.csv"), HasSubstr(kPlanAsCsv));
}

TEST_F(ExportFiles, ExportTakesTheTypeFromTheEnding) {
  folder.write("qnt.smart", "FieldNames:\tA\na\n");
  const std::pair<const char*, const char*> files[] = {{"a.xml", "<qnt-smart"},
                                                       {"a.csv", "\"Item\",\"Place\""},
                                                       {"a.htm", "<table border>"},
                                                       {"a.html", "<table border>"}};
  for (const auto& [name, part] : files) {
    desk.view.exportFileName = folder.path(name);
    trigger("&Export");
    EXPECT_THAT(folder.read(name), HasSubstr(part)) << name;
    EXPECT_EQ(desk.view.exportFileName, folder.path(name));
  }
  EXPECT_THAT(desk.askedFor, IsEmpty());
}

TEST_F(ExportFiles, ExportLogsItsSteps) {
  desk.view.exportFileName = "plan.html";
  trigger("&Export");
  EXPECT_EQ(desk.logLines(),
            (Lines{"slotFileExport: Calling ExportViewCB", "ExportViewCB: export to plan.html",
                   "ExportViewCB: calling exportInGivenFormatFile",
                   "exportInGivenFormatFile: open HTML file plan.html",
                   "exportInGivenFormatFile: export z dimension",
                   "exportInGivenFormatFile: done exporting html file", "ExportViewCB: finished"}));
}

TEST_F(ExportFiles, ExportAsksWithoutAFileOrATypeByItsName) {
  for (const char* name : {"", "plan.sp", "plan"}) {
    desk.view.exportFileName = name;
    trigger("&Export");
    EXPECT_EQ(desk.view.exportFileName, name);
  }
  EXPECT_EQ(desk.askedFor, (Lines{kAsked, kAsked, kAsked}));
  const Lines logged = desk.logLines();
  EXPECT_EQ(Lines(logged.begin(), logged.begin() + 2),
            (Lines{"slotFileExport: Calling ExportViewCB", "ExportViewCB: Calling ExportAsCB"}));
  desk.view.exportFileName = "plan.sp";
  trigger("&Export", folder.path("plan.csv"), kCsv);
  EXPECT_EQ(desk.view.exportFileName, folder.path("plan.csv"));
  EXPECT_THAT(folder.read("plan.csv"), HasSubstr(kPlanAsCsv));
}

TEST_F(ExportFiles, WhereTheUserWasLastIsKeptInTheSettingsFile) {
  desk.environment = [this](const char* name) {
    return std::string_view(name) == "HOME" ? desk.directory.path() : std::string();
  };
  desk.directory.write(".qnt.ini", "lastKorvFile[1]=model\nlastVisitedPath[1]=/before\n");
  trigger("Export &As...", folder.path("plan.csv"), kCsv);
  EXPECT_THAT(
      desk.directory.read(".qnt.ini"),
      EndsWith("##EndProlog\nlastKorvFile[1]=model\nlastVisitedPath[1]=" + folder.path() + "\n"));
  desk.directory.write(".qnt.ini", "untouched");
  trigger("&Export");
  EXPECT_EQ(desk.directory.read(".qnt.ini"), "untouched") << "nothing to keep";
}

TEST_F(ExportFiles, AFailureIsToldOnStandardErrorAndInABox) {
  desk.view.exportFileName = "before.csv";
  trigger("Export &As...", folder.path("none/plan.html"), kHtml);
  const std::string text = "Error: Could not open file \"" + folder.path("none/plan.html") + "\".";
  EXPECT_EQ(desk.errorText, text + "\n") << "at once";
  EXPECT_EQ(desk.notice.shown, Lines{"critical|Data Editor|" + text});
  EXPECT_EQ(desk.view.exportFileName, "before.csv");
  EXPECT_THAT(desk.settings.lastVisitedPath, IsEmpty());
}

// Types into a cell and leaves its editor open.
void typeInto(VrelMainWindow& window, const QString& text) {
  QApplication::setActiveWindow(&window);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  window.tables().regularTable()->setFocus();
  window.tables().setCurrentPlace({0, 2});
  for (const QChar character : text) {
    QTest::keyClick(QApplication::focusWidget(), character.toLatin1());
  }
}

TEST_F(ExportFiles, AnOpenEditIsFinishedFirst) {
  desk.view.exportFileName = "plan.csv";
  typeInto(*window, "7");
  trigger("&Export");
  EXPECT_THAT(folder.read("plan.csv"), HasSubstr("\"Bolt\",\"Lyon\",\"W1\",7,11\n"));
  typeInto(*window, "8");
  trigger("Export &As...", folder.path("again.csv"), kCsv);
  EXPECT_THAT(folder.read("again.csv"), HasSubstr("\"Bolt\",\"Lyon\",\"W1\",8,11\n"));
}

TEST_F(ExportFiles, NothingIsExportedWhileAnEditIsRefused) {
  desk.view.exportFileName = "plan.csv";
  typeInto(*window, "7+");
  trigger("&Export");
  typeInto(*window, "7+");
  trigger("Export &As...", folder.path("again.csv"), kCsv);
  EXPECT_FALSE(folder.has("plan.csv"));
  EXPECT_FALSE(folder.has("again.csv"));
  EXPECT_THAT(desk.askedFor, IsEmpty());
}

TEST_F(ExportFiles, NothingIsChangedWhileAnEditIsRefused) {
  typeInto(*window, "7+");
  window->slotConfigSwapData();
  typeInto(*window, "7+");
  window->slotEditRecalculateAllInverse();
  EXPECT_FALSE(desk.view.modified);
  EXPECT_TRUE(desk.announced.empty());
}

}  // namespace
}  // namespace vrel
