// The words of the formula language: cuts a formula's text into tokens, one at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "expr/expression.h"

namespace vrel {

enum class TokenKind : std::uint8_t {
  End,
  /// Text that is no token at all.
  Error,
  Number,
  Name,
  /// A text argument: begins with "#".
  Symbol,
  Variable,
  Open,
  Close,
  Comma,
  Operator,
};

struct Token {
  TokenKind kind = TokenKind::End;
  /// Where the token begins; in a number with a second point, that point.
  std::size_t start = 0;
  /// Of a number.
  double number = 0;
  /// Of an operator: the node that it makes.
  NodeKind operation = NodeKind::Number;
  /// Of a name or a symbol, without quotes; an offset suffix (":-1") is part of it.
  std::string_view text;
};

/// What the language knows beyond its fixed words.
struct TokenizerOptions {
  /// Names may carry an offset into their series, "Demand:-1" or "Demand:#1".
  bool fieldOffsets = true;
  /// With field offsets, an "x" at the start of a token is the evaluation variable.
  bool variable = false;
};

/// Longest name or symbol in bytes. A longer word is cut there, a longer quoted name is an error.
inline constexpr std::size_t kMaxNameLength = 128;

/// The bytes that end a word. "%" is none of them: "a%b" is a name, "a % b" a remainder.
inline constexpr std::string_view kWordDelimiters = "-+/*!<>=(), \t";

/// Reads tokens from a text, which must outlive it and them.
class Tokenizer {
 public:
  explicit Tokenizer(std::string_view text, TokenizerOptions options = {})
      : text_(text), options_(options) {}

  /// The next token; the end token again and again after the last one.
  Token next();
  /// How far the text was read.
  std::size_t position() const { return at_; }

 private:
  bool atEnd() const { return at_ >= text_.size(); }
  bool at(char byte) const { return !atEnd() && text_[at_] == byte; }
  bool atDigit() const;
  void skipDigits();
  void skipOffset();
  Token quoted(char quote);
  Token number();
  Token word();

  std::string_view text_;
  TokenizerOptions options_;
  std::size_t at_ = 0;
};

}  // namespace vrel
