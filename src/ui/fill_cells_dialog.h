// The dialog that fills many cells with one value. It stays beside the report.
#pragma once

#include <QDialog>
#include <functional>
#include <memory>
#include <string>

#include "expr/fill_cells.h"

namespace Ui {
class FillCellsDialog;
}

namespace vrel {

class FillCellsDialogImpl : public QDialog {
  Q_OBJECT

 public:
  using Fill = std::function<void(const FillRequest& request)>;

  explicit FillCellsDialogImpl(Fill fill, QWidget* parent = nullptr);
  ~FillCellsDialogImpl() override;

  /// The rows and data columns that there are to choose from.
  void setSize(int rows, int columns);
  /// Chooses a row and a column, counted from 1.
  void setPlace(int row, int column);
  void setText(const QString& text);

 public slots:
  void slotApply();

 private:
  FillArea area() const;
  void enableControls();

  Fill fill_;
  std::unique_ptr<Ui::FillCellsDialog> form_;
};

}  // namespace vrel
