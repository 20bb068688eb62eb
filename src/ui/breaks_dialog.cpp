#include "ui/breaks_dialog.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>
#include <utility>

#include "expr/ui/to_text.h"
#include "ui/configure_break_dialog.h"
#include "ui_breaks_dialog.h"

namespace vrel {

namespace {

enum Column { kField, kName, kActive, kFrequency, kFirstBreak, kComputes };

// The break's position among those of the view.
constexpr int kPositionRole = Qt::UserRole;

// What is shown of the list before the user makes the dialog larger.
constexpr int kFewestRows = 6;
constexpr int kMostRows = 16;
constexpr int kWidestList = 120;

}  // namespace

BreaksDialogImpl::BreaksDialogImpl(ReportView& view, RunChange changeView, RunDialog runDialog,
                                   Notice*& notice, QWidget* parent)
    : QDialog(parent),
      view_(view),
      changeView_(std::move(changeView)),
      runDialog_(std::move(runDialog)),
      notice_(notice),
      form_(std::make_unique<Ui::BreaksDialog>()) {
  form_->setupUi(this);
  form_->breakList->setAccessibleName(form_->keyFieldsLabel->text());
  form_->breakList->setHeaderLabels(
      {tr("Field"), tr("Name"), tr("Active"), tr("Frequency"), tr("First Break"), tr("Computes")});
  buildMenu();
  fillList();
  connectControls();
}

BreaksDialogImpl::~BreaksDialogImpl() = default;

void BreaksDialogImpl::buildMenu() {
  auto* bar = new QMenuBar(this);
  QMenu* const actions = bar->addMenu(tr("&Actions"));
  actions->addAction(tr("Suspend All Breaks"), this, &BreaksDialogImpl::slotInactivateAllBreaks);
  actions->addAction(tr("Activate All Breaks"), this, &BreaksDialogImpl::slotActivateAllBreaks);
  layout()->setMenuBar(bar);
}

void BreaksDialogImpl::connectControls() {
  QTreeWidget* const list = form_->breakList;
  list->installEventFilter(this);
  connect(list, &QTreeWidget::itemActivated, this, &BreaksDialogImpl::slotDefineBreak);
  connect(list, &QTreeWidget::itemChanged, this,
          [this](QTreeWidgetItem* item, int /*column*/) { takeActive(*item); });
  connect(form_->defineButton, &QPushButton::clicked, this, &BreaksDialogImpl::slotDefineBreak);
  connect(form_->closeButton, &QPushButton::clicked, this, &QDialog::accept);
}

void BreaksDialogImpl::fillList() {
  QTreeWidget* const list = form_->breakList;
  QList<QTreeWidgetItem*> items;
  for (const std::size_t position : listedBreaks(view_)) {
    auto* item = new QTreeWidgetItem;
    item->setData(kField, kPositionRole, QVariant::fromValue(position));
    showBreak(*item);
    items << item;
  }
  list->addTopLevelItems(items);
  list->setCurrentItem(list->topLevelItem(0));
  form_->defineButton->setEnabled(!items.isEmpty());
  fitList();
}

void BreaksDialogImpl::fitList() {
  QTreeWidget* const list = form_->breakList;
  int width = list->verticalScrollBar()->sizeHint().width() + 2 * list->frameWidth();
  for (int column = 0; column < list->columnCount(); ++column) {
    list->resizeColumnToContents(column);
    width += list->columnWidth(column);
  }
  const int rows = std::clamp(list->topLevelItemCount(), kFewestRows, kMostRows);
  const int rowHeight = std::max(list->sizeHintForRow(0), list->fontMetrics().height());
  list->setMinimumHeight(list->header()->sizeHint().height() + 3 * rowHeight);
  resize(std::min(width, kWidestList * fontMetrics().averageCharWidth()) +
             2 * layout()->contentsMargins().left(),
         sizeHint().height() - list->sizeHint().height() + list->header()->sizeHint().height() +
             rows * rowHeight);
}

void BreaksDialogImpl::showBreak(QTreeWidgetItem& item) {
  const BreakDefinition& shown =
      view_.breaks[item.data(kField, kPositionRole).value<std::size_t>()];
  const QSignalBlocker silent(form_->breakList);
  item.setText(kField, toText(view_.table->field(shown.fieldIndex).name));
  item.setText(kName, toText(shown.name));
  item.setCheckState(kActive, shown.active ? Qt::Checked : Qt::Unchecked);
  item.setData(kActive, Qt::AccessibleTextRole, shown.active ? tr("active") : tr("suspended"));
  item.setText(kFrequency, toText(frequencyText(shown.frequency, *notice_)));
  item.setText(kFirstBreak, toText(firstBreakText(shown.firstBreak, *notice_)));
  const QString computes = toText(computedText(view_, shown, *notice_));
  item.setText(kComputes, computes.isEmpty()
                              ? toText(notice_->translate(operationName(BreakOperation::Nothing)))
                              : computes);
}

void BreaksDialogImpl::takeActive(QTreeWidgetItem& item) {
  bool& active = view_.breaks[item.data(kField, kPositionRole).value<std::size_t>()].active;
  const bool wanted = item.checkState(kActive) == Qt::Checked;
  if (active != wanted) {
    changeView_([&] { active = wanted; });
    showBreak(item);
  }
}

void BreaksDialogImpl::setAll(bool active) {
  const std::vector<BreakDefinition>& breaks = view_.breaks;
  if (std::none_of(breaks.begin(), breaks.end(),
                   [active](const BreakDefinition& each) { return each.active != active; })) {
    return;
  }
  changeView_([&] { setAllActive(view_, active); });
  for (int row = 0; row < form_->breakList->topLevelItemCount(); ++row) {
    showBreak(*form_->breakList->topLevelItem(row));
  }
}

void BreaksDialogImpl::slotInactivateAllBreaks() {
  setAll(false);
}

void BreaksDialogImpl::slotActivateAllBreaks() {
  setAll(true);
}

void BreaksDialogImpl::slotDefineBreak() {
  QTreeWidgetItem* const item = form_->breakList->currentItem();
  if (item == nullptr) {
    return;
  }
  ConfigureBreakDialog dialog(view_, item->data(kField, kPositionRole).value<std::size_t>(),
                              changeView_, notice_, this);
  runDialog_(dialog);
  showBreak(*item);
}

// Space marks the break of the row, whichever of its columns is the current one.
bool BreaksDialogImpl::eventFilter(QObject* watched, QEvent* event) {
  QTreeWidgetItem* const item = form_->breakList->currentItem();
  if (watched == form_->breakList && event->type() == QEvent::KeyPress && item != nullptr &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space) {
    item->setCheckState(kActive,
                        item->checkState(kActive) == Qt::Checked ? Qt::Unchecked : Qt::Checked);
    return true;
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace vrel
