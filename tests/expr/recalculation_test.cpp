#include "expr/recalculation.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <limits>
#include <optional>
#include <random>

#include "expr/formula.h"
#include "expr/function_arguments.h"
#include "expr/progress.h"
#include "model/table_sort.h"
#include "support/formula_table.h"
#include "support/tables.h"

namespace vrel {
namespace {

using test::FormulaOf;
using test::FormulaTable;
using test::tuplesOf;
using testing::Each;
using testing::ElementsAre;

FormulaTable stock(const std::vector<FormulaOf>& formulas) {
  return FormulaTable("Item:String Period:Period Qty:Number", "P1 P2 P3",
                      {"A P1 1", "A P2 2", "A P3 3", "B P1 10"}, formulas);
}

// One tuple with formula fields.
FormulaTable lone(const std::vector<FormulaOf>& formulas) {
  return FormulaTable("Qty:Number", "-", {"6"}, formulas);
}

// Counts its calls in the scratch field and is their number so far.
bool countCall(const FunctionArguments& arguments, double& result) {
  Cell& scratch = arguments.context()->scratch;
  scratch = numberCell(scratch.number + 1);
  result = scratch.number;
  return true;
}

bool recalculate(FormulaTable& made) {
  made.functions.add({.name = "Count", .function = countCall, .usage = "()", .varies = true});
  Evaluator evaluator(made.context, made.functions);
  return recalculateAll(evaluator);
}

TEST(Recalculation, OfATableWithoutFormulaFieldsChangesNothing) {
  FormulaTable made = stock({});
  EXPECT_TRUE(recalculate(made));
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("A P1 1", "A P2 2", "A P3 3", "B P1 10"));
  EXPECT_THAT(made.notice.tasks, ElementsAre());
}

TEST(Recalculation, OfAnEmptyTableSucceeds) {
  FormulaTable made("Qty:Number", "-", {}, {{"Twice", "2 * Qty"}});
  EXPECT_TRUE(recalculate(made));
}

TEST(Recalculation, ComputesEveryFormulaFieldOfEveryTuple) {
  FormulaTable made = stock({{"Twice", "2 * Qty"}, {"More", "Twice + 1"}});
  EXPECT_TRUE(recalculate(made));
  EXPECT_THAT(tuplesOf(made.table),
              ElementsAre("A P1 1 2 3", "A P2 2 4 5", "A P3 3 6 7", "B P1 10 20 21"));
}

TEST(Recalculation, ComputesAFieldBeforeItsTurnWhenAnotherNamesIt) {
  FormulaTable made = lone({{"More", "Twice + 1"}, {"Twice", "2 * Half"}, {"Half", "Qty / 2"}});
  recalculate(made);
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("6 7 6 3"));
}

TEST(Recalculation, ComputesAFieldOnceWhenItWasNamedBeforeItsTurn) {
  FormulaTable made = lone({{"First", "Counted"}, {"Counted", "Count()"}, {"Last", "Counted"}});
  recalculate(made);
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("6 1 1 1"));
}

TEST(Recalculation, ComputesAFieldOnceMoreWhenItIsNamedAfterItsTurn) {
  FormulaTable made = lone({{"Counted", "Count()"}, {"Second", "Counted"}, {"Third", "Counted"}});
  recalculate(made);
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("6 2 2 2"));
}

TEST(Recalculation, OnceMoreSeesWhatFunctionsReadOfFieldsThatWereComputedInBetween) {
  FormulaTable made = lone({{"Early", "Depletion(#Qty, 0, #Late, #m)"},
                            {"Itself", "RelOffset(#Itself, 0) + 1"},
                            {"Late", "3 * Qty"},
                            {"User", "Early + Itself"}});
  recalculate(made);
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("6 3 2 18 5"));
}

TEST(Recalculation, HandsTheFieldsOfEarlierTuplesOn) {
  FormulaTable made = stock({{"Sum", "Prev(#Sum) + Qty"}});
  recalculate(made);
  EXPECT_EQ(made.column("Sum"), (std::vector<double>{1, 3, 6, 10}));
}

TEST(Recalculation, OfOneTupleLeavesTheOthersAlone) {
  FormulaTable made = stock({{"Twice", "2 * Qty"}});
  Evaluator evaluator(made.context, made.functions);
  recalculateTuple(evaluator, 2);
  EXPECT_EQ(made.column("Twice"), (std::vector<double>{0, 0, 6, 0}));
}

