// What the formula dialogs share with the window that shows them.
#pragma once

#include <QDialog>
#include <functional>

#include "base/notice.h"
#include "expr/function_registry.h"
#include "model/report_view.h"

namespace vrel {

/// What formula dialogs work on. Nothing is owned.
struct FormulaHost {
  ReportView& view;
  const FunctionRegistry& functions;
  /// The notice in force.
  Notice*& notice;
  /// Shows a dialog and waits until the user closes it.
  std::function<void(QDialog& dialog)> runDialog;
};

/// A change of a view's formulas that is decided on.
struct FormulaChange {
  /// Columns of the table come or go with it.
  bool movesColumns = false;
  /// Changes the view, and computes nothing; false when that was not possible and nothing changed.
  std::function<bool()> run = {};
};

}  // namespace vrel
