#include "expr/ui/highlight_edtr_view.h"

#include <algorithm>

#include "base/words.h"
#include "expr/formula_fields.h"
#include "expr/ui/accept_formula.h"
#include "expr/ui/to_text.h"
#include "ui_highlight_edtr_view.h"

namespace vrel {

HighlightEdtrView::HighlightEdtrView(FormulaHost host, QWidget* parent)
    : QDialog(parent),
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

void HighlightEdtrView::edit(int field) {
  field_ = field;
  const FieldDef& definition = host_.view.table->field(field);
  name_ = definition.name;
  form_->nameText->setText(toText(name_));
  form_->formulaEdit->setFormula(highlightText(definition));
  shown_ = formula();
  offerSources();
  form_->formulaEdit->setFocus();
  show();
  raise();
  activateWindow();
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
  const std::vector<FieldDef>& fields = host_.view.table->fields;
  const auto isIt = [this](const FieldDef& each) { return each.name == name_; };
  const auto before = static_cast<std::size_t>(field_);
  if (before >= fields.size() || !isIt(fields[before])) {
    const auto found = std::find_if(fields.begin(), fields.end(), isIt);
    if (found == fields.end()) {
      reject();
      return;
    }
    field_ = static_cast<int>(found - fields.begin());
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
