#include "expr/ui/expressions_dialog.h"

#include <QAction>
#include <QMenu>

#include "expr/formula_fields.h"
#include "expr/ui/to_text.h"
#include "ui_expressions_dialog.h"

namespace vrel {

namespace {

// More names would make a question that does not fit on the screen.
constexpr std::size_t kMostShownNames = 20;

QString shownNames(const std::vector<std::string>& names) {
  QStringList shown;
  for (const std::string& name : names) {
    if (static_cast<std::size_t>(shown.size()) == kMostShownNames) {
      shown << QString(QChar(0x2026));
      break;
    }
    shown << toText(name);
  }
  return shown.join(QLatin1String(", "));
}

}  // namespace

ExpressionsDialogImpl::ExpressionsDialogImpl(FormulaHost host, QWidget* parent)
    : FormulaListDialog(host, parent),
      form_(std::make_unique<Ui::ExpressionsDialog>()),
      editor_(new ExprEdtrView(std::move(host), this)) {
  form_->setupUi(this);
  setList(form_->expressionList, form_->statusLabel);
  buildActions();
  connect(form_->applyButton, &QPushButton::clicked, this, &FormulaListDialog::slotApply);
  connect(form_->cancelButton, &QPushButton::clicked, this, &QDialog::reject);
  setEditor(editor_);
}

ExpressionsDialogImpl::~ExpressionsDialogImpl() = default;

void ExpressionsDialogImpl::buildActions() {
  auto* menu = new QMenu(this);
  const auto add = [&](const QString& text, const QKeySequence& key, auto slot) {
    QAction* action = menu->addAction(text, this, slot);
    action->setShortcut(key);
    // The keys mean the list, not a name or a formula that is being written.
    action->setShortcutContext(Qt::WidgetShortcut);
    form_->expressionList->addAction(action);
  };
  add(tr("&New"), Qt::Key_Insert, &ExpressionsDialogImpl::slotNew);
  add(tr("&Edit..."), Qt::Key_F2, &ExpressionsDialogImpl::slotEdit);
  add(tr("&Delete"), Qt::Key_Delete, &ExpressionsDialogImpl::slotDelete);
  form_->actionsButton->setMenu(menu);
}

std::vector<FormulaRow> ExpressionsDialogImpl::rows() const {
  std::vector<FormulaRow> rows;
  for (int i = 0; i < static_cast<int>(table().fieldCount()); ++i) {
    const FieldDef& field = table().field(i);
    if (field.isExpression()) {
      rows.push_back(
          {.field = i, .name = toText(field.name), .formula = toText(field.expression.text)});
    }
  }
  return rows;
}

void ExpressionsDialogImpl::slotEdit() {
  if (const std::optional<int> field = selectedOr(tr("Please select an expression to edit."))) {
    openEditor(field);
  }
}

std::optional<int> ExpressionsDialogImpl::selectedOr(const QString& request) const {
  const std::optional<int> field = selectedField();
  if (!field) {
    warn(tr("Data Editor: missing selection"), request);
  }
  return field;
}

void ExpressionsDialogImpl::slotNew() {
  openEditor(std::nullopt);
}

void ExpressionsDialogImpl::takeEdited() {
  ReportView& view = host().view;
  const FormulaFieldText text = editor_->text();
  std::optional<int> field = editor_->field();
  const bool isNew = !field;
  const bool taken = change({.movesColumns = isNew, .run = [&] {
                               if (isNew) {
                                 field = addFormulaField(view, text);
                               } else {
                                 changeFormulaField(view, *field, text, host().functions);
                               }
                               return field.has_value();
                             }});
  if (taken) {
    editor_->accept();
    select(*field);
  }
}

void ExpressionsDialogImpl::slotDelete() {
  const std::optional<int> field = selectedOr(tr("Please select an expression to delete."));
  if (!field) {
    return;
  }
  if (!canDeleteField(table(), *field)) {
    warn(toText(editorTitle(*host().notice)),
         tr("\"%1\" cannot be deleted: it stands among the fields of the table.")
             .arg(toText(table().field(*field).name)));
    return;
  }
  if (!confirmDeletion(*field)) {
    return;
  }
  if (editor_->field() == field) {
    editor_->reject();
  }
  if (change(
          {.movesColumns = true, .run = [&] { return deleteFormulaField(host().view, *field); }})) {
    // The next one, or else the last one.
    select(std::min(*field, static_cast<int>(table().fieldCount()) - 1));
  }
}

bool ExpressionsDialogImpl::confirmDeletion(int field) {
  const std::vector<std::string> names = fieldsNaming(table(), field, host().functions);
  if (names.empty()) {
    return true;
  }
  const QString question =
      tr("The formulas of these fields refer to \"%1\" and will have no value without it:\n%2\n"
         "Delete \"%1\"?")
          .arg(toText(table().field(field).name), shownNames(names));
  return host().notice->confirm(tr("Data Editor: Delete Expression").toStdString(),
                                question.toStdString());
}

}  // namespace vrel
