// Tables with formula fields for tests, and a person who watches them computed.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "expr/evaluator.h"
#include "expr/field_functions.h"
#include "model/table.h"
#include "support/views.h"

namespace vrel::test {

/// Keeps what it is told and may stop long work.
class Watcher : public SilentNotice {
 public:
  void critical(std::string_view title, std::string_view text) override {
    told.push_back(std::string(title) + ": " + std::string(text));
  }
  void beep() override { ++beeps; }
  bool progress(std::string_view task, std::uint64_t /*done*/, std::uint64_t /*total*/) override {
    tasks.emplace_back(task);
    return task != stopped;
  }
  bool hasWindow() const override { return window; }

  bool window = false;
  /// The task that is stopped at its first sign of progress.
  std::string stopped;
  std::vector<std::string> told;
  int beeps = 0;
  std::vector<std::string> tasks;
};

/// A formula field: its name and its formula.
struct FormulaOf {
  std::string name;
  std::string formula;
  std::string inverse = "_undefined_";
};

/// A sorted table with formula fields behind its plain ones, and all that formulas need.
class FormulaTable {
 public:
  /// The first three as for `tableOf`; fields without a classification of their own may be edited.
  FormulaTable(std::string_view fields, std::string_view periods,
               const std::vector<std::string>& lines, const std::vector<FormulaOf>& formulas = {});

  /// Evaluates a formula for a tuple.
  Evaluation evaluate(std::string_view text, std::size_t tuple);
  /// Its value; the error's number, negated, when it has none.
  double value(std::string_view text, std::size_t tuple = 0);
  /// The numbers of a field in all tuples.
  std::vector<double> column(std::string_view field) const;
  int field(std::string_view name) const;

  Table table;
  FunctionRegistry functions;
  Watcher notice;
  FormulaContext context = {.table = table, .notice = notice};
};

}  // namespace vrel::test
