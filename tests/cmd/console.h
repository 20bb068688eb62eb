// An interpreter whose input, output and end stand in memory.
#pragma once

#include <string>
#include <vector>

#include "cmd/general_commands.h"
#include "cmd/interpreter.h"

namespace vrel::test {

/// Thrown in place of ending the process.
struct ProcessEnded {
  int status;
};

/// An interpreter with the general commands and a table "demo" of small commands of its own, which
/// note how they are called.
class Console {
 public:
  explicit Console(std::string standardInput = "") {
    interpreter.input = TextInput::fromMemory(std::move(standardInput));
    interpreter.output = std::make_unique<TextOutput>(TextOutput::toMemory(out_));
    interpreter.endProcess = [](int status) { throw ProcessEnded{status}; };
    add(generalCommands(interpreter));
    add({"demo",
         {{1, "one", 1, 1, "word"},
          {2, "none", 0, 0, "no_args"},
          {3, "some", 0, 20, "[args]"},
          {4, "two", 2, 2, "from to"},
          {5, "stop", 0, 0, "no_args"}},
         noting("demo")});
    interpreter.programName = "demo";
  }

  /// Registers a table; what that tells goes to `registered`.
  void add(CommandTable table) {
    TextOutput errors = TextOutput::toMemory(registered);
    added = DbgAddCommands(interpreter, std::move(table), errors);
  }

  /// A handler that notes its calls as "table id|word|word"; the command "stop" ends the loop.
  CommandHandler noting(const std::string& table) {
    return [this, table](std::int32_t id, Words words) {
      calls.push_back(fmt::format("{} {}|{}", table, id, fmt::join(words, "|")));
      return words[0] == "stop" ? -1 : 1;
    };
  }

  /// Runs a piece and returns what it wrote.
  std::string piece(std::string_view text) {
    out_.clear();
    result = executePiece(interpreter, text);
    return written();
  }

  /// Runs the input loop and returns all it wrote.
  std::string loop(const std::vector<std::string>& arguments = {},
                   LoopStart start = LoopStart::Commands) {
    out_.clear();
    loopResult = runInputLoop(interpreter, arguments, start);
    return written();
  }

  /// What was written since the last run began.
  std::string written() {
    interpreter.output->flush();
    return out_;
  }

  Interpreter interpreter;
  std::vector<std::string> calls;
  std::string registered;
  std::int32_t added = -1;
  PieceResult result = PieceResult::NotRun;
  std::int32_t loopResult = 0;

 private:
  std::string out_;
};

}  // namespace vrel::test
