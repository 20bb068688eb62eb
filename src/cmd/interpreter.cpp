#include "cmd/interpreter.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/words.h"

namespace vrel {
namespace {

constexpr std::size_t kMaxTables = 30;
constexpr std::size_t kMaxTitleBytes = 255;
constexpr std::size_t kMaxDepth = 10;
constexpr std::size_t kMaxWords = 512;
constexpr std::size_t kMaxLineBytes = 4095;

constexpr std::string_view kConsoleInfo = "-consInfo";
constexpr std::int32_t kConsoleInfoMaxArgs = 8;

void warnOfReplacements(const Interpreter& interpreter, const CommandTable& table,
                        TextOutput& errors) {
  for (const CommandRecord& record : table.records) {
    for (const CommandTable& old : interpreter.tables) {
      for (const CommandRecord& oldRecord : old.records) {
        if (record.name == oldRecord.name) {
          errors.write(fmt::format("DbgAddCommands: warning: {}:{} replaces {}:{}\n", table.title,
                                   record.name, old.title, oldRecord.name));
        }
      }
    }
  }
}

std::string indentOf(const Interpreter& interpreter) {
  std::string indent(interpreter.inputStack.size(), '\t');
  return indent;
}

// "<file" means "< file"; ">>" keeps its two characters together.
std::string withShortFormExpanded(std::string_view piece) {
  const auto at = [piece](std::size_t i) { return i < piece.size() ? piece[i] : '\0'; };
  const std::string_view shortForms = "<>!?";
  const char second = at(1);
  if (piece.empty() || shortForms.find(piece[0]) == std::string_view::npos || second == '\0' ||
      second == ' ' || second == '\t') {
    return std::string(piece);
  }
  if (second == '>' && at(2) != '\t') {
    return fmt::format(">> {}", piece.substr(2));
  }
  return fmt::format("{} {}", piece[0], piece.substr(1));
}

bool isEmptyPiece(std::string_view piece) {
  for (const char byte : piece) {
    if (byte != ',' && !isBlank(byte)) {
      return false;
    }
  }
  return true;
}

void recordComment(Interpreter& interpreter, std::string_view comment) {
  if (interpreter.record) {
    interpreter.record->write(fmt::format("#{}{}", indentOf(interpreter), comment));
    interpreter.record->flush();
  }
}

void recordCommand(Interpreter& interpreter, Words words) {
  if (!interpreter.record) {
    return;
  }
  // An include is commented out: what it includes is recorded as it runs.
  std::string line = words[0].starts_with('<') ? "#" : "";
  line += indentOf(interpreter);
  for (const std::string& word : words) {
    line += fmt::format("\"{}\" ", word);
  }
  line.back() = '\n';
  interpreter.record->write(line);
  interpreter.record->flush();
}

// Shows a piece as it was typed, where that was asked for and in redirected output, which so names
// the command that produced what follows.
void showPiece(Interpreter& interpreter, std::string_view piece) {
  if (isEmptyPiece(piece)) {
    return;
  }
  if (interpreter.verbose) {
    print(interpreter, "# {}", piece);
  }
  if (interpreter.outputTarget == OutputTarget::File) {
    interpreter.output->write(piece);
  }
}

// The words of a piece; nothing, with a message, when they cannot be had.
std::optional<std::vector<std::string>> wordsOf(Interpreter& interpreter, std::string_view piece) {
  WordSplit split = splitWords(withShortFormExpanded(piece));
  if (split.words.size() > kMaxWords) {
    print(interpreter, "{}: too many words (max {})\n", interpreter.programName, kMaxWords);
    return std::nullopt;
  }
  if (split.unmatchedQuote != 0) {
    print(interpreter, "Missing Match {0} in {0}{1}", split.unmatchedQuote, split.rest);
    return std::nullopt;
  }
  return std::move(split.words);
}

enum class Match { NotFound, WrongCount, Found };

struct FoundCommand {
  Match match = Match::NotFound;
  CommandTable* table = nullptr;
  std::int32_t id = 0;
};

// Checks the argument count of a command whose name fits.
Match checkArguments(Interpreter& interpreter, CommandRecord& record, Words words) {
  const std::size_t arguments = words.size() - 1;
  std::int32_t remembered = 0;
  if (arguments >= 2 && words[2] == kConsoleInfo) {
    remembered = record.maxArgs;
    record.maxArgs = kConsoleInfoMaxArgs;
  }
  if (std::cmp_less(arguments, record.minArgs)) {
    print(interpreter, "{}: \"{}\" called with too few args (min {}) - \"{} {}\"\n",
          interpreter.programName, record.name, record.minArgs, record.name, record.usage);
    return Match::WrongCount;
  }
  const bool tooMany = std::cmp_greater(arguments, record.maxArgs);
  if (tooMany) {
    print(interpreter, "{}: \"{}\" called with too many args (max {}) - \"{} {}\"\n",
          interpreter.programName, record.name, record.maxArgs, record.name, record.usage);
  }
  // A maximum of 0 is not put back: such a command stays callable with console information.
  if (remembered != 0) {
    record.maxArgs = remembered;
  }
  return tooMany ? Match::WrongCount : Match::Found;
}

FoundCommand findInTable(Interpreter& interpreter, CommandTable& table, Words words) {
  for (CommandRecord& record : table.records) {
    if (record.name == words[0]) {
      return {checkArguments(interpreter, record, words), &table, record.id};
    }
  }
  return {};
}

// A wrong argument count in a later table leaves an earlier table its chance.
FoundCommand findCommand(Interpreter& interpreter, Words words) {
  FoundCommand best;
  for (auto table = interpreter.tables.rbegin(); table != interpreter.tables.rend(); ++table) {
    const FoundCommand found = findInTable(interpreter, *table, words);
    if (found.match == Match::Found) {
      return found;
    }
    if (found.match == Match::WrongCount) {
      best = found;
    }
  }
  return best;
}

PieceResult runCommand(Interpreter& interpreter, Words words) {
  const FoundCommand found = findCommand(interpreter, words);
  if (found.match == Match::WrongCount) {
    return PieceResult::Found;
  }
  if (found.match == Match::NotFound) {
    print(interpreter, "{}: command \"{}\" not found\n", interpreter.programName, words[0]);
    return PieceResult::NotRun;
  }
  recordCommand(interpreter, words);
  // Handlers and the processes they start may write to the same place by themselves.
  interpreter.output->flush();
  return found.table->handler(found.id, words) == -1 ? PieceResult::EndLoop : PieceResult::Found;
}

// Cuts a line at every ";", which no quoting protects, and runs the pieces.
PieceResult executeLine(Interpreter& interpreter, std::string_view line) {
  PieceResult result = PieceResult::NotRun;
  std::size_t begin = 0;
  while (begin <= line.size() && result != PieceResult::EndLoop) {
    if (interpreter.checkTermination) {
      interpreter.checkTermination();
    }
    const std::size_t end = std::min(line.find(';', begin), line.size());
    result = executePiece(interpreter, line.substr(begin, end - begin));
    interpreter.output->flush();
    begin = end + 1;
  }
  return result;
}

std::optional<std::string> nextLine(Interpreter& interpreter) {
  if (interpreter.inputStack.empty()) {
    print(interpreter, "[{}] ", interpreter.programName);
    interpreter.output->flush();
  }
  const std::optional<std::string_view> line = interpreter.input.readLine(kMaxLineBytes);
  // A termination request ends a wait for input, too.
  if (interpreter.checkTermination) {
    interpreter.checkTermination();
  }
  return line ? std::optional<std::string>(*line) : std::nullopt;
}

}  // namespace

std::int32_t DbgAddCommands(Interpreter& interpreter, CommandTable table, TextOutput& errors) {
  if (table.title.size() > kMaxTitleBytes) {
    table.title.resize(kMaxTitleBytes);
  }
  if (interpreter.tables.size() == kMaxTables) {
    errors.write(fmt::format("DbgAddCommands: too many command tables (max {}): {}\n", kMaxTables,
                             table.title));
    return 0;
  }
  warnOfReplacements(interpreter, table, errors);
  interpreter.tables.push_back(std::move(table));
  return 0;
}

std::int32_t runInputLoop(Interpreter& interpreter, std::span<const std::string> arguments,
                          LoopStart start) {
  interpreter.programName = interpreter.tables.empty() ? "" : interpreter.tables.back().title;
  if (start == LoopStart::Interactive && executeLine(interpreter, "ui") == PieceResult::EndLoop) {
    return 1;
  }
  // An argument has no limit of its own: unlike a line of input it is never read in pieces.
  for (const std::string& argument : arguments) {
    if (executeLine(interpreter, argument) == PieceResult::EndLoop) {
      return 1;
    }
  }
  while (true) {
    const std::optional<std::string> line = nextLine(interpreter);
    if (!line) {
      if (!FStackPop(interpreter)) {
        return 1;
      }
    } else if (executeLine(interpreter, *line) == PieceResult::EndLoop) {
      return 1;
    }
  }
}

PieceResult executePiece(Interpreter& interpreter, std::string_view piece) {
  if (piece.starts_with('#')) {
    recordComment(interpreter, piece.substr(1));
    return PieceResult::NotRun;
  }
  showPiece(interpreter, piece);
  const std::optional<std::vector<std::string>> words = wordsOf(interpreter, piece);
  if (!words || words->empty()) {
    return PieceResult::NotRun;
  }
  return runCommand(interpreter, *words);
}

bool FStackPush(Interpreter& interpreter, const std::string& path) {
  if (interpreter.inputStack.size() + 1 > kMaxDepth) {
    interpreter.output->write("FStack: too many stack levels\n");
    return false;
  }
  std::optional<TextInput> file = TextInput::open(path);
  if (!file) {
    print(interpreter, "FStack: could not open file \"{}\"\n", path);
    return false;
  }
  interpreter.inputStack.push_back(std::move(interpreter.input));
  interpreter.input = std::move(*file);
  return true;
}

bool FStackPop(Interpreter& interpreter) {
  if (interpreter.inputStack.empty()) {
    return false;
  }
  interpreter.input = std::move(interpreter.inputStack.back());
  interpreter.inputStack.pop_back();
  return true;
}

}  // namespace vrel
