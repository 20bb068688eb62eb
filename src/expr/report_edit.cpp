#include "expr/report_edit.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <unordered_set>
#include <utility>

#include "base/words.h"
#include "expr/formula.h"
#include "expr/recalculation.h"
#include "model/edit_text.h"
#include "model/table_sort.h"

namespace vrel {
namespace {

bool isPlainNumber(std::string_view text) {
  const std::string_view trimmed = trimBlanks(text);
  double number = 0;
  const char* const end = trimmed.data() + trimmed.size();
  const auto result = std::from_chars(trimmed.data(), end, number);
  return result.ec == std::errc() && result.ptr == end;
}

// Whether what a text does to a field may depend on formula fields.
bool readsFormulas(const FieldDef& field, std::string_view text) {
  return field.takesFormulas() ? !isPlainNumber(text)
                               : field.isExpression() && isDefined(field.inverseExpression);
}

// The places of changes, each once.
std::vector<CellRef> placesOf(const std::vector<CellChange>& changes) {
  std::vector<CellRef> places;
  std::unordered_set<std::uint64_t> known;
  for (const CellChange& change : changes) {
    const auto field = static_cast<std::uint64_t>(change.cell.field);
    if (known.insert(field << 32 | change.cell.tuple).second) {
      places.push_back(change.cell);
    }
  }
  return places;
}

template <typename Value>
void sortUnique(std::vector<Value>& values) {
  std::sort(values.begin(), values.end());
  values.erase(std::unique(values.begin(), values.end()), values.end());
}

bool sendStored(const ReportEditor& editor, const std::vector<CellRef>& stored) {
  const Table& table = *editor.view.table;
  return stored.size() == 1 ? SendUpdateMessageToHostApp(editor.host, table, stored.front())
                            : SendUpdateMessageToHostApp(editor.host, table, stored);
}

// Keys that were assigned put a table out of order; one without keys is always in order.
bool standsInOrder(const Table& table) {
  return table.sortedBy == table.sortKeys;
}

// Whether the report is laid out by a field.
bool isOnAxis(const ReportView& view, int field) {
  constexpr std::array kLaidOutBy = {Axis::X, Axis::Y, Axis::Z};
  return std::any_of(kLaidOutBy.begin(), kLaidOutBy.end(), [&view, field](Axis axis) {
    const std::vector<int>& fields = view.axis(axis);
    return std::find(fields.begin(), fields.end(), field) != fields.end();
  });
}

bool changesAxes(const ReportView& view, const std::vector<CellChange>& changes) {
  return std::any_of(changes.begin(), changes.end(), [&view](const CellChange& change) {
    return change.before.bits != change.after.bits && isOnAxis(view, change.cell.field);
  });
}

std::vector<int> formulaFieldsOf(const Table& table) {
  std::vector<int> fields;
  for (std::size_t i = 0; i < table.fieldCount(); ++i) {
    if (table.fields[i].isExpression()) {
      fields.push_back(static_cast<int>(i));
    }
  }
  return fields;
}

// Steps noted before the cells moved would change others.
void dropVoidSteps(ReportEditor& editor) {
  const std::uint64_t arrangement = editor.view.table->arrangement;
  if (editor.history.arrangement != arrangement) {
    clear(editor.history);
    editor.history.arrangement = arrangement;
  }
}

EditOutcome replay(ReportEditor& editor, const EditStep& step, bool backwards) {
  EditBatch batch(editor);
  const std::vector<CellChange>& changes = step.changes;
  if (backwards) {
    std::for_each(changes.rbegin(), changes.rend(),
                  [&batch](const CellChange& change) { batch.put(change.cell, change.before); });
  } else {
    std::for_each(changes.begin(), changes.end(),
                  [&batch](const CellChange& change) { batch.put(change.cell, change.after); });
  }
  return batch.finish(Noting::Leave);
}

// Runs the last step of one list as an edit and moves it to the other.
std::optional<EditOutcome> replayLast(ReportEditor& editor, std::vector<EditStep>& from,
                                      std::vector<EditStep>& to, bool backwards) {
  dropVoidSteps(editor);
  if (from.empty()) {
    return std::nullopt;
  }
  const std::uint64_t arrangement = editor.history.arrangement;
  EditStep step = std::move(from.back());
  from.pop_back();
  EditOutcome outcome = replay(editor, step, backwards);
  if (editor.history.arrangement == arrangement) {
    to.push_back(std::move(step));
  }
  return outcome;
}

}  // namespace

EditBatch::EditBatch(ReportEditor& editor)
    : editor_(editor),
      context_{.table = *editor.view.table,
               .notice = *editor.notice,
               .scratch = editor.scratch,
               .changes = &changes_},
      evaluator_(context_, editor.functions),
      formulaFields_(formulaFieldsOf(context_.table)) {
  dropVoidSteps(editor);
}

CellEdit EditBatch::set(CellRef cell, std::string_view text) {
  const FieldDef& field = context_.table.field(cell.field);
  const std::string typed = typedText(field, text);
  if (readsFormulas(field, typed)) {
    bringUpToDate();
  }
  const std::size_t before = changes_.size();
  const CellEdit edit = enterText(evaluator_, cell.tuple, cell.field, typed);
  for (std::size_t i = before; i < changes_.size(); ++i) {
    pending_.push_back(changes_[i].cell.tuple);
  }
  if (edit.inverse == InverseOutcome::Failed) {
    failedInverses_.push_back(cell.field);
  }
  return edit;
}

void EditBatch::put(CellRef cell, Cell value) {
  storeCell(context_, cell, value);
  pending_.push_back(cell.tuple);
}

void EditBatch::addSeries(std::uint32_t tuple) {
  if (!reachesOtherTuples_) {
    reachesOtherTuples_ = reachesOtherTuples(evaluator_);
  }
  // Out of order there are no series.
  const bool whole = *reachesOtherTuples_ && standsInOrder(context_.table);
  const Series series = whole ? seriesOf(context_, tuple) : Series{.first = tuple, .last = tuple};
  for (std::size_t one = series.first; one <= series.last; ++one) {
    recalculated_.push_back(static_cast<std::uint32_t>(one));
  }
}

void EditBatch::bringUpToDate() {
  if (pending_.empty()) {
    return;
  }
  sortUnique(pending_);
  const std::size_t before = recalculated_.size();
  for (const std::uint32_t tuple : pending_) {
    if (recalculated_.size() == before || recalculated_.back() < tuple) {
      addSeries(tuple);
    }
  }
  changed_.insert(changed_.end(), pending_.begin(), pending_.end());
  pending_.clear();
  recalculate(std::span(recalculated_).subspan(before));
  // Cells whose edits need the formula fields again and again name the same tuples.
  if (recalculated_.size() > 2 * context_.table.tupleCount) {
    sortUnique(recalculated_);
    sortUnique(changed_);
  }
}

void EditBatch::recalculate(std::span<const std::uint32_t> tuples) {
  const Table& table = context_.table;
  std::vector<Cell> before;
  before.reserve(tuples.size() * formulaFields_.size());
  for (const std::uint32_t tuple : tuples) {
    for (const int field : formulaFields_) {
      before.push_back(table.cell(tuple, field));
    }
  }
  recalculateTuples(evaluator_, tuples);
  const Cell* former = before.data();
  for (const std::uint32_t tuple : tuples) {
    bool differs = false;
    for (const int field : formulaFields_) {
      if (table.cell(tuple, field).bits != former++->bits) {
        differs = true;
        axesChanged_ = axesChanged_ || isOnAxis(editor_.view, field);
      }
    }
    if (differs) {
      changed_.push_back(tuple);
    }
  }
}

EditOutcome EditBatch::finish(Noting noting) {
  EditOutcome outcome;
  if (changes_.empty()) {
    return outcome;
  }
  bringUpToDate();
  sortUnique(recalculated_);
  computeHighlights(evaluator_, recalculated_);
  outcome.stored = placesOf(changes_);
  outcome.messageLost = !sendStored(editor_, outcome.stored);
  const std::uint64_t arrangement = context_.table.arrangement;
  const bool reordered = !standsInOrder(context_.table);
  outcome.keysChanged = reordered || axesChanged_ || changesAxes(editor_.view, changes_);
  if (reordered) {
    context_.changes = nullptr;
    recalculateTable(context_, editor_.functions);
    dropVoidSteps(editor_);
  }
  sortUnique(failedInverses_);
  outcome.failedInverses = std::move(failedInverses_);
  sortUnique(changed_);
  outcome.tuples = std::move(changed_);
  editor_.scratch = context_.scratch;
  editor_.view.modified = true;
  // Keys that changed may leave all tuples where they are.
  if (noting == Noting::Note && context_.table.arrangement == arrangement) {
    addStep(editor_.history, {std::move(changes_)});
  }
  return outcome;
}

std::optional<EditOutcome> undoEdit(ReportEditor& editor) {
  return replayLast(editor, editor.history.done, editor.history.undone, true);
}

std::optional<EditOutcome> redoEdit(ReportEditor& editor) {
  return replayLast(editor, editor.history.undone, editor.history.done, false);
}

TableEdit editTable(ReportEditor& editor, const std::function<void(Evaluator&)>& edit,
                    const std::function<void()>& beforeSending) {
  Table& table = *editor.view.table;
  sortTuples(table);
  dropVoidSteps(editor);
  EditStep step;
  FormulaContext context{.table = table,
                         .notice = *editor.notice,
                         .scratch = editor.scratch,
                         .changes = &step.changes};
  Evaluator evaluator(context, editor.functions);
  edit(evaluator);
  context.changes = nullptr;
  recalculateTable(context, editor.functions);
  if (beforeSending) {
    beforeSending();
  }
  const bool sent = SendUpdateMessageToHostApp(editor.host, table);
  const bool moved = editor.history.arrangement != table.arrangement;
  dropVoidSteps(editor);
  if (!step.changes.empty() && !moved) {
    addStep(editor.history, std::move(step));
  }
  editor.scratch = context.scratch;
  editor.view.modified = true;
  return {.messageLost = !sent};
}

TableEdit recalculateInverseFormulas(ReportEditor& editor) {
  return editTable(
      editor, [](Evaluator& evaluator) { applyInverseFormulas(evaluator); },
      [&editor] {
        // The line stays as it always read, although the table is sent.
        editor.host.debug(
            "Sorry, not implemented: send the data update to Korv() in vrel/FillCells");
      });
}

}  // namespace vrel
