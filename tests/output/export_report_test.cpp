#include "output/export_report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#ifndef _WIN32
#include <sys/resource.h>

#include <csignal>
#endif

#include "support/formula_table.h"
#include "support/inside.h"
#include "support/logged.h"
#include "support/tables.h"
#include "support/temporary_directory.h"

namespace vrel {
namespace {

using test::Inside;
using test::loggedLines;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::StartsWith;

using Lines = std::vector<std::string>;

// The notice marks translated texts by square brackets.
constexpr const char* kXml = "[XML (*.xml)]";
constexpr const char* kHtml = "[HTML (*.htm; *.html)]";
constexpr const char* kCsv = "[CSV (Comma delimited) (*.csv)]";

constexpr const char* kGraph = "FieldNames:\tA\na\n";

/// A report of one page or, with a z field, of two, exported in a directory of its own.
class ExportReport : public testing::Test {
 protected:
  ExportReport()
      : table_(test::tableOf("Item:String Week:Period Qty:Number", "W1 W2",
                             {"Bolt W1 1200", "Gear W2 0.5"})),
        view_(test::viewOf(table_, {0}, {1}, {}, {2})) {
    view_.userTitle = "Plan";
    view_.showSystemTitle = false;
    view_.exportFileName = "before.sp";
    view_.dataInColumns = true;
    format_.precision = 1;
    lastVisited_ = "before";
  }

  bool exportTo(const std::string& name, std::string_view filter) {
    TextOutput errors = TextOutput::toMemory(errors_);
    return exportInGivenFormatFile(name, filter,
                                   {.view = view_,
                                    .format = format_,
                                    .switches = switches_,
                                    .log = log_,
                                    .notice = notice_,
                                    .errors = errors,
                                    .environment = environment_,
                                    .lastVisitedDirectory = lastVisited_});
  }

  void expectNothingChanged() const {
    EXPECT_EQ(view_.exportFileName, "before.sp");
    EXPECT_EQ(lastVisited_, "before");
  }

  std::size_t fileCount() const {
    const std::filesystem::directory_iterator all(folder_.path());
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
  }

