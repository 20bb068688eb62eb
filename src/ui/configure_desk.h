// The dialogs that configure how the report is laid out, and the one that fills cells.
#pragma once

#include <QObject>
#include <QWidget>

#include "ui/configure_layout_dialog.h"
#include "ui/edit_desk.h"
#include "ui/editor.h"
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
                ViewChanger changer, QWidget* window);

  void fillCells();
  void configureDisplay();
  void configureLayout();
  void configureBreaks();
  void configureFields();

  /// The report was laid out anew: open dialogs follow.
  void reportShown();

 private:
  ConfigureLayoutDialog& layoutDialog();
  void takeField(int field, LayoutPlace before);

  EditorContext& context_;
  ReportPanel& panel_;
  RunDialog runDialog_;
  ViewChanger changer_;
  QWidget* window_;
  // Made when it is first wanted, owned by the window.
  ConfigureLayoutDialog* layoutDialog_ = nullptr;
};

}  // namespace vrel
