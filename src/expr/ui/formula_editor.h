// What the lists of formulas need of the editors that they open.
#pragma once

#include <QDialog>
#include <optional>

namespace vrel {

class FormulaEditor : public QDialog {
  Q_OBJECT

 public:
  using QDialog::QDialog;

  /// Shows a field's formulas, or an empty form for a new field, and brings the editor to the
  /// front.
  virtual void edit(std::optional<int> field) = 0;
  /// The field that is edited; nothing for a new one.
  virtual std::optional<int> field() const = 0;
  /// Whether the editor is open and the user has written something other than what was shown.
  virtual bool isModified() const = 0;
  /// The view's fields are others: finds the edited one among them, and shows it as it is now
  /// unless the user has written something.
  virtual void followView() = 0;

 signals:
  /// What is written can be taken.
  void apply();

 public slots:
  /// Checks what is written and asks for it to be taken; what is wrong is told.
  virtual void slotApply() = 0;
};

}  // namespace vrel
