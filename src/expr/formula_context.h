// What formulas about a table work on beside their own tuple: the series that it stands in.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "base/notice.h"
#include "expr/program.h"
#include "model/table.h"

namespace vrel {

/// The tuples of one series: those equal in all keys but the period, which stand next to each
/// other in a sorted table.
struct Series {
  std::size_t first = 0;
  std::size_t last = 0;

  bool holds(std::size_t tuple) const { return first <= tuple && tuple <= last; }
};

/// A value that was stored in the place of another.
struct CellChange {
  CellRef cell;
  Cell before;
  Cell after;
};

struct FormulaContext {
  /// Its tuples must stand in key order as long as formulas run over them.
  Table& table;
  Notice& notice;
  /// Formula fields are being recalculated; clear while an inverse or a highlight formula runs.
  bool recalculating = false;
  /// The value of the scratch field, which outlives the table.
  Cell scratch = emptyCell();
  /// Asked for last; formulas run along the series.
  std::optional<Series> lastSeries = std::nullopt;
  /// Messages that formulas have shown to the user: each is shown once.
  std::vector<std::string> shownMessages = {};
  /// Where values that are typed or assigned are noted, in order, those of recalculations are not.
  /// Not owned; may be null.
  std::vector<CellChange>* changes = nullptr;
};

/// Keeps formulas from assigning to other fields while the object lives, as forward formulas and
/// typed ones must not.
class ForwardOnly {
 public:
  explicit ForwardOnly(FormulaContext& context) : context_(context) {
    context_.recalculating = true;
  }
  ForwardOnly(const ForwardOnly&) = delete;
  ForwardOnly& operator=(const ForwardOnly&) = delete;
  ~ForwardOnly() { context_.recalculating = false; }

 private:
  FormulaContext& context_;
};

/// The series of a tuple.
Series seriesOf(FormulaContext& context, std::size_t tuple);

/// The tuple that lies at an offset from a tuple, in its series; nothing beyond the series.
std::optional<std::size_t> resolveTuple(FormulaContext& context, std::size_t tuple,
                                        const OffsetReference& reference);

/// Stores a value. Where that changes a key, the table no longer counts as sorted.
void storeCell(FormulaContext& context, CellRef place, Cell stored);

/// Stores a number in a field that formulas can name; a boolean becomes Yes unless it is 0.
void storeNumber(FormulaContext& context, std::size_t tuple, int column, double number);

/// The number that a field holds in a tuple: 0 or 1 of a boolean, 0 of no field.
double numberAt(const FormulaContext& context, std::size_t tuple, FieldPlace place);

}  // namespace vrel