TEST(Recalculation, StoresTheLargestNumberWhereAFormulaFails) {
  FormulaTable made = lone({{"Zero", "Qty / 0"},
                            {"Nameless", "None + 1"},
                            {"Message", "ERROR(#stop)"},
                            {"Broken", "1 +"},
                            {"Blank", "  "},
                            {"Undefined", "_undefined_"}});
  recalculate(made);
  EXPECT_EQ(made.table.cell(0, 1).number, 1.7976931348623157e308);
  EXPECT_THAT(tuplesOf(made.table),
              ElementsAre("6 *error* *error* *error* *error* *error* *error*"));
}

TEST(Recalculation, FailsForAFieldThatNamesItself) {
  FormulaTable made = lone({{"Self", "Self + 1"}, {"Itself", "IF(1, 2, Itself)"}});
  recalculate(made);
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("6 *error* 2"));
}

TEST(Recalculation, FailsForFieldsThatNameEachOther) {
  FormulaTable made = lone({{"A", "B"}, {"B", "C + 1"}, {"C", "A + 1"}, {"Free", "Qty"}});
  recalculate(made);
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("6 *error* *error* *error* 6"));
}

TEST(Recalculation, FailsForAFieldThatNamesItselfInAnotherTuple) {
  FormulaTable made = stock({{"Sum", "'Sum:1' + Qty"}});
  recalculate(made);
  EXPECT_THAT(made.column("Sum"), Each(kErrorValue));
}

TEST(Recalculation, HandsOnAFieldThatNamedItselfInAnotherTuple) {
  FormulaTable made = stock({{"Step", "IF(Qty = 2, 'Step:-1' + 1, 7)"}, {"User", "Step"}});
  recalculate(made);
  EXPECT_EQ(made.column("Step"), (std::vector<double>{7, 8, 7, 7}));
  EXPECT_EQ(made.column("User"), (std::vector<double>{7, 8, 7, 7}));
}

TEST(Recalculation, FailsWhereAFieldFailsThatIsComputedForIt) {
  FormulaTable early = lone({{"User", "Bad * 0"}, {"Bad", "1 / 0"}});
  recalculate(early);
  EXPECT_THAT(tuplesOf(early.table), ElementsAre("6 *error* *error*"));
  FormulaTable late = lone({{"Bad", "1 / 0"}, {"User", "Bad * 0"}});
  recalculate(late);
  EXPECT_THAT(tuplesOf(late.table), ElementsAre("6 *error* *error*"));
}

TEST(Recalculation, TakesAFieldThatWasComputedForAnotherAsItStands) {
  FormulaTable made = lone({{"First", "Bad * 0"}, {"Bad", "1 / 0"}, {"Second", "Bad * 0"}});
  recalculate(made);
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("6 *error* *error* 0"));
}

TEST(Recalculation, ComputesAnOffsetsFieldForTheOtherTupleAndThenNotForItsOwn) {
  FormulaTable made = stock({{"Ahead", "'Twice:1'"}, {"Twice", "2 * Qty"}});
  recalculate(made);
  EXPECT_EQ(made.column("Ahead"), (std::vector<double>{4, 6, 6, 20}));
  EXPECT_EQ(made.column("Twice"), (std::vector<double>{0, 4, 6, 20}))
      << "where the offset stays in the series, the field counts as computed";
}

TEST(Recalculation, ComputesAnAbsoluteOffsetsFieldOfThatTuple) {
  FormulaTable made = stock({{"Start", "'Twice:#1'"}, {"Twice", "2 * Qty"}});
  recalculate(made);
  EXPECT_EQ(made.column("Start"), (std::vector<double>{2, 2, 2, 20}));
}

TEST(Recalculation, ComputesWhatStandsAroundAFieldThatHadToBeComputed) {
  FormulaTable made = lone({{"Sum", "SUM(Qty, 10 * B, MAX(C, 2) - B, IF(B > 1, C, 9))"},
                            {"B", "Qty - C"},
                            {"C", "(Qty + Qty) / 3"}});
  recalculate(made);
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("6 32 2 4"));
}

// Formula fields F1, F2, ... of one tuple.
std::vector<FormulaOf> chain(int length, const std::function<std::string(int)>& formula) {
  std::vector<FormulaOf> fields;
  for (int i = 1; i <= length; ++i) {
    fields.push_back({fmt::format("F{}", i), formula(i)});
  }
  return fields;
}

