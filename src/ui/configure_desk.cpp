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

void ConfigureDesk::configureLayout() {}

void ConfigureDesk::configureBreaks() {}

void ConfigureDesk::configureFields() {}

void ConfigureDesk::reportShown() {}

}  // namespace vrel
