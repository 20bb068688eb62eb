#include "expr/fill_cells.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "expr/formula.h"
#include "model/report_layout.h"
#include "support/edited_table.h"
#include "support/tables.h"

namespace vrel {
namespace {

using test::gridLines;
using test::tuplesOf;
using testing::ElementsAre;
using testing::HasSubstr;

// A report with two items in the rows, three periods in the columns and the data down the rows: two
// label columns. Item B has no value in period P2.
class FillCells : public test::EditedTable {
 protected:
  FillCells()
      : EditedTable("Item:String Period:Period Qty:Number Cost:Number", "P1 P2 P3",
                    {"A P1 1 7 ### a,b,a1,c1", "A P2 2 7 ### ,,a2", "A P3 3 7",
                     "B P1 10 7 ### ,,b1", "B P3 30 7"},
                    {{"Twice", "2 * Qty", "Assign(#Qty, Twice / 2)"}}) {
    made_.table.fields[3].classification = Classification::DataReadOnly;
    setText(made_.table.fields[2].highlightExpression, "IF(Qty > 8, RED(), BLACK())");
    view_ = test::viewOf(made_.table, {0}, {1}, {}, {2, 3, 4});
  }

  bool fill(FillArea area, int row, int column, std::string_view text) {
    const ReportGrid grid = layOut(view_);
    outcome_ = fillCells({.area = area, .row = row, .column = column, .text = text}, editor_, grid);
    return outcome_.has_value();
  }

  // How many cells took the text of the last fill, and how many refused it.
  std::string counts() const {
    return std::to_string(outcome_->filled) + " filled, " + std::to_string(outcome_->refused) +
           " refused";
  }

  std::optional<FillOutcome> outcome_;

  std::vector<std::string> lines() { return gridLines(layOut(view_)); }
};

// A report of one row over a text, a boolean and a date.
class EditedFields : public test::EditedTable {
 public:
  EditedFields() : EditedTable("Item:String On:Boolean Day:String", "", {"a No 1/2/2014"}, {}) {
    for (FieldDef& field : made_.table.fields) {
      field.classification = Classification::DataReadWrite;
    }
    view_ = test::viewOf(made_.table, {0}, {}, {}, {1, 2});
    view_.dataInColumns = true;
  }

  // The tuple after one of the columns was filled.
  std::string filled(int column, std::string_view text) {
    fillCells({.area = FillArea::Column, .row = 1, .column = column, .text = text}, editor_,
              layOut(view_));
    const std::string day = formatValue(made_.table.value(0, 2), format_, Quoting::None);
    return "a " + formatValue(made_.table.value(0, 1), format_, Quoting::None) + " " + day;
  }

 private:
  void TestBody() override {}

