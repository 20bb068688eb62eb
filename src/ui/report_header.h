// The column headings of a table: several lines each, of the same height in both tables.
#pragma once

#include <QHeaderView>

namespace vrel {

class ReportHeader : public QHeaderView {
  Q_OBJECT

 public:
  explicit ReportHeader(QWidget* parent = nullptr);

  /// Lines for which every heading has room.
  void setLineCount(int lines);

  QSize sizeHint() const override;

 protected:
  void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;
  void initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const override;

 private:
  int lineCount_ = 1;
};

}  // namespace vrel
