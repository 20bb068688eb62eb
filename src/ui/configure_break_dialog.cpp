#include "ui/configure_break_dialog.h"

#include <QTimer>
#include <algorithm>
#include <array>
#include <utility>

#include "expr/ui/to_text.h"
#include "ui_configure_break_dialog.h"

namespace vrel {

namespace {

struct ObstacleText {
  BreakObstacle obstacle;
  const char* text;
};

constexpr std::array<ObstacleText, 4> kObstacles = {{
    {BreakObstacle::NotOnAxis,
     QT_TRANSLATE_NOOP("ConfigureBreakDialog",
                       "This break shows nothing: its field is neither in the rows nor in the "
                       "columns of the report.")},
    {BreakObstacle::Suspended,
     QT_TRANSLATE_NOOP("ConfigureBreakDialog", "This break shows nothing: it is not active.")},
    {BreakObstacle::NeverDue,
     QT_TRANSLATE_NOOP("ConfigureBreakDialog",
                       "This break shows nothing: choose how often it comes.")},
    {BreakObstacle::NothingComputed,
     QT_TRANSLATE_NOOP("ConfigureBreakDialog",
                       "This break shows nothing: choose what to compute for at least one data "
                       "field.")},
}};

QString textOf(BreakObstacle obstacle) {
  const auto row =
      std::find_if(kObstacles.begin(), kObstacles.end(),
                   [obstacle](const ObstacleText& each) { return each.obstacle == obstacle; });
  return row == kObstacles.end() ? QString()
                                 : QCoreApplication::translate("ConfigureBreakDialog", row->text);
}

}  // namespace

ConfigureBreakDialog::ConfigureBreakDialog(ReportView& view, std::size_t position,
                                           RunChange changeView, Notice*& notice, QWidget* parent)
    : QDialog(parent),
      view_(view),
      position_(position),
      changeView_(std::move(changeView)),
      notice_(notice),
      form_(std::make_unique<Ui::ConfigureBreakDialog>()),
      operations_(new ChoiceTableModel(this)) {
  form_->setupUi(this);
  const BreakDefinition& shown = definition();
  form_->fieldNameLabel->setText(toText(view.table->field(shown.fieldIndex).name));
  form_->nameEdit->setText(toText(shown.name));
  form_->activeBox->setChecked(shown.active);
  form_->blankAfterBox->setChecked(shown.breakAfter);
  fillLists();
  fillOperations();
  showObstacle();
  connectControls();
}

ConfigureBreakDialog::~ConfigureBreakDialog() = default;

void ConfigureBreakDialog::fillLists() {
  const BreakDefinition& shown = definition();
  addChoices(*form_->frequencyBox, frequencyChoices(), shown.frequency,
             frequencyText(shown.frequency, *notice_));
  addChoices(*form_->firstBreakBox, firstBreakChoices(), shown.firstBreak,
             firstBreakText(shown.firstBreak, *notice_));
}

// A number that is not offered has an entry of its own, so that it is kept.
void ConfigureBreakDialog::addChoices(QComboBox& box, std::span<const BreakChoice> choices,
                                      std::int32_t chosen, const std::string& chosenText) {
  for (const BreakChoice& choice : choices) {
    box.addItem(toText(notice_->translate(choice.text)), choice.code);
  }
  if (box.findData(chosen) < 0) {
    box.addItem(toText(chosenText), chosen);
  }
  box.setCurrentIndex(box.findData(chosen));
}

void ConfigureBreakDialog::fillOperations() {
  QStringList names;
  for (const BreakOperation operation : breakOperations()) {
    names << toText(notice_->translate(operationName(operation)));
  }
  std::vector<ChoiceRow> rows;
  for (const int field : view_.axis(Axis::Data)) {
    const auto chosen = static_cast<int>(operationOf(definition(), field));
    rows.push_back({toText(view_.table->field(field).name), {{names, chosen}}});
  }
  operations_->setRows({tr("Data Field"), tr("Operation")}, std::move(rows));
  operations_->setChoose([this](int row, int /*cell*/, int choice) {
    slotBreakOptionChanged(row, choice);
    return true;
  });
  form_->operationTable->setModel(operations_);
  form_->operationTable->setAccessibleName(form_->operationLabel->text());
}

void ConfigureBreakDialog::connectControls() {
  connect(form_->nameEdit, &QLineEdit::textEdited, this,
          &ConfigureBreakDialog::slotBreakNameChanged);
  connect(form_->nameEdit, &QLineEdit::editingFinished, this, &ConfigureBreakDialog::showBreak);
  connect(form_->activeBox, &QCheckBox::toggled, this, &ConfigureBreakDialog::slotActiveToggled);
  connect(form_->blankAfterBox, &QCheckBox::toggled, this,
          &ConfigureBreakDialog::slotBlankAfterToggled);
  connect(form_->frequencyBox, &QComboBox::currentIndexChanged, this,
          &ConfigureBreakDialog::slotFrequencyChanged);
  connect(form_->firstBreakBox, &QComboBox::currentIndexChanged, this,
          &ConfigureBreakDialog::slotFirstBreakChanged);
  connect(form_->closeButton, &QPushButton::clicked, this, &QDialog::accept);
}

template <typename Value>
void ConfigureBreakDialog::set(Value& setting, Value value) {
  if (setting != value) {
    changeView_([&] { setting = value; });
    showObstacle();
  }
}

void ConfigureBreakDialog::slotBreakNameChanged(const QString& name) {
  std::string typed = name.toStdString();
  if (definition().name != typed) {
    definition().name = std::move(typed);
    view_.modified = true;
    isShown_ = false;
  }
}

void ConfigureBreakDialog::showBreak() {
  if (!isShown_) {
    isShown_ = true;
    changeView_([] {});
  }
}

void ConfigureBreakDialog::slotActiveToggled(bool active) {
  set(definition().active, active);
}

void ConfigureBreakDialog::slotBlankAfterToggled(bool blank) {
  set(definition().breakAfter, blank);
}

void ConfigureBreakDialog::slotFrequencyChanged(int entry) {
  set(definition().frequency, form_->frequencyBox->itemData(entry).value<std::int32_t>());
}

void ConfigureBreakDialog::slotFirstBreakChanged(int entry) {
  set(definition().firstBreak, form_->firstBreakBox->itemData(entry).value<std::int32_t>());
}

void ConfigureBreakDialog::slotBreakOptionChanged(int row, int entry) {
  const int field = view_.axis(Axis::Data)[static_cast<std::size_t>(row)];
  const BreakOperation operation = breakOperations()[static_cast<std::size_t>(entry)];
  if (operationOf(definition(), field) != operation) {
    setOperation(definition(), field, operation);
    view_.modified = true;
    isShown_ = false;
    showObstacle();
    // The list of choices is still closing, and laying the report out may open a box.
    QTimer::singleShot(0, this, &ConfigureBreakDialog::showBreak);
  }
}

void ConfigureBreakDialog::showObstacle() {
  form_->obstacleLabel->setText(textOf(obstacleOf(view_, definition())));
}

void ConfigureBreakDialog::done(int result) {
  showBreak();
  QDialog::done(result);
}

}  // namespace vrel