  test::TemporaryDirectory folder_;
  Inside inside_{folder_.path()};
  Table table_;
  ReportView view_;
  FormatSettings format_;
  ExportSwitches switches_;
  Log log_ = test::openTestLog();
  test::Watcher notice_;
  std::string errors_;
  EnvironmentLookup environment_ = [this](const char* name) {
    return std::string_view(name) == "USERNAME"   ? "planner"
           : std::string_view(name) == "KORVHOME" ? folder_.path("home")
                                                  : std::string();
  };
  std::string lastVisited_;
};

TEST(ExportFileTypes, AreXmlHtmlAndCsv) {
  Lines filters;
  for (const ExportFileType& type : exportFileTypes()) {
    filters.emplace_back(type.filter);
  }
  EXPECT_EQ(filters,
            (Lines{"XML (*.xml)", "HTML (*.htm; *.html)", "CSV (Comma delimited) (*.csv)"}));
}

std::string typeOf(std::string_view name) {
  const ExportFileType* const type = exportTypeOfName(name);
  return type == nullptr ? "none" : std::string(type->filter);
}

TEST(ExportFileTypes, AreKnownByTheEndingOfAName) {
  EXPECT_EQ(typeOf("plan.xml"), "XML (*.xml)");
  EXPECT_EQ(typeOf("plan.htm"), "HTML (*.htm; *.html)");
  EXPECT_EQ(typeOf("a.xml/plan.html"), "HTML (*.htm; *.html)");
  EXPECT_EQ(typeOf("plan.html.csv"), "CSV (Comma delimited) (*.csv)");
  for (const char* name :
       {"", "plan", "plan.sp", "plan.xml.bak", "plan.XML", "xml", "plan.xhtml"}) {
    EXPECT_EQ(typeOf(name), "none") << name;
  }
}

TEST_F(ExportReport, OfAnUnknownTypeDoesNothing) {
  EXPECT_FALSE(exportTo("plan.xml", "XML (*.xml)")) << "not in the user's language";
  EXPECT_THAT(loggedLines(log_), IsEmpty());
  EXPECT_EQ(fileCount(), 0U);
  expectNothingChanged();
}

TEST_F(ExportReport, XmlIsTheSmartGraphOfTheWorkingDirectory) {
  folder_.write("qnt.smart", kGraph);
  folder_.write("home/.version", "7.1\n");
  EXPECT_TRUE(exportTo(folder_.path("plan"), kXml));
  EXPECT_EQ(folder_.read("plan.xml"),
            "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
            "<qnt-smart version=\"7.1\">\n"
            "<numberOfFields>1</numberOfFields>\n"
            "<fieldNames><f1 name=\"A\"/>\n</fieldNames>\n"
            "<smartData>\n<tuple>\n<f1>a</f1>\n</tuple>\n</smartData>\n</qnt-smart>");
  EXPECT_EQ(loggedLines(log_),
            (Lines{"exportInGivenFormatFile: export to xml file " + folder_.path("plan.xml"),
                   "exportInGivenFormatFile: done exporting xml file"}));
  EXPECT_EQ(view_.exportFileName, folder_.path("plan.xml"));
  EXPECT_EQ(lastVisited_, folder_.path());
  EXPECT_EQ(errors_, "");
  EXPECT_THAT(notice_.told, IsEmpty());
}

TEST_F(ExportReport, XmlIsAddedToANameThatHoldsItNowhere) {
  folder_.write("qnt.smart", kGraph);
  EXPECT_TRUE(exportTo("plan.xml.old", kXml));
  EXPECT_TRUE(folder_.has("plan.xml.old"));
  EXPECT_TRUE(exportTo("plan.html", kXml));
  EXPECT_TRUE(folder_.has("plan.html.xml"));
  EXPECT_EQ(view_.exportFileName, "plan.html.xml");
}

TEST_F(ExportReport, XmlWithoutItsInputFails) {
  folder_.write("plan.xml", "old");
  EXPECT_FALSE(exportTo("plan.xml", kXml));
  EXPECT_EQ(errors_, "Error: Cannot find input file \"qnt.smart\".\n");
  EXPECT_EQ(folder_.read("plan.xml"), "old");
  EXPECT_THAT(loggedLines(log_),
              testing::ElementsAre("exportInGivenFormatFile: export to xml file plan.xml",
                                   "exportInGivenFormatFile: done exporting xml file"));
  expectNothingChanged();
}

TEST_F(ExportReport, XmlThatDoesNotMatchItsFieldsIsToldTheUserOnly) {
  folder_.write("qnt.smart", "FieldNames:\tA\na\tb\n");
  notice_.window = true;
  EXPECT_FALSE(exportTo("plan.xml", kXml));
  EXPECT_EQ(errors_, "");
  EXPECT_EQ(notice_.told, Lines{"[Data Editor]: [Error: Data does not match fields]"});
  EXPECT_THAT(folder_.read("plan.xml"), EndsWith("\nError: Data does not match fields\n"));
  expectNothingChanged();
}

TEST_F(ExportReport, CsvIsTheTable) {
  switches_.quoting = true;
  EXPECT_TRUE(exportTo(folder_.path("plan"), kCsv));
  EXPECT_EQ(folder_.read("plan.csv"),
            "\"Item\",\"Week\",\"Qty\"\n\"Bolt\",\"W1\",1200.0\n\"Gear\",\"W2\",0.5\n");
  EXPECT_TRUE(switches_.csvMode);
  EXPECT_FALSE(switches_.quoting);
  EXPECT_EQ(view_.exportFileName, folder_.path("plan.csv"));
  EXPECT_EQ(lastVisited_, folder_.path());
}

TEST_F(ExportReport, CsvLogsItsSteps) {
  EXPECT_TRUE(exportTo("plan.csv", kCsv));
  EXPECT_EQ(
      loggedLines(log_),
      (Lines{"exportInGivenFormatFile: export to csv file", "ExportAsOKCB: exporting to text file",
             "TextExportViewData: open export file plan.csv", "TextExportViewData: write fields",
             "TextExportViewData: write tuples", "TextExportViewData: done",
             "ExportAsOKCB: finished", "exportInGivenFormatFile: done exporting csv file"}));
}

TEST_F(ExportReport, CsvStandsAtTheEndOfItsName) {
  EXPECT_TRUE(exportTo("plan.csv.old", kCsv));
  EXPECT_TRUE(folder_.has("plan.csv.old.csv"));
}

TEST_F(ExportReport, CsvThatCannotBeWrittenFails) {
  EXPECT_FALSE(exportTo("no/such/plan.csv", kCsv));
  EXPECT_EQ(errors_, "Cannot open \"no/such/plan.csv\"\n");
  EXPECT_THAT(notice_.told, IsEmpty()) << "without a window";
  expectNothingChanged();
  notice_.window = true;
  EXPECT_FALSE(exportTo("no/such/plan.csv", kCsv));
  EXPECT_EQ(notice_.told, Lines{"[Data Editor]: [Cannot open \"no/such/plan.csv\"]"});
}

TEST_F(ExportReport, HtmlIsAWholeDocumentWithBordersAndAnEmptyFooter) {
  EXPECT_TRUE(exportTo("plan", kHtml));
  EXPECT_THAT(
      folder_.read("plan.html"),
      MatchesRegex("<!-- Title: Plan -->\n<!-- Creator: Vrel -->\n<!-- For: planner -->\n"
                   "<!-- CreationDate: ....-..-..T..:..:.. -->\n"
                   "<!-- EndComments -->\n"
                   "<html>\n<head>\n<title>\nPlan\n</title>\n</head>\n"
                   "<body bgcolor=#ffffff text=#000000>\n"
                   "<p><a name=\"top\"> </a></p>\n"
                   "<table border>\n"
                   "<caption align=top>\nPlan\n</caption>\n"
                   "<tr align=left>\n<th rowspan=1 colspan=1></th>\n<th>W1</th>\n<th>W2</th>\n"
                   "</tr>\n"
                   "<tr align=right>\n<th valign=top>Bolt</th>\n<td>1,200.0</td>\n"
                   "<td>&nbsp;</td>\n</tr>\n"
                   "<tr align=right>\n<th valign=top>Gear</th>\n<td>&nbsp;</td>\n<td>0.5</td>\n"
                   "</tr>\n"
                   "</table>\n"
                   "<p>\n</body>\n</html>\n"));
  EXPECT_EQ(loggedLines(log_), (Lines{"exportInGivenFormatFile: open HTML file plan.html",
                                      "exportInGivenFormatFile: export z dimension",
                                      "exportInGivenFormatFile: done exporting html file"}));
  EXPECT_EQ(view_.exportFileName, "plan.html");
  EXPECT_EQ(lastVisited_, folder_.path());
}

TEST_F(ExportReport, HtmlHoldsAllPagesAndTheCurrentOneStays) {
  view_.axis(Axis::X) = {};
  view_.axis(Axis::Z) = {0};
  view_.zIndex = 1;
  EXPECT_TRUE(exportTo("plan.htm", kHtml));
  const std::string document = folder_.read("plan.htm");
  EXPECT_THAT(document, HasSubstr("<p><a href=\"#Plan%20%3A%20Bolt\"> Plan : Bolt </a></p>\n"
                                  "<p><a href=\"#Plan%20%3A%20Gear\"> Plan : Gear </a></p>\n"
                                  "<a name=\"Plan%20%3A%20Bolt\"> </a>\n"));
  EXPECT_THAT(document, HasSubstr("<a name=\"Plan%20%3A%20Gear\"> </a>\n"));
  EXPECT_EQ(view_.zIndex, 1);
}

TEST_F(ExportReport, HtmlIsAddedToANameThatHoldsNeitherEnding) {
  EXPECT_TRUE(exportTo("a.htmx", kHtml));
  EXPECT_TRUE(folder_.has("a.htmx"));
  EXPECT_TRUE(exportTo("b.ht", kHtml));
  EXPECT_TRUE(folder_.has("b.ht.html"));
}

TEST_F(ExportReport, HtmlIsHeadedWithTheWholeReportTitle) {
  view_.userTitle = "";
  view_.showSystemTitle = true;
  EXPECT_TRUE(exportTo("plan.html", kHtml));
  EXPECT_THAT(folder_.read("plan.html"),
              StartsWith("<!-- Title: " + reportTitle(view_) + " -->\n"));
}

TEST_F(ExportReport, HtmlThatCannotBeWrittenFails) {
  notice_.window = true;
  EXPECT_FALSE(exportTo("no/such/plan", kHtml));
  EXPECT_EQ(errors_, "Error: Could not open file \"no/such/plan.html\".\n");
  EXPECT_EQ(notice_.told,
            Lines{"[Data Editor]: [Error: Could not open file \"no/such/plan.html\".]"});
  EXPECT_EQ(loggedLines(log_), Lines{"exportInGivenFormatFile: open HTML file no/such/plan.html"});
  expectNothingChanged();
}

#ifndef _WIN32
TEST_F(ExportReport, AFullDeviceIsAFailureOfEveryType) {
  folder_.write("qnt.smart", kGraph);
  for (const char* name : {"full.xml", "full.html", "full.csv"}) {
    std::filesystem::create_symlink("/dev/full", folder_.path(name));
  }
  EXPECT_FALSE(exportTo("full.xml", kXml));
  EXPECT_FALSE(exportTo("full.html", kHtml));
  EXPECT_FALSE(exportTo("full.csv", kCsv));
  EXPECT_EQ(errors_,
            "Error: Invalid output file path \"full.xml\".\n"
            "Error: Could not open file \"full.html\".\n"
            "Cannot open \"full.csv\"\n");
  EXPECT_THAT(loggedLines(log_),
              testing::Not(testing::Contains("exportInGivenFormatFile: done exporting html file")));
  expectNothingChanged();
}
#endif

#ifndef _WIN32
/// No file can grow beyond a size, as on a full disk, while the object lives.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) : signalBefore_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit full = {.rlim_cur = bytes, .rlim_max = before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &full);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, signalBefore_);
  }

