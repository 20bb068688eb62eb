// Made-up formulas over a small table: all that parses is evaluated, in every place where the
// program evaluates formulas. The lines of the file are the expressions of two formula fields, the
// inverse formula of the first, a highlight formula, and a text typed into a cell.
#include "expr/formula.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>
#include <vector>

#include "expr/cell_edit.h"
#include "expr/field_functions.h"
#include "expr/parser.h"
#include "expr/recalculation.h"
#include "fuzzing.h"
#include "model/report_layout.h"
#include "silent_notice.h"

using vrel::fuzz::require;

namespace {

enum Line { kFirst, kSecond, kInverse, kHighlight, kTyped, kLineCount };
using Lines = std::array<std::string_view, kLineCount>;

enum Column { kDemand = 2, kStock, kOpen, kFirstFormula, kSecondFormula, kColumnCount };

constexpr const char* kNamedPeriods =
    "FieldNames:\tItem\tPeriod\tDemand\tStock\tOpen\tF\tG\t\n"
    "FieldTypes:\tString\tPeriod\tNumber\tNumber\tBoolean\tNumber\tNumber\t\n"
    "PeriodValues:\tW1\tW2\tW3\t\n"
    "Bolt\tW1\t10\t30\tYes\n"
    "Bolt\tW2\t10.5\t0\tNo\n"
    "Bolt\tW3\t-3\tundefined\tNo\n"
    "Nut\tW1\t*\t1234567.891\tYes\n"
    "Nut\tW2\t0\t1e-7\tNo\n";

// The same with dates and with texts in the place of the period names.
constexpr const char* kDates =
    "FieldNames:\tItem\tPeriod\tDemand\tStock\tOpen\tF\tG\t\n"
    "FieldTypes:\tString\tDate\tNumber\tNumber\tBoolean\tNumber\tNumber\t\n"
    "PeriodValues:\tW1\t\n"
    "Bolt\t1/1/2024\t10\t30\tYes\n"
    "Bolt\t1/8/2024\t10.5\t0\tNo\n"
    "Bolt\t1/8/2024\t-3\tundefined\tNo\n"
    "Nut\t1/1/2024\t*\t1234567.891\tYes\n"
    "Nut\t2/1/2024\t0\t1e-7\tNo\n";

Lines linesOf(std::string_view file) {
  Lines lines;
  for (std::string_view& line : lines) {
    line = file.substr(0, file.find('\n'));
    file.remove_prefix(std::min(line.size() + 1, file.size()));
  }
  return lines;
}

const vrel::FunctionRegistry& functions() {
  static const vrel::FunctionRegistry kFunctions = [] {
    vrel::FunctionRegistry registry;
    vrel::addAllFunctions(registry);
    return registry;
  }();
  return kFunctions;
}

// Formulas that are not about a table, such as those that scale an axis.
void evaluateAlone(std::string_view text) {
  for (const bool fieldOffsets : {false, true}) {
    for (const bool variable : {false, true}) {
      const vrel::ParseResult result = vrel::parseExpression(
          text, functions(), {.fieldOffsets = fieldOffsets, .variable = variable});
      require(result.expression.has_value() == (result.error == vrel::ParseError::None),
              "a formula has an expression or an error");
      require(result.errorPosition <= text.size(), "an error stands in the text");
      if (result.expression) {
        vrel::evaluate(*result.expression, 2.5);
      }
    }
  }
}

std::vector<vrel::Cell> cellsOf(const vrel::Table& table) {
  return {table.tuple(0), table.tuple(table.tupleCount)};
}

bool sameCells(const vrel::Table& table, const std::vector<vrel::Cell>& cells) {
  return std::memcmp(table.tuple(0), cells.data(), cells.size() * sizeof(vrel::Cell)) == 0;
}

void type(vrel::Evaluator& evaluator, std::string_view text) {
  vrel::Table& table = evaluator.context().table;
  for (int column = 0; column < kColumnCount; ++column) {
    const std::vector<vrel::Cell> before = cellsOf(table);
    const vrel::CellEdit edit = vrel::setCell(evaluator, 1, column, text);
    require(edit.accepted() || sameCells(table, before), "a refused edit changes nothing");
    require(!edit.errorPosition || *edit.errorPosition <= text.size(),
            "an edit's error stands in the text");
  }
}

void checkErrors(const vrel::Table& table) {
  for (const vrel::FieldDef& field : table.fields) {
    for (const vrel::Formula* formula :
         {&field.expression, &field.inverseExpression, &field.highlightExpression}) {
      require(!formula->errorPosition || *formula->errorPosition <= formula->text.size(),
              "a formula's error stands in its text");
    }
  }
}

void checkColours(const vrel::Table& table) {
  constexpr int kColours = 127;
  for (std::size_t tuple = 0; tuple < table.tupleCount; ++tuple) {
    for (int column = 0; column < kColumnCount; ++column) {
      require(vrel::highlightOf(table, tuple, column) < kColours, "a colour is one of 127");
    }
  }
}

void setFormulas(vrel::Table& table, const Lines& lines) {
  for (const int column : {kFirstFormula, kSecondFormula}) {
    table.field(column).type = vrel::FieldType::Expression;
  }
  for (int column = kDemand; column < kSecondFormula; ++column) {
    table.field(column).classification = vrel::Classification::DataReadWrite;
  }
  vrel::setText(table.field(kFirstFormula).expression, lines[kFirst]);
  vrel::setText(table.field(kSecondFormula).expression, lines[kSecond]);
  vrel::setText(table.field(kFirstFormula).inverseExpression, lines[kInverse]);
  vrel::setText(table.field(kDemand).highlightExpression, lines[kHighlight]);
}

void evaluateOver(vrel::Table table, const Lines& lines) {
  vrel::bench::SilentNotice notice;
  setFormulas(table, lines);
  vrel::addStatedLength(table.periodLengths, "W2", "days", 5);
  vrel::addStatedLength(table.periodLengths, "1/8/2024", "weeks", 1.5);
  vrel::FormulaContext context{.table = table, .notice = notice};
  vrel::recalculateTable(context, functions());
  vrel::Evaluator evaluator(context, functions());
  type(evaluator, lines[kTyped]);
  vrel::applyInverseFormulas(evaluator);
  vrel::recalculateTable(context, functions());
  checkErrors(table);
  checkColours(table);
  vrel::ReportView view = vrel::makeReportView(table, notice);
  vrel::fuzz::showReport(vrel::layOut(view), vrel::FormatSettings());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Lines lines = linesOf(vrel::fuzz::madeUpFile(data, size));
  for (const std::string_view line : lines) {
    evaluateAlone(line);
    vrel::withoutSeparators(line);
  }
  evaluateOver(vrel::fuzz::tableFrom(kNamedPeriods), lines);
  evaluateOver(vrel::fuzz::tableFrom(kDates), lines);
  vrel::Table dated = vrel::fuzz::tableFrom(kDates);
  vrel::settleTypes(dated);
  evaluateOver(std::move(dated), lines);
  return 0;
}
