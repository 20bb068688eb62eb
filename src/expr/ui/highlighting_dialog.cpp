#include "expr/ui/highlighting_dialog.h"

#include <QAction>
#include <QMenu>

#include "expr/formula_fields.h"
#include "expr/formula_help.h"
#include "expr/ui/colour_sample.h"
#include "expr/ui/to_text.h"
#include "ui_highlighting_dialog.h"

namespace vrel {

namespace {

constexpr int kSampleWidth = 4;

}  // namespace

HighlightingDialogImpl::HighlightingDialogImpl(FormulaHost host, QWidget* parent)
    : FormulaListDialog(host, parent),
      form_(std::make_unique<Ui::HighlightingDialog>()),
      editor_(new HighlightEdtrView(std::move(host), this)) {
  form_->setupUi(this);
  setList(form_->highlightList, form_->statusLabel);
  auto* menu = new QMenu(this);
  QAction* edit = menu->addAction(tr("&Edit..."), this, &HighlightingDialogImpl::slotEdit);
  edit->setShortcut(Qt::Key_F2);
  edit->setShortcutContext(Qt::WidgetShortcut);
  form_->highlightList->addAction(edit);
  form_->actionsButton->setMenu(menu);
  connect(form_->applyButton, &QPushButton::clicked, this, &FormulaListDialog::slotApply);
  connect(form_->cancelButton, &QPushButton::clicked, this, &QDialog::reject);
  setEditor(editor_);
}

HighlightingDialogImpl::~HighlightingDialogImpl() = default;

std::vector<FormulaRow> HighlightingDialogImpl::rows() const {
  const QSize sample(kSampleWidth * fontMetrics().averageCharWidth(), fontMetrics().ascent());
  form_->highlightList->setIconSize(sample);
  std::vector<FormulaRow> rows;
  for (int i = 0; i < static_cast<int>(table().fieldCount()); ++i) {
    const FieldDef& field = table().field(i);
    const std::string formula = highlightText(field);
    const std::size_t colour = constantColour(formula, host().functions).value_or(0);
    rows.push_back({.field = i,
                    .name = toText(field.name),
                    .formula = toText(formula),
                    .icon = colourSample(colour, palette(), sample)});
  }
  return rows;
}

void HighlightingDialogImpl::slotEdit() {
  const std::optional<int> field = selectedField();
  if (!field) {
    warn(tr("Data Editor: missing highlight"), tr("Please select an highlight expression to edit"));
    return;
  }
  openEditor(field);
}

void HighlightingDialogImpl::takeEdited() {
  if (change({.movesColumns = false, .run = [this] {
                setHighlightFormula(host().view, *editor_->field(), editor_->formula());
                return true;
              }})) {
    editor_->accept();
    select(*editor_->field());
  }
}

}  // namespace vrel