TEST(Recalculation, ComputesALongChainOfFieldsThatNameTheNextOneOnceEach) {
  constexpr int kLength = 20000;
  FormulaTable made = lone(chain(kLength, [](int i) {
    return i == kLength ? "Count() * 0" : fmt::format("F{} + 1 + Count() * 0", i + 1);
  }));
  recalculate(made);
  EXPECT_EQ(made.table.cell(0, 1).number, kLength - 1);
  EXPECT_EQ(made.table.cell(0, kLength).number, 0);
  EXPECT_EQ(made.context.scratch.number, kLength);
}

TEST(Recalculation, ComputesALongChainOfFieldsThatNameTheOneBeforeTwiceAtMost) {
  constexpr int kLength = 20000;
  FormulaTable made = lone(chain(kLength, [](int i) {
    return i == 1 ? "Count() * 0" : fmt::format("F{} + 1 + Count() * 0", i - 1);
  }));
  recalculate(made);
  EXPECT_EQ(made.table.cell(0, kLength).number, kLength - 1);
  EXPECT_LE(made.context.scratch.number, 2 * kLength);
}

TEST(Recalculation, FailsForALongRingOfFields) {
  constexpr int kLength = 20000;
  FormulaTable made =
      lone(chain(kLength, [](int i) { return fmt::format("F{} + 1", i % kLength + 1); }));
  recalculate(made);
  for (int field = 1; field <= kLength; ++field) {
    ASSERT_EQ(made.table.cell(0, field).number, kErrorValue);
  }
}

// What a formula of random terms adds up.
struct Term {
  enum Kind { Number, Plain, Field, Offset, Function } kind;
  int field;
  int offset;
};

std::string textOf(const std::vector<Term>& terms) {
  std::string text;
  for (const Term& term : terms) {
    const std::array<std::string, 5> texts = {
        "1", "Qty", fmt::format("F{}", term.field),
        fmt::format("'F{}:{}'", term.field, term.offset),
        fmt::format("RelOffset(#F{}, {}, 5)", term.field, term.offset)};
    text += (text.empty() ? "" : " + ") + texts[term.kind];
  }
  return text;
}

// The rules of recalculation, field by field, over the tuples of one series.
class Rules {
 public:
  Rules(std::vector<std::vector<Term>> formulas, std::vector<double> plain)
      : cells(formulas.size(), std::vector<double>(plain.size())),
        formulas_(std::move(formulas)),
        plain_(std::move(plain)),
        states_(formulas_.size()) {}

  void recalculate() {
    for (int tuple = 0; tuple < count(); ++tuple) {
      std::fill(states_.begin(), states_.end(), FieldState::Pending);
      for (std::size_t field = 0; field < formulas_.size(); ++field) {
        if (states_[field] == FieldState::Pending) {
          const std::optional<double> value = evaluate(field, tuple);
          at(field, tuple) = value.value_or(kErrorValue);
        }
      }
    }
  }

  // By formula field, then by tuple.
  std::vector<std::vector<double>> cells;

 private:
  int count() const { return static_cast<int>(plain_.size()); }
  double& at(std::size_t field, int tuple) { return cells[field][static_cast<std::size_t>(tuple)]; }

  std::optional<double> evaluate(std::size_t field, int tuple) {
    double sum = 0;
    for (const Term& term : formulas_[field]) {
      const std::optional<double> value = valueOf(term, tuple);
      if (!value) {
        return std::nullopt;
      }
      sum += *value;
    }
    return sum;
  }

  std::optional<double> valueOf(const Term& term, int tuple) {
    const int other = tuple + term.offset;
    const bool isThere = other >= 0 && other < count();
    const auto field = static_cast<std::size_t>(term.field);
    switch (term.kind) {
      case Term::Number:
        return 1;
      case Term::Plain:
        return plain_[static_cast<std::size_t>(tuple)];
      case Term::Field:
        return lookUp(field, tuple);
      case Term::Offset:
        return lookUp(field, isThere ? other : tuple);
      case Term::Function:
        return isThere ? at(field, other) : 5;
    }
    return std::nullopt;
  }

