// The dialog over a view's print options.
#pragma once

#include <QDialog>
#include <functional>
#include <memory>
#include <vector>

#include "model/print_options.h"
#include "output/print_report.h"

namespace Ui {
class PrintOptionsDialog;
}

namespace vrel {

/// Asks for the name of a print file of that type; empty when the user chose none.
using ChoosePrintFile = std::function<QString(QWidget* parent, PrinterType type)>;

/// Kept for the life of the window: the printer that was chosen and the print file stay as the user
/// left them. Ends as accepted when the user wants to print.
class PrintOptionsDialogImpl : public QDialog {
  Q_OBJECT

 public:
  explicit PrintOptionsDialogImpl(ChoosePrintFile chooseFile, QWidget* parent = nullptr);
  ~PrintOptionsDialogImpl() override;

  /// Shows these options in the controls.
  void setOptions(const PrintOptions& options);
  /// The title that is printed when the options have none.
  void setDefaultTitle(const QString& title);
  /// The options as the controls show them.
  PrintOptions options() const;

  /// Shows these printers. The one chosen before stays chosen when it is still there.
  void setPrinters(std::vector<platform::Printer> printers);
  /// Where the user wants the print to go.
  PrintTarget target() const;

 public slots:
  /// Makes an entry of the printer list the current printer.
  void SelectPrinterSlot(int entry);

 signals:
  /// The user wants the options to be taken.
  void applied();

 private:
  void fillLists();
  void connectButtons();
  void connectScaling();
  void chooseFile();
  PrinterType printerType() const;
  /// The place of a printer in the list; -1 when it is not there.
  int entryOf(const std::optional<platform::Printer>& wanted) const;
  void keepOneScaling();
  void enableControls();

  std::unique_ptr<Ui::PrintOptionsDialog> form_;
  ChoosePrintFile chooseFile_;
  // What no control shows is kept from here.
  PrintOptions shown_;
  std::vector<platform::Printer> printers_;
  std::optional<platform::Printer> printer_;
};

}  // namespace vrel
