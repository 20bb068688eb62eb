#include "output/translate.h"

#include <gtest/gtest.h>

#include "support/tables.h"

namespace vrel {
namespace {

/// Two keys, three values; the demand of the nut in February has no note.
Table notedTable() {
  return test::tableFrom(
      "FieldNames:\tItem\tMonth\tDemand\tSupply\tActive\t\n"
      "FieldTypes:\tString\tPeriod\tNumber\tNumber\tBoolean\t\n"
      "PeriodValues:\tJan\tFeb\t\n"
      "Nut\tFeb\t1\t2\ty\t### k1,k2,,n2,n3\n"
      "Bolt\tJan\t3\t4\tn\t### ,,b1,'b,2',b3\n"
      "Nut\tJan\t5\t6\ty\n");
}

struct Translation {
  std::string output;
  std::string warnings;
};

Translation translated(Table& table, std::string_view records) {
  Translation result;
  TextInput input = TextInput::fromMemory(std::string(records));
  TextOutput output = TextOutput::toMemory(result.output);
  TextOutput errors = TextOutput::toMemory(result.warnings);
  translate(table, input, output, errors);
  output.flush();
  errors.flush();
  return result;
}

Translation translated(std::string_view records) {
  Table table = notedTable();
  return translated(table, records);
}

TEST(Translate, WritesNoteAndNewTextOfEachValueField) {
  const Translation result = translated("Bolt\tJan\t30\t40\tyes\n");
  EXPECT_EQ(result.output, "b1 \"30\"\n'b,2' \"40\"\nb3 \"yes\"\n");
  EXPECT_EQ(result.warnings, "");
}

TEST(Translate, ValuesWithoutANoteWriteNothing) {
  EXPECT_EQ(translated("Nut\tFeb\t10\t20\tn\n").output, "n2 \"20\"\nn3 \"n\"\n");
  EXPECT_EQ(translated("Nut\tJan\t10\t20\tn\n").output, "");
}

TEST(Translate, FindsTuplesOfATableInAnyOrder) {
  Table table = notedTable();
  const Translation result =
      translated(table, "Nut\tFeb\t1\t2\t3\nBolt\tJan\t4\t5\t6\nNut\tFeb\t7\t8\t9\n");
  EXPECT_EQ(result.output,
            "n2 \"2\"\nn3 \"3\"\nb1 \"4\"\n'b,2' \"5\"\nb3 \"6\"\nn2 \"8\"\nn3 \"9\"\n");
  EXPECT_EQ(test::tuplesOf(table),
            (std::vector<std::string>{"Bolt Jan 3 4 No", "Nut Jan 5 6 Yes", "Nut Feb 1 2 Yes"}));
}

TEST(Translate, CommentLinesOnlyCount) {
  const Translation result = translated("# a comment\n### too\nshort\n");
  EXPECT_EQ(result.warnings, "Translate: line 3, warning - Missing column(s)..\n");
  EXPECT_EQ(result.output, "");
}

TEST(Translate, TooFewColumnsSkipTheLine) {
  const Translation result = translated("Bolt\tJan\t30\t40\n\nBolt\tJan\t1\t2\t3\n");
  EXPECT_EQ(result.warnings,
            "Translate: line 1, warning - Missing column(s)..\n"
            "Translate: line 2, warning - Missing column(s)..\n");
  EXPECT_EQ(result.output, "b1 \"1\"\n'b,2' \"2\"\nb3 \"3\"\n");
}

TEST(Translate, ExtraColumnsAreIgnoredWithAWarning) {
  const Translation result = translated("Bolt\tJan\t30\t40\tyes\tmore\tyet more\n");
  EXPECT_EQ(result.warnings, "Translate: line 1, warning - Ignoring extra column(s)..\n");
  EXPECT_EQ(result.output, "b1 \"30\"\n'b,2' \"40\"\nb3 \"yes\"\n");
}

TEST(Translate, UnknownKeysSkipTheLine) {
  const Translation result = translated("Screw\tJan\t1\t2\t3\nBolt\tFeb\t1\t2\t3\n");
  EXPECT_EQ(result.warnings,
            "Translate: line 1, warning - Unknown key value(s) - record ignored..\n"
            "Translate: line 2, warning - Unknown key value(s) - record ignored..\n");
  EXPECT_EQ(result.output, "");
}

TEST(Translate, UnknownKeyTextsAreNotAddedToTheTable) {
  Table table = notedTable();
  const std::uint32_t texts = table.fields[0].texts.size();
  translated(table, "Screw\tJan\t1\t2\t3\n");
  EXPECT_EQ(table.fields[0].texts.size(), texts);
}

TEST(Translate, AnUnknownPeriodIsTheFirst) {
  EXPECT_EQ(translated("Bolt\tMay\t30\t40\tyes\n").output, "b1 \"30\"\n'b,2' \"40\"\nb3 \"yes\"\n");
}

TEST(Translate, RunsOfSeparatorsCountAsOne) {
  EXPECT_EQ(translated("\tBolt\t\tJan\t30\t\t\t40\tyes\t\n").output,
            "b1 \"30\"\n'b,2' \"40\"\nb3 \"yes\"\n");
}

TEST(Translate, AColumnOfThreeHashesEndsTheLineAndCounts) {
  EXPECT_EQ(translated("Bolt\tJan\t###\t40\tyes\n").warnings,
            "Translate: line 1, warning - Missing column(s)..\n");
  const Translation last = translated("Bolt\tJan\t30\t40\t###x\tmore\n");
  EXPECT_EQ(last.warnings, "");
  EXPECT_EQ(last.output, "b1 \"30\"\n'b,2' \"40\"\nb3 \"###x\"\n");
  EXPECT_EQ(translated("Bolt\tJan\t30\t40\tyes\t### note\tmore\n").warnings,
            "Translate: line 1, warning - Ignoring extra column(s)..\n");
}

TEST(Translate, ALineMayLackItsLineFeed) {
  EXPECT_EQ(translated("Bolt\tJan\t30\t40\tyes").output, "b1 \"30\"\n'b,2' \"40\"\nb3 \"yes\"\n");
}

TEST(Translate, ALongLineIsReadInPiecesThatCountAsLines) {
  const std::string record = "Bolt\tJan\t30\t40\tyes\n";
  const std::string padding(2047 - record.size() + 1, '\t');
  EXPECT_EQ(translated(padding + record).warnings,
            "Translate: line 2, warning - Missing column(s)..\n");
  EXPECT_EQ(translated(padding + record).output, "b1 \"30\"\n'b,2' \"40\"\nb3 \"yes\"\n");
  EXPECT_EQ(translated("x" + std::string(2046, '\t') + record + "short\n").warnings,
            "Translate: line 1, warning - Missing column(s)..\n"
            "Translate: line 3, warning - Missing column(s)..\n");
}

TEST(Translate, NoInputGivesNoOutput) {
  const Translation result = translated("");
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.warnings, "");
}

TEST(Translate, AnEmptyTableKnowsNoKeys) {
  Table table = test::tableOf("Item:String Demand:Number", "x", {});
  EXPECT_EQ(translated(table, "Bolt\t1\n").warnings,
            "Translate: line 1, warning - Unknown key value(s) - record ignored..\n");
}

TEST(Translate, NumberKeysAreComparedByValue) {
  Table table = test::tableFrom(
      "FieldNames:\tSize\tDemand\t\nFieldTypes:\tNumber\tNumber\t\nPeriodValues:\tx\t\n"
      "1000\t5\t### ,s1\n");
  table.fields[0].classification = Classification::Key;
  EXPECT_EQ(translated(table, "1,000.0\t7\n").output, "s1 \"7\"\n");
}

}  // namespace
}  // namespace vrel
