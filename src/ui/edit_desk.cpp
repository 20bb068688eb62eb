#include "ui/edit_desk.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QUuid>
#include <utility>

#include "expr/ui/expression_error_dialog.h"
#include "expr/ui/to_text.h"

namespace vrel {

namespace {

// Tells what this window put on the clipboard from everything else, by a value of its own.
constexpr const char* kCopyMark = "x-qnt/x-cells";

// A text that is told in a message.
constexpr qsizetype kLongestShown = 100;

FormulaError kindOf(EditRefusal refusal) {
  return refusal == EditRefusal::Syntax ? FormulaError::Syntax : FormulaError::Evaluation;
}

}  // namespace

EditDesk::EditDesk(EditorContext& context, ReportTableModel& model, RunDialog runDialog,
                   QWidget* window)
    : QObject(window),
      context_(context),
      model_(model),
      runDialog_(std::move(runDialog)),
      window_(window),
      editor_{.view = context.view,
              .functions = context.functions,
              .scratch = context.formulaScratch,
              .notice = context.notice,
              .host = context.host} {
  connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this,
          &EditDesk::clipboardChanged);
}

bool EditDesk::type(CellRef cell, const QString& text) {
  EditBatch batch(editor_);
  const std::string typed = text.toStdString();
  const CellEdit edit = batch.set(cell, typed);
  if (!edit.accepted()) {
    showRefusal(context_.view.table->field(cell.field), text, edit);
    return false;
  }
  show(batch.finish());
  return true;
}

void EditDesk::copy(const CopiedRegion& region) {
  CopiedBlock block;
  if (!copyTexts(region, block)) {
    return;
  }
  auto* held = new QMimeData;
  held->setText(toText(clipboardText(block)));
  copyMark_ = QUuid::createUuid().toByteArray();
  held->setData(QLatin1String(kCopyMark), copyMark_);
  QGuiApplication::clipboard()->setMimeData(held);
  copied_ = std::move(block);
}

bool EditDesk::copyTexts(const CopiedRegion& region, CopiedBlock& block) {
  Notice& notice = *context_.notice;
  const std::string task = notice.translate("Copying...");
  const CopyLimits limits = {.progress = [&notice, &task](std::size_t done, std::size_t rows) {
    return notice.progress(task, done, rows);
  }};
  const CopyOutcome outcome = copyRegion(model_.grid(), context_.format, region, limits, block);
  notice.progress(task, 1, 1);
  if (outcome == CopyOutcome::TooLarge) {
    notice.warning(notice.translate(kPasteTitle),
                   notice.translate("The selection is too large to be copied."));
  }
  return outcome == CopyOutcome::Copied;
}

void EditDesk::paste(const PasteTarget& target) {
  std::optional<CopiedBlock> fromElsewhere;
  if (!copied_) {
    fromElsewhere = blockFromClipboard(QGuiApplication::clipboard()->text().toStdString());
  }
  const CopiedBlock& copied = copied_ ? *copied_ : *fromElsewhere;
  if (copied.rows() == 0) {
    return;
  }
  const PastePlan plan = planPaste(copied, target);
  Notice& notice = *context_.notice;
  if (!plan.refusal.empty()) {
    notice.warning(notice.translate(kPasteTitle), notice.translate(plan.refusal));
    return;
  }
  const PasteOutcome outcome = pasteTexts(editor_, model_.grid(), plan, copied);
  show(outcome.edit);
  warnOfPaste(plan, outcome);
}

void EditDesk::undo() {
  step(undoEdit);
}

void EditDesk::redo() {
  step(redoEdit);
}

void EditDesk::step(Replay replay) {
  const Table& table = *context_.view.table;
  const std::uint64_t arrangement = table.arrangement;
  const std::optional<EditOutcome> outcome = replay(editor_);
  if (!outcome) {
    context_.notice->beep();
    return;
  }
  show(*outcome);
  // Once tuples have moved, the cell is another one.
  if (!outcome->stored.empty() && table.arrangement == arrangement) {
    emit stepped(outcome->stored.front());
  }
}

void EditDesk::recalculateInverse() {
  const TableEdit edit = recalculateInverseFormulas(editor_);
  emit layoutNeeded();
  if (edit.messageLost) {
    warnOfLostMessage();
  }
}

