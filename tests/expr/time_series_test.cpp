#include <fmt/format.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>
#include <random>

#include "expr/evaluation_error.h"
#include "expr/parser.h"
#include "support/formula_table.h"

namespace vrel {
namespace {

using test::FormulaTable;

constexpr double kFailed = -kFunctionFailed;

// Item A with these values of demand and stock, in periods that last 20 days, 4 weeks or a month;
// items of other demands around it.
FormulaTable series(const std::vector<double>& demands, const std::vector<double>& stocks) {
  std::vector<std::string> lines = {"0 P1 1000 1000 Yes", "Z P1 1000 1000 Yes"};
  for (std::size_t i = 0; i < demands.size(); ++i) {
    lines.push_back(
        fmt::format("A P{} {:f} {:f} {}", i + 1, demands[i], stocks[i], i % 2 == 0 ? "Yes" : "No"));
  }
  return FormulaTable("Item:String Period:Period Demand:Number Stock:Number Active:Boolean",
                      "P1 P2 P3 P4 P5 P6", lines);
}

// The position of item A's first tuple.
constexpr std::size_t kFirst = 1;

TEST(Cover, CountsThePeriodsThatTheStockLastsFromTheNextOneOn) {
  FormulaTable table = series({10, 10, 10, 10}, {30, 0, 0, 0});
  EXPECT_EQ(table.value("Cover(#months, #Demand, #Stock)", kFirst), 3);
}

TEST(Cover, IsUnboundedWhenNothingIsEverNeeded) {
  FormulaTable table = series({0, 0, 0}, {5, 0, 0});
  EXPECT_EQ(table.value("Cover(#weeks, #Demand, #Stock)", kFirst), 1e20);
}

TEST(Cover, IsUnboundedWhenTheLastPeriodsReturnStock) {
  FormulaTable table = series({1, 1, -1}, {5, 0, 0});
  EXPECT_EQ(table.value("Cover(#weeks, #Demand, #Stock)", kFirst), 1e20);
}

TEST(Cover, OfNoStockIsNothingWhereSomethingIsNeeded) {
  FormulaTable table = series({10, 10, 10}, {0, 0, 0});
  EXPECT_EQ(table.value("Cover(#weeks, #Demand, #Stock)", kFirst), 0);
}

TEST(Cover, TakesAPartOfThePeriodInWhichTheStockEnds) {
  FormulaTable table = series({1, 10, 40}, {20, 0, 0});
  EXPECT_EQ(table.value("Cover(#days, #Demand, #Stock)", kFirst), 20 + 20 * 10.0 / 40);
  EXPECT_EQ(table.value("Cover(#weeks, #Demand, #Stock)", kFirst), 4 + 4 * 10.0 / 40);
}

TEST(Cover, LetsTheLastPeriodRepeatBehindTheSeries) {
  FormulaTable table = series({10, 10, 4}, {24, 0, 9});
  EXPECT_EQ(table.value("Cover(#months, #Demand, #Stock)", kFirst), 2 + 10.0 / 4);
  EXPECT_EQ(table.value("Cover(#months, #Demand, #Stock, #last)", kFirst), 2 + 10.0 / 4);
  EXPECT_EQ(table.value("Cover(#months, #Demand, #Stock)", kFirst + 2), 9.0 / 4);
}

TEST(Cover, LetsTheMeanOfTheWholeSeriesRepeatBehindIt) {
  FormulaTable table = series({10, 10, 4}, {24, 24, 9});
  EXPECT_EQ(table.value("Cover(#months, #Demand, #Stock, #avg)", kFirst), 2 + 10.0 / 8);
  EXPECT_EQ(table.value("Cover(#months, #Demand, #Stock, #a)", kFirst + 1), 1 + 20.0 / 8);
  EXPECT_EQ(table.value("Cover(#months, #Demand, #Stock, #average)", kFirst + 2), 9.0 / 8);
}

TEST(Cover, OfAnOverdrawnStockIsNegative) {
  FormulaTable table = series({10, 10}, {-5, 0});
  EXPECT_EQ(table.value("Cover(#days, #Demand, #Stock)", kFirst), -10);
}

TEST(Cover, OfAnOverdrawnStockIsNothingWhereNothingIsNeeded) {
  FormulaTable table = series({10, 0, 10}, {-5, 0, 0});
  EXPECT_EQ(table.value("Cover(#days, #Demand, #Stock)", kFirst), 0);
}

TEST(Cover, CountsABooleanAsZeroOrOne) {
  FormulaTable table = series({1, 1, 1, 1}, {2, 0, 0, 0});
  // No, Yes, No, and No again and again.
  EXPECT_EQ(table.value("Cover(#months, #Active, #Stock)", kFirst), 1e20);
  EXPECT_EQ(table.value("Cover(#months, #Demand, #Active)", kFirst), 1);
}

TEST(Cover, TakesFormulaFieldsAsTheyStand) {
  FormulaTable table("Period:Period Stock:Number", "P1 P2 P3", {"P1 12", "P2 0", "P3 0"},
                     {{"Need", "1"}});
  for (std::size_t tuple = 0; tuple < 3; ++tuple) {
    table.table.cell(tuple, 2) = numberCell(6);
  }
  EXPECT_EQ(table.value("Cover(#months, #Need, #Stock)"), 2);
}

TEST(Cover, OfAStockOfTheUnboundedValueIsUnbounded) {
  FormulaTable table = series({1e19, 1e19}, {0, 0});
  const int stock = table.field("Stock");
  for (const double amount : {1e20, 2e20, 1e300, std::numeric_limits<double>::infinity()}) {
    table.table.cell(kFirst, stock) = numberCell(amount);
    EXPECT_EQ(table.value("Cover(#weeks, #Demand, #Stock)", kFirst), 1e20) << amount;
  }
}

TEST(Cover, OfAHugeStockAndATinyDemandEndsAtOnce) {
  FormulaTable table = series({0.001, 0.001}, {9e19, 0});
  EXPECT_DOUBLE_EQ(table.value("Cover(#months, #Demand, #Stock)", kFirst), 9e22);
  FormulaTable small = series({0.001, 0.001}, {1e9, 0});
  EXPECT_DOUBLE_EQ(small.value("Cover(#months, #Demand, #Stock)", kFirst), 1e12);
}

TEST(Cover, OfNoNumberIsNoNumberAndEnds) {
  FormulaTable table = series({1, 1, 1}, {1, 1, 1});
  table.table.cell(kFirst, table.field("Stock")) =
      numberCell(std::numeric_limits<double>::quiet_NaN());
  EXPECT_TRUE(std::isnan(table.value("Cover(#months, #Demand, #Stock)", kFirst)));
  EXPECT_TRUE(std::isnan(table.value("InvCover(#months, #Demand, #Stock)", kFirst)));
}

TEST(Cover, WithADemandThatIsNoNumberIsNoNumberAndEnds) {
  FormulaTable table = series({1, 1, 1}, {100, 1, 1});
  const int demand = table.field("Demand");
  const Cell none = numberCell(std::numeric_limits<double>::quiet_NaN());
  table.table.cell(kFirst + 1, demand) = none;
  EXPECT_TRUE(std::isnan(table.value("Cover(#months, #Demand, #Stock)", kFirst)));
  table.table.cell(kFirst + 1, demand) = numberCell(1);
  table.table.cell(kFirst + 2, demand) = none;
  EXPECT_TRUE(std::isnan(table.value("Cover(#months, #Demand, #Stock)", kFirst)));
}

TEST(Depletion, TakesThePeriodsFromItsOffsetOn) {
  FormulaTable table = series({10, 10}, {15, 0});
  EXPECT_EQ(table.value("Depletion(#Demand, 0, #Stock, #d)", kFirst), 20 + 20 * 5.0 / 10);
}

TEST(Depletion, IsCoverWithItsWordsInAnotherOrder) {
  FormulaTable table = series({3, 5, 7, 9}, {21, 4, 80, 1});
  for (std::size_t tuple = kFirst; tuple < kFirst + 4; ++tuple) {
    EXPECT_EQ(table.value("Cover(#weeks, #Demand, #Stock)", tuple),
              table.value("Depletion(#Demand, 1, #Stock, #weeks, #forward, #last)", tuple));
    EXPECT_EQ(table.value("InvCover(#weeks, #Demand, #Stock, #avg)", tuple),
              table.value("InverseDepletion(#Demand, 1, #Stock, #weeks, #f, #avg)", tuple));
  }
}

TEST(Depletion, TruncatesItsOffset) {
  FormulaTable table = series({10, 20, 40}, {10, 0, 0});
  EXPECT_EQ(table.value("Depletion(#Demand, 1.9, #Stock, #m)", kFirst), 0.5);
  EXPECT_EQ(table.value("Depletion(#Demand, -0.9, #Stock, #m)", kFirst), 1);
}

TEST(Depletion, GoesBackwardsAndRepeatsTheFirstPeriodWithTheTuplesOwnDemand) {
  FormulaTable table = series({10, 20, 40}, {0, 0, 100});
  EXPECT_EQ(table.value("Depletion(#Demand, 0, #Stock, #m, #backward)", kFirst + 2), 3 + 30.0 / 40);
  EXPECT_EQ(table.value("Depletion(#Demand, 0, #Stock, #m, #b, #avg)", kFirst + 2),
            3 + 30.0 / (70.0 / 3));
}

TEST(Depletion, DoesNotTurnItsOffsetWithTheDirection) {
  FormulaTable table = series({10, 20, 40}, {0, 5, 0});
  EXPECT_EQ(table.value("Depletion(#Demand, 1, #Stock, #m, #b)", kFirst + 1), 5.0 / 40);
  EXPECT_EQ(table.value("Depletion(#Demand, -1, #Stock, #m, #b)", kFirst + 1), 5.0 / 10);
}

TEST(Depletion, BeginsWithTheSeriesWhenItsOffsetLiesBeforeIt) {
  FormulaTable table = series({10, 20, 40}, {30, 0, 0});
  EXPECT_EQ(table.value("Depletion(#Demand, -5, #Stock, #m)", kFirst), 2);
  EXPECT_EQ(table.value("Depletion(#Demand, -5, #Stock, #m, #b)", kFirst), 1 + 20.0 / 10);
  EXPECT_EQ(table.value("Depletion(#Demand, -1e300, #Stock, #m)", kFirst), 2);
}

TEST(Depletion, RepeatsTheLastPeriodWhenItsOffsetLiesBehindTheSeries) {
  FormulaTable table = series({10, 20, 40}, {100, 0, 0});
  EXPECT_EQ(table.value("Depletion(#Demand, 9, #Stock, #m)", kFirst), 2.5);
  EXPECT_EQ(table.value("Depletion(#Demand, 1e300, #Stock, #m)", kFirst), 2.5);
  EXPECT_EQ(table.value("Depletion(#Demand, 9, #Stock, #m, #b)", kFirst), 10);
}

TEST(Depletion, FailsForWordsThatItDoesNotKnow) {
  FormulaTable table = series({10, 20}, {100, 0});
  for (const std::string_view text :
       {"Depletion(#None, 0, #Stock, #m)", "Depletion(#Demand, 0, #None, #m)",
        "Depletion(#Item, 0, #Stock, #m)", "Depletion(#Demand, 0, #Period, #m)",
        "Depletion(#Demand, 0, #Stock, #years)", "Depletion(#Demand, 0, #Stock, #hours)",
        "Depletion(#Demand, 0, #Stock, #)", "Depletion(#Demand, 0, #Stock, #m, #up)",
        "Depletion(#Demand, 0, #Stock, #m, #)", "Depletion(#Demand, 0, #Stock, #m, #f, #mean)",
        "Depletion(#Demand, 0, #Stock, #m, #F)", "Cover(#m, #Demand, #Stock, #x)",
        "InverseDepletion(#Demand, 0, #Stock, #m, #up)",
        "InverseDepletion(#Demand, 0, #Stock, #m, #f, #mean)", "InvCover(#m, #Demand, #None)"}) {
    EXPECT_EQ(table.value(text, kFirst), kFailed) << text;
  }
}

TEST(Depletion, FailsForArgumentsOfTheWrongKind) {
  FormulaTable table = series({10, 20}, {100, 0});
  for (const std::string_view text :
       {"Depletion(Demand, 0, #Stock, #m)", "Depletion(#Demand, #0, #Stock, #m)",
        "Depletion(#Demand, 0, Stock, #m)", "Depletion(#Demand, 0, #Stock, 1)",
        "Depletion(#Demand, 0, #Stock, #m, 1)", "Depletion(#Demand, 0, #Stock, #m, #f, 1)",
        "Cover(1, #Demand, #Stock)", "Cover(#m, 1, #Stock)", "Cover(#m, #Demand, 1)",
        "Cover(#m, #Demand, #Stock, 1)", "InvCover(1, #Demand, #Stock)",
        "InverseDepletion(#Demand, #0, #Stock, #m)"}) {
    EXPECT_EQ(table.value(text, kFirst), kFailed) << text;
  }
}

TEST(Depletion, FailsInATableWithoutAPeriodField) {
  FormulaTable table = series({10}, {100});
  table.table.dateColumn = -1;
  EXPECT_EQ(table.value("Cover(#m, #Demand, #Stock)", kFirst), kFailed);
}

TEST(Depletion, FailsWithoutATable) {
  FormulaTable table = series({10}, {100});
  EXPECT_EQ(
      evaluate(*parseExpression("Cover(#m, #Demand, #Stock)", table.functions).expression).error,
      kFunctionFailed);
}

TEST(InvCover, IsTheStockForATimeFromTheNextPeriodOn) {
  FormulaTable table = series({1, 10, 20, 40}, {2.5, 0, 0, 0});
  EXPECT_EQ(table.value("InvCover(#months, #Demand, #Stock)", kFirst), 10 + 20 + 0.5 * 40);
  table.table.cell(kFirst, table.field("Stock")) = numberCell(30);
  EXPECT_EQ(table.value("InvCover(#days, #Demand, #Stock)", kFirst), 10 + 0.5 * 20);
}

TEST(InvCover, OfWholePeriodsEndsWithTheLastOfThem) {
  FormulaTable table = series({1, 10, 20}, {2, 0, 0});
  EXPECT_EQ(table.value("InvCover(#months, #Demand, #Stock)", kFirst), 30);
}

TEST(InvCover, OfNoTimeIsNothing) {
  FormulaTable table = series({1, 10, 20}, {0, 0, 0});
  EXPECT_EQ(table.value("InvCover(#months, #Demand, #Stock)", kFirst), 0);
}

TEST(InvCover, LetsTheLastPeriodOrTheMeanRepeatBehindTheSeries) {
  FormulaTable table = series({1, 10, 19}, {4.5, 0, 0});
  EXPECT_EQ(table.value("InvCover(#months, #Demand, #Stock)", kFirst), 29 + 2.5 * 19);
  EXPECT_EQ(table.value("InvCover(#months, #Demand, #Stock, #avg)", kFirst), 29 + 2.5 * 10);
}

TEST(InvCover, EndsBehindTheSeriesWhenNothingIsNeededThere) {
  FormulaTable table = series({1, 10, 0}, {1e20, 0, 0});
  EXPECT_EQ(table.value("InvCover(#months, #Demand, #Stock)", kFirst), 10);
}

TEST(InvCover, OfAnUnboundedTimeIsUnboundedWhereSomethingIsNeeded) {
  FormulaTable table = series({1, 10, 1}, {1e20, 0, 0});
  EXPECT_EQ(table.value("InvCover(#months, #Demand, #Stock)", kFirst), 1e20);
}

TEST(InvCover, OfAHugeTimeEndsAtOnce) {
  FormulaTable table = series({1, 10, 10}, {9e15, 0, 0});
  EXPECT_DOUBLE_EQ(table.value("InvCover(#months, #Demand, #Stock)", kFirst), 9e16);
}

TEST(InverseDepletion, TurnsItsOffsetWithTheDirection) {
  FormulaTable table = series({10, 20, 40}, {0, 0.5, 0});
  EXPECT_EQ(table.value("InverseDepletion(#Demand, 1, #Stock, #m, #f)", kFirst + 1), 20);
  EXPECT_EQ(table.value("InverseDepletion(#Demand, 1, #Stock, #m, #b)", kFirst + 1), 5);
  EXPECT_EQ(table.value("InverseDepletion(#Demand, -1, #Stock, #m, #b)", kFirst + 1), 20);
}

TEST(InverseDepletion, GoesBackwardsAndRepeatsTheFirstPeriodWithTheTuplesOwnDemand) {
  FormulaTable table = series({10, 20, 40}, {0, 0, 4.5});
  EXPECT_EQ(table.value("InverseDepletion(#Demand, 0, #Stock, #m, #backwards)", kFirst + 2),
            70 + 1.5 * 40);
}

TEST(InverseDepletion, BeginsWithTheSeriesWhenItsOffsetLiesBeforeIt) {
  FormulaTable table = series({10, 20, 40}, {1.5, 0, 0});
  EXPECT_EQ(table.value("InverseDepletion(#Demand, -5, #Stock, #m)", kFirst), 20);
  EXPECT_EQ(table.value("InverseDepletion(#Demand, 5, #Stock, #m, #b)", kFirst), 15);
}

TEST(InverseDepletion, RepeatsTheLastPeriodWhenItsOffsetLiesBehindTheSeries) {
  FormulaTable table = series({10, 20, 40}, {1.5, 0, 0});
  EXPECT_EQ(table.value("InverseDepletion(#Demand, 5, #Stock, #m)", kFirst), 60);
}

TEST(InverseDepletion, ComesBackwardsIntoTheSeriesByItsLastPeriodWithTheTuplesOwnDemand) {
  FormulaTable table = series({10, 20, 40}, {1.5, 0, 0});
  EXPECT_EQ(table.value("InverseDepletion(#Demand, -5, #Stock, #m, #b)", kFirst), 10 + 0.5 * 20);
  FormulaTable unneeded = series({0, 20, 40}, {1.5, 0, 0});
  EXPECT_EQ(unneeded.value("InverseDepletion(#Demand, -5, #Stock, #m, #b)", kFirst), 0);
}

// The rules period by period, over one item's values. It gives up where the periods behind the
// series would repeat without end.
class Steps {
 public:
  std::vector<double> demand;
  std::vector<double> length;
  std::vector<double> amount;
  bool backward = false;
  bool average = false;

