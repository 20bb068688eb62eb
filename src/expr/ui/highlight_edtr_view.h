// The editor of one field's highlight formula.
#pragma once

#include <QMenu>
#include <cstddef>
#include <memory>
#include <string>

#include "expr/ui/formula_editor.h"
#include "expr/ui/formula_host.h"

namespace Ui {
class HighlightEdtrViewBase;
}

namespace vrel {

class HighlightEdtrView : public FormulaEditor {
  Q_OBJECT

 public:
  HighlightEdtrView(FormulaHost host, QWidget* parent);
  ~HighlightEdtrView() override;

  /// Only fields that are there can be highlighted.
  void edit(std::optional<int> field) override;
  std::optional<int> field() const override { return field_; }
  /// What the user has written.
  std::string formula() const;
  bool isModified() const override;
  /// The editor of a field that is gone closes.
  void followView() override;
  void slotApply() override;

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
