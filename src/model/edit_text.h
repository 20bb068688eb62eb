// The texts by which values are typed: what an editor opens with, and what typed text means.
#pragma once

#include <string>
#include <string_view>

#include "model/field_value.h"
#include "model/format_settings.h"

namespace vrel {

/// A number with up to 15 significant digits and without separators.
std::string exactNumber(double number);

/// The text with which editing of a value begins: numbers without separators and with up to 15
/// significant digits, whatever precision is shown; everything else as it is shown.
std::string editText(const FieldValue& value, const FormatSettings& settings);

/// A typed or pasted text in the form that a cell of the field takes: a number in the form in
/// which numbers are shown ("1,234.50", "*") as it reads without separators, "Yes" and "No" of a
/// boolean as 1 and 0. Any other text comes back as it is: it may be a formula.
std::string typedText(const FieldDef& field, std::string_view text);

}  // namespace vrel
