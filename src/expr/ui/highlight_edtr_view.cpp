#include "expr/ui/highlight_edtr_view.h"

#include <algorithm>

#include "base/words.h"
#include "expr/formula_fields.h"
#include "expr/ui/accept_formula.h"
#include "expr/ui/bring_to_front.h"
#include "expr/ui/to_text.h"
#include "ui_highlight_edtr_view.h"

namespace vrel {

namespace {

// Where a field is now. One whose name is gone while the fields are as many as before has got
// another name.
std::optional<int> fieldAgain(const Table& table, int before, const std::string& name,
                              std::size_t countBefore) {
  const std::vector<FieldDef>& fields = table.fields;
  const auto isIt = [&name](const FieldDef& each) { return each.name == name; };
  const auto index = static_cast<std::size_t>(before);
  if (index < fields.size() && isIt(fields[index])) {
    return before;
  }
  const auto found = std::find_if(fields.begin(), fields.end(), isIt);
  if (found != fields.end()) {
    return static_cast<int>(found - fields.begin());
  }
  return fields.size() == countBefore ? std::optional(before) : std::nullopt;
}

}  // namespace

HighlightEdtrView::HighlightEdtrView(FormulaHost host, QWidget* parent)
    : FormulaEditor(parent),
      host_(std::move(host)),
      form_(std::make_unique<Ui::HighlightEdtrViewBase>()),
      sources_(new QMenu(this)) {
  form_->setupUi(this);
  form_->formulaEdit->setMessageLabel(form_->formulaMessage);
  form_->formulaEdit->setLanguage(host_.functions, *host_.view.table);
  form_->sourceButton->setMenu(sources_);
  connect(form_->applyButton, &QPushButton::clicked, this, &HighlightEdtrView::slotApply);
  connect(form_->cancelButton, &QPushButton::clicked, this, &QDialog::reject);
}

HighlightEdtrView::~HighlightEdtrView() = default;

void HighlightEdtrView::edit(std::optional<int> field) {
  showField(*field);
  fill();
  offerSources();
  form_->formulaEdit->setFocus();
  bringToFront(*this);
}

void HighlightEdtrView::showField(int field) {
  const Table& table = *host_.view.table;
  field_ = field;
  name_ = table.field(field).name;
  fieldCount_ = table.fieldCount();
  form_->nameText->setText(toText(name_));
}

void HighlightEdtrView::fill() {
  given_ = highlightText(host_.view.table->field(field_));
  form_->formulaEdit->setFormula(given_);
  shown_ = formula();
}

std::string HighlightEdtrView::formula() const {
  return form_->formulaEdit->formula();
}

bool HighlightEdtrView::isModified() const {
  return isVisible() && formula() != shown_;
}

void HighlightEdtrView::offerSources() {
  sources_->clear();
  for (int i = 0; i < static_cast<int>(host_.view.table->fieldCount()); ++i) {
    const FieldDef& other = host_.view.table->field(i);
    if (i != field_ && isHighlighted(other)) {
      // A "&" of the name would be taken for a mnemonic.
      QAction* source = sources_->addAction(toText(other.name).replace(u'&', QLatin1String("&&")));
      connect(source, &QAction::triggered, this, [this, text = highlightText(other)] {
        form_->formulaEdit->setFormula(text);
        form_->formulaEdit->setFocus();
      });
    }
  }
  form_->sourceButton->setEnabled(!sources_->isEmpty());
  form_->sourceButton->setToolTip(sources_->isEmpty()
                                      ? tr("No other field has a highlight formula.")
                                      : tr("Takes over the highlight formula of another field."));
}

void HighlightEdtrView::followView() {
  if (!isVisible()) {
    return;
  }
  const Table& table = *host_.view.table;
  const std::optional<int> field = fieldAgain(table, field_, name_, fieldCount_);
  if (!field) {
    reject();
    return;
  }
  showField(*field);
  // Formulas that name a renamed field have changed with it.
  if (!isModified() && highlightText(table.field(field_)) != given_) {
    fill();
  }
  offerSources();
  form_->formulaEdit->checkFormula();
}

void HighlightEdtrView::slotApply() {
  const std::string written = formula();
  // No formula at all means no highlighting.
  if (trimBlanks(written).empty() ||
      acceptFormula(host_, tr("Cannot apply the highlight formula"), written, this)) {
    emit apply();
  } else {
    form_->formulaEdit->setFocus();
  }
}

}  // namespace vrel
