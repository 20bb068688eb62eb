// Cells of a table that are a choice among a few texts: they look and work like combo boxes, which
// are made only for the one that is being chosen in, so that thousands of rows open at once.
#pragma once

#include <QStyledItemDelegate>

namespace vrel {

class ChoiceDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  /// Role of the texts that can be chosen, a `QStringList`; cells without any are plain.
  static constexpr int kTextsRole = Qt::UserRole;
  /// Role of the chosen one's position; -1 for none.
  static constexpr int kChosenRole = Qt::UserRole + 1;

  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model,
                    const QModelIndex& index) const override;

 protected:
  bool eventFilter(QObject* editor, QEvent* event) override;

 private:
  void finish(QWidget* editor);
};

}  // namespace vrel
