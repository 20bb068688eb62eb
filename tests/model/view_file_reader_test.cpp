#include <gtest/gtest.h>

#include "model/view_file.h"
#include "support/views.h"

namespace vrel {
namespace {

using test::listsOf;
using test::SilentNotice;

constexpr std::string_view kFields =
    "addfield <Name> \"Item\" <Type> \"string\" <Classification> \"key\"\n"
    "addfield <Name> \"Period\" <Type> \"period\" <Classification> \"key\"\n"
    "addfield <Name> \"Qty\" <Type> \"number\" <Classification> \"dataReadWrite\"\n"
    "addfield <Name> \"Cost\" <Type> \"number\" <Classification> \"dataReadOnly\"\n";

// What `readFieldRecords` or `parseViewFile` made of a text, and the messages.
struct FieldsRead {
  std::vector<FieldDef> fields;
  std::string errors;
};

FieldsRead readRecords(std::string_view file) {
  FieldsRead read;
  TextOutput output = TextOutput::toMemory(read.errors);
  read.fields = readFieldRecords(file, output);
  output.flush();
  return read;
}

struct ViewRead {
  std::optional<ParsedView> parsed;
  std::string errors;
};

ViewRead parse(std::string_view file) {
  ViewRead read;
  SilentNotice notice;
  TextOutput output = TextOutput::toMemory(read.errors);
  read.parsed = parseViewFile(file, notice, output);
  output.flush();
  return read;
}

// The lists after the lines, behind the four fields above.
std::string listsAfter(std::string_view lines) {
  const ViewRead read = parse(std::string(kFields) + std::string(lines));
  EXPECT_EQ(read.errors, "");
  return read.parsed ? listsOf(read.parsed->view) : "rejected";
}

// The messages of a file that is accepted although it has the lines.
std::string accepted(std::string_view lines) {
  const ViewRead read = parse(std::string(kFields) + std::string(lines));
  EXPECT_TRUE(read.parsed);
  return read.errors;
}

// The messages of a file that is rejected for the lines.
std::string rejected(std::string_view lines) {
  const ViewRead read = parse(std::string(kFields) + std::string(lines));
  EXPECT_FALSE(read.parsed);
  return read.errors;
}

TEST(FieldRecords, AFieldIsReadFromItsTags) {
  const FieldsRead read = readRecords(
      "addfield <Name> \"Unit Cost\" <Index> \"7\" <Type> \"expression\" <Classification> "
      "\"dataReadWrite\" <Hide> Yes <Expression> \"Qty * 2\" <InverseExpression> \"Qty = 'Unit "
      "Cost' / 2\" <HighlightExpression> \"RED()\" \n");
  EXPECT_EQ(read.errors, "");
  ASSERT_EQ(read.fields.size(), 1U);
  const FieldDef& field = read.fields[0];
  EXPECT_EQ(field.name, "Unit Cost");
  EXPECT_EQ(field.type, FieldType::Expression);
  EXPECT_EQ(field.classification, Classification::DataReadWrite);
  EXPECT_TRUE(field.hidden);
  EXPECT_EQ(field.expression.text, "Qty * 2");
  EXPECT_EQ(field.inverseExpression.text, "Qty = 'Unit Cost' / 2");
  EXPECT_EQ(field.highlightExpression.text, "RED()");
  EXPECT_EQ(field.periodNames.size(), 0);
}

TEST(FieldRecords, TagsMayStandInAnyOrder) {
  const FieldsRead read =
      readRecords("addfield <Classification> key <Hide> No <Type> date <Name> When\n");
  ASSERT_EQ(read.fields.size(), 1U);
  EXPECT_EQ(read.fields[0].name, "When");
  EXPECT_EQ(read.fields[0].type, FieldType::Date);
  EXPECT_EQ(read.fields[0].classification, Classification::Key);
  EXPECT_FALSE(read.fields[0].hidden);
}

TEST(FieldRecords, FieldsStandInFileOrderWhateverTheirIndex) {
  const FieldsRead read =
      readRecords("addfield <Name> A <Index> \"1\"\naddfield <Name> B <Index> \"0\"\n");
  ASSERT_EQ(read.fields.size(), 2U);
  EXPECT_EQ(read.fields[0].name, "A");
  EXPECT_EQ(read.fields[1].name, "B");
}

TEST(FieldRecords, MissingAndUnknownValuesLeaveAFieldUnset) {
  const FieldsRead read = readRecords("addfield <Type> text <Classification> Key <Expression> x\n");
  ASSERT_EQ(read.fields.size(), 1U);
  EXPECT_EQ(read.fields[0].name, "");
  EXPECT_EQ(read.fields[0].type, FieldType::Unset);
  EXPECT_EQ(read.fields[0].classification, Classification::Unset);
  EXPECT_EQ(read.fields[0].highlightExpression.text, "BLACK()");
}

TEST(FieldRecords, OnlyAFormulaFieldHasFormulas) {
  const FieldsRead read =
      readRecords("addfield <Type> number <Expression> x <InverseExpression> y\n");
  ASSERT_EQ(read.fields.size(), 1U);
  EXPECT_EQ(read.fields[0].expression.text, "");
  EXPECT_EQ(read.fields[0].inverseExpression.text, "");
}

TEST(FieldRecords, AnEmptyHighlightFormulaIsBlack) {
  const FieldsRead read = readRecords("addfield <Name> A <HighlightExpression> \"\"\n");
  ASSERT_EQ(read.fields.size(), 1U);
  EXPECT_EQ(read.fields[0].highlightExpression.text, "BLACK()");
}

TEST(FieldRecords, AFieldIsHiddenWhenItsFlagBeginsLikeTrueOrYes) {
  for (const char* word : {"Yes", "yes", "True", "t", "Y", "Tomorrow"}) {
    EXPECT_TRUE(readRecords(std::string("addfield <Hide> ") + word).fields[0].hidden) << word;
  }
  for (const char* word : {"No", "1", "\"\"", "\" Yes\"", "on"}) {
    EXPECT_FALSE(readRecords(std::string("addfield <Hide> ") + word).fields[0].hidden) << word;
  }
}

TEST(FieldRecords, OtherCommandsAndCommentsAreLeftAlone) {
  const FieldsRead read = readRecords(
      "# addfield <Name> A\n  \t# addfield <Name> B\nnonsense\nnumberoffields 9 \n"
      "  addfield <Name> C\n");
  EXPECT_EQ(read.errors, "");
  ASSERT_EQ(read.fields.size(), 1U);
  EXPECT_EQ(read.fields[0].name, "C");
}

TEST(FieldRecords, TheAnnouncedCountDoesNotMatter) {
  for (const char* count : {"0", "1", "5", "-3", "abc", "99999999999999999999"}) {
    const FieldsRead read = readRecords("numberoffields " + std::string(count) +
                                        "\naddfield <Name> A\naddfield <Name> B\n");
    EXPECT_EQ(read.errors, "");
    EXPECT_EQ(read.fields.size(), 2U);
  }
}

TEST(FieldRecords, FaultyLinesAreReportedAndSkipped) {
  const FieldsRead read = readRecords(
      "# comment\n\naddfield <Name> \"A\naddfield <Name> 'B\naddfield <Name> `C\n , \n"
      "addfield <Name> D\n");
  EXPECT_EQ(read.errors,
            "No arguments for command in line 2\n"
            "Missing matching \"\n"
            "Missing matching '\n"
            "Missing matching `\n"
            "No arguments for command in line 6\n");
  ASSERT_EQ(read.fields.size(), 1U);
  EXPECT_EQ(read.fields[0].name, "D");
}

TEST(FieldRecords, ABadRecordEndsTheReading) {
  const FieldsRead read = readRecords("addfield <Name> A\naddfield\naddfield <Name> B\n");
  EXPECT_EQ(read.errors, "Error in view file in line 2\n");
  EXPECT_EQ(read.fields.size(), 1U);
  EXPECT_EQ(readRecords("\nnumberoffields\naddfield <Name> B\n").errors,
            "No arguments for command in line 1\nError in view file in line 2\n");
}

TEST(ViewFileReader, SettingsAreRead) {
  const ViewRead read = parse(
      "setdateformat \"%d. %m. %Y\"\nsetusertitle \"M\xc3\xa4rz-Plan\"\nprecision 3\n"
      "periodfilename \"my periods.per\"\n"
      "setflags <ShowSystemTitle> \"False\" <RepeatLabels> \"True\" <DataInColumns> \"True\" "
      "<ShowEmptyRowsAndColumns> \"True\"\n"
      "defineprintoptions <FontSize> 8 <Title> \"Printed\"\n");
  EXPECT_EQ(read.errors, "");
  ASSERT_TRUE(read.parsed);
  const ReportView& view = read.parsed->view;
  EXPECT_EQ(view.dateFormat, "%d. %m. %Y");
  EXPECT_EQ(view.userTitle, "M\xc3\xa4rz-Plan");
  EXPECT_EQ(view.precision, 3);
  EXPECT_EQ(view.periodFileName, "my periods.per");
  EXPECT_TRUE(view.dataInColumns);
  EXPECT_TRUE(view.repeatLabels);
  EXPECT_TRUE(view.showEmptyRowsAndColumns);
  EXPECT_FALSE(view.showSystemTitle);
  EXPECT_EQ(view.printOptions.fontSize, 8);
  EXPECT_EQ(view.printOptions.title, "Printed");
}

TEST(ViewFileReader, WhatAFileDoesNotSayIsAsInAFreshView) {
  const ViewRead read = parse(kFields);
  ASSERT_TRUE(read.parsed);
  const ReportView& view = read.parsed->view;
  EXPECT_EQ(view.table, read.parsed->fields.get());
  EXPECT_EQ(listsOf(view), "x 0, y 1, data 2 3");
  EXPECT_EQ(view.userTitle, "[Default View Title]");
  EXPECT_EQ(view.precision, 10);
  EXPECT_TRUE(view.showSystemTitle);
  EXPECT_EQ(view.breaks.size(), 4U);
}

TEST(ViewFileReader, AFlagThatIsMissingFromItsRecordIsOff) {
  const ViewRead read = parse("setflags <DataInColumns> \"true\" <RepeatLabels> \"True\"\n");
  ASSERT_TRUE(read.parsed);
  EXPECT_FALSE(read.parsed->view.dataInColumns);
  EXPECT_TRUE(read.parsed->view.repeatLabels);
  EXPECT_FALSE(read.parsed->view.showSystemTitle);
}

TEST(ViewFileReader, APrecisionThatIsNoNumberIsZero) {
  for (const char* word : {"abc", "\"\"", "3.5x", "1.2.3"}) {
    const ViewRead read = parse("precision " + std::string(word) + "\n");
    ASSERT_TRUE(read.parsed);
    EXPECT_EQ(read.parsed->view.precision, 0) << word;
  }
}

TEST(ViewFileReader, APrecisionWithAFractionCountsAsItsIntegerPart) {
  const ViewRead read = parse("precision 2.7\n");
  EXPECT_EQ(read.errors, "");
  ASSERT_TRUE(read.parsed);
  EXPECT_EQ(read.parsed->view.precision, 2);
}

TEST(ViewFileLists, AFieldMovesFromItsListToTheNamedOne) {
  EXPECT_EQ(listsAfter("definexfields \"2\"\n"), "x 0 2, y 1, data 3");
  EXPECT_EQ(listsAfter("definehiddenfields \"3\" \"0\"\n"), "y 1, data 2, hidden 3 0");
  EXPECT_EQ(listsAfter("definezfields 1\n"), "x 0, z 1, data 2 3");
}

TEST(ViewFileLists, FieldsAreAppendedInArgumentOrder) {
  EXPECT_EQ(listsAfter("definedatafields 3 2\n"), "x 0, y 1, data 3 2");
  EXPECT_EQ(listsAfter("definexfields 0\ndefinexfields 1\ndefinexfields 0\n"), "x 1 0, data 2 3");
  EXPECT_EQ(listsAfter("definexfields 1 0 1\n"), "x 0 1, data 2 3");
  EXPECT_EQ(listsAfter("definezfields 0\ndefinexfields 0\ndefinezfields 0\n"),
            "y 1, z 0, data 2 3");
}

TEST(ViewFileLists, TheNoFieldMarkIsSkipped) {
  EXPECT_EQ(listsAfter("definexfields \"65535\"\n"), "x 0, y 1, data 2 3");
  EXPECT_EQ(listsAfter("definexfields 65535 2 65535\n"), "x 0 2, y 1, data 3");
}

TEST(ViewFileLists, AnEmptyListIsAcceptedSilently) {
  EXPECT_EQ(listsAfter("definexfields \ndefineyfields\ndefinezfields\ndefinedatafields\n"
                       "definehiddenfields\n"),
            "x 0, y 1, data 2 3");
}

TEST(ViewFileLists, AnIndexThatIsNoNumberIsZero) {
  EXPECT_EQ(listsAfter("definezfields abc\n"), "y 1, z 0, data 2 3");
  EXPECT_EQ(listsAfter("definezfields \"\"\n"), "y 1, z 0, data 2 3");
}

TEST(ViewFileLists, AnIndexWithAFractionCountsAsItsIntegerPart) {
  EXPECT_EQ(listsAfter("definexfields 1.0\n"), "x 0 1, data 2 3");
  EXPECT_EQ(listsAfter("definezfields \"2.9\" 65535.0\n"), "x 0, y 1, z 2, data 3");
  EXPECT_EQ(rejected("definexfields 4.5\n"), "Error in view file in line 5\n");
}

TEST(ViewFileLists, AnIndexOutsideTheFieldsIsABadRecord) {
  for (const char* index : {"4", "-1", "65534", "65536", "4294967296", "99999999999999999999"}) {
    EXPECT_EQ(rejected("definedatafields 2 " + std::string(index) + "\n"),
              "Error in view file in line 5\n")
        << index;
  }
}

TEST(ViewFileBreaks, FillTheBreaksOfTheViewOneAfterAnother) {
  const ViewRead read = parse(
      std::string(kFields) +
      "addbreak <FieldIndex> 1 <Name> \"Sub total\" <FirstBreak> 2 <Frequency> 2097152 "
      "<BreakAfter> \"True\" <Active> \"False\" <BreakOperations> \"Nothing\" \"First\" \"Sum\" "
      "\"Average\"\n"
      "addbreak <BreakOperations> \"Minimum\" \"nonsense\" <Active> \"True\" <Name> \"N\" "
      "<FieldIndex> \"3\"\n");
  EXPECT_EQ(read.errors, "");
  ASSERT_TRUE(read.parsed);
  const std::vector<BreakDefinition>& breaks = read.parsed->view.breaks;
  ASSERT_EQ(breaks.size(), 4U);
  EXPECT_EQ(breaks[0].fieldIndex, 1);
  EXPECT_EQ(breaks[0].name, "Sub total");
  EXPECT_EQ(breaks[0].firstBreak, 2);
  EXPECT_EQ(breaks[0].frequency, kBreakAtEnd);
  EXPECT_TRUE(breaks[0].breakAfter);
  EXPECT_FALSE(breaks[0].active);
  EXPECT_EQ(breaks[0].operations, (std::vector{BreakOperation::Nothing, BreakOperation::First,
                                               BreakOperation::Sum, BreakOperation::Average}));
  EXPECT_EQ(breaks[1].fieldIndex, 3);
  EXPECT_EQ(breaks[1].name, "N");
  EXPECT_TRUE(breaks[1].active);
  EXPECT_EQ(operationOf(breaks[1], 0), BreakOperation::Minimum);
  EXPECT_EQ(operationOf(breaks[1], 1), BreakOperation::Nothing);
  EXPECT_EQ(operationOf(breaks[1], 3), BreakOperation::Nothing);
  EXPECT_EQ(breaks[2].name, "Result");
}

TEST(ViewFileBreaks, SurplusBreaksAreIgnored) {
  EXPECT_EQ(accepted("addbreak <Name> 1\naddbreak <Name> 2\naddbreak <Name> 3\naddbreak <Name> 4\n"
                     "addbreak <FieldIndex> 4 <Name> 5\naddbreak\n"),
            "");
}

TEST(ViewFileBreaks, SurplusOperationsAreIgnored) {
  const ViewRead read =
      parse(std::string(kFields) + "addbreak <BreakOperations> Sum Sum Sum Sum Sum Sum\n");
  ASSERT_TRUE(read.parsed);
  EXPECT_EQ(read.parsed->view.breaks[0].operations.size(), 4U);
}

TEST(ViewFileBreaks, MissingTagsAreEmptyZeroAndFalse) {
  const ViewRead read = parse(std::string(kFields) + "addbreak <Frequency> often\n");
  ASSERT_TRUE(read.parsed);
  const BreakDefinition& definition = read.parsed->view.breaks[0];
  EXPECT_EQ(definition.name, "");
  EXPECT_EQ(definition.fieldIndex, 0);
  EXPECT_EQ(definition.frequency, 0);
  EXPECT_FALSE(definition.breakAfter);
  EXPECT_FALSE(definition.active);
}

TEST(ViewFileBreaks, NegativeCountsOfChangesAreKept) {
  const ViewRead read =
      parse(std::string(kFields) + "addbreak <Frequency> -4 <FirstBreak> -2147483648\n");
  ASSERT_TRUE(read.parsed);
  EXPECT_EQ(read.parsed->view.breaks[0].frequency, -4);
  EXPECT_EQ(read.parsed->view.breaks[0].firstBreak, -2147483647 - 1);
}

TEST(ViewFileBreaks, ABreakOfNoFieldIsABadRecord) {
  for (const char* index : {"4", "-1", "65535"}) {
    EXPECT_EQ(rejected("addbreak <FieldIndex> " + std::string(index) + "\n"),
              "Error in view file in line 5\n");
  }
}

TEST(ViewFileErrors, AnEmptyLineIsReportedByBothPassesAndReadingGoesOn) {
  const ViewRead read = parse("# comment\n\nprecision 4\n");
  EXPECT_EQ(read.errors, "No arguments for command in line 2\nNo arguments for command\n");
  ASSERT_TRUE(read.parsed);
  EXPECT_EQ(read.parsed->view.precision, 4);
}

TEST(ViewFileErrors, AnUnmatchedQuoteIsReportedByBothPassesAndItsLineSkipped) {
  const ViewRead read = parse("setusertitle \"Plan\nprecision 4\n");
  EXPECT_EQ(read.errors, "Missing matching \"\nMissing matching \"\n");
  ASSERT_TRUE(read.parsed);
  EXPECT_EQ(read.parsed->view.userTitle, "[Default View Title]");
  EXPECT_EQ(read.parsed->view.precision, 4);
}

TEST(ViewFileErrors, AFieldWithAnUnmatchedQuoteIsMissing) {
  const ViewRead read = parse("addfield <Name> \"A\naddfield <Name> B\n");
  EXPECT_EQ(read.errors, "Missing matching \"\nMissing matching \"\n");
  ASSERT_TRUE(read.parsed);
  EXPECT_EQ(read.parsed->fields->fieldCount(), 1U);
}

TEST(ViewFileErrors, AnUnknownCommandMakesTheReadingFail) {
  EXPECT_EQ(rejected("# comment\n  definewfields \"1\"\nprecision 2\n"),
            "Unknown command \"definewfields\" in line 6\nError in view file in line 6\n");
  EXPECT_EQ(rejected("Precision 2\n"),
            "Unknown command \"Precision\" in line 5\nError in view file in line 5\n");
  EXPECT_EQ(rejected("\"# a\" comment\n"),
            "Unknown command \"# a\" in line 5\nError in view file in line 5\n");
}

TEST(ViewFileErrors, ASettingWithoutItsArgumentIsABadRecord) {
  for (const char* command : {"setdateformat", "setusertitle", "precision", "periodfilename"}) {
    EXPECT_EQ(rejected(std::string(command) + " \n"), "Error in view file in line 5\n") << command;
  }
}

TEST(ViewFileErrors, ABadFieldRecordIsReportedOnceAndMakesTheReadingFail) {
  EXPECT_EQ(rejected("addfield\n"), "Error in view file in line 5\n");
  EXPECT_EQ(rejected("numberoffields\n"), "Error in view file in line 5\n");
}

TEST(ViewFileReader, ALongLineIsReadWhole) {
  // 5,000 bytes with the line feed.
  const std::string title = "setusertitle " + std::string(4986, 'x') + "\n";
  ASSERT_EQ(title.size(), 5000U);
  const ViewRead read = parse(title + "# " + title + "precision 4\n");
  EXPECT_EQ(read.errors, "");
  ASSERT_TRUE(read.parsed);
  EXPECT_EQ(read.parsed->view.userTitle, std::string(4986, 'x'));
  EXPECT_EQ(read.parsed->view.precision, 4);
}

TEST(ViewFileReader, ALineLongerThanABlockIsReadWhole) {
  const std::string title(1'000'000, 'x');
  const ViewRead read = parse("setusertitle " + title + "\r\nprecision 4\r\n");
  EXPECT_EQ(read.errors, "");
  ASSERT_TRUE(read.parsed);
  EXPECT_EQ(read.parsed->view.userTitle, title);
  EXPECT_EQ(read.parsed->view.precision, 4);
}

TEST(ViewFileErrors, ALongLineCountsAsOne) {
  const ViewRead read = parse("setusertitle " + std::string(5000, 'x') + "\nnonsense\n");
  EXPECT_FALSE(read.parsed);
  EXPECT_EQ(read.errors, "Unknown command \"nonsense\" in line 2\nError in view file in line 2\n");
}

TEST(ViewFileErrors, LinesMayEndInCarriageReturnAndLineFeed) {
  const ViewRead read = parse("precision 4\r\n# comment\r\nsetusertitle Plan\r\n");
  EXPECT_EQ(read.errors, "");
  ASSERT_TRUE(read.parsed);
  EXPECT_EQ(read.parsed->view.userTitle, "Plan");
}

}  // namespace
}  // namespace vrel
