// The command interpreter: reads command lines, splits them into pieces and words, checks the
// argument counts and calls the command's handler.
//
// Lines come from the process's arguments, then from standard input and from the command files that
// commands open. All messages and the prompt go to the current output stream.
#pragma once

#include <fmt/format.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/platform.h"
#include "base/text_input.h"
#include "base/text_output.h"
#include "base/toolkit_messages.h"

namespace vrel {

/// One command. A record whose usage is "Title" is a heading of the help listing.
struct CommandRecord {
  std::int32_t id;
  std::string name;
  std::int32_t minArgs;
  std::int32_t maxArgs;
  std::string usage;
};

/// The words of a command, the command word first.
using Words = std::span<const std::string>;

/// Takes the command's id and its words. A result of -1 ends the input loop.
using CommandHandler = std::function<std::int32_t(std::int32_t id, Words words)>;

struct CommandTable {
  /// At most 255 bytes; the rest is cut off.
  std::string title;
  std::vector<CommandRecord> records;
  CommandHandler handler;
};

enum class OutputTarget { StandardError, StandardOutput, File };

/// State of the interpreter; one per session.
struct Interpreter {
  /// In registration order; the later table wins.
  std::vector<CommandTable> tables;
  /// Title of the last table, from the start of the input loop on.
  std::string programName;
  TextInput input = TextInput(platform::readStandardInput);
  /// Saved input streams; its size is the nesting depth.
  std::vector<TextInput> inputStack;
  std::unique_ptr<TextOutput> output = std::make_unique<TextOutput>(standardErrorOutput());
  OutputTarget outputTarget = OutputTarget::StandardError;
  std::unique_ptr<TextOutput> record;
  bool verbose = false;
  // Stored for the command files that set them; nothing asks for them.
  bool progress = true;
  bool panicsave = false;
  bool coredump = false;
  ToolkitMessageFilter toolkitMessages;
  /// Ends the process with a status; does not return.
  std::function<void(int status)> endProcess;
  /// Called between pieces and when input ends; may end the process.
  std::function<void()> checkTermination;
};

/// What became of one piece of a line.
enum class PieceResult : std::int32_t {
  /// A handler asked to end the input loop.
  EndLoop = -1,
  /// A comment, an empty piece, a quoting error or an unknown command.
  NotRun = 0,
  /// A command was called, or refused because of its argument count.
  Found = 1,
};

enum class LoopStart { Commands, Interactive };

/// Registers a table behind those there are. Names that it takes over from other tables are told
/// on `errors`, and so is a table that finds no room. Always returns 0.
std::int32_t DbgAddCommands(Interpreter& interpreter, CommandTable table, TextOutput& errors);

/// Runs each argument as a command line, then standard input, until its end or until a handler
/// asks for the end. `LoopStart::Interactive` runs the line "ui" before all. Always returns 1.
std::int32_t runInputLoop(Interpreter& interpreter, std::span<const std::string> arguments,
                          LoopStart start);

/// Runs one piece of a command line, one command at most.
PieceResult executePiece(Interpreter& interpreter, std::string_view piece);

/// Reads on from a command file; false, with a message, when there are ten already or it cannot be
/// opened.
bool FStackPush(Interpreter& interpreter, const std::string& path);

/// Leaves the current command file; false when standard input is read.
bool FStackPop(Interpreter& interpreter);

/// Writes a formatted message to the current output stream.
template <typename... Arguments>
void print(Interpreter& interpreter, fmt::format_string<Arguments...> format,
           Arguments&&... arguments) {
  interpreter.output->write(fmt::format(format, std::forward<Arguments>(arguments)...));
}

}  // namespace vrel
