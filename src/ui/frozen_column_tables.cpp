#include "ui/frozen_column_tables.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/column_widths.h"

namespace vrel {

namespace {

// Part of the width, in percent, beyond which the labels scroll so that data stay in sight.
constexpr int kLargestFrozenPart = 60;

constexpr int kUsualZoom = 100;
constexpr int kLeastZoom = 50;
constexpr int kMostZoom = 300;
constexpr int kZoomStep = 10;

ReportColumns columnsOf(const ReportTableModel& report) {
  const ReportGrid& grid = report.grid();
  return {grid.xFields, grid.yFields, grid.dataFields, grid.dataInColumns, report.columnCount()};
}

bool takesTab(const QWidget& widget) {
  return (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus && widget.isVisible() &&
         widget.isEnabled() && widget.focusProxy() == nullptr;
}

template <typename Layout>
Layout* newLayout(const char* name) {
  auto* layout = new Layout;
  layout->setObjectName(QLatin1String(name));
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  return layout;
}

}  // namespace

void FrozenColumnTableFrame::resizeEvent(QResizeEvent* event) {
  QFrame::resizeEvent(event);
  emit resized();
}

FrozenColumnTablesImpl::FrozenColumnTablesImpl(ReportTableModel& report, QWidget* parent)
    : QWidget(parent),
      report_(report),
      frame_(new FrozenColumnTableFrame(this)),
      frozen_(new DataTable(report, ReportPart::Labels, frame_)),
      regular_(new DataTable(report, ReportPart::Data, frame_)),
      barFiller_(new QWidget(frame_)),
      selection_(new GridSelection(report, *frozen_, *regular_, this)) {
  frame_->setObjectName(QStringLiteral("Frozen COlumn Frame"));
  frame_->setFrameStyle(static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Sunken));
  frozen_->setObjectName(QStringLiteral("_frozenColumnTable"));
  frozen_->setAccessibleName(tr("Row labels"));
  frozen_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  regular_->setObjectName(QStringLiteral("_regularTable"));
  regular_->setAccessibleName(tr("Report data"));
  setFocusProxy(regular_);
  buildLayout();
  connectTables();
  fitToReport();
}

void FrozenColumnTablesImpl::buildLayout() {
  auto* left = newLayout<QVBoxLayout>("_lTableLayout");
  left->addWidget(frozen_);
  left->addWidget(barFiller_);
  barFiller_->hide();
  auto* tables = newLayout<QHBoxLayout>("_tableLayout");
  tables->addLayout(left);
  tables->addWidget(regular_, 1);
  frame_->setLayout(tables);
  auto* top = newLayout<QVBoxLayout>("_topLayout");
  top->addWidget(frame_);
  setLayout(top);
  setTabOrder(frozen_, regular_);
}

void FrozenColumnTablesImpl::connectTables() {
  QScrollBar* frozenBar = frozen_->verticalScrollBar();
  QScrollBar* regularBar = regular_->verticalScrollBar();
  connect(regularBar, &QScrollBar::valueChanged, frozenBar, &QScrollBar::setValue);
  connect(frozenBar, &QScrollBar::valueChanged, regularBar, &QScrollBar::setValue);
  for (DataTable* table : {frozen_, regular_}) {
    connect(table, &DataTable::rowResized, this, &FrozenColumnTablesImpl::sizeHandler);
    connect(table->horizontalScrollBar(), &QScrollBar::rangeChanged, this,
            &FrozenColumnTablesImpl::alignScrollBars);
    connect(table, qOverload<int, int, int, const QPoint&>(&DataTable::clicked), this,
            &FrozenColumnTablesImpl::ensureCellEditable);
    connectRequests(*table);
    connectHeadings(*table);
  }
  connect(selection_, &GridSelection::changed, this, &FrozenColumnTablesImpl::followSelection);
  connect(frozen_->heading(), &QHeaderView::sectionResized, this,
          &FrozenColumnTablesImpl::fitFrozenTable);
  connect(frame_, &FrozenColumnTableFrame::resized, this, &FrozenColumnTablesImpl::fitFrozenTable);
}

void FrozenColumnTablesImpl::connectRequests(DataTable& table) {
  connect(&table, &DataTable::moveRequested, this,
          [this, &table](GridMove way, bool extends) { move(table, way, extends); });
  connect(&table, &DataTable::selectAllRequested, selection_, &GridSelection::chooseAll);
  connect(&table, &DataTable::lineSelectionRequested, this, [this](Qt::Orientation lines) {
    lines == Qt::Horizontal ? selection_->chooseRows() : selection_->chooseColumns();
  });
  connect(&table, &DataTable::cursorElsewhere, this, [this] { activeTable()->setFocus(); });
  connect(&table, &DataTable::leaveRequested, this, &FrozenColumnTablesImpl::leave);
  connect(&table, &DataTable::hideToggled, this, &FrozenColumnTablesImpl::hideToggled);
  connect(&table, &DataTable::zoomRequested, this,
          [this](int steps) { setZoom(zoom_ + steps * kZoomStep); });
  connect(&table, &DataTable::zoomResetRequested, this, [this] { setZoom(kUsualZoom); });
}

void FrozenColumnTablesImpl::connectHeadings(DataTable& table) {
  const auto extends = [] {
    return QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier);
  };
  const auto columnOf = [&table](int section) { return table.part().reportColumn(section); };
  connect(table.heading(), &QHeaderView::sectionPressed, this,
          [=, this](int section) { selection_->pressColumn(columnOf(section), extends()); });
  connect(table.heading(), &QHeaderView::sectionEntered, this,
          [=, this](int section) { selection_->pressColumn(columnOf(section), true); });
  connect(table.heading(), &QHeaderView::sectionHandleDoubleClicked, this,
          [this, &table](int section) { autosize(table, section); });
  connect(table.verticalHeader(), &QHeaderView::sectionPressed, this,
          [=, this](int row) { selection_->pressRow(static_cast<std::size_t>(row), extends()); });
  connect(table.verticalHeader(), &QHeaderView::sectionEntered, this,
          [this](int row) { selection_->pressRow(static_cast<std::size_t>(row), true); });
}

