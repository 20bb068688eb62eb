#include "expr/ui/functions_dialog.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>

#include "expr/ui/bring_to_front.h"
#include "ui_functions_dialog.h"

namespace vrel {

namespace {

constexpr int kShownRows = 18;

}  // namespace

FunctionsDialog::FunctionsDialog(const FunctionRegistry& functions, QWidget* parent)
    : QDialog(parent), form_(std::make_unique<Ui::FunctionsDialog>()) {
  form_->setupUi(this);
  FunctionList* list = form_->functionList;
  list->setHeaderLabels({tr("Name"), tr("Usage")});
  for (const FunctionRecord& function : functions.records()) {
    new DragItem(list, function);
  }
  list->header()->setStretchLastSection(true);
  list->resizeColumnToContents(0);
  list->resizeColumnToContents(1);
  const QMargins margins = form_->dialogLayout->contentsMargins();
  const int width = list->columnWidth(0) + list->columnWidth(1) + 2 * list->frameWidth() +
                    list->verticalScrollBar()->sizeHint().width() + margins.left() +
                    margins.right();
  resize(width, kShownRows * 2 * list->fontMetrics().lineSpacing());
  form_->filterEdit->installEventFilter(this);
  connect(form_->filterEdit, &QLineEdit::textChanged, this, &FunctionsDialog::showMatches);
  connect(list, &QTreeWidget::itemActivated, this, &FunctionsDialog::choose);
  connect(form_->closeButton, &QPushButton::clicked, this, &QDialog::reject);
}

FunctionsDialog::~FunctionsDialog() = default;

void FunctionsDialog::present() {
  bringToFront(*this);
  form_->filterEdit->setFocus();
  form_->filterEdit->selectAll();
}

void FunctionsDialog::showMatches(const QString& text) {
  QTreeWidgetItem* first = nullptr;
  for (int row = 0; row < form_->functionList->topLevelItemCount(); ++row) {
    QTreeWidgetItem* item = form_->functionList->topLevelItem(row);
    const bool matches = item->text(0).contains(text.trimmed(), Qt::CaseInsensitive) ||
                         item->text(1).contains(text.trimmed(), Qt::CaseInsensitive);
    item->setHidden(!matches);
    first = first == nullptr && matches ? item : first;
  }
  form_->functionList->setCurrentItem(first);
}

void FunctionsDialog::choose(QTreeWidgetItem* item) {
  if (const auto* function = dynamic_cast<const DragItem*>(item)) {
    emit chosen(function->function());
  }
}

// In the filter, the arrows go to the list, and Enter takes what is current there.
bool FunctionsDialog::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) {
    return QDialog::eventFilter(watched, event);
  }
  FunctionList* list = form_->functionList;
  switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Down:
    case Qt::Key_Up:
    case Qt::Key_PageDown:
    case Qt::Key_PageUp:
      list->setFocus();
      return QCoreApplication::sendEvent(list, event);
    case Qt::Key_Return:
    case Qt::Key_Enter:
      choose(list->currentItem());
      return true;
    default:
      return QDialog::eventFilter(watched, event);
  }
}

}  // namespace vrel
