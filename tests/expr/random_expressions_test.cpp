// Made-up formulas, each written as text and evaluated by the program, against what the rules of
// the language say about the tree that it was written from.
#include <fmt/format.h>
#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "support/formulas.h"
#include "support/tables.h"

namespace vrel {
namespace {

// What a formula was made of. A number, a field or an operator has its text in `word`; a call has
// its function's name.
struct Tree {
  enum class Kind { Number, Field, Text, Minus, Operator, Call };

  Kind kind = Kind::Number;
  std::string word;
  std::vector<Tree> parts;
};

struct Result {
  double value = 0;
  int error = 0;
};

Result failed(int error) {
  return {.value = 0, .error = error};
}

struct Field {
  std::string_view name;
  double value;
};

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

// The fields of the table's only tuple.
constexpr std::array kFields = {
    Field{"Demand", 10},      Field{"Stock", 0},        Field{"'Net Demand'", -2.5},
    Field{"Unbounded", 1e20}, Field{"Open", 1},         Field{"Shut", 0},
    Field{"F", 3.25},         Field{"G", 1.797693e308}, Field{"H", kNan},
    Field{"Demand:1", 10},    Field{"F:-1", 3.25},      Field{"Open:#1", 1},
};

constexpr std::array<std::string_view, 10> kNumbers = {"0",   "1",    "2", "0.5",  "7",
                                                       "100", "1e19", "*", "3.25", "10"};

struct Operation {
  std::string_view word;
  int level;
};

constexpr std::array kOperations = {
    Operation{"AND", 1}, Operation{"OR", 1}, Operation{"XOR", 1}, Operation{"=", 2},
    Operation{"<>", 2},  Operation{"!=", 2}, Operation{"<", 2},   Operation{">", 2},
    Operation{"<=", 2},  Operation{">=", 2}, Operation{"+", 3},   Operation{"-", 3},
    Operation{"*", 4},   Operation{"/", 4},  Operation{"%", 4},
};

constexpr int kComparison = 2;
constexpr int kPrefix = 5;

int levelOf(const std::string& word) {
  for (const Operation& operation : kOperations) {
    if (operation.word == word) {
      return operation.level;
    }
  }
  return kPrefix;
}

struct Function {
  std::string_view name;
  int minimum;
  int maximum;
};

constexpr std::array kFunctions = {
    Function{"IF", 3, 3},      Function{"RANGEMAP", 2, 7}, Function{"SUM", 2, 4},
    Function{"MAX", 2, 4},     Function{"MIN", 2, 4},      Function{"AVG", 2, 4},
    Function{"PRODUCT", 2, 4}, Function{"ABS", 1, 1},      Function{"SQRT", 1, 1},
    Function{"NOT", 1, 1},     Function{"PERCENT", 2, 2},  Function{"OVERUNDER", 3, 3},
    Function{"BETWEEN", 3, 3}, Function{"GETOL", 3, 3},    Function{"TRUE", 0, 0},
    Function{"GRAY", 0, 0},
};

Result evaluate(const Tree& tree);

Result truth(bool holds) {
  return {.value = holds ? 1.0 : 0.0};
}

double product(double a, double b) {
  const bool bounded = a < 1e20 && b < 1e20;
  const bool exact = a == 1 || b == 1 || a == 0 || b == 0;
  return bounded || exact ? a * b : 1e20;
}

Result divided(const Tree& tree) {
  const Result divisor = evaluate(tree.parts[1]);
  if (divisor.error != 0) {
    return divisor;
  }
  if (divisor.value == 0) {
    return failed(102);
  }
  const Result dividend = evaluate(tree.parts[0]);
  if (dividend.error != 0) {
    return dividend;
  }
  if (dividend.value >= 1e20) {
    return {.value = 1e20};
  }
  return {.value = tree.word == "/" ? dividend.value / divisor.value
                                    : std::fmod(dividend.value, divisor.value)};
}

Result compared(const std::string& word, double a, double b) {
  if (word == "<") {
    return truth(a < b);
  }
  if (word == ">") {
    return truth(a > b);
  }
  if (word == "<=") {
    return truth(a <= b);
  }
  if (word == ">=") {
    return truth(a >= b);
  }
  return truth(word == "=" ? a == b : !(a == b));
}

Result operated(const Tree& tree) {
  if (tree.word == "/" || tree.word == "%") {
    return divided(tree);
  }
  const Result left = evaluate(tree.parts[0]);
  if (left.error != 0) {
    return left;
  }
  const Result right = evaluate(tree.parts[1]);
  if (right.error != 0) {
    return right;
  }
  const double a = left.value;
  const double b = right.value;
  if (tree.word == "+") {
    return {.value = a + b};
  }
  if (tree.word == "-") {
    return {.value = a - b};
  }
  if (tree.word == "*") {
    return {.value = product(a, b)};
  }
  if (tree.word == "AND") {
    return truth(a != 0 && b != 0);
  }
  if (tree.word == "OR") {
    return truth(a != 0 || b != 0);
  }
  if (tree.word == "XOR") {
    return truth((a != 0) != (b != 0));
  }
  return compared(tree.word, a, b);
}

bool hasText(const Tree& call) {
  for (const Tree& part : call.parts) {
    if (part.kind == Tree::Kind::Text) {
      return true;
    }
  }
  return false;
}

Result chosen(const Tree& call) {
  if (hasText(call)) {
    return failed(104);
  }
  const Result condition = evaluate(call.parts[0]);
  if (condition.error != 0) {
    return condition;
  }
  return evaluate(call.parts[condition.value == 0 ? 2 : 1]);
}

// The bounds stand at 1, 3, ... below the last argument.
Result mapped(const Tree& call) {
  if (hasText(call)) {
    return failed(104);
  }
  const std::size_t count = call.parts.size();
  if (count == 2) {
    return evaluate(call.parts[1]);
  }
  const Result ignored = evaluate(call.parts[0]);
  if (ignored.error != 0) {
    return ignored;
  }
  std::vector<double> bounds;
  for (std::size_t i = 1; i + 1 < count; i += 2) {
    const Result bound = evaluate(call.parts[i]);
    if (bound.error != 0) {
      return bound;
    }
    if (!bounds.empty() && bounds.back() > bound.value) {
      return failed(104);
    }
    bounds.push_back(bound.value);
  }
  for (std::size_t i = 0; i < bounds.size(); ++i) {
    if (bounds[i] < 0) {
      return failed(104);
    }
    const bool above = i == 0 || 0 > bounds[i - 1];
    if (above && bounds[i] >= 0) {
      return evaluate(call.parts[2 * i + 2]);
    }
  }
  return count % 2 == 0 ? evaluate(call.parts.back()) : Result{};
}

Result folded(const std::string& name, const std::vector<double>& numbers) {
  double result = numbers[0];
  for (std::size_t i = 1; i < numbers.size(); ++i) {
    const double each = numbers[i];
    if (name == "SUM" || name == "AVG") {
      result += each;
    } else if (name == "PRODUCT") {
      result *= each;
    } else if (name == "MAX" ? each > result : each < result) {
      result = each;
    }
  }
  return {.value = name == "AVG" ? result / static_cast<double>(numbers.size()) : result};
}

Result computed(const std::string& name, const std::vector<double>& n) {
  if (name == "ABS") {
    return {.value = std::fabs(n[0])};
  }
  if (name == "SQRT") {
    return n[0] < 0 ? failed(104) : Result{.value = std::sqrt(n[0])};
  }
  if (name == "NOT") {
    return truth(n[0] == 0);
  }
  if (name == "PERCENT") {
    const Result byZero = n[0] == 0 ? Result{} : failed(104);
    return n[1] == 0 ? byZero : Result{.value = n[0] / n[1] * 100};
  }
  if (name == "OVERUNDER") {
    const double over = n[1] > n[2] ? n[1] - n[2] : 0;
    return n[0] > n[2] ? failed(104) : Result{.value = n[1] < n[0] ? n[1] - n[0] : over};
  }
  if (name == "BETWEEN") {
    return truth(n[0] <= n[1] && n[1] <= n[2]);
  }
  if (name == "GETOL") {
    return truth(std::fabs(n[0] - n[1]) >= std::fabs(n[2]) || n[0] >= n[1]);
  }
  return n.empty() ? Result{.value = 1} : folded(name, n);
}

Result called(const Tree& call) {
  if (call.word == "IF") {
    return chosen(call);
  }
  if (call.word == "RANGEMAP") {
    return mapped(call);
  }
  std::vector<double> numbers;
  for (const Tree& part : call.parts) {
    if (part.kind == Tree::Kind::Text) {
      continue;
    }
    const Result number = evaluate(part);
    if (number.error != 0) {
      return number;
    }
    numbers.push_back(number.value);
  }
  return hasText(call) ? failed(104) : computed(call.word, numbers);
}

Result valueOfField(const std::string& name) {
  for (const Field& field : kFields) {
    if (field.name == name) {
      return {.value = field.value};
    }
  }
  return failed(103);
}

// A literal takes its sign, whatever number of minuses makes it; all else is taken from 0.
bool isLiteral(const Tree& tree) {
  return tree.kind == Tree::Kind::Minus ? isLiteral(tree.parts[0])
                                        : tree.kind == Tree::Kind::Number && tree.word != "*";
}

Result negated(const Tree& tree) {
  const Result operand = evaluate(tree);
  if (operand.error != 0) {
    return operand;
  }
  return {.value = isLiteral(tree) ? -operand.value : 0 - operand.value};
}

Result evaluate(const Tree& tree) {
  switch (tree.kind) {
    case Tree::Kind::Number:
      return {.value = tree.word == "*" ? 1e20 : std::strtod(tree.word.c_str(), nullptr)};
    case Tree::Kind::Field:
      return valueOfField(tree.word);
    case Tree::Kind::Operator:
      return operated(tree);
    case Tree::Kind::Call:
      return called(tree);
    case Tree::Kind::Minus:
      return negated(tree.parts[0]);
    case Tree::Kind::Text:
      break;
  }
  return {};
}

class Maker {
 public:
  explicit Maker(std::uint32_t seed) : random_(seed) {}

