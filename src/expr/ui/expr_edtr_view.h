// The editor of one formula field.
#pragma once

#include <memory>
#include <optional>

#include "expr/formula_fields.h"
#include "expr/ui/formula_editor.h"
#include "expr/ui/formula_host.h"

namespace Ui {
class ExprEdtrViewBase;
}

namespace vrel {

class ExprEdtrView : public FormulaEditor {
  Q_OBJECT

 public:
  ExprEdtrView(FormulaHost host, QWidget* parent);
  ~ExprEdtrView() override;

  void edit(std::optional<int> field) override;
  std::optional<int> field() const override { return field_; }
  /// What the user has written.
  FormulaFieldText text() const;
  bool isModified() const override;
  /// A field that is gone is a new one from then on, so that nothing written is lost.
  void followView() override;
  void slotApply() override;

 private:
  void fill();
  bool acceptFormulas();
  bool acceptName();

  FormulaHost host_;
  std::unique_ptr<Ui::ExprEdtrViewBase> form_;
  std::optional<int> field_;
  // The field when it was shown, and that as the controls hold it.
  FormulaFieldText given_;
  FormulaFieldText shown_;
};

}  // namespace vrel