  FormatSettings format_{.precision = 0, .dateFormat = "%Y-%m-%d"};
};

TEST_F(FillCells, OfARowSetsItsCells) {
  EXPECT_TRUE(fill(FillArea::Row, 1, 2, "4"));
  EXPECT_THAT(lines(), ElementsAre("Item| |P1|P2|P3", "A|Qty|4|4|4", "|Cost|7|7|7", "|Twice|8|8|8",
                                   "B|Qty|10||30", "|Cost|7||7", "|Twice|20||60"));
}

TEST_F(FillCells, IsTakenBackAsOneEdit) {
  EXPECT_TRUE(fill(FillArea::Table, 1, 1, "4"));
  EXPECT_TRUE(undoEdit(editor_).has_value());
  EXPECT_THAT(lines(), ElementsAre("Item| |P1|P2|P3", "A|Qty|1|2|3", "|Cost|7|7|7", "|Twice|2|4|6",
                                   "B|Qty|10||30", "|Cost|7||7", "|Twice|20||60"));
}

TEST_F(FillCells, OfARowSkipsPositionsWithoutACell) {
  EXPECT_TRUE(fill(FillArea::Row, 4, 1, "4"));
  EXPECT_THAT(lines(), ElementsAre("Item| |P1|P2|P3", "A|Qty|1|2|3", "|Cost|7|7|7", "|Twice|2|4|6",
                                   "B|Qty|4||4", "|Cost|7||7", "|Twice|8||8"));
}

TEST_F(FillCells, OfARowOfFormulaFieldsRunsTheirInverseFormulas) {
  EXPECT_TRUE(fill(FillArea::Row, 3, 1, "10"));
  EXPECT_THAT(lines(),
              ElementsAre("Item| |P1|P2|P3", "A|Qty|5|5|5", "|Cost|7|7|7", "|Twice|10|10|10",
                          "B|Qty|10||30", "|Cost|7||7", "|Twice|20||60"));
}

TEST_F(FillCells, OfAColumnSetsItsCellsThatMayBeEdited) {
  made_.table.fields[4].classification = Classification::DataReadOnly;
  EXPECT_TRUE(fill(FillArea::Column, 1, 1, "4"));
  EXPECT_THAT(lines(), ElementsAre("Item| |P1|P2|P3", "A|Qty|4|2|3", "|Cost|7|7|7", "|Twice|8|4|6",
                                   "B|Qty|4||30", "|Cost|7||7", "|Twice|8||60"));
}

TEST_F(FillCells, OfTheTableSetsAllCellsThatMayBeEditedRowByRow) {
  EXPECT_TRUE(fill(FillArea::Table, 4, 3, "4"));
  EXPECT_THAT(lines(), ElementsAre("Item| |P1|P2|P3", "A|Qty|2|2|2", "|Cost|7|7|7", "|Twice|4|4|4",
                                   "B|Qty|2||2", "|Cost|7||7", "|Twice|4||4"))
      << "a number, then what its formula field makes of the same text";
}

TEST_F(FillCells, EvaluatesAFormulaForEachTuple) {
  EXPECT_TRUE(fill(FillArea::Row, 1, 1, "Qty * 2 + Cost"));
  EXPECT_EQ(made_.column("Qty"), (std::vector<double>{9, 11, 13, 10, 30}));
}

TEST_F(FillCells, TakesANumberWithSeparators) {
  EXPECT_TRUE(fill(FillArea::Row, 1, 1, "1,234.50"));
  EXPECT_EQ(made_.column("Qty"), (std::vector<double>{1234.5, 1234.5, 1234.5, 10, 30}));
}

TEST_F(FillCells, LeavesCellsThatRefuseTheText) {
  EXPECT_TRUE(fill(FillArea::Row, 1, 1, "6 / (Qty - 2)"));
  EXPECT_EQ(made_.column("Qty"), (std::vector<double>{-6, 2, 6, 10, 30}));
  EXPECT_EQ(counts(), "2 filled, 1 refused");
}

TEST_F(FillCells, CountsNoCellsThatMayNotBeEdited) {
  EXPECT_TRUE(fill(FillArea::Column, 1, 1, "4"));
  EXPECT_EQ(counts(), "4 filled, 0 refused") << "two of a number field, two of a formula field";
}

TEST_F(FillCells, WithATextThatIsNoValueChangesNoCell) {
  EXPECT_TRUE(fill(FillArea::Row, 1, 1, "soon"));
  EXPECT_EQ(made_.column("Qty"), (std::vector<double>{1, 2, 3, 10, 30}));
  EXPECT_EQ(counts(), "0 filled, 3 refused");
}

TEST_F(FillCells, RefusesACommaThatSeparatesNoThousands) {
  EXPECT_TRUE(fill(FillArea::Row, 1, 1, "1,5"));
  EXPECT_EQ(made_.column("Qty"), (std::vector<double>{1, 2, 3, 10, 30}));
  EXPECT_EQ(counts(), "0 filled, 3 refused");
}

TEST_F(FillCells, WithAnEmptyTextEmptiesTextFieldsAlone) {
  for (const std::string_view text : {"", "  "}) {
    EXPECT_TRUE(fill(FillArea::Table, 1, 1, text));
    EXPECT_EQ(counts(), "0 filled, 10 refused");
    EXPECT_EQ(made_.column("Qty"), (std::vector<double>{1, 2, 3, 10, 30}))
        << "the formula fields' inverse formulas have not stored 0";
  }
  made_.table.fields[0].classification = Classification::DataReadWrite;
  view_ = test::viewOf(made_.table, {}, {1}, {}, {0});
  EXPECT_TRUE(fill(FillArea::Row, 1, 1, ""));
  EXPECT_EQ(outcome_->refused, 0U);
  EXPECT_THAT(tuplesOf(made_.table), testing::Contains(testing::StartsWith(" P1 10")));
}

TEST_F(FillCells, TakesTheWordsOfABooleanAndADateWithCommas) {
  EditedFields fields;
  EXPECT_EQ(fields.filled(1, "Yes"), "a Yes 2014-01-02");
  EXPECT_EQ(fields.filled(2, "3,4,2015"), "a Yes 2015-03-04");
  EXPECT_EQ(fields.filled(2, "never"), "a Yes 2015-03-04");
  EXPECT_EQ(fields.filled(1, "No"), "a No 2015-03-04");
}

TEST_F(FillCells, ColoursTheTableAnew) {
  EXPECT_TRUE(fill(FillArea::Row, 1, 1, "5"));
  EXPECT_EQ(highlightOf(made_.table, 0, 2), 0);
  EXPECT_EQ(highlightOf(made_.table, 3, 2), 1) << "all tuples are coloured, not just the filled";
}

TEST_F(FillCells, SendsTheWholeTableAndMarksTheViewAsModified) {
  host_.format.precision = 2;
  EXPECT_TRUE(fill(FillArea::Row, 1, 1, "5"));
  EXPECT_EQ(message(),
            "a \"A\"\nb \"P1\"\na1 \"5.00000000000\"\nc1 \"7.00000000000\"\n"
            "a2 \"5.00000000000\"\nb1 \"10.00000000000\"\n");
  EXPECT_TRUE(view_.modified);
  EXPECT_EQ(host_.format.precision, 2);
  EXPECT_THAT(made_.notice.told, ElementsAre());
}

TEST_F(FillCells, WritesADebugLineFirst) {
  fill(FillArea::Column, 5, 3, "5");
  EXPECT_EQ(host_.debugged.front(),
            "rows = 6, row = 4, columns = 5, column = 4, fixed_columns = 2");
}

TEST_F(FillCells, OutsideTheReportIsRefused) {
  for (const auto& [row, column] : std::vector<std::pair<int, int>>{
           {0, 1}, {7, 1}, {1, 0}, {1, 4}, {-5, 1}, {1, -5}, {1000000, 1}, {1, 1000000}}) {
    made_.notice.told.clear();
    EXPECT_FALSE(fill(FillArea::Row, row, column, "5"));
    EXPECT_THAT(made_.notice.told, ElementsAre("[Data Editor]: [Invalid Row or Column to fill.]"))
        << row << ", " << column;
  }
}

TEST_F(FillCells, FromAPositionWithoutACellIsRefused) {
  EXPECT_FALSE(fill(FillArea::Table, 4, 2, "5"));
  EXPECT_THAT(made_.notice.told, ElementsAre("[Data Editor]: [Invalid Row or Column.]"));
}

TEST_F(FillCells, FromASummaryIsRefused) {
  view_.breaks.resize(5);
  view_.breaks[0] = test::breakOf(0, 1, {{2, BreakOperation::Sum}});
  EXPECT_THAT(lines()[4], HasSubstr("Total"));
  EXPECT_FALSE(fill(FillArea::Row, 4, 1, "5"));
  EXPECT_THAT(made_.notice.told, ElementsAre("[Data Editor]: [Invalid Row or Column.]"));
}

TEST_F(FillCells, FromAFieldThatMayNotBeEditedIsRefused) {
  EXPECT_FALSE(fill(FillArea::Table, 2, 1, "5"));
  EXPECT_THAT(made_.notice.told,
              ElementsAre("[Data Editor]: [Cannot perform change - field is read-only.]"));
}

TEST_F(FillCells, ThatIsRefusedChangesAndSendsNothing) {
  fill(FillArea::Table, 2, 1, "5");
  fill(FillArea::Table, 4, 2, "5");
  fill(FillArea::Table, 7, 1, "5");
  EXPECT_THAT(tuplesOf(made_.table),
              ElementsAre("A P1 1 7 0", "A P2 2 7 0", "A P3 3 7 0", "B P1 10 7 0", "B P3 30 7 0"));
  EXPECT_THAT(host_.announced, testing::IsEmpty());
  EXPECT_FALSE(view_.modified);
}

TEST_F(FillCells, ThatIsStoppedKeepsWhatWasFilledAndSendsIt) {
  made_.notice.stopped = "[Filling cells...]";
  EXPECT_TRUE(fill(FillArea::Row, 1, 1, "5"));
  EXPECT_EQ(made_.column("Qty"), (std::vector<double>{1, 2, 3, 10, 30}));
  EXPECT_EQ(made_.column("Twice"), (std::vector<double>{2, 4, 6, 20, 60}));
  EXPECT_THAT(message(), HasSubstr("a1 \"1.00000000000\"\n"));
}

TEST_F(FillCells, TellsOfItsProgressByRow) {
  fill(FillArea::Row, 1, 1, "5");
  EXPECT_THAT(made_.notice.tasks[0], "[Filling cells...]");
}

}  // namespace
}  // namespace vrel
