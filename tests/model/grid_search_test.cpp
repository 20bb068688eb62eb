#include "model/grid_search.h"

#include <gtest/gtest.h>

#include "base/case_folding.h"
#include "model/report_layout.h"
#include "support/random_reports.h"
#include "support/tables.h"
#include "support/views.h"

namespace vrel {
namespace {

using test::breakOf;
using test::RandomReport;
using test::tableOf;
using test::viewOf;

Table plan() {
  return tableOf("Item:String Place:String Week:Period Qty:Number Note:String", "W1 W2",
                 {"Bolt North W1 1 late", "Bolt North W2 2 \"\"", "Bolt South W1 3 Late",
                  "Bolt South W2 1400 ok", "Écrou North W1 6 ok", "Écrou North W2 7 late"});
}

// "2,3", with "wrapped" behind it when the search went round; "none" or "cancelled".
std::string textOf(const SearchResult& result) {
  if (result.outcome != SearchOutcome::Found) {
    return result.outcome == SearchOutcome::NotFound ? "none" : "cancelled";
  }
  return std::to_string(result.place.row) + "," + std::to_string(result.place.column) +
         (result.wrapped ? " wrapped" : "");
}

struct Search : testing::Test {
  //   Item  Place  data  W1    W2
  // 0 Bolt  North  Qty   1     2
  // 1              Note  late
  // 2       South  Qty   3     1,400
  // 3              Note  Late  ok
  // 4 Écrou North  Qty   6     7
  // 5              Note  ok    late
  Table table = plan();
  ReportView view = viewOf(table, {0, 1}, {2}, {}, {3, 4});
  ReportGrid grid = layOut(view);
  FormatSettings settings{.precision = 0, .dateFormat = ""};

  std::string next(std::string_view text, std::optional<GridPlace> from = std::nullopt) {
    return textOf(findNext(grid, settings, text, from));
  }
  std::string previous(std::string_view text, std::optional<GridPlace> from = std::nullopt) {
    return textOf(findPrevious(grid, settings, text, from));
  }
};

TEST_F(Search, GoesRowByRowFromTheFirstCell) {
  EXPECT_EQ(next("late"), "1,3");
  EXPECT_EQ(next("2"), "0,4");
  EXPECT_EQ(next("South"), "2,1") << "labels are looked at";
  EXPECT_EQ(next("note"), "1,2") << "and the names of data";
  EXPECT_EQ(next("missing"), "none");
}

TEST_F(Search, GoesOnBehindAPlace) {
  EXPECT_EQ(next("late", GridPlace{1, 3}), "3,3");
  EXPECT_EQ(next("late", GridPlace{3, 3}), "5,4");
  EXPECT_EQ(next("o", GridPlace{3, 3}), "3,4");
  EXPECT_EQ(next("o", GridPlace{4, 0}), "4,1");
}

TEST_F(Search, GoesOnAtTheOtherEnd) {
  EXPECT_EQ(next("late", GridPlace{5, 4}), "1,3 wrapped");
  EXPECT_EQ(next("1,4", GridPlace{2, 4}), "2,4 wrapped") << "the place itself comes last";
  EXPECT_EQ(next("bolt", GridPlace{0, 1}), "0,0 wrapped");
  EXPECT_EQ(previous("late", GridPlace{1, 3}), "5,4 wrapped");
  EXPECT_EQ(previous("bolt", GridPlace{0, 0}), "0,0 wrapped");
  EXPECT_EQ(previous("7", GridPlace{4, 2}), "4,4 wrapped");
}

TEST_F(Search, GoesBackFromAPlaceOrTheLastCell) {
  EXPECT_EQ(previous("late"), "5,4");
  EXPECT_EQ(previous("late", GridPlace{5, 4}), "3,3");
  EXPECT_EQ(previous("late", GridPlace{3, 3}), "1,3");
  EXPECT_EQ(previous("o", GridPlace{3, 4}), "3,2");
  EXPECT_EQ(previous("o", GridPlace{0, 2}), "0,1");
  EXPECT_EQ(previous("missing", GridPlace{2, 2}), "none");
}

TEST_F(Search, LooksAtShownTextsRegardlessOfCase) {
  EXPECT_EQ(next("1,400"), "2,4");
  EXPECT_EQ(next("1400"), "none") << "a separator is shown";
  EXPECT_EQ(next("ÉCROU"), "4,0");
  EXPECT_EQ(next("LATE", GridPlace{2, 0}), "3,3");
  settings.thousandsSeparators = false;
  EXPECT_EQ(next("1400"), "2,4");
}

TEST_F(Search, DoesNotFindLabelsThatAreNotShown) {
  EXPECT_EQ(next("bolt", GridPlace{0, 0}), "0,0 wrapped") << "rows 1 to 3 repeat it";
  table.field(0).hidden = true;
  EXPECT_EQ(next("bolt"), "none");
}

TEST_F(Search, FindsSummariesAndTheirNames) {
  view = viewOf(table, {0, 1}, {2}, {}, {3});
  view.breaks = {breakOf(0, kBreakAtEnd, {{3, BreakOperation::Sum}}),
                 breakOf(2, kBreakAtEnd, {{3, BreakOperation::Sum}})};
  grid = layOut(view);
  ASSERT_EQ(test::gridLines(grid).back(), "Total||10|1,409|1,419");
  EXPECT_EQ(next("total"), "3,0");
  EXPECT_EQ(next("409"), "3,3");
  EXPECT_EQ(previous("13"), "2,4");
}

TEST_F(Search, FindsNothingInNothing) {
  EXPECT_EQ(next(""), "none");
  EXPECT_EQ(previous(""), "none");
  EXPECT_EQ(textOf(findNext(ReportGrid(), settings, "a", std::nullopt)), "none");
  EXPECT_EQ(textOf(findPrevious(ReportGrid(), settings, "a", GridPlace{0, 0})), "none");
}

TEST_F(Search, StartsAnewFromAPlaceThatTheGridDoesNotHave) {
  EXPECT_EQ(next("late", GridPlace{6, 0}), "1,3");
  EXPECT_EQ(previous("late", GridPlace{6, 0}), "5,4");
  EXPECT_EQ(next("late", GridPlace{3, 99}), "5,4");
}

// 120,000 rows of one cell.
struct LongSearch : testing::Test {
  LongSearch() {
    std::string text = "FieldNames:\tRow\tQty\t\nFieldTypes:\tNumber\tNumber\t\nPeriodValues:\t\n";
    for (int row = 0; row < 120'000; ++row) {
      text += std::to_string(row) + "\t7\t\n";
    }
    table = test::tableFrom(text);
    view = viewOf(table, {0}, {}, {}, {1});
    grid = layOut(view);
  }

