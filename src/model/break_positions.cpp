#include "model/break_positions.h"

#include <algorithm>
#include <limits>
#include <optional>

#include "model/field_value.h"

namespace vrel {
namespace {

constexpr std::int64_t kNever = std::numeric_limits<std::int64_t>::max();

std::int64_t changesOf(std::int32_t code) {
  return code < 0 || code == kBreakAtEnd ? kNever : code;
}

std::optional<AxisBreak> breakOnAxis(const AxisGroups& axis, const BreakDefinition& definition) {
  const auto field = std::find(axis.fields.begin(), axis.fields.end(), definition.fieldIndex);
  if (!definition.active || definition.frequency == 0 || field == axis.fields.end()) {
    return std::nullopt;
  }
  AxisBreak result;
  result.name = definition.name;
  result.breakAfter = definition.breakAfter;
  result.level = static_cast<std::size_t>(field - axis.fields.begin());
  for (std::size_t data = 0; data < axis.dataFields.size(); ++data) {
    result.operations.push_back(operationOf(definition, axis.dataFields[data]));
    if (result.operations.back() != BreakOperation::Nothing) {
      result.computed.push_back(data);
    }
  }
  result.lines = axis.dataAlong ? result.computed.size() : 1;
  return result.computed.empty() ? std::nullopt : std::optional(std::move(result));
}

// Counts the changes of one break's field and notes after which groups its summaries come.
class ChangeCounter {
 public:
  ChangeCounter(AxisBreak& target, const BreakDefinition& definition)
      : target_(target),
        step_(changesOf(definition.frequency)),
        next_(definition.firstBreak != 0 ? changesOf(definition.firstBreak) : step_) {}

  void boundary(std::uint32_t group, std::size_t changedLevel) {
    if (changedLevel <= target_.level && ++changes_ == next_) {
      target_.ends.push_back(group);
      next_ = step_ == kNever ? kNever : next_ + step_;
    }
  }
  void end(std::uint32_t groups) { target_.ends.push_back(groups); }

 private:
  AxisBreak& target_;
  std::int64_t step_;
  std::int64_t next_;
  std::int64_t changes_ = 0;
};

// The breaks in use and their definitions, the innermost first.
struct UsedBreaks {
  std::vector<AxisBreak> breaks;
  std::vector<const BreakDefinition*> definitions;
};

UsedBreaks findBreaks(const AxisGroups& axis, std::span<const BreakDefinition> definitions) {
  std::vector<std::pair<AxisBreak, const BreakDefinition*>> found;
  for (const BreakDefinition& definition : definitions) {
    if (std::optional<AxisBreak> one = breakOnAxis(axis, definition)) {
      found.emplace_back(std::move(*one), &definition);
    }
  }
  std::stable_sort(found.begin(), found.end(),
                   [](const auto& a, const auto& b) { return a.first.level > b.first.level; });
  UsedBreaks used;
  for (auto& [one, definition] : found) {
    used.breaks.push_back(std::move(one));
    used.definitions.push_back(definition);
  }
  return used;
}

void countChanges(const AxisGroups& axis, UsedBreaks& used) {
  std::vector<ChangeCounter> counters;
  for (std::size_t i = 0; i < used.breaks.size(); ++i) {
    counters.emplace_back(used.breaks[i], *used.definitions[i]);
  }
  // Deeper levels than that of the innermost break matter to none.
  const auto levels = axis.fields.first(used.breaks.front().level + 1);
  const auto groups = static_cast<std::uint32_t>(axis.groups.size());
  for (std::uint32_t group = 1; group < groups; ++group) {
    const std::size_t changed =
        firstDifference(axis.table, levels, axis.groups[group - 1], axis.groups[group]);
    for (ChangeCounter& counter : counters) {
      counter.boundary(group, changed);
    }
  }
  for (ChangeCounter& counter : counters) {
    counter.end(groups);
  }
}

// Merges the breaks' summaries into the order of their places and gives them their lines.
void placeSummaries(AxisLines& axis, std::uint32_t groups) {
  std::size_t extra = 0;
  for (std::uint32_t group = 1; group <= groups; ++group) {
    for (std::uint32_t i = 0; i < axis.breaks.size(); ++i) {
      AxisBreak& one = axis.breaks[i];
      const std::size_t turn = one.firstLines.size();
      if (turn < one.ends.size() && one.ends[turn] == group) {
        const std::size_t line = group * axis.linesPerGroup + extra;
        axis.summaries.push_back({i, static_cast<std::uint32_t>(turn), group, line});
        one.firstLines.push_back(line);
        extra += one.lines + (one.breakAfter ? 1 : 0);
      }
    }
  }
  axis.count += extra;
}

}  // namespace

AxisLines placeLines(const AxisGroups& axis, std::span<const BreakDefinition> definitions) {
  AxisLines lines;
  lines.linesPerGroup = axis.dataAlong ? axis.dataFields.size() : 1;
  lines.count = axis.groups.size() * lines.linesPerGroup;
  if (UsedBreaks used = findBreaks(axis, definitions);
      !used.breaks.empty() && !axis.groups.empty()) {
    countChanges(axis, used);
    lines.breaks = std::move(used.breaks);
    placeSummaries(lines, static_cast<std::uint32_t>(axis.groups.size()));
  }
  return lines;
}

GridLine lineAt(const AxisLines& axis, std::size_t line) {
  // The last group start known before the line, and how far behind it the line stands.
  std::uint32_t group = 0;
  std::size_t behind = line;
  const auto next = std::upper_bound(
      axis.summaries.begin(), axis.summaries.end(), line,
      [](std::size_t wanted, const SummaryPlace& each) { return wanted < each.firstLine; });
  if (next != axis.summaries.begin()) {
    const SummaryPlace& summary = *(next - 1);
    const AxisBreak& one = axis.breaks[summary.breakIndex];
    const auto index = static_cast<std::uint32_t>(next - 1 - axis.summaries.begin());
    const std::size_t within = line - summary.firstLine;
    if (within < one.lines) {
      return {LineKind::Summary, index, within};
    }
    if (within == one.lines && one.breakAfter) {
      return {LineKind::Blank, index, 0};
    }
    group = summary.groupsBefore;
    behind = within - one.lines - (one.breakAfter ? 1 : 0);
  }
  return {LineKind::Group, group + static_cast<std::uint32_t>(behind / axis.linesPerGroup),
          behind % axis.linesPerGroup};
}

std::size_t firstLineOf(const AxisLines& axis, std::uint32_t group) {
  const auto next = std::upper_bound(
      axis.summaries.begin(), axis.summaries.end(), group,
      [](std::uint32_t wanted, const SummaryPlace& each) { return wanted < each.groupsBefore; });
  if (next == axis.summaries.begin()) {
    return group * axis.linesPerGroup;
  }
  const SummaryPlace& summary = *(next - 1);
  const AxisBreak& one = axis.breaks[summary.breakIndex];
  return summary.firstLine + one.lines + (one.breakAfter ? 1 : 0) +
         (group - summary.groupsBefore) * axis.linesPerGroup;
}

std::size_t dataFieldOf(const AxisLines& axis, const GridLine& line) {
  return line.kind == LineKind::Summary
             ? axis.breaks[axis.summaries[line.index].breakIndex].computed[line.within]
             : line.within;
}

std::size_t firstDifference(const Table& table, std::span<const int> fields, std::size_t a,
                            std::size_t b) {
  std::size_t level = 0;
  while (level < fields.size() &&
         compareValues(table.value(a, fields[level]), table.value(b, fields[level])) == 0) {
    ++level;
  }
  return level;
}

}  // namespace vrel