  std::optional<double> depletion(int tuple, int offset) const {
    double stock = amount[at(tuple)];
    double total = 0;
    double needed = 0;
    int row = first(tuple + offset);
    for (;; row += step()) {
      if (!inside(row)) {
        return depletionBeyond(tuple, row, stock, total);
      }
      needed = demand[at(row)];
      if (stock < needed) {
        break;
      }
      total += length[at(row)];
      stock -= needed;
    }
    return needed != 0 ? total + length[at(row)] * stock / needed : total;
  }

  std::optional<double> inverse(int tuple, int offset) const {
    double cover = amount[at(tuple)];
    double total = 0;
    int row = first(tuple + step() * offset);
    for (int round = 0; round < kMostRounds; ++round, row += step()) {
      double needed = 0;
      if (inside(row)) {
        needed = demand[at(row)];
      } else {
        needed = beyond(tuple);
        if (needed == 0) {
          return total;
        }
        row = nearest(row);
      }
      const double period = length[at(row)];
      if (cover <= period) {
        return period == 0 ? total : total + cover / period * needed;
      }
      total += needed;
      cover -= period;
      if (cover == 0) {
        return total;
      }
    }
    return std::nullopt;
  }

 private:
  static constexpr int kMostRounds = 10000;

  static std::size_t at(int row) { return static_cast<std::size_t>(row); }
  int count() const { return static_cast<int>(demand.size()); }
  int step() const { return backward ? -1 : 1; }
  bool inside(int row) const { return row >= 0 && row < count(); }
  int nearest(int row) const { return row < 0 ? 0 : row >= count() ? count() - 1 : row; }
  static int first(int row) { return row < 0 ? 0 : row; }

