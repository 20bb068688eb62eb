#include "output/csv_export.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

#include "support/formula_table.h"
#include "support/tables.h"

namespace vrel {
namespace {

TEST(ExportFileName, GetsTheCsvExtensionInCsvMode) {
  ExportSwitches switches;
  switches.csvMode = true;
  EXPECT_EQ(exportFileNameWithExtension("plan", switches), "plan.csv");
  EXPECT_EQ(exportFileNameWithExtension("plan.csv", switches), "plan.csv");
  EXPECT_EQ(exportFileNameWithExtension("plan.sp", switches), "plan.sp.csv");
  EXPECT_EQ(exportFileNameWithExtension("plan.CSV", switches), "plan.CSV.csv");
  EXPECT_EQ(exportFileNameWithExtension(".csv", switches), ".csv");
  EXPECT_EQ(exportFileNameWithExtension("csv", switches), "csv.csv");
  EXPECT_EQ(exportFileNameWithExtension("", switches), ".csv");
}

TEST(ExportFileName, GetsTheReportExtensionOtherwise) {
  const ExportSwitches switches;
  EXPECT_EQ(exportFileNameWithExtension("plan", switches), "plan.sp");
  EXPECT_EQ(exportFileNameWithExtension("plan.sp", switches), "plan.sp");
  EXPECT_EQ(exportFileNameWithExtension("plan.csv", switches), "plan.csv.sp");
  EXPECT_EQ(exportFileNameWithExtension("sp", switches), "sp.sp");
}

class TextExportTest : public testing::Test {
 protected:
  void SetUp() override {
    path_ = (std::filesystem::path(testing::TempDir()) / "text_export_test.csv").string();
    std::filesystem::remove(path_);
    view_.exportFileName = path_;
    settings_.precision = 2;
    log_.file = {std::tmpfile(), std::fclose};
  }
  void TearDown() override { std::filesystem::remove(path_); }

  std::string errorsOfExport(Table& table) {
    view_.table = &table;
    std::string errors;
    TextOutput output = TextOutput::toMemory(errors);
    TaskProgress progress(notice_, "");
    written_ = TextExportViewData(view_, settings_, log_, progress, output);
    output.flush();
    return errors;
  }

  std::string exported(Table table) {
    EXPECT_EQ(errorsOfExport(table), "");
    EXPECT_TRUE(written_);
    std::ifstream file(path_, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

  std::vector<std::string> logged() {
    std::vector<std::string> lines;
    std::rewind(log_.file.get());
    std::array<char, 4096> line;
    while (std::fgets(line.data(), line.size(), log_.file.get()) != nullptr) {
      const std::string text = line.data();
      lines.push_back(text.substr(text.find("> ") + 2));
      lines.back().pop_back();
    }
    return lines;
  }

  std::string path_;
  ReportView view_;
  FormatSettings settings_;
  Log log_;
  test::Watcher notice_;
  bool written_ = false;
};

TEST_F(TextExportTest, WritesAllFieldsAndTuplesInTableOrder) {
  EXPECT_EQ(exported(test::tableOf("Item:String Month:Period Demand:Number Active:Boolean",
                                   "Jan Feb", {"Nut Feb 1234.5 y", "a\"b Jan 0 n"})),
            "\"Item\",\"Month\",\"Demand\",\"Active\"\n"
            "\"Nut\",\"Feb\",1234.50,\"Yes\"\n"
            "\"a\"b\",\"Jan\",0.00,\"No\"\n");
}

TEST_F(TextExportTest, OneFieldStandsAlone) {
  EXPECT_EQ(exported(test::tableOf("Demand:Number", "x", {"7", "*"})),
            "\"Demand\"\n7.00\n100000000000000000000.00\n");
}

TEST_F(TextExportTest, EmptyStringsAreWrittenAsNothing) {
  EXPECT_EQ(
      exported(test::tableOf("Item:String Code:String Demand:Number", "x", {"\"\" x 1", "Nut"})),
      "\"Item\",\"Code\",\"Demand\"\n,\"x\",1.00\n\"Nut\",,0.00\n");
}

TEST_F(TextExportTest, DatesAreQuotedWithTheirPattern) {
  Table table = test::tableOf("Day:Date Demand:Number", "x", {"5-Aug-2014 undefined"});
  settleTypes(table);
  settings_.dateFormat = "%d-%b-%Y";
  EXPECT_EQ(exported(std::move(table)), "\"Day\",\"Demand\"\n\"05-Aug-2014\",undefined\n");
}

TEST_F(TextExportTest, LogsItsSteps) {
  exported(test::tableOf("Demand:Number", "x", {}));
  EXPECT_EQ(logged(),
            (std::vector<std::string>{
                "TextExportViewData: open export file " + path_, "TextExportViewData: write fields",
                "TextExportViewData: write tuples", "TextExportViewData: done"}));
}

TEST_F(TextExportTest, AnUnopenableFileIsReported) {
  view_.exportFileName = "no/such/folder/plan.csv";
  Table table = test::tableOf("Demand:Number", "x", {"1"});
  EXPECT_EQ(errorsOfExport(table), "Cannot open \"no/such/folder/plan.csv\"\n");
  EXPECT_FALSE(written_);
  EXPECT_EQ(logged(), std::vector<std::string>{
                          "TextExportViewData: open export file no/such/folder/plan.csv"});
}

#ifndef _WIN32
TEST_F(TextExportTest, AFullDeviceIsReported) {
  view_.exportFileName = "/dev/full";
  Table table = test::tableOf("Demand:Number", "x", {"1"});
  EXPECT_EQ(errorsOfExport(table), "Cannot open \"/dev/full\"\n");
  EXPECT_FALSE(written_);
}
#endif

TEST_F(TextExportTest, ACancelledOneLeavesTheOldFileAndNoMessage) {
  std::ofstream(path_) << "old";
  Table table = test::tableOf("Demand:Number", "x", {"1"});
  view_.table = &table;
  notice_.stopped = "[Exporting]";
  TaskProgress progress(notice_, "Exporting");
  std::string errors;
  TextOutput output = TextOutput::toMemory(errors);
  EXPECT_FALSE(TextExportViewData(view_, settings_, log_, progress, output));
  output.flush();
  EXPECT_EQ(errors, "");
  std::ifstream file(path_);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), "old");
}

TEST_F(TextExportTest, AfterwardsSeparatorsAndStarAreOnAndTheUnderscoreOff) {
  settings_.thousandsSeparators = false;
  settings_.zeroUnderscore = true;
  exported(test::tableOf("Demand:Number", "x", {"1"}));
  EXPECT_TRUE(settings_.thousandsSeparators);
  EXPECT_TRUE(settings_.largeNumberStar);
  EXPECT_FALSE(settings_.zeroUnderscore);
}

}  // namespace
}  // namespace vrel
