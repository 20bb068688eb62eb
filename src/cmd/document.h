// The table and the view that the commands work on.
#pragma once

#include <string_view>

#include "cmd/session.h"
#include "expr/host_messages.h"
#include "model/report_grid.h"

namespace vrel {

/// Puts a fresh default view in the place of the current one, its settings in force.
ReportView& replaceView(Session& session);

/// The current view; a fresh one when there is none.
ReportView& currentView(Session& session);

/// Brings the table's formula fields and colours up to date.
void recalculate(Session& session);

/// What a message to the host needs. Valid as long as the session.
HostLink hostLink(Session& session);

/// Writes a line to the debug output.
void debugMessage(Session& session, std::string_view text);

/// Lays the report out and warns when its keys do not tell all tuples apart.
ReportGrid layOutReport(Session& session);

/// Whether a table is loaded; if not, writes the message and takes the error exit.
bool needTable(Session& session, std::string_view message);

/// Whether there is a view; if not, writes the message and takes the error exit.
bool needView(Session& session, std::string_view message);

}  // namespace vrel
