#include "expr/parser.h"

#include <algorithm>
#include <array>
#include <utility>

#include "expr/function_arguments.h"
#include "model/field_value.h"

namespace vrel {
namespace {

// How tightly an operator binds its operands.
enum Level { kLogical = 1, kComparison, kAdditive, kMultiplicative };

struct OperatorLevel {
  NodeKind operation;
  Level level;
};

constexpr std::array<OperatorLevel, 14> kOperatorLevels = {{
    {NodeKind::And, kLogical},
    {NodeKind::Or, kLogical},
    {NodeKind::Xor, kLogical},
    {NodeKind::Equal, kComparison},
    {NodeKind::NotEqual, kComparison},
    {NodeKind::Less, kComparison},
    {NodeKind::Greater, kComparison},
    {NodeKind::LessOrEqual, kComparison},
    {NodeKind::GreaterOrEqual, kComparison},
    {NodeKind::Add, kAdditive},
    {NodeKind::Subtract, kAdditive},
    {NodeKind::Multiply, kMultiplicative},
    {NodeKind::Divide, kMultiplicative},
    {NodeKind::Remainder, kMultiplicative},
}};

Level levelOf(NodeKind operation) {
  return std::find_if(kOperatorLevels.begin(), kOperatorLevels.end(),
                      [operation](const OperatorLevel& row) { return row.operation == operation; })
      ->level;
}

// Something begun that waits for its next operand.
struct Pending {
  enum class Kind { Minus, Binary, Group, Call };

  Kind kind;
  // Of a binary operator, with its left operand.
  NodeKind operation = NodeKind::Number;
  std::int32_t left = kNoNode;
  // Of a call: the function and where its name stands.
  const FunctionRecord* function = nullptr;
  std::size_t start = 0;
  std::vector<CallArgument> arguments = {};
};

class Parser {
 public:
  Parser(std::string_view text, const FunctionRegistry& functions, TokenizerOptions options)
      : tokenizer_(text, options), functions_(functions) {
    advance();
  }

  ParseResult parse() {
    while (readOperand() && continueExpression()) {
    }
    ParseResult result;
    result.error = error_;
    result.errorPosition = errorPosition_;
    if (error_ == ParseError::None) {
      expression_.root = operand_;
      result.expression = std::move(expression_);
    }
    return result;
  }

 private:
  void advance() { token_ = tokenizer_.next(); }

  bool fail(ParseError error, std::size_t position) {
    error_ = error;
    errorPosition_ = position;
    return false;
  }
  bool failHere() { return fail(ParseError::Syntax, token_.start); }

  bool pendingIs(Pending::Kind kind) const {
    return !pending_.empty() && pending_.back().kind == kind;
  }

  std::int32_t addNode(const Node& node) {
    expression_.nodes.push_back(node);
    return static_cast<std::int32_t>(expression_.nodes.size()) - 1;
  }
  std::int32_t addNumber(double number) {
    return addNode({.kind = NodeKind::Number, .number = number});
  }
  std::int32_t addBinary(NodeKind operation, std::int32_t left, std::int32_t right) {
    return addNode({.kind = operation, .operands = {left, right}});
  }

  // Reads on until an operand is complete.
  bool readOperand() {
    for (;;) {
      switch (token_.kind) {
        case TokenKind::Operator:
          if (token_.operation == NodeKind::Multiply) {
            return takeOperand(addNumber(kUnbounded));
          }
          if (!openPrefix()) {
            return false;
          }
          break;
        case TokenKind::Open:
          pending_.push_back({.kind = Pending::Kind::Group});
          advance();
          break;
        case TokenKind::Number:
          takeOperand(addNumber(token_.number));
          operandIsLiteral_ = true;
          return true;
        case TokenKind::Variable:
          return takeOperand(addNode({.kind = NodeKind::Variable, .number = 0}));
        case TokenKind::Name:
          if (readName()) {
            return error_ == ParseError::None;
          }
          break;
        default:
          return failHere();
      }
    }
  }

  // The present token ends an operand.
  bool takeOperand(std::int32_t node) {
    operand_ = node;
    operandIsLiteral_ = false;
    advance();
    return true;
  }

  bool openPrefix() {
    if (token_.operation == NodeKind::Subtract) {
      pending_.push_back({.kind = Pending::Kind::Minus});
    } else if (token_.operation != NodeKind::Add) {
      return failHere();
    }
    advance();
    return true;
  }

  // A field or the beginning of a call. Returns whether reading the operand has come to an end, be
  // it complete or wrong.
  bool readName() {
    const Token name = token_;
    advance();
    if (token_.kind == TokenKind::Open) {
      return openCall(name) ? beginArgument(true) : true;
    }
    expression_.references.emplace_back(name.text);
    const auto index = static_cast<std::int32_t>(expression_.references.size()) - 1;
    operand_ = addNode({.kind = NodeKind::Field, .index = index});
    operandIsLiteral_ = false;
    return true;
  }

