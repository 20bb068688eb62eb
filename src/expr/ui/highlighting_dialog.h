// The list of the highlight formulas of a view's fields.
#pragma once

#include <memory>

#include "expr/ui/formula_list_dialog.h"
#include "expr/ui/highlight_edtr_view.h"

namespace Ui {
class HighlightingDialog;
}

namespace vrel {

class HighlightingDialogImpl : public FormulaListDialog {
  Q_OBJECT

 public:
  HighlightingDialogImpl(FormulaHost host, QWidget* parent);
  ~HighlightingDialogImpl() override;

 public slots:
  void slotEdit() override;

 protected:
  std::vector<FormulaRow> rows() const override;
  void takeEdited() override;

 private:
  std::unique_ptr<Ui::HighlightingDialog> form_;
  HighlightEdtrView* editor_;
};

}  // namespace vrel
