#include "ui/main_menu.h"

#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>
#include <span>

#include "ui/main_window.h"

namespace vrel {

namespace {

using Slot = void (VrelMainWindow::*)();

// An entry without text is a separator; one with entries of its own in `submenu` opens them.
struct Entry {
  const char* text = nullptr;
  Slot slot = nullptr;
  std::span<const Entry> submenu = {};
};

struct Menu {
  const char* title;
  std::span<const Entry> entries;
};

constexpr const char* kContext = "VrelMainWindow";

constexpr Entry kFileEntries[] = {
    {QT_TRANSLATE_NOOP("VrelMainWindow", "&Print..."), &VrelMainWindow::slotFilePrint},
    {QT_TRANSLATE_NOOP("VrelMainWindow", "&Export"), &VrelMainWindow::slotFileExport},
    {QT_TRANSLATE_NOOP("VrelMainWindow", "Export &As..."), &VrelMainWindow::slotFileExportAs},
    {},
    {QT_TRANSLATE_NOOP("VrelMainWindow", "&Open View..."), &VrelMainWindow::slotFileLoadView},
    {QT_TRANSLATE_NOOP("VrelMainWindow", "&Save View"), &VrelMainWindow::slotFileSaveView},
    {QT_TRANSLATE_NOOP("VrelMainWindow", "Save &View As..."), &VrelMainWindow::slotFileSaveViewAs},
    {},
    {QT_TRANSLATE_NOOP("VrelMainWindow", "&Import Expressions..."),
     &VrelMainWindow::slotFileReadExpressions},
    {QT_TRANSLATE_NOOP("VrelMainWindow", "Import &Highlighting..."),
     &VrelMainWindow::slotFileReadHighlighting},
    {},
    {QT_TRANSLATE_NOOP("VrelMainWindow", "&Delete View..."), &VrelMainWindow::slotFileDeleteView},
    {},
    {QT_TRANSLATE_NOOP("VrelMainWindow", "&Close"), &VrelMainWindow::slotFileClose},
};

constexpr Entry kRecalculateEntries[] = {
    {QT_TRANSLATE_NOOP("VrelMainWindow", "&All Inverse Formulas"),
     &VrelMainWindow::slotEditRecalculateAllInverse},
};

constexpr Entry kEditEntries[] = {
    {QT_TRANSLATE_NOOP("VrelMainWindow", "&Fill Cells..."), &VrelMainWindow::slotEditFillCells},
    {},
    {QT_TRANSLATE_NOOP("VrelMainWindow", "&Recalculate"), nullptr, kRecalculateEntries},
};

constexpr Entry kConfigureEntries[] = {
    {QT_TRANSLATE_NOOP("VrelMainWindow", "&Swap Data Row/Column"),
     &VrelMainWindow::slotConfigSwapData},
    {QT_TRANSLATE_NOOP("VrelMainWindow", "&Display..."), &VrelMainWindow::slotConfigDisplay},
    {QT_TRANSLATE_NOOP("VrelMainWindow", "Lay&out..."), &VrelMainWindow::slotConfigOrder},
    {},
    {QT_TRANSLATE_NOOP("VrelMainWindow", "&Breaks..."), &VrelMainWindow::slotConfigBreaks},
    {QT_TRANSLATE_NOOP("VrelMainWindow", "&Expressions..."),
     &VrelMainWindow::slotConfigExpressions},
    {QT_TRANSLATE_NOOP("VrelMainWindow", "&Highlighting..."),
     &VrelMainWindow::slotConfigHighlighting},
    {QT_TRANSLATE_NOOP("VrelMainWindow", "&List Functions..."),
     &VrelMainWindow::slotConfigListFunctions},
    {},
    {QT_TRANSLATE_NOOP("VrelMainWindow", "&Fields..."), &VrelMainWindow::slotConfigFields},
};

constexpr Menu kMenus[] = {
    {QT_TRANSLATE_NOOP("VrelMainWindow", "&File"), kFileEntries},
    {QT_TRANSLATE_NOOP("VrelMainWindow", "&Edit"), kEditEntries},
    {QT_TRANSLATE_NOOP("VrelMainWindow", "&Configure"), kConfigureEntries},
};

QString translated(const char* text) {
  return QCoreApplication::translate(kContext, text);
}

void addEntries(VrelMainWindow& window, QMenu& menu, std::span<const Entry> entries) {
  for (const Entry& entry : entries) {
    if (entry.text == nullptr) {
      menu.addSeparator();
    } else if (!entry.submenu.empty()) {
      addEntries(window, *menu.addMenu(translated(entry.text)), entry.submenu);
    } else {
      menu.addAction(translated(entry.text), &window, entry.slot);
    }
  }
}

}  // namespace

void buildMenuBar(VrelMainWindow& window) {
  for (const Menu& menu : kMenus) {
    addEntries(window, *window.menuBar()->addMenu(translated(menu.title)), menu.entries);
  }
}

}  // namespace vrel
