#include "output/text_export.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "model/report_layout.h"
#include "support/tables.h"
#include "support/views.h"

namespace vrel {
namespace {

Table planTable() {
  return test::tableOf("Item:String Place:String Month:Period Demand:Number Note:String", "Jan Feb",
                       {"Bolt East Jan 1234.5 a", "Bolt East Feb 0 b", "Bolt West Feb 123456789 c",
                        "Nut East Jan -2.25 d"});
}

constexpr int kItem = 0;
constexpr int kPlace = 1;
constexpr int kMonth = 2;
constexpr int kDemand = 3;
constexpr int kNote = 4;

/// Items and places down, months across.
ReportView planView(Table& table, const std::vector<int>& data = {kDemand}) {
  ReportView view;
  view.table = &table;
  view.axis(Axis::X) = {kItem, kPlace};
  view.axis(Axis::Y) = {kMonth};
  view.axis(Axis::Data) = data;
  view.userTitle = "Plan";
  view.showSystemTitle = false;
  return view;
}

FormatSettings twoDecimals() {
  FormatSettings settings;
  settings.precision = 2;
  return settings;
}

std::string reportText(ReportView& view, Quoting quoting,
                       const FormatSettings& settings = twoDecimals()) {
  std::string text;
  TextOutput output = TextOutput::toMemory(text);
  Log log;
  writeReportText(view, layOut(view), quoting, settings, log, output);
  output.flush();
  return text;
}

TEST(IsNumericText, TakesDigitsPointsSignsAndCommas) {
  for (const char* text : {"0", "1,234.50", "-7", "7-", ".", "-", ",", "12345678", "123456789.00",
                           "-1,234,567.8", "1234567.0"}) {
    EXPECT_TRUE(isNumericText(text)) << text;
  }
}

TEST(IsNumericText, RefusesOtherTexts) {
  for (const char* text : {"", "abc", "1 2", "1e5", "+1", "1.2.3", "--1", "1-2-3", "_", "*",
                           "undefined", "0x1", "1_000"}) {
    EXPECT_FALSE(isNumericText(text)) << text;
  }
}

TEST(IsNumericText, FromNineCharactersOnAPointIsNeeded) {
  EXPECT_TRUE(isNumericText("12345678"));
  EXPECT_FALSE(isNumericText("123456789"));
  EXPECT_FALSE(isNumericText("-12345678"));
  EXPECT_FALSE(isNumericText("1,234,567"));
  EXPECT_TRUE(isNumericText("12345678."));
}

std::string shown(std::string_view text, CellPlace place, Quoting quoting) {
  std::string written;
  TextOutput output = TextOutput::toMemory(written);
  {
    TextPen pen(output);
    writeShownText(pen, text, place, quoting);
  }
  output.flush();
  return written;
}

TEST(WriteShownText, AnUnderscoreIsZeroWithTwoDecimals) {
  EXPECT_EQ(shown("_", CellPlace::Data, Quoting::None), "0.00");
  EXPECT_EQ(shown("_", CellPlace::Data, Quoting::Quoted), "0.00");
  EXPECT_EQ(shown("_", CellPlace::Label, Quoting::None), "0.00");
  EXPECT_EQ(shown("_", CellPlace::Label, Quoting::Quoted), "\"0.00\"");
  EXPECT_EQ(shown("__", CellPlace::Data, Quoting::None), "__");
}

TEST(WriteShownText, NumbersAmongTheDataLoseTheirCommasAndAreNeverQuoted) {
  EXPECT_EQ(shown("1,234.50", CellPlace::Data, Quoting::None), "1234.50");
  EXPECT_EQ(shown("1,234.50", CellPlace::Data, Quoting::Quoted), "1234.50");
  EXPECT_EQ(shown("1,234,567.00", CellPlace::Data, Quoting::Quoted), "1234567.00");
}

TEST(WriteShownText, LongNumbersWithoutAPointAreTexts) {
  EXPECT_EQ(shown("123456789", CellPlace::Data, Quoting::None), "123456789");
  EXPECT_EQ(shown("123456789", CellPlace::Data, Quoting::Quoted), "\"123456789\"");
  EXPECT_EQ(shown("1,234,567", CellPlace::Data, Quoting::None), "1,234,567");
}

TEST(WriteShownText, LabelsStandAsTheyAre) {
  EXPECT_EQ(shown("1,234.50", CellPlace::Label, Quoting::None), "1,234.50");
  EXPECT_EQ(shown("1,234.50", CellPlace::Label, Quoting::Quoted), "\"1,234.50\"");
  EXPECT_EQ(shown("a\"b", CellPlace::Label, Quoting::Quoted), "\"a\"b\"");
}

TEST(WriteShownText, EmptyTextsStayEmptyEvenWhenQuoted) {
  EXPECT_EQ(shown("", CellPlace::Label, Quoting::Quoted), "");
  EXPECT_EQ(shown("", CellPlace::Data, Quoting::Quoted), "");
}

TEST(ReportText, UnquotedItIsTitleLabelLineAndRows) {
  Table table = planTable();
  ReportView view = planView(table);
  EXPECT_EQ(reportText(view, Quoting::None),
            "Plan\n\n"
            "Item\tPlace\tJan\tFeb\t\n\n"
            "Bolt\tEast\t1234.50\t0.00\n"
            "\tWest\t\t123456789.00\n"
            "Nut\tEast\t-2.25\t\n");
}

TEST(ReportText, QuotedTheTitleAndTheLabelsStandInQuotes) {
  Table table = planTable();
  ReportView view = planView(table);
  EXPECT_EQ(reportText(view, Quoting::Quoted),
            "\"Plan\"\n\n"
            "Item\tPlace\tJan\tFeb\t\n\n"
            "\"Bolt\"\t\"East\"\t1234.50\t0.00\n"
            "\t\"West\"\t\t123456789.00\n"
            "\"Nut\"\t\"East\"\t-2.25\t\n");
}

TEST(ReportText, EachLineOfTheTitleIsQuotedByItself) {
  Table table = planTable();
  ReportView view = planView(table);
  view.userTitle = "Plan\nof \"spring\"\n";
  const std::string quoted = reportText(view, Quoting::Quoted);
  EXPECT_EQ(quoted.substr(0, quoted.find("Item")), "\"Plan\"\n\"of \"spring\"\"\n\"\"\n\n");
  const std::string plain = reportText(view, Quoting::None);
  EXPECT_EQ(plain.substr(0, plain.find("Item")), "Plan\nof \"spring\"\n\n\n");
}

TEST(ReportText, TheSystemTitleFollowsTheUserTitle) {
  Table table = planTable();
  ReportView view = planView(table);
  view.showSystemTitle = true;
  const std::string text = reportText(view, Quoting::Quoted);
  EXPECT_EQ(text.substr(0, text.find("Item\t")),
            "\"Plan\"\n\"Demand\"\n\"(Item  and  Place  by  Month)\"\n\n");
}

TEST(ReportText, DataNamesDownTheRowsHaveALabelColumnWithoutAName) {
  Table table = planTable();
  ReportView view = planView(table, {kDemand, kNote});
  EXPECT_EQ(reportText(view, Quoting::Quoted),
            "\"Plan\"\n\n"
            "Item\tPlace\t\tJan\tFeb\t\n\n"
            "\"Bolt\"\t\"East\"\t\"Demand\"\t1234.50\t0.00\n"
            "\t\t\"Note\"\t\"a\"\t\"b\"\n"
            "\t\"West\"\t\"Demand\"\t\t123456789.00\n"
            "\t\t\"Note\"\t\t\"c\"\n"
            "\"Nut\"\t\"East\"\t\"Demand\"\t-2.25\t\n"
            "\t\t\"Note\"\t\"d\"\t\n");
}

TEST(ReportText, DataInColumnsHaveHeadingsOfSeveralLines) {
  Table table = planTable();
  ReportView view = planView(table, {kDemand, kNote});
  view.dataInColumns = true;
  EXPECT_EQ(reportText(view, Quoting::None),
            "Plan\n\n"
            "Item\tPlace\tJan\nDemand\t\nNote\tFeb\nDemand\t\nNote\t\n\n"
            "Bolt\tEast\t1234.50\ta\t0.00\tb\n"
            "\tWest\t\t\t123456789.00\tc\n"
            "Nut\tEast\t-2.25\td\t\t\n");
}

TEST(ReportText, RepeatedLabelsAreWrittenInEveryRow) {
  Table table = planTable();
  ReportView view = planView(table, {kDemand, kNote});
  view.repeatLabels = true;
  EXPECT_EQ(reportText(view, Quoting::None),
            "Plan\n\n"
            "Item\tPlace\t\tJan\tFeb\t\n\n"
            "Bolt\tEast\tDemand\t1234.50\t0.00\n"
            "Bolt\tEast\tNote\ta\tb\n"
            "Bolt\tWest\tDemand\t\t123456789.00\n"
            "Bolt\tWest\tNote\t\tc\n"
            "Nut\tEast\tDemand\t-2.25\t\n"
            "Nut\tEast\tNote\td\t\n");
}

TEST(ReportText, OnlyTheCurrentZPageIsWritten) {
  Table table = planTable();
  ReportView view = planView(table);
  view.axis(Axis::Z) = {kItem};
  view.axis(Axis::X) = {kPlace};
  view.zIndex = 1;
  EXPECT_EQ(reportText(view, Quoting::None),
            "Plan\n\n"
            "Place\tJan\t\n\n"
            "East\t-2.25\n");
}

TEST(ReportText, WithoutXFieldsThereAreNoLabelColumns) {
  Table table = test::tableOf("Month:Period Demand:Number", "Jan Feb Mar", {"Jan 1", "Mar 3"});
  ReportView view;
  view.table = &table;
  view.axis(Axis::Y) = {0};
  view.axis(Axis::Data) = {1};
  view.showSystemTitle = false;
  EXPECT_EQ(reportText(view, Quoting::None), "\n\nJan\tMar\t\n\n1.00\t3.00\n");
}

TEST(ReportText, WithoutYFieldsTheHeadingIsABlank) {
  Table table = test::tableOf("Item:String Demand:Number", "x", {"Nut 3", "Bolt 1"});
  ReportView view;
  view.table = &table;
  view.axis(Axis::X) = {0};
  view.axis(Axis::Data) = {1};
  view.showSystemTitle = false;
  EXPECT_EQ(reportText(view, Quoting::None), "\n\nItem\t \t\n\nBolt\t1.00\nNut\t3.00\n");
}

TEST(ReportText, WithoutDataFieldsThereAreOnlyHeadings) {
  Table table = planTable();
  ReportView view = planView(table, {});
  EXPECT_EQ(reportText(view, Quoting::None), "Plan\n\nItem\tPlace\tJan\tFeb\t\n\n");
  view.dataInColumns = true;
  EXPECT_EQ(reportText(view, Quoting::None),
            "Plan\n\nItem\tPlace\t\n\nBolt\tEast\n\tWest\nNut\tEast\n");
}

TEST(ReportText, AnEmptyTableIsATitleAndLabels) {
  Table table = test::tableOf("Item:String Place:String Month:Period Demand:Number", "Jan", {});
  ReportView view = planView(table);
  EXPECT_EQ(reportText(view, Quoting::None), "Plan\n\nItem\tPlace\t\n\n");
}

TEST(ReportText, ALabelFieldWithoutANameGivesTwoTabs) {
  Table table = planTable();
  table.fields[kItem].name.clear();
  ReportView view = planView(table);
  const std::string text = reportText(view, Quoting::None);
  EXPECT_EQ(text.substr(6, text.find("Bolt") - 6), "\t\tPlace\tJan\tFeb\t\n\n");
}

TEST(ReportText, AHiddenLabelFieldKeepsItsEmptyColumn) {
  Table table = planTable();
  table.fields[kItem].hidden = true;
  ReportView view = planView(table);
  EXPECT_EQ(reportText(view, Quoting::Quoted),
            "\"Plan\"\n\n\tPlace\tJan\tFeb\t\n\n\t\"East\"\t1234.50\t0.00\n"
            "\t\"West\"\t\t123456789.00\n\t\"East\"\t-2.25\t\n");
}

TEST(ReportText, DataAreWrittenPlainAndLabelsAsShown) {
  Table table = test::tableOf("Size:Number Demand:Number Flag:Boolean", "x",
                              {"1234 0 y", "0 * n", "*  undefined y", "5678 12345.678"});
  table.fields[0].classification = Classification::Key;
  ReportView view;
  view.table = &table;
  view.axis(Axis::X) = {0};
  view.axis(Axis::Data) = {1, 2};
  view.dataInColumns = true;
  view.showSystemTitle = false;
  FormatSettings settings = twoDecimals();
  settings.zeroUnderscore = true;
  EXPECT_EQ(reportText(view, Quoting::Quoted, settings),
            "\"\"\n\nSize\t Demand\t Flag\t\n\n"
            "\"0.00\"\t100000000000000000000.00\t\"No\"\n"
            "\"1,234.00\"\t0.00\t\"Yes\"\n"
            "\"5,678.00\"\t12345.68\t\"No\"\n"
            "\"*\"\tundefined\t\"Yes\"\n");
}

TEST(ReportText, HeadingsAreWrittenAsShown) {
  Table table = test::tableOf("Item:String Size:Number Demand:Number", "x", {"Nut 1234 5"});
  ReportView view;
  view.table = &table;
  view.axis(Axis::X) = {0};
  view.axis(Axis::Y) = {1};
  view.axis(Axis::Data) = {2};
  view.showSystemTitle = false;
  EXPECT_EQ(reportText(view, Quoting::None), "\n\nItem\t1,234.00\t\n\nNut\t5.00\n");
}

TEST(ReportText, AWideSparseGridKeepsEveryTab) {
  std::vector<std::string> lines;
  for (int i = 0; i < 500; ++i) {
    lines.push_back("Item" + std::to_string(1000 + i) + " C" + std::to_string(900000 - i) + " 1");
  }
  Table table = test::tableOf("Item:String Column:String Demand:Number", "x", lines);
  ReportView view;
  view.table = &table;
  view.axis(Axis::X) = {0};
  view.axis(Axis::Y) = {1};
  view.axis(Axis::Data) = {2};
  FormatSettings settings;
  settings.precision = 0;
  std::istringstream text(reportText(view, Quoting::None, settings));
  std::string line;
  while (std::getline(text, line) && !line.starts_with("Item1000\t")) {
  }
  for (int i = 0; i < 500; ++i) {
    const auto before = static_cast<std::size_t>(500 - i);
    const auto behind = static_cast<std::size_t>(i);
    ASSERT_EQ(line, "Item" + std::to_string(1000 + i) + std::string(before, '\t') + "1" +
                        std::string(behind, '\t'));
    std::getline(text, line);
  }
}

TEST(ReportText, SummaryRowsStandAmongTheOthersAndBlankRowsKeepTheirTabs) {
  Table table = planTable();
  ReportView view = planView(table);
  view.breaks = {test::breakOf(kItem, 1, {{kDemand, BreakOperation::Sum}})};
  view.breaks[0].name = "Sub total";
  view.breaks[0].breakAfter = true;
  EXPECT_EQ(reportText(view, Quoting::Quoted),
            "\"Plan\"\n\n"
            "Item\tPlace\tJan\tFeb\t\n\n"
            "\"Bolt\"\t\"East\"\t1234.50\t0.00\n"
            "\t\"West\"\t\t123456789.00\n"
            "\"Sub total\"\t\t1234.50\t123456789.00\n"
            "\t\t\t\n"
            "\"Nut\"\t\"East\"\t-2.25\t\n"
            "\"Sub total\"\t\t-2.25\t\n"
            "\t\t\t\n");
}

TEST(ReportText, SummariesAreWrittenAsTheyAreShown) {
  Table table = test::tableOf("Item:String A:Number B:Number C:Number D:Number", "x",
                              {"Bolt 0 1200 123456789 *", "Nut 0 34 0 5"});
  ReportView view = test::viewOf(table, {0}, {}, {}, {1, 2, 3, 4});
  view.dataInColumns = true;
  view.showSystemTitle = false;
  view.breaks = {test::breakOf(0, kBreakAtEnd,
                               {{1, BreakOperation::Sum},
                                {2, BreakOperation::Sum},
                                {3, BreakOperation::Sum},
                                {4, BreakOperation::Sum}})};
  FormatSettings settings;
  settings.precision = 0;
  settings.zeroUnderscore = true;
  const std::string text = reportText(view, Quoting::Quoted, settings);
  EXPECT_EQ(text.substr(text.find("\"Bolt")),
            "\"Bolt\"\t0\t1200\t123456789\t100000000000000000000\n"
            "\"Nut\"\t0\t34\t0\t5\n"
            "\"Total\"\t0.00\t1234\t\"123,456,789\"\t\"*\"\n");
}

TEST(ReportText, SummaryColumnsAddHeadingsCellsAndTabs) {
  Table table = planTable();
  ReportView view = planView(table, {kDemand, kNote});
  view.dataInColumns = true;
  view.breaks = {test::breakOf(kMonth, 1, {{kDemand, BreakOperation::Sum}}),
                 test::breakOf(kPlace, kBreakAtEnd, {{kDemand, BreakOperation::Minimum}})};
  view.breaks[0].name = "All";
  view.breaks[0].breakAfter = true;
  EXPECT_EQ(reportText(view, Quoting::None),
            "Plan\n\n"
            "Item\tPlace\tJan\nDemand\t\nNote\tAll\nDemand\t\n\t"
            "Feb\nDemand\t\nNote\tAll\nDemand\t\n\t\n\n"
            "Bolt\tEast\t1234.50\ta\t1234.50\t\t0.00\tb\t0.00\t\n"
            "\tWest\t\t\t\t\t123456789.00\tc\t123456789.00\t\n"
            "Nut\tEast\t-2.25\td\t-2.25\t\t\t\t\t\n"
            "\tTotal\t-2.25\t\t-2.25\t\t0.00\t\t0.00\t\n");
}

TEST(ReportText, DataDownTheRowsHaveASummaryRowForEach) {
  Table table = planTable();
  table.fields[kNote].type = FieldType::Number;
  for (std::size_t i = 0; i < table.tupleCount; ++i) {
    table.cell(i, kNote) = numberCell(static_cast<double>(i));
  }
  ReportView view = planView(table, {kDemand, kNote});
  view.breaks = {test::breakOf(kPlace, kBreakAtEnd,
                               {{kDemand, BreakOperation::Last}, {kNote, BreakOperation::Sum}})};
  const std::string text = reportText(view, Quoting::Quoted);
  EXPECT_EQ(text.substr(text.find("\t\"Total")),
            "\t\"Total\"\t\"Demand\"\t-2.25\t123456789.00\n"
            "\t\t\"Note\"\t3.00\t3.00\n");
}

/// Exports into a folder of its own.
class ExportViewDataTest : public testing::Test {
 protected:
  void SetUp() override {
    folder_ = std::filesystem::path(testing::TempDir()) /
              testing::UnitTest::GetInstance()->current_test_info()->name();
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
    table_ = planTable();
    view_ = planView(table_);
    settings_ = twoDecimals();
    log_.file = {std::tmpfile(), std::fclose};
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  std::string path(const std::string& name) const { return (folder_ / name).string(); }

  static std::string contents(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

  std::string errorsOfExport() {
    std::string errors;
    TextOutput output = TextOutput::toMemory(errors);
    ExportViewData(view_, layOut(view_), switches_, settings_, log_, output);
    output.flush();
    return errors;
  }

  /// The lines of the log without their times.
  std::vector<std::string> logged() {
    std::vector<std::string> lines;
    std::rewind(log_.file.get());
    std::array<char, 256> line;
    while (std::fgets(line.data(), line.size(), log_.file.get()) != nullptr) {
      const std::string text = line.data();
      lines.push_back(text.substr(text.find("> ") + 2));
      lines.back().pop_back();
    }
    return lines;
  }

  std::filesystem::path folder_;
  Table table_;
  ReportView view_;
  ExportSwitches switches_;
  FormatSettings settings_;
  Log log_;
};

TEST_F(ExportViewDataTest, WritesTheReportToTheExportFile) {
  view_.exportFileName = path("plan.sp");
  EXPECT_EQ(errorsOfExport(), "");
  EXPECT_EQ(contents(view_.exportFileName),
            "Plan\n\n"
            "Item\tPlace\tJan\tFeb\t\n\n"
            "Bolt\tEast\t1234.50\t0.00\n"
            "\tWest\t\t123456789.00\n"
            "Nut\tEast\t-2.25\t\n");
}

TEST_F(ExportViewDataTest, QuotesWhenTheSwitchIsOn) {
  view_.exportFileName = path("plan.sp");
  view_.axis(Axis::X) = {kItem};
  view_.axis(Axis::Hidden) = {kPlace};
  switches_.quoting = true;
  EXPECT_EQ(errorsOfExport(), "");
  EXPECT_EQ(contents(view_.exportFileName),
            "\"Plan\"\n\n"
            "Item\tJan\tFeb\t\n\n"
            "\"Bolt\"\t1234.50\t123456789.00\n"
            "\"Nut\"\t-2.25\t\n");
}

TEST_F(ExportViewDataTest, LogsItsSteps) {
  view_.exportFileName = path("plan.sp");
  errorsOfExport();
  EXPECT_EQ(logged(), (std::vector<std::string>{
                          "ExportViewData: open file", "ExportViewData: write header",
                          "ExportViewData: write title", "ExportViewData: write columns",
                          "ExportViewData: write body", "ExportViewData: done"}));
}

TEST_F(ExportViewDataTest, AnUnopenableFileIsReportedAndNothingChanges) {
  view_.exportFileName = path("no/such/plan.sp");
  settings_.zeroUnderscore = true;
  settings_.thousandsSeparators = false;
  EXPECT_EQ(errorsOfExport(), "Cannot open \"" + view_.exportFileName + "\"\n");
  EXPECT_TRUE(settings_.zeroUnderscore);
  EXPECT_FALSE(settings_.thousandsSeparators);
  EXPECT_EQ(logged(), std::vector<std::string>{"ExportViewData: open file"});
}

TEST_F(ExportViewDataTest, AnUnsetFileNameCannotBeOpened) {
  view_.exportFileName = "";
  EXPECT_EQ(errorsOfExport(), "Cannot open \"\"\n");
}

TEST_F(ExportViewDataTest, AFolderCannotBeOpened) {
  view_.exportFileName = folder_.string();
  EXPECT_EQ(errorsOfExport(), "Cannot open \"" + folder_.string() + "\"\n");
  EXPECT_TRUE(std::filesystem::is_directory(folder_));
}

TEST_F(ExportViewDataTest, AnExistingFileIsReplacedAndNothingElseStays) {
  view_.exportFileName = path("plan.sp");
  std::ofstream(view_.exportFileName) << std::string(10000, 'x');
  EXPECT_EQ(errorsOfExport(), "");
  EXPECT_EQ(contents(view_.exportFileName).substr(0, 6), "Plan\n\n");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_), {}), 1);
}

#ifdef __linux__
TEST_F(ExportViewDataTest, AFullDiskIsReported) {
  view_.exportFileName = "/dev/full";
  EXPECT_EQ(errorsOfExport(), "Cannot open \"/dev/full\"\n");
  EXPECT_EQ(logged().back(), "ExportViewData: write body");
}
#endif

TEST_F(ExportViewDataTest, AfterwardsSeparatorsAndStarAreOnAndTheUnderscoreOff) {
  view_.exportFileName = path("plan.sp");
  settings_.thousandsSeparators = false;
  settings_.largeNumberStar = false;
  settings_.zeroUnderscore = true;
  errorsOfExport();
  EXPECT_TRUE(settings_.thousandsSeparators);
  EXPECT_TRUE(settings_.largeNumberStar);
  EXPECT_FALSE(settings_.zeroUnderscore);
  EXPECT_EQ(settings_.precision, 2);
}

}  // namespace
}  // namespace vrel
