#include "ui/frozen_column_tables.h"

#include <QHBoxLayout>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/column_widths.h"

namespace vrel {

namespace {

// Part of the width, in percent, beyond which the labels scroll so that data stay in sight.
constexpr int kLargestFrozenPart = 60;

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
      barFiller_(new QWidget(frame_)) {
  frame_->setObjectName(QStringLiteral("Frozen COlumn Frame"));
  frame_->setFrameStyle(static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Sunken));
  frozen_->setObjectName(QStringLiteral("_frozenColumnTable"));
  frozen_->setAccessibleName(tr("Row labels"));
  frozen_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  // Tab leads from the labels to the data; in the data it goes from cell to cell.
  frozen_->setTabKeyNavigation(false);
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
  for (const DataTable* table : {frozen_, regular_}) {
    connect(table->verticalHeader(), &QHeaderView::sectionResized, this,
            &FrozenColumnTablesImpl::sizeHandler);
    connect(table->horizontalScrollBar(), &QScrollBar::rangeChanged, this,
            &FrozenColumnTablesImpl::alignScrollBars);
  }
  connect(frozen_->heading(), &QHeaderView::sectionResized, this,
          &FrozenColumnTablesImpl::fitFrozenTable);
  connect(frame_, &FrozenColumnTableFrame::resized, this, &FrozenColumnTablesImpl::fitFrozenTable);
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
  hasFrozen_ = report_.labelColumns() > 0;
  frozen_->setVisible(hasFrozen_);
  // The row numbers stand at the far left, once.
  regular_->verticalHeader()->setVisible(!hasFrozen_);
  const int lines = report_.headingLines();
  frozen_->heading()->setLineCount(lines);
  regular_->heading()->setLineCount(lines);
  const ColumnWidths widths =
      sampleColumnWidths(report_.grid(), report_.settings(), regular_->font());
  frozen_->setColumnWidths(widths.labels);
  regular_->setColumnWidths(widths.data);
  fitFrozenTable();
}

void FrozenColumnTablesImpl::sizeHandler(int section, int, int newSize) {
  DataTable* other = sender() == frozen_->verticalHeader() ? regular_ : frozen_;
  other->verticalHeader()->resizeSection(section, newSize);
}

void FrozenColumnTablesImpl::fitFrozenTable() {
  const int wanted = frozen_->verticalHeader()->sizeHint().width() + frozen_->heading()->length() +
                     2 * frozen_->frameWidth();
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
