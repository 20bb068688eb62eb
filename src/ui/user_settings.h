// What the window takes from the user's settings and from the installation: font, language, and
// where the user was last.
#pragma once

#include <QCoreApplication>

#include "ui/editor.h"

namespace vrel {

/// Where lines of the settings file that are no entries are told.
ToolkitWarning settingsWarning(const EditorContext& context);

/// Reads the settings file; where there is none, makes one.
void readUserSettings(EditorContext& context);

/// The font of the whole application: that of the settings when they have one, else the default.
QFont applicationFont(const Settings& settings);

/// Puts the user's language in force and remembers it for the next start. The interface stays in
/// English where the installation has no other.
void installLanguage(QCoreApplication& application, const EnvironmentLookup& environment,
                     const QString& locale);

}  // namespace vrel
