#include "expr/ui/formula_list_dialog.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>
#include <QScopedValueRollback>
#include <algorithm>

#include "expr/formula_help.h"
#include "expr/ui/bring_to_front.h"
#include "expr/ui/formula_edit.h"
#include "expr/ui/to_text.h"

namespace vrel {

namespace {

constexpr int kFieldRole = Qt::UserRole;
constexpr int kNameColumn = 0;
constexpr int kFormulaColumn = 1;

constexpr int kListCharacters = 72;
constexpr int kListRows = 12;
constexpr int kNameCharacters = 24;
// A row's height, of a line's.
constexpr int kRowPercent = 140;

}  // namespace

FormulaListDialog::FormulaListDialog(FormulaHost host, QWidget* parent)
    : QDialog(parent), host_(std::move(host)) {}

void FormulaListDialog::setList(QTreeWidget* list, QLabel* status) {
  list_ = list;
  status_ = status;
  status_->setMinimumHeight(status_->fontMetrics().lineSpacing());
  const QFontMetrics metrics = list_->fontMetrics();
  list_->setHeaderLabels({tr("Field Name"), tr("Formula")});
  list_->header()->setStretchLastSection(true);
  list_->header()->resizeSection(kNameColumn, kNameCharacters * metrics.averageCharWidth());
  list_->setMinimumWidth(kListCharacters * metrics.averageCharWidth() / 2);
  resize(kListCharacters * metrics.averageCharWidth(), kListRows * 2 * metrics.lineSpacing());
  connect(list_, &QTreeWidget::itemSelectionChanged, this,
          &FormulaListDialog::slotSelectionChanged);
  connect(list_, &QTreeWidget::currentItemChanged, this, &FormulaListDialog::slotCurrentChanged);
  connect(list_, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
    list_->setCurrentItem(item);
    slotEdit();
  });
}

void FormulaListDialog::setEditor(FormulaEditor* editor) {
  editor_ = editor;
  connect(editor_, &FormulaEditor::apply, this, [this] { takeEdited(); });
}

// What is written in an editor that stands open is not lost by opening it for another field.
void FormulaListDialog::openEditor(std::optional<int> field) {
  const bool isOther = !editor_->isVisible() || editor_->field() != field;
  if (!isOther || (editor_->isModified() && !confirmDiscarding())) {
    bringToFront(*editor_);
    return;
  }
  editor_->edit(field);
}

bool FormulaListDialog::finishEditor() {
  if (editor_->isModified()) {
    editor_->slotApply();
    return !editor_->isVisible();
  }
  editor_->reject();
  return true;
}

void FormulaListDialog::present() {
  if (!isVisible()) {
    shown_ = formulaState(host_.view);
    kept_ = shown_;
    fill();
  }
  bringToFront(*this);
}

void FormulaListDialog::viewShown() {
  if (changing_ || !isVisible()) {
    return;
  }
  FormulaState now = formulaState(host_.view);
  if (!(now == shown_)) {
    shown_ = std::move(now);
    kept_ = shown_;
    fill();
  }
  slotSelectionChanged();
  editor_->followView();
}

bool FormulaListDialog::change(FormulaChange change) {
  bool isDone = false;
  const QScopedValueRollback<bool> changing(changing_, true);
  pending_ = {.movesColumns = change.movesColumns, .run = [&] { return isDone = change.run(); }};
  emit apply();
  pending_ = {};
  shown_ = formulaState(host_.view);
  fill();
  editor_->followView();
  emit refresh();
  if (!isDone) {
    warn(toText(editorTitle(*host_.notice)), tr("There is not enough memory for this change."));
  }
  return isDone;
}

void FormulaListDialog::slotApply() {
  if (!finishEditor()) {
    return;
  }
  kept_ = shown_;
  accept();
}

// A dialog would look for its default button among those of the editor that stands open, too.
void FormulaListDialog::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
    QDialog::keyPressEvent(event);
  } else if (auto* button = qobject_cast<QPushButton*>(focusWidget())) {
    button->click();
  }
}

void FormulaListDialog::reject() {
  if (editor_->isModified() && !confirmDiscarding()) {
    return;
  }
  editor_->reject();
  const bool isTakenBack =
      shown_ == kept_ || change({.movesColumns = movesColumns(host_.view, kept_),
                                 .run = [this] { return restoreFormulas(host_.view, kept_); }});
  if (isTakenBack) {
    QDialog::reject();
  }
}

void FormulaListDialog::fill() {
  const std::optional<int> selected = selectedField();
  const std::optional<Row> current = current_;
  const bool wasSelected = selected.has_value();
  const int rowHeight = list_->fontMetrics().lineSpacing() * kRowPercent / 100;
  list_->clear();
  for (const FormulaRow& row : rows()) {
    auto* item = new QTreeWidgetItem(list_, {row.name, row.formula});
    item->setData(kNameColumn, kFieldRole, row.field);
    item->setToolTip(kFormulaColumn,
                     QStringLiteral("<span>%1</span>").arg(row.formula.toHtmlEscaped()));
    item->setIcon(kFormulaColumn, row.icon);
    item->setSizeHint(kNameColumn, {0, rowHeight});
  }
  if (QTreeWidgetItem* item = itemOf(current)) {
    list_->setCurrentItem(item, kNameColumn,
                          wasSelected
                              ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                              : QItemSelectionModel::NoUpdate);
  }
  slotSelectionChanged();
}

QTreeWidgetItem* FormulaListDialog::itemOf(const std::optional<Row>& row) const {
  if (!row) {
    return nullptr;
  }
  const QList<QTreeWidgetItem*> found = list_->findItems(row->name, Qt::MatchExactly, kNameColumn);
  for (QTreeWidgetItem* item : found) {
    if (item->data(kNameColumn, kFieldRole).toInt() == row->field) {
      return item;
    }
  }
  return found.isEmpty() ? nullptr : found.first();
}

std::optional<int> FormulaListDialog::selectedField() const {
  const QList<QTreeWidgetItem*> selected = list_->selectedItems();
  return selected.isEmpty()
             ? std::nullopt
             : std::optional(selected.first()->data(kNameColumn, kFieldRole).toInt());
}

void FormulaListDialog::select(int field) {
  for (int row = 0; row < list_->topLevelItemCount(); ++row) {
    if (list_->topLevelItem(row)->data(kNameColumn, kFieldRole).toInt() == field) {
      list_->setCurrentItem(list_->topLevelItem(row));
    }
  }
}

void FormulaListDialog::slotSelectionChanged() {
  const QList<QTreeWidgetItem*> selected = list_->selectedItems();
  const QString formula = selected.isEmpty() ? QString() : selected.first()->text(kFormulaColumn);
  status_->setText(FormulaEdit::messageOf(
      checkFormulaText(formula.toStdString(), host_.functions, table().fields)));
}

void FormulaListDialog::slotCurrentChanged(QTreeWidgetItem* current) {
  if (current != nullptr) {
    current_ = {.field = current->data(kNameColumn, kFieldRole).toInt(),
                .name = current->text(kNameColumn)};
  }
}

bool FormulaListDialog::confirmDiscarding() const {
  return host_.notice->confirm(
      editorTitle(*host_.notice),
      tr("The formula that is being edited is not applied yet. Discard it?").toStdString());
}

void FormulaListDialog::warn(const QString& title, const QString& text) const {
  host_.notice->warning(title.toStdString(), text.toStdString());
}

}  // namespace vrel
