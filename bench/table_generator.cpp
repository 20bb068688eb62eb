#include "table_generator.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <cstring>
#include <numeric>
#include <vector>

namespace vrel::bench {
namespace {

// SplitMix64: the standard library's distributions differ between libraries, this does not.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  std::uint64_t next() {
    std::uint64_t mixed = state_ += 0x9e37'79b9'7f4a'7c15;
    mixed = (mixed ^ (mixed >> 30)) * 0xbf58'476d'1ce4'e5b9;
    mixed = (mixed ^ (mixed >> 27)) * 0x94d0'49bb'1331'11eb;
    return mixed ^ (mixed >> 31);
  }
  /// From 0 to `limit - 1`.
  std::uint32_t below(std::uint32_t limit) {
    return static_cast<std::uint32_t>(((next() >> 32) * limit) >> 32);
  }

 private:
  std::uint64_t state_;
};

struct NumberColumn {
  std::string_view name;
  /// In hundredths: values lie from `least` to `least + span - 1`.
  std::int32_t least;
  std::uint32_t span;
};

constexpr NumberColumn kNumbers[] = {
    {"Demand", 0, 200'000},
    {"Supply", 0, 200'000},
    {"Stock", -50'000, 1'000'000},
    {"Price", 100, 50'000},
};

std::vector<std::uint32_t> shuffled(std::uint64_t count, Random& random) {
  std::vector<std::uint32_t> order(count);
  std::iota(order.begin(), order.end(), 0U);
  for (std::uint32_t left = static_cast<std::uint32_t>(count); left > 1; --left) {
    std::swap(order[left - 1], order[random.below(left)]);
  }
  return order;
}

char* appendText(char* at, std::string_view text) {
  std::memcpy(at, text.data(), text.size());
  return at + text.size();
}

char* appendDigits(char* at, std::uint32_t number, int digits) {
  for (int i = digits - 1; i >= 0; --i) {
    at[i] = static_cast<char>('0' + number % 10);
    number /= 10;
  }
  return at + digits;
}

char* appendHundredths(char* at, std::int32_t hundredths) {
  if (hundredths < 0) {
    *at++ = '-';
    hundredths = -hundredths;
  }
  const auto value = static_cast<std::uint32_t>(hundredths);
  at = std::to_chars(at, at + 16, value / 100).ptr;
  *at++ = '.';
  return appendDigits(at, value % 100, 2);
}

// The four numbers and the boolean of a line.
char* appendValues(char* at, Random& random) {
  for (const NumberColumn& column : kNumbers) {
    *at++ = '\t';
    at = appendHundredths(at, column.least + static_cast<std::int32_t>(random.below(column.span)));
  }
  return appendText(at, random.below(4) == 0 ? "\tNo" : "\tYes");
}

// Notes as a host gives them: the number of the record and of the value within it.
char* appendNotes(char* at, std::uint32_t record) {
  at = appendText(at, "\t### ");
  for (std::uint32_t value = 0; value < 8; ++value) {
    if (value > 0) {
      *at++ = ',';
    }
    *at++ = 'r';
    at = std::to_chars(at, at + 16, record).ptr;
    *at++ = '.';
    at = appendDigits(at, value, 1);
  }
  return at;
}

char* appendKeys(char* at, std::uint32_t item, std::uint32_t location) {
  *at++ = 'I';
  at = appendDigits(at, item + 1, 6);
  at = appendText(at, "\tL");
  at = appendDigits(at, location + 1, 2);
  *at++ = '\t';
  return at;
}

std::string periodName(std::uint32_t period) {
  return fmt::format("{}-W{:02}", 2024 + period / 52, period % 52 + 1);
}

void writeHeader(std::string_view thirdKey, std::string_view thirdType,
                 const std::vector<std::string>& periods, TextOutput& output) {
  output.write(fmt::format("FieldNames:Item\tLocation\t{}\t", thirdKey));
  for (const NumberColumn& column : kNumbers) {
    output.write(fmt::format("{}\t", column.name));
  }
  output.write("Active\t\n");
  output.write(fmt::format(
      "FieldTypes:String\tString\t{}\tNumber\tNumber\tNumber\tNumber\tBoolean\t\n", thirdType));
  output.write(fmt::format("PeriodValues:{}\t\n", fmt::join(periods, "\t")));
}

constexpr std::size_t kMaxLine = 512;

}  // namespace

std::uint32_t itemsForTuples(std::uint64_t tuples) {
  const PlanShape shape;
  const std::uint64_t perItem = std::uint64_t{shape.locations} * shape.periods;
  return static_cast<std::uint32_t>((tuples + perItem - 1) / perItem);
}

void writePlan(const PlanShape& shape, TextOutput& output) {
  std::vector<std::string> periods(shape.periods);
  for (std::uint32_t period = 0; period < shape.periods; ++period) {
    periods[period] = periodName(period);
  }
  writeHeader(kPlanColumnField, "Period", periods, output);

  Random random(shape.seed);
  const std::uint64_t tuples = std::uint64_t{shape.items} * shape.locations * shape.periods;
  for (const std::uint32_t tuple : shuffled(tuples, random)) {
    const std::uint32_t series = tuple / shape.periods;
    char* at = output.reserve(kMaxLine);
    at = appendKeys(at, series / shape.locations, series % shape.locations);
    at = appendText(at, periods[tuple % shape.periods]);
    at = appendValues(at, random);
    at = shape.notes ? appendNotes(at, tuple) : at;
    *at++ = '\n';
    output.advance(at);
  }
}

void writeSparse(const SparseShape& shape, TextOutput& output) {
  writeHeader(kSparseColumnField, "String", {"none"}, output);
  Random random(shape.seed);
  const std::uint32_t perRow = std::max(1U, shape.tuples / shape.rows);
  // Stepping through a row's columns by a fixed stride from a random start never meets a column
  // twice, and together the rows use all of them.
  const std::uint32_t stride = std::max(1U, shape.columns / perRow);
  std::vector<std::uint32_t> starts(shape.rows);
  std::generate(starts.begin(), starts.end(), [&] { return random.below(shape.columns); });
  for (const std::uint32_t tuple : shuffled(std::uint64_t{perRow} * shape.rows, random)) {
    const std::uint32_t row = tuple / perRow;
    const std::uint32_t column = (starts[row] + tuple % perRow * stride) % shape.columns;
    char* at = appendKeys(output.reserve(kMaxLine), row, row % 10);
    *at++ = 'B';
    at = appendDigits(at, column + 1, 5);
    at = appendValues(at, random);
    *at++ = '\n';
    output.advance(at);
  }
}

void writeView(std::string_view thirdKey, TextOutput& output) {
  const auto field = [&](std::size_t index, std::string_view name, std::string_view type,
                         std::string_view classification) {
    output.write(fmt::format(
        "addfield <Name> \"{}\" <Index> \"{}\" <Type> \"{}\" <Classification> \"{}\" <Hide> No "
        "<HighlightExpression> \"BLACK()\" \n",
        name, index, type, classification));
  };
  output.write(
      "numberoffields 8\nsetdateformat \"%d-%b-%Y\"\nsetusertitle \"Measured plan\"\n"
      "precision 2\nperiodfilename \"\"\n");
  field(0, "Item", "string", "key");
  field(1, "Location", "string", "key");
  field(2, thirdKey, thirdKey == kPlanColumnField ? "period" : "string", "key");
  for (std::size_t i = 0; i < std::size(kNumbers); ++i) {
    field(3 + i, kNumbers[i].name, "number", "dataReadWrite");
  }
  field(7, "Active", "boolean", "dataReadOnly");
  output.write(
      "definexfields \"0\" \"1\" \ndefineyfields \"2\" \ndefinezfields \n"
      "definedatafields \"3\" \"4\" \"5\" \"6\" \ndefinehiddenfields \"7\" \n"
      "setflags <DataInColumns> \"False\" <RepeatLabels> \"False\" "
      "<ShowEmptyRowsAndColumns> \"False\" <ShowSystemTitle> \"True\" \n");
}

}  // namespace vrel::bench
