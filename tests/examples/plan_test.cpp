// The example's files must be what they claim to be: a consistent plan and a view as the program
// itself writes it.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "model/table_reader.h"
#include "model/table_sort.h"
#include "model/view_file.h"
#include "support/views.h"

namespace vrel {
namespace {

enum Column { kItem, kLocation, kPeriod, kDemand, kSupply, kStorage, kPrice, kActive, kColumns };

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
  EXPECT_EQ(table.tupleCount, 12U * 4U * 24U);
  EXPECT_EQ(table.field(kItem).texts.size() - 1, 12U);
  EXPECT_EQ(table.field(kLocation).texts.size() - 1, 4U);
}

TEST_F(Plan, HasDatesForPeriods) {
  EXPECT_EQ(table.field(kPeriod).type, FieldType::Date);
}

TEST_F(Plan, StoresWhatWasThereAndCameInAndWasNotAskedFor) {
  for (std::size_t tuple = 1; tuple < table.tupleCount; ++tuple) {
    if (tuple % 24 != 0) {
      EXPECT_EQ(number(tuple, kStorage),
                number(tuple - 1, kStorage) + number(tuple, kSupply) - number(tuple, kDemand));
    }
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

}  // namespace
}  // namespace vrel
