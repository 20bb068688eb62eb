// The window's view files: choosing, opening, saving and deleting them.
#pragma once

#include <QString>
#include <QWidget>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "expr/open_view.h"
#include "ui/editor.h"
#include "ui/file_dialog.h"

namespace vrel {

/// What views are looked for and opened with.
ViewSearch viewSearch(const EditorContext& context);
ViewReading viewReading(const EditorContext& context);

/// The pattern of one file name in a dialog's filter: characters that mean something there, or that
/// a filter cannot hold, are "?".
QString filterPattern(const std::string& fileName);

/// Asks for a view file, the dialog starting beside the current view. Empty when none was chosen,
/// or one whose name is not allowed, which a box says.
std::string chooseView(const EditorContext& context, QWidget* parent, const AskForFile& ask,
                       std::string_view caption);

/// Reads a view file for the table; nothing, and a box, when it cannot be opened or does not fit.
std::optional<OpenedView> openChosenView(const EditorContext& context, const std::string& name);

/// Reads the field definitions of a view file; nothing, and a box, when it cannot be opened.
std::optional<std::vector<FieldDef>> readChosenFields(const EditorContext& context,
                                                      const std::string& name);

/// Says that a view file does not fit the table.
void tellMismatch(const EditorContext& context, const std::string& name);

/// Saves the view under its current name; false when it has none yet.
bool saveCurrentView(const EditorContext& context);

/// Saves the view in a file that the user chooses, which is the view's file from then on.
void saveViewAs(const EditorContext& context, QWidget* parent, const AskForFile& ask);

/// Deletes a view file that the user chooses, after asking once more.
void deleteView(const EditorContext& context, QWidget* parent, const AskForFile& ask);

}  // namespace vrel
