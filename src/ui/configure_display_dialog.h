// The dialog over what the report shows and how it writes values.
#pragma once

#include <QDialog>
#include <functional>
#include <memory>

#include "model/display_settings.h"

namespace Ui {
class ConfigureDisplayDialog;
}

namespace vrel {

/// Asks for a period file, starting at the present one; empty when the user chose none.
using ChoosePeriodFile = std::function<QString(QWidget* parent, const QString& present)>;

class ConfigureDisplayDialogImpl : public QDialog {
  Q_OBJECT

 public:
  /// Shows the settings of the view as they are now.
  ConfigureDisplayDialogImpl(const ReportView& view, ChoosePeriodFile chooseFile,
                             QWidget* parent = nullptr);
  ~ConfigureDisplayDialogImpl() override;

  /// The settings as the controls show them.
  DisplaySettings settings() const;

 public slots:
  /// Asks for the settings to be taken; the dialog stays.
  void slotApplyConfig();
  /// Leaves, without what was not applied.
  void slotCancelConfig();
  /// Applies what differs from what was applied last, and leaves.
  void slotCloseConfig();

 signals:
  /// The user wants the settings to be taken.
  void applied();

 private:
  void fillLists(const ReportView& view);
  void showSettings(const DisplaySettings& settings);
  void limitLists();
  void connectLists();
  void connectButtons();
  void enableControls();
  void showExampleDate();
  void chooseFile();
  QString periodFile() const;
  /// What stands in place of the name of no file.
  static QString noPeriodFile();

  std::unique_ptr<Ui::ConfigureDisplayDialog> form_;
  ChoosePeriodFile chooseFile_;
  // The settings of the view. A text that is not edited is kept as it is there, whatever a line can
  // show of it.
  DisplaySettings shown_;
};

}  // namespace vrel
