#include "model/value_writer.h"

#include "model/date.h"

namespace vrel {
namespace {

constexpr unsigned kSlotBits = 8;

/// Dates are mostly whole days or hours: the low bits of the seconds tell little.
std::size_t slotOf(std::int64_t seconds) {
  return static_cast<std::uint64_t>(seconds) * 0x9e3779b97f4a7c15 >> (64 - kSlotBits);
}

}  // namespace

DateTexts::DateTexts(std::string pattern, Quoting quoting)
    : pattern_(std::move(pattern)), quoting_(quoting) {}

std::string_view DateTexts::text(std::int64_t seconds) {
  slots_.resize(std::size_t{1} << kSlotBits);
  Slot& slot = slots_[slotOf(seconds)];
  if (!slot.filled || slot.seconds != seconds) {
    slot.seconds = seconds;
    slot.filled = true;
    slot.text.clear();
    appendDate(slot.text, seconds, pattern_, quoting_);
  }
  return slot.text;
}

ValueWriter::ValueWriter(const FieldDef& field, const FormatSettings& settings, Quoting quoting)
    : field_(&field),
      isNumber_(field.hasNumbers()),
      wordBits_(field.isExpression() ? numberCell(kErrorValue).bits : kUndefinedBits),
      settings_(settings),
      quoting_(quoting),
      dates_(settings.dateFormat, quoting) {}

std::string_view ValueWriter::text(Cell cell) {
  if (field_->type == FieldType::Date) {
    return dates_.text(cell.time);
  }
  if (quoting_ == Quoting::None) {
    if (field_->type == FieldType::String) {
      const std::string_view text = stringText(*field_, cell);
      return isEmptyText(text) ? std::string_view() : text;
    }
    if (field_->type == FieldType::Period) {
      return periodName(*field_, cell);
    }
    if (field_->type == FieldType::Boolean) {
      return booleanText(cell);
    }
  }
  scratch_.clear();
  appendValue(scratch_, *field_, cell, settings_, quoting_);
  return scratch_;
}

std::vector<ValueWriter> makeValueWriters(const std::vector<FieldDef>& fields,
                                          const FormatSettings& settings, Quoting quoting) {
  std::vector<ValueWriter> writers;
  writers.reserve(fields.size());
  for (const FieldDef& field : fields) {
    writers.emplace_back(field, settings, quoting);
  }
  return writers;
}

}  // namespace vrel