  double beyond(int tuple) const {
    if (!average) {
      return backward ? demand[at(tuple)] : demand.back();
    }
    double sum = 0;
    for (const double each : demand) {
      sum += each;
    }
    return sum / count();
  }

  std::optional<double> depletionBeyond(int tuple, int row, double stock, double total) const {
    const double needed = beyond(tuple);
    if (needed <= 0) {
      return 1e20;
    }
    const double period = length[at(nearest(row))];
    for (int round = 0; round < kMostRounds; ++round) {
      if (stock < needed) {
        return total + period * stock / needed;
      }
      total += period;
      stock -= needed;
    }
    return std::nullopt;
  }
};

class RandomSeries {
 public:
  explicit RandomSeries(unsigned seed) : random_(seed) {
    const int count = pick(1, 6);
    for (int i = 0; i < count; ++i) {
      steps_.demand.push_back(pick(-1, 9) * 0.75);
      steps_.length.push_back(pick(0, 4) * 1.25);
      steps_.amount.push_back(pick(-4, 160) * 0.5);
    }
    steps_.backward = pick(0, 1) == 1;
    steps_.average = pick(0, 1) == 1;
  }

  // The series as a table, with others before and behind it. Periods are texts here, whose lengths
  // are stated.
  FormulaTable table() const {
    std::vector<std::string> lines = {"W0 0 3 3", "W9 Z 3 3"};
    for (std::size_t i = 0; i < steps_.demand.size(); ++i) {
      lines.push_back(fmt::format("W{} A {} {}", i, steps_.demand[i], steps_.amount[i]));
    }
    FormulaTable made("Week:String Item:String Demand:Number Amount:Number", "-", lines);
    for (std::size_t i = 0; i < steps_.length.size(); ++i) {
      addStatedLength(made.table.periodLengths, fmt::format("W{}", i), "days", steps_.length[i]);
    }
    return made;
  }

