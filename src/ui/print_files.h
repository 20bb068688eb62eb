// Asking for the file that a print goes to.
#pragma once

#include <QString>

#include "model/print_options.h"
#include "ui/editor.h"
#include "ui/file_dialog.h"

namespace vrel {

/// Asks where to save a print of that type; empty when the user chose nothing.
QString choosePrintFile(const EditorContext& context, QWidget* parent, const AskForFile& ask,
                        PrinterType type);

}  // namespace vrel
