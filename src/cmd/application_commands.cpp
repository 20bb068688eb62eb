#include "cmd/application_commands.h"

namespace vrel {
namespace {

constexpr int kErrorStatus = -2;

struct ApplicationCommand {
  CommandRecord record;
  /// Null for a command that is registered but does nothing.
  void (*run)(Session&, Words);
};

const std::vector<ApplicationCommand>& commands() {
  static const std::vector<ApplicationCommand> kCommands = {
      {{1, "smart", 1, 1, "fname.mgt"}, cidSmart},
      {{2, "readTable", 1, 1, "fname"}, cidReadTable},
      {{3, "printreport", 0, 1, "[\"print cmd\"]"}, cidPrintReport},
      {{4, "exportreport", 0, 2, "[quotes/noquotes] [filename]"}, cidExtractReport},
      {{5, "readView", 1, 1, "fname"}, cidReadView},
      {{6, "guessView", 0, 0, "no_args"}, cidGuessView},
      {{7, "readDesc", 1, 1, "fname"}, nullptr},
      {{8, "readData", 1, 1, "fname"}, nullptr},
      {{9, "RecalculateFormulas", 0, 0, "no_args"}, cidRecalculateFormulas},
      {{10, "RecalculateInverseFormulas", 0, 0, "no_args"}, cidRecalculateInverseFormulas},
      {{12, "dumptable", 0, 0, "no_args"}, cidDumpTable},
      {{11, "aggregate", 0, 0, "no_args"}, cidAggregate},
      {{15, "appendTranslate", 1, 1, "y/n"}, cidAppendTranslate},
      {{14, "translate", 2, 2, "fromFile toFile"}, cidTranslate},
      {{17, "xsync", 1, 1, "y/n"}, cidXsync},
      {{18, "abortOnWarnings", 1, 1, "y/n"}, cidAbortOnWarnings},
      {{19, "exitOnCmdError", 1, 1, "y/n"}, cidExitOnCmdError},
      {{13, "ui", 0, 1, "[title]"}, cidUI},
      {{16, "parameters", 1, 1, "child_process_parameters"}, cidParameters},
      {{20, "rm", 1, 1, "file"}, cidRM},
      {{21, "cd", 1, 1, "directory"}, cidCD},
  };
  return kCommands;
}

const ApplicationCommand* commandOf(std::int32_t id) {
  for (const ApplicationCommand& command : commands()) {
    if (command.record.id == id) {
      return &command;
    }
  }
  return nullptr;
}

}  // namespace

std::int32_t fExecute(Session& session, std::int32_t id, Words words) {
  if (id == 0) {
    return 1;
  }
  const ApplicationCommand* const command = commandOf(id);
  if (command != nullptr && command->run != nullptr) {
    command->run(session, words);
  } else {
    print(session.interpreter, "fExecute: command \"{}\" unavailable\n", words[0]);
  }
  flushAll(session);
  return 1;
}

CommandTable applicationCommands(Session& session) {
  CommandTable table{.title = "vrel", .records = {}, .handler = {}};
  for (const ApplicationCommand& command : commands()) {
    table.records.push_back(command.record);
  }
  table.handler = [&session](std::int32_t id, Words words) { return fExecute(session, id, words); };
  return table;
}

void errorExit(Session& session) {
  if (session.exitOnCmdError) {
    print(session.interpreter, "Exiting... (bye).\n");
    session.interpreter.endProcess(kErrorStatus);
  }
}

}  // namespace vrel
