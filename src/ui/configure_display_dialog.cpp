#include "ui/configure_display_dialog.h"

#include <QRegularExpressionValidator>
#include <utility>

#include "expr/ui/to_text.h"
#include "ui_configure_display_dialog.h"

namespace vrel {

namespace {

// Whole numbers up to `kMaxPrecision`.
constexpr const char* kPrecisions = "[0-4]?[0-9]?[0-9]|50[0-9]|51[0-2]";
static_assert(kMaxPrecision == 512);

// In characters and lines of text.
constexpr int kListWidth = 24;
constexpr int kListHeight = 8;

std::string edited(const QLineEdit& edit, const std::string& before) {
  return edit.text() == toText(before) ? before : edit.text().toStdString();
}

}  // namespace

ConfigureDisplayDialogImpl::ConfigureDisplayDialogImpl(const ReportView& view,
                                                       ChoosePeriodFile chooseFile, QWidget* parent)
    : QDialog(parent),
      form_(std::make_unique<Ui::ConfigureDisplayDialog>()),
      chooseFile_(std::move(chooseFile)) {
  form_->setupUi(this);
  form_->precisionText->setValidator(new QRegularExpressionValidator(
      QRegularExpression(QLatin1String(kPrecisions)), form_->precisionText));
  limitLists();
  connectLists();
  connectButtons();
  fillLists(view);
  showSettings(displaySettings(view));
  enableControls();
}

ConfigureDisplayDialogImpl::~ConfigureDisplayDialogImpl() = default;

void ConfigureDisplayDialogImpl::limitLists() {
  for (FieldList* list : {form_->availableList, form_->shownList}) {
    list->setMinimumSize(fontMetrics().averageCharWidth() * kListWidth,
                         fontMetrics().height() * kListHeight);
  }
}

void ConfigureDisplayDialogImpl::fillLists(const ReportView& view) {
  const auto fill = [&view](FieldList& list, const std::vector<int>& fields) {
    for (const int field : fields) {
      list.addField(field, toText(view.table->field(field).name));
    }
    list.setCurrentRow(0);
  };
  fill(*form_->availableList, availableFields(view));
  fill(*form_->shownList, view.axis(Axis::Data));
}

void ConfigureDisplayDialogImpl::showSettings(const DisplaySettings& settings) {
  shown_ = settings;
  form_->showDuplicateLabels->setChecked(settings.duplicateLabels);
  form_->showSystemTitle->setChecked(settings.systemTitle);
  form_->showEmptyRowsAndColumns->setChecked(settings.emptyRowsAndColumns);
  form_->date->setText(toText(settings.dateFormat));
  form_->precisionText->setText(QString::number(settings.precision));
  form_->periodFileText->setText(settings.periodFile.empty() ? noPeriodFile()
                                                             : toText(settings.periodFile));
  form_->userTitleText->setText(toText(settings.userTitle));
}

DisplaySettings ConfigureDisplayDialogImpl::settings() const {
  return {.shownFields = form_->shownList->fields(),
          .duplicateLabels = form_->showDuplicateLabels->isChecked(),
          .systemTitle = form_->showSystemTitle->isChecked(),
          .emptyRowsAndColumns = form_->showEmptyRowsAndColumns->isChecked(),
          .dateFormat = edited(*form_->date, shown_.dateFormat),
          .precision = form_->precisionText->text().toInt(),
          .periodFile = periodFile() == toText(shown_.periodFile) ? shown_.periodFile
                                                                  : periodFile().toStdString(),
          .userTitle = edited(*form_->userTitleText, shown_.userTitle)};
}

QString ConfigureDisplayDialogImpl::noPeriodFile() {
  return tr("<default>");
}

QString ConfigureDisplayDialogImpl::periodFile() const {
  const QString typed = form_->periodFileText->text();
  return typed.trimmed().isEmpty() || typed == noPeriodFile() ? QString() : typed;
}

void ConfigureDisplayDialogImpl::connectLists() {
  form_->availableList->setSister(form_->shownList);
  form_->shownList->setSister(form_->availableList);
  connect(form_->showButton, &QPushButton::clicked, form_->availableList, &FieldList::moveToSister);
  connect(form_->hideButton, &QPushButton::clicked, form_->shownList, &FieldList::moveToSister);
  connect(form_->upButton, &QPushButton::clicked, form_->shownList, &FieldList::moveUp);
  connect(form_->downButton, &QPushButton::clicked, form_->shownList, &FieldList::moveDown);
  for (FieldList* list : {form_->availableList, form_->shownList}) {
    connect(list, &QListWidget::itemDoubleClicked, list, &FieldList::moveToSister);
    connect(list, &QListWidget::itemSelectionChanged, this,
            &ConfigureDisplayDialogImpl::enableControls);
    connect(list, &FieldList::changed, this, &ConfigureDisplayDialogImpl::enableControls);
  }
}

void ConfigureDisplayDialogImpl::connectButtons() {
  connect(form_->applyButton, &QPushButton::clicked, this,
          &ConfigureDisplayDialogImpl::slotApplyConfig);
  connect(form_->closeButton, &QPushButton::clicked, this,
          &ConfigureDisplayDialogImpl::slotCloseConfig);
  connect(form_->cancelButton, &QPushButton::clicked, this,
          &ConfigureDisplayDialogImpl::slotCancelConfig);
  connect(form_->browseButton, &QPushButton::clicked, this,
          &ConfigureDisplayDialogImpl::chooseFile);
  connect(form_->precisionText, &QLineEdit::textChanged, this,
          &ConfigureDisplayDialogImpl::enableControls);
  connect(form_->date, &QLineEdit::textChanged, this, &ConfigureDisplayDialogImpl::showExampleDate);
}

void ConfigureDisplayDialogImpl::enableControls() {
  const int shown = form_->shownList->count();
  const auto selected = form_->shownList->selectedItems().size();
  form_->showButton->setEnabled(!form_->availableList->selectedItems().isEmpty());
  form_->hideButton->setEnabled(selected > 0);
  form_->upButton->setEnabled(selected > 0 && selected < shown);
  form_->downButton->setEnabled(selected > 0 && selected < shown);
  const bool complete = shown > 0 && form_->precisionText->hasAcceptableInput() &&
                        !form_->precisionText->text().isEmpty();
  form_->applyButton->setEnabled(complete);
  form_->closeButton->setEnabled(complete);
}

void ConfigureDisplayDialogImpl::showExampleDate() {
  const QString example = toText(exampleDate(form_->date->text().toStdString()));
  form_->dateExample->setText(tr("Example: %1").arg(example));
}

void ConfigureDisplayDialogImpl::chooseFile() {
  const QString chosen = chooseFile_(this, periodFile());
  if (!chosen.isEmpty()) {
    form_->periodFileText->setText(chosen);
  }
}

void ConfigureDisplayDialogImpl::slotApplyConfig() {
  shown_ = settings();
  emit applied();
}

void ConfigureDisplayDialogImpl::slotCancelConfig() {
  reject();
}

void ConfigureDisplayDialogImpl::slotCloseConfig() {
  if (settings() != shown_) {
    slotApplyConfig();
  }
  accept();
}

}  // namespace vrel
