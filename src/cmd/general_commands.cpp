#include "cmd/general_commands.h"

#include <charconv>
#include <limits>

#include "base/words.h"
#include "cmd/help.h"

namespace vrel {
namespace {

std::int32_t help(Interpreter& interpreter, Words words) {
  showHelp(interpreter, words.size() > 1 ? &words[1] : nullptr);
  return 1;
}

std::int32_t include(Interpreter& interpreter, Words words) {
  return FStackPush(interpreter, words[1]) ? 1 : 0;
}

struct Redirection {
  OutputTarget target = OutputTarget::File;
  std::unique_ptr<TextOutput> stream;
};

Redirection openRedirection(const std::string& name, WriteMode mode) {
  if (name == "stderr") {
    return {OutputTarget::StandardError, std::make_unique<TextOutput>(standardErrorOutput())};
  }
  if (name == "stdout") {
    return {OutputTarget::StandardOutput, std::make_unique<TextOutput>(standardOutput())};
  }
  return {OutputTarget::File, openOutput(name, mode)};
}

std::int32_t redirect(Interpreter& interpreter, Words words, WriteMode mode) {
  Redirection redirection = openRedirection(words[1], mode);
  if (!redirection.stream) {
    print(interpreter, "{} redirectout({}): could not open \"{}\"\n", interpreter.programName,
          words[0], words[1]);
    return 0;
  }
  interpreter.output = std::move(redirection.stream);
  interpreter.outputTarget = redirection.target;
  return 1;
}

std::int32_t redirectOver(Interpreter& interpreter, Words words) {
  return redirect(interpreter, words, WriteMode::Truncate);
}

std::int32_t redirectBehind(Interpreter& interpreter, Words words) {
  return redirect(interpreter, words, WriteMode::Append);
}

std::int32_t shell(Interpreter&, Words words) {
  std::string command;
  for (const std::string& argument : words.subspan(1)) {
    command += argument + ' ';
  }
  platform::runCommand(command);
  return 1;
}

std::int32_t startRecord(Interpreter& interpreter, const std::string& path) {
  if (interpreter.record) {
    print(interpreter, "Record file already open\n");
    return 0;
  }
  interpreter.record = openOutput(path, WriteMode::Truncate);
  if (!interpreter.record) {
    print(interpreter, "Could not open \"{}\"\n", path);
    return 0;
  }
  return 1;
}

std::int32_t record(Interpreter& interpreter, Words words) {
  if (words.size() > 1) {
    return startRecord(interpreter, words[1]);
  }
  if (!interpreter.record) {
    print(interpreter, "No record file open\n");
  }
  interpreter.record.reset();
  return 1;
}

std::int32_t verbose(Interpreter& interpreter, Words words) {
  const std::string& argument = words[1];
  if (argument == "-progress") {
    interpreter.progress = false;
  } else if (argument == "+progress") {
    interpreter.progress = true;
  } else if (argument.starts_with('y')) {
    interpreter.verbose = true;
  } else if (argument.starts_with('n')) {
    interpreter.verbose = false;
  }
  return 1;
}

std::int32_t quit(Interpreter& interpreter, Words) {
  if (!FStackPop(interpreter)) {
    return -1;
  }
  print(interpreter, "{}: stream terminated with quit\n", interpreter.programName);
  return 1;
}

// The number at the beginning of a text; 0 when there is none, the nearest one when it is too
// large.
int leadingInteger(std::string_view text) {
  text = trimBlanks(text);
  if (text.starts_with('+')) {
    text.remove_prefix(1);
    if (text.starts_with('-')) {
      return 0;
    }
  }
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error == std::errc::result_out_of_range) {
    return text.starts_with('-') ? std::numeric_limits<int>::min()
                                 : std::numeric_limits<int>::max();
  }
  return value;
}

std::int32_t exitProcess(Interpreter& interpreter, Words words) {
  interpreter.endProcess(words.size() > 1 ? leadingInteger(words[1]) : 0);
  return -1;
}

std::int32_t echo(Interpreter& interpreter, Words words) {
  print(interpreter, "{}\n", fmt::join(words.subspan(1), " "));
  interpreter.output->flush();
  return 1;
}

std::int32_t coredump(Interpreter& interpreter, Words words) {
  interpreter.coredump = words[1].starts_with('y');
  return 1;
}

std::int32_t panicsave(Interpreter& interpreter, Words words) {
  interpreter.panicsave = words[1].starts_with('y');
  return 1;
}

std::int32_t timestamp(Interpreter& interpreter, Words) {
  const std::tm now = platform::localTime(platform::currentTime());
  print(interpreter, "{}\n", platform::secondsFromLocalTime(now));
  return 1;
}

struct GeneralCommand {
  CommandRecord record;
  std::int32_t (*run)(Interpreter&, Words);
};

const std::vector<GeneralCommand>& commands() {
  static const std::vector<GeneralCommand> kCommands = {
      {{4, "!", 1, 20, "unixcmd [args]"}, shell},
      {{1, "?", 0, 1, "(same as help)"}, help},
      {{2, "<", 1, 1, "file_name"}, include},
      {{3, ">", 1, 1, "file_name"}, redirectOver},
      {{11, ">>", 1, 1, "file_name"}, redirectBehind},
      {{13, "coredump", 1, 1, "(y/n)"}, coredump},
      {{12, "echo", 0, 20, "[args]"}, echo},
      {{9, "exit", 0, 1, "exit_value"}, exitProcess},
      {{1, "help", 0, 1, "[cmd_pattern]"}, help},
      {{14, "panicsave", 1, 1, "y/n"}, panicsave},
      {{8, "quit", 0, 0, "no_args"}, quit},
      {{6, "record", 0, 1, "[filename]"}, record},
      {{15, "timestamp", 0, 0, "no_args"}, timestamp},
      {{7, "verbose", 1, 1, "y/n/-progress/+progress"}, verbose},
  };
  return kCommands;
}

std::int32_t runGeneralCommand(Interpreter& interpreter, std::int32_t id, Words words) {
  for (const GeneralCommand& command : commands()) {
    if (command.record.id == id) {
      return command.run(interpreter, words);
    }
  }
  print(interpreter, "{}: command \"{}\" unavailable\n", interpreter.programName, words[0]);
  return 1;
}

}  // namespace

CommandTable generalCommands(Interpreter& interpreter) {
  CommandTable table{.title = "*** General ***", .records = {}, .handler = {}};
  for (const GeneralCommand& command : commands()) {
    table.records.push_back(command.record);
  }
  table.handler = [&interpreter](std::int32_t id, Words words) {
    return runGeneralCommand(interpreter, id, words);
  };
  return table;
}

}  // namespace vrel
