#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

#include "model/view_file.h"
#include "support/tables.h"
#include "support/views.h"

namespace vrel {
namespace {

using test::listsOf;
using test::savedText;
using test::SilentNotice;
using test::tableFrom;
using test::tableOf;

constexpr std::string_view kBanner =
    "########################################################\n"
    "# DO NOT CHANGE THIS FILE.\n"
    "# DO NOT CREATE THIS FILE THROUGH IMPORT.\n"
    "# This file format is KAPRILON proprietary.\n"
    "# All changes to this file must be achieved through the\n"
    "# appropriate application interface.\n"
    "#\n"
    "# Generating this file by any other means will not\n"
    "# be supported in future releases.\n"
    "########################################################\n";

class ViewFileWriterTest : public testing::Test {
 protected:
  ViewFileWriterTest() : table_(tableOf("Item:String Period:Period Qty:Number", "W1", {})) {
    makeView();
  }

  void makeView() { view_ = makeReportView(table_, notice_); }

  // Adds a formula field and makes a new view.
  void addFormula(std::string_view name, std::string_view formula, std::string_view inverse) {
    FieldDef field;
    field.name = name;
    field.type = FieldType::Expression;
    field.classification = Classification::DataReadWrite;
    field.expression.text = formula;
    field.inverseExpression.text = inverse;
    table_.fields.push_back(std::move(field));
    makeView();
  }

  // Adds many formula fields and makes a new view.
  void addFormulas(int count) {
    for (int i = 0; i < count; ++i) {
      FieldDef field;
      field.name = "F" + std::to_string(i);
      field.type = FieldType::Expression;
      field.classification = Classification::DataReadOnly;
      table_.fields.push_back(std::move(field));
    }
    makeView();
  }

  bool hasLine(std::string_view line) const {
    return savedText(view_).find("\n" + std::string(line) + "\n") != std::string::npos;
  }

  // The messages of reading the saved view back into a fresh view of the same table.
  std::string readBack(ReportView& fresh) {
    fresh = makeReportView(table_, notice_);
    std::string errors;
    {
      TextOutput output = TextOutput::toMemory(errors);
      FormatSettings settings;
      EXPECT_TRUE(
          readViewFile(fresh, savedText(view_), settings, processEnvironment(), notice_, output));
    }
    return errors;
  }

