#include "expr/field_functions.h"

#include <algorithm>
#include <string>

#include "expr/builtins.h"
#include "expr/colours.h"
#include "expr/formula_context.h"
#include "expr/function_arguments.h"
#include "expr/number_range.h"
#include "expr/time_series.h"

namespace vrel {
namespace {

using Arguments = const FunctionArguments&;

// Stores a number in the tuple's cell of a field, or in the scratch field.
bool store(FormulaContext& context, std::size_t tuple, FieldPlace place, double number) {
  switch (place.kind) {
    case PlaceKind::Number:
    case PlaceKind::Boolean:
      storeNumber(context, tuple, place.column, number);
      return true;
    case PlaceKind::Scratch:
      context.scratch = numberCell(number);
      return true;
    case PlaceKind::Formula:
    case PlaceKind::None:
      break;
  }
  return false;
}

// Belongs in inverse formulas: a forward formula must not change what others compute with.
bool assign(Arguments arguments, double& result) {
  FormulaContext* const context = arguments.context();
  result = 1;
  return context != nullptr && !context->recalculating && arguments.isText(0) &&
         !arguments.isText(1) &&
         store(*context, arguments.tuple(), arguments.place(0), arguments.number(1));
}

double valueAtOffset(Arguments arguments, double offset, double outOfRange) {
  FormulaContext& context = *arguments.context();
  const OffsetReference reference = {.place = arguments.place(0), .offset = toInt32(offset)};
  const std::optional<std::size_t> tuple = resolveTuple(context, arguments.tuple(), reference);
  return tuple && reference.place.kind != PlaceKind::None
             ? numberAt(context, *tuple, reference.place)
             : outOfRange;
}

bool relOffset(Arguments arguments, double& result) {
  const bool hasOutOfRange = arguments.count() > 2;
  if (arguments.context() == nullptr || !arguments.isText(0) || arguments.isText(1) ||
      (hasOutOfRange && arguments.isText(2))) {
    return false;
  }
  result = valueAtOffset(arguments, arguments.number(1), hasOutOfRange ? arguments.number(2) : 0);
  return true;
}

template <int offset>
bool neighbour(Arguments arguments, double& result) {
  const bool hasOutOfRange = arguments.count() > 1;
  if (arguments.context() == nullptr || !arguments.isText(0) ||
      (hasOutOfRange && arguments.isText(1))) {
    return false;
  }
  result = valueAtOffset(arguments, offset, hasOutOfRange ? arguments.number(1) : 0);
  return true;
}

// A message that a formula has for every tuple is shown for the first one only.
void show(FormulaContext& context, const std::string& message) {
  std::vector<std::string>& shown = context.shownMessages;
  if (context.notice.hasWindow() && std::find(shown.begin(), shown.end(), message) == shown.end()) {
    shown.push_back(message);
    context.notice.beep();
    context.notice.critical(editorTitle(context.notice), message);
  }
}

// Always fails, so that the formula does.
bool error(Arguments arguments, double& /*result*/) {
  if (arguments.context() != nullptr && arguments.isText(0)) {
    show(*arguments.context(), std::string(arguments.text(0)));
  }
  return false;
}

}  // namespace

void addAllFunctions(FunctionRegistry& functions) {
  addBuiltins(functions);
  functions.add({.name = "Assign",
                 .function = assign,
                 .minimum = 2,
                 .maximum = 2,
                 .usage = "(#tofield, expr)"});
  functions.add({.name = "RelOffset",
                 .function = relOffset,
                 .minimum = 2,
                 .maximum = 3,
                 .usage = "(#field, offset, outOfRangeValue)",
                 .varies = true});
  functions.add({.name = "Prev",
                 .function = neighbour<-1>,
                 .minimum = 1,
                 .maximum = 2,
                 .usage = "(#field, outOfRangeValue)"});
  functions.add({.name = "Next",
                 .function = neighbour<1>,
                 .minimum = 1,
                 .maximum = 2,
                 .usage = "(#field, outOfRangeValue)"});
  functions.add(
      {.name = "ERROR", .function = error, .minimum = 1, .maximum = 1, .usage = "(#errorMessage)"});
  addTimeSeriesFunctions(functions);
  addColours(functions);
}

}  // namespace vrel
