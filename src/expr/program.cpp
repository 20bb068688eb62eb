#include "expr/program.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <optional>
#include <utility>

#include "expr/machine.h"

namespace vrel {
namespace {

struct PlaceOfType {
  FieldType type;
  PlaceKind kind;
};

// The types whose fields formulas can name.
constexpr std::array<PlaceOfType, 3> kPlaces = {{
    {FieldType::Number, PlaceKind::Number},
    {FieldType::Boolean, PlaceKind::Boolean},
    {FieldType::Expression, PlaceKind::Formula},
}};

PlaceKind placeKindOf(FieldType type) {
  const auto* const row =
      std::find_if(kPlaces.begin(), kPlaces.end(),
                   [type](const PlaceOfType& each) { return each.type == type; });
  return row == kPlaces.end() ? PlaceKind::None : row->kind;
}

// "-12", "+12" or nothing at all, which is 0. Farther than any table goes counts as that far.
std::int64_t offsetOf(std::string_view text) {
  if (text.starts_with('+')) {
    text.remove_prefix(1);
  }
  std::int32_t offset = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), offset);
  if (result.ec == std::errc::result_out_of_range) {
    return text.starts_with('-') ? std::numeric_limits<std::int32_t>::min()
                                 : std::numeric_limits<std::int32_t>::max();
  }
  return offset;
}

// A reference as it was written, resolved.
struct Reference {
  bool hasOffset = false;
  OffsetReference target;
};

Reference resolve(std::string_view text, const FieldPlaces& places) {
  const std::size_t colon = text.find(':');
  Reference reference;
  reference.target.place = places.find(text.substr(0, colon));
  if (colon != std::string_view::npos) {
    std::string_view offset = text.substr(colon + 1);
    reference.hasOffset = true;
    reference.target.absolute = offset.starts_with('#');
    offset.remove_prefix(reference.target.absolute ? 1 : 0);
    reference.target.offset = offsetOf(offset);
  }
  return reference;
}

// The operand of an instruction, where one can hold it.
struct Simple {
  Operand operand;
  Instruction instruction;
};

class Compiler {
 public:
  Compiler(const Expression& expression, const FieldPlaces& places)
      : expression_(expression), places_(places) {}

  Program compile() {
    emitLater(finish);
    expandLater(expression_.root);
    while (!tasks_.empty()) {
      const Task task = tasks_.back();
      tasks_.pop_back();
      switch (task.kind) {
        case Task::Kind::Expand:
          expand(task.node);
          break;
        case Task::Kind::Emit:
          emit(task.instruction);
          break;
        case Task::Kind::Label:
          labels_[static_cast<std::size_t>(task.label)] = program_.code.size();
          break;
      }
    }
    resolveJumps();
    return std::move(program_);
  }

 private:
  // What is still to be done, the next one last: nesting costs no recursion.
  struct Task {
    enum class Kind { Expand, Emit, Label };

    Kind kind;
    std::int32_t node = kNoNode;
    Instruction instruction = {};
    int label = 0;
  };

  void expandLater(std::int32_t node) {
    tasks_.push_back({.kind = Task::Kind::Expand, .node = node});
  }
  void emitLater(Instruction instruction) {
    tasks_.push_back({.kind = Task::Kind::Emit, .instruction = instruction});
  }
  void emitLater(Handler run) { emitLater({.run = run, .number = 0}); }
  void labelLater(int label) { tasks_.push_back({.kind = Task::Kind::Label, .label = label}); }

  int newLabel() {
    labels_.push_back(0);
    return static_cast<int>(labels_.size()) - 1;
  }

  static Instruction jumpTo(Handler run, int label) { return {.run = run, .distance = label}; }

  static bool isJump(const Instruction& instruction) {
    return instruction.run == jump || instruction.run == jumpIfZero;
  }

  // Until all labels are placed, a jump's distance is the number of its label.
  void resolveJumps() {
    for (std::size_t i = 0; i < program_.code.size(); ++i) {
      Instruction& instruction = program_.code[i];
      if (isJump(instruction)) {
        const std::size_t target = labels_[static_cast<std::size_t>(instruction.distance)];
        instruction.distance = static_cast<std::int32_t>(target - i);
      }
    }
  }

  void emit(const Instruction& instruction) { program_.code.push_back(instruction); }

  const Node& node(std::int32_t index) const {
    return expression_.nodes[static_cast<std::size_t>(index)];
  }

