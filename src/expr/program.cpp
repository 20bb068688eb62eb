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
  Operand kind;
  InstructionOperand operand;
};

Instruction loadOf(const Simple& simple, Former former) {
  return {.run = loadHandler(simple.kind, former), .first = simple.operand};
}

bool hasTextArguments(const Call& call) {
  return std::any_of(call.arguments.begin(), call.arguments.end(),
                     [](const CallArgument& each) { return each.isText(); });
}

bool hasTextArguments(const Expression& expression) {
  return std::any_of(expression.calls.begin(), expression.calls.end(),
                     [](const Call& each) { return hasTextArguments(each); });
}

class Compiler {
 public:
  Compiler(const Expression& expression, const FieldPlaces& places)
      : expression_(expression), places_(places), mayStore_(hasTextArguments(expression)) {}

  Program compile() {
    emitLater({.run = kPlain.finish});
    expandLater(expression_.root);
    while (!tasks_.empty()) {
      const Task task = tasks_.back();
      tasks_.pop_back();
      perform(task);
    }
    resolveJumps();
    return std::move(program_);
  }

 private:
  // What is still to be done, the next one last: nesting costs no recursion.
  struct Task {
    enum class Kind { Expand, Operate, Emit, Label };

    Kind kind;
    // The node to expand, or the operator and its operands.
    std::int32_t node = kNoNode;
    NodeKind operation = NodeKind::Number;
    Operands operands = {kNoNode, kNoNode};
    Instruction instruction = {};
    int label = 0;
  };

  void perform(const Task& task) {
    switch (task.kind) {
      case Task::Kind::Expand:
        expand(node(task.node));
        break;
      case Task::Kind::Operate:
        operate(task.operation, task.operands);
        break;
      case Task::Kind::Emit:
        emit(task.instruction);
        break;
      case Task::Kind::Label:
        labels_[static_cast<std::size_t>(task.label)] = program_.code.size();
        break;
    }
  }

  void expandLater(std::int32_t node) {
    tasks_.push_back({.kind = Task::Kind::Expand, .node = node});
  }
  void operateLater(NodeKind operation, Operands operands) {
    tasks_.push_back({.kind = Task::Kind::Operate, .operation = operation, .operands = operands});
  }
  void emitLater(const Instruction& instruction) {
    tasks_.push_back({.kind = Task::Kind::Emit, .instruction = instruction});
  }
  void pushLater() { emitLater({.run = kPlain.pushValue}); }
  void labelLater(int label) { tasks_.push_back({.kind = Task::Kind::Label, .label = label}); }

  int newLabel() {
    labels_.push_back(0);
    return static_cast<int>(labels_.size()) - 1;
  }

  static Instruction jumpTo(Handler run, int label) {
    return {.run = run, .first = {.distance = label}};
  }

  // Until all labels are placed, a jump's distance is the number of its label.
  void resolveJumps() {
    for (std::size_t i = 0; i < program_.code.size(); ++i) {
      Instruction& instruction = program_.code[i];
      if (instruction.run == kPlain.jump || instruction.run == kPlain.jumpIfZero) {
        const std::size_t target = labels_[static_cast<std::size_t>(instruction.first.distance)];
        instruction.first.distance = static_cast<std::int64_t>(target - i);
      }
    }
  }

  // Stack places are counted generously: one for every instruction that pushes.
  void emit(const Instruction& instruction) {
    program_.stackDepth += instruction.run == kPlain.pushValue ? 1 : 0;
    program_.code.push_back(instruction);
  }

  // What becomes of the value when the next instruction does not use it. An instruction that only
  // pushes it is taken back: the next one pushes it instead.
  Former takeFormer() {
    std::vector<Instruction>& code = program_.code;
    if (code.empty() || code.back().run != kPlain.pushValue) {
      return Former::Dropped;
    }
    code.pop_back();
    return Former::Pushed;
  }

  const Node& node(std::int32_t index) const {
    return expression_.nodes[static_cast<std::size_t>(index)];
  }

  Reference reference(const Node& field) const {
    return resolve(expression_.references[static_cast<std::size_t>(field.index)], places_);
  }

