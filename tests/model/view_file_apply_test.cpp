#include <gtest/gtest.h>

#include <random>

#include "model/view_file.h"
#include "support/tables.h"
#include "support/temporary_directory.h"
#include "support/views.h"

namespace vrel {
namespace {

using test::listsOf;
using test::savedText;
using test::SilentNotice;
using test::tableFrom;
using test::tableOf;
using test::tuplesOf;
using Lines = std::vector<std::string>;

constexpr std::string_view kItem = "addfield <Name> Item <Type> string <Classification> key\n";
constexpr std::string_view kPeriod = "addfield <Name> Period <Type> period <Classification> key\n";
constexpr std::string_view kQty =
    "addfield <Name> Qty <Type> number <Classification> dataReadOnly\n";

std::string formula(std::string_view name, std::string_view text = "1") {
  return "addfield <Name> " + std::string(name) +
         " <Type> expression <Classification> dataReadOnly <Expression> \"" + std::string(text) +
         "\"\n";
}

std::string allFields() {
  return std::string(kItem) + std::string(kPeriod) + std::string(kQty);
}

class ViewFileApplyTest : public testing::Test {
 protected:
  ViewFileApplyTest()
      : table_(tableOf("Item:String Period:Period Qty:Number", "W1 W2",
                       {"b W2 4", "a W1 1", "b W1 3", "a W2 2"})),
        view_(makeReportView(table_, notice_)) {}

  bool read(std::string_view file) {
    TextOutput output = TextOutput::toMemory(errors_);
    return readViewFile(view_, file, settings_, processEnvironment(), notice_, output);
  }

  bool fits(std::string_view file) {
    TextOutput output = TextOutput::toMemory(errors_);
    return viewFileFits(table_, file, notice_, output);
  }

  // Everything that a failed reading must leave alone.
  std::string state() const {
    std::string text = savedText(view_);
    for (const std::string& tuple : tuplesOf(table_)) {
      text += tuple + "\n";
    }
    return text + std::to_string(settings_.precision) + settings_.dateFormat;
  }

