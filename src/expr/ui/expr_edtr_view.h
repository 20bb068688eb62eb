// The editor of one formula field.
#pragma once

#include <QDialog>
#include <memory>
#include <optional>

#include "expr/formula_fields.h"
#include "expr/ui/formula_host.h"

namespace Ui {
class ExprEdtrViewBase;
}

namespace vrel {

class ExprEdtrView : public QDialog {
  Q_OBJECT

 public:
  ExprEdtrView(FormulaHost host, QWidget* parent);
  ~ExprEdtrView() override;

  /// Shows a formula field, or an empty form for a new one, and brings the editor to the front.
  void edit(std::optional<int> field);
  /// The field that is edited; nothing for a new one.
  std::optional<int> field() const { return field_; }
  /// What the user has written.
  FormulaFieldText text() const;
  /// Whether that is other than what was shown.
  bool isModified() const;
  /// The view's fields are others: finds the edited one among them by its name, and shows it as it
  /// is now unless the user has written something. One that is gone is a new one from then on, so
  /// that nothing written is lost.
  void followView();

 signals:
  /// What is written can be taken.
  void apply();

 public slots:
  /// Checks what is written and asks for it to be taken; what is wrong is told.
  void slotApply();

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