  std::optional<Simple> simple(std::int32_t index) const {
    const Node& each = node(index);
    if (each.kind == NodeKind::Number) {
      return Simple{Operand::Constant, {.number = each.number}};
    }
    if (each.kind != NodeKind::Field) {
      return std::nullopt;
    }
    const Reference field = reference(each);
    const FieldPlace place = field.target.place;
    if (field.hasOffset || (place.kind != PlaceKind::Number && place.kind != PlaceKind::Formula)) {
      return std::nullopt;
    }
    const Operand kind = place.kind == PlaceKind::Number ? Operand::Number : Operand::Formula;
    return Simple{kind, {.column = place.column}};
  }

  // Whether computing an operand can neither fail nor wait and always yields the same, so that it
  // may come out of its turn.
  bool isSafe(const std::optional<Simple>& operand) const {
    return operand &&
           (operand->kind == Operand::Constant || (operand->kind == Operand::Number && !mayStore_));
  }

  static bool isDivision(NodeKind operation) {
    return operation == NodeKind::Divide || operation == NodeKind::Remainder;
  }
  static bool isNonZeroConstant(const std::optional<Simple>& operand) {
    return operand && operand->kind == Operand::Constant && operand->operand.number != 0;
  }

  void expand(const Node& each) {
    switch (each.kind) {
      case NodeKind::Number:
        emit(loadOf({Operand::Constant, {.number = each.number}}, takeFormer()));
        break;
      case NodeKind::Field:
        expandField(each);
        break;
      case NodeKind::Variable:
        emit({.run = kPlain.loadVariable});
        break;
      case NodeKind::Call:
        expandCall(expression_.calls[static_cast<std::size_t>(each.index)]);
        break;
      default:
        operate(each.kind, each.operands);
        break;
    }
  }

  void expandField(const Node& each) {
    const Reference field = reference(each);
    const FieldPlace place = field.target.place;
    if (place.kind == PlaceKind::None) {
      emit({.run = kPlain.fail, .first = {.error = kUnresolvedField}});
    } else if (field.hasOffset) {
      program_.references.push_back(field.target);
      program_.repeatable = program_.repeatable && place.kind != PlaceKind::Formula;
      const auto index = static_cast<std::int64_t>(program_.references.size()) - 1;
      emit({.run = kPlain.loadOffset, .first = {.index = index}});
    } else if (place.kind == PlaceKind::Boolean) {
      emit({.run = kPlain.loadBoolean, .first = {.column = place.column}});
    } else if (place.kind == PlaceKind::Scratch) {
      emit({.run = kPlain.loadScratch});
    } else {
      const Operand kind = place.kind == PlaceKind::Number ? Operand::Number : Operand::Formula;
      emit(loadOf({kind, {.column = place.column}}, takeFormer()));
    }
  }

  void operate(NodeKind operation, Operands operands) {
    const std::optional<Simple> left = simple(operands.left);
    const std::optional<Simple> right = simple(operands.right);
    if (left && right) {
      const Former former = takeFormer();
      emit({.run = pairHandler(operation, left->kind, right->kind, former),
            .first = left->operand,
            .second = right->operand});
    } else if (isSafe(left)) {
      operatorLater(operation, *left, Order::OperandFirst);
      expandLater(operands.right);
    } else if (isDivision(operation) && !isNonZeroConstant(right)) {
      divide(operation, operands, right);
    } else {
      rightOperandLater(operation, operands.right);
      expandLater(operands.left);
    }
  }

  void operatorLater(NodeKind operation, const Simple& operand, Order order) {
    emitLater({.run = binaryHandler(operation, operand.kind, order), .first = operand.operand});
  }

  // The value so far is the left operand. Tasks are given in reverse.
  void rightOperandLater(NodeKind operation, std::int32_t index) {
    if (const std::optional<Simple> right = simple(index)) {
      operatorLater(operation, *right, Order::ValueFirst);
    } else {
      emitLater({.run = binaryHandler(operation, Operand::Stack, Order::OperandFirst)});
      expandLater(index);
      pushLater();
    }
  }