  SilentNotice notice_;
  Table table_;
  ReportView view_;
  FormatSettings settings_;
  std::string errors_;
};

TEST_F(ViewFileApplyTest, AViewFileBecomesTheView) {
  view_.fileName = "old.view";
  view_.exportFileName = "plan.sp";
  view_.shortTitle = "plan.tbl";
  view_.zIndex = 3;
  EXPECT_TRUE(read(allFields() +
                   "setdateformat \"%Y\"\nsetusertitle \"The plan\"\nprecision 2\n"
                   "periodfilename p.per\ndefinezfields 1\ndefinehiddenfields 2\n"
                   "setflags <RepeatLabels> True <DataInColumns> True\n"
                   "defineprintoptions <FontSize> 12\n"
                   "addbreak <Name> Total <Frequency> 1 <BreakOperations> Nothing Nothing Sum\n"));
  EXPECT_EQ(errors_, "");
  EXPECT_EQ(view_.table, &table_);
  EXPECT_EQ(view_.fileName, "old.view");
  EXPECT_EQ(view_.exportFileName, "plan.sp");
  EXPECT_EQ(view_.shortTitle, "plan.tbl");
  EXPECT_EQ(view_.zIndex, 0);
  EXPECT_EQ(listsOf(view_), "x 0, z 1, hidden 2");
  EXPECT_EQ(view_.userTitle, "The plan");
  EXPECT_EQ(view_.periodFileName, "p.per");
  EXPECT_TRUE(view_.repeatLabels);
  EXPECT_TRUE(view_.dataInColumns);
  EXPECT_FALSE(view_.showSystemTitle);
  EXPECT_EQ(view_.printOptions.fontSize, 12);
  ASSERT_EQ(view_.breaks.size(), 3U);
  EXPECT_EQ(view_.breaks[0].name, "Total");
  EXPECT_EQ(operationOf(view_.breaks[0], 2), BreakOperation::Sum);
  EXPECT_EQ(settings_.precision, 2);
  EXPECT_EQ(settings_.dateFormat, "%Y");
}

TEST_F(ViewFileApplyTest, ApplyingSortsTheTable) {
  EXPECT_TRUE(read(allFields()));
  EXPECT_EQ(tuplesOf(table_), (Lines{"a W1 1", "a W2 2", "b W1 3", "b W2 4"}));
  EXPECT_FALSE(table_.aggregated);
}

TEST_F(ViewFileApplyTest, ApplyingDropsDuplicatesOfTheViewsKeys) {
  EXPECT_TRUE(read(allFields() + "definehiddenfields 1\n"));
  EXPECT_EQ(tuplesOf(table_), (Lines{"a W1 1", "b W2 4"}));
  EXPECT_TRUE(table_.aggregated);
}

TEST_F(ViewFileApplyTest, FormulaFieldsOfTheFileAreAddedWithFreshCells) {
  EXPECT_TRUE(read(allFields() + formula("Double", "Qty * 2") + formula("Half", "Qty / 2") +
                   "definedatafields 4 2\ndefinehiddenfields 3\n"));
  EXPECT_EQ(tuplesOf(table_), (Lines{"a W1 1 0 0", "a W2 2 0 0", "b W1 3 0 0", "b W2 4 0 0"}));
  ASSERT_EQ(table_.fieldCount(), 5U);
  EXPECT_EQ(table_.fields[3].name, "Double");
  EXPECT_EQ(table_.fields[3].expression.text, "Qty * 2");
  EXPECT_EQ(listsOf(view_), "x 0, y 1, data 4 2, hidden 3");
  EXPECT_EQ(view_.breaks.size(), 5U);
}

TEST_F(ViewFileApplyTest, FormulaFieldsThatTheFileDoesNotNameGo) {
  ASSERT_TRUE(read(allFields() + formula("Double") + formula("Half")));
  table_.cell(0, 3).number = 7;
  table_.cell(0, 4).number = 8;
  EXPECT_TRUE(read(allFields() + formula("Half", "2")));
  ASSERT_EQ(table_.fieldCount(), 4U);
  EXPECT_EQ(table_.fields[3].name, "Half");
  EXPECT_EQ(table_.fields[3].expression.text, "2");
  EXPECT_EQ(tuplesOf(table_), (Lines{"a W1 1 8", "a W2 2 0", "b W1 3 0", "b W2 4 0"}));
  EXPECT_EQ(view_.breaks.size(), 4U);
  EXPECT_TRUE(read(allFields()));
  EXPECT_EQ(tuplesOf(table_), (Lines{"a W1 1", "a W2 2", "b W1 3", "b W2 4"}));
  EXPECT_EQ(view_.breaks.size(), 3U);
}

TEST_F(ViewFileApplyTest, FormulaFieldsMayChangeNamesAndOrder) {
  ASSERT_TRUE(read(allFields() + formula("A") + formula("B")));
  for (std::size_t i = 0; i < table_.tupleCount; ++i) {
    table_.cell(i, 3).number = 10;
    table_.cell(i, 4).number = 20;
  }
  EXPECT_TRUE(read(allFields() + formula("B") + formula("C") + formula("A")));
  EXPECT_EQ(tuplesOf(table_),
            (Lines{"a W1 1 20 0 10", "a W2 2 20 0 10", "b W1 3 20 0 10", "b W2 4 20 0 10"}));
}

TEST_F(ViewFileApplyTest, APlainFieldTakesClassificationHideFlagAndHighlightFormula) {
  EXPECT_TRUE(read("addfield <Name> Item <Type> string <Classification> dataReadOnly <Hide> Yes\n" +
                   std::string(kPeriod) +
                   "addfield <Name> Qty <Type> number <Classification> dataReadWrite "
                   "<HighlightExpression> \"RED()\"\n"));
  EXPECT_EQ(table_.fields[0].classification, Classification::DataReadOnly);
  EXPECT_TRUE(table_.fields[0].hidden);
  EXPECT_EQ(table_.fields[2].classification, Classification::DataReadWrite);
  EXPECT_EQ(table_.fields[2].highlightExpression.text, "RED()");
  // With the item among the data only the period is a key.
  EXPECT_EQ(listsOf(view_), "y 1, data 0 2");
  EXPECT_EQ(tuplesOf(table_), (Lines{"a W1 1", "b W2 4"}));
  EXPECT_EQ(table_.sortKeys, (std::vector<int>{1}));
}

TEST_F(ViewFileApplyTest, UnknownTypeAndClassificationWordsChangeNothing) {
  EXPECT_TRUE(
      read("addfield <Name> Item\naddfield <Name> Period <Type> x <Classification> y\n"
           "addfield <Name> Qty <Type> Number\n"
           "definexfields 0\ndefineyfields 1\n"));
  EXPECT_EQ(table_.fields[0].type, FieldType::String);
  EXPECT_EQ(table_.fields[0].classification, Classification::Key);
  EXPECT_EQ(table_.fields[1].type, FieldType::Period);
  EXPECT_EQ(table_.fields[2].type, FieldType::Number);
  EXPECT_EQ(table_.fields[2].classification, Classification::DataReadOnly);
  EXPECT_EQ(tuplesOf(table_), (Lines{"a W1 1", "a W2 2", "b W1 3", "b W2 4"}));
}

TEST_F(ViewFileApplyTest, PeriodNamesStayWithTheTable) {
  EXPECT_TRUE(read(allFields() + formula("F")));
  EXPECT_EQ(table_.fields[1].periodNames.size(), 2);
  EXPECT_EQ(table_.fields[1].periodNames.name(1), "W2");
}

// A one-field table with a view over it, to which view files are applied that change the type.
struct OneField {
  explicit OneField(Table fresh) : table(std::move(fresh)) {}

