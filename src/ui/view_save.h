// Saving a view from the window: the names it may have and what is said about it.
#pragma once

#include <string>
#include <string_view>

#include "base/log.h"
#include "base/notice.h"
#include "model/report_view.h"

namespace vrel {

/// The name of a view that has no file.
inline constexpr std::string_view kUntitledView = "untitled.view";

/// Whether a path has that name, in whatever folder: no view is kept under it.
bool isUntitled(std::string_view path);

/// The name by which the question about unsaved changes calls a view: that of its file, else one
/// made from the `ui` command's title, else `kUntitledView`.
std::string saveWarningName(std::string_view viewFileName, std::string_view uiTitle);

/// The path of a chosen view file with the extension ".view" added when it is missing; empty when
/// the file's own name, without its folders, holds a character that is not allowed.
std::string chosenViewName(std::string_view name);

/// Writes the view to a file, which appears whole or not at all, and says in a box when that fails.
/// Returns whether the view is saved.
bool ViewSave(const ReportView& view, const std::string& name, Log& log, Notice& notice);

}  // namespace vrel
