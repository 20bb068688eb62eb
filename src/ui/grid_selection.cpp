#include "ui/grid_selection.h"

#include <algorithm>

namespace vrel {

namespace {

// From the lower of two positions to the higher.
struct Span {
  std::size_t first;
  std::size_t count;
};

Span spanOf(std::size_t a, std::size_t b) {
  return {std::min(a, b), std::max(a, b) - std::min(a, b) + 1};
}

// The ranges of a selection as one; the toolkit may part it.
QItemSelectionRange wholeRange(const QItemSelection& selection, const QAbstractItemModel& model) {
  int top = INT_MAX;
  int left = INT_MAX;
  int bottom = -1;
  int right = -1;
  for (const QItemSelectionRange& range : selection) {
    top = std::min(top, range.top());
    left = std::min(left, range.left());
    bottom = std::max(bottom, range.bottom());
    right = std::max(right, range.right());
  }
  return bottom < 0 ? QItemSelectionRange()
                    : QItemSelectionRange(model.index(top, left), model.index(bottom, right));
}

}  // namespace

GridSelection::GridSelection(const ReportTableModel& report, DataTable& labels, DataTable& data,
                             QObject* parent)
    : QObject(parent), report_(report), labels_(labels), data_(data) {
  // Until the new layout is shown the tables forget where they were, and are not listened to.
  connect(&report_, &QAbstractItemModel::modelAboutToBeReset, this, [this] { showing_ = true; });
  for (DataTable* table : {&labels_, &data_}) {
    connect(table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this, table] { adopt(*table); });
    connect(table->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this, table] { adopt(*table); });
  }
}

bool GridSelection::isEmpty() const {
  return report_.rowCount() == 0 || report_.columnCount() == 0;
}

std::optional<GridPlace> GridSelection::place() const {
  return isEmpty() ? std::nullopt : std::optional(state_.place);
}

std::optional<GridArea> GridSelection::block() const {
  return isEmpty() ? std::nullopt : std::optional(area());
}

DataTable& GridSelection::activeTable() const {
  return state_.place.column < labelCount() ? labels_ : data_;
}

GridArea GridSelection::area() const {
  const Span rows =
      state_.columns ? Span{0, rowCount()} : spanOf(state_.anchor.row, state_.place.row);
  const Span columns =
      state_.rows ? Span{0, columnCount()} : spanOf(state_.anchor.column, state_.place.column);
  return {rows.first, columns.first, rows.count, columns.count};
}

GridPlace GridSelection::placeOf(const DataTable& table, int row, int column) const {
  return {static_cast<std::size_t>(row), table.part().reportColumn(column)};
}

GridPlace GridSelection::inPartOf(GridPlace place, GridPlace part) const {
  const bool label = part.column < labelCount();
  const std::size_t first = label ? 0 : labelCount();
  const std::size_t end = label ? labelCount() : columnCount();
  return {std::min(place.row, rowCount() - 1), std::clamp(place.column, first, end - 1)};
}

void GridSelection::setPlace(GridPlace place) {
  showing_ = false;
  if (!isEmpty()) {
    const GridPlace inside = {std::min(place.row, rowCount() - 1),
                              std::min(place.column, columnCount() - 1)};
    set({.anchor = inside, .place = inside});
  }
}

void GridSelection::extendTo(GridPlace place) {
  if (!isEmpty()) {
    State state = state_;
    state.place = inPartOf(place, state.anchor);
    set(state);
  }
}

void GridSelection::pressRow(std::size_t row, bool extends) {
  if (isEmpty()) {
    return;
  }
  // The current cell is the first data cell, from which typing goes on.
  const GridPlace place = {row, std::min(labelCount(), columnCount() - 1)};
  const GridPlace anchor = {extends ? state_.anchor.row : row, place.column};
  set({.anchor = anchor, .place = place, .rows = true});
}

