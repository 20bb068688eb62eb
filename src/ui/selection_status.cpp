#include "ui/selection_status.h"

#include <QElapsedTimer>
#include <QPainter>
#include <QStringList>
#include <QStyle>
#include <algorithm>

#include "expr/ui/to_text.h"
#include "model/edit_text.h"
#include "ui/tool_tip.h"

namespace vrel {

namespace {

// A slice ends after this time; its last step may take a little longer.
constexpr qint64 kSliceMilliseconds = 4;
constexpr std::size_t kCellsPerStep = 2000;
constexpr qsizetype kLongestText = 500;

bool isOneCell(const GridArea& area) {
  return area.rows == 1 && area.columns == 1;
}

}  // namespace

SelectionStatus::SelectionStatus(const ReportTableModel& model, QWidget* parent)
    : QLabel(parent), model_(model) {
  setObjectName(QStringLiteral("selectionStatus"));
  setTextFormat(Qt::PlainText);
  setAccessibleDescription(tr("What the selected cells come to"));
  timer_.setInterval(0);
  connect(&timer_, &QTimer::timeout, this, &SelectionStatus::computeSlice);
  connect(&model, &QAbstractItemModel::modelAboutToBeReset, this,
          [this] { setSelection(std::nullopt); });
  connect(&model, &QAbstractItemModel::dataChanged, this, &SelectionStatus::restart);
}

void SelectionStatus::setSelection(std::optional<GridArea> area) {
  selection_ = area;
  restart();
}

QSize SelectionStatus::minimumSizeHint() const {
  return {0, QLabel::minimumSizeHint().height()};
}

void SelectionStatus::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QRect rect = contentsRect();
  style()->drawItemText(&painter, rect, static_cast<int>(alignment()), palette(), isEnabled(),
                        fontMetrics().elidedText(text(), Qt::ElideRight, rect.width()),
                        foregroundRole());
}

void SelectionStatus::restart() {
  timer_.stop();
  if (!selection_ || selection_->rows == 0 || selection_->columns == 0) {
    say({});
  } else if (isOneCell(*selection_)) {
    say(valueText({selection_->firstRow, selection_->firstColumn}));
  } else {
    statistics_ = startStatistics(model_.grid(), *selection_);
    timer_.start();
  }
}

void SelectionStatus::computeSlice() {
  const std::size_t columns = std::max<std::size_t>(1, statistics_.area.columns);
  const std::size_t rowsPerStep = std::max<std::size_t>(1, kCellsPerStep / columns);
  QElapsedTimer time;
  time.start();
  while (!statistics_.isComplete() && time.elapsed() < kSliceMilliseconds) {
    advance(statistics_, model_.grid(), rowsPerStep);
  }
  if (statistics_.isComplete()) {
    timer_.stop();
    say(resultText(resultOf(statistics_)));
  } else {
    say(tr("Counting…"));
  }
}

void SelectionStatus::say(const QString& text) {
  if (text != this->text()) {
    setText(text);
    setToolTip(text.isEmpty() ? QString() : plainToolTip(text));
  }
}

// Numbers with all their digits, whatever precision the report has.
QString SelectionStatus::valueText(GridPlace place) const {
  const ReportGrid& grid = model_.grid();
  const FormatSettings& settings = model_.settings();
  std::optional<CellRef> value = cellAt(grid, place.row, place.column);
  if (!value) {
    value = labelAt(grid, place.row, place.column);
  }
  std::string text;
  if (value) {
    text = editText(grid.table->value(value->tuple, value->field), settings);
  } else if (const auto number = summaryAt(grid, place.row, place.column);
             number && *number < kUnbounded) {
    text = exactNumber(*number);
  } else {
    text = cellText(grid, settings, place.row, place.column);
  }
  return toText(text).left(kLongestText).simplified();
}

QString SelectionStatus::resultText(const StatisticsResult& result) const {
  const auto number = [this](double value) {
    return toText(formatNumber(value, model_.settings()));
  };
  QStringList parts = {tr("Count: %1").arg(countText(result.cells))};
  if (result.numbers > 0) {
    parts << tr("Sum: %1").arg(number(result.sum)) << tr("Average: %1").arg(number(result.average))
          << tr("Minimum: %1").arg(number(result.minimum))
          << tr("Maximum: %1").arg(number(result.maximum));
  }
  return parts.join(QStringLiteral("   "));
}

QString SelectionStatus::countText(std::uint64_t count) const {
  FormatSettings settings = model_.settings();
  settings.precision = 0;
  settings.zeroUnderscore = false;
  return toText(formatNumber(static_cast<double>(count), settings));
}

}  // namespace vrel