  std::optional<double> lookUp(std::size_t field, int tuple) {
    if (states_[field] == FieldState::InProgress) {
      return std::nullopt;
    }
    if (states_[field] == FieldState::Pending) {
      states_[field] = FieldState::InProgress;
      const std::optional<double> value = evaluate(field, tuple);
      at(field, tuple) = value.value_or(kErrorValue);
      states_[field] = FieldState::Idle;
      return value;
    }
    return at(field, tuple);
  }

  std::vector<std::vector<Term>> formulas_;
  std::vector<double> plain_;
  std::vector<FieldState> states_;
};

TEST(Recalculation, DoesWhatItsRulesSayWhateverFieldsNameEachOther) {
  constexpr int kFields = 5;
  std::mt19937 random(3);
  const auto pick = [&random](int lowest, int highest) {
    return std::uniform_int_distribution<int>(lowest, highest)(random);
  };
  for (int round = 0; round < 3000; ++round) {
    std::vector<std::vector<Term>> terms(kFields);
    std::vector<FormulaOf> formulas;
    for (int field = 0; field < kFields; ++field) {
      for (int i = pick(1, 2); i > 0; --i) {
        terms[static_cast<std::size_t>(field)].push_back(
            {static_cast<Term::Kind>(pick(0, 4)), pick(0, kFields - 1), pick(-1, 1)});
      }
      formulas.push_back(
          {fmt::format("F{}", field), textOf(terms[static_cast<std::size_t>(field)])});
    }
    FormulaTable made("Qty:Number", "-", {"1", "10", "100"}, formulas);
    Rules rules(terms, {1, 10, 100});
    recalculate(made);
    recalculate(made);
    rules.recalculate();
    rules.recalculate();
    for (int field = 0; field < kFields; ++field) {
      ASSERT_EQ(made.column(fmt::format("F{}", field)),
                rules.cells[static_cast<std::size_t>(field)])
          << "F" << field << " of " << formulas[0].formula << "; " << formulas[1].formula << "; "
          << formulas[2].formula << "; " << formulas[3].formula << "; " << formulas[4].formula;
    }
  }
}

// Items in the order of a key that is a formula field.
FormulaTable ranked(const std::vector<FormulaOf>& formulas) {
  FormulaTable made("Period:Period Item:String Qty:Number", "P1 P2", {"P1 A 1", "P1 B 2", "P2 C 2"},
                    formulas);
  made.table.field(1).classification = Classification::DataReadOnly;
  made.table.field(made.field("Rank")).classification = Classification::Key;
  return made;
}

TEST(Recalculation, OfAKeyLetsTheNextOnePutTheTuplesInItsOrder) {
  FormulaTable made = ranked({{"Rank", "10 - Qty"}});
  recalculateTable(made.context, made.functions);
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("P1 A 1 9", "P1 B 2 8", "P2 C 2 8"));
  recalculateTable(made.context, made.functions);
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("P1 B 2 8", "P2 C 2 8", "P1 A 1 9"));
}

TEST(Recalculation, OfAKeyForAnotherFieldLetsTheNextOnePutTheTuplesInItsOrder) {
  FormulaTable made = ranked({{"User", "Rank"}, {"Rank", "10 - Qty"}});
  recalculateTable(made.context, made.functions);
  recalculateTable(made.context, made.functions);
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("P1 B 2 8 8", "P2 C 2 8 8", "P1 A 1 9 9"));
}

TEST(Recalculation, OfAKeyPutsTheTupleIntoAnotherSeriesForTheFieldsBehindIt) {
  FormulaTable made =
      ranked({{"Early", "Prev(#Qty, -1)"}, {"Rank", "Qty"}, {"Late", "Prev(#Qty, -1)"}});
  recalculateTable(made.context, made.functions);
  EXPECT_EQ(made.column("Early"), (std::vector<double>{-1, -1, -1}));
  EXPECT_EQ(made.column("Late"), (std::vector<double>{-1, -1, 2}));
}

TEST(Recalculation, TellsHowFarItIs) {
  FormulaTable made = stock({{"Twice", "2 * Qty"}});
  EXPECT_TRUE(recalculate(made));
  EXPECT_THAT(made.notice.tasks,
              ElementsAre("[Recalculating formulas...]", "[Recalculating formulas...]"));
}

// A number field in so many tuples that progress is told more than once.
FormulaTable manyTuples() {
  return FormulaTable("Qty:Number", "-", std::vector<std::string>(kProgressStep + 5, "3"),
                      {{"Twice", "2 * Qty"}});
}