  SilentNotice notice_;
  Table table_;
  ReportView view_;
};

TEST_F(ViewFileWriterTest, AFreshViewIsWrittenWhole) {
  EXPECT_EQ(savedText(view_),
            std::string(kBanner) +
                "numberoffields 3 \n"
                "setdateformat \"%d-%b-%Y\" \n"
                "setusertitle \"[Default View Title]\" \n"
                "precision 10 \n"
                "periodfilename \"\" \n"
                "addfield <Name> \"Item\" <Index> \"0\" <Type> \"string\" <Classification> \"key\" "
                "<Hide> No <HighlightExpression> \"BLACK()\" \n"
                "addfield <Name> \"Period\" <Index> \"1\" <Type> \"period\" <Classification> "
                "\"key\" <Hide> No <HighlightExpression> \"BLACK()\" \n"
                "addfield <Name> \"Qty\" <Index> \"2\" <Type> \"number\" <Classification> "
                "\"dataReadOnly\" <Hide> No <HighlightExpression> \"BLACK()\" \n"
                "definexfields \"0\" \n"
                "defineyfields \"1\" \n"
                "definezfields \n"
                "definedatafields \"2\" \n"
                "definehiddenfields \n"
                "setflags <DataInColumns> \"False\" <RepeatLabels> \"False\" "
                "<ShowEmptyRowsAndColumns> \"False\" <ShowSystemTitle> \"True\" \n"
                "defineprintoptions <RepeatRowLabels> \"True\" <RepeatColumnLabels> \"True\" "
                "<PrintAllPages> \"False\" <Title> \"\" <Footer> \"\" <PrintCommand> \"\" "
                "<PrinterType> 0 <PaperType> 0 <Landscape> \"False\" <Separators> \"True\" "
                "<FitToWidth> \"False\" <WidthPages> 1 <FitToHeight> \"False\" <HeightPages> 1 "
                "<BestOnePageFit> \"False\" <FontSize> 10 <PageWidthChars> 132 <PageHeightChars> "
                "66 <AddHeader> \"True\" <Borders> \"True\" \n"
                "addbreak <FieldIndex> 0 <Name> \"Result\" <FirstBreak> 0 <Frequency> 0 "
                "<BreakAfter> \"False\" <Active> \"True\" <BreakOperations> \"Nothing\" "
                "\"Nothing\" \"Nothing\" \n"
                "addbreak <FieldIndex> 1 <Name> \"Result\" <FirstBreak> 0 <Frequency> 0 "
                "<BreakAfter> \"False\" <Active> \"True\" <BreakOperations> \"Nothing\" "
                "\"Nothing\" \"Nothing\" \n"
                "addbreak <FieldIndex> 2 <Name> \"Result\" <FirstBreak> 0 <Frequency> 0 "
                "<BreakAfter> \"False\" <Active> \"True\" <BreakOperations> \"Nothing\" "
                "\"Nothing\" \"Nothing\" \n");
}

TEST_F(ViewFileWriterTest, FormulaFieldsCarryTheirFormulasWithApostrophes) {
  addFormula("Cost", "Qty * \"Unit Price\"", "\"Unit Price\" = Cost / Qty");
  table_.fields.back().hidden = true;
  table_.fields.back().highlightExpression.text = "IF(\"Unit Price\" > 3, RED(), BLACK())";
  EXPECT_TRUE(
      hasLine("addfield <Name> \"Cost\" <Index> \"3\" <Type> \"expression\" <Classification> "
              "\"dataReadWrite\" <Hide> Yes <Expression> \"Qty * 'Unit Price'\" "
              "<InverseExpression> \"'Unit Price' = Cost / Qty\" <HighlightExpression> "
              "\"IF('Unit Price' > 3, RED(), BLACK())\" "));
}

TEST_F(ViewFileWriterTest, DoubleQuotesAndLineFeedsInOtherTextsAreReplacedToo) {
  view_.userTitle = "The \"big\"\nplan";
  view_.periodFileName = "a\"b.per";
  view_.breaks[0].name = "\"Sum\"";
  view_.printOptions.footer = "\"F\"";
  EXPECT_TRUE(hasLine("setusertitle \"The 'big' plan\" "));
  EXPECT_TRUE(hasLine("periodfilename \"a'b.per\" "));
  EXPECT_NE(savedText(view_).find("<Name> \"'Sum'\" "), std::string::npos);
  EXPECT_NE(savedText(view_).find("<Footer> \"'F'\" "), std::string::npos);
}

TEST_F(ViewFileWriterTest, FlagsAndBreaksAreWrittenByName) {
  view_.dataInColumns = true;
  view_.showEmptyRowsAndColumns = true;
  view_.showSystemTitle = false;
  view_.breaks[1] = {.name = "Total",
                     .breakAfter = true,
                     .active = false,
                     .firstBreak = 2,
                     .frequency = kBreakAtEnd,
                     .fieldIndex = 0,
                     .operations = {BreakOperation::Nothing, BreakOperation::Average}};
  EXPECT_TRUE(
      hasLine("setflags <DataInColumns> \"True\" <RepeatLabels> \"False\" "
              "<ShowEmptyRowsAndColumns> \"True\" <ShowSystemTitle> \"False\" "));
  EXPECT_TRUE(
      hasLine("addbreak <FieldIndex> 0 <Name> \"Total\" <FirstBreak> 2 <Frequency> 2097152 "
              "<BreakAfter> \"True\" <Active> \"False\" <BreakOperations> \"Nothing\" \"Average\" "
              "\"Nothing\" "));
}

TEST_F(ViewFileWriterTest, ListsAreWrittenInTheirOrder) {
  view_.axis(Axis::X) = {1, 0};
  view_.axis(Axis::Y) = {};
  view_.axis(Axis::Data) = {};
  view_.axis(Axis::Hidden) = {2};
  EXPECT_TRUE(hasLine("definexfields \"1\" \"0\" "));
  EXPECT_TRUE(hasLine("defineyfields "));
  EXPECT_TRUE(hasLine("definedatafields "));
  EXPECT_TRUE(hasLine("definehiddenfields \"2\" "));
}

TEST_F(ViewFileWriterTest, ReadBackAFormulaHasItsApostrophes) {
  addFormula("Cost", "\"Unit Price\" * 2", "");
  ReportView fresh;
  EXPECT_EQ(readBack(fresh), "");
  EXPECT_EQ(table_.fields[3].expression.text, "'Unit Price' * 2");
}

TEST_F(ViewFileWriterTest, AFieldNameThatNoLineCanHoldIsRecognisedWhenReadBack) {
  table_.fields[0].name = "It\"em\n";
  makeView();
  ReportView fresh;
  EXPECT_EQ(readBack(fresh), "");
  EXPECT_EQ(table_.fields[0].name, "It\"em\n");
}

TEST_F(ViewFileWriterTest, TextsThatReadLikeTagsComeBack) {
  view_.printOptions.title = "<Footer>";
  view_.printOptions.footer = "<Title>";
  view_.breaks[0].name = "<BreakOperations>";
  ReportView fresh;
  EXPECT_EQ(readBack(fresh), "");
  EXPECT_EQ(savedText(fresh), savedText(view_));
}

TEST_F(ViewFileWriterTest, LongTextsComeBackWhole) {
  addFormula("Cost", std::string(5000, 'f'), std::string(5000, 'i'));
  view_.userTitle = std::string(5000, 't');
  ReportView fresh;
  EXPECT_EQ(readBack(fresh), "");
  EXPECT_EQ(fresh.userTitle, std::string(5000, 't'));
  EXPECT_EQ(table_.fields[3].expression.text, std::string(5000, 'f'));
  EXPECT_EQ(table_.fields[3].inverseExpression.text, std::string(5000, 'i'));
}

std::size_t occurrences(std::string_view text, std::string_view part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string_view::npos;
       at = text.find(part, at + 1)) {
    ++count;
  }
  return count;
}

TEST_F(ViewFileWriterTest, AViewOfHundredsOfFieldsCanBeReadBack) {
  addFormulas(332);
  ASSERT_EQ(table_.fieldCount(), 335U);
  std::reverse(view_.axis(Axis::Data).begin(), view_.axis(Axis::Data).end());
  setOperation(view_.breaks[0], 334, BreakOperation::Sum);
  const std::string saved = savedText(view_);
  EXPECT_EQ(occurrences(saved, "\ndefinedatafields "), 1U);
  EXPECT_EQ(occurrences(saved, "\naddbreak "), 335U);
  ReportView fresh;
  EXPECT_EQ(readBack(fresh), "");
  EXPECT_EQ(savedText(fresh), saved);
  EXPECT_EQ(listsOf(fresh), listsOf(view_));
  EXPECT_EQ(operationOf(fresh.breaks[0], 334), BreakOperation::Sum);
}

TEST_F(ViewFileWriterTest, UpToAThousandFieldsEveryOperationIsWritten) {
  addFormulas(997);
  ASSERT_EQ(table_.fieldCount(), 1000U);
  EXPECT_EQ(occurrences(savedText(view_), "\"Nothing\" "), 1000U * 1000U);
}

TEST_F(ViewFileWriterTest, BeyondAThousandFieldsTrailingNothingOperationsAreLeftOut) {
  addFormulas(998);
  ASSERT_EQ(table_.fieldCount(), 1001U);
  setOperation(view_.breaks[0], 2, BreakOperation::Sum);
  setOperation(view_.breaks[0], 900, BreakOperation::Nothing);
  EXPECT_TRUE(
      hasLine("addbreak <FieldIndex> 0 <Name> \"Result\" <FirstBreak> 0 <Frequency> 0 "
              "<BreakAfter> \"False\" <Active> \"True\" <BreakOperations> \"Nothing\" "
              "\"Nothing\" \"Sum\" "));
  EXPECT_TRUE(
      hasLine("addbreak <FieldIndex> 1000 <Name> \"Result\" <FirstBreak> 0 <Frequency> 0 "
              "<BreakAfter> \"False\" <Active> \"True\" <BreakOperations> "));
  ReportView fresh;
  EXPECT_EQ(readBack(fresh), "");
  EXPECT_EQ(savedText(fresh), savedText(view_));
  EXPECT_EQ(operationOf(fresh.breaks[0], 2), BreakOperation::Sum);
}

TEST_F(ViewFileWriterTest, NegativeCountsOfChangesComeBack) {
  view_.breaks[0].firstBreak = -3;
  view_.breaks[0].frequency = -1;
  EXPECT_NE(savedText(view_).find("<FirstBreak> -3 <Frequency> -1 "), std::string::npos);
  ReportView fresh;
  EXPECT_EQ(readBack(fresh), "");
  EXPECT_EQ(fresh.breaks[0].firstBreak, -3);
  EXPECT_EQ(fresh.breaks[0].frequency, -1);
}

// A view with every member chosen at random.
class RandomView {
 public:
  explicit RandomView(unsigned seed) : random_(seed) {}

