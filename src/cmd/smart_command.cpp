// `smart`: a file with the output of several reports, each shown by a process of its own.

#include <optional>

#include "base/words.h"
#include "cmd/application_commands.h"

namespace vrel {
namespace {

constexpr int kNoInputStatus = -1;

/// A longer line is read in pieces, each of which counts as a line.
constexpr std::size_t kMaxLineBytes = 4095;
constexpr std::string_view kPlanLine = "# addroot";
constexpr std::string_view kSectionLine = "# Start of output ";
constexpr std::string_view kSectionPrefix = "dd";

constexpr std::string_view kUnknownTitle = "Unknown";
/// With the apostrophes around it.
constexpr std::size_t kLongestTitle = 1023;

/// One section of the file, which a child process shows.
struct SmartJob {
  std::string path;
  /// Empty for an unknown one.
  std::string title;
};

/// The longest beginning of a text that has at most that many bytes and no broken character.
std::string_view beginningOf(std::string_view text, std::size_t bytes) {
  const auto isBroken = [&] {
    return bytes > 0 && (static_cast<unsigned char>(text[bytes]) & 0xc0U) == 0x80U;
  };
  while (bytes < text.size() && isBroken()) {
    --bytes;
  }
  return text.substr(0, bytes);
}

/// The title of a section line: what stands behind its first colon and one blank.
std::string titleOf(std::string_view line) {
  const std::size_t colon = line.find(':');
  if (colon == std::string_view::npos || colon + 2 >= line.size()) {
    return {};
  }
  std::string_view title = line.substr(colon + 2);
  while (!title.empty() && isBlank(title.back())) {
    title.remove_suffix(1);
  }
  return std::string(beginningOf(title, kLongestTitle - 2));
}

void removeFiles(const std::vector<SmartJob>& jobs) {
  for (const SmartJob& job : jobs) {
    platform::removeFile(job.path);
  }
}

/// Copies each section of the file into a file of its own.
class Splitter {
 public:
  explicit Splitter(const EnvironmentLookup& environment) : environment_(environment) {}

  /// Takes the next line; false when the file of its section cannot be written.
  bool take(std::string_view line) {
    if (line.starts_with(kPlanLine)) {
      return true;
    }
    if (line.starts_with(kSectionLine) && !begin(line)) {
      return false;
    }
    // What stands before the first section belongs to none.
    if (section_) {
      section_->write(line);
    }
    return true;
  }

  /// Finishes the last section's file; false when that cannot be written.
  bool finish() {
    const bool ok = !section_ || section_->flush();
    section_.reset();
    return ok;
  }

  const std::vector<SmartJob>& jobs() const { return jobs_; }

 private:
  bool begin(std::string_view line) {
    if (!finish()) {
      return false;
    }
    // The file is made at once, so that the next section finds another name.
    jobs_.push_back({temporaryFileName(environment_, kSectionPrefix), titleOf(line)});
    section_ = openOutput(jobs_.back().path, WriteMode::Truncate);
    return section_ != nullptr;
  }

  const EnvironmentLookup& environment_;
  std::vector<SmartJob> jobs_;
  std::unique_ptr<TextOutput> section_;
};

/// The sections of the file; none, with nothing left behind, when one cannot be written.
std::vector<SmartJob> splitFile(Session& session, TextInput& input) {
  Splitter splitter(session.environment);
  bool ok = true;
  while (const std::optional<std::string_view> line = input.readLine(kMaxLineBytes)) {
    ok = splitter.take(*line);
    if (!ok) {
      break;
    }
  }
  if (ok && splitter.finish()) {
    return splitter.jobs();
  }
  print(session.interpreter, "cidSmart: cannot open temp file \"{}\"\n",
        splitter.jobs().back().path);
  splitter.finish();
  removeFiles(splitter.jobs());
  return {};
}

constexpr std::string_view kQuotes = "'\"`";

/// A text in quotes of a kind that it does not hold, so that it is one word of a command line.
std::string inQuotes(std::string_view text) {
  const std::size_t free = kQuotes.find_first_not_of(text);
  const char quote = kQuotes[free == std::string_view::npos ? 0 : free];
  return fmt::format("{}{}{}", quote, text, quote);
}

/// The same for a path that would not be one word as it stands.
std::string pathWord(const std::string& path) {
  return path.find_first_of(" ,") == std::string::npos ? path : inQuotes(path);
}

std::string replaced(std::string text, char byte, std::string_view by) {
  for (std::size_t at = text.find(byte); at != std::string::npos; at = text.find(byte, at)) {
    text.replace(at, 1, by);
  }
  return text;
}

/// A title as one word. What no quotes protect is written as its code, which `ui` understands: a
/// semicolon would end the command.
std::string titleWord(const std::string& title) {
  std::string word = replaced(title, ';', "#003b");
  if (kQuotes.find_first_not_of(word) == std::string_view::npos) {
    word = replaced(std::move(word), kQuotes.front(), "#0027");
  }
  return inQuotes(word);
}

/// The program's words that show a section and remove its file.
struct ChildWords {
  std::string read;
  std::string remove;
  std::string show;
};

ChildWords childWords(const std::string& path, std::string_view title) {
  return {.read = fmt::format("readTable {}", path),
          .remove = fmt::format("rm {}", path),
          .show = fmt::format("ui {}", title)};
}

/// The command as hosts know it.
void printCommand(Session& session, const std::string& program, const SmartJob& job) {
  const ChildWords words = childWords(
      job.path, job.title.empty() ? std::string(kUnknownTitle) : fmt::format("'{}'", job.title));
  print(session.interpreter, "{} \"{}\" \"{}\" \"{}\" \"{}\"\n", program, session.childParameters,
        words.read, words.remove, words.show);
}

/// The same command, in which no character of a title or path means anything to the command
/// processor or ends a word.
std::string safeCommand(const Session& session, const std::string& program, const SmartJob& job) {
  const ChildWords words = childWords(
      pathWord(job.path), job.title.empty() ? std::string(kUnknownTitle) : titleWord(job.title));
  return platform::commandLine(
      {program, session.childParameters, words.read, words.remove, words.show});
}

void runJob(Session& session, const SmartJob& job) {
  const std::string program = session.arguments.empty() ? std::string() : session.arguments[0];
  printCommand(session, program, job);
  flushAll(session);
  platform::runCommand(safeCommand(session, program, job));
  // In case that the child did not get so far.
  platform::removeFile(job.path);
}

}  // namespace

void cidSmart(Session& session, Words words) {
  std::optional<TextInput> input = TextInput::open(words[1]);
  if (!input) {
    print(session.interpreter, "cidSmart: cannot open file \"{}\"\n", words[1]);
    session.interpreter.endProcess(kNoInputStatus);
    return;
  }
  for (const SmartJob& job : splitFile(session, *input)) {
    runJob(session, job);
  }
  session.interpreter.endProcess(0);
}

}  // namespace vrel