  std::string formula(std::string_view function, int offset) const {
    return fmt::format("{}(#Demand, {}, #Amount, #days, #{}, #{})", function, offset,
                       steps_.backward ? "b" : "f", steps_.average ? "avg" : "last");
  }

  const Steps& steps() const { return steps_; }

 private:
  int pick(int lowest, int highest) {
    return std::uniform_int_distribution<int>(lowest, highest)(random_);
  }

  std::mt19937 random_;
  Steps steps_;
};

void expectNear(double value, std::optional<double> expected, const std::string& what) {
  if (expected) {
    ASSERT_NEAR(value, *expected, 1e-9 * std::max(1.0, std::abs(*expected))) << what;
  }
}

TEST(TimeSeries, GiveWhatAWalkPeriodByPeriodGives) {
  for (unsigned seed = 1; seed <= 400; ++seed) {
    SCOPED_TRACE(seed);
    const RandomSeries random(seed);
    const Steps& steps = random.steps();
    FormulaTable made = random.table();
    ASSERT_EQ(made.table.dateColumn, 0);
    for (int tuple = 0; tuple < static_cast<int>(steps.demand.size()); ++tuple) {
      const auto position = kFirst + static_cast<std::size_t>(tuple);
      for (int offset = -8; offset <= 8; ++offset) {
        const std::string depletion = random.formula("Depletion", offset);
        expectNear(made.value(depletion, position), steps.depletion(tuple, offset), depletion);
        const std::string inverse = random.formula("InverseDepletion", offset);
        expectNear(made.value(inverse, position), steps.inverse(tuple, offset), inverse);
      }
    }
  }
}

}  // namespace
}  // namespace vrel
