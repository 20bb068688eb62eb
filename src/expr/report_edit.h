// Edits of the report: typed, pasted, taken back. Each one's values are checked and stored, what
// follows from them is computed, and the host is told.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "expr/cell_edit.h"
#include "expr/edit_history.h"
#include "expr/evaluator.h"
#include "expr/host_messages.h"
#include "model/report_view.h"

namespace vrel {

/// What edits work on. The references must outlive it.
struct ReportEditor {
  ReportView& view;
  const FunctionRegistry& functions;
  /// The value of the formulas' scratch field.
  Cell& scratch;
  /// The notice in force.
  Notice*& notice;
  HostLink host;
  EditHistory history = {};
};

/// What has become of an edit.
struct EditOutcome {
  /// Values that were stored, those that inverse formulas assigned included; each place once, in
  /// the order of storing. The host is told of these.
  std::vector<CellRef> stored;
  /// Tuples in which a value was stored or has come out otherwise, in order.
  std::vector<std::uint32_t> tuples;
  /// Formula fields whose inverse formula failed; see `Formula::error`.
  std::vector<int> failedInverses;
  /// Tuples have other keys now, or other values of fields by which the report is laid out: it has
  /// to be laid out again. `stored` and `tuples` are as they were named before.
  bool keysChanged = false;
  /// The host could not be told; the log says so.
  bool messageLost = false;
};

/// Whether an edit is noted among those that can be taken back.
enum class Noting { Note, Leave };

/// One edit of any number of cells. The tuples of the table must stand in key order.
///
/// Formula fields are brought up to date no more often than their values are needed: once at the
/// end where only numbers are typed.
class EditBatch {
 public:
  /// The editor must outlive the object.
  explicit EditBatch(ReportEditor& editor);
  EditBatch(const EditBatch&) = delete;
  EditBatch& operator=(const EditBatch&) = delete;

  /// Sets a cell from a text as it was typed, or read from the clipboard; see `setCell`.
  CellEdit set(CellRef cell, std::string_view text);
  /// Stores a value as it is.
  void put(CellRef cell, Cell value);

  /// Brings formula fields and colours up to date, of the stored cells' tuples and, where formulas
  /// look along series, of their whole series; sends the message and marks the view as modified.
  /// Nothing happens when nothing was stored. An edit after which tuples stand
  /// elsewhere cannot be noted, and ends what can be taken back.
  EditOutcome finish(Noting noting = Noting::Note);

 private:
  void bringUpToDate();
  void addSeries(std::uint32_t tuple);
  void recalculate(std::span<const std::uint32_t> tuples);

  ReportEditor& editor_;
  FormulaContext context_;
  Evaluator evaluator_;
  const std::vector<int> formulaFields_;
  std::vector<CellChange> changes_;
  // Tuples with changes that formula fields do not follow yet.
  std::vector<std::uint32_t> pending_;
  std::vector<std::uint32_t> recalculated_;
  std::vector<std::uint32_t> changed_;
  std::vector<int> failedInverses_;
  // A formula field by which the report is laid out has come out otherwise.
  bool axesChanged_ = false;
  // Known once it is needed.
  std::optional<bool> reachesOtherTuples_;
};

/// Takes the latest edit back; nothing when there is none. The host is told as of any edit.
std::optional<EditOutcome> undoEdit(ReportEditor& editor);
/// Does again what was taken back last.
std::optional<EditOutcome> redoEdit(ReportEditor& editor);

/// What of an edit that may reach the whole table is told afterwards.
struct TableEdit {
  /// The host could not be told; the log says so.
  bool messageLost = false;
};

/// Runs `edit`, which may store values anywhere, as one edit: brings formula fields and colours up
/// to date, calls `beforeSending`, sends the whole table to the host and marks the view as
/// modified. The report has to be laid out again.
TableEdit editTable(ReportEditor& editor, const std::function<void(Evaluator&)>& edit,
                    const std::function<void()>& beforeSending = {});

/// Runs the inverse formulas of all fields over the whole table, as one edit of the table.
TableEdit recalculateInverseFormulas(ReportEditor& editor);

}  // namespace vrel
