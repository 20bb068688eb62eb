#include "ui/configure_desk.h"

#include <QDir>
#include <QFileInfo>
#include <utility>

#include "expr/recalculation.h"
#include "expr/ui/to_text.h"
#include "ui/configure_display_dialog.h"

namespace vrel {

ConfigureDesk::ConfigureDesk(EditorContext& context, ReportPanel& panel, RunDialog runDialog,
                             AskForFile chooseOpenFile, ViewChanger changer, QWidget* window)
    : QObject(window),
      context_(context),
      panel_(panel),
      runDialog_(std::move(runDialog)),
      chooseOpenFile_(std::move(chooseOpenFile)),
      changer_(std::move(changer)),
      window_(window) {}

void ConfigureDesk::fillCells() {}

void ConfigureDesk::configureDisplay() {
  ConfigureDisplayDialogImpl dialog(
      context_.view,
      [this](QWidget* parent, const QString& present) { return choosePeriodFile(parent, present); },
      window_);
  connect(&dialog, &ConfigureDisplayDialogImpl::applied, this,
          [this, &dialog] { takeDisplay(dialog.settings()); });
  runDialog_(dialog);
}

void ConfigureDesk::takeDisplay(const DisplaySettings& chosen) {
  const DisplaySettings before = displaySettings(context_.view);
  if (chosen == before) {
    readPeriodsAgain();
    return;
  }
  changer_.changeView([this, &chosen, &before] {
    applyDisplaySettings(context_.view, chosen, context_.format);
    if (chosen.periodFile != before.periodFile &&
        rereadPeriodFile(context_.view, *context_.notice)) {
      recalculate();
    }
  });
}

// Another file may stand there by now, above all one without the errors that were told before.
void ConfigureDesk::readPeriodsAgain() {
  if (!rereadPeriodFile(context_.view, *context_.notice)) {
    return;
  }
  const bool modified = context_.view.modified;
  changer_.changeView([this] { recalculate(); });
  // The view names the same file as before.
  context_.view.modified = modified;
}

void ConfigureDesk::recalculate() {
  recalculateTable(*context_.view.table, *context_.notice, context_.formulaScratch,
                   context_.functions);
}

QString ConfigureDesk::choosePeriodFile(QWidget* parent, const QString& present) {
  const QFileInfo file(present);
  const bool isThere = !present.isEmpty() && file.dir().exists();
  return chooseOpenFile_(parent, {.caption = tr("Period File"),
                                  .filter = tr("All files (*)"),
                                  .extensions = {},
                                  .folder = isThere ? file.absolutePath() : QDir::currentPath(),
                                  .file = {}})
      .path;
}

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
