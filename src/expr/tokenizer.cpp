#include "expr/tokenizer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <string>

#include "base/words.h"

namespace vrel {
namespace {

struct FixedToken {
  std::string_view text;
  TokenKind kind;
  NodeKind operation = NodeKind::Number;
};

// Longer texts before those that they begin with.
constexpr std::array<FixedToken, 16> kFixedTokens = {{
    {"<=", TokenKind::Operator, NodeKind::LessOrEqual},
    {"<>", TokenKind::Operator, NodeKind::NotEqual},
    {"<", TokenKind::Operator, NodeKind::Less},
    {">=", TokenKind::Operator, NodeKind::GreaterOrEqual},
    {">", TokenKind::Operator, NodeKind::Greater},
    {"!=", TokenKind::Operator, NodeKind::NotEqual},
    {"!", TokenKind::Error},
    {"=", TokenKind::Operator, NodeKind::Equal},
    {"+", TokenKind::Operator, NodeKind::Add},
    {"-", TokenKind::Operator, NodeKind::Subtract},
    {"*", TokenKind::Operator, NodeKind::Multiply},
    {"/", TokenKind::Operator, NodeKind::Divide},
    {"%", TokenKind::Operator, NodeKind::Remainder},
    {"(", TokenKind::Open},
    {")", TokenKind::Close},
    {",", TokenKind::Comma},
}};

// Operators only in this spelling and without quotes.
constexpr std::array<FixedToken, 3> kOperatorWords = {{
    {"AND", TokenKind::Operator, NodeKind::And},
    {"OR", TokenKind::Operator, NodeKind::Or},
    {"XOR", TokenKind::Operator, NodeKind::Xor},
}};

bool isDigit(char byte) {
  return byte >= '0' && byte <= '9';
}

TokenKind kindOfName(std::string_view text) {
  return text.starts_with('#') ? TokenKind::Symbol : TokenKind::Name;
}

// A lone point is 0, an exponent without digits counts as none.
double numberOfText(std::string_view text) {
  double number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  // Too large is infinite and too small is 0, which only the C conversion tells apart.
  return result.ec == std::errc::result_out_of_range
             ? std::strtod(std::string(text).c_str(), nullptr)
             : number;
}

}  // namespace

Token Tokenizer::next() {
  while (!atEnd() && isBlank(text_[at_])) {
    ++at_;
  }
  Token token;
  token.start = at_;
  if (atEnd()) {
    return token;
  }
  const std::string_view rest = text_.substr(at_);
  const auto* const fixed =
      std::find_if(kFixedTokens.begin(), kFixedTokens.end(),
                   [rest](const FixedToken& each) { return rest.starts_with(each.text); });
  if (fixed != kFixedTokens.end()) {
    at_ += fixed->text.size();
    token.kind = fixed->kind;
    token.operation = fixed->operation;
    return token;
  }
  if (rest.front() == '"' || rest.front() == '\'') {
    return quoted(rest.front());
  }
  if (isDigit(rest.front()) || rest.front() == '.') {
    return number();
  }
  if (options_.variable && options_.fieldOffsets && rest.front() == 'x') {
    ++at_;
    token.kind = TokenKind::Variable;
    return token;
  }
  return word();
}

bool Tokenizer::atDigit() const {
  return !atEnd() && isDigit(text_[at_]);
}

void Tokenizer::skipDigits() {
  while (atDigit()) {
    ++at_;
  }
}

// Past ":", "#", a sign and digits, of which all but the colon may be missing.
void Tokenizer::skipOffset() {
  ++at_;
  if (at('#')) {
    ++at_;
  }
  if (at('+') || at('-')) {
    ++at_;
  }
  skipDigits();
}

Token Tokenizer::quoted(char quote) {
  Token token;
  token.start = at_++;
  const std::size_t begin = at_;
  while (!atEnd() && !at(quote) && !(options_.fieldOffsets && at(':'))) {
    ++at_;
  }
  const bool tooLong = at_ - begin > kMaxNameLength;
  if (at(':')) {
    skipOffset();
  }
  if (tooLong || !at(quote)) {
    token.kind = TokenKind::Error;
    return token;
  }
  token.text = text_.substr(begin, at_ - begin);
  token.kind = kindOfName(token.text);
  ++at_;
  return token;
}

Token Tokenizer::number() {
  Token token;
  token.start = at_;
  skipDigits();
  if (at('.')) {
    ++at_;
    skipDigits();
    if (at('.')) {
      token.kind = TokenKind::Error;
      token.start = at_;
      return token;
    }
  }
  std::size_t mantissaEnd = at_;
  if (at('e') || at('E')) {
    ++at_;
    if (at('+') || at('-')) {
      ++at_;
    }
    skipDigits();
    if (isDigit(text_[at_ - 1])) {
      mantissaEnd = at_;
    }
  }
  token.kind = TokenKind::Number;
  token.number = numberOfText(text_.substr(token.start, mantissaEnd - token.start));
  return token;
}

Token Tokenizer::word() {
  Token token;
  token.start = at_;
  const auto endsWord = [this] {
    return atEnd() || kWordDelimiters.find(text_[at_]) != std::string_view::npos ||
           (options_.fieldOffsets && at(':'));
  };
  while (!endsWord() && at_ - token.start < kMaxNameLength) {
    ++at_;
  }
  if (options_.fieldOffsets && at(':')) {
    skipOffset();
  }
  token.text = text_.substr(token.start, at_ - token.start);
  token.kind = kindOfName(token.text);
  for (const FixedToken& operatorWord : kOperatorWords) {
    if (operatorWord.text == token.text) {
      token.kind = operatorWord.kind;
      token.operation = operatorWord.operation;
    }
  }
  return token;
}

}  // namespace vrel
