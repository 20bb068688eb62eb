// The list of all functions that formulas may call.
#pragma once

#include <QDialog>
#include <memory>
#include <string>

#include "expr/function_registry.h"

class QTreeWidgetItem;

namespace Ui {
class FunctionsDialog;
}

namespace vrel {

class FunctionsDialog : public QDialog {
  Q_OBJECT

 public:
  /// Lists the functions that there are now, in the registry's order.
  FunctionsDialog(const FunctionRegistry& functions, QWidget* parent);
  ~FunctionsDialog() override;

  /// Shows the dialog, or brings it to the front, ready for another filter.
  void present();

 signals:
  /// A call of a function is to be put into a formula.
  void chosen(const std::string& function);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void showMatches(const QString& text);
  void choose(QTreeWidgetItem* item);

  std::unique_ptr<Ui::FunctionsDialog> form_;
};

}  // namespace vrel
