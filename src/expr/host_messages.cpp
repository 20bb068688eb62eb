#include "expr/host_messages.h"

#include <fmt/format.h>

#include <array>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/platform.h"
#include "base/text_pen.h"
#include "model/value_writer.h"

namespace vrel {
namespace {

constexpr std::string_view kPrefix = "DE";
constexpr char kUpdate = 'I';
constexpr int kMessagePrecision = 11;

// Plain numbers with the digits of a message while the object lives.
class MessageNumbers {
 public:
  explicit MessageNumbers(FormatSettings& settings)
      : settings_(settings), plain_(settings), precision_(settings.precision) {
    settings_.precision = kMessagePrecision;
  }
  MessageNumbers(const MessageNumbers&) = delete;
  MessageNumbers& operator=(const MessageNumbers&) = delete;
  ~MessageNumbers() { settings_.precision = precision_; }

 private:
  FormatSettings& settings_;
  PlainNumbers plain_;
  int precision_;
};

// Writes the lines of a message.
class MessageLines {
 public:
  MessageLines(const Table& table, FormatSettings& settings, TextOutput& output)
      : table_(table), settings_(settings), pen_(output) {}

  void add(CellRef cell, std::string_view note) {
    if (note.empty()) {
      return;
    }
    if (!numbers_) {
      // A message without a line leaves the number settings alone.
      numbers_.emplace(settings_);
      writers_ = makeValueWriters(table_.fields, settings_, Quoting::None);
    }
    pen_.write(note);
    pen_.write(" \"");
    writers_[static_cast<std::size_t>(cell.field)].write(pen_, table_.cell(cell.tuple, cell.field));
    pen_.write("\"\n");
  }

 private:
  const Table& table_;
  FormatSettings& settings_;
  TextPen pen_;
  std::optional<MessageNumbers> numbers_;
  std::vector<ValueWriter> writers_;
};

void addCells(MessageLines& lines, const Table& table, std::span<const CellRef> cells) {
  for (const CellRef& cell : cells) {
    lines.add(cell, noteOf(table, cell.tuple, cell.field));
  }
}

void addTable(MessageLines& lines, const Table& table) {
  const int fields = static_cast<int>(table.fieldCount());
  for (std::size_t tuple = 0; tuple < table.tupleCount; ++tuple) {
    NoteReader notes(table, tuple);
    std::optional<std::string_view> note = notes.next();
    for (int field = 0; field < fields && note; ++field) {
      lines.add({static_cast<std::uint32_t>(tuple), field}, *note);
      note = notes.next();
    }
  }
}

// Opens a new file and sets its path; null when it cannot be opened. Another process may take a
// name first, as long as its file is not there.
std::shared_ptr<std::FILE> openMessage(const EnvironmentLookup& environment, std::string& path) {
  constexpr int kMostNames = 10;
  for (int attempt = 0; attempt < kMostNames; ++attempt) {
    path = temporaryFileName(environment, kPrefix);
    std::shared_ptr<std::FILE> file = platform::openFile(path, platform::OpenMode::WriteNew);
    if (file || !platform::fileExists(path)) {
      return file;
    }
  }
  return platform::openFile(path, platform::OpenMode::Write);
}

// Writes the lines into the file and closes it; false, with the file gone, when a write failed.
template <typename AddLines>
bool writeMessage(const HostLink& link, const Table& table, const std::string& path,
                  std::shared_ptr<std::FILE> file, AddLines addLines) {
  bool written = false;
  {
    TextOutput output([&file](std::string_view text) {
      return std::fwrite(text.data(), 1, text.size(), file.get()) == text.size();
    });
    {
      MessageLines lines(table, link.format, output);
      addLines(lines);
    }
    written = output.flush() && platform::finishWrites(file.get());
  }
  file.reset();
  if (!written) {
    platform::removeFile(path);
  }
  return written;
}

std::string_view baseName(std::string_view path) {
  // Windows takes both kinds of separators.
  const std::array<char, 2> separators = {'/', platform::kPathSeparator};
  const std::size_t at = path.find_last_of(std::string_view(separators.data(), separators.size()));
  return at == std::string_view::npos ? path : path.substr(at + 1);
}

void tellHost(const HostLink& link, const std::string& path) {
  link.debug(fmt::format("SendUpdateMessageToHostApp( {}, {} )", path, kPrefix));
  link.announce(fmt::format("{}{}{}\n", kPrefix, kUpdate, baseName(path)));
}

// Sends the lines that `addLines` writes. `quote` stands around the path where the log tells of a
// failure.
template <typename AddLines>
bool sendMessage(const HostLink& link, const Table& table, std::string_view quote,
                 AddLines addLines) {
  std::string path;
  std::shared_ptr<std::FILE> file = openMessage(link.environment, path);
  bool sent = file != nullptr;
  if (sent) {
    logLine(link.log, fmt::format("Sending change to message file \"{}\".\n", path));
    sent = writeMessage(link, table, path, std::move(file), addLines);
  }
  if (!sent) {
    logLine(link.log,
            fmt::format("Cannot open message file {0}{1}{0} - change lost!\n", quote, path));
    return false;
  }
  tellHost(link, path);
  return true;
}

}  // namespace

void announceToHost(TextOutput& interpreterOutput, std::string_view line) {
  // The interpreter may write to standard output, too, through a buffer of its own.
  interpreterOutput.flush();
  std::fwrite(line.data(), 1, line.size(), stdout);
  std::fflush(stdout);
}

bool SendUpdateMessageToHostApp(const HostLink& link, const Table& table, CellRef cell) {
  return sendMessage(link, table, "\"", [&](MessageLines& lines) {
    addCells(lines, table, {&cell, 1});
  });
}

// The log tells of a failure without quotes around the path here: its readers know both forms.
bool SendUpdateMessageToHostApp(const HostLink& link, const Table& table,
                                std::span<const CellRef> cells) {
  return sendMessage(link, table, "", [&](MessageLines& lines) { addCells(lines, table, cells); });
}

bool SendUpdateMessageToHostApp(const HostLink& link, const Table& table) {
  return sendMessage(link, table, "", [&](MessageLines& lines) { addTable(lines, table); });
}

}  // namespace vrel