  Table table;
  ReportView view;
  ReportGrid grid;
  std::vector<std::size_t> signs;
  SearchProgress stopAfter(std::size_t count) {
    return [this, count](std::size_t done, std::size_t rows) {
      EXPECT_EQ(rows, 120'000U);
      signs.push_back(done);
      return signs.size() < count;
    };
  }
};

TEST_F(LongSearch, TellsHowFarItIs) {
  EXPECT_EQ(textOf(findNext(grid, {}, "missing", std::nullopt, stopAfter(9))), "none");
  EXPECT_EQ(signs, (std::vector<std::size_t>{24'999, 49'999, 74'999, 99'999}));
}

TEST_F(LongSearch, CanBeCancelled) {
  EXPECT_EQ(textOf(findNext(grid, {}, "missing", std::nullopt, stopAfter(2))), "cancelled");
  EXPECT_EQ(signs.size(), 2U);
  EXPECT_EQ(textOf(findPrevious(grid, {}, "missing", std::nullopt, stopAfter(3))), "cancelled");
}

// The places of a grid in the order of a search from `from`, which comes last.
std::vector<GridPlace> placesFrom(const ReportGrid& grid, GridPlace from) {
  const std::size_t count = grid.rows * grid.columns;
  std::vector<GridPlace> places;
  for (std::size_t step = 1; step <= count; ++step) {
    const std::size_t index = (from.row * grid.columns + from.column + step) % count;
    places.push_back({index / grid.columns, index % grid.columns});
  }
  return places;
}

std::string foundAmong(const ReportGrid& grid, const std::vector<GridPlace>& places,
                       std::string wanted, const std::function<bool(GridPlace)>& isWrapped) {
  foldCase(wanted);
  for (const GridPlace place : places) {
    std::string text = cellText(grid, FormatSettings(), place.row, place.column);
    foldCase(text);
    if (text.find(wanted) != std::string::npos) {
      return textOf({SearchOutcome::Found, place, isWrapped(place)});
    }
  }
  return "none";
}

bool isBefore(GridPlace a, GridPlace b) {
  return a.row != b.row ? a.row < b.row : a.column < b.column;
}

TEST(RandomSearches, FindWhatLookingCellByCellFinds) {
  std::mt19937 random(6);
  int found = 0;
  for (int round = 0; round < 1000; ++round) {
    const RandomReport report(random);
    const ReportGrid& grid = report.grid;
    const GridPlace from{test::randomBelow(random, grid.rows),
                         test::randomBelow(random, grid.columns)};
    for (const std::string text :
         {"BOLT", "écrou", "1", "12", "late", "Total", "ERROR", "qty", "undef", "*", "-0.5"}) {
      std::vector<GridPlace> places = placesFrom(grid, from);
      const std::string next =
          foundAmong(grid, places, text, [&](GridPlace each) { return !isBefore(from, each); });
      ASSERT_EQ(textOf(findNext(grid, {}, text, from)), next) << round << text;
      // The other way round, with the place itself still last.
      std::reverse(places.begin(), places.end() - 1);
      const std::string previous =
          foundAmong(grid, places, text, [&](GridPlace each) { return !isBefore(each, from); });
      ASSERT_EQ(textOf(findPrevious(grid, {}, text, from)), previous) << round << text;
      found += next == "none" ? 0 : 1;
    }
  }
  EXPECT_GT(found, 2000);
}

}  // namespace
}  // namespace vrel
