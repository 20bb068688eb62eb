// The example's files must be what they claim to be: a consistent plan and a view as the program
// itself writes it.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "expr/cell_edit.h"
#include "expr/field_functions.h"
#include "expr/recalculation.h"
#include "model/table_reader.h"
#include "model/table_sort.h"
#include "model/view_file.h"
#include "support/views.h"

namespace vrel {
namespace {

enum Column {
  kGroup,
  kItem,
  kLocation,
  kPeriod,
  kDemand,
  kSupply,
  kOpening,
  kPrice,
  kActive,
  kColumns,
  kStorage = kColumns,
  kCover
};

constexpr std::size_t kWeeks = 24;
constexpr int kRed = 1;
constexpr int kOrange = 3;

std::string contents(const std::string& name) {
  std::ifstream file(VREL_EXAMPLES "/" + name, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

// The plan in key order: the weeks of an item at a depot follow each other.
class Plan : public testing::Test {
 protected:
  Plan() {
    std::optional<TextInput> input = TextInput::open(VREL_EXAMPLES "/plan.tbl");
    EXPECT_TRUE(input && loadFromFile(table, *input));
    settleTypes(table);
    sortTuples(table);
  }

  double number(std::size_t tuple, int field) const { return numberOf(table.cell(tuple, field)); }

  Table table;
};

TEST_F(Plan, HasTwelveItemsAtFourDepotsInTwentyFourWeeks) {
  EXPECT_EQ(table.tupleCount, 12U * 4U * kWeeks);
  EXPECT_EQ(table.field(kGroup).texts.size() - 1, 4U);
  EXPECT_EQ(table.field(kItem).texts.size() - 1, 12U);
  EXPECT_EQ(table.field(kLocation).texts.size() - 1, 4U);
}

TEST_F(Plan, HasDatesForPeriods) {
  EXPECT_EQ(table.field(kPeriod).type, FieldType::Date);
}

TEST_F(Plan, HasStockCountedBeforeTheFirstWeekOnly) {
  for (std::size_t tuple = 0; tuple < table.tupleCount; ++tuple) {
    EXPECT_EQ(number(tuple, kOpening) > 0, tuple % kWeeks == 0);
  }
}

TEST_F(Plan, HasOnePriceForEachItem) {
  std::map<std::uint32_t, double> prices;
  for (std::size_t tuple = 0; tuple < table.tupleCount; ++tuple) {
    const auto [price, isNew] =
        prices.emplace(table.cell(tuple, kItem).text, number(tuple, kPrice));
    EXPECT_EQ(price->second, number(tuple, kPrice));
  }
}

TEST_F(Plan, AsksForNothingWhereAnItemIsNotActive) {
  std::size_t inactive = 0;
  for (std::size_t tuple = 0; tuple < table.tupleCount; ++tuple) {
    if (!table.cell(tuple, kActive).boolean) {
      EXPECT_EQ(number(tuple, kDemand) + number(tuple, kSupply), 0);
      ++inactive;
    }
  }
  EXPECT_EQ(inactive, 9U);
}

TEST_F(Plan, NamesEveryCellToTheHost) {
  std::set<std::string> notes;
  for (std::size_t tuple = 0; tuple < table.tupleCount; ++tuple) {
    for (int field = 0; field < kColumns; ++field) {
      notes.insert(std::string(noteOf(table, tuple, field)));
    }
  }
  EXPECT_EQ(notes.size(), table.tupleCount * kColumns);
  EXPECT_TRUE(notes.contains("plan/0001/item"));
  EXPECT_TRUE(notes.contains("plan/1152/active"));
}

TEST_F(Plan, HasAViewThatFitsAndIsWrittenBackByteForByte) {
  test::SilentNotice notice;
  FormatSettings settings;
  std::string messages;
  std::string written;
  {
    TextOutput errors = TextOutput::toMemory(messages);
    ReportView view = makeReportView(table, notice);
    EXPECT_TRUE(
        readViewFile(view, contents("plan.view"), settings, processEnvironment(), notice, errors));
    TextOutput output = TextOutput::toMemory(written);
    writeViewFile(view, output);
  }
  EXPECT_EQ(messages, "");
  EXPECT_EQ(written, contents("plan.view"));
}

// The plan as its view shows it, with formulas computed.
class PlanInItsView : public Plan {
 protected:
  PlanInItsView() {
    std::string text = contents("plan.view");
    const std::string periodFile = "plan.per";
    text.replace(text.find(periodFile), periodFile.size(), VREL_EXAMPLES "/plan.per");
    TextOutput errors = TextOutput::toMemory(messages);
    view = makeReportView(table, notice);
    EXPECT_TRUE(readViewFile(view, text, settings, processEnvironment(), notice, errors));
    addAllFunctions(functions);
    FormulaContext context{.table = table, .notice = notice};
    EXPECT_TRUE(recalculateTable(context, functions));
  }

  // The first tuple of an item at a depot.
  std::size_t seriesOf(std::string_view item, std::string_view location) const {
    std::size_t tuple = 0;
    while (tuple < table.tupleCount &&
           (stringText(table.field(kItem), table.cell(tuple, kItem)) != item ||
            stringText(table.field(kLocation), table.cell(tuple, kLocation)) != location)) {
      ++tuple;
    }
    return tuple;
  }

  std::vector<double> column(int field) const {
    std::vector<double> numbers;
    for (std::size_t tuple = 0; tuple < table.tupleCount; ++tuple) {
      numbers.push_back(number(tuple, field));
    }
    return numbers;
  }

  test::SilentNotice notice;
  FormatSettings settings;
  std::string messages;
  ReportView view;
  FunctionRegistry functions;
};

TEST_F(PlanInItsView, StoresWhatWasThereAndCameInAndWasNotAskedFor) {
  for (std::size_t tuple = 0; tuple < table.tupleCount; ++tuple) {
    const double before =
        tuple % kWeeks == 0 ? number(tuple, kOpening) : number(tuple - 1, kStorage);
    EXPECT_EQ(number(tuple, kStorage), before + number(tuple, kSupply) - number(tuple, kDemand));
  }
}

TEST_F(PlanInItsView, StatesALengthForEachWeek) {
  for (std::size_t week = 0; week < kWeeks; ++week) {
    const std::int64_t start = table.cell(week, kPeriod).time;
    const double weeks = statedLengthFrom(table.periodLengths, start, "weeks").value_or(0);
    const double days = statedLengthFrom(table.periodLengths, start, "days").value_or(0);
    EXPECT_TRUE(days == 4 || days == 5);
    EXPECT_EQ(weeks, days / 5);
  }
}

TEST_F(PlanInItsView, CoversTheWeeksThatAStockLasts) {
  const std::size_t first = seriesOf("Apple juice", "Bremen");
  EXPECT_EQ(number(first, kStorage), 692);
  EXPECT_DOUBLE_EQ(number(first, kCover), 1 + (692 - 585) / 484.0);
  // The two weeks around Easter have four working days.
  EXPECT_EQ(number(first + 11, kStorage), 929);
  EXPECT_DOUBLE_EQ(number(first + 11, kCover), 0.8 + 0.8 * (929 - 569) / 689.0);
}

TEST_F(PlanInItsView, CoversAYearWhereNothingIsNeededAnyMore) {
  const std::size_t first = seriesOf("Tomato juice", "Turin");
  EXPECT_EQ(number(first + 14, kStorage), 142);
  EXPECT_EQ(number(first + 14, kCover), 52);
  EXPECT_EQ(number(first + 23, kCover), 52);
}

TEST_F(PlanInItsView, RunsShortWhereTheSupplierFailsAndNowhereElse) {
  const std::size_t first = seriesOf("Iced tea peach", "Lyon");
  for (std::size_t tuple = 0; tuple < table.tupleCount; ++tuple) {
    const bool isShort = first + 10 <= tuple && tuple <= first + 13;
    EXPECT_EQ(number(tuple, kStorage) < 0, isShort);
    EXPECT_EQ(highlightOf(table, tuple, kStorage), isShort ? kRed : 0);
    EXPECT_EQ(highlightOf(table, tuple, kCover), number(tuple, kCover) < 1 ? kOrange : 0);
  }
}

TEST_F(PlanInItsView, StaysAsItIsWhenItsInverseFormulasRun) {
  const std::vector<double> supply = column(kSupply);
  const std::vector<double> storage = column(kStorage);
  FormulaContext context{.table = table, .notice = notice};
  Evaluator evaluator(context, functions);
  EXPECT_TRUE(applyInverseFormulas(evaluator));
  EXPECT_EQ(column(kSupply), supply);
  EXPECT_EQ(column(kStorage), storage);
}

TEST_F(PlanInItsView, SuppliesWhatATypedStorageOrCoverTakes) {
  const std::size_t first = seriesOf("Apple juice", "Bremen");
  FormulaContext context{.table = table, .notice = notice};
  Evaluator evaluator(context, functions);
  EXPECT_EQ(setCell(evaluator, first, kStorage, "1,000").inverse, InverseOutcome::Applied);
  EXPECT_EQ(number(first, kSupply), 1000 - 1295 + 603);
  EXPECT_EQ(setCell(evaluator, first, kCover, "2").inverse, InverseOutcome::Applied);
  EXPECT_EQ(number(first, kStorage), 585 + 484);
  EXPECT_EQ(number(first, kCover), 2);
  EXPECT_EQ(setCell(evaluator, first, kCover, "0").inverse, InverseOutcome::Applied);
  EXPECT_EQ(number(first, kSupply), 0) << "nothing is taken back";
}

}  // namespace
}  // namespace vrel
