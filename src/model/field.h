// Fields: the typed columns of a table.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/text_pool.h"

namespace vrel {

enum class FieldType : std::int32_t {
  Unset = -1,
  String = 0,
  Number = 1,
  Boolean = 2,
  Date = 3,
  Expression = 4,
  Period = 5,
};

enum class Classification : std::int32_t {
  Unset = -1,
  Key = 0,
  DataReadWrite = 1,
  DataReadOnly = 2,
};

/// What a compiled formula looks like is the expression language's business.
struct CompiledFormula;

/// What is wrong with a formula.
enum class FormulaError : std::uint8_t {
  None,
  /// Its text is no formula, or empty.
  Syntax,
  /// It has no value for the tuple that it was last evaluated for.
  Evaluation,
};

/// A formula's text and what became of it. What is compiled belongs to the text and to the names
/// and types of the table's fields: where one of them changes, `compiled` must be reset.
struct Formula {
  std::string text;
  FormulaError error = FormulaError::None;
  /// Where in the text the last failure lies.
  std::optional<std::size_t> errorPosition = std::nullopt;
  /// Made when it is first evaluated.
  std::shared_ptr<const CompiledFormula> compiled = nullptr;
};

/// The period names of a field in their order, with lookup by name.
class PeriodNames {
 public:
  void add(std::string_view name);
  void clear();
  std::int32_t size() const { return static_cast<std::int32_t>(names_.size()); }
  std::string_view name(std::int32_t index) const {
    return names_[static_cast<std::size_t>(index)];
  }
  /// Position of the first name equal to the text; 0 when there is none.
  std::int32_t find(std::string_view text) const;

 private:
  TextPool pool_;
  std::vector<std::string_view> names_;
  // By text id: the first position of that name.
  std::vector<std::int32_t> firstPosition_ = {0};
};

/// One field of a table. It owns the texts that the column's cells refer to.
struct FieldDef {
  std::string name;
  FieldType type = FieldType::Unset;
  Classification classification = Classification::Unset;
  Formula expression;
  Formula inverseExpression;
  Formula highlightExpression{.text = "BLACK()"};
  /// On a field of the x axis: its heading and labels are left empty in the report.
  bool hidden = false;
  PeriodNames periodNames;
  TextPool texts;

  bool isKey() const { return classification == Classification::Key; }
  bool isExpression() const { return type == FieldType::Expression; }
  /// What is typed into its cells is a formula that is evaluated.
  bool takesFormulas() const { return type == FieldType::Number || type == FieldType::Boolean; }
  /// Whether its values are numbers to count with.
  bool hasNumbers() const { return type == FieldType::Number || isExpression(); }
};

/// Type by its name in view files; `Unset` for any other word.
FieldType fieldTypeFromName(std::string_view name);
/// Name of a type in view files; empty for `Unset`.
std::string_view fieldTypeName(FieldType type);
/// Classification by its word in view files; `Unset` for any other word.
Classification classificationFromWord(std::string_view word);
/// Word of a classification in view files; empty for `Unset`.
std::string_view classificationWord(Classification classification);

}  // namespace vrel
