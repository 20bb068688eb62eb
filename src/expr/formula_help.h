// Help for whoever writes a formula: what is wrong with it so far, and how its words may go on.
// Positions count bytes.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "expr/parser.h"
#include "model/field.h"

namespace vrel {

/// A name in a formula for which there is no number.
struct UnknownName {
  enum class Kind {
    /// There is no field of that name.
    NoField,
    /// The field of that name holds no numbers.
    NoNumbers,
    /// A function of that name was not called.
    Function,
  };

  Kind kind = Kind::NoField;
  std::size_t start = 0;
  std::size_t length = 0;
  std::string name;
};

/// What is wrong with a text as a formula.
struct FormulaCheck {
  /// There is no formula at all.
  bool isBlank = false;
  ParseError error = ParseError::None;
  /// Where the error stands; of no length at the end of an incomplete formula.
  std::size_t start = 0;
  std::size_t length = 0;
  /// Of an error in a call, the function's name and how its arguments are written.
  std::string function = {};
  std::string usage = {};
  /// Only in a text without error, which has no value as long as there is one of these.
  std::vector<UnknownName> unknown = {};

  bool isFormula() const { return !isBlank && error == ParseError::None; }
};

FormulaCheck checkFormulaText(std::string_view text, const FunctionRegistry& functions,
                              const std::vector<FieldDef>& fields);

/// How a word may go on.
struct Completion {
  /// The field or function.
  std::string name;
  /// Of a function, how its arguments are written; empty for a field.
  std::string usage;
  /// What takes the word's place; of a function an opening and a closing parenthesis, too.
  std::string text;
  /// Where the cursor stands in it then.
  std::size_t cursor = 0;
};

/// The word that is being written.
struct WrittenWord {
  /// From here to the cursor; what it is completed to takes the place of that.
  std::size_t start = 0;
  /// Without quotes and "#".
  std::string_view prefix = {};
  bool isSymbol = false;
  bool isQuoted = false;
};

/// The word that ends at the cursor; an empty one where a word may begin. Nothing where none may be
/// completed: in a number or an offset.
std::optional<WrittenWord> wordBefore(std::string_view text, std::size_t cursor);

/// The fields and then the functions that begin like the word, regardless of case, those first that
/// begin exactly like it.
std::vector<Completion> completionsOf(const WrittenWord& word, const FunctionRegistry& functions,
                                      const std::vector<FieldDef>& fields);

/// A call as it is put into a formula, with the cursor where the first argument goes.
Completion functionCall(const FunctionRecord& function);

/// The colour that a highlight formula gives whatever the values: a position in the list of
/// colours; nothing when it depends on them or is none of the list.
std::optional<std::size_t> constantColour(std::string_view text, const FunctionRegistry& functions);

}  // namespace vrel