void EditDesk::fill(const FillRequest& request) {
  const std::optional<FillOutcome> outcome = fillCells(request, editor_, model_.grid());
  if (!outcome) {
    return;
  }
  emit layoutNeeded();
  warnOfFill(request.text, *outcome);
  if (outcome->messageLost) {
    warnOfLostMessage();
  }
}

void EditDesk::warnOfFill(std::string_view text, const FillOutcome& outcome) {
  if (outcome.refused == 0) {
    return;
  }
  const QString refused = QString::number(outcome.refused);
  const QString cells = QString::number(outcome.refused + outcome.filled);
  QString shown = toText(text);
  if (shown.size() > kLongestShown) {
    shown = shown.left(kLongestShown) + QStringLiteral("...");
  }
  const QString warning =
      shown.trimmed().isEmpty()
          ? tr("Cells that cannot be empty and stay as they were: %1 of %2.").arg(refused, cells)
          : tr("Cells that do not take \"%1\" and stay as they were: %2 of %3.")
                .arg(shown, refused, cells);
  Notice& notice = *context_.notice;
  notice.warning(editorTitle(notice), warning.toStdString());
}

void EditDesk::forgetEdits() {
  clear(editor_.history);
}

void EditDesk::clipboardChanged() {
  const QMimeData* held = QGuiApplication::clipboard()->mimeData();
  if (held == nullptr || held->data(QLatin1String(kCopyMark)) != copyMark_) {
    copied_.reset();
  }
}

// Shows what an edit changed, and says what it could not do.
void EditDesk::show(const EditOutcome& outcome) {
  if (outcome.keysChanged) {
    emit layoutNeeded();
  } else if (!outcome.stored.empty()) {
    model_.updateValues(outcome.tuples);
  }
  for (const int field : outcome.failedInverses) {
    showFailedInverse(context_.view.table->field(field));
  }
  if (outcome.messageLost) {
    warnOfLostMessage();
  }
}

void EditDesk::warnOfLostMessage() {
  Notice& notice = *context_.notice;
  notice.warning(editorTitle(notice),
                 notice.translate("The change could not be sent to the host application: its "
                                  "message file cannot be written."));
}

void EditDesk::showRefusal(const FieldDef& field, const QString& text, const CellEdit& edit) {
  Notice& notice = *context_.notice;
  switch (edit.refusal) {
    case EditRefusal::None:
      return;
    case EditRefusal::ReadOnly:
      notice.warning(editorTitle(notice),
                     noticeText(notice, "The values of \"%1\" cannot be changed.", field.name));
      return;
    case EditRefusal::NoDate:
      notice.warning(editorTitle(notice),
                     noticeText(notice, "\"%1\" is not a date.", text.toStdString()));
      return;
    case EditRefusal::Syntax:
    case EditRefusal::Evaluation:
      break;
  }
  ExpressionErrorDialog dialog(tr("Cannot compute value"), kindOf(edit.refusal), text.toStdString(),
                               edit.errorPosition, window_);
  runDialog_(dialog);
}

void EditDesk::showFailedInverse(const FieldDef& field) {
  const Formula& formula = field.inverseExpression;
  ExpressionErrorDialog dialog(tr("Cannot compute value"), formula.error, formula.text,
                               formula.errorPosition, window_);
  runDialog_(dialog);
}

void EditDesk::warnOfPaste(const PastePlan& plan, const PasteOutcome& outcome) {
  Notice& notice = *context_.notice;
  if (outcome.skippedCells) {
    notice.warning(notice.translate(kPasteTitle), notice.translate(plan.skippedWarning));
  }
  if (!outcome.firstRefused) {
    return;
  }
  const RefusedText& first = *outcome.firstRefused;
  if (outcome.refusedTexts == 1) {
    showRefusal(context_.view.table->field(first.cell.field), toText(first.text), first.edit);
    return;
  }
  notice.warning(
      notice.translate(kPasteTitle),
      noticeText(notice,
                 "Some of the pasted texts are no values and have not been set; the first is "
                 "\"%1\".",
                 first.text));
}

}  // namespace vrel
