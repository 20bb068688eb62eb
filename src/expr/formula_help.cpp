#include "expr/formula_help.h"

#include <algorithm>

#include "base/case_folding.h"
#include "base/words.h"
#include "expr/colours.h"
#include "expr/program.h"
#include "expr/rename_field.h"

namespace vrel {
namespace {

UnknownName::Kind kindOf(std::string_view name, const FunctionRegistry& functions,
                         const std::vector<FieldDef>& fields) {
  if (std::any_of(fields.begin(), fields.end(),
                  [name](const FieldDef& field) { return field.name == name; })) {
    return UnknownName::Kind::NoNumbers;
  }
  return functions.find(name) == nullptr ? UnknownName::Kind::NoField : UnknownName::Kind::Function;
}

// All references of a text that is a formula: there every name without arguments is one.
std::vector<UnknownName> unknownNames(std::string_view text, const FunctionRegistry& functions,
                                      const std::vector<FieldDef>& fields) {
  const FieldPlaces places(fields);
  std::vector<UnknownName> unknown;
  Tokenizer tokenizer(text);
  Token token = tokenizer.next();
  while (token.kind != TokenKind::End) {
    const std::size_t end = tokenizer.position();
    const Token following = tokenizer.next();
    const std::string_view name = token.text.substr(0, token.text.find(':'));
    if (token.kind == TokenKind::Name && following.kind != TokenKind::Open &&
        places.find(name).kind == PlaceKind::None) {
      unknown.push_back({.kind = kindOf(name, functions, fields),
                         .start = token.start,
                         .length = end - token.start,
                         .name = std::string(name)});
    }
    token = following;
  }
  return unknown;
}

// The token that stands at a position; an unfinished one goes to the end.
std::size_t tokenLength(std::string_view text, std::size_t start) {
  Tokenizer tokenizer(text.substr(start));
  tokenizer.next();
  return tokenizer.position();
}

void describeCall(FormulaCheck& check, std::string_view text, const FunctionRegistry& functions) {
  check.function = Tokenizer(text.substr(check.start)).next().text;
  if (const FunctionRecord* function = functions.find(check.function)) {
    check.usage = function->usage;
  }
}

std::string folded(std::string_view text) {
  std::string result(text);
  foldCase(result);
  return result;
}

// Collects what begins like a word; exact beginnings stay in front of the others.
class Matches {
 public:
  explicit Matches(std::string_view prefix) : prefix_(prefix), folded_(folded(prefix)) {}

  bool match(std::string_view name) const { return folded(name).starts_with(folded_); }
  void add(Completion completion) { found_.push_back(std::move(completion)); }
  std::vector<Completion> take() {
    std::stable_partition(found_.begin(), found_.end(), [this](const Completion& each) {
      return each.name.starts_with(prefix_);
    });
    return std::move(found_);
  }

 private:
  std::string_view prefix_;
  std::string folded_;
  std::vector<Completion> found_;
};

void addFields(Matches& matches, const std::vector<FieldDef>& fields,
               const FunctionRegistry& functions, bool asSymbol) {
  const FieldPlaces places(fields);
  for (int i = 0; i < static_cast<int>(fields.size()); ++i) {
    const std::string& name = fields[static_cast<std::size_t>(i)].name;
    const FieldPlace place = places.find(name);
    const bool isNamed = place.kind != PlaceKind::None && place.kind != PlaceKind::Scratch;
    if (isNamed && place.column == i && isUsableName(name) && matches.match(name)) {
      std::string text = writtenName(name, functions, asSymbol);
      const std::size_t cursor = text.size();
      matches.add({.name = name, .usage = {}, .text = std::move(text), .cursor = cursor});
    }
  }
}

struct LastToken {
  Token token;
  std::size_t end = 0;
};

LastToken lastToken(std::string_view text) {
  LastToken last;
  Tokenizer tokenizer(text);
  for (Token token = tokenizer.next(); token.kind != TokenKind::End; token = tokenizer.next()) {
    last = {.token = token, .end = tokenizer.position()};
  }
  return last;
}

// "AND" may be the beginning of a name.
bool isOperatorWord(const Token& token) {
  return token.kind == TokenKind::Operator && !token.text.empty();
}

// Whether a new word may begin right behind a token.
bool canFollow(const Token& token, std::string_view written) {
  return token.kind == TokenKind::End || token.kind == TokenKind::Open ||
         token.kind == TokenKind::Comma || written == "!" ||
         (token.kind == TokenKind::Operator && !isOperatorWord(token));
}

// A closed quote ends a name, an open one is no token at all.
bool isUnfinishedWord(const Token& token, bool isQuoted) {
  if (isQuoted) {
    return token.kind == TokenKind::Error;
  }
  return token.kind == TokenKind::Name || token.kind == TokenKind::Symbol || isOperatorWord(token);
}

}  // namespace

FormulaCheck checkFormulaText(std::string_view text, const FunctionRegistry& functions,
                              const std::vector<FieldDef>& fields) {
  FormulaCheck check;
  check.isBlank = trimBlanks(text).empty();
  if (check.isBlank) {
    return check;
  }
  const ParseResult parsed = parseExpression(text, functions);
  check.error = parsed.error;
  if (check.error == ParseError::None) {
    check.unknown = unknownNames(text, functions, fields);
    return check;
  }
  check.start = std::min(parsed.errorPosition, text.size());
  check.length = tokenLength(text, check.start);
  if (check.error != ParseError::Syntax) {
    describeCall(check, text, functions);
  }
  return check;
}

std::optional<WrittenWord> wordBefore(std::string_view text, std::size_t cursor) {
  const std::string_view written = text.substr(0, cursor);
  const LastToken last = lastToken(written);
  const std::string_view word = written.substr(last.token.start);
  if (last.end < written.size() || canFollow(last.token, word)) {
    return WrittenWord{.start = written.size()};
  }
  const bool isQuoted = word.starts_with('"') || word.starts_with('\'');
  std::string_view prefix = word.substr(isQuoted ? 1 : 0);
  const bool isSymbol = prefix.starts_with('#');
  prefix.remove_prefix(isSymbol ? 1 : 0);
  if (!isUnfinishedWord(last.token, isQuoted) || prefix.find(':') != std::string_view::npos) {
    return std::nullopt;
  }
  return WrittenWord{
      .start = last.token.start, .prefix = prefix, .isSymbol = isSymbol, .isQuoted = isQuoted};
}

std::vector<Completion> completionsOf(const WrittenWord& word, const FunctionRegistry& functions,
                                      const std::vector<FieldDef>& fields) {
  Matches matches(word.prefix);
  addFields(matches, fields, functions, word.isSymbol);
  if (!word.isSymbol && !word.isQuoted) {
    for (const FunctionRecord& function : functions.records()) {
      if (matches.match(function.name)) {
        matches.add(functionCall(function));
      }
    }
  }
  return matches.take();
}

Completion functionCall(const FunctionRecord& function) {
  Completion call{.name = function.name, .usage = function.usage, .text = function.name + "()"};
  call.cursor = call.text.size() - (function.maximum > 0 ? 1 : 0);
  return call;
}

std::optional<std::size_t> constantColour(std::string_view text,
                                          const FunctionRegistry& functions) {
  const ParseResult parsed = parseExpression(text, functions);
  if (!parsed.expression) {
    return std::nullopt;
  }
  const Node& root = parsed.expression->nodes[static_cast<std::size_t>(parsed.expression->root)];
  if (root.kind != NodeKind::Number || !(root.number >= 0 && root.number < kColours.size())) {
    return std::nullopt;
  }
  return static_cast<std::size_t>(root.number);
}

}  // namespace vrel
