// The dialog over the classifications and types of the fields.
#pragma once

#include <QDialog>
#include <memory>
#include <vector>

#include "base/notice.h"
#include "model/field_classes.h"
#include "ui/choice_table.h"

namespace Ui {
class FieldDialog;
}

namespace vrel {

/// Ends as accepted when the user wants the classes to be taken; changes nothing itself.
class FieldDialogImpl : public QDialog {
  Q_OBJECT

 public:
  /// Everything given must outlive the dialog; `notice` is the notice in force.
  FieldDialogImpl(const Table& table, const FormatSettings& settings, Notice*& notice,
                  QWidget* parent = nullptr);
  ~FieldDialogImpl() override;

  /// The classes as they are chosen, in column order.
  const std::vector<FieldClass>& classes() const { return classes_; }

 public slots:
  /// Accepts, after asking where values would be lost.
  void slotApply();

 private:
  bool choose(int field, int cell, int choice);
  void warnOf(ClassRefusal refusal);
  QString questionAbout(const std::vector<LossyChange>& changes) const;

  const Table& table_;
  const FormatSettings& settings_;
  Notice*& notice_;
  std::unique_ptr<Ui::FieldDialog> form_;
  ChoiceTableModel* model_;
  std::vector<FieldClass> classes_;
};

}  // namespace vrel