  bool openCall(const Token& name) {
    const FunctionRecord* function = functions_.find(name.text);
    if (function == nullptr) {
      return fail(ParseError::UnknownFunction, name.start);
    }
    pending_.push_back({.kind = Pending::Kind::Call, .function = function, .start = name.start});
    return true;
  }

  // Past "(" or ",": takes the text arguments that stand here. Returns whether that ended the
  // operand, with the call's end or an error; otherwise an expression has to follow.
  bool beginArgument(bool first) {
    advance();
    if (first && token_.kind == TokenKind::Close) {
      closeCall();
      return true;
    }
    while (token_.kind == TokenKind::Symbol) {
      pending_.back().arguments.push_back({.node = kNoNode, .text = std::string(token_.text)});
      advance();
      if (token_.kind == TokenKind::Close) {
        closeCall();
        return true;
      }
      if (token_.kind != TokenKind::Comma) {
        failHere();
        return true;
      }
      advance();
    }
    return false;
  }

  // With the closing ")" as the present token. The call is the operand now.
  bool closeCall() {
    Pending call = std::move(pending_.back());
    pending_.pop_back();
    const FunctionRecord& function = *call.function;
    const auto count = static_cast<int>(call.arguments.size());
    if (count < function.minimum || count > function.maximum) {
      return fail(ParseError::ArgumentCount, call.start);
    }
    if (function.constant) {
      double value = 0;
      function.function(FunctionArguments(), value);
      return takeOperand(addNumber(value));
    }
    expression_.calls.push_back({.name = function.name,
                                 .function = function.function,
                                 .form = function.form,
                                 .varies = function.varies,
                                 .arguments = std::move(call.arguments)});
    const auto index = static_cast<std::int32_t>(expression_.calls.size()) - 1;
    return takeOperand(addNode({.kind = NodeKind::Call, .index = index}));
  }

  // Goes on behind a complete operand. Returns whether another operand has to follow; when not,
  // the expression is complete or wrong.
  bool continueExpression() {
    for (;;) {
      applyMinuses();
      if (token_.kind == TokenKind::Operator && openBinary()) {
        return true;
      }
      while (pendingIs(Pending::Kind::Binary)) {
        applyBinary();
      }
      if (pending_.empty()) {
        return token_.kind == TokenKind::End ? false
                                             : fail(ParseError::Syntax, tokenizer_.position() - 1);
      }
      if (pendingIs(Pending::Kind::Call) && token_.kind == TokenKind::Comma) {
        if (!addArgument()) {
          return false;
        }
        if (!beginArgument(false)) {
          return true;
        }
      } else if (token_.kind == TokenKind::Close) {
        if (!closeGroupOrCall()) {
          return false;
        }
      } else {
        return failHere();
      }
      if (error_ != ParseError::None) {
        return false;
      }
    }
  }

  bool closeGroupOrCall() {
    if (pendingIs(Pending::Kind::Call)) {
      return addArgument() && closeCall();
    }
    pending_.pop_back();
    return takeOperand(operand_);
  }

  bool addArgument() {
    std::vector<CallArgument>& arguments = pending_.back().arguments;
    const auto expressions = std::count_if(arguments.begin(), arguments.end(),
                                           [](const CallArgument& each) { return !each.isText(); });
    if (expressions >= kMaxExpressionArguments) {
      return failHere();
    }
    arguments.push_back({.node = operand_, .text = {}});
    return true;
  }

  void applyMinuses() {
    while (pendingIs(Pending::Kind::Minus)) {
      pending_.pop_back();
      if (operandIsLiteral_) {
        double& number = expression_.nodes.back().number;
        number = -number;
      } else {
        const std::int32_t right = operand_;
        operand_ = addBinary(NodeKind::Subtract, addNumber(0), right);
      }
    }
  }

  // The present operator takes the operand, and the operators before it that bind as tightly, as
  // its left one. False when it cannot stand here: comparisons do not chain.
  bool openBinary() {
    const Level level = levelOf(token_.operation);
    while (pendingIs(Pending::Kind::Binary)) {
      const Level before = levelOf(pending_.back().operation);
      if (before < level) {
        break;
      }
      if (before == kComparison && level == kComparison) {
        return false;
      }
      applyBinary();
    }
    pending_.push_back(
        {.kind = Pending::Kind::Binary, .operation = token_.operation, .left = operand_});
    advance();
    return true;
  }

  void applyBinary() {
    const NodeKind operation = pending_.back().operation;
    const std::int32_t left = pending_.back().left;
    pending_.pop_back();
    operand_ = addBinary(operation, left, operand_);
    operandIsLiteral_ = false;
  }

  Tokenizer tokenizer_;
  const FunctionRegistry& functions_;
  Token token_;
  std::vector<Pending> pending_;
  Expression expression_;
  // The operand read last, and whether it is a number as it was written, which takes a sign.
  std::int32_t operand_ = kNoNode;
  bool operandIsLiteral_ = false;
  ParseError error_ = ParseError::None;
  std::size_t errorPosition_ = 0;
};

}  // namespace

ParseResult parseExpression(std::string_view text, const FunctionRegistry& functions,
                            TokenizerOptions options) {
  return Parser(text, functions, options).parse();
}

}  // namespace vrel
