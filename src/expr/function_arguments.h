// What a function of the formula language sees of its call.
#pragma once

#include <cstddef>
#include <string_view>

#include "expr/program.h"

namespace vrel {

struct FormulaContext;

/// Arguments count from 0. A function must ask for a number only where there is one; see `isText`.
class FunctionArguments {
 public:
  /// None, and no context: how a constant is called.
  FunctionArguments() = default;
  FunctionArguments(const BoundCall& call, const double* numbers, FormulaContext* context,
                    std::size_t tuple)
      : call_(&call), numbers_(numbers), context_(context), tuple_(tuple) {}

  int count() const { return call_ == nullptr ? 0 : static_cast<int>(call_->arguments.size()); }
  bool isText(int index) const { return argument(index).slot < 0; }
  bool allNumbers() const { return call_ == nullptr || call_->numbers == count(); }
  double number(int index) const { return numbers_[argument(index).slot]; }
  /// Without its "#".
  std::string_view text(int index) const { return argument(index).text; }
  /// The field that a text argument names.
  FieldPlace place(int index) const { return argument(index).place; }

  /// Null when the formula is not about a table.
  FormulaContext* context() const { return context_; }
  std::size_t tuple() const { return tuple_; }

 private:
  const BoundArgument& argument(int index) const {
    return call_->arguments[static_cast<std::size_t>(index)];
  }

  const BoundCall* call_ = nullptr;
  const double* numbers_ = nullptr;
  FormulaContext* context_ = nullptr;
  std::size_t tuple_ = 0;
};

}  // namespace vrel
