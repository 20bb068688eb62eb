// The dialog over the list of breaks.
#pragma once

#include <QDialog>
#include <QTreeWidgetItem>
#include <memory>

#include "model/break_choices.h"
#include "ui/edit_desk.h"
#include "ui/view_changer.h"

namespace Ui {
class BreaksDialog;
}

namespace vrel {

/// Changes whether breaks are active, and opens the dialog over one of them.
class BreaksDialogImpl : public QDialog {
  Q_OBJECT

 public:
  /// Everything given must outlive the dialog; `notice` is the notice in force.
  BreaksDialogImpl(ReportView& view, RunChange changeView, RunDialog runDialog, Notice*& notice,
                   QWidget* parent = nullptr);
  ~BreaksDialogImpl() override;

 public slots:
  void slotInactivateAllBreaks();
  void slotActivateAllBreaks();
  /// Opens the current break.
  void slotDefineBreak();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void buildMenu();
  void connectControls();
  void fillList();
  void fitList();
  void showBreak(QTreeWidgetItem& item);
  void takeActive(QTreeWidgetItem& item);
  void setAll(bool active);

  ReportView& view_;
  RunChange changeView_;
  RunDialog runDialog_;
  Notice*& notice_;
  std::unique_ptr<Ui::BreaksDialog> form_;
};

}  // namespace vrel
