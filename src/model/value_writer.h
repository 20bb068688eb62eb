// Writing many values of one field: what does not change from cell to cell is settled once.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/text_pen.h"
#include "model/field_value.h"

namespace vrel {

/// The texts of the dates met last. A column repeats a few dates many times, and broken-down time
/// is dear.
class DateTexts {
 public:
  DateTexts(std::string pattern, Quoting quoting);
  /// Valid until the next call.
  std::string_view text(std::int64_t seconds);

 private:
  struct Slot {
    std::int64_t seconds;
    bool filled = false;
    std::string text;
  };

  std::string pattern_;
  Quoting quoting_;
  std::vector<Slot> slots_;
};

/// Writes the values of one field. The texts are those of `formatValue`. The field outlives the
/// writer and keeps its type; later changes of the settings do not count.
class ValueWriter {
 public:
  ValueWriter(const FieldDef& field, const FormatSettings& settings, Quoting quoting);

  /// Whether the cell's text is that of its number; else it is a word, a text or a date.
  bool isPlainNumber(Cell cell) const {
    return isNumber_ && cell.bits != kUndefinedBits && cell.bits != wordBits_;
  }

  void write(TextPen& pen, Cell cell) {
    if (isPlainNumber(cell)) {
      char* to = pen.room(kMaxNumberLength);
      pen.advance(formatNumber(to, cell.number, settings_));
    } else {
      pen.write(text(cell));
    }
  }

  /// The text alone, valid until the next call.
  std::string_view text(Cell cell);

 private:
  const FieldDef* field_;
  bool isNumber_;
  /// The number for which a word is written.
  std::uint64_t wordBits_;
  FormatSettings settings_;
  Quoting quoting_;
  DateTexts dates_;
  std::string scratch_;
};

/// One writer per field, in the order of the list.
std::vector<ValueWriter> makeValueWriters(const std::vector<FieldDef>& fields,
                                          const FormatSettings& settings, Quoting quoting);

}  // namespace vrel