  // Stack places are counted generously: one for every instruction that pushes.
  Instruction pushed(Instruction instruction) {
    ++program_.stackDepth;
    return instruction;
  }

  Reference reference(const Node& field) const {
    return resolve(expression_.references[static_cast<std::size_t>(field.index)], places_);
  }

  std::optional<Simple> simple(const Node& each) const {
    if (each.kind == NodeKind::Number) {
      return Simple{Operand::Constant, {.run = nullptr, .number = each.number}};
    }
    if (each.kind != NodeKind::Field) {
      return std::nullopt;
    }
    const Reference field = reference(each);
    const PlaceKind kind = field.target.place.kind;
    if (field.hasOffset || (kind != PlaceKind::Number && kind != PlaceKind::Formula)) {
      return std::nullopt;
    }
    const Operand operand = kind == PlaceKind::Number ? Operand::Number : Operand::Formula;
    return Simple{operand, {.run = nullptr, .column = field.target.place.column}};
  }

  void expand(std::int32_t index) {
    const Node& each = node(index);
    if (std::optional<Simple> operand = simple(each)) {
      operand->instruction.run = loadHandler(operand->operand);
      emit(operand->instruction);
    } else if (each.kind == NodeKind::Field) {
      expandField(each);
    } else if (each.kind == NodeKind::Variable) {
      emit({.run = loadVariable, .number = 0});
    } else if (each.kind == NodeKind::Call) {
      expandCall(expression_.calls[static_cast<std::size_t>(each.index)]);
    } else if (each.kind == NodeKind::Divide || each.kind == NodeKind::Remainder) {
      expandDivision(each);
    } else {
      expandBinary(each);
    }
  }

  void expandField(const Node& each) {
    const Reference field = reference(each);
    const FieldPlace place = field.target.place;
    if (place.kind == PlaceKind::None) {
      emit({.run = fail, .error = kUnresolvedField});
    } else if (field.hasOffset) {
      program_.references.push_back(field.target);
      emit({.run = loadOffset, .index = static_cast<std::int32_t>(program_.references.size()) - 1});
    } else if (place.kind == PlaceKind::Boolean) {
      emit({.run = loadBoolean, .column = place.column});
    } else {
      emit({.run = loadScratch, .number = 0});
    }
  }

  // Whether computing a node can neither fail nor wait, so that it may come out of its turn.
  bool isSafe(const Node& each) const {
    const std::optional<Simple> operand = simple(each);
    return operand && operand->operand != Operand::Formula;
  }

  void emitOperatorLater(NodeKind operation, Simple operand, Order order) {
    operand.instruction.run = binaryHandler(operation, operand.operand, order);
    emitLater(operand.instruction);
  }

  // Left operand first. Tasks are given in reverse.
  void expandBinary(const Node& each) {
    const Node& left = node(each.operands.left);
    if (const std::optional<Simple> right = simple(node(each.operands.right))) {
      emitOperatorLater(each.kind, *right, Order::ValueFirst);
      expandLater(each.operands.left);
    } else if (isSafe(left)) {
      emitOperatorLater(each.kind, *simple(left), Order::OperandFirst);
      expandLater(each.operands.right);
    } else {
      emitLater(binaryHandler(each.kind, Operand::Stack, Order::OperandFirst));
      expandLater(each.operands.right);
      emitLater(pushed({.run = pushValue, .number = 0}));
      expandLater(each.operands.left);
    }
  }

  // The divisor is computed and checked before the dividend is looked at.
  void expandDivision(const Node& each) {
    const Node& dividend = node(each.operands.left);
    const Node& divisor = node(each.operands.right);
    if (isSafe(dividend)) {
      emitOperatorLater(each.kind, *simple(dividend), Order::OperandFirst);
    } else if (isSafe(divisor)) {
      emitOperatorLater(each.kind, *simple(divisor), Order::ValueFirst);
      expandLater(each.operands.left);
      emitLater(requireDivisor);
    } else {
      emitLater(binaryHandler(each.kind, Operand::Stack, Order::ValueFirst));
      expandLater(each.operands.left);
      emitLater(pushed({.run = pushValue, .number = 0}));
      emitLater(requireDivisor);
    }
    expandLater(each.operands.right);
  }

