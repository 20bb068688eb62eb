// The manual of the formula language is what the program does: every example in its tables is run.
#include <fmt/format.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <optional>
#include <set>

#include "base/words.h"
#include "expr/cell_edit.h"
#include "expr/formula.h"
#include "expr/recalculation.h"
#include "expr/tokenizer.h"
#include "model/table_sort.h"
#include "support/formulas.h"
#include "support/tables.h"

namespace vrel {
namespace {

using Row = std::vector<std::string>;

// One table of the manual: its headings and its rows.
struct ManualTable {
  Row headings;
  std::vector<Row> rows;
};

// The cells of a line of a table, without blanks around them and without back quotes.
Row cellsOf(const std::string& line) {
  Row cells;
  for (std::size_t at = 1; at < line.size();) {
    const std::size_t end = std::min(line.find('|', at), line.size());
    std::string_view cell = trimBlanks(std::string_view(line).substr(at, end - at));
    if (cell.size() > 1 && cell.front() == '`' && cell.back() == '`' &&
        std::count(cell.begin(), cell.end(), '`') == 2) {
      cell = cell.substr(1, cell.size() - 2);
    }
    cells.emplace_back(cell);
    at = end + 1;
  }
  return cells;
}

std::vector<ManualTable> readManual() {
  std::ifstream file(VREL_DOCS "/formulas.md", std::ios::binary);
  std::vector<ManualTable> tables;
  bool inTable = false;
  for (std::string line; std::getline(file, line);) {
    if (!line.starts_with('|')) {
      inTable = false;
    } else if (!inTable) {
      inTable = true;
      tables.push_back({.headings = cellsOf(line), .rows = {}});
    } else if (!line.starts_with("|-")) {
      tables.back().rows.push_back(cellsOf(line));
    }
  }
  return tables;
}

const std::vector<ManualTable>& manual() {
  static const std::vector<ManualTable> kManual = readManual();
  return kManual;
}

// The tables whose headings begin like this.
std::vector<const ManualTable*> tablesWith(const Row& headings) {
  std::vector<const ManualTable*> found;
  for (const ManualTable& table : manual()) {
    if (table.headings.size() >= headings.size() &&
        std::equal(headings.begin(), headings.end(), table.headings.begin())) {
      found.push_back(&table);
    }
  }
  return found;
}

std::string typeOf(const std::string& field) {
  const std::map<std::string, std::string> types = {
      {"Item", "String"}, {"Month", "Period"}, {"Promoted", "Boolean"}};
  const auto type = types.find(field);
  return type == types.end() ? "Number" : type->second;
}

std::string joined(const Row& words) {
  std::string line;
  for (const std::string& word : words) {
    line += word + "\t";
  }
  return line + "\n";
}

// The table that the examples are about, with more fields of numbers that are 0.
Table exampleTable(const Row& moreFields = {}) {
  const ManualTable& source = *tablesWith({"Item", "Month"}).at(0);
  Row names = source.headings;
  names.insert(names.end(), moreFields.begin(), moreFields.end());
  Row types;
  std::transform(names.begin(), names.end(), std::back_inserter(types), typeOf);
  std::string text = "FieldNames:\t" + joined(names) + "FieldTypes:\t" + joined(types) +
                     "PeriodValues:\tJan\tFeb\tMar\tApr\t\n";
  for (const Row& row : source.rows) {
    text += joined(row);
  }
  Table table = test::tableFrom(text);
  sortTuples(table);
  return table;
}

// The tuple that a heading stands for: a month of the first item, or the first tuple of all.
std::optional<std::size_t> tupleOf(const Table& table, const std::string& heading) {
  for (std::size_t tuple = 0; tuple < table.tupleCount; ++tuple) {
    if (heading == "Result" || periodName(table.field(1), table.cell(tuple, 1)) == heading) {
      return tuple;
    }
  }
  return std::nullopt;
}

// As a report shows it, with ten digits.
std::string shown(double value) {
  if (value == kErrorValue) {
    return "*error*";
  }
  return value == kUnbounded ? "*" : fmt::format("{:.10g}", value);
}

std::string shown(const Evaluation& evaluation) {
  return shown(evaluation.ok() ? evaluation.value : kErrorValue);
}

TEST(Manual, HasTheExamplesTable) {
  EXPECT_EQ(exampleTable().tupleCount, 6U);
}

TEST(Manual, FormulasComeToTheResultsThatItStates) {
  int examples = 0;
  for (const ManualTable* source : tablesWith({"Formula"})) {
    for (const Row& row : source->rows) {
      for (std::size_t column = 1; column < row.size(); ++column) {
        Table table = exampleTable();
        if (const auto tuple = tupleOf(table, source->headings[column])) {
          test::FormulaBench bench(table);
          EXPECT_EQ(shown(bench.evaluation(row[0], *tuple)), row[column])
              << row[0] << " in " << source->headings[column];
          ++examples;
        }
      }
    }
  }
  EXPECT_GT(examples, 150);
}

int fieldNamed(const Table& table, const std::string& name) {
  const auto field = std::find_if(table.fields.begin(), table.fields.end(),
                                  [&name](const FieldDef& each) { return each.name == name; });
  return static_cast<int>(field - table.fields.begin());
}

// The example's table with the formula fields that rows of the manual state.
Table withFields(const std::vector<Row>& rows) {
  Row names;
  for (const Row& row : rows) {
    names.push_back(row[0]);
  }
  Table table = exampleTable(names);
  for (const Row& row : rows) {
    const int field = fieldNamed(table, row[0]);
    test::setFormula(table, field, row[1]);
    table.field(field).classification = Classification::DataReadWrite;
  }
  return table;
}

TEST(Manual, FormulaFieldsComeToTheResultsThatItStates) {
  const auto sources = tablesWith({"Field", "Formula", "Jan"});
  EXPECT_EQ(sources.size(), 3U);
  for (const ManualTable* source : sources) {
    Table table = withFields(source->rows);
    test::SilentNotice notice;
    FormulaContext context{.table = table, .notice = notice};
    recalculateTable(context, test::allFunctions());
    for (const Row& row : source->rows) {
      for (std::size_t month = 2; month < row.size(); ++month) {
        const std::size_t tuple = *tupleOf(table, source->headings[month]);
        EXPECT_EQ(shown(table.cell(tuple, fieldNamed(table, row[0])).number), row[month])
            << row[0] << " in " << source->headings[month];
      }
    }
  }
}

TEST(Manual, EditsOfFormulaFieldsHaveTheConsequencesThatItStates) {
  const ManualTable& source = *tablesWith({"Field", "Formula", "Inverse formula", "Typed"}).at(0);
  EXPECT_EQ(source.rows.size(), 3U);
  for (const Row& row : source.rows) {
    Table table = withFields({row});
    setText(table.fields.back().inverseExpression, row[2]);
    test::FormulaBench bench(table);
    EXPECT_TRUE(setCell(bench.evaluator(), 0, fieldNamed(table, row[0]), row[3]).accepted());
    for (std::size_t column = 4; column < row.size(); ++column) {
      const int field = fieldNamed(table, source.headings[column]);
      EXPECT_EQ(shown(table.cell(0, field).number), row[column]) << row[0];
    }
  }
}

// The functions and operators of all examples, as they are written there.
std::set<std::string> wordsOfExamples() {
  std::set<std::string> words;
  for (const ManualTable* source : tablesWith({"Formula", "Result"})) {
    for (const Row& row : source->rows) {
      Tokenizer tokenizer(row[0]);
      for (Token token = tokenizer.next(); token.kind != TokenKind::End; token = tokenizer.next()) {
        words.insert(row[0].substr(token.start, tokenizer.position() - token.start));
      }
    }
  }
  for (const ManualTable* source : tablesWith({"Formula", "Jan"})) {
    for (const Row& row : source->rows) {
      words.insert(row[0].substr(0, row[0].find('(')));
    }
  }
  return words;
}

TEST(Manual, HasAnExampleOfEveryFunction) {
  const std::set<std::string> words = wordsOfExamples();
  for (const FunctionRecord& record : test::allFunctions().records()) {
    EXPECT_TRUE(words.contains(record.name)) << record.name;
  }
}

TEST(Manual, HasAnExampleOfEveryOperator) {
  const std::set<std::string> words = wordsOfExamples();
  for (const char* operation :
       {"AND", "OR", "XOR", "=", "<>", "!=", "<", ">", "<=", ">=", "+", "-", "*", "/", "%"}) {
    EXPECT_TRUE(words.contains(operation)) << operation;
  }
}

}  // namespace
}  // namespace vrel
