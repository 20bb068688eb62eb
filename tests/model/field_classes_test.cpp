#include "model/field_classes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/table_sort.h"
#include "support/tables.h"
#include "support/views.h"

namespace vrel {
namespace {

using test::listsOf;
using test::tuplesOf;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr Classification kKey = Classification::Key;
constexpr Classification kWritable = Classification::DataReadWrite;
constexpr Classification kReadable = Classification::DataReadOnly;

std::vector<FieldClass> numbersOf(const std::vector<Classification>& classifications) {
  std::vector<FieldClass> classes;
  for (const Classification one : classifications) {
    classes.push_back({one, FieldType::Number});
  }
  return classes;
}

TEST(RefusalOfClasses, IsDueWithoutADataFieldOrWithoutAKey) {
  EXPECT_EQ(refusalOf(numbersOf({kKey, kWritable})), ClassRefusal::None);
  EXPECT_EQ(refusalOf(numbersOf({kReadable, kKey})), ClassRefusal::None);
  EXPECT_EQ(refusalOf(numbersOf({kKey, kKey})), ClassRefusal::NoDataField);
  EXPECT_EQ(refusalOf(numbersOf({kReadable, kWritable})), ClassRefusal::NoKeyField);
}

TEST(RefusalOfClasses, CountsNoFieldWithoutAClassification) {
  EXPECT_EQ(refusalOf(numbersOf({kKey, Classification::Unset})), ClassRefusal::NoDataField);
  EXPECT_EQ(refusalOf(numbersOf({kWritable, Classification::Unset})), ClassRefusal::NoKeyField);
}

class FieldClasses : public testing::Test {
 protected:
  FieldClasses() { classes_ = fieldClasses(table_); }

  void apply() { applyFieldClasses(view_, classes_, settings_); }

  test::SilentNotice notice_;
  FormatSettings settings_{.precision = 0, .dateFormat = {}};
  Table table_ = test::tableOf("Item:String Period:Period Plan:Number Seen:Number", "W1 W2",
                               {"b W1 3 31", "a W2 2 21", "a W1 1 11"});
  ReportView view_ = makeReportView(table_, notice_);
  std::vector<FieldClass> classes_;
};

TEST_F(FieldClasses, AreThoseOfTheTable) {
  EXPECT_THAT(classes_,
              ElementsAre(FieldClass{kKey, FieldType::String}, FieldClass{kKey, FieldType::Period},
                          FieldClass{kReadable, FieldType::Number},
                          FieldClass{kReadable, FieldType::Number}));
}

TEST_F(FieldClasses, MoveANewKeyToTheFrontOfTheRows) {
  classes_[3].classification = kKey;
  apply();
  EXPECT_EQ(listsOf(view_), "x 3 0, y 1, data 2");
  sortTuples(table_);
  EXPECT_THAT(table_.sortKeys, ElementsAre(0, 3, 1));
}

TEST_F(FieldClasses, MoveAFieldThatIsNoKeyAnyMoreToTheFrontOfTheData) {
  classes_[1].classification = kWritable;
  apply();
  EXPECT_EQ(listsOf(view_), "x 0, data 1 2 3");
  sortTuples(table_);
  EXPECT_EQ(tuplesOf(table_).size(), 3U) << "tuples with equal keys stay";
  EXPECT_FALSE(table_.aggregated);
}

TEST_F(FieldClasses, LeaveFieldsAloneThatHaveNotChangedTheirClass) {
  view_.axis(Axis::X) = {};
  view_.axis(Axis::Hidden) = {0, 3};
  view_.axis(Axis::Data) = {2};
  classes_[2].classification = kWritable;
  apply();
  EXPECT_EQ(listsOf(view_), "y 1, data 2, hidden 0 3");
  classes_[3].classification = kKey;
  apply();
  EXPECT_EQ(listsOf(view_), "x 3, y 1, data 2, hidden 0") << "a key that was hidden stays hidden";
}

TEST_F(FieldClasses, SortTheTableByTheNewKeys) {
  sortTuples(table_);
  EXPECT_THAT(tuplesOf(table_), ElementsAre("a W1 1 11", "a W2 2 21", "b W1 3 31"));
  classes_[0].classification = kReadable;
  apply();
  sortTuples(table_);
  EXPECT_THAT(tuplesOf(table_), ElementsAre("a W1 1 11", "b W1 3 31", "a W2 2 21"));
  EXPECT_THAT(table_.groupKeys, IsEmpty());
}

TEST_F(FieldClasses, ConvertTheValuesBySettings) {
  classes_[2].type = FieldType::String;
  settings_.precision = 1;
  apply();
  EXPECT_THAT(tuplesOf(table_), ElementsAre("b W1 3.0 31", "a W2 2.0 21", "a W1 1.0 11"));
}

TEST_F(FieldClasses, MakeADateTheDateColumnWhenThereIsNoOther) {
  table_ =
      test::tableOf("Item:String Day:String Plan:Number", "", {"a 2/1/2014 1", "a 1/5/2014 2"});
  view_ = makeReportView(table_, notice_);
  classes_ = fieldClasses(table_);
  classes_[1].type = FieldType::Date;
  apply();
  sortTuples(table_);
  EXPECT_EQ(table_.dateColumn, 1);
  EXPECT_THAT(table_.groupKeys, ElementsAre(0));
  EXPECT_EQ(table_.cell(0, 2).number, 2);
}

TEST_F(FieldClasses, ForgetHowFormulasWereCompiled) {
  const auto owner = std::make_shared<int>(0);
  table_.field(3).highlightExpression.compiled = std::shared_ptr<const CompiledFormula>(
      owner, reinterpret_cast<const CompiledFormula*>(owner.get()));
  apply();
  EXPECT_EQ(table_.field(3).highlightExpression.compiled, nullptr);
}

TEST_F(FieldClasses, TellWhichChangesWouldLoseValues) {
  table_.field(0).periodNames.add("a");
  classes_[0].type = FieldType::Period;
  classes_[1].type = FieldType::Number;
  classes_[2].type = FieldType::String;
  const std::vector<LossyChange> changes = lossyChanges(table_, classes_, settings_);
  ASSERT_EQ(changes.size(), 2U);
  EXPECT_EQ(changes[0].field, 0);
  EXPECT_EQ(changes[0].lost, 1U);
  EXPECT_EQ(changes[0].first, "b");
  EXPECT_EQ(changes[1].field, 1);
  EXPECT_EQ(changes[1].lost, 3U);
}

TEST_F(FieldClasses, OfferPeriodsOnlyToFieldsWithPeriodNames) {
  EXPECT_THAT(typesFor(table_.field(0)), ElementsAre(FieldType::String, FieldType::Number,
                                                     FieldType::Boolean, FieldType::Date));
  EXPECT_THAT(typesFor(table_.field(1)),
              ElementsAre(FieldType::String, FieldType::Number, FieldType::Boolean, FieldType::Date,
                          FieldType::Period));
}

TEST_F(FieldClasses, OfferAFormulaFieldNoOtherType) {
  FieldDef formula;
  formula.type = FieldType::Expression;
  EXPECT_THAT(typesFor(formula), ElementsAre(FieldType::Expression));
}

}  // namespace
}  // namespace vrel
