// Creating the interactive editor.
#pragma once

#include <memory>

#include "ui/editor.h"
#include "ui/main_window.h"

namespace vrel {

/// Builds the main window over the context's view, or the user view that belongs to the report,
/// lays the report out and shows the window maximised. What there is to say about either is said
/// once the event loop runs. The application object must exist.
std::unique_ptr<VrelMainWindow> CreateUI(EditorContext& context, WindowSeams seams);

/// The whole life of the window: see `RunEditor`.
EditorResult runEditor(EditorContext& context);

}  // namespace vrel
