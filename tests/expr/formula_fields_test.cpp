#include "expr/formula_fields.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "expr/formula_state.h"
#include "expr/import_formulas.h"
#include "expr/recalculation.h"
#include "model/view_file.h"
#include "support/formulas.h"
#include "support/tables.h"
#include "support/views.h"

namespace vrel {
namespace {

using test::allFunctions;
using test::breakOf;
using test::listsOf;
using test::savedText;
using test::SilentNotice;
using test::tableOf;
using test::tuplesOf;
using test::viewOf;

using Lines = std::vector<std::string>;

// The name, "_" and a number.
MATCHER_P(IsNumbered, name, "") {
  const std::string start = std::string(name) + '_';
  return arg.starts_with(start) && arg.size() > start.size() &&
         arg.find_first_not_of("0123456789", start.size()) == std::string::npos;
}

Table planTable() {
  return tableOf("Item:String Week:Period Plan:Number Seen:Number", "W1 W2",
                 {"Bolt W1 10 1 ### a,b,c,d", "Bolt W2 20 2", "Gear W1 30 3"});
}

class FormulaFields : public testing::Test {
 protected:
  void recalculate() { recalculateTable(table, notice, scratch, allFunctions()); }
  int add(const FormulaFieldText& text) { return addFormulaField(view, text).value(); }
  void change(int field, const FormulaFieldText& text) {
    changeFormulaField(view, field, text, allFunctions());
  }

  // Name, formulas and classification of each formula field.
  Lines formulas() const {
    Lines lines;
    for (const FieldDef& field : table.fields) {
      if (field.isExpression()) {
        lines.push_back(field.name + "|" + field.expression.text + "|" +
                        field.inverseExpression.text + "|" +
                        std::string(classificationWord(field.classification)));
      }
    }
    return lines;
  }

  // Each break's field and the fields that it sums up.
  std::string breaks() const {
    std::string text;
    for (const BreakDefinition& each : view.breaks) {
      text += std::to_string(each.fieldIndex) + ":";
      for (int i = 0; i < static_cast<int>(table.fieldCount()); ++i) {
        text += operationOf(each, i) == BreakOperation::Sum ? std::to_string(i) : "";
      }
      text += " ";
    }
    return text;
  }

  // The saved view, read back over the same table and saved again.
  std::string savedAgain() {
    Table other = planTable();
    ReportView read = makeReportView(other, notice);
    FormatSettings format;
    std::string errorText;
    TextOutput errors = TextOutput::toMemory(errorText);
    EXPECT_TRUE(readViewFile(
        read, savedText(view), format, [](const char*) { return std::string(); }, notice, errors));
    EXPECT_EQ(errorText, "");
    return savedText(read);
  }