  Tree tree(int depth) {
    switch (depth <= 0 ? below(4) : below(12)) {
      case 0:
      case 1:
        return {.kind = Tree::Kind::Number, .word = std::string(oneOf(kNumbers)), .parts = {}};
      case 2:
        return {.kind = Tree::Kind::Field, .word = std::string(oneOf(kFields).name), .parts = {}};
      case 3:
        return {.kind = Tree::Kind::Field,
                .word = below(8) == 0 ? "Nothing" : std::string(oneOf(kFields).name),
                .parts = {}};
      case 4:
        return {.kind = Tree::Kind::Minus, .word = "-", .parts = {tree(depth - 1)}};
      case 5:
      case 6:
      case 7:
        return call(depth);
      default:
        return {.kind = Tree::Kind::Operator,
                .word = std::string(oneOf(kOperations).word),
                .parts = {tree(depth - 1), tree(depth - 1)}};
    }
  }

  std::string text(const Tree& tree) { return blanks() + operand(tree, 1) + blanks(); }

 private:
  int below(int limit) { return static_cast<int>(random_() % static_cast<std::uint32_t>(limit)); }

  template <typename List>
  const typename List::value_type& oneOf(const List& list) {
    return list[static_cast<std::size_t>(below(static_cast<int>(list.size())))];
  }

