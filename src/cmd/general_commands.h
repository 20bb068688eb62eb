// The general command table: help, command files, redirection, recording and the like.
#pragma once

#include "cmd/interpreter.h"

namespace vrel {

/// The table "*** General ***", whose commands work on the interpreter, which must outlive it.
CommandTable generalCommands(Interpreter& interpreter);

}  // namespace vrel
