#include "model/field_order.h"

#include <gtest/gtest.h>

#include "support/tables.h"
#include "support/views.h"

namespace vrel {
namespace {

using test::listsOf;
using test::tableOf;
using test::viewOf;

class FieldOrder : public testing::Test {
 protected:
  // Fields 0, 1 and 2 are label columns, 3 makes pages, 4 and 5 are headings, 6 is data.
  FieldOrder()
      : table_(
            tableOf("A:String B:String C:String D:String E:String F:String Qty:Number", "p", {})),
        view_(viewOf(table_, {0, 1, 2}, {4, 5}, {3}, {6})) {}

  Table table_;
  ReportView view_;
};

TEST_F(FieldOrder, AFieldIsFoundOnTheAxesOfTheLayoutOnly) {
  EXPECT_EQ(placeInLayout(view_, 1), (LayoutPlace{Axis::X, 1}));
  EXPECT_EQ(placeInLayout(view_, 3), (LayoutPlace{Axis::Z, 0}));
  EXPECT_EQ(placeInLayout(view_, 5), (LayoutPlace{Axis::Y, 1}));
  EXPECT_EQ(placeInLayout(view_, 6), std::nullopt);
  EXPECT_EQ(placeInLayout(view_, 99), std::nullopt);
}

TEST_F(FieldOrder, AFieldGoesInFrontOfTheOneThatStandsAtThePlace) {
  EXPECT_TRUE(moveField(view_, 2, {Axis::X, 0}));
  EXPECT_EQ(listsOf(view_), "x 2 0 1, y 4 5, z 3, data 6");
}

TEST_F(FieldOrder, DownwardsThePlacesBehindTheFieldMoveUp) {
  EXPECT_TRUE(moveField(view_, 0, {Axis::X, 2}));
  EXPECT_EQ(listsOf(view_), "x 1 0 2, y 4 5, z 3, data 6");
}

TEST_F(FieldOrder, BehindTheLastItIsTheLast) {
  EXPECT_TRUE(moveField(view_, 0, {Axis::X, 3}));
  EXPECT_EQ(listsOf(view_), "x 1 2 0, y 4 5, z 3, data 6");
}

TEST_F(FieldOrder, AnIndexBeyondTheListIsItsEnd) {
  EXPECT_TRUE(moveField(view_, 3, {Axis::Y, 17}));
  EXPECT_EQ(listsOf(view_), "x 0 1 2, y 4 5 3, data 6");
}

TEST_F(FieldOrder, InAnotherListTheIndexCountsAsItIs) {
  EXPECT_TRUE(moveField(view_, 0, {Axis::Y, 1}));
  EXPECT_EQ(listsOf(view_), "x 1 2, y 4 0 5, z 3, data 6");
}

TEST_F(FieldOrder, AnAxisMayBecomeEmptyAndTakeFieldsAgain) {
  EXPECT_TRUE(moveField(view_, 3, {Axis::X, 0}));
  EXPECT_EQ(listsOf(view_), "x 3 0 1 2, y 4 5, data 6");
  EXPECT_TRUE(moveField(view_, 4, {Axis::Z, 0}));
  EXPECT_EQ(listsOf(view_), "x 3 0 1 2, y 5, z 4, data 6");
}

TEST_F(FieldOrder, InFrontOfItselfOrOfTheNextAFieldStaysWhereItIs) {
  EXPECT_FALSE(moveField(view_, 1, {Axis::X, 1}));
  EXPECT_FALSE(moveField(view_, 1, {Axis::X, 2}));
  EXPECT_FALSE(moveField(view_, 2, {Axis::X, 9}));
  EXPECT_EQ(listsOf(view_), "x 0 1 2, y 4 5, z 3, data 6");
}

TEST_F(FieldOrder, DataAreNoBusinessOfTheLayout) {
  EXPECT_FALSE(moveField(view_, 6, {Axis::X, 0}));
  EXPECT_FALSE(moveField(view_, 0, {Axis::Data, 0}));
  EXPECT_FALSE(moveField(view_, 0, {Axis::Hidden, 0}));
  EXPECT_FALSE(moveField(view_, -1, {Axis::X, 0}));
  EXPECT_EQ(listsOf(view_), "x 0 1 2, y 4 5, z 3, data 6");
}

TEST_F(FieldOrder, WhereAFieldWillStandIsKnownBefore) {
  EXPECT_EQ(placeAfterMove(view_, 0, {Axis::X, 9}), (LayoutPlace{Axis::X, 2}));
  EXPECT_EQ(placeAfterMove(view_, 0, {Axis::Y, 9}), (LayoutPlace{Axis::Y, 2}));
  EXPECT_EQ(placeAfterMove(view_, 0, {Axis::X, 1}), std::nullopt);
  EXPECT_EQ(listsOf(view_), "x 0 1 2, y 4 5, z 3, data 6");
}

TEST_F(FieldOrder, AStepWithinAListChangesPlacesWithTheNeighbour) {
  ASSERT_TRUE(moveField(view_, 1, *placeOfStep(view_, 1, FieldStep::Up)));
  EXPECT_EQ(listsOf(view_), "x 1 0 2, y 4 5, z 3, data 6");
  ASSERT_TRUE(moveField(view_, 0, *placeOfStep(view_, 0, FieldStep::Down)));
  EXPECT_EQ(listsOf(view_), "x 1 2 0, y 4 5, z 3, data 6");
}

TEST_F(FieldOrder, AStepToTheAxisBesideKeepsThePlaceAsFarAsTheListReaches) {
  EXPECT_EQ(placeOfStep(view_, 1, FieldStep::On), (LayoutPlace{Axis::Z, 1}));
  EXPECT_EQ(placeOfStep(view_, 0, FieldStep::On), (LayoutPlace{Axis::Z, 0}));
  EXPECT_EQ(placeOfStep(view_, 3, FieldStep::On), (LayoutPlace{Axis::Y, 0}));
  EXPECT_EQ(placeOfStep(view_, 3, FieldStep::Back), (LayoutPlace{Axis::X, 0}));
  EXPECT_EQ(placeOfStep(view_, 5, FieldStep::Back), (LayoutPlace{Axis::Z, 1}));
}

TEST_F(FieldOrder, AtTheEdgesThereIsNoStep) {
  EXPECT_EQ(placeOfStep(view_, 0, FieldStep::Up), std::nullopt);
  EXPECT_EQ(placeOfStep(view_, 2, FieldStep::Down), std::nullopt);
  EXPECT_EQ(placeOfStep(view_, 2, FieldStep::Back), std::nullopt);
  EXPECT_EQ(placeOfStep(view_, 4, FieldStep::On), std::nullopt);
  EXPECT_EQ(placeOfStep(view_, 6, FieldStep::Up), std::nullopt);
}

}  // namespace
}  // namespace vrel