  // The divisor is computed and checked before the dividend is looked at.
  void divide(NodeKind operation, Operands operands, const std::optional<Simple>& divisor) {
    if (isSafe(divisor)) {
      operatorLater(operation, *divisor, Order::ValueFirst);
      expandLater(operands.left);
    } else {
      emitLater({.run = binaryHandler(operation, Operand::Stack, Order::ValueFirst)});
      expandLater(operands.left);
      pushLater();
    }
    emitLater({.run = kPlain.requireDivisor});
    expandLater(operands.right);
  }

  void expandCall(const Call& call) {
    const bool hasText = hasTextArguments(call);
    switch (call.form) {
      case CallForm::If:
        hasText ? failCall() : expandIf(call);
        break;
      case CallForm::RangeMap:
        hasText ? failCall() : expandRangeMap(call);
        break;
      case CallForm::Sum:
        hasText ? expandOrdinaryCall(call) : expandFold(NodeKind::Add, call);
        break;
      case CallForm::Largest:
        hasText ? expandOrdinaryCall(call) : expandFold(NodeKind::Largest, call);
        break;
      case CallForm::Smallest:
        hasText ? expandOrdinaryCall(call) : expandFold(NodeKind::Smallest, call);
        break;
      case CallForm::Ordinary:
        expandOrdinaryCall(call);
        break;
    }
  }

  void failCall() { emit({.run = kPlain.fail, .first = {.error = kFunctionFailed}}); }

  void expandFold(NodeKind operation, const Call& call) {
    for (std::size_t i = call.arguments.size(); i-- > 2;) {
      rightOperandLater(operation, call.arguments[i].node);
    }
    operateLater(operation, {call.arguments[0].node, call.arguments[1].node});
  }

  void expandIf(const Call& call) {
    const int otherwise = newLabel();
    const int end = newLabel();
    labelLater(end);
    expandLater(call.arguments[2].node);
    labelLater(otherwise);
    emitLater(jumpTo(kPlain.jump, end));
    expandLater(call.arguments[1].node);
    emitLater(jumpTo(kPlain.jumpIfZero, otherwise));
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
      emitLater(loadOf({Operand::Constant, {.number = 0}}, Former::Dropped));
    }
    choiceLater(call, bands, end);
    for (std::size_t band = bands; band-- > 0;) {
      pushLater();
      if (band > 0) {
        emitLater({.run = kPlain.requireAscending});
      }
      expandLater(call.arguments[2 * band + 1].node);
    }
    expandLater(call.arguments[0].node);
  }

  // Behind the bounds: the choice of a band, a jump to each one's result and to what stands behind
  // them all, and the results.
  void choiceLater(const Call& call, std::size_t bands, int end) {
    const int otherwise = newLabel();
    labelLater(otherwise);
    std::vector<Instruction> jumps(bands + 1, jumpTo(kPlain.jump, otherwise));
    for (std::size_t band = bands; band-- > 0;) {
      emitLater(jumpTo(kPlain.jump, end));
      expandLater(call.arguments[2 * band + 2].node);
      const int result = newLabel();
      labelLater(result);
      jumps[band] = jumpTo(kPlain.jump, result);
    }
    std::for_each(jumps.rbegin(), jumps.rend(),
                  [this](const Instruction& each) { emitLater(each); });
    emitLater({.run = kPlain.selectBand, .first = {.index = static_cast<std::int64_t>(bands)}});
  }

  void expandOrdinaryCall(const Call& call) {
    program_.calls.push_back(bind(call));
    program_.repeatable = program_.repeatable && !call.varies;
    const auto index = static_cast<std::int64_t>(program_.calls.size()) - 1;
    emitLater({.run = kPlain.callFunction, .first = {.index = index}});
    for (std::size_t i = call.arguments.size(); i-- > 0;) {
      if (!call.arguments[i].isText()) {
        argumentLater(call.arguments[i].node);
      }
    }
  }

  void argumentLater(std::int32_t index) {
    if (const std::optional<Simple> operand = simple(index)) {
      ++program_.stackDepth;
      emitLater({.run = pushHandler(operand->kind), .first = operand->operand});
    } else {
      pushLater();
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
  // Whether a call may change a field while the formula runs; it would name the field in a text.
  const bool mayStore_;
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
