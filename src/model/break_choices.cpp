#include "model/break_choices.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace vrel {
namespace {

constexpr std::array<BreakChoice, 15> kFrequencies = {{
    {0, translatable("vrel", "Never")},
    {1, translatable("vrel", "Every Change")},
    {2, translatable("vrel", "Every 2nd Change")},
    {3, translatable("vrel", "Every 3rd Change")},
    {4, translatable("vrel", "Every 4th Change")},
    {5, translatable("vrel", "Every 5th Change")},
    {6, translatable("vrel", "Every 6th Change")},
    {7, translatable("vrel", "Every 7th Change")},
    {8, translatable("vrel", "Every 8th Change")},
    {9, translatable("vrel", "Every 9th Change")},
    {10, translatable("vrel", "Every 10th Change")},
    {12, translatable("vrel", "Every 12th Change")},
    {24, translatable("vrel", "Every 24th Change")},
    {28, translatable("vrel", "Every 28th Change")},
    {kBreakAtEnd, translatable("vrel", "At End")},
}};

constexpr std::array<BreakChoice, 12> kFirstBreaks = {{
    {0, translatable("vrel", "Same as Frequency")},
    {1, translatable("vrel", "At 1st Change")},
    {2, translatable("vrel", "At 2nd Change")},
    {3, translatable("vrel", "At 3rd Change")},
    {4, translatable("vrel", "At 4th Change")},
    {5, translatable("vrel", "At 5th Change")},
    {6, translatable("vrel", "At 6th Change")},
    {7, translatable("vrel", "At 7th Change")},
    {8, translatable("vrel", "At 8th Change")},
    {9, translatable("vrel", "At 9th Change")},
    {10, translatable("vrel", "At 10th Change")},
    {11, translatable("vrel", "At 11th Change")},
}};

constexpr std::array<BreakOperation, 7> kOperations = {
    BreakOperation::Nothing, BreakOperation::Sum,     BreakOperation::Minimum,
    BreakOperation::Maximum, BreakOperation::Average, BreakOperation::First,
    BreakOperation::Last,
};
// An operation's code is its place in the list.
static_assert(kOperations.size() == static_cast<std::size_t>(kOperations.back()) + 1);

// View files may hold numbers that are not offered. They count as that many changes, which a number
// below 0 never reaches.
constexpr const char* kOtherFrequency = translatable("vrel", "Every %1 Changes");
constexpr const char* kOtherFirstBreak = translatable("vrel", "At Change %1");
constexpr const char* kNeverReached = translatable("vrel", "At End (%1)");

std::string choiceText(std::span<const BreakChoice> choices, std::int32_t code, const char* other,
                       Notice& notice) {
  const auto choice = std::find_if(choices.begin(), choices.end(),
                                   [code](const BreakChoice& each) { return each.code == code; });
  return choice != choices.end()
             ? notice.translate(choice->text)
             : noticeText(notice, code < 0 ? kNeverReached : other, std::to_string(code));
}

bool isIn(const std::vector<int>& fields, int field) {
  return std::find(fields.begin(), fields.end(), field) != fields.end();
}

// The fields in the order in which their breaks are listed.
std::vector<int> listedFields(const ReportView& view) {
  std::vector<int> fields = view.axis(Axis::X);
  fields.insert(fields.end(), view.axis(Axis::Y).begin(), view.axis(Axis::Y).end());
  const std::vector<int> onAxes = fields;
  for (int field = 0; field < static_cast<int>(view.table->fieldCount()); ++field) {
    if (view.table->field(field).isKey() && !isIn(onAxes, field)) {
      fields.push_back(field);
    }
  }
  return fields;
}

}  // namespace

std::span<const BreakChoice> frequencyChoices() {
  return kFrequencies;
}

std::span<const BreakChoice> firstBreakChoices() {
  return kFirstBreaks;
}

std::span<const BreakOperation> breakOperations() {
  return kOperations;
}

std::string frequencyText(std::int32_t frequency, Notice& notice) {
  return choiceText(kFrequencies, frequency, kOtherFrequency, notice);
}

std::string firstBreakText(std::int32_t firstBreak, Notice& notice) {
  return choiceText(kFirstBreaks, firstBreak, kOtherFirstBreak, notice);
}

std::string computedText(const ReportView& view, const BreakDefinition& definition,
                         Notice& notice) {
  std::string text;
  for (const int field : view.axis(Axis::Data)) {
    const BreakOperation operation = operationOf(definition, field);
    if (operation != BreakOperation::Nothing) {
      text += text.empty() ? "" : ", ";
      text += view.table->field(field).name + ": ";
      text += notice.translate(operationShortName(operation));
    }
  }
  return text;
}

std::vector<std::size_t> listedBreaks(const ReportView& view) {
  const std::vector<int> fields = listedFields(view);
  // By table field: its turn in the list, counted from 1.
  std::vector<std::size_t> turns(view.table->fieldCount(), 0);
  for (std::size_t i = 0; i < fields.size(); ++i) {
    turns[static_cast<std::size_t>(fields[i])] = i + 1;
  }
  std::vector<std::size_t> listed;
  const auto turnOf = [&](std::size_t position) {
    // A view file may name fields that there are not.
    const auto field = static_cast<std::size_t>(view.breaks[position].fieldIndex);
    return field < turns.size() ? turns[field] : 0;
  };
  for (std::size_t i = 0; i < view.breaks.size(); ++i) {
    if (turnOf(i) > 0) {
      listed.push_back(i);
    }
  }
  std::stable_sort(listed.begin(), listed.end(),
                   [&](std::size_t a, std::size_t b) { return turnOf(a) < turnOf(b); });
  return listed;
}

BreakObstacle obstacleOf(const ReportView& view, const BreakDefinition& definition) {
  if (!isIn(view.axis(Axis::X), definition.fieldIndex) &&
      !isIn(view.axis(Axis::Y), definition.fieldIndex)) {
    return BreakObstacle::NotOnAxis;
  }
  if (!definition.active) {
    return BreakObstacle::Suspended;
  }
  if (definition.frequency == 0) {
    return BreakObstacle::NeverDue;
  }
  const std::vector<int>& data = view.axis(Axis::Data);
  const bool computes = std::any_of(data.begin(), data.end(), [&definition](int field) {
    return operationOf(definition, field) != BreakOperation::Nothing;
  });
  return computes ? BreakObstacle::None : BreakObstacle::NothingComputed;
}

void setAllActive(ReportView& view, bool active) {
  for (BreakDefinition& definition : view.breaks) {
    definition.active = active;
  }
}

}  // namespace vrel