  void expandCall(const Call& call) {
    const bool lazy = call.form != CallForm::Ordinary;
    if (lazy && std::any_of(call.arguments.begin(), call.arguments.end(),
                            [](const CallArgument& each) { return each.isText(); })) {
      emit({.run = fail, .error = kFunctionFailed});
    } else if (call.form == CallForm::If) {
      expandIf(call);
    } else if (call.form == CallForm::RangeMap) {
      expandRangeMap(call);
    } else {
      expandOrdinaryCall(call);
    }
  }

  void expandIf(const Call& call) {
    const int otherwise = newLabel();
    const int end = newLabel();
    labelLater(end);
    expandLater(call.arguments[2].node);
    labelLater(otherwise);
    emitLater(jumpTo(jump, end));
    expandLater(call.arguments[1].node);
    emitLater(jumpTo(jumpIfZero, otherwise));
    expandLater(call.arguments[0].node);
  }

  // RANGEMAP(ignored, bound, result, bound, result, ..., [otherwise]): the bounds are computed and
  // have to ascend; then the result of the first band that holds the probe.
  void expandRangeMap(const Call& call) {
    const std::size_t count = call.arguments.size();
    if (count == 2) {
      expandLater(call.arguments[1].node);
      return;
    }
    const std::size_t bands = (count - 1) / 2;
    const int end = newLabel();
    labelLater(end);
    if (count % 2 == 0) {
      expandLater(call.arguments.back().node);
    } else {
      emitLater({.run = loadHandler(Operand::Constant), .number = 0});
    }
    const int otherwise = newLabel();
    labelLater(otherwise);
    std::vector<Instruction> choice;
    for (std::size_t band = bands; band-- > 0;) {
      emitLater(jumpTo(jump, end));
      expandLater(call.arguments[2 * band + 2].node);
      const int result = newLabel();
      labelLater(result);
      choice.insert(choice.begin(), jumpTo(jump, result));
    }
    choice.push_back(jumpTo(jump, otherwise));
    std::for_each(choice.rbegin(), choice.rend(),
                  [this](const Instruction& each) { emitLater(each); });
    emitLater({.run = selectBand, .index = static_cast<std::int32_t>(bands)});
    for (std::size_t band = bands; band-- > 0;) {
      emitLater(pushed({.run = pushValue, .number = 0}));
      if (band > 0) {
        emitLater(requireAscending);
      }
      expandLater(call.arguments[2 * band + 1].node);
    }
    expandLater(call.arguments[0].node);
  }

  void expandOrdinaryCall(const Call& call) {
    program_.calls.push_back(bind(call));
    emitLater({.run = callFunction, .index = static_cast<std::int32_t>(program_.calls.size()) - 1});
    for (auto argument = call.arguments.rbegin(); argument != call.arguments.rend(); ++argument) {
      if (!argument->isText()) {
        pushLater(argument->node);
      }
    }
  }

  void pushLater(std::int32_t index) {
    if (std::optional<Simple> operand = simple(node(index))) {
      operand->instruction.run = pushHandler(operand->operand);
      emitLater(pushed(operand->instruction));
    } else {
      emitLater(pushed({.run = pushValue, .number = 0}));
      expandLater(index);
    }
  }

  BoundCall bind(const Call& call) const {
    BoundCall bound;
    bound.function = call.function;
    for (const CallArgument& argument : call.arguments) {
      BoundArgument& each = bound.arguments.emplace_back();
      if (argument.isText()) {
        each.text = argument.text.substr(1);
        each.place = places_.find(each.text);
      } else {
        each.slot = bound.numbers++;
      }
    }
    return bound;
  }

  const Expression& expression_;
  const FieldPlaces& places_;
  Program program_;
  std::vector<Task> tasks_;
  // By label: the position of the instruction behind it.
  std::vector<std::size_t> labels_;
};

}  // namespace

FieldPlaces::FieldPlaces(std::span<const FieldDef> fields) {
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const PlaceKind kind = placeKindOf(fields[i].type);
    if (kind != PlaceKind::None) {
      places_.try_emplace(fields[i].name,
                          FieldPlace{.kind = kind, .column = static_cast<std::int32_t>(i)});
    }
  }
  places_.try_emplace(kScratchField, FieldPlace{.kind = PlaceKind::Scratch, .column = 0});
}

FieldPlace FieldPlaces::find(std::string_view name) const {
  const auto place = places_.find(name);
  return place == places_.end() ? FieldPlace() : place->second;
}

Program compileProgram(const Expression& expression, const FieldPlaces& places) {
  return Compiler(expression, places).compile();
}

}  // namespace vrel
