// The dialogs that configure how the report is laid out, and the one that fills cells.
#pragma once

#include <QObject>
#include <QWidget>

#include "model/display_settings.h"
#include "model/field_classes.h"
#include "ui/configure_layout_dialog.h"
#include "ui/edit_desk.h"
#include "ui/editor.h"
#include "ui/file_dialog.h"
#include "ui/fill_cells_dialog.h"
#include "ui/report_panel.h"
#include "ui/view_changer.h"

namespace vrel {

/// Opens the dialogs and carries out what the user decides in them. Those that are not modal show
/// the view as it is after each layout.
class ConfigureDesk : public QObject {
  Q_OBJECT

 public:
  /// Everything given must outlive the object; dialogs belong to the window.
  ConfigureDesk(EditorContext& context, ReportPanel& panel, RunDialog runDialog,
                AskForFile chooseOpenFile, ViewChanger changer, QWidget* window);

  void fillCells();
  void configureDisplay();
  void configureLayout();
  void configureBreaks();
  void configureFields();

  /// The report was laid out anew: open dialogs follow.
  void reportShown();

 private:
  FillCellsDialogImpl& fillDialog();
  void fill(const FillRequest& request);
  void fitFillDialog();
  void followCursor();
  void takeFieldClasses(const std::vector<FieldClass>& classes);
  ConfigureLayoutDialog& layoutDialog();
  void takeField(int field, LayoutPlace before);
  void takeDisplay(const DisplaySettings& chosen);
  void readPeriodsAgain();
  void recalculate();
  QString choosePeriodFile(QWidget* parent, const QString& present);

  EditorContext& context_;
  ReportPanel& panel_;
  RunDialog runDialog_;
  AskForFile chooseOpenFile_;
  ViewChanger changer_;
  QWidget* window_;
  // Made when it is first wanted, owned by the window.
  FillCellsDialogImpl* fillDialog_ = nullptr;
  // Where the cursor was when the dialog last followed it.
  std::optional<GridPlace> fillPlace_;
  ConfigureLayoutDialog* layoutDialog_ = nullptr;
};

}  // namespace vrel
