// Edits: one cell set from text, with all that follows from it in its tuple.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "expr/evaluator.h"

namespace vrel {

/// Why a text was not taken.
enum class EditRefusal : std::uint8_t {
  None,
  /// The field is not one that may be edited.
  ReadOnly,
  /// No formula, where a number or a yes-or-no is wanted.
  Syntax,
  /// A formula that has no value here.
  Evaluation,
  /// No date, where one is wanted.
  NoDate,
};

enum class InverseOutcome : std::uint8_t {
  /// The field has no inverse formula.
  None,
  Applied,
  /// The formula says why; see `Formula::error`.
  Failed,
};

struct CellEdit {
  EditRefusal refusal = EditRefusal::None;
  /// With `EditRefusal::Syntax`: where in the text, when it is not blank.
  std::optional<std::size_t> errorPosition = std::nullopt;
  InverseOutcome inverse = InverseOutcome::None;

  bool accepted() const { return refusal == EditRefusal::None; }
};

/// Sets a cell from text: of a number or a yes-or-no field a formula that is evaluated for the
/// tuple, of any other field its value. Then the field's inverse formula runs and the tuple's
/// formula fields are computed. A refused text changes nothing. Without a text only the latter two
/// happen.
CellEdit setCell(Evaluator& evaluator, std::size_t tuple, int field,
                 std::optional<std::string_view> text);

/// The same without computing formula fields, for callers that set many cells; a formula field's
/// own value and those that the inverse formula reads must be up to date.
CellEdit enterText(Evaluator& evaluator, std::size_t tuple, int field, std::string_view text);

/// Runs the inverse formula of a formula field for a tuple.
InverseOutcome applyInverseFormula(Evaluator& evaluator, std::size_t tuple, int field);

/// Runs all inverse formulas of all tuples, each as an edit of its field would; false when
/// cancelled. Formula fields and colours have to be brought up to date afterwards.
bool applyInverseFormulas(Evaluator& evaluator);

/// The number in a text that is written with separators, as it reads without them; any other text
/// as it stands.
std::string withoutSeparators(std::string_view text);

}  // namespace vrel
