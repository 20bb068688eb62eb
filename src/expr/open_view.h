// Putting a view file in the place of the current view.
#pragma once

#include <optional>
#include <string>

#include "expr/function_registry.h"
#include "model/view_file.h"
#include "model/view_list.h"

namespace vrel {

/// What views are opened with. Nothing is owned.
struct ViewReading {
  FormatSettings& format;
  const EnvironmentLookup& environment;
  Notice& notice;
  /// Where faults in view files are told.
  TextOutput& errors;
  const FunctionRegistry& functions;
  /// The value of the formulas' scratch field.
  Cell& formulaScratch;
};

enum class ViewFault { None, CannotOpen, DoesNotMatch };

/// A view file that was read and is not in force yet.
struct OpenedView {
  std::string path;
  ViewFault fault;
  /// Nothing when there is a fault.
  std::optional<ParsedView> parsed;
};

/// Reads a view file for a table. Changes nothing.
OpenedView openViewFile(const std::string& path, const Table& table, const ViewReading& reading);

/// Makes a view that was opened for the current view's table the current view, which keeps its
/// short title alone, and brings formula fields and colours up to date. False, with view, settings
/// and table as they were, when the view has a fault or memory runs out.
bool takeOpenedView(ReportView& view, OpenedView opened, const ViewReading& reading);

/// The user view that belongs to a report: its short title up to the last "." and "view".
std::string userViewName(std::string_view shortTitle);

/// Makes the user view of the report the current one, if there is one that fits the table: in the
/// folder "UserViews" of the working directory. A report without a short title has none. Returns
/// whether that was done.
bool chooseUserView(ReportView& view, const ViewSearch& search, const ViewReading& reading);

}  // namespace vrel