  Tree call(int depth) {
    const Function& function = oneOf(kFunctions);
    const int count = function.minimum + below(function.maximum - function.minimum + 1);
    Tree result = {.kind = Tree::Kind::Call, .word = std::string(function.name), .parts = {}};
    for (int i = 0; i < count; ++i) {
      if (below(60) == 0) {
        result.parts.push_back({.kind = Tree::Kind::Text, .word = "#Demand", .parts = {}});
      } else {
        result.parts.push_back(tree(depth - 1));
      }
    }
    return result;
  }

  std::string blanks() {
    return std::string(below(4) == 0 ? static_cast<std::size_t>(below(3)) : 0, ' ');
  }

  // Parentheses around what binds less tightly than its place wants, and now and then around what
  // does not need them; not around a literal behind a minus, which would be another formula.
  std::string operand(const Tree& tree, int level, bool behindMinus = false) {
    const std::string inside = plain(tree);
    const bool needed = tree.kind == Tree::Kind::Operator && levelOf(tree.word) < level;
    const bool redundant = !behindMinus && below(8) == 0;
    return needed || redundant ? "(" + blanks() + inside + blanks() + ")" : inside;
  }

  std::string plain(const Tree& tree) {
    switch (tree.kind) {
      case Tree::Kind::Minus:
        return "-" + blanks() + operand(tree.parts[0], kPrefix, true);
      case Tree::Kind::Operator:
        return operatorText(tree);
      case Tree::Kind::Call:
        return callText(tree);
      default:
        return tree.word;
    }
  }

