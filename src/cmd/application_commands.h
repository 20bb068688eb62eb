// The application command table "vrel": tables, views, exports and the window.
#pragma once

#include <cstdint>

#include "cmd/interpreter.h"
#include "cmd/session.h"

namespace vrel {

/// Runs one application command. Always returns 1: failures are told by messages.
std::int32_t fExecute(Session& session, std::int32_t id, Words words);

/// The table "vrel", whose commands work on the session, which must outlive it.
CommandTable applicationCommands(Session& session);

/// Ends the process with status -2 when the session's command errors do so.
void errorExit(Session& session);

// The handlers. Each writes its messages, and takes the error exit where a failure asks for it.

void cidReadTable(Session& session, Words words);
void cidReadView(Session& session, Words words);
void cidGuessView(Session& session, Words words);
void cidRecalculateFormulas(Session& session, Words words);
void cidRecalculateInverseFormulas(Session& session, Words words);
void cidAggregate(Session& session, Words words);
void cidDumpTable(Session& session, Words words);
void cidTranslate(Session& session, Words words);

void cidUI(Session& session, Words words);
void cidPrintReport(Session& session, Words words);
void cidExtractReport(Session& session, Words words);

void cidSmart(Session& session, Words words);

void cidAppendTranslate(Session& session, Words words);
void cidXsync(Session& session, Words words);
void cidAbortOnWarnings(Session& session, Words words);
void cidExitOnCmdError(Session& session, Words words);
void cidParameters(Session& session, Words words);
void cidRM(Session& session, Words words);
void cidCD(Session& session, Words words);

}  // namespace vrel
