#include "model/table_reader.h"

#include <gtest/gtest.h>

#include "support/tables.h"

namespace vrel {
namespace {

using test::tableFrom;
using test::tableOf;
using test::tuplesOf;
using Lines = std::vector<std::string>;

constexpr std::string_view kHeader =
    "FieldNames:\tItem\tQty\t\nFieldTypes:\tString\tNumber\t\nPeriodValues:\tP1\t\n";

Table withData(std::string_view data) {
  return tableFrom(std::string(kHeader) + std::string(data));
}

Lines namesOf(const Table& table) {
  Lines names;
  for (const FieldDef& field : table.fields) {
    names.push_back(field.name);
  }
  return names;
}

TEST(TableReader, ReadsFieldsAndTuples) {
  const Table table = withData("Bolt\t5\nNut\t7.5\n");
  EXPECT_TRUE(table.loaded);
  EXPECT_EQ(namesOf(table), (Lines{"Item", "Qty"}));
  EXPECT_EQ(tuplesOf(table), (Lines{"Bolt 5", "Nut 8"}));
  EXPECT_DOUBLE_EQ(table.cell(1, 1).number, 7.5);
}

TEST(TableReader, DeclaredTypesSetTypeAndClassification) {
  const Table table = tableOf("S:String N:Number B:Boolean D:Date P:Period X:Other", "P1 P2", {});
  struct Expected {
    FieldType type;
    Classification classification;
  };
  const std::vector<Expected> expected = {{FieldType::String, Classification::Key},
                                          {FieldType::Number, Classification::DataReadOnly},
                                          {FieldType::Boolean, Classification::DataReadOnly},
                                          {FieldType::String, Classification::Key},
                                          {FieldType::Period, Classification::Key},
                                          {FieldType::String, Classification::Key}};
  ASSERT_EQ(table.fieldCount(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(table.fields[i].type, expected[i].type) << i;
    EXPECT_EQ(table.fields[i].classification, expected[i].classification) << i;
  }
}

TEST(TableReader, TheLastDateOrPeriodFieldIsTheDateColumnAndTakesThePeriodNames) {
  const Table table = tableOf("D:Date P:Period N:Number", "W1 W2", {});
  EXPECT_EQ(table.dateColumn, 1);
  EXPECT_EQ(table.fields[0].periodNames.size(), 0);
  ASSERT_EQ(table.fields[1].periodNames.size(), 2);
  EXPECT_EQ(table.fields[1].periodNames.name(1), "W2");
}

TEST(TableReader, WithoutADateColumnAnyPeriodValuesLineIsAccepted) {
  EXPECT_TRUE(tableFrom("FieldNames:\tA\t\nFieldTypes:\tString\t\nPeriodValues:\n").loaded);
  EXPECT_EQ(tableFrom("FieldNames:\tA\t\nFieldTypes:\tString\t\nPeriodValues:\tx\n").dateColumn,
            -1);
}

TEST(TableReader, PeriodNamesEndWithAnEntryOfHashesWhichCounts) {
  const Table table =
      tableFrom("FieldNames:\tP\t\nFieldTypes:\tPeriod\t\nPeriodValues:\tW1\tW2\t### end\tW3\n");
  ASSERT_EQ(table.fields[0].periodNames.size(), 3);
  EXPECT_EQ(table.fields[0].periodNames.name(2), "### end");
}

TEST(TableReader, CommentAndEmptyLinesBeforeEachHeaderLineAreSkipped) {
  const Table table = tableFrom(
      "# made by the host\n\nFieldNames:\tA\t\n#\n\n\nFieldTypes:\tString\t\n# "
      "x\nPeriodValues:\tp\t"
      "\nv\n");
  EXPECT_TRUE(table.loaded);
  EXPECT_EQ(tuplesOf(table), Lines{"v"});
}

TEST(TableReader, KeywordsMayStandAnywhereInTheirLine) {
  EXPECT_TRUE(
      tableFrom("vFieldNames:\tA\t\n 1 FieldTypes:\tString\t\nxPeriodValues:\tp\t\n").loaded);
}

TEST(TableReader, ALastNameWithoutATabKeepsItsLineFeed) {
  const Table table =
      tableFrom("FieldNames:\tA\tB\nFieldTypes:\tString\tNumber\nPeriodValues:\tp\t\n");
  EXPECT_EQ(namesOf(table), (Lines{"A", "B\n"}));
  EXPECT_EQ(table.fields[1].type, FieldType::String) << "\"Number\\n\" is no type";
}

TEST(TableReader, AFirstNameEndsAtTheLineFeed) {
  EXPECT_EQ(namesOf(tableFrom("FieldNames:\tA\nFieldTypes:\tNumber\nPeriodValues:\tp\n")),
            Lines{"A"});
}

TEST(TableReader, NamesEndWithAnEntryOfHashes) {
  EXPECT_EQ(namesOf(tableFrom(
                "FieldNames:\tA\tB\t### three\tC\nFieldTypes:\tString\t### x\nPeriodValues:\tp\n")),
            (Lines{"A", "B"}));
}

TEST(TableReader, BrokenHeadersFail) {
  const Lines broken = {
      "",
      "# only a comment\n",
      "Item\tQty\n",
      "FieldNames:\n",
      "FieldNames:\t### none\nFieldTypes:\tString\t\nPeriodValues:\tp\n",
      "FieldNames:\tA\t\n",
      "FieldNames:\tA\t\nFieldTypes:\n",
      "FieldNames:\tA\t\nFieldTypes:\n\nPeriodValues:\tp\n",
      "FieldNames:\tA\t\nFieldTypes:\tString\t\n",
      "FieldNames:\tA\t\nFieldTypes:\tString\t\nA\n",
      "FieldNames:\tA\t\nFieldTypes:\tPeriod\t\nPeriodValues:\n",
  };
  for (const std::string& text : broken) {
    Table table;
    TextInput input = TextInput::fromMemory(text);
    EXPECT_FALSE(loadFromFile(table, input)) << text;
    EXPECT_FALSE(table.loaded) << text;
    EXPECT_EQ(table.tupleCount, 0U) << text;
  }
}

TEST(TableReader, AFailedLoadKeepsTheFieldsThatItCreated) {
  EXPECT_EQ(namesOf(tableFrom("FieldNames:\tA\tB\t\nno types\n")), (Lines{"A", "B"}));
}

TEST(TableReader, AFileThatEndsBehindItsHeaderIsAnEmptyTable) {
  const Table table = withData("");
  EXPECT_TRUE(table.loaded);
  EXPECT_EQ(table.tupleCount, 0U);
}

TEST(TableReader, ReadingClearsWhatWasLoaded) {
  Table table = withData("Bolt\t5\t### a,b\n");
  TextInput input = TextInput::fromMemory("FieldNames:\tX\t\n");
  EXPECT_FALSE(loadFromFile(table, input));
  EXPECT_FALSE(table.loaded);
  EXPECT_EQ(table.tupleCount, 0U);
  EXPECT_EQ(namesOf(table), Lines{"X"});
  EXPECT_EQ(table.dateColumn, -1);
}

TEST(TableReader, EmptyLinesAreSkippedAndTheLastCommentIsKept) {
  const Table table = withData("\n#  first \nBolt\t5\n\n# second\t \nNut\t1\n");
  EXPECT_EQ(table.comment, "# second");
  EXPECT_EQ(tuplesOf(table), (Lines{"Bolt 5", "Nut 1"}));
}

TEST(TableReader, ConsecutiveTabsShiftLaterValuesLeft) {
  const Table table = tableOf("A:String B:String N:Number", "p", {"x  5", " x y 6 "});
  EXPECT_EQ(tuplesOf(table), (Lines{"x 5 0", "x y 6"}));
}

TEST(TableReader, MissingEntriesLeaveFreshValues) {
  const Table table = tableOf("A:String P:Period N:Number B:Boolean", "W1 W2", {"x"});
  EXPECT_EQ(tuplesOf(table), Lines{"x W1 0 No"});
  EXPECT_EQ(withData("\t\nBolt\t5\n").tupleCount, 2U) << "a line of tabs alone is a tuple";
}

TEST(TableReader, NotesAreSplitAtCommasOutsideQuotes) {
  const Table table = withData("Bolt\t5\t### x,'y,z'\n");
  EXPECT_EQ(noteOf(table, 0, 0), "x");
  EXPECT_EQ(noteOf(table, 0, 1), "'y,z'");
  EXPECT_EQ(noteOf(table, 0, 2), "");
}

TEST(TableReader, NotesMayHoldTabsOtherQuotesAndBeFewOrMany) {
  const Table table =
      withData("A\t1\nB\t2\t### one\nC\t3\t### \"a,'b\",c\td,e\nD\t4\t### ,second\nE\t5\t### last");
  EXPECT_EQ(noteOf(table, 0, 0), "");
  EXPECT_EQ(noteOf(table, 1, 0), "one");
  EXPECT_EQ(noteOf(table, 1, 1), "");
  EXPECT_EQ(noteOf(table, 2, 0), "\"a,'b\"");
  EXPECT_EQ(noteOf(table, 2, 1), "c\td");
  EXPECT_EQ(noteOf(table, 3, 0), "");
  EXPECT_EQ(noteOf(table, 3, 1), "second");
  EXPECT_EQ(noteOf(table, 4, 0), "last") << "no line feed to remove";
}

TEST(TableReader, HashesEndTheValuesWhereverTheyStand) {
  const Table table = withData("Bolt\t### n1,n2\n");
  EXPECT_EQ(tuplesOf(table), Lines{"Bolt 0"});
  EXPECT_EQ(noteOf(table, 0, 1), "n2");
}

TEST(TableReaderDeathTest, ASurplusEntryAborts) {
  EXPECT_DEATH(withData("Bolt\t5\t6\n"),
               "loadFromFile: unexpected entry \"6\" behind the values of a tuple");
  EXPECT_DEATH(withData("Bolt\t5\t###x\n"), "unexpected entry \"###x\"");
  EXPECT_DEATH(withData("Bolt\t###\n"), "unexpected entry \"###\"");
}

TEST(TableReader, LinesLongerThanTheLineBufferAreSeveralLines) {
  const std::string name(8190, 'x');
  const Table table = withData(name + "\nshort\t1\n" + std::string(8191, 'y') + "zz\t2\n");
  ASSERT_EQ(table.tupleCount, 4U);
  EXPECT_EQ(table.fields[0].texts.text(table.cell(0, 0).text), name);
  EXPECT_EQ(table.fields[0].texts.text(table.cell(2, 0).text), std::string(8191, 'y'));
  EXPECT_EQ(table.fields[0].texts.text(table.cell(3, 0).text), "zz");
}

TEST(TableReader, CarriageReturnsBeforeLineFeedsDoNotCount) {
  const Table table = tableFrom(
      "FieldNames:\tA\tN\t\r\nFieldTypes:\tString\tNumber\t\r\nPeriodValues:\tp\t\r\n\r\nx\t5\t### "
      "n\r\n");
  EXPECT_EQ(tuplesOf(table), Lines{"x 5"});
  EXPECT_EQ(noteOf(table, 0, 0), "n");
}

TEST(TableReader, EqualTextsAreStoredOnce) {
  const Table table = withData("Bolt\t1\nNut\t2\nBolt\t3\n");
  EXPECT_EQ(table.cell(0, 0).text, table.cell(2, 0).text);
  EXPECT_NE(table.cell(0, 0).text, table.cell(1, 0).text);
  EXPECT_EQ(table.fields[0].texts.size(), 3U);
}

TEST(TableReader, AFileCutAnywhereNeverFailsHard) {
  const std::string whole = std::string(kHeader) + "Bolt\t5\t### a,'b\nNut\t6\t### c,d\n# end\n";
  const std::size_t header = kHeader.size();
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    const std::string cut = whole.substr(0, length);
    if (cut.ends_with("\t#") || cut.ends_with("\t##") || cut.ends_with("\t###")) {
      continue;  // A surplus entry that is no note list ends the process on purpose.
    }
    const Table table = tableFrom(cut);
    EXPECT_EQ(table.loaded, length >= header - std::string_view("\tP1\t\n").size()) << length;
  }
}

TEST(TableReader, BinaryInputIsJustValues) {
  std::string line;
  for (int byte = 1; byte < 256; ++byte) {
    if (byte != '\n' && byte != '\t' && byte != '#') {
      line += static_cast<char>(byte);
    }
  }
  const Table table = withData(line + "\n" + std::string("a\0b\t1\n", 6));
  EXPECT_EQ(table.tupleCount, 2U);
  EXPECT_EQ(table.fields[0].texts.text(table.cell(1, 0).text), std::string_view("a\0b", 3));
}

TEST(TableReader, ThousandsOfFieldsAreRead) {
  std::string names = "FieldNames:";
  std::string types = "FieldTypes:";
  for (int i = 0; i < 4000; ++i) {
    names += "\ta";
    types += "\tX";
  }
  const Table table = tableFrom(names + "\t\n" + types + "\t\nPeriodValues:\tp\t\nv\n");
  EXPECT_TRUE(table.loaded);
  EXPECT_EQ(table.fieldCount(), 4000U);
  EXPECT_EQ(table.tupleCount, 1U);
}

TEST(SettleTypes, ATextFieldWhoseValuesAreAllDatesBecomesADateField) {
  Table table = tableOf("Day:Date Item:String N:Number", "p", {"3/5/2014 a 1", "12/31/1999 b 2"});
  settleTypes(table);
  EXPECT_EQ(table.fields[0].type, FieldType::Date);
  EXPECT_EQ(table.fields[1].type, FieldType::String);
  EXPECT_EQ(table.fields[2].type, FieldType::Number);
  EXPECT_LT(table.cell(1, 0).time, table.cell(0, 0).time);
}

TEST(SettleTypes, OneValueThatIsNoDateKeepsTheField) {
  Table table = tableOf("Day:Date N:Number", "p", {"3/5/2014 1", "13/45/2014 2"});
  settleTypes(table);
  EXPECT_EQ(table.fields[0].type, FieldType::String);
  EXPECT_EQ(tuplesOf(table), (Lines{"3/5/2014 1", "13/45/2014 2"}));
}

TEST(SettleTypes, AMissingValueKeepsTheField) {
  Table table = tableOf("Item:String Day:String", "p", {"a 3/5/2014", "b"});
  settleTypes(table);
  EXPECT_EQ(table.fields[1].type, FieldType::String);
}

TEST(SettleTypes, APeriodFieldIsJudgedByTheNamesInUse) {
  Table table = tableOf("P:Period N:Number", "1/5/2014 2/5/2014 later", {"2/5/2014 1"});
  settleTypes(table);
  EXPECT_EQ(table.fields[0].type, FieldType::Date);
  Table other = tableOf("P:Period N:Number", "1/5/2014 later", {"later 1", "1/5/2014 2"});
  settleTypes(other);
  EXPECT_EQ(other.fields[0].type, FieldType::Period);
}

TEST(SettleTypes, APeriodFieldWithoutNamesStaysAsItIs) {
  Table table = tableOf("P:Period Q:Period N:Number", "W1", {"W1 W1 3"});
  settleTypes(table);
  EXPECT_EQ(table.fields[0].type, FieldType::Period) << "only the last one has names";
}

TEST(SettleTypes, AFieldWithoutTuplesStaysAsItIs) {
  Table table = tableOf("Day:Date N:Number", "p", {});
  settleTypes(table);
  EXPECT_EQ(table.fields[0].type, FieldType::String);
}

}  // namespace
}  // namespace vrel
