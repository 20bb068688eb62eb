#include "expr/report_edit.h"

#include <algorithm>
#include <charconv>
#include <cstring>
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
  const bool computed = field.type == FieldType::Number || field.type == FieldType::Boolean;
  return computed ? !isPlainNumber(text)
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
  EditStep step = std::move(from.back());
  from.pop_back();
  EditOutcome outcome = replay(editor, step, backwards);
  if (!outcome.keysChanged) {
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
      evaluator_(context_, editor.functions) {
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
  const bool whole = *reachesOtherTuples_ && !context_.table.sortedBy.empty();
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
  const std::size_t fields = table.fieldCount();
  std::vector<Cell> before;
  before.reserve(tuples.size() * fields);
  for (const std::uint32_t tuple : tuples) {
    before.insert(before.end(), table.tuple(tuple), table.tuple(tuple) + fields);
  }
  recalculateTuples(evaluator_, tuples);
  for (std::size_t i = 0; i < tuples.size(); ++i) {
    if (std::memcmp(before.data() + i * fields, table.tuple(tuples[i]), fields * sizeof(Cell)) !=
        0) {
      changed_.push_back(tuples[i]);
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
  outcome.keysChanged = context_.table.sortedBy.empty();
  if (outcome.keysChanged) {
    recalculateTable(context_, editor_.functions);
    dropVoidSteps(editor_);
  }
  sortUnique(failedInverses_);
  outcome.failedInverses = std::move(failedInverses_);
  sortUnique(changed_);
  outcome.tuples = std::move(changed_);
  editor_.scratch = context_.scratch;
  editor_.view.modified = true;
  if (noting == Noting::Note && !outcome.keysChanged) {
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

void recalculateInverseFormulas(ReportEditor& editor) {
  Table& table = *editor.view.table;
  sortTuples(table);
  dropVoidSteps(editor);
  EditStep step;
  FormulaContext context{.table = table,
                         .notice = *editor.notice,
                         .scratch = editor.scratch,
                         .changes = &step.changes};
  Evaluator evaluator(context, editor.functions);
  applyInverseFormulas(evaluator);
  context.changes = nullptr;
  recalculateTable(context, editor.functions);
  // The line stays as it always read, although the table is sent.
  editor.host.debug("Sorry, not implemented: send the data update to Korv() in vrel/FillCells");
  SendUpdateMessageToHostApp(editor.host, table);
  dropVoidSteps(editor);
  if (!step.changes.empty() && editor.history.arrangement == table.arrangement) {
    addStep(editor.history, std::move(step));
  }
  editor.scratch = context.scratch;
  editor.view.modified = true;
}

}  // namespace vrel
