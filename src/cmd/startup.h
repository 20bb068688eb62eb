// The program's life from its first to its last line.
#pragma once

#include <string>
#include <vector>

namespace vrel {

/// Opens the log, registers the commands and runs the command loop over the command-line words
/// (the program path first) and standard input. Ends the process with status 0.
void runProgram(std::vector<std::string> words);

}  // namespace vrel
