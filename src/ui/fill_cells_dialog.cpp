#include "ui/fill_cells_dialog.h"

#include <algorithm>
#include <utility>

#include "ui_fill_cells_dialog.h"

namespace vrel {

FillCellsDialogImpl::FillCellsDialogImpl(Fill fill, QWidget* parent)
    : QDialog(parent), fill_(std::move(fill)), form_(std::make_unique<Ui::FillCellsDialog>()) {
  form_->setupUi(this);
  for (QRadioButton* choice : {form_->rowCB, form_->colCB, form_->entireTableCB}) {
    connect(choice, &QRadioButton::toggled, this, &FillCellsDialogImpl::enableControls);
  }
  connect(form_->applyButton, &QPushButton::clicked, this, &FillCellsDialogImpl::slotApply);
  connect(form_->closeButton, &QPushButton::clicked, this, &QDialog::reject);
  enableControls();
}

FillCellsDialogImpl::~FillCellsDialogImpl() = default;

void FillCellsDialogImpl::setSize(int rows, int columns) {
  form_->rowBox->setMaximum(std::max(rows, 1));
  form_->columnBox->setMaximum(std::max(columns, 1));
}

void FillCellsDialogImpl::setPlace(int row, int column) {
  form_->rowBox->setValue(row);
  form_->columnBox->setValue(column);
}

void FillCellsDialogImpl::setText(const QString& text) {
  form_->valueEdit->setText(text);
  form_->valueEdit->selectAll();
  form_->valueEdit->setFocus();
}

FillArea FillCellsDialogImpl::area() const {
  if (form_->rowCB->isChecked()) {
    return FillArea::Row;
  }
  return form_->colCB->isChecked() ? FillArea::Column : FillArea::Table;
}

void FillCellsDialogImpl::enableControls() {
  form_->rowBox->setEnabled(form_->rowCB->isChecked());
  form_->columnBox->setEnabled(form_->colCB->isChecked());
}

void FillCellsDialogImpl::slotApply() {
  const std::string text = form_->valueEdit->text().toStdString();
  // A long fill lets events pass: a second one must not begin in it.
  setEnabled(false);
  fill_({.area = area(),
         .row = form_->rowBox->value(),
         .column = form_->columnBox->value(),
         .text = text});
  setEnabled(true);
  form_->valueEdit->setFocus();
  form_->valueEdit->selectAll();
}

}  // namespace vrel
