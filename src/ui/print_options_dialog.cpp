#include "ui/print_options_dialog.h"

#include <QSignalBlocker>
#include <algorithm>
#include <array>

#include "expr/ui/to_text.h"
#include "model/paper.h"
#include "ui_print_options_dialog.h"

namespace vrel {

namespace {

struct PrinterKind {
  PrinterType type;
  const char* name;
};

constexpr std::array<PrinterKind, 3> kPrinterKinds = {{
    {PrinterType::PostScript, QT_TRANSLATE_NOOP("PrintOptionsDialog", "PostScript")},
    {PrinterType::Ascii, QT_TRANSLATE_NOOP("PrintOptionsDialog", "ASCII")},
    {PrinterType::Html, QT_TRANSLATE_NOOP("PrintOptionsDialog", "HTML")},
}};

// Controls that show one option as it is.
using Form = Ui::PrintOptionsDialog;

struct FlagControl {
  bool PrintOptions::*option;
  QCheckBox* Form::*box;
};
constexpr std::array<FlagControl, 9> kFlags = {{
    {&PrintOptions::repeatRowLabels, &Form::repeatRowsBox},
    {&PrintOptions::repeatColumnLabels, &Form::repeatColumnsBox},
    {&PrintOptions::printAllPages, &Form::allPagesBox},
    {&PrintOptions::separators, &Form::gridBox},
    {&PrintOptions::fitToWidth, &Form::fitWidthBox},
    {&PrintOptions::fitToHeight, &Form::fitHeightBox},
    {&PrintOptions::bestOnePageFit, &Form::onePageBox},
    {&PrintOptions::addHeader, &Form::addHeaderBox},
    {&PrintOptions::borders, &Form::bordersBox},
}};

struct NumberControl {
  std::int32_t PrintOptions::*option;
  QSpinBox* Form::*box;
};
constexpr std::array<NumberControl, 5> kNumbers = {{
    {&PrintOptions::widthPages, &Form::widthPagesBox},
    {&PrintOptions::heightPages, &Form::heightPagesBox},
    {&PrintOptions::fontSize, &Form::fontSizeBox},
    {&PrintOptions::pageWidthChars, &Form::pageWidthBox},
    {&PrintOptions::pageHeightChars, &Form::pageHeightBox},
}};

struct TextControl {
  std::string PrintOptions::*option;
  QLineEdit* Form::*edit;
};
constexpr std::array<TextControl, 3> kTexts = {{
    {&PrintOptions::title, &Form::titleEdit},
    {&PrintOptions::footer, &Form::footerEdit},
    {&PrintOptions::printCommand, &Form::printCommandEdit},
}};

QString printerText(const platform::Printer& printer) {
  return toText(printer.server.empty() ? printer.name : printer.name + " (" + printer.server + ")");
}

bool isSame(const platform::Printer& a, const platform::Printer& b) {
  return a.name == b.name && a.server == b.server;
}

}  // namespace

PrintOptionsDialogImpl::PrintOptionsDialogImpl(ChoosePrintFile chooseFile, QWidget* parent)
    : QDialog(parent),
      form_(std::make_unique<Ui::PrintOptionsDialog>()),
      chooseFile_(std::move(chooseFile)) {
  form_->setupUi(this);
  fillLists();
  connectButtons();
  connectScaling();
  setPrinters({});
  setOptions({});
}

PrintOptionsDialogImpl::~PrintOptionsDialogImpl() = default;

void PrintOptionsDialogImpl::fillLists() {
  for (const PrinterKind& kind : kPrinterKinds) {
    form_->printerTypeBox->addItem(QCoreApplication::translate("PrintOptionsDialog", kind.name),
                                   static_cast<int>(kind.type));
  }
  for (const Paper& paper : paperTypes()) {
    form_->paperTypeBox->addItem(toText(paper.name), form_->paperTypeBox->count());
  }
}

void PrintOptionsDialogImpl::connectButtons() {
  connect(form_->applyButton, &QPushButton::clicked, this, &PrintOptionsDialogImpl::applied);
  connect(form_->applyAndPrintButton, &QPushButton::clicked, this, [this] {
    emit applied();
    accept();
  });
  connect(form_->cancelButton, &QPushButton::clicked, this, &QDialog::reject);
  connect(form_->browseButton, &QPushButton::clicked, this, &PrintOptionsDialogImpl::chooseFile);
  connect(form_->printerBox, &QComboBox::activated, this,
          &PrintOptionsDialogImpl::SelectPrinterSlot);
  for (QCheckBox* box : {form_->printToFileBox, form_->fitWidthBox, form_->fitHeightBox}) {
    connect(box, &QCheckBox::toggled, this, &PrintOptionsDialogImpl::enableControls);
  }
  connect(form_->printerTypeBox, &QComboBox::currentIndexChanged, this,
          &PrintOptionsDialogImpl::enableControls);
  connect(form_->printCommandEdit, &QLineEdit::textChanged, this,
          &PrintOptionsDialogImpl::enableControls);
}

// The font size counts when nothing is to be fitted.
void PrintOptionsDialogImpl::connectScaling() {
  for (QCheckBox* box : {form_->fitWidthBox, form_->fitHeightBox, form_->onePageBox}) {
    connect(box, &QCheckBox::toggled, this, &PrintOptionsDialogImpl::keepOneScaling);
  }
  connect(form_->useFontSizeBox, &QCheckBox::clicked, this, [this] {
    for (QCheckBox* box : {form_->fitWidthBox, form_->fitHeightBox, form_->onePageBox}) {
      box->setChecked(false);
    }
    keepOneScaling();
  });
}

void PrintOptionsDialogImpl::keepOneScaling() {
  form_->useFontSizeBox->setChecked(!form_->fitWidthBox->isChecked() &&
                                    !form_->fitHeightBox->isChecked() &&
                                    !form_->onePageBox->isChecked());
  enableControls();
}

PrinterType PrintOptionsDialogImpl::printerType() const {
  return static_cast<PrinterType>(form_->printerTypeBox->currentData().toInt());
}

void PrintOptionsDialogImpl::enableControls() {
  const PrinterType type = printerType();
  const bool postScript = type == PrinterType::PostScript;
  form_->scalingGroup->setEnabled(postScript);
  form_->widthPagesBox->setEnabled(form_->fitWidthBox->isChecked());
  form_->heightPagesBox->setEnabled(form_->fitHeightBox->isChecked());
  form_->fontSizeBox->setEnabled(form_->useFontSizeBox->isChecked());
  for (QWidget* each : std::initializer_list<QWidget*>{
           form_->paperTypeLabel, form_->paperTypeBox, form_->orientationLabel,
           form_->portraitButton, form_->landscapeButton}) {
    each->setEnabled(postScript);
  }
  const bool paged = type != PrinterType::Html;
  for (QCheckBox* each : {form_->repeatRowsBox, form_->repeatColumnsBox, form_->gridBox}) {
    each->setEnabled(paged);
  }
  form_->asciiGroup->setEnabled(type == PrinterType::Ascii);
  form_->htmlGroup->setEnabled(type == PrinterType::Html);
  const bool toFile = form_->printToFileBox->isChecked();
  for (QWidget* each : std::initializer_list<QWidget*>{form_->fileNameLabel, form_->fileNameEdit,
                                                       form_->browseButton}) {
    each->setEnabled(toFile);
  }
  const bool byCommand = !form_->printCommandEdit->text().isEmpty();
  form_->printCommandEdit->setEnabled(!toFile);
  form_->printerBox->setEnabled(!toFile && !byCommand && !printers_.empty());
}

void PrintOptionsDialogImpl::setOptions(const PrintOptions& options) {
  shown_ = options;
  for (const TextControl& each : kTexts) {
    (form_.get()->*each.edit)->setText(toText(options.*each.option));
  }
  for (const FlagControl& each : kFlags) {
    (form_.get()->*each.box)->setChecked(options.*each.option);
  }
  for (const NumberControl& each : kNumbers) {
    (form_.get()->*each.box)->setValue(options.*each.option);
  }
  form_->printerTypeBox->setCurrentIndex(
      form_->printerTypeBox->findData(static_cast<int>(options.printerType)));
  if (form_->paperTypeBox->findData(options.paperType) < 0) {
    form_->paperTypeBox->addItem(toText(paperName(options.paperType)), options.paperType);
  }
  form_->paperTypeBox->setCurrentIndex(form_->paperTypeBox->findData(options.paperType));
  (options.landscape ? form_->landscapeButton : form_->portraitButton)->setChecked(true);
  keepOneScaling();
}

void PrintOptionsDialogImpl::setDefaultTitle(const QString& title) {
  form_->titleEdit->setPlaceholderText(title);
}

PrintOptions PrintOptionsDialogImpl::options() const {
  PrintOptions options = shown_;
  for (const TextControl& each : kTexts) {
    options.*each.option = (form_.get()->*each.edit)->text().toStdString();
  }
  for (const FlagControl& each : kFlags) {
    options.*each.option = (form_.get()->*each.box)->isChecked();
  }
  for (const NumberControl& each : kNumbers) {
    options.*each.option = (form_.get()->*each.box)->value();
  }
  options.printerType = printerType();
  options.paperType = form_->paperTypeBox->currentData().toInt();
  options.landscape = form_->landscapeButton->isChecked();
  return options;
}

void PrintOptionsDialogImpl::setPrinters(std::vector<platform::Printer> printers) {
  printers_ = std::move(printers);
  form_->printerBox->clear();
  for (const platform::Printer& printer : printers_) {
    form_->printerBox->addItem(printerText(printer));
  }
  if (printers_.empty()) {
    form_->printerBox->addItem(tr("No Printers Available"));
  }
  const int kept = entryOf(printer_);
  const int entry = std::max(kept < 0 ? entryOf(firstPrinter(printers_)) : kept, 0);
  form_->printerBox->setCurrentIndex(entry);
  SelectPrinterSlot(entry);
  enableControls();
}

int PrintOptionsDialogImpl::entryOf(const std::optional<platform::Printer>& wanted) const {
  const auto found = std::find_if(printers_.begin(), printers_.end(), [&](const auto& printer) {
    return wanted && isSame(printer, *wanted);
  });
  return found == printers_.end() ? -1 : static_cast<int>(found - printers_.begin());
}

void PrintOptionsDialogImpl::SelectPrinterSlot(int entry) {
  const auto index = static_cast<std::size_t>(entry);
  printer_ =
      entry >= 0 && index < printers_.size() ? std::optional(printers_[index]) : std::nullopt;
}

PrintTarget PrintOptionsDialogImpl::target() const {
  PrintTarget target;
  target.printer = printer_;
  if (form_->printToFileBox->isChecked()) {
    target.file = form_->fileNameEdit->text().toStdString();
  }
  return target;
}

void PrintOptionsDialogImpl::chooseFile() {
  const QString chosen = chooseFile_(this, printerType());
  if (!chosen.isEmpty()) {
    form_->fileNameEdit->setText(chosen);
  }
}

}  // namespace vrel
