// The form around an HTML table, by which changed cells are posted to a script on the host.
//
// The script finds a cell by the name of its input. The name holds the number of each key field
// with the number of its value (its token), then the number of the cell's own field. What equals
// the input before is left out. The form begins with hidden inputs that list fields and tokens.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "base/task_progress.h"
#include "base/text_pen.h"
#include "model/cell_texts.h"
#include "model/report_grid.h"

namespace vrel {

/// Whether a table is written with a form: it has an editable field that is no formula.
bool hasEditForm(const Table& table);

/// Double quotes and "%" as "%" and two small hex digits; nothing else is masked.
void writeFormText(TextPen& pen, std::string_view text);

/// The different values of all key fields among the tuples that a grid shows, numbered from 0 in
/// the order of their types and then of the values. Equal values of two fields of one type are one
/// token. Memory follows the different values.
class FormTokens {
 public:
  explicit FormTokens(const ReportGrid& grid);

  std::size_t size() const { return tokens_.size(); }
  const FieldValue& operator[](std::size_t token) const { return tokens_[token]; }

  /// The key fields of the table, in its order.
  const std::vector<int>& keyFields() const { return keyFields_; }
  /// The token of a value of the key field at a place in `keyFields`.
  std::uint32_t tokenOf(std::size_t keyIndex, Cell cell) const;

 private:
  struct FieldTokens {
    /// By text number, in a field of texts.
    std::vector<std::uint32_t> byText;
    /// By the bits of the cell, in all others.
    std::unordered_map<std::uint64_t, std::uint32_t> byBits;
  };

  struct KeyValue {
    std::size_t keyIndex;
    FieldValue value;
  };

  std::vector<KeyValue> collect(const ReportGrid& grid);
  void number(std::vector<KeyValue> values);
  std::uint32_t& slotOf(std::size_t keyIndex, Cell cell);

  std::vector<int> keyFields_;
  std::vector<FieldTokens> fields_;
  std::vector<FieldValue> tokens_;
};

/// Names one input after the other.
class InputNames {
 public:
  /// Both outlive the object.
  InputNames(const Table& table, const FormTokens& tokens);

  /// The name of the next input; valid until the next call.
  std::string_view next(CellRef cell);

 private:
  void addKeys(std::uint32_t tuple);

  const Table& table_;
  const FormTokens& tokens_;
  /// By key field, of the tuple named last.
  std::vector<std::uint32_t> lastTokens_;
  std::uint32_t lastTuple_ = 0;
  int lastField_ = -1;
  std::string name_;
};

/// The form of one table.
class EditForm {
 public:
  /// Both outlive the object.
  EditForm(const ReportGrid& grid, const FormatSettings& settings);
  EditForm(const EditForm&) = delete;
  EditForm& operator=(const EditForm&) = delete;

  /// Measures the columns, for the width of the inputs. One pass over all cells; `part` of the
  /// progress is half done afterwards. False when cancelled.
  bool measure(TaskProgress& progress, std::size_t part);

  /// What stands before and behind the table.
  void writeBegin(TextPen& pen, std::string_view title) const;
  static void writeEnd(TextPen& pen);

  /// Whether a cell shows a value that can be edited.
  bool takesInput(const RowCell& cell) const;
  /// Writes the input of such a cell, with the text that it shows.
  void writeInput(TextPen& pen, const RowCell& cell, std::string_view text);

 private:
  const ReportGrid& grid_;
  const FormatSettings& settings_;
  const FormTokens tokens_;
  InputNames names_;
  /// By data field.
  std::vector<bool> isEditable_;
  /// Characters of the longest text, by data column.
  std::vector<std::size_t> longest_;
};

}  // namespace vrel
