// The list of a view's formula fields.
#pragma once

#include <memory>

#include "expr/ui/expr_edtr_view.h"
#include "expr/ui/formula_list_dialog.h"

namespace Ui {
class ExpressionsDialog;
}

namespace vrel {

class ExpressionsDialogImpl : public FormulaListDialog {
  Q_OBJECT

 public:
  ExpressionsDialogImpl(FormulaHost host, QWidget* parent);
  ~ExpressionsDialogImpl() override;

 public slots:
  void slotEdit() override;
  void slotNew();
  void slotDelete();

 protected:
  std::vector<FormulaRow> rows() const override;
  void takeEdited() override;

 private:
  void buildActions();
  /// The selected field; without one the user is asked for a selection.
  std::optional<int> selectedOr(const QString& request) const;
  bool confirmDeletion(int field);

  std::unique_ptr<Ui::ExpressionsDialog> form_;
  ExprEdtrView* editor_;
};

}  // namespace vrel
