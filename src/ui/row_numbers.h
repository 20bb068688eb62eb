// The numbers of a table's rows.
#pragma once

#include <QHeaderView>

namespace vrel {

class RowNumbers : public QHeaderView {
  Q_OBJECT

 public:
  explicit RowNumbers(QWidget* parent = nullptr);

 protected:
  void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;
  void initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const override;
};

}  // namespace vrel