  Table table = planTable();
  ReportView view = viewOf(table, {0}, {1}, {}, {2, 3});
  SilentNotice notice;
  Cell scratch = emptyCell();
};

TEST_F(FormulaFields, AreAddedBehindAllOthersAtTheEndOfTheDataFields) {
  EXPECT_EQ(add({"Sum", "Plan+Seen", ""}), 4);
  EXPECT_EQ(listsOf(view), "x 0, y 1, data 2 3 4");
  recalculate();
  EXPECT_EQ(tuplesOf(table), (Lines{"Bolt W1 10 1 11", "Bolt W2 20 2 22", "Gear W1 30 3 33"}));
}

TEST_F(FormulaFields, AreReadOnlyWithoutAnInverseFormula) {
  add({"Sum", "Plan+Seen", ""});
  add({"Twice", "Plan*2", "Assign(#Plan, Twice/2)"});
  add({"None", "1", " _undefined_"});
  EXPECT_EQ(formulas(), (Lines{"Sum|Plan+Seen|_undefined_|dataReadOnly",
                               "Twice|Plan*2|Assign(#Plan, Twice/2)|dataReadWrite",
                               "None|1| _undefined_|dataReadWrite"}));
}

TEST_F(FormulaFields, BecomeEditableWhenAnInverseFormulaComesAndReadOnlyWhenItGoes) {
  const int field = add({"Twice", "Plan*2", ""});
  change(field, {"Twice", "Plan*2", "Assign(#Plan, Twice/2)"});
  EXPECT_EQ(table.field(field).classification, Classification::DataReadWrite);
  change(field, {"Twice", "Plan*2", " "});
  EXPECT_EQ(formulas(), (Lines{"Twice|Plan*2|_undefined_|dataReadOnly"}));
}

TEST_F(FormulaFields, StayAsTheUserHasThemWhileTheInverseFormulaStays) {
  const int field = add({"Twice", "Plan*2", "Assign(#Plan, Twice/2)"});
  table.field(field).classification = Classification::DataReadOnly;
  change(field, {"Twice", "2*Plan", "Assign(#Plan, Twice*0.5)"});
  EXPECT_EQ(table.field(field).classification, Classification::DataReadOnly);
  table.field(field).classification = Classification::Key;
  change(field, {"Twice", "2*Plan", ""});
  EXPECT_EQ(table.field(field).classification, Classification::Key);
}

TEST_F(FormulaFields, GetAnotherNameWhereAFieldHasItAlready) {
  add({"Plan", "1", ""});
  EXPECT_THAT(table.field(4).name, IsNumbered("Plan"));
  const int field = add({"Sum", "2", ""});
  change(field, {" Item ", "2", ""});
  EXPECT_THAT(table.field(field).name, IsNumbered("Item"));
  EXPECT_EQ(table.field(0).name, "Item");
}

TEST_F(FormulaFields, KeepTheirOwnName) {
  const int field = add({"Sum", "1", ""});
  change(field, {"Sum ", "2", ""});
  EXPECT_EQ(formulas(), (Lines{"Sum|2|_undefined_|dataReadOnly"}));
}

TEST_F(FormulaFields, TakeTheFormulasThatNameThemAlong) {
  const int sum = add({"Sum", "Plan+Seen", "Assign(#Plan, Sum-Seen)"});
  add({"Share", "Plan/Sum", ""});
  setHighlightFormula(view, 2, "IF(Sum>20, RED(), BLACK())");
  recalculate();
  change(sum, {"All in all", "Plan+Seen", "Assign(#Plan, Sum-Seen)"});
  EXPECT_EQ(formulas(),
            (Lines{"All in all|Plan+Seen|Assign(#Plan, 'All in all'-Seen)|dataReadWrite",
                   "Share|Plan/'All in all'|_undefined_|dataReadOnly"}));
  EXPECT_EQ(table.field(2).highlightExpression.text, "IF('All in all'>20, RED(), BLACK())");
  recalculate();
  EXPECT_EQ(table.cell(2, 5).number, 30.0 / 33.0);
  EXPECT_EQ(highlightOf(table, 2, 2), 1);
}

TEST_F(FormulaFields, LeaveFormulasAloneThatMeanAnotherFieldOfThatName) {
  const int field = add({"Copy", "1", ""});
  add({"User", "Plan+1", ""});
  table.field(field).name = "Plan";
  change(field, {"Goal", "1", ""});
  EXPECT_EQ(table.field(5).expression.text, "Plan+1");
}

TEST_F(FormulaFields, ReachFormulasThatNamedThemBeforeTheyWereThere) {
  add({"User", "Later+1", ""});
  recalculate();
  add({"Later", "5", ""});
  recalculate();
  EXPECT_EQ(table.cell(0, 4).number, 6);
}

TEST_F(FormulaFields, AreStoredAsAViewFileHoldsThem) {
  add({"Two\nlines", "\"Plan\" *\r\n2", "Assign(\"#Plan\", 1)"});
  setHighlightFormula(view, 2, "IF(\"Plan\"\n> 1, RED(), BLACK())");
  EXPECT_EQ(formulas(), (Lines{"Two lines|'Plan' *  2|Assign('#Plan', 1)|dataReadWrite"}));
  EXPECT_EQ(table.field(2).highlightExpression.text, "IF('Plan' > 1, RED(), BLACK())");
  EXPECT_EQ(savedAgain(), savedText(view));
}

TEST_F(FormulaFields, CannotBeStoredWithAnApostropheInQuotes) {
  EXPECT_FALSE(canStoreFormula("1 + \"Bob's plan\"", allFunctions()));
  EXPECT_TRUE(canStoreFormula("Bob's + \"Net Demand\"", allFunctions()));
}

TEST_F(FormulaFields, AreDeletedWithAllThatBelongsToThem) {
  const int sum = add({"Sum", "Plan+Seen", ""});
  add({"Share", "Plan/2", ""});
  view.axis(Axis::Z) = {4};
  view.axis(Axis::Data) = {5, 2, 3};
  view.breaks = {breakOf(4, 1, {}),
                 breakOf(0, 1, {{4, BreakOperation::Sum}, {5, BreakOperation::Sum}}),
                 breakOf(5, 1, {{2, BreakOperation::Sum}}),
                 breakOf(1, 0, {}),
                 breakOf(2, 0, {}),
                 breakOf(3, 0, {})};
  recalculate();
  EXPECT_TRUE(deleteFormulaField(view, sum));
  EXPECT_EQ(formulas(), (Lines{"Share|Plan/2|_undefined_|dataReadOnly"}));
  EXPECT_EQ(listsOf(view), "x 0, y 1, data 4 2 3");
  EXPECT_EQ(breaks(), "0:4 4:2 1: 2: 3: ");
  recalculate();
  EXPECT_EQ(tuplesOf(table), (Lines{"Bolt W1 10 1 5", "Bolt W2 20 2 10", "Gear W1 30 3 15"}));
}

TEST_F(FormulaFields, HaveOneBreakEach) {
  view.breaks = {breakOf(0, 1, {}), breakOf(0, 2, {}), breakOf(1, 1, {}), breakOf(2, 1, {})};
  add({"Sum", "1", ""});
  EXPECT_EQ(breaks(), "0: 0: 1: 2: 3: ");
  deleteFormulaField(view, 4);
  EXPECT_EQ(breaks(), "0: 1: 2: 3: ");
}

TEST_F(FormulaFields, LoseADoubledBreakWhereThereAreTooMany) {
  add({"Sum", "1", ""});
  view.breaks = {breakOf(0, 1, {}), breakOf(0, 2, {}), breakOf(1, 1, {}), breakOf(2, 1, {}),
                 breakOf(3, 1, {})};
  deleteFormulaField(view, 4);
  EXPECT_EQ(breaks(), "0: 1: 2: 3: ");
  EXPECT_EQ(view.breaks[0].frequency, 1);
}

TEST_F(FormulaFields, LeaveTheNotesOfTheOthersAlone) {
  add({"Sum", "1", ""});
  add({"Share", "2", ""});
  deleteFormulaField(view, 4);
  EXPECT_EQ(noteOf(table, 0, 3), "d");
  EXPECT_EQ(noteOf(table, 0, 4), "");
}

TEST_F(FormulaFields, MakeNotedPlacesOfValuesVoid) {
  const std::uint64_t before = table.arrangement;
  const int field = add({"Sum", "1", ""});
  const std::uint64_t added = table.arrangement;
  EXPECT_NE(added, before);
  change(field, {"Sum", "2", ""});
  EXPECT_EQ(table.arrangement, added);
  deleteFormulaField(view, field);
  EXPECT_NE(table.arrangement, added);
}

TEST_F(FormulaFields, LeaveTheTuplesInTheirOrder) {
  recalculate();
  const std::vector<int> sortedBy = table.sortedBy;
  EXPECT_FALSE(sortedBy.empty());
  add({"Sum", "1", ""});
  EXPECT_EQ(table.sortedBy, sortedBy);
}

TEST_F(FormulaFields, AreDeletedOnlyWhereTheTableStillFitsItsViewFiles) {
  const int field = add({"Sum", "1", ""});
  EXPECT_TRUE(canDeleteField(table, field));
  EXPECT_FALSE(canDeleteField(table, 3));
  table.notedFields = 5;
  EXPECT_FALSE(canDeleteField(table, field));
}

TEST_F(FormulaFields, KnowWhichFormulasNameThem) {
  const int sum = add({"Sum", "Plan+Seen", "Assign(#Plan, Sum-Seen)"});
  add({"Share", "Plan/Sum", ""});
  add({"Back", "1", "Assign(#Plan, Prev(#Sum))"});
  setHighlightFormula(view, 2, "IF(Sum>20, RED(), BLACK())");
  EXPECT_EQ(fieldsNaming(table, sum, allFunctions()), (Lines{"Plan", "Share", "Back"}));
  EXPECT_EQ(fieldsNaming(table, 5, allFunctions()), Lines());
}

TEST_F(FormulaFields, ShowWhatTheUserWrote) {
  const int field = add({"Sum", "Plan+Seen", ""});
  EXPECT_EQ(formulaFieldText(table.field(field)), (FormulaFieldText{"Sum", "Plan+Seen", ""}));
  EXPECT_EQ(highlightText(table.field(field)), "BLACK()");
  EXPECT_FALSE(isHighlighted(table.field(field)));
  setHighlightFormula(view, field, " RED() ");
  EXPECT_TRUE(isHighlighted(table.field(field)));
  setHighlightFormula(view, field, "  ");
  EXPECT_EQ(table.field(field).highlightExpression.text, "BLACK()");
  table.field(field).highlightExpression.text = "_undefined_";
  EXPECT_EQ(highlightText(table.field(field)), "BLACK()");
}

TEST_F(FormulaFields, ReadBackFromASavedView) {
  add({"All in all", "Plan+Seen", "Assign(#Plan, 'All in all'-Seen)"});
  add({"Share", "Plan/'All in all:-1'", ""});
  change(4, {"Sum", "Plan+Seen", ""});
  EXPECT_EQ(savedAgain(), savedText(view));
}

class FormulaStates : public FormulaFields {};

TEST_F(FormulaStates, AreEqualAsLongAsNothingChanges) {
  add({"Sum", "1", ""});
  const FormulaState before = formulaState(view);
  EXPECT_TRUE(before == formulaState(view));
  view.breaks[0].frequency = 3;
  EXPECT_FALSE(before == formulaState(view));
  view.breaks[0].frequency = before.breaks[0].frequency;
  setHighlightFormula(view, 0, "RED()");
  EXPECT_FALSE(before == formulaState(view));
}

TEST_F(FormulaStates, BringChangedTextsBack) {
  const int sum = add({"Sum", "Plan+Seen", ""});
  setHighlightFormula(view, 2, "IF(Sum>20, RED(), BLACK())");
  const std::string saved = savedText(view);
  const FormulaState before = formulaState(view);
  change(sum, {"Total", "Plan", "Assign(#Plan, Total)"});
  setHighlightFormula(view, 2, "BLUE()");
  EXPECT_FALSE(movesColumns(view, before));
  EXPECT_TRUE(restoreFormulas(view, before));
  EXPECT_EQ(savedText(view), saved);
}

TEST_F(FormulaStates, BringDeletedFieldsBackAndTakeNewOnesAway) {
  add({"Sum", "Plan+Seen", ""});
  add({"Share", "Plan/2", ""});
  view.axis(Axis::Z) = {4};
  view.axis(Axis::Data) = {5, 2, 3};
  view.breaks[0].operations = {BreakOperation::Nothing, BreakOperation::Nothing,
                               BreakOperation::Nothing, BreakOperation::Nothing,
                               BreakOperation::Sum};
  recalculate();
  const Lines tuples = tuplesOf(table);
  const std::string saved = savedText(view);
  const FormulaState before = formulaState(view);
  deleteFormulaField(view, 4);
  EXPECT_TRUE(movesColumns(view, before));
  EXPECT_TRUE(restoreFormulas(view, before));
  add({"New", "7", ""});
  EXPECT_TRUE(restoreFormulas(view, before));
  recalculate();
  EXPECT_EQ(savedText(view), saved);
  EXPECT_EQ(tuplesOf(table), tuples);
}

TEST_F(FormulaStates, OfOtherPlainFieldsAreRefused) {
  const FormulaState before = formulaState(view);
  table = tableOf("Item:String Qty:Number", "", {"Bolt 1"});
  view = viewOf(table, {0}, {}, {}, {1});
  const std::string saved = savedText(view);
  EXPECT_FALSE(restoreFormulas(view, before));
  EXPECT_EQ(savedText(view), saved);
}

class ImportedFormulas : public FormulaFields {
 protected:
  static std::vector<FieldDef> fieldsOf(std::string_view records) {
    std::string errorText;
    TextOutput errors = TextOutput::toMemory(errorText);
    return readFieldRecords(records, errors);
  }
  bool import(std::string_view records) {
    return importFormulaFields(view, fieldsOf(records), allFunctions());
  }
};

TEST_F(ImportedFormulas, TakeThePlaceOfThoseOfTheSameNameAndAreAddedElse) {
  add({"Sum", "Plan+Seen", ""});
  setHighlightFormula(view, 4, "BLUE()");
  EXPECT_TRUE(
      import("addfield <Name> Item <Type> string\n"
             "addfield <Name> Sum <Type> expression <Expression> Plan*3 <InverseExpression> "
             "\"Assign(#Plan, Sum/3)\" <HighlightExpression> GREEN()\n"
             "addfield <Name> Extra <Type> expression <Expression> Sum+1 <InverseExpression> "
             "_undefined_ <HighlightExpression> RED()\n"));
  EXPECT_EQ(formulas(), (Lines{"Sum|Plan*3|Assign(#Plan, Sum/3)|dataReadWrite",
                               "Extra|Sum+1|_undefined_|dataReadOnly"}));
  EXPECT_EQ(table.field(4).highlightExpression.text, "BLUE()");
  EXPECT_EQ(table.field(5).highlightExpression.text, "RED()");
  EXPECT_EQ(listsOf(view), "x 0, y 1, data 2 3 4 5");
  recalculate();
  EXPECT_EQ(tuplesOf(table)[0], "Bolt W1 10 1 30 31");
}

TEST_F(ImportedFormulas, AreNamedOtherwiseWhereAPlainFieldHasTheirName) {
  EXPECT_TRUE(
      import("addfield <Name> Plan <Type> expression <Expression> 5\n"
             "addfield <Name> User <Type> expression <Expression> Plan+1\n"));
  const std::string name = table.field(4).name;
  EXPECT_THAT(name, IsNumbered("Plan"));
  EXPECT_EQ(table.field(5).expression.text, name + "+1");
}

TEST_F(ImportedFormulas, OfOneNameAreOneField) {
  EXPECT_TRUE(
      import("addfield <Name> New <Type> expression <Expression> 5\n"
             "addfield <Name> New <Type> expression <Expression> 6\n"));
  EXPECT_EQ(formulas(), (Lines{"New|6|_undefined_|dataReadOnly"}));
}

TEST_F(ImportedFormulas, OfKnownFieldsMoveNothing) {
  add({"Sum", "Plan+Seen", ""});
  const std::uint64_t before = table.arrangement;
  EXPECT_TRUE(import("addfield <Name> Sum <Type> expression <Expression> 5\n"));
  EXPECT_EQ(table.arrangement, before);
}

TEST_F(ImportedFormulas, AreLookedForInTheFile) {
  EXPECT_FALSE(hasFormulaFields(fieldsOf("addfield <Name> Item <Type> string\n")));
  EXPECT_TRUE(hasFormulaFields(fieldsOf("addfield <Name> Sum <Type> expression\n")));
  EXPECT_FALSE(hasCommonFields(table, fieldsOf("addfield <Name> Sum <Type> expression\n")));
  EXPECT_TRUE(hasCommonFields(table, fieldsOf("addfield <Name> Plan <Type> expression\n")));
}

TEST_F(ImportedFormulas, OfHighlightingReachTheFieldsThatTheFileHas) {
  add({"Sum", "1", ""});
  setHighlightFormula(view, 0, "PINK()");
  setHighlightFormula(view, 3, "PINK()");
  importHighlighting(
      view, fieldsOf("addfield <Name> Plan <Type> number <HighlightExpression> RED()\n"
                     "addfield <Name> Seen <Type> number\n"
                     "addfield <Name> Sum <Type> number <HighlightExpression> \"IF(Sum,1,2)\"\n"));
  Lines texts;
  for (const FieldDef& field : table.fields) {
    texts.push_back(field.highlightExpression.text);
  }
  EXPECT_EQ(texts, (Lines{"PINK()", "BLACK()", "RED()", "BLACK()", "IF(Sum,1,2)"}));
}

}  // namespace
}  // namespace vrel
