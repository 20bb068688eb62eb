// The editor of one field's highlight formula.
#pragma once

#include <QDialog>
#include <QMenu>
#include <cstddef>
#include <memory>
#include <string>

#include "expr/ui/formula_host.h"

namespace Ui {
class HighlightEdtrViewBase;
}

namespace vrel {

class HighlightEdtrView : public QDialog {
  Q_OBJECT

 public:
  HighlightEdtrView(FormulaHost host, QWidget* parent);
  ~HighlightEdtrView() override;

  /// Shows a field's highlight formula and brings the editor to the front.
  void edit(int field);
  int field() const { return field_; }
  /// What the user has written.
  std::string formula() const;
  /// Whether that is other than what was shown.
  bool isModified() const;
  /// The view's fields are others: finds the edited one among them, or closes. The formula is shown
  /// as it is now unless the user has written something.
  void followView();

 signals:
  /// What is written can be taken.
  void apply();

 public slots:
  /// Checks what is written and asks for it to be taken; what is wrong is told.
  void slotApply();

 private:
  void showField(int field);
  void fill();
  void offerSources();

  FormulaHost host_;
  std::unique_ptr<Ui::HighlightEdtrViewBase> form_;
  QMenu* sources_;
  int field_ = 0;
  std::string name_;
  std::size_t fieldCount_ = 0;
  // The field's formula when it was shown, and that as the control holds it.
  std::string given_;
  std::string shown_;
};

}  // namespace vrel