// Stops at the second sign of progress.
class Stopper : public test::SilentNotice {
 public:
  bool progress(std::string_view /*task*/, std::uint64_t done, std::uint64_t /*total*/) override {
    return done == 0;
  }
};

TEST(Recalculation, ThatIsStoppedLeavesTheRestAsItWas) {
  FormulaTable made = manyTuples();
  Stopper notice;
  FormulaContext context{.table = made.table, .notice = notice};
  Evaluator evaluator(context, made.functions);
  EXPECT_FALSE(recalculateAll(evaluator));
  EXPECT_EQ(made.table.cell(kProgressStep - 1, 1).number, 6);
  EXPECT_EQ(made.table.cell(kProgressStep, 1).number, 0);
  EXPECT_FALSE(context.recalculating);
  EXPECT_THAT(evaluator.states(), Each(FieldState::Idle));
}

TEST(Recalculation, OfATablePutsTheTuplesInOrderAndComputesFormulasAndColours) {
  FormulaTable made = stock({{"Sum", "Prev(#Sum) + Qty"}});
  made.table.fields[2].highlightExpression.text = "IF(Sum > 5, RED(), GREEN())";
  const std::vector<int> byQuantity = {2};
  sortByKeys(made.table, byQuantity);
  std::swap(made.table.cell(0, 1), made.table.cell(1, 1));
  made.table.sortedBy.clear();
  EXPECT_TRUE(recalculateTable(made.context, made.functions));
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("A P1 2 2", "A P2 1 3", "A P3 3 6", "B P1 10 10"));
  EXPECT_EQ(highlightOf(made.table, 1, 2), 4);
  EXPECT_EQ(highlightOf(made.table, 2, 2), 1);
}

TEST(Recalculation, OfATableThatIsStoppedComputesNoColours) {
  FormulaTable made = stock({{"Twice", "2 * Qty"}});
  made.table.fields[2].highlightExpression.text = "RED()";
  made.notice.stopped = "[Recalculating formulas...]";
  EXPECT_FALSE(recalculateTable(made.context, made.functions));
  EXPECT_EQ(highlightOf(made.table, 0, 2), 0);
}

// The colours of the quantities by a highlight formula.
std::vector<int> coloursBy(FormulaTable& made, std::string_view formula) {
  setText(made.table.fields[2].highlightExpression, formula);
  Evaluator evaluator(made.context, made.functions);
  EXPECT_TRUE(computeHighlights(evaluator));
  std::vector<int> colours;
  for (std::size_t tuple = 0; tuple < made.table.tupleCount; ++tuple) {
    colours.push_back(highlightOf(made.table, tuple, 2));
  }
  return colours;
}

TEST(Highlights, AreBlackUnlessAFieldSaysOtherwise) {
  FormulaTable made = stock({});
  Evaluator evaluator(made.context, made.functions);
  EXPECT_TRUE(computeHighlights(evaluator));
  EXPECT_EQ(made.table.fields[2].highlightExpression.text, "BLACK()");
  EXPECT_EQ(highlightOf(made.table, 0, 2), 0);
  EXPECT_THAT(made.notice.tasks, ElementsAre()) << "nothing has to be done tuple by tuple";
}

TEST(Highlights, AreTheNumbersOfTheColours) {
  FormulaTable made = stock({});
  EXPECT_THAT(coloursBy(made, "BLUE()"), Each(5));
  EXPECT_THAT(coloursBy(made, "WHITE()"), Each(11));
  EXPECT_THAT(coloursBy(made, "IF(Qty > 2, VIOLET(), BACKGROUND())"), ElementsAre(8, 8, 7, 7));
}

TEST(Highlights, RepeatAfterOneHundredAndTwentySeven) {
  FormulaTable made = stock({});
  EXPECT_THAT(coloursBy(made, "126"), Each(126));
  EXPECT_THAT(coloursBy(made, "127"), Each(0));
  EXPECT_THAT(coloursBy(made, "130"), Each(3));
  EXPECT_THAT(coloursBy(made, "Qty + 128.9"), ElementsAre(2, 3, 4, 11));
}