void FrozenColumnTablesImpl::setCurrentPlace(GridPlace place) {
  selection_->setPlace(place);
  const DataTable* table = activeTable();
  activeTable()->scrollTo(table->currentIndex());
}

GridShape FrozenColumnTablesImpl::shape() const {
  const int first = regular_->rowAt(0);
  const int last = regular_->rowAt(regular_->viewport()->height() - 1);
  const int shown = last < 0 ? report_.rowCount() - first : last - first;
  return {.rows = static_cast<std::size_t>(report_.rowCount()),
          .columns = static_cast<std::size_t>(report_.columnCount()),
          .labelColumns = static_cast<std::size_t>(report_.labelColumns()),
          .pageRows = static_cast<std::size_t>(std::max(1, shown - 1)),
          .isFilled = [this](GridPlace place) {
            return report_.isFilled(static_cast<int>(place.row), static_cast<int>(place.column));
          }};
}

void FrozenColumnTablesImpl::move(const DataTable& table, GridMove way, bool extends) {
  const auto from = selection_->place();
  if (!from || &table != activeTable()) {
    return;
  }
  const GridShape report = shape();
  const GridPlace to = placeAfter(report, *from, way, extends);
  if (way == GridMove::PageDown || way == GridMove::PageUp) {
    // The page turns, and the cursor keeps its place in the window.
    const int rows = static_cast<int>(report.pageRows);
    QScrollBar* bar = regular_->verticalScrollBar();
    bar->setValue(bar->value() + (way == GridMove::PageDown ? rows : -rows));
  }
  extends ? selection_->extendTo(to) : selection_->setPlace(to);
  activeTable()->scrollTo(activeTable()->currentIndex());
}