  std::string operatorText(const Tree& tree) {
    const int level = levelOf(tree.word);
    // Words need blanks around them, and so does "%", which would become part of a name.
    const bool isWord = level == 1 || tree.word == "%";
    const std::string blank = isWord ? " " : "";
    return operand(tree.parts[0], level == kComparison ? level + 1 : level) + blank + blanks() +
           tree.word + blank + blanks() + operand(tree.parts[1], level + 1);
  }

  std::string callText(const Tree& tree) {
    std::string text = tree.word + blanks() + "(" + blanks();
    for (std::size_t i = 0; i < tree.parts.size(); ++i) {
      text += i == 0 ? "" : blanks() + "," + blanks();
      text +=
          tree.parts[i].kind == Tree::Kind::Text ? tree.parts[i].word : operand(tree.parts[i], 1);
    }
    return text + blanks() + ")";
  }

  std::mt19937 random_;
};

std::string textOf(const Result& result) {
  if (result.error != 0) {
    return fmt::format("error {}", result.error);
  }
  return std::isnan(result.value)
             ? "nan"
             : fmt::format("{} {:x}", result.value, std::bit_cast<std::uint64_t>(result.value));
}

Table tableOfFields() {
  Table table = test::tableOf(
      "Item:String Demand:Number Stock:Number Net:Number Unbounded:Number Open:Boolean "
      "Shut:Boolean F:Number G:Number H:Number",
      "W1", {"Bolt 10 undefined -2.5 * Yes No 3.25 1.797693e308 0"});
  table.field(3).name = "Net Demand";
  for (const int field : {7, 8, 9}) {
    test::setFormula(table, field, "1/0");
  }
  table.cell(0, 9) = numberCell(kNan);
  return table;
}

TEST(RandomExpressions, ComeToWhatTheRulesSay) {
  Table table = tableOfFields();
  test::FormulaBench bench(table);
  Maker maker(20140815);
  std::map<int, int> errors;
  for (int i = 0; i < 20000; ++i) {
    const Tree tree = maker.tree(1 + i % 6);
    const std::string text = maker.text(tree);
    ASSERT_NE(test::parsed(text).substr(0, 5), "error") << text;
    const Evaluation evaluation = bench.evaluation(text);
    const Result expected = evaluate(tree);
    ASSERT_EQ(textOf({.value = evaluation.value, .error = evaluation.error}), textOf(expected))
        << text;
    ++errors[expected.error];
  }
  // All kinds of results came up, and often.
  EXPECT_GT(errors[kNoError], 5000);
  EXPECT_GT(errors[kDivisionByZero], 500);
  EXPECT_GT(errors[kUnresolvedField], 500);
  EXPECT_GT(errors[kFunctionFailed], 500);
}

}  // namespace
}  // namespace vrel