TEST(Highlights, AreNoneForNumbersBeyondTheColours) {
  FormulaTable made = stock({});
  EXPECT_THAT(coloursBy(made, "2147483646.5"), Each(2147483646 % 127));
  EXPECT_THAT(coloursBy(made, "2147483647"), Each(0));
  EXPECT_THAT(coloursBy(made, "2147483647 + 129 + Qty * 0"), Each(0));
  EXPECT_THAT(coloursBy(made, "*"), Each(0));
  EXPECT_THAT(coloursBy(made, "-1"), Each(0));
  EXPECT_THAT(coloursBy(made, "0 - Qty / 100"), Each(0));
}

TEST(Highlights, AreNoneForWhatIsNoNumber) {
  FormulaTable made = stock({});
  made.table.cell(1, 2) = numberCell(std::numeric_limits<double>::quiet_NaN());
  EXPECT_THAT(coloursBy(made, "Qty"), ElementsAre(1, 0, 3, 10));
}

TEST(Highlights, AreNoneWhereAFormulaFails) {
  FormulaTable made = stock({});
  EXPECT_THAT(coloursBy(made, "5 / (Qty - 2)"), ElementsAre(0, 0, 5, 0));
  EXPECT_THAT(coloursBy(made, "None + 5"), Each(0));
  EXPECT_THAT(coloursBy(made, "5 +"), Each(0));
  EXPECT_THAT(coloursBy(made, ""), Each(0));
}

TEST(Highlights, FollowTheFormulaFieldsAsTheyStand) {
  FormulaTable made = stock({{"Sum", "Prev(#Sum) + Qty"}});
  recalculate(made);
  EXPECT_THAT(coloursBy(made, "Sum"), ElementsAre(1, 3, 6, 10));
  EXPECT_THAT(coloursBy(made, "'Sum:1'"), ElementsAre(3, 6, 6, 10));
}

TEST(Highlights, MayAssign) {
  FormulaTable made = stock({});
  EXPECT_THAT(coloursBy(made, "Assign(#Qty, Qty + 100) + Qty"), ElementsAre(102, 103, 104, 111));
  EXPECT_EQ(made.column("Qty"), (std::vector<double>{101, 102, 103, 110}));
}

TEST(Highlights, AreForgottenWhenAFormulaBecomesTheSameForAll) {
  FormulaTable made = stock({});
  coloursBy(made, "Qty");
  EXPECT_THAT(coloursBy(made, "RED()"), Each(1));
  EXPECT_THAT(coloursBy(made, "BLACK()"), Each(0));
}

TEST(Highlights, OfOneTupleLeaveTheOthersAlone) {
  FormulaTable made = stock({});
  coloursBy(made, "Qty");
  for (std::size_t tuple = 0; tuple < 4; ++tuple) {
    made.table.cell(tuple, 2) = numberCell(50);
  }
  Evaluator evaluator(made.context, made.functions);
  const std::vector<std::uint32_t> second = {1};
  computeHighlights(evaluator, second);
  EXPECT_EQ(highlightOf(made.table, 0, 2), 1);
  EXPECT_EQ(highlightOf(made.table, 1, 2), 50);
}

TEST(Highlights, MoveWithTheirTuples) {
  FormulaTable made = stock({});
  coloursBy(made, "Qty");
  const std::vector<int> byPeriod = {1, 0};
  sortByKeys(made.table, byPeriod);
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("A P1 1", "B P1 10", "A P2 2", "A P3 3"));
  for (std::size_t tuple = 0; tuple < 4; ++tuple) {
    EXPECT_EQ(highlightOf(made.table, tuple, 2), made.table.cell(tuple, 2).number) << tuple;
  }
}

TEST(Highlights, StayWithTheTuplesThatAreLeftOfEqualOnes) {
  FormulaTable made = stock({});
  coloursBy(made, "Qty");
  const std::vector<int> byItem = {0};
  EXPECT_FALSE(removeDuplicateKeys(made.table, byItem));
  EXPECT_THAT(tuplesOf(made.table), ElementsAre("A P1 1", "B P1 10"));
  EXPECT_EQ(highlightOf(made.table, 0, 2), 1);
  EXPECT_EQ(highlightOf(made.table, 1, 2), 10);
}

TEST(Highlights, ThatAreStoppedSaySo) {
  FormulaTable made = stock({});
  setText(made.table.fields[2].highlightExpression, "Qty");
  made.notice.stopped = "[Computing colours...]";
  Evaluator evaluator(made.context, made.functions);
  EXPECT_FALSE(computeHighlights(evaluator));
  EXPECT_EQ(highlightOf(made.table, 3, 2), 0);
}

}  // namespace
}  // namespace vrel
