// Values: how one cell is read from text, shown, exported and compared. All other parts of the
// program convert through these operations only.
#pragma once

#include <bit>
#include <cstdint>
#include <string>
#include <string_view>

#include "model/field.h"
#include "model/format_settings.h"

namespace vrel {

/// The unbounded value, written "*".
inline constexpr double kUnbounded = 1e20;
/// The value of a failed formula, shown "*error*".
inline constexpr double kErrorValue = 1.7976931348623157e308;

/// The stored value of one cell; the field's type tells which member holds. All bits clear is the
/// value of a fresh cell of any type: no text, 0, No, the first period, 1970.
union Cell {
  double number;
  std::int64_t time;
  std::uint32_t text;
  std::int32_t period;
  bool boolean;
  std::uint64_t bits;
};
static_assert(sizeof(Cell) == 8);

/// An undefined number is stored as a NaN that no calculation yields, and counts as 0.
inline constexpr std::uint64_t kUndefinedBits = 0x7ff8'756e'6465'6664;

inline Cell emptyCell() {
  return Cell{.bits = 0};
}
inline Cell undefinedCell() {
  return Cell{.bits = kUndefinedBits};
}
inline bool isUndefined(Cell cell) {
  return cell.bits == kUndefinedBits;
}
inline Cell numberCell(double number) {
  return Cell{.number = number};
}
/// The number that a cell of type number or expression counts as.
inline double numberOf(Cell cell) {
  return isUndefined(cell) ? 0.0 : cell.number;
}

/// One typed value: a cell and the field it belongs to (not owned).
struct FieldValue {
  const FieldDef* owner = nullptr;
  Cell cell = emptyCell();
};

/// How a value is written: as shown, or as CSV-like output quotes it.
enum class Quoting { None, Quoted };

/// The number in a text: a decimal number as a whole, with "_" and "," left out and white space
/// around it allowed; "*" is 1e20, a text beginning with "undefined" the undefined number. Anything
/// else, "inf" and "nan" and numbers out of range included, is 0.
Cell parseNumber(std::string_view text);

/// The value of a text by the field's type. Never fails: bad numbers are 0, unknown booleans No,
/// unknown periods the first, unreadable dates the current time. A new text is added to the
/// field's texts.
Cell parseValue(FieldDef& field, std::string_view text);

/// Length of the longest text that `formatNumber` makes.
inline constexpr std::size_t kMaxNumberLength = 1024;

/// Writes a number by the settings into `buffer`, which must have room for `kMaxNumberLength`
/// bytes; returns the end of the text.
char* formatNumber(char* buffer, double number, const FormatSettings& settings);
std::string formatNumber(double number, const FormatSettings& settings);

/// The fixed texts of values.
inline constexpr std::string_view kUndefinedText = "undefined";
inline constexpr std::string_view kErrorText = "*error*";

/// The text stored in a cell of type string; empty when there is none.
inline std::string_view stringText(const FieldDef& field, Cell cell) {
  return field.texts.text(cell.text);
}
/// The word for a cell of type boolean.
inline std::string_view booleanText(Cell cell) {
  return cell.boolean ? "Yes" : "No";
}
/// Whether a string is shown as the empty text: no text at all, or just two double quotes.
inline bool isEmptyText(std::string_view text) {
  return text.empty() || text == "\"\"";
}
/// The period name that a cell of type period stands for. An index outside the field's list aborts
/// the process with a message on standard error.
std::string_view periodName(const FieldDef& field, Cell cell);

/// Appends the text of a value; for periods see `periodName`.
void appendValue(std::string& text, const FieldDef& field, Cell cell,
                 const FormatSettings& settings, Quoting quoting);
std::string formatValue(const FieldValue& value, const FormatSettings& settings, Quoting quoting);

/// Order of two values: -1, 0 or 1; 0 when their types differ.
int compareValues(const FieldValue& a, const FieldValue& b);

}  // namespace vrel
