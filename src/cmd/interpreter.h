// The command interpreter: reads command lines, splits them into pieces and words, checks the
// argument counts and calls the command's handler.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

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

/// Takes the command's id and its words, the command word first. A result of -1 ends the input
/// loop.
using CommandHandler = std::function<std::int32_t(std::int32_t id, std::span<const std::string>)>;

struct CommandTable {
  /// At most 255 bytes.
  std::string title;
  std::vector<CommandRecord> records;
  CommandHandler handler;
};

enum class OutputTarget { StandardError, StandardOutput, File };

/// State of the interpreter; one per session.
struct Interpreter {
  /// In registration order; the later table wins.
  std::vector<CommandTable> tables;
  std::string programName;
  TextInput input;
  /// Saved input streams; its size is the nesting depth.
  std::vector<TextInput> inputStack;
  std::unique_ptr<TextOutput> output;
  OutputTarget outputTarget = OutputTarget::StandardError;
  std::unique_ptr<TextOutput> record;
  bool verbose = false;
  // Stored for the command files that set them; nothing asks for them.
  bool progress = true;
  bool panicsave = false;
  bool coredump = false;
  ToolkitMessageFilter toolkitMessages;
  /// Ends the process with a status.
  std::function<void(int status)> endProcess;
  /// Called between pieces and when input ends; may end the process.
  std::function<void()> checkTermination;
};

}  // namespace vrel
