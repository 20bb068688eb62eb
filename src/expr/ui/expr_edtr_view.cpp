#include "expr/ui/expr_edtr_view.h"

#include "base/words.h"
#include "expr/formula.h"
#include "expr/rename_field.h"
#include "expr/ui/accept_formula.h"
#include "expr/ui/bring_to_front.h"
#include "expr/ui/to_text.h"
#include "ui_expr_edtr_view.h"

namespace vrel {

namespace {

bool isFormulaField(const Table& table, int field, const std::string& name) {
  return table.field(field).isExpression() && table.field(field).name == name;
}

// Where the field is now; where several have its name, the one that stands where it stood.
std::optional<int> fieldAgain(const Table& table, int before, const std::string& name) {
  const auto count = static_cast<int>(table.fieldCount());
  if (before < count && isFormulaField(table, before, name)) {
    return before;
  }
  for (int i = 0; i < count; ++i) {
    if (isFormulaField(table, i, name)) {
      return i;
    }
  }
  return std::nullopt;
}

}  // namespace

ExprEdtrView::ExprEdtrView(FormulaHost host, QWidget* parent)
    : FormulaEditor(parent),
      host_(std::move(host)),
      form_(std::make_unique<Ui::ExprEdtrViewBase>()) {
  form_->setupUi(this);
  form_->formulaEdit->setMessageLabel(form_->formulaMessage);
  form_->inverseEdit->setMessageLabel(form_->inverseMessage);
  for (FormulaEdit* edit : {form_->formulaEdit, form_->inverseEdit}) {
    edit->setLanguage(host_.functions, *host_.view.table);
  }
  connect(form_->applyButton, &QPushButton::clicked, this, &ExprEdtrView::slotApply);
  connect(form_->cancelButton, &QPushButton::clicked, this, &QDialog::reject);
}

ExprEdtrView::~ExprEdtrView() = default;

void ExprEdtrView::edit(std::optional<int> field) {
  field_ = field;
  fill();
  (field ? static_cast<QWidget*>(form_->formulaEdit) : form_->nameEdit)->setFocus();
  bringToFront(*this);
}

void ExprEdtrView::fill() {
  given_ = field_ ? formulaFieldText(host_.view.table->field(*field_)) : FormulaFieldText();
  form_->nameEdit->setText(toText(given_.name));
  form_->formulaEdit->setFormula(given_.expression);
  form_->inverseEdit->setFormula(given_.inverse);
  shown_ = text();
}

FormulaFieldText ExprEdtrView::text() const {
  return {.name = storedName(form_->nameEdit->text().toStdString()),
          .expression = form_->formulaEdit->formula(),
          .inverse = form_->inverseEdit->formula()};
}

bool ExprEdtrView::isModified() const {
  return isVisible() && !(text() == shown_);
}

void ExprEdtrView::followView() {
  const Table& table = *host_.view.table;
  if (field_) {
    field_ = fieldAgain(table, *field_, given_.name);
  }
  const bool isUntouched = isVisible() && !isModified();
  if (field_ && isUntouched && !(formulaFieldText(table.field(*field_)) == given_)) {
    fill();
  }
  form_->formulaEdit->checkFormula();
  form_->inverseEdit->checkFormula();
}

void ExprEdtrView::slotApply() {
  if (acceptFormulas() && acceptName()) {
    emit apply();
  }
}

bool ExprEdtrView::acceptFormulas() {
  const FormulaFieldText written = text();
  const Formula inverse{.text = written.inverse};
  if (isDefined(inverse) &&
      !acceptFormula(host_, tr("Cannot apply the inverse formula"), inverse.text, this)) {
    form_->inverseEdit->setFocus();
    return false;
  }
  if (trimBlanks(written.expression).empty()) {
    host_.notice->warning(editorTitle(*host_.notice), tr("Please enter a formula.").toStdString());
    form_->formulaEdit->setFocus();
    return false;
  }
  if (!acceptFormula(host_, tr("Cannot apply the formula"), written.expression, this)) {
    form_->formulaEdit->setFocus();
    return false;
  }
  return true;
}

// A name that the field has already may stay, however it came there.
bool ExprEdtrView::acceptName() {
  const std::string name = text().name;
  QString fault;
  if (name.empty()) {
    fault = tr("Please enter a field name.");
  } else if (!isUsableName(name) && !(field_ && name == shown_.name)) {
    fault = tr("\"%1\" cannot be the name of a field: formulas could not refer to it. A name must "
               "not hold colons or quotes, begin with \"#\" or be longer than 127 bytes.")
                .arg(toText(name));
  }
  if (fault.isEmpty()) {
    return true;
  }
  host_.notice->warning(editorTitle(*host_.notice), fault.toStdString());
  form_->nameEdit->setFocus();
  return false;
}

}  // namespace vrel
