#include "ui/choice_table.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>

#include "ui/choice_delegate.h"

namespace vrel {

namespace {

// Rows that are looked at to find a column's width.
constexpr int kMeasuredRows = 100;
// What is shown of the table before the user makes the dialog larger.
constexpr int kNameCharacters = 24;
constexpr int kFewestRows = 5;
constexpr int kMostRows = 14;

}  // namespace

ChoiceTableModel::ChoiceTableModel(QObject* parent) : QAbstractTableModel(parent) {}

void ChoiceTableModel::setRows(QStringList headings, std::vector<ChoiceRow> rows) {
  beginResetModel();
  headings_ = std::move(headings);
  rows_ = std::move(rows);
  endResetModel();
}

int ChoiceTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int ChoiceTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(headings_.size());
}

const ChoiceCell* ChoiceTableModel::cellAt(const QModelIndex& index) const {
  if (!index.isValid() || index.column() == 0) {
    return nullptr;
  }
  return &rows_[static_cast<std::size_t>(index.row())]
              .cells[static_cast<std::size_t>(index.column() - 1)];
}

QVariant ChoiceTableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  const ChoiceCell* const cell = cellAt(index);
  switch (role) {
    case Qt::DisplayRole:
      return cell == nullptr ? rows_[static_cast<std::size_t>(index.row())].name
                             : cell->texts.value(cell->chosen);
    case ChoiceDelegate::kTextsRole:
      return cell == nullptr ? QVariant() : cell->texts;
    case ChoiceDelegate::kChosenRole:
      return cell == nullptr ? QVariant() : cell->chosen;
    default:
      return {};
  }
}

bool ChoiceTableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  const ChoiceCell* const cell = cellAt(index);
  const int choice = value.toInt();
  if (cell == nullptr || role != ChoiceDelegate::kChosenRole || choice < 0 ||
      choice >= cell->texts.size()) {
    return false;
  }
  if (choice == cell->chosen) {
    return true;
  }
  if (choose_ && !choose_(index.row(), index.column() - 1, choice)) {
    return false;
  }
  rows_[static_cast<std::size_t>(index.row())]
      .cells[static_cast<std::size_t>(index.column() - 1)]
      .chosen = choice;
  emit dataChanged(index, index);
  return true;
}

Qt::ItemFlags ChoiceTableModel::flags(const QModelIndex& index) const {
  const ChoiceCell* const cell = cellAt(index);
  const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  return cell != nullptr && cell->texts.size() > 1 ? flags | Qt::ItemIsEditable : flags;
}

QVariant ChoiceTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Horizontal && role == Qt::DisplayRole) {
    return headings_.value(section);
  }
  return {};
}

ChoiceTableView::ChoiceTableView(QWidget* parent) : QTableView(parent) {
  setItemDelegate(new ChoiceDelegate(this));
  setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setShowGrid(false);
  setTabKeyNavigation(false);
  setWordWrap(false);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setResizeContentsPrecision(kMeasuredRows);
  horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  connect(this, &QAbstractItemView::clicked, this, &ChoiceTableView::choose);
}

void ChoiceTableView::setModel(QAbstractItemModel* model) {
  QTableView::setModel(model);
  if (model->rowCount() > 0) {
    const QModelIndex choice = model->index(0, model->columnCount() - 1);
    verticalHeader()->setDefaultSectionSize(sizeHintForIndex(choice).height());
    setCurrentIndex(model->index(0, 1));
  }
  resizeColumnsToContents();
  horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
  updateGeometry();
}

QSize ChoiceTableView::sizeHint() const {
  if (model() == nullptr) {
    return QTableView::sizeHint();
  }
  int width = kNameCharacters * fontMetrics().averageCharWidth();
  for (int column = 1; column < model()->columnCount(); ++column) {
    width += columnWidth(column);
  }
  const int rows = std::clamp(model()->rowCount(), kFewestRows, kMostRows);
  return {width + verticalScrollBar()->sizeHint().width() + 2 * frameWidth(),
          horizontalHeader()->sizeHint().height() + rows * verticalHeader()->defaultSectionSize() +
              2 * frameWidth()};
}

void ChoiceTableView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier)) {
    choose(currentIndex());
  } else {
    QTableView::keyPressEvent(event);
  }
}

void ChoiceTableView::choose(const QModelIndex& index) {
  if (index.flags().testFlag(Qt::ItemIsEditable)) {
    edit(index);
  }
}

}  // namespace vrel