void FrozenColumnTablesImpl::leave(bool forth) {
  QWidget* next = this;
  do {
    next = forth ? next->nextInFocusChain() : next->previousInFocusChain();
  } while (next != this && (isAncestorOf(next) || !takesTab(*next)));
  if (next != this) {
    next->setFocus(forth ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  }
}

void FrozenColumnTablesImpl::followSelection() {
  DataTable* active = activeTable();
  const QWidget* focus = QApplication::focusWidget();
  if (focus != nullptr && isAncestorOf(focus) && focus != active && !active->isAncestorOf(focus)) {
    active->setFocus();
  }
  setFocusProxy(active);
  emit selectionChanged();
}

void FrozenColumnTablesImpl::ensureCellEditable(int row, int column, int button, const QPoint&) {
  auto* table = qobject_cast<DataTable*>(sender());
  if (table == nullptr || button != Qt::LeftButton || table->cellEditor() != nullptr) {
    return;
  }
  table->scrollTo(table->model()->index(row, column));
  table->setFocus();
}

bool FrozenColumnTablesImpl::endEditing() {
  // Labels are not edited.
  return regular_->endEditing();
}

QString FrozenColumnTablesImpl::cellText(int row, int reportColumn) const {
  const int frozenColumns = hasFrozen_ ? frozen_->model()->columnCount() : 0;
  const bool inFrozen = reportColumn < frozenColumns;
  const QAbstractItemModel* model = (inFrozen ? frozen_ : regular_)->model();
  return model->index(row, inFrozen ? reportColumn : reportColumn - frozenColumns)
      .data()
      .toString();
}

void FrozenColumnTablesImpl::fitToReport() {
  const ReportColumns columns = columnsOf(report_);
  if (columns != columns_) {
    columns_ = columns;
    frozen_->forgetUserSizes();
    regular_->forgetUserSizes();
    selection_->restart({0, static_cast<std::size_t>(report_.labelColumns())});
    regular_->scrollToTop();
    regular_->horizontalScrollBar()->setValue(0);
  } else {
    selection_->restore();
  }
  hasFrozen_ = report_.labelColumns() > 0;
  frozen_->setVisible(hasFrozen_);
  // The row numbers stand at the far left, once.
  regular_->verticalHeader()->setVisible(!hasFrozen_);
  const int lines = report_.headingLines();
  frozen_->heading()->setLineCount(lines);
  regular_->heading()->setLineCount(lines);
  fitColumns();
}

void FrozenColumnTablesImpl::fitColumns() {
  const ColumnWidths widths =
      sampleColumnWidths(report_.grid(), report_.settings(), regular_->font());
  frozen_->setColumnWidths(widths.labels);
  regular_->setColumnWidths(widths.data);
  fitFrozenTable();
}

void FrozenColumnTablesImpl::autosize(DataTable& table, int column) {
  table.setUserWidth(column, fullColumnWidth(report_.grid(), report_.settings(), table.font(),
                                             table.part().reportColumn(column)));
}

void FrozenColumnTablesImpl::setZoom(int percent) {
  const int allowed = std::clamp(percent, kLeastZoom, kMostZoom);
  if (allowed != zoom_) {
    endEditing();
    QScrollBar* sideways = regular_->horizontalScrollBar();
    const int left = sideways->value() * allowed / zoom_;
    zoom_ = allowed;
    applyZoom();
    sideways->setValue(left);
    emit zoomChanged(zoom_);
  }
}

void FrozenColumnTablesImpl::applyZoom() {
  const int row = regular_->verticalScrollBar()->value();
  for (DataTable* table : {frozen_, regular_}) {
    table->setZoom(zoom_);
    table->heading()->setLineCount(report_.headingLines());
  }
  fitColumns();
  regular_->verticalScrollBar()->setValue(row);
}

void FrozenColumnTablesImpl::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) {
    applyZoom();
  }
}

void FrozenColumnTablesImpl::sizeHandler(int section, int, int newSize) {
  DataTable* other = sender() == frozen_ ? regular_ : frozen_;
  other->setUserHeight(section, newSize);
}

void FrozenColumnTablesImpl::fitFrozenTable() {
  // Without rows the hint may be invalid, which is -1.
  const int numbers = std::max(0, frozen_->verticalHeader()->sizeHint().width());
  const int wanted = numbers + frozen_->heading()->length() + 2 * frozen_->frameWidth();
  frozen_->setFixedWidth(std::min(wanted, frame_->width() * kLargestFrozenPart / 100));
}

// With a horizontal scroll bar in one table only, the other would show more rows, and the two
// could not scroll to the same last row.
void FrozenColumnTablesImpl::alignScrollBars() {
  const bool frozenNeeds = hasFrozen_ && frozen_->horizontalScrollBar()->maximum() > 0;
  const bool anyNeeds = frozenNeeds || regular_->horizontalScrollBar()->maximum() > 0;
  const auto policy = [](bool on) { return on ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff; };
  frozen_->setHorizontalScrollBarPolicy(policy(frozenNeeds));
  regular_->setHorizontalScrollBarPolicy(policy(anyNeeds));
  barFiller_->setFixedHeight(regular_->horizontalScrollBar()->sizeHint().height());
  barFiller_->setVisible(hasFrozen_ && anyNeeds && !frozenNeeds);
}

}  // namespace vrel
