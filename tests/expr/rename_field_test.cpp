#include "expr/rename_field.h"

#include <gtest/gtest.h>

#include "support/formulas.h"

namespace vrel {
namespace {

using test::allFunctions;
using test::parsed;

using Names = std::vector<std::string>;

std::string renamed(std::string_view text, std::string_view from, std::string_view to) {
  return renamedText(text, from, to, allFunctions());
}

// "name", "#name" or "name offset", each with what it was cut from.
Names mentionsIn(std::string_view text) {
  Names found;
  for (const FieldMention& each : fieldMentions(text, allFunctions())) {
    found.push_back(std::string(each.isSymbol ? "#" : "")
                        .append(each.name)
                        .append(each.offset.empty() ? "" : " ")
                        .append(each.offset)
                        .append("|")
                        .append(text.substr(each.start, each.length)));
  }
  return found;
}

TEST(FieldMentions, AreWordsQuotedNamesAndTextArguments) {
  EXPECT_EQ(mentionsIn("Plan + 'Net Demand:-1' * Prev(#Plan, \"Net Demand\") - Stock:#2"),
            (Names{"Plan|Plan", "Net Demand :-1|'Net Demand:-1'", "#Plan|#Plan",
                   "Net Demand|\"Net Demand\"", "Stock :#2|Stock:#2"}));
  EXPECT_EQ(mentionsIn("Prev('#Net Demand')"), (Names{"#Net Demand|'#Net Demand'"}));
}

TEST(FieldMentions, AreNeitherNumbersNorOperatorsNorFunctions) {
  EXPECT_EQ(mentionsIn("12.5e3 * SUM(1, 2) AND 3 XOR MAX (4, 5)"), Names());
}

TEST(FieldMentions, AreReadOutOfTextsThatAreNoFormulas) {
  EXPECT_EQ(mentionsIn("Plan + + (Seen 'x"), (Names{"Plan|Plan", "Seen|Seen"}));
  EXPECT_EQ(mentionsIn("!Plan :-1"), (Names{"Plan|Plan", " :-1|:-1"}));
  EXPECT_EQ(mentionsIn(""), Names());
}

TEST(RenamedText, HasTheNewNameInThePlaceOfTheOldOne) {
  EXPECT_EQ(renamed("Plan*2+Planned-Plan", "Plan", "Goal"), "Goal*2+Planned-Goal");
  EXPECT_EQ(renamed("IF(Plan>3,Plan,0)", "Plan", "Goal"), "IF(Goal>3,Goal,0)");
  EXPECT_EQ(renamed("plan + Plan", "Plan", "Goal"), "plan + Goal");
}

TEST(RenamedText, KeepsEverythingElseAsItIsWritten) {
  EXPECT_EQ(renamed("  ( Plan\t* 2.50 ) ", "Plan", "Goal"), "  ( Goal\t* 2.50 ) ");
  EXPECT_EQ(renamed("\"Seen\" + Plan", "Plan", "Goal"), "\"Seen\" + Goal");
  EXPECT_EQ(renamed("Seen * 2", "Plan", "Goal"), "Seen * 2");
}

TEST(RenamedText, QuotesANameThatHoldsADelimiter) {
  EXPECT_EQ(renamed("Plan*2", "Plan", "New Plan"), "'New Plan'*2");
  for (const char delimiter : std::string("-+/*!<>=(), \t")) {
    const std::string name = std::string("A") + delimiter + "B";
    EXPECT_EQ(renamed("Plan+1", "Plan", name), "'" + name + "'+1");
    EXPECT_EQ(parsed("'" + name + "'+1"), "(+ '" + name + "' 1)");
  }
}

TEST(RenamedText, QuotesWhatWouldBeReadOtherwise) {
  EXPECT_EQ(renamed("Plan+1", "Plan", "AND"), "'AND'+1");
  EXPECT_EQ(renamed("Plan+1", "Plan", "2nd"), "'2nd'+1");
  EXPECT_EQ(renamed("Plan+1", "Plan", "%"), "'%'+1");
  EXPECT_EQ(renamed("Plan+1", "Plan", ".5"), "'.5'+1");
}

TEST(RenamedText, QuotesAFunctionsNameSoThatItCanBeRenamedAgain) {
  EXPECT_EQ(renamed("Plan+Plan:-1", "Plan", "MAX"), "'MAX'+'MAX:-1'");
  EXPECT_EQ(renamed("Prev(#Plan)", "Plan", "MAX"), "Prev(#MAX)");
  EXPECT_EQ(renamed("'MAX'+'MAX:-1'", "MAX", "Plan"), "Plan+Plan:-1");
}

TEST(RenamedText, TakesTheQuotesOffANameThatNeedsNone) {
  EXPECT_EQ(renamed("'Net Demand' + \"Net Demand\"", "Net Demand", "Demand"), "Demand + Demand");
}

TEST(RenamedText, HasTheOtherQuotesAroundAnApostrophe) {
  EXPECT_EQ(renamed("Plan+1", "Plan", "Bob's plan"), "\"Bob's plan\"+1");
  EXPECT_EQ(renamed("Plan+1", "Plan", "Bob's"), "Bob's+1");
  EXPECT_EQ(renamed("Plan+1", "Plan", "'s"), "\"'s\"+1");
}

TEST(RenamedText, KeepsOffsets) {
  EXPECT_EQ(renamed("Plan:-1 + Plan:#2 + Plan:", "Plan", "Goal"), "Goal:-1 + Goal:#2 + Goal:");
  EXPECT_EQ(renamed("Plan:-1", "Plan", "New Plan"), "'New Plan:-1'");
  EXPECT_EQ(renamed("'Net Demand:#1'", "Net Demand", "Demand"), "Demand:#1");
  EXPECT_EQ(parsed("'New Plan:-1'"), "'New Plan:-1'");
}

TEST(RenamedText, KeepsTheSignOfTextArguments) {
  EXPECT_EQ(renamed("Prev(#Plan, Plan)", "Plan", "Goal"), "Prev(#Goal, Goal)");
  EXPECT_EQ(renamed("Prev(#Plan)", "Plan", "New Plan"), "Prev('#New Plan')");
  EXPECT_EQ(renamed("Prev('#New Plan')", "New Plan", "Plan"), "Prev(#Plan)");
}

TEST(RenamedText, LeavesFunctionsAlone) {
  EXPECT_EQ(renamed("MAX(MAX, Plan)", "MAX", "Top"), "MAX(MAX, Plan)");
  EXPECT_EQ(renamed("'MAX' (1, 2) + 'MAX'", "MAX", "Top"), "'MAX' (1, 2) + Top");
  EXPECT_EQ(renamed("Prev(#MAX)", "MAX", "Top"), "Prev(#Top)");
}

TEST(RenamedText, SkipsNumbers) {
  EXPECT_EQ(renamed("12 + '12'", "12", "Dozen"), "12 + Dozen");
}

TEST(RenameInFormulas, ReachesAllThreeKindsOfFormulas) {
  std::vector<FieldDef> fields(2);
  fields[0].expression.text = "Plan*2";
  fields[0].inverseExpression.text = "Assign(#Plan, 1)";
  fields[1].highlightExpression.text = "IF(Plan>1,RED(),BLACK())";
  renameInFormulas(fields, "Plan", "Goal", allFunctions());
  EXPECT_EQ(fields[0].expression.text, "Goal*2");
  EXPECT_EQ(fields[0].inverseExpression.text, "Assign(#Goal, 1)");
  EXPECT_EQ(fields[1].highlightExpression.text, "IF(Goal>1,RED(),BLACK())");
}

TEST(UsableNames, CanBeReadAndSaved) {
  for (const char* name : {"Plan", "Net Demand", "Bob's", "AND", "2nd", "a%b", "SUM", "Größe"}) {
    EXPECT_TRUE(isUsableName(name)) << name;
    EXPECT_EQ(mentionsIn(writtenName(name, allFunctions(), true)),
              Names{"#" + std::string(name) + "|" + writtenName(name, allFunctions(), true)});
  }
  EXPECT_TRUE(isUsableName(std::string(127, 'n')));
}

TEST(UsableNames, HoldNothingThatFormulasOrViewFilesTakeOtherwise) {
  for (const char* name : {"", "a:b", "say \"so\"", "Bob's plan", "'s", "#Plan"}) {
    EXPECT_FALSE(isUsableName(name)) << name;
  }
  EXPECT_FALSE(isUsableName(std::string(128, 'n')));
}

TEST(Mentions, AreFoundWhateverTheirForm) {
  EXPECT_TRUE(mentions("Prev(#Plan)", "Plan", allFunctions()));
  EXPECT_TRUE(mentions("1 + 'Plan:-1'", "Plan", allFunctions()));
  EXPECT_FALSE(mentions("Planned + plan", "Plan", allFunctions()));
}

}  // namespace
}  // namespace vrel