  void fill(ReportView& view) {
    view.precision = number(0, 12);
    for (bool* flag : {&view.dataInColumns, &view.repeatLabels, &view.showEmptyRowsAndColumns,
                       &view.showSystemTitle}) {
      *flag = number(0, 1) == 1;
    }
    for (std::string* text : {&view.dateFormat, &view.periodFileName, &view.userTitle}) {
      *text = this->text();
    }
    spreadFields(view);
    for (BreakDefinition& definition : view.breaks) {
      fillBreak(definition, static_cast<int>(view.breaks.size()));
    }
    fillPrintOptions(view.printOptions);
  }

  void fill(FieldDef& field) {
    field.hidden = number(0, 1) == 1;
    field.highlightExpression.text = "A" + text();
    if (field.isExpression()) {
      field.expression.text = text();
      field.inverseExpression.text = text();
    }
    field.classification = static_cast<Classification>(number(0, 2));
  }

 private:
  int number(int least, int most) {
    return std::uniform_int_distribution<int>(least, most)(random_);
  }

  std::string text() {
    constexpr std::array<std::string_view, 10> kPieces = {"a", " ",      "'",        "`",  ",",
                                                          "#", "<Name>", "\xc3\xa9", "\\", "\t"};
    std::string text;
    for (int i = number(0, 8); i > 0; --i) {
      text += kPieces[static_cast<std::size_t>(number(0, 9))];
    }
    return text;
  }

