// The formulas of a view: formula fields added, changed and deleted, highlight formulas set.
//
// Names and formulas are kept as a view file holds them, so that a saved view reads back the same.
// Nothing is computed here: after any change the table has to be recalculated and the report laid
// out.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "expr/function_registry.h"
#include "model/report_view.h"

namespace vrel {

/// A formula field as the user writes it.
struct FormulaFieldText {
  std::string name;
  std::string expression;
  /// Empty for none.
  std::string inverse;

  bool operator==(const FormulaFieldText&) const = default;
};

/// A formula field as the user is to see it.
FormulaFieldText formulaFieldText(const FieldDef& field);

/// A field's highlight formula as the user is to see it: "BLACK()" when it has none.
std::string highlightText(const FieldDef& field);

/// Whether a field is highlighted otherwise than by "BLACK()".
bool isHighlighted(const FieldDef& field);

/// A name as it is stored: without blanks at its ends.
std::string storedName(std::string_view name);

/// A formula as it is stored: on one line, with apostrophes for double quotes.
std::string storedFormula(std::string_view text);

/// Whether a formula means the same once it is stored: a name that holds an apostrophe and has to
/// stand in quotes cannot be kept.
bool canStoreFormula(std::string_view text, const FunctionRegistry& functions);

/// The name, or when a field other than `except` has it, the name with an underscore and a
/// pseudo-random number.
std::string uniqueFieldName(const Table& table, std::string_view name, int except = kNoField);

/// Adds a formula field behind all others, at the end of the data fields; it can be edited when it
/// has an inverse formula. Returns its index; nothing, with nothing changed, when memory runs out.
std::optional<int> addFormulaField(ReportView& view, const FormulaFieldText& text);

/// Changes a formula field. With another name, all formulas that name the field follow.
void changeFormulaField(ReportView& view, int field, const FormulaFieldText& text,
                        const FunctionRegistry& functions);

/// Gives a formula field other formulas, which are stored. A blank inverse formula is none. The
/// field can be edited from then on when an inverse formula has come, and no longer when it has
/// gone.
void setFormulas(FieldDef& field, std::string_view expression, std::string_view inverse);

/// Sets a field's highlight formula; a blank text stands for "BLACK()".
void setHighlightFormula(ReportView& view, int field, std::string_view text);

/// Whether a field may be deleted: a formula field with no plain field behind it, where the table
/// and its view files would no longer fit each other.
bool canDeleteField(const Table& table, int field);

/// Deletes a field that may be; formulas that name it stay as they are. False, with nothing
/// changed, when memory runs out.
bool deleteFormulaField(ReportView& view, int field);

/// The names of the other fields whose formulas name a field.
std::vector<std::string> fieldsNaming(const Table& table, int field,
                                      const FunctionRegistry& functions);

}  // namespace vrel
