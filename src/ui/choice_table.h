// A table of names, each with one or more choices among a few texts.
#pragma once

#include <QAbstractTableModel>
#include <QTableView>
#include <functional>
#include <vector>

namespace vrel {

/// One choice of a row.
struct ChoiceCell {
  QStringList texts;
  /// Position among the texts; -1 for none of them.
  int chosen = -1;
};

struct ChoiceRow {
  QString name;
  std::vector<ChoiceCell> cells;
};

/// The names are the first column, the choices follow. What leaves no choice cannot be changed.
class ChoiceTableModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  /// Takes the choice of a row's cell; false when it is refused.
  using Choose = std::function<bool(int row, int cell, int choice)>;

  explicit ChoiceTableModel(QObject* parent = nullptr);

  /// `headings` are those of all columns; every row has a cell for each but the first.
  void setRows(QStringList headings, std::vector<ChoiceRow> rows);
  /// Is asked at each change; without it every one is taken.
  void setChoose(Choose choose) { choose_ = std::move(choose); }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const ChoiceCell* cellAt(const QModelIndex& index) const;

  QStringList headings_;
  std::vector<ChoiceRow> rows_;
  Choose choose_;
};

/// Shows such a model. A click, Space, F2 or a first letter opens a cell's choices.
class ChoiceTableView : public QTableView {
  Q_OBJECT

 public:
  explicit ChoiceTableView(QWidget* parent = nullptr);

  void setModel(QAbstractItemModel* model) override;
  QSize sizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void choose(const QModelIndex& index);
};

}  // namespace vrel
