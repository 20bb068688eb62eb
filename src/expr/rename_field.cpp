#include "expr/rename_field.h"

#include <algorithm>

#include "expr/formula.h"
#include "expr/tokenizer.h"

namespace vrel {
namespace {

// A "#" in front of it must still fit into a token.
constexpr std::size_t kLongestUsableName = kMaxNameLength - 1;

bool isQuote(char byte) {
  return byte == '"' || byte == '\'';
}

// Whether a token calls a function. A bare word that is a function's name is left to the function
// wherever it stands; a quoted one is so only in front of its arguments.
bool isFunction(const Token& token, bool isQuoted, std::string_view rest,
                const FunctionRegistry& functions) {
  return token.kind == TokenKind::Name && functions.find(token.text) != nullptr &&
         (!isQuoted || Tokenizer(rest).next().kind == TokenKind::Open);
}

FieldMention mentionOf(const Token& token, std::size_t end) {
  const bool isSymbol = token.kind == TokenKind::Symbol;
  const std::string_view text = token.text.substr(isSymbol ? 1 : 0);
  const std::size_t colon = std::min(text.find(':'), text.size());
  return {.start = token.start,
          .length = end - token.start,
          .name = text.substr(0, colon),
          .offset = text.substr(colon),
          .isSymbol = isSymbol};
}

bool isReadWhole(std::string_view written, std::string_view name) {
  Tokenizer tokenizer(written);
  const Token token = tokenizer.next();
  return token.kind == TokenKind::Name && token.text == name &&
         tokenizer.position() == written.size() && name.find(':') == std::string_view::npos;
}

void renameIn(Formula& formula, std::string_view from, std::string_view to,
              const FunctionRegistry& functions) {
  std::string text = renamedText(formula.text, from, to, functions);
  if (text != formula.text) {
    formula = {.text = std::move(text)};
  }
}

}  // namespace

std::vector<FieldMention> fieldMentions(std::string_view text, const FunctionRegistry& functions) {
  std::vector<FieldMention> found;
  Tokenizer tokenizer(text);
  for (Token token = tokenizer.next(); token.kind != TokenKind::End; token = tokenizer.next()) {
    const bool isName = token.kind == TokenKind::Name || token.kind == TokenKind::Symbol;
    const std::size_t end = tokenizer.position();
    if (isName && !isFunction(token, isQuote(text[token.start]), text.substr(end), functions)) {
      found.push_back(mentionOf(token, end));
    }
  }
  return found;
}

std::string writtenName(std::string_view name, const FunctionRegistry& functions, bool asSymbol,
                        std::string_view offset) {
  std::string text(asSymbol ? "#" : "");
  text.append(name).append(offset);
  // Without quotes a function's name would be left to the function when the field is renamed.
  const bool isFunctionName = !asSymbol && functions.find(name) != nullptr;
  if (isReadWhole(name, name) && !isFunctionName) {
    return text;
  }
  const char quote = name.find('\'') == std::string_view::npos ? '\'' : '"';
  return quote + text + quote;
}

bool isUsableName(std::string_view name) {
  // View files turn double quotes into apostrophes.
  return !name.empty() && name.size() <= kLongestUsableName &&
         name.find('"') == std::string_view::npos &&
         (isReadWhole(name, name) || isReadWhole("'" + std::string(name) + "'", name));
}

std::string renamedText(std::string_view text, std::string_view from, std::string_view to,
                        const FunctionRegistry& functions) {
  std::string result;
  std::size_t copied = 0;
  for (const FieldMention& mention : fieldMentions(text, functions)) {
    if (mention.name == from) {
      result += text.substr(copied, mention.start - copied);
      result += writtenName(to, functions, mention.isSymbol, mention.offset);
      copied = mention.start + mention.length;
    }
  }
  return result += text.substr(copied);
}

void renameInFormulas(std::span<FieldDef> fields, std::string_view from, std::string_view to,
                      const FunctionRegistry& functions) {
  for (FieldDef& field : fields) {
    renameIn(field.expression, from, to, functions);
  }
  for (FieldDef& field : fields) {
    renameIn(field.inverseExpression, from, to, functions);
    renameIn(field.highlightExpression, from, to, functions);
  }
}

bool mentions(std::string_view text, std::string_view field, const FunctionRegistry& functions) {
  const std::vector<FieldMention> found = fieldMentions(text, functions);
  return std::any_of(found.begin(), found.end(),
                     [field](const FieldMention& mention) { return mention.name == field; });
}

}  // namespace vrel
