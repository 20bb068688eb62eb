#include "ui/data_table.h"

#include <QApplication>
#include <QClipboard>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

#include "ui/report_delegate.h"
#include "ui/row_numbers.h"

namespace vrel {

namespace {

// Every row has this height until the user changes one: measuring a million rows takes too long.
int usualRowHeight(const QFontMetrics& metrics) {
  return metrics.height() + metrics.height() / 3;
}

// A wheel event that turns the other way of the two.
QWheelEvent turnedSideways(const QWheelEvent& event) {
  return QWheelEvent(event.position(), event.globalPosition(), event.pixelDelta().transposed(),
                     event.angleDelta().transposed(), event.buttons(),
                     event.modifiers() & ~Qt::ShiftModifier, event.phase(), event.inverted(),
                     event.source());
}

}  // namespace

DataTable::DataTable(ReportTableModel& report, ReportPart part, QWidget* parent)
    : QTableView(parent),
      heading_(new ReportHeader(this)),
      part_(new ColumnRangeModel(report, part, this)) {
  setHorizontalHeader(heading_);
  setVerticalHeader(new RowNumbers(this));
  setItemDelegate(new ReportDelegate(this));
  setWordWrap(false);
  // Keys and double clicks open the editor here, other ways of typing by the toolkit.
  setEditTriggers(QAbstractItemView::AnyKeyPressed);
  setSelectionMode(QAbstractItemView::ContiguousSelection);
  setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  setFrameShape(QFrame::NoFrame);
  sizeRows();
  setModel(part_);
  connect(part_, &QAbstractItemModel::modelAboutToBeReset, this, &DataTable::giveUpEditor);
  // Rows and columns are selected in both tables, and not by each for itself.
  for (const QHeaderView* header : {static_cast<QHeaderView*>(heading_), verticalHeader()}) {
    disconnect(header, SIGNAL(sectionPressed(int)), this, nullptr);
    disconnect(header, SIGNAL(sectionEntered(int)), this, nullptr);
    disconnect(header, SIGNAL(sectionHandleDoubleClicked(int)), this, nullptr);
  }
  connect(heading_, &QHeaderView::sectionResized, this,
          [this](int column, int, int width) { takeColumnWidth(column, width); });
  connect(verticalHeader(), &QHeaderView::sectionResized, this, &DataTable::takeRowHeight);
  heading_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(heading_, &QWidget::customContextMenuRequested, this, &DataTable::requestColumnMenu);
  connect(this, qOverload<int, int>(&DataTable::currentChanged), this,
          &DataTable::slot_CurrentChanged);
  connect(this, &DataTable::valueChanged, this, &DataTable::slot_ValueChanged);
  connect(this, &DataTable::contextMenuRequested, this, &DataTable::slot_CopyPasteMenuRequested);
  connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this,
          &DataTable::clipboardChanged);
  clipboardChanged();
}

void DataTable::keyboardSearch(const QString&) {}

void DataTable::selectAll() {
  emit selectAllRequested();
}

// A new layout throws the editor away. The toolkit would let the keyboard go on as by the Tab key,
// and does so as soon as the heading has another number of columns.
void DataTable::giveUpEditor() {
  const bool hadKeyboard = editor_ != nullptr && editor_->hasFocus();
  editor_ = nullptr;
  if (hadKeyboard) {
    setFocus();
  }
}

void DataTable::reset() {
  if (!committing_) {
    edited_.reset();
  }
  QTableView::reset();
}

void DataTable::slot_CurrentChanged(int row, int column) {
  // A report that is laid out again by an edit passes through other cells.
  if (!committing_ && edited_ != TablePlace{row, column}) {
    edited_.reset();
  }
}

void DataTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  // The current cell is framed, whatever is selected.
  update(previous);
  update(current);
  if (current.isValid()) {
    emit currentChanged(current.row(), current.column());
  }
}

QModelIndex DataTable::nearestCell(QPoint place) const {
  const QRect seen = viewport()->rect();
  const int x = std::clamp(place.x(), seen.left(), seen.right());
  const int y = std::clamp(place.y(), seen.top(), seen.bottom());
  const int row = rowAt(y);
  const int column = columnAt(x);
  return model()->index(row < 0 ? model()->rowCount() - 1 : row,
                        column < 0 ? model()->columnCount() - 1 : column);
}

QModelIndex DataTable::anchorOfSelection() const {
  const QModelIndex current = currentIndex();
  const QItemSelection selection = selectionModel()->selection();
  if (!current.isValid() || selection.size() != 1) {
    return current;
  }
  const QItemSelectionRange& range = selection.first();
  return model()->index(current.row() == range.top() ? range.bottom() : range.top(),
                        current.column() == range.left() ? range.right() : range.left());
}

void DataTable::focusInEvent(QFocusEvent* event) {
  if (currentIndex().isValid()) {
    QTableView::focusInEvent(event);
    return;
  }
  // The toolkit would go to the first cell.
  viewport()->update();
  // A mouse button that is pressed may yet take the cursor here.
  if (event->reason() != Qt::MouseFocusReason) {
    emit cursorElsewhere();
  }
}

void DataTable::mousePressEvent(QMouseEvent* event) {
  mouseAt_ = event->position().toPoint();
  pressed_ = indexAt(mouseAt_);
  const bool right = event->button() == Qt::RightButton;
  if (right && pressed_.isValid() && selectionModel()->isSelected(pressed_)) {
    // The menu is for what is selected.
    event->accept();
  } else {
    const bool extends = event->modifiers().testFlag(Qt::ShiftModifier) &&
                         event->button() == Qt::LeftButton && currentIndex().isValid();
    anchor_ = extends ? anchorOfSelection() : QModelIndex(pressed_);
    QTableView::mousePressEvent(event);
  }
  if (!currentIndex().isValid()) {
    emit cursorElsewhere();
  }
}

