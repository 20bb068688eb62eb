// From a formula's text to its expression.
//
//   logical        := comparison { ("AND" | "OR" | "XOR") comparison }
//   comparison     := additive [ ("=" | "<>" | "!=" | "<" | ">" | "<=" | ">=") additive ]
//   additive       := multiplicative { ("+" | "-") multiplicative }
//   multiplicative := prefix { ("*" | "/" | "%") prefix }
//   prefix         := { "+" | "-" } primary
//   primary        := number | name | name "(" [ argument { "," argument } ] ")"
//                   | "(" logical ")" | "*"
//   argument       := symbol | logical
//
// What is begun and not yet complete stands on a stack of the parser's own, so that a formula may
// nest as deeply as its text is long.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "expr/expression.h"
#include "expr/tokenizer.h"

namespace vrel {

/// Most arguments of a call that are expressions.
inline constexpr int kMaxExpressionArguments = 32;

enum class ParseError {
  None = 0,
  Syntax = 1,
  UnknownFunction = 2,
  ArgumentCount = 3,
};

struct ParseResult {
  /// Nothing when the text is no formula.
  std::optional<Expression> expression;
  ParseError error = ParseError::None;
  /// The token that does not fit; the last byte read when text follows a complete formula.
  std::size_t errorPosition = 0;
};

/// Parses a formula. Functions are those of the registry, constants among them become numbers.
ParseResult parseExpression(std::string_view text, const FunctionRegistry& functions,
                            TokenizerOptions options = {});

}  // namespace vrel
