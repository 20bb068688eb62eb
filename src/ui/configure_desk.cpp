#include "ui/configure_desk.h"

#include <utility>

namespace vrel {

ConfigureDesk::ConfigureDesk(EditorContext& context, ReportPanel& panel, RunDialog runDialog,
                             ViewChanger changer, QWidget* window)
    : QObject(window),
      context_(context),
      panel_(panel),
      runDialog_(std::move(runDialog)),
      changer_(std::move(changer)),
      window_(window) {}

void ConfigureDesk::fillCells() {}

void ConfigureDesk::configureDisplay() {}

void ConfigureDesk::configureLayout() {
  ConfigureLayoutDialog& dialog = layoutDialog();
  dialog.show();
  dialog.raise();
  dialog.activateWindow();
}

ConfigureLayoutDialog& ConfigureDesk::layoutDialog() {
  if (layoutDialog_ == nullptr) {
    layoutDialog_ = new ConfigureLayoutDialog(
        context_.view, [this](int field, LayoutPlace before) { takeField(field, before); },
        window_);
  }
  return *layoutDialog_;
}

void ConfigureDesk::takeField(int field, LayoutPlace before) {
  // A text that was refused is first to be corrected, and a drop that changes nothing is none.
  if (!placeAfterMove(context_.view, field, before) || !panel_.tables().endEditing()) {
    return;
  }
  changer_.changeView([this, field, before] { moveField(context_.view, field, before); });
}

void ConfigureDesk::configureBreaks() {}

void ConfigureDesk::configureFields() {}

void ConfigureDesk::reportShown() {
  if (layoutDialog_ != nullptr) {
    layoutDialog_->showView();
  }
}

}  // namespace vrel