void DataTable::mouseMoveEvent(QMouseEvent* event) {
  mouseAt_ = event->position().toPoint();
  QTableView::mouseMoveEvent(event);
}

void DataTable::mouseReleaseEvent(QMouseEvent* event) {
  const QModelIndex index = indexAt(event->position().toPoint());
  const bool click = index.isValid() && index == pressed_;
  pressed_ = QModelIndex();
  QTableView::mouseReleaseEvent(event);
  if (click) {
    emit clicked(index.row(), index.column(), static_cast<int>(event->button()),
                 event->position().toPoint());
  }
}

void DataTable::mouseDoubleClickEvent(QMouseEvent* event) {
  QTableView::mouseDoubleClickEvent(event);
  if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()) == currentIndex()) {
    editCurrentCell();
  }
}

void DataTable::setSelection(const QRect&, QItemSelectionModel::SelectionFlags command) {
  const QModelIndex target = nearestCell(mouseAt_);
  if (command == QItemSelectionModel::NoUpdate || !target.isValid()) {
    return;
  }
  const QModelIndex anchor = anchor_.isValid() ? QModelIndex(anchor_) : target;
  const QModelIndex first = model()->index(std::min(anchor.row(), target.row()),
                                           std::min(anchor.column(), target.column()));
  const QModelIndex last = model()->index(std::max(anchor.row(), target.row()),
                                          std::max(anchor.column(), target.column()));
  selectionModel()->select(QItemSelection(first, last), QItemSelectionModel::ClearAndSelect);
}

QItemSelectionModel::SelectionFlags DataTable::selectionCommand(const QModelIndex& index,
                                                                const QEvent* event) const {
  if (event == nullptr) {
    return QItemSelectionModel::ClearAndSelect;
  }
  // What was selected by pressing and moving stays so on release.
  const bool selects = index.isValid() && (event->type() == QEvent::MouseButtonPress ||
                                           event->type() == QEvent::MouseMove);
  return selects ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

// Touch pads and fine wheels send many small turns for one notch.
void DataTable::zoomByWheel(int turn) {
  const bool turnedBack = (turn > 0) != (zoomTurn_ > 0);
  zoomTurn_ = turnedBack ? turn : zoomTurn_ + turn;
  const int steps = zoomTurn_ / QWheelEvent::DefaultDeltasPerStep;
  zoomTurn_ %= QWheelEvent::DefaultDeltasPerStep;
  if (steps != 0) {
    emit zoomRequested(steps);
  }
}

void DataTable::wheelEvent(QWheelEvent* event) {
  if (event->modifiers().testFlag(Qt::ControlModifier)) {
    zoomByWheel(event->angleDelta().y());
    event->accept();
    return;
  }
  const bool vertical = event->angleDelta().x() == 0;
  if (event->modifiers().testFlag(Qt::ShiftModifier) && vertical) {
    QWheelEvent sideways = turnedSideways(*event);
    QTableView::wheelEvent(&sideways);
    event->accept();
    return;
  }
  QTableView::wheelEvent(event);
}

void DataTable::setColumnWidths(const std::vector<int>& widths) {
  if (widths.empty()) {
    return;
  }
  // With updates on, the header would look up its sections' places after every single change.
  heading_->setUpdatesEnabled(false);
  sizing_ = true;
  const int columns = heading_->count();
  for (int column = 0; column < columns; ++column) {
    heading_->resizeSection(column, widths[static_cast<std::size_t>(column) % widths.size()]);
  }
  for (const auto& [column, width] : userWidths_) {
    if (column < columns) {
      heading_->resizeSection(column, width * zoom_ / 10'000);
    }
  }
  sizing_ = false;
  heading_->setUpdatesEnabled(true);
}

void DataTable::setUserWidth(int column, int width) {
  heading_->resizeSection(column, width);
}

void DataTable::setUserHeight(int row, int height) {
  userHeights_[row] = height * 10'000 / zoom_;
  sizing_ = true;
  verticalHeader()->resizeSection(row, height);
  sizing_ = false;
}

void DataTable::forgetUserSizes() {
  userWidths_.clear();
  if (!userHeights_.empty()) {
    userHeights_.clear();
    sizeRows();
  }
}

void DataTable::setZoom(int percent) {
  zoom_ = percent;
  QFont scaled = parentWidget()->font();
  if (scaled.pointSizeF() > 0) {
    scaled.setPointSizeF(scaled.pointSizeF() * percent / 100);
  } else {
    scaled.setPixelSize(std::max(1, scaled.pixelSize() * percent / 100));
  }
  setFont(scaled);
  sizeRows();
}

void DataTable::sizeRows() {
  QHeaderView* rows = verticalHeader();
  sizing_ = true;
  {
    // There would be a signal for each of a million rows.
    const QSignalBlocker quiet(rows);
    rows->setMinimumSectionSize(fontMetrics().height());
    rows->setDefaultSectionSize(usualRowHeight(fontMetrics()));
    for (const auto& [row, height] : userHeights_) {
      if (row < rows->count()) {
        rows->resizeSection(row, height * zoom_ / 10'000);
      }
    }
  }
  sizing_ = false;
  doItemsLayout();
}

void DataTable::takeColumnWidth(int column, int width) {
  if (!sizing_) {
    userWidths_[column] = width * 10'000 / zoom_;
  }
}

void DataTable::takeRowHeight(int row, int oldHeight, int newHeight) {
  if (!sizing_) {
    userHeights_[row] = newHeight * 10'000 / zoom_;
    emit rowResized(row, oldHeight, newHeight);
  }
}

}  // namespace vrel
