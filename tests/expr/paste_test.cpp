#include "expr/paste.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "expr/recalculation.h"
#include "model/report_layout.h"
#include "support/edited_table.h"
#include "support/tables.h"

namespace vrel {
namespace {

using test::gridLines;
using testing::ElementsAre;

// Two items over three periods with two editable fields beside each other; B has nothing in P2.
class Paste : public test::EditedTable {
 protected:
  Paste()
      : EditedTable("Item:String Period:Period Qty:Number Cost:Number", "P1 P2 P3",
                    {"A P1 1 7 ### ,,a1,c1", "A P2 2 7 ### ,,a2", "A P3 3 7 ### ,,a3",
                     "B P1 10 7 ### ,,b1", "B P3 30 7 ### ,,b3"},
                    {{"Stock", "Prev(#Stock, 0) + Qty"}}) {
    view_ = test::viewOf(made_.table, {0}, {1}, {}, {2, 3, 4});
    view_.dataInColumns = true;
    made_.table.field(3).classification = Classification::DataReadOnly;
    Evaluator evaluator(made_.context, made_.functions);
    recalculateAll(evaluator);
    host_.format.precision = 0;
    grid_ = layOut(view_);
  }

  PasteOutcome paste(std::string_view clipboard, GridPlace current,
                     std::optional<GridArea> selection = std::nullopt) {
    const CopiedBlock copied = blockFromClipboard(clipboard);
    const GridArea dataCells = {.firstColumn = 1, .rows = grid_.rows, .columns = grid_.columns - 1};
    const PastePlan plan =
        planPaste(copied, {.dataCells = dataCells, .selection = selection, .current = current});
    EXPECT_EQ(plan.refusal, "");
    return pasteTexts(editor_, grid_, plan, copied);
  }

  ReportGrid grid_;
};

TEST_F(Paste, SetsEditableCellsAndSkipsOthers) {
  const PasteOutcome outcome = paste("5\t6\n7\t8\n", {0, 1});
  EXPECT_TRUE(outcome.skippedCells);
  EXPECT_EQ(outcome.refusedTexts, 0U);
  EXPECT_EQ(made_.column("Qty"), (std::vector<double>{5, 2, 3, 7, 30}));
  EXPECT_EQ(made_.column("Stock"), (std::vector<double>{5, 7, 10, 7, 37}));
  EXPECT_EQ(host_.announced.size(), 1U);
  EXPECT_EQ(host_.message(), "a1 \"5.00000000000\"\nb1 \"7.00000000000\"\n");
}

TEST_F(Paste, CellsWithoutAValueAreSkipped) {
  EXPECT_TRUE(paste("5\n6\n", {0, 4}).skippedCells);
  EXPECT_EQ(made_.column("Qty"), (std::vector<double>{1, 5, 3, 10, 30}));
}

TEST_F(Paste, TextsThatAreMissingLeaveTheirCells) {
  EXPECT_FALSE(paste("\n5\n", {0, 1}).skippedCells);
}

TEST_F(Paste, TextsThatAreNoValuesAreCountedAndTheFirstIsKept) {
  const PasteOutcome outcome = paste("none at all\n2*\n", {0, 1});
  EXPECT_EQ(outcome.refusedTexts, 2U);
  ASSERT_TRUE(outcome.firstRefused.has_value());
  EXPECT_EQ(outcome.firstRefused->text, "none at all");
  EXPECT_EQ(outcome.firstRefused->edit.refusal, EditRefusal::Syntax);
  EXPECT_THAT(host_.announced, testing::IsEmpty());
}

TEST_F(Paste, NumbersAreTakenAsTheyAreShown) {
  paste("1,234", {0, 1});
  EXPECT_EQ(made_.column("Qty")[0], 1234);
}

TEST_F(Paste, IsTakenBackAsOneEdit) {
  paste("5\n6\n", {0, 1}, GridArea{.firstRow = 0, .firstColumn = 1, .rows = 2, .columns = 1});
  EXPECT_EQ(made_.column("Stock"), (std::vector<double>{5, 7, 10, 6, 36}));
  undoEdit(editor_);
  EXPECT_EQ(made_.column("Stock"), (std::vector<double>{1, 3, 6, 10, 40}));
  EXPECT_EQ(host_.message(), "b1 \"10.00000000000\"\na1 \"1.00000000000\"\n");
}

TEST_F(Paste, ATiledBlockNamesWhatStandsInEachTuple) {
  paste("Qty + Stock", {0, 1}, GridArea{.firstRow = 0, .firstColumn = 1, .rows = 1, .columns = 9});
  EXPECT_EQ(made_.column("Qty"), (std::vector<double>{2, 6, 14, 10, 30}))
      << "each finds the storage that the ones before it have made";
}

TEST_F(Paste, WhatWasSetWhenTheUserStopsStays) {
  made_.notice.stopped = "[Pasting...]";
  EXPECT_TRUE(paste("5\n6\n", {0, 1}).edit.stored.empty());
  EXPECT_THAT(host_.announced, testing::IsEmpty());
  EXPECT_THAT(made_.notice.tasks, testing::Contains("[Pasting...]"));
}

}  // namespace
}  // namespace vrel