 private:
  rlimit before_{};
  void (*signalBefore_)(int);
};

TEST_F(ExportReport, AFullDiskLeavesTheOldFileAndNoTornOne) {
  folder_.write("qnt.smart", "FieldNames:\tA\na\tb\n");
  for (const auto& [name, type] :
       {std::pair("plan.xml", kXml), std::pair("plan.html", kHtml), std::pair("plan.csv", kCsv)}) {
    folder_.write(name, "old");
    bool exported = false;
    {
      const FullDisk full(20);
      exported = exportTo(name, type);
    }
    EXPECT_FALSE(exported);
    EXPECT_EQ(folder_.read(name), "old");
  }
  EXPECT_EQ(fileCount(), 4U);
  EXPECT_EQ(errors_,
            "Error: Invalid output file path \"plan.xml\".\n"
            "Error: Could not open file \"plan.html\".\n"
            "Cannot open \"plan.csv\"\n");
  expectNothingChanged();
}
#endif

TEST_F(ExportReport, ACancelledOneLeavesEverythingAsItWas) {
  folder_.write("qnt.smart", kGraph);
  notice_.window = true;
  notice_.stopped = "[Exporting...]";
  for (const auto& [name, type] :
       {std::pair("plan.xml", kXml), std::pair("plan.html", kHtml), std::pair("plan.csv", kCsv)}) {
    folder_.write(name, "old");
    EXPECT_FALSE(exportTo(name, type));
    EXPECT_EQ(folder_.read(name), "old");
  }
  EXPECT_EQ(fileCount(), 4U);
  EXPECT_EQ(errors_, "");
  EXPECT_THAT(notice_.told, IsEmpty());
  expectNothingChanged();
}

}  // namespace
}  // namespace vrel