void GridSelection::pressColumn(std::size_t column, bool extends) {
  if (isEmpty()) {
    return;
  }
  const std::size_t anchor = extends ? state_.anchor.column : column;
  // The first row in sight, so that nothing scrolls.
  const auto row = static_cast<std::size_t>(std::max(data_.rowAt(0), 0));
  const GridPlace place = {row, column};
  set({.anchor = inPartOf({row, anchor}, place), .place = place, .columns = true});
}

void GridSelection::chooseRows() {
  State state = state_;
  state.rows = true;
  set(state);
}

void GridSelection::chooseColumns() {
  State state = state_;
  state.columns = true;
  set(state);
}

void GridSelection::chooseAll() {
  State state = state_;
  state.rows = state.columns = true;
  set(state);
}

void GridSelection::restart(GridPlace place) {
  state_ = {.anchor = place, .place = place};
  restore();
}

void GridSelection::restore() {
  showing_ = false;
  if (isEmpty()) {
    return;
  }
  State state = state_;
  state.place = {std::min(state.place.row, rowCount() - 1),
                 std::min(state.place.column, columnCount() - 1)};
  state.anchor = inPartOf(state.anchor, state.place);
  state_ = state;
  show();
  emit changed();
}

void GridSelection::set(const State& state) {
  const bool differs = state != state_;
  state_ = state;
  show();
  if (differs) {
    emit changed();
  }
}

void GridSelection::show() {
  if (isEmpty()) {
    return;
  }
  showing_ = true;
  showIn(&activeTable() == &labels_ ? data_ : labels_);
  showIn(activeTable());
  showing_ = false;
}

void GridSelection::showIn(DataTable& table) {
  const auto first = static_cast<std::size_t>(table.part().firstColumn());
  const std::size_t end = first + static_cast<std::size_t>(table.model()->columnCount());
  const GridArea chosen = area();
  const std::size_t left = std::max(first, chosen.firstColumn);
  const std::size_t right = std::min(end, chosen.endColumn());
  QItemSelection selection;
  if (left < right) {
    const auto cell = [&](std::size_t row, std::size_t column) {
      return table.model()->index(static_cast<int>(row), static_cast<int>(column - first));
    };
    selection.select(cell(chosen.firstRow, left), cell(chosen.endRow() - 1, right - 1));
  }
  const bool active = &table == &activeTable();
  // Whether to scroll there is for whoever moves the cursor to say.
  table.setAutoScroll(false);
  table.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
  if (active) {
    table.selectionModel()->setCurrentIndex(
        table.model()->index(static_cast<int>(state_.place.row),
                             static_cast<int>(state_.place.column - first)),
        QItemSelectionModel::NoUpdate);
  } else {
    table.selectionModel()->clearCurrentIndex();
  }
  table.setAutoScroll(true);
  // One of them is the report's place in the tab order.
  table.setFocusPolicy(active ? Qt::StrongFocus : Qt::ClickFocus);
}

void GridSelection::adopt(DataTable& table) {
  const QModelIndex current = table.currentIndex();
  if (showing_ || !current.isValid()) {
    return;
  }
  QItemSelectionRange range = wholeRange(table.selectionModel()->selection(), *table.model());
  if (!range.isValid()) {
    range = QItemSelectionRange(current);
  }
  if (!range.contains(current)) {
    // The other half of the change follows.
    return;
  }
  State state;
  state.place = placeOf(table, current.row(), current.column());
  state.anchor = placeOf(table, current.row() == range.top() ? range.bottom() : range.top(),
                         current.column() == range.left() ? range.right() : range.left());
  if (state == state_ && table.selectionModel()->hasSelection()) {
    return;
  }
  state_ = state;
  showing_ = true;
  showIn(&table == &labels_ ? data_ : labels_);
  showing_ = false;
  table.setFocusPolicy(Qt::StrongFocus);
  emit changed();
}

}  // namespace vrel
