// The functions that formulas may call.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vrel {

class FunctionArguments;

/// Computes a call's result; returns false when it cannot, and the whole formula fails.
using BuiltinFunction = bool (*)(const FunctionArguments& arguments, double& result);

/// How a call's arguments are evaluated.
enum class CallForm : std::uint8_t {
  /// All of them, before the call.
  Ordinary,
  /// A condition, then one of the two others.
  If,
  /// Only those that the bands ask for.
  RangeMap,
  /// Combined by an operator, one after the other.
  Sum,
  Largest,
  Smallest,
};

struct FunctionRecord {
  /// Cut after 63 bytes.
  std::string name;
  /// Null where the form says all about the call. With the forms that combine, only a call with a
  /// text argument comes here.
  BuiltinFunction function = nullptr;
  int minimum = 0;
  int maximum = 0;
  /// How the arguments are written, cut after 131 bytes.
  std::string usage = {};
  CallForm form = CallForm::Ordinary;
  /// The same arguments may give another result for the same tuple: by chance, or because more of
  /// its fields are computed by then.
  bool varies = false;
  /// Called once, without arguments, when a formula that names it is parsed.
  bool constant = false;
};

/// At most 256 functions in the order of their names' bytes.
class FunctionRegistry {
 public:
  /// Adds a function, or puts it in the place of the one of that name. One too many ends the
  /// process with a message on standard error.
  void add(FunctionRecord record);

  /// Null when there is none. Valid until the next `add`.
  const FunctionRecord* find(std::string_view name) const;

  std::span<const FunctionRecord> records() const { return records_; }

 private:
  std::vector<FunctionRecord> records_;
};

}  // namespace vrel
