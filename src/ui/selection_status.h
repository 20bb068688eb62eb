// What the selected cells come to, for the status bar.
#pragma once

#include <QLabel>
#include <QTimer>
#include <optional>

#include "model/grid_area.h"
#include "model/grid_statistics.h"
#include "ui/report_table_model.h"

namespace vrel {

/// Shows count, sum, average, minimum and maximum of several cells and the whole value of a single
/// one. Large selections are computed in idle moments; text that is too long ends in "…".
class SelectionStatus : public QLabel {
  Q_OBJECT

 public:
  /// The model outlives the label. Another layout of the report drops the selection; changed values
  /// are computed anew.
  explicit SelectionStatus(const ReportTableModel& model, QWidget* parent = nullptr);

  /// The cells that are selected now; nothing for none.
  void setSelection(std::optional<GridArea> area);

  /// Whether the text is still to come.
  bool isCounting() const { return timer_.isActive(); }

  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void restart();
  void computeSlice();
  void say(const QString& text);
  QString valueText(GridPlace place) const;
  QString resultText(const StatisticsResult& result) const;
  QString countText(std::uint64_t count) const;

  const ReportTableModel& model_;
  std::optional<GridArea> selection_;
  GridStatistics statistics_;
  QTimer timer_;
};

}  // namespace vrel
