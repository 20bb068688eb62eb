// Where summaries stand: the lines (grid rows or grid columns) of one axis, in which each break's
// summaries follow the groups that they cover.
//
// A group's change of a field is a boundary at which the field or one before it on the axis
// differs. Each break counts its own changes; the end of the page is one too, so that the last
// groups always get their summary. Memory follows the summaries, not the lines.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "model/breaks.h"
#include "model/table.h"

namespace vrel {

/// A break that is in use on an axis, with its summaries in order.
struct AxisBreak {
  std::string name;
  bool breakAfter = false;
  /// Place of the break's field among the axis's fields.
  std::size_t level = 0;
  /// By data field.
  std::vector<BreakOperation> operations;
  /// The data fields that have an operation.
  std::vector<std::size_t> computed;
  /// Lines of one summary, the blank one not counted.
  std::size_t lines = 1;
  /// Behind the last group that each summary covers; the next summary covers from there on. The
  /// last one covers the last group.
  std::vector<std::uint32_t> ends;
  /// The first line of each summary.
  std::vector<std::size_t> firstLines;
};

/// One summary among all those of its axis.
struct SummaryPlace {
  std::uint32_t breakIndex;
  /// Its number among the summaries of its break.
  std::uint32_t turn;
  /// How many groups stand before it.
  std::uint32_t groupsBefore;
  std::size_t firstLine;
};

/// The lines of one axis: every group has as many lines as the others.
struct AxisLines {
  std::size_t linesPerGroup = 1;
  std::size_t count = 0;
  /// The innermost level first, which is the order of summaries that stand at one place. Several
  /// breaks of one field each have their summaries, in the order of their definitions.
  std::vector<AxisBreak> breaks;
  /// In the order in which they stand.
  std::vector<SummaryPlace> summaries;
};

/// The groups of an axis and the data they are split by.
struct AxisGroups {
  const Table& table;
  std::span<const int> fields;
  /// A tuple of each group.
  std::span<const std::uint32_t> groups;
  std::span<const int> dataFields;
  /// Each group has a line for every data field, and each summary one for every data field that it
  /// computes; otherwise both have one line.
  bool dataAlong;
};

/// Places the summaries. A definition counts when it is active, has a frequency, belongs to a field
/// of the axis and computes something for a data field. Frequencies and first breaks below 0 are,
/// like "at end", never reached before the end.
AxisLines placeLines(const AxisGroups& axis, std::span<const BreakDefinition> definitions);

enum class LineKind { Group, Summary, Blank };

/// What one line is.
struct GridLine {
  LineKind kind;
  /// The group, or the summary among `AxisLines::summaries`.
  std::uint32_t index;
  /// Which line of the group or the summary it is.
  std::size_t within;
};

/// What a line below `count` is.
GridLine lineAt(const AxisLines& axis, std::size_t line);

/// The first line of a group.
std::size_t firstLineOf(const AxisLines& axis, std::uint32_t group);

/// The data field of a line, when data run along the axis.
std::size_t dataFieldOf(const AxisLines& axis, const GridLine& line);

/// The first of the fields in which two tuples differ; the number of fields when in none.
std::size_t firstDifference(const Table& table, std::span<const int> fields, std::size_t a,
                            std::size_t b);

}  // namespace vrel
