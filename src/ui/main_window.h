// The window of the `ui` command: its menus, and the report under its title and page tabs.
#pragma once

#include <QLabel>
#include <QMainWindow>
#include <functional>
#include <string>

#include "expr/open_view.h"
#include "output/print_report.h"
#include "ui/configure_desk.h"
#include "ui/editor.h"
#include "ui/file_dialog.h"
#include "ui/formula_desk.h"
#include "ui/print_options_dialog.h"
#include "ui/report_panel.h"
#include "ui/report_table_model.h"
#include "ui/selection_status.h"
#include "ui/z_tabs.h"

namespace vrel {

/// What the window asks of its surroundings; tests put answers of their own in place.
struct WindowSeams {
  /// Ends the process with exit status 0.
  std::function<void()> endProcess;
  /// Asks for an existing file, and for a file to save to.
  AskForFile chooseOpenFile;
  AskForFile chooseSaveFile;
  /// Shows a dialog until the user closes it.
  RunDialog runDialog;
  /// The printers and the roads to them.
  Spooler spooler;
};

class VrelMainWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// Everything in the context must outlive the window.
  VrelMainWindow(EditorContext& context, WindowSeams seams);
  ~VrelMainWindow() override;

  /// Lays the report out again and shows it.
  void layOutReport();
  /// Warns when the last layout found several tuples for one cell; once for each layout.
  void warnOfMissingKeys();

  const ReportTableModel& model() const { return model_; }
  FrozenColumnTablesImpl& tables() { return panel_->tables(); }

 public slots:
  // In the order that fixes their call index.
  void slotFilePrint();
  void slotFileExport();
  void slotFileExportAs();
  void slotFileLoadView();
  void slotFileSaveView();
  void slotFileSaveViewAs();
  void slotFileReadExpressions();
  void slotFileReadHighlighting();
  void slotFileDeleteView();
  /// Ends the process, after asking about unsaved changes.
  void slotFileClose();
  void slotEditFillCells();
  void slotEditRecalculateAllInverse();
  /// Data down the rows instead of along the columns, or the other way round.
  void slotConfigSwapData();
  void slotConfigDisplay();
  void slotConfigOrder();
  void slotConfigBreaks();
  void slotConfigExpressions();
  void slotConfigHighlighting();
  void slotConfigListFunctions();
  void slotConfigFields();
  /// Asks whether to save changes to the view of that file name, and saves it when the user says
  /// so. Returns false when the user wants to stay.
  bool saveWarning(const QString& name);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void buildCentre();
  void buildStatusBar();
  void connectPanel();
  void showPage(int zIndex);
  void showTitle();
  void showTabs();
  void showView(OpenedView opened);
  PrintOptionsDialogImpl& printDialog();
  void takePrintOptions();
  ViewChanger viewChanger();
  void changeView(const std::function<void()>& change);
  void changeFields(const std::function<void()>& change);
  void showChange(const KeptPlace& kept);

  EditorContext& context_;
  WindowSeams seams_;
  ReportTableModel model_;
  QLabel* title_;
  ZTabs* tabs_;
  ReportPanel* panel_;
  SelectionStatus* status_;
  ConfigureDesk* configure_;
  FormulaDesk* formulas_;
  // Made when it is first wanted, owned by the window.
  PrintOptionsDialogImpl* printDialog_ = nullptr;
  // The last layout was warned of.
  bool warned_ = false;
};

}  // namespace vrel
