// Names of fields in formulas: finding them, writing them, and giving a field another name.
//
// A name stands in a formula as a word, in quotes where it holds what ends a word, and behind a "#"
// as a text argument of a function. An offset into the series is part of it: "'Net Demand:-1'".
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "expr/function_registry.h"
#include "model/field.h"

namespace vrel {

/// A place in a formula that may name a field.
struct FieldMention {
  /// The whole token, quotes included.
  std::size_t start = 0;
  std::size_t length = 0;
  std::string_view name;
  /// The offset with its colon; empty without one.
  std::string_view offset;
  /// A text argument, which begins with "#".
  bool isSymbol = false;
};

/// The names in a text, which need not be a formula as a whole and must outlive them. Numbers,
/// operators and functions of the registry are none.
std::vector<FieldMention> fieldMentions(std::string_view text, const FunctionRegistry& functions);

/// A field's name as formulas write it: in quotes unless it is read as one word without them, and
/// as no function. As a symbol it gets a "#" in front.
std::string writtenName(std::string_view name, const FunctionRegistry& functions,
                        bool asSymbol = false, std::string_view offset = {});

/// Whether formulas can name a field so, in a text that a view file can hold.
bool isUsableName(std::string_view name);

/// A formula's text with the field's new name in the place of the old one.
std::string renamedText(std::string_view text, std::string_view from, std::string_view to,
                        const FunctionRegistry& functions);

/// Puts a new name in the place of the old one in all formulas of a view's fields: first in the
/// expressions, then in the inverse and the highlight formulas.
void renameInFormulas(std::span<FieldDef> fields, std::string_view from, std::string_view to,
                      const FunctionRegistry& functions);

/// Whether a text names the field.
bool mentions(std::string_view text, std::string_view field, const FunctionRegistry& functions);

}  // namespace vrel
