// The menu bar of the main window.
#pragma once

namespace vrel {

class VrelMainWindow;

/// Builds the menus and connects their entries to the window's slots. No entry has a keyboard
/// shortcut beyond its mnemonic.
void buildMenuBar(VrelMainWindow& window);

}  // namespace vrel
