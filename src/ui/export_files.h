// The window's exports: the report in a file of a type that the user chooses.
#pragma once

#include <QString>
#include <QWidget>

#include "ui/editor.h"
#include "ui/file_dialog.h"

namespace vrel {

/// The folder where file dialogs start: where the user was last, else the working directory.
QString lastVisitedFolder(const EditorContext& context);

/// Exports the report once more to the file of its last export; asks for a file when there is none,
/// or when its name tells no type.
void ExportViewCB(const EditorContext& context, QWidget* parent, const AskForFile& ask);

/// Asks for a file and its type, starting where the user was last, and exports the report to it.
void ExportAsCB(const EditorContext& context, QWidget* parent, const AskForFile& ask);

}  // namespace vrel