  void spreadFields(ReportView& view) {
    std::vector<int> fields(view.breaks.size());
    for (std::size_t i = 0; i < fields.size(); ++i) {
      fields[i] = static_cast<int>(i);
    }
    std::shuffle(fields.begin(), fields.end(), random_);
    view.axes = {};
    for (const int field : fields) {
      view.axes[static_cast<std::size_t>(number(0, 4))].push_back(field);
    }
  }

  void fillBreak(BreakDefinition& definition, int fields) {
    definition.name = text();
    definition.breakAfter = number(0, 1) == 1;
    definition.active = number(0, 1) == 1;
    definition.firstBreak = number(-2, 11);
    definition.frequency = number(0, 1) == 1 ? kBreakAtEnd : number(-2, 12);
    definition.fieldIndex = number(0, fields - 1);
    for (int i = 0; i < fields; ++i) {
      setOperation(definition, i, static_cast<BreakOperation>(number(0, 6)));
    }
  }

  void fillPrintOptions(PrintOptions& options) {
    for (bool* flag :
         {&options.repeatRowLabels, &options.repeatColumnLabels, &options.printAllPages,
          &options.landscape, &options.separators, &options.fitToWidth, &options.fitToHeight,
          &options.bestOnePageFit, &options.addHeader, &options.borders}) {
      *flag = number(0, 1) == 1;
    }
    for (std::string* text : {&options.title, &options.footer, &options.printCommand}) {
      *text = this->text();
    }
    for (std::int32_t* count : {&options.widthPages, &options.heightPages, &options.fontSize,
                                &options.pageWidthChars, &options.pageHeightChars}) {
      *count = number(1, 200);
    }
    options.paperType = number(0, 17);
    options.printerType = static_cast<PrinterType>(number(0, 2));
  }

  std::mt19937 random_;
};

TEST_F(ViewFileWriterTest, EveryWrittenViewReadsBackAsTheSameView) {
  addFormula("Cost", "", "");
  for (unsigned seed = 0; seed < 200; ++seed) {
    RandomView random(seed);
    for (FieldDef& field : table_.fields) {
      random.fill(field);
    }
    makeView();
    random.fill(view_);
    const std::string saved = savedText(view_);
    ReportView fresh;
    EXPECT_EQ(readBack(fresh), "");
    ASSERT_EQ(savedText(fresh), saved) << "seed " << seed;
  }
}

}  // namespace
}  // namespace vrel