  void changeType(std::string_view type, std::string_view lines = "") {
    ReportView view = makeReportView(table, notice);
    std::string errors;
    TextOutput output = TextOutput::toMemory(errors);
    const std::string file = "addfield <Name> " + table.fields[0].name + " <Type> " +
                             std::string(type) + " <Classification> key\ndefinexfields 0\n" +
                             std::string(lines);
    EXPECT_TRUE(readViewFile(view, file, settings, processEnvironment(), notice, output));
  }

  Lines column() const {
    Lines texts;
    for (std::size_t i = 0; i < table.tupleCount; ++i) {
      texts.push_back(formatValue(table.value(i, 0), settings, Quoting::None));
    }
    return texts;
  }

  SilentNotice notice;
  Table table;
  FormatSettings settings;
};

// The column of a one-field table after the field's type changed to the named one.
Lines afterTypeChange(Table table, std::string_view type,
                      std::string_view lines = "setdateformat \"%Y-%m-%d\"\n") {
  OneField field(std::move(table));
  field.changeType(type, lines);
  return field.column();
}

// A column that the table file declares, settled to dates because all values read as such.
Table settled(std::string_view field, std::string_view periods, const Lines& values) {
  Table table = tableOf(field, periods, values);
  settleTypes(table);
  EXPECT_EQ(table.fields[0].type, FieldType::Date);
  return table;
}

Table numbers(std::initializer_list<Cell> cells) {
  Table table = tableOf("N:Number", "p", {});
  for (const Cell cell : cells) {
    *appendTuple(table) = cell;
  }
  return table;
}

TEST(TypeChange, TextsBecomeNumbersAndSortLikeNumbers) {
  EXPECT_EQ(afterTypeChange(tableOf("T:String", "p", {"10", "9", "1.5", "x", "*", "9"}), "number"),
            (Lines{"0.0000000000", "1.5000000000", "9.0000000000", "10.0000000000", "*"}));
}

TEST(TypeChange, NumbersBecomeTheTextsThatTheViewShows) {
  const auto cells = {numberCell(1234.5), numberCell(1e20), numberCell(-0.125), undefinedCell()};
  EXPECT_EQ(afterTypeChange(numbers(cells), "string", "precision 2\n"),
            (Lines{"*", "-0.12", "1,234.50", "undefined"}));
  EXPECT_EQ(afterTypeChange(numbers({numberCell(1234.5)}), "string"), (Lines{"1,234.5000000000"}));
}

TEST(TypeChange, NumbersFollowTheSessionsSeparatorsAndStar) {
  OneField field(numbers({numberCell(1234.5), numberCell(1e20)}));
  field.settings.thousandsSeparators = false;
  field.settings.largeNumberStar = false;
  field.changeType("string", "precision 1\n");
  EXPECT_EQ(field.column(), (Lines{"100000000000000000000.0", "1234.5"}));
}

TEST(TypeChange, ShownNumbersComeBackFromTheirTexts) {
  OneField field(numbers({numberCell(1234.5), numberCell(1e20), undefinedCell()}));
  field.changeType("string", "precision 2\n");
  field.changeType("number", "precision 2\n");
  EXPECT_EQ(field.column(), (Lines{"undefined", "1,234.50", "*"}));
  EXPECT_EQ(field.table.cell(1, 0).number, 1234.5);
  EXPECT_EQ(field.table.cell(2, 0).number, 1e20);
}

TEST(TypeChange, DigitsThatTheViewDoesNotShowAreLost) {
  OneField field(numbers({numberCell(0.126), numberCell(0.134)}));
  field.changeType("string", "precision 2\n");
  EXPECT_EQ(field.column(), Lines{"0.13"}) << "equal keys are one tuple";
}

TEST(TypeChange, TextsBecomeDates) {
  EXPECT_EQ(
      afterTypeChange(tableOf("T:String", "p", {"8/15/2014", "5-Aug-2014", "8/15/2014"}), "date"),
      (Lines{"2014-08-05", "2014-08-15"}));
}

TEST(TypeChange, PeriodsBecomeDatesByTheirNames) {
  EXPECT_EQ(
      afterTypeChange(tableOf("P:Period", "2/1/2014 1/1/2014", {"2/1/2014", "1/1/2014"}), "date"),
      (Lines{"2014-01-01", "2014-02-01"}));
}

TEST(TypeChange, DatesBecomeTextsByTheViewsDateFormat) {
  const Lines values = {"8/15/2014", "12-31-1999"};
  EXPECT_EQ(afterTypeChange(settled("T:String", "p", values), "string"),
            (Lines{"1999-12-31", "2014-08-15"}));
  EXPECT_EQ(afterTypeChange(settled("T:String", "p", values), "string", ""),
            (Lines{"15-Aug-2014", "31-Dec-1999"}));
}

constexpr std::string_view kAugust = "05-Aug-2014 12-Aug-2014 19-Aug-2014";

Table augustPeriods() {
  return settled("P:Period", kAugust, {"19-Aug-2014", "05-Aug-2014", "12-Aug-2014"});
}

TEST(TypeChange, DatesWrittenLikeThePeriodNamesBecomeThosePeriods) {
  EXPECT_EQ(afterTypeChange(augustPeriods(), "period", ""),
            (Lines{"05-Aug-2014", "12-Aug-2014", "19-Aug-2014"}));
}

TEST(TypeChange, DatesWrittenOtherwiseBecomeThePeriodsOfTheirTime) {
  EXPECT_EQ(afterTypeChange(augustPeriods(), "period", "setdateformat \"%Y/%m/%d\"\n"),
            (Lines{"05-Aug-2014", "12-Aug-2014", "19-Aug-2014"}));
}

TEST(TypeChange, ADatesTextComesBeforeItsTime) {
  // The 2nd of January, whose text is the name that stands for the 1st of February.
  EXPECT_EQ(afterTypeChange(settled("P:Date", "01/02/2014 02/01/2014", {"01/02/2014"}), "period",
                            "setdateformat \"%d/%m/%Y\"\n"),
            Lines{"02/01/2014"});
}

TEST(TypeChange, ADateOfNoPeriodBecomesTheFirstPeriod) {
  EXPECT_EQ(afterTypeChange(settled("P:Date", "W1 05-Aug-2014", {"06-Aug-2014"}), "period"),
            Lines{"W1"});
}

TEST(TypeChange, TextsBecomePeriodsOfTheFieldsNames) {
  EXPECT_EQ(afterTypeChange(tableOf("P:Date", "W2 W1", {"W1", "W2", "W3"}), "period"),
            (Lines{"W2", "W1"}));
}

TEST(TypeChange, PeriodsBecomeTexts) {
  EXPECT_EQ(afterTypeChange(tableOf("P:Period", "W2 W1", {"W1", "W2"}), "string"),
            (Lines{"W1", "W2"}));
}

TEST(TypeChange, AFieldWithoutPeriodNamesDoesNotBecomeAPeriod) {
  EXPECT_EQ(afterTypeChange(tableOf("T:String", "p", {"b", "a"}), "period"), (Lines{"a", "b"}));
}

TEST(TypeChange, TextsBecomeBooleans) {
  EXPECT_EQ(afterTypeChange(tableOf("T:String", "p", {"yes", "no"}), "boolean"),
            (Lines{"No", "Yes"}));
}

TEST_F(ViewFileApplyTest, FieldsOfOtherNamesDoNotFit) {
  EXPECT_FALSE(read(std::string(kItem) + std::string(kPeriod) +
                    "addfield <Name> Amount <Type> number <Classification> dataReadOnly\n"));
  EXPECT_EQ(errors_, "");
}

TEST_F(ViewFileApplyTest, FieldsInAnotherOrderDoNotFit) {
  EXPECT_FALSE(fits(std::string(kPeriod) + std::string(kItem) + std::string(kQty)));
}

TEST_F(ViewFileApplyTest, PlainFieldsMustBeAllThere) {
  EXPECT_FALSE(fits(std::string(kItem) + std::string(kPeriod)));
  EXPECT_FALSE(fits(allFields() + "addfield <Name> More <Type> number\n"));
  EXPECT_FALSE(fits(""));
}

TEST_F(ViewFileApplyTest, FormulasAmongThePlainFieldsDoNotFit) {
  EXPECT_FALSE(fits(std::string(kItem) + formula("F") + std::string(kPeriod) + std::string(kQty)));
  EXPECT_FALSE(fits(std::string(kItem) + std::string(kPeriod) + formula("Qty")));
  EXPECT_FALSE(fits(allFields() + formula("F") + "addfield <Name> More <Type> number\n"));
}

TEST_F(ViewFileApplyTest, TypesOfPlainFieldsDoNotMatterForTheFit) {
  EXPECT_TRUE(
      fits("addfield <Name> Item <Type> number\naddfield <Name> Period <Type> date\n"
           "addfield <Name> Qty\n"));
}

TEST_F(ViewFileApplyTest, FormulasMayDifferFreely) {
  EXPECT_TRUE(fits(allFields() + formula("A") + formula("B")));
  ASSERT_TRUE(read(allFields() + formula("A") + formula("B")));
  EXPECT_TRUE(fits(allFields()));
  EXPECT_TRUE(fits(allFields() + formula("C")));
  EXPECT_TRUE(fits(allFields() + formula("B") + formula("B") + formula("A")));
}

TEST_F(ViewFileApplyTest, CheckingTheFitChangesNothing) {
  const std::string before = state();
  EXPECT_TRUE(fits(allFields() + formula("A") + "precision 3\n"));
  EXPECT_EQ(state(), before);
}

TEST_F(ViewFileApplyTest, AFailedReadingChangesNothing) {
  const std::string before = state();
  EXPECT_FALSE(read(allFields() + formula("A") + "precision 3\nnonsense\n"));
  EXPECT_FALSE(read(std::string(kItem) + "precision 3\n"));
  EXPECT_FALSE(read(allFields() + "definexfields 3\n"));
  EXPECT_EQ(state(), before);
}

TEST_F(ViewFileApplyTest, NotesStayWithTheirTuples) {
  table_ = tableFrom(
      "FieldNames:\tItem\tPeriod\tQty\t\nFieldTypes:\tString\tPeriod\tNumber\t\n"
      "PeriodValues:\tW1\t\nb\tW1\t1\t### b1,b2\na\tW1\t2\t### a1,a2\n");
  view_ = makeReportView(table_, notice_);
  ASSERT_TRUE(read(allFields() + formula("F")));
  EXPECT_EQ(noteOf(table_, 0, 1), "a2");
  EXPECT_EQ(noteOf(table_, 1, 0), "b1");
}

TEST_F(ViewFileApplyTest, SurplusNotesDoNotFallToFormulas) {
  table_ = tableFrom(
      "FieldNames:\tItem\tPeriod\tQty\t\nFieldTypes:\tString\tPeriod\tNumber\t\n"
      "PeriodValues:\tW1\t\nb\tW1\t1\t### b1,b2,b3,surplus\n");
  view_ = makeReportView(table_, notice_);
  ASSERT_TRUE(read(allFields() + formula("F")));
  EXPECT_EQ(noteOf(table_, 0, 2), "b3");
  EXPECT_EQ(noteOf(table_, 0, 3), "");
}

TEST_F(ViewFileApplyTest, ThePeriodFileThatTheFileNamesIsRead) {
  const test::TemporaryDirectory directory;
  const std::string name = directory.write("plan.per", "W1 days 7\n");
  ASSERT_TRUE(read(allFields() + "periodfilename \"" + name + "\"\n"));
  EXPECT_EQ(statedLength(table_.periodLengths, "W1", "days"), 7.0);
}

TEST_F(ViewFileApplyTest, AFileWithoutAPeriodFileLeavesTheLengthsReadBefore) {
  addStatedLength(table_.periodLengths, "W1", "days", 7);
  ASSERT_TRUE(read(allFields() + formula("F") + "periodfilename \"\"\n"));
  EXPECT_EQ(statedLength(table_.periodLengths, "W1", "days"), 7.0);
}

TEST_F(ViewFileApplyTest, AFileThatDoesNotFitReadsNoPeriodFile) {
  const test::TemporaryDirectory directory;
  const std::string name = directory.write("plan.per", "W1 days 7\n");
  EXPECT_FALSE(read(std::string(kItem) + "periodfilename \"" + name + "\"\n"));
  EXPECT_TRUE(fits(allFields() + "periodfilename \"" + name + "\"\n"));
  EXPECT_TRUE(table_.periodLengths.statedByText.empty());
}

// A view file that uses every command.
std::string fullFile() {
  return "# a view\nnumberoffields 4 \nsetdateformat \"%Y\" \nsetusertitle \"T\" \nprecision 2 \n"
         "periodfilename \"p\" \n" +
         allFields() + formula("F", "Qty * 2") +
         "definexfields \"1\" \ndefineyfields \"0\" \ndefinezfields \ndefinedatafields \"3\" "
         "\"2\" \ndefinehiddenfields \nsetflags <DataInColumns> \"True\" \n"
         "defineprintoptions <FontSize> 8 <Title> \"x\" \n"
         "addbreak <FieldIndex> 1 <Name> \"Sum\" <Active> \"True\" <BreakOperations> \"Sum\" "
         "\"Sum\" \n";
}

TEST_F(ViewFileApplyTest, AFileCutOffAnywhereIsReadOrChangesNothing) {
  const std::string file = fullFile();
  ASSERT_TRUE(fits(file));
  int failures = 0;
  for (std::size_t length = 0; length <= file.size(); ++length) {
    const std::string before = state();
    if (!read(std::string_view(file).substr(0, length))) {
      ++failures;
      EXPECT_EQ(state(), before) << "cut at " << length;
    }
  }
  EXPECT_GT(failures, 100);
}

TEST_F(ViewFileApplyTest, AFileWithAnyByteSpoiltIsReadOrChangesNothing) {
  const std::string file = fullFile();
  for (const char bad : {'\0', '"', '\n', '9', '-', '\xff', '<', ' '}) {
    for (std::size_t i = 0; i < file.size(); ++i) {
      std::string spoilt = file;
      spoilt[i] = bad;
      const std::string before = state();
      if (!read(spoilt)) {
        ASSERT_EQ(state(), before) << "byte " << i;
      }
    }
  }
}

TEST_F(ViewFileApplyTest, BinaryFilesAreRejected) {
  std::mt19937 random(7);
  for (int i = 0; i < 200; ++i) {
    std::string noise(5000, '\0');
    for (char& byte : noise) {
      byte = static_cast<char>(random());
    }
    EXPECT_FALSE(read(noise));
  }
}

TEST_F(ViewFileApplyTest, ThousandsOfFormulaFieldsAreTaken) {
  std::string file = allFields();
  for (int i = 0; i < 20000; ++i) {
    file += formula("F" + std::to_string(i));
  }
  for (int i = 0; i < 20000; ++i) {
    file += "definexfields " + std::to_string(20002 - i) + "\naddbreak <BreakOperations> Sum\n";
  }
  EXPECT_TRUE(read(file + "definedatafields 3\n"));
  EXPECT_EQ(errors_, "");
  EXPECT_EQ(table_.fieldCount(), 20003U);
  EXPECT_EQ(view_.axis(Axis::X).size(), 20000U);
  EXPECT_EQ(view_.axis(Axis::X).back(), 4);
}

TEST_F(ViewFileApplyTest, AnUnchangedFieldListKeepsTheCellsWhereTheyAre) {
  ASSERT_TRUE(read(allFields()));
  const Cell* const cells = table_.cells.data();
  ASSERT_TRUE(read(allFields() + "precision 4\n"));
  EXPECT_EQ(table_.cells.data(), cells);
}

}  // namespace
}  // namespace vrel
