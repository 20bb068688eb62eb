#include "output/smart_graph.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <optional>
#include <unordered_set>
#include <utility>
#include <vector>

#include "base/notice.h"
#include "base/platform.h"
#include "base/text_input.h"
#include "base/text_pen.h"
#include "base/words.h"
#include "model/date.h"

namespace vrel {
namespace {

constexpr const char* kInvalidOutput =
    translatable("vrel", "Error: Invalid output file path \"%1\".");
constexpr const char* kNoInput = translatable("vrel", "Error: Cannot find input file \"%1\".");

/// A longer line is read in pieces, each of which counts as a line.
constexpr std::size_t kMaxLineBytes = 4095;

constexpr std::string_view kPlanLine = "# addroot";
constexpr std::string_view kNamesLine = "FieldNames:";
constexpr std::array<std::string_view, 2> kSkippedLines = {"PeriodValues:", "FieldTypes:"};
constexpr std::string_view kNotes = "\t###";
constexpr std::string_view kEmptyValue = "\"\"";

/// Tuples with an empty value here are written once for equal key values.
constexpr std::size_t kSuppressingValue = 5;
constexpr std::size_t kFirstKeyValue = 1;

/// The elements of a plan, whose values are every second word of its line.
constexpr std::array<std::string_view, 3> kPlanElements = {"supplyPlanName", "demandPlanName",
                                                           "planId"};
constexpr std::string_view kDescription = "description";

std::string_view withoutLineEnd(std::string_view line) {
  return line.ends_with('\n') ? line.substr(0, line.size() - 1) : line;
}

/// The pieces between tabs, but for empty ones.
void addPieces(std::string_view text, std::vector<std::string_view>& pieces) {
  std::size_t at = text.find_first_not_of('\t');
  while (at != std::string_view::npos) {
    const std::size_t end = std::min(text.find('\t', at), text.size());
    pieces.push_back(text.substr(at, end - at));
    at = text.find_first_not_of('\t', end);
  }
}

/// The values of a data line: what stands before its first tab, which may be nothing, and the
/// pieces behind it.
void splitValues(std::string_view line, std::vector<std::string_view>& values) {
  values.clear();
  const std::string_view text = line.substr(0, line.find(kNotes));
  const std::size_t tab = std::min(text.find('\t'), text.size());
  values.push_back(text.substr(0, tab));
  addPieces(text.substr(tab), values);
}

/// A description, whose line ends are written as a backslash and an "n", as XML.
std::string escapedDescription(std::string_view text) {
  std::string escaped;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text.substr(i, 2) == "\\n") {
      escaped += '\n';
      ++i;
    } else if (text[i] == '&') {
      escaped += "&amp;";
    } else if (text[i] == '<') {
      escaped += "&lt;";
    } else if (text[i] == '>') {
      escaped += "&gt;";
    } else {
      escaped += text[i];
    }
  }
  return escaped;
}

/// Makes the document from the lines of the input, as they come.
class DocumentWriter {
 public:
  explicit DocumentWriter(TextPen& pen) : pen_(pen) {}

  void begin(std::string_view version) {
    pen_.write("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n");
    pen_.write(fmt::format("<qnt-smart version=\"{}\">\n", version));
  }

  /// Takes the next line; false when it does not match the fields.
  bool take(std::string_view line) {
    const bool isFirst = !std::exchange(begun_, true);
    if (line.starts_with('#')) {
      takeComment(line, isFirst);
      return true;
    }
    for (const std::string_view skipped : kSkippedLines) {
      if (line.starts_with(skipped)) {
        return true;
      }
    }
    if (line.starts_with(kNamesLine)) {
      takeNames(withoutLineEnd(line.substr(kNamesLine.size())));
      return true;
    }
    return takeData(withoutLineEnd(line));
  }

  void end() {
    if (!hasTuples_) {
      writeFieldCount();
      pen_.write("<fieldNames></fieldNames>\n<smartData>");
    }
    pen_.write("</smartData>\n</qnt-smart>");
  }

 private:
  // The host's texts are written as they stand, without escaping: its reader expects them so.
  void writeElement(std::string_view name, std::string_view value) {
    pen_.write(fmt::format("<{}>{}</{}>\n", name, value, name));
  }

  void writeFieldCount() { writeElement("numberOfFields", std::to_string(openings_.size())); }

  void takeComment(std::string_view line, bool isFirst) {
    if (line.starts_with(kPlanLine)) {
      if (!std::exchange(hasPlan_, true)) {
        writePlan(line.substr(kPlanLine.size()));
      }
    } else if (isFirst) {
      writeTitle(line);
    }
  }

  void writeTitle(std::string_view line) {
    const std::size_t colon = line.find(':');
    writeElement("smartGraph",
                 colon == std::string_view::npos ? std::string_view() : line.substr(colon + 1));
    std::string now;
    appendDate(now, platform::currentTime(), "%Y-%m-%dT%H:%M:%S", Quoting::None);
    writeElement("creationDate", now);
  }

  void writePlan(std::string_view text) {
    const std::vector<std::string> words = splitWords(text).words;
    const auto valueAt = [&words](std::size_t pair) {
      const std::size_t word = 2 * pair + 1;
      return word < words.size() ? std::string_view(words[word]) : std::string_view();
    };
    for (std::size_t i = 0; i < kPlanElements.size(); ++i) {
      writeElement(kPlanElements[i], valueAt(i));
    }
    writeElement(kDescription, escapedDescription(valueAt(kPlanElements.size())));
  }

  void takeNames(std::string_view text) {
    if (std::exchange(hasNames_, true)) {
      return;
    }
    std::vector<std::string_view> names;
    addPieces(text, names);
    for (std::size_t i = 1; i <= names.size(); ++i) {
      openings_.push_back(fmt::format("<f{}>", i));
      closings_.push_back(fmt::format("</f{}>\n", i));
    }
    writeFieldCount();
    pen_.write("<fieldNames>");
    for (std::size_t i = 0; i < names.size(); ++i) {
      pen_.write(fmt::format("<f{} name=\"{}\"/>\n", i + 1, names[i]));
    }
    pen_.write("</fieldNames>\n");
  }

  bool takeData(std::string_view line) {
    splitValues(line, values_);
    if (values_.size() != openings_.size()) {
      return false;
    }
    if (isFirstOfItsKind()) {
      writeTuple();
    }
    return true;
  }

  bool isFirstOfItsKind() {
    if (values_.size() <= kSuppressingValue || values_[kSuppressingValue] != kEmptyValue) {
      return true;
    }
    std::string key;
    for (std::size_t i = kFirstKeyValue; i < kSuppressingValue; ++i) {
      key += i == kFirstKeyValue ? "" : "|";
      key += values_[i];
    }
    return keys_.insert(std::move(key)).second;
  }

  void writeTuple() {
    if (!std::exchange(hasTuples_, true)) {
      pen_.write("<smartData>\n");
    }
    pen_.write("<tuple>\n");
    for (std::size_t i = 0; i < values_.size(); ++i) {
      pen_.write(openings_[i]);
      pen_.write(values_[i] == kEmptyValue ? std::string_view() : values_[i]);
      pen_.write(closings_[i]);
    }
    pen_.write("</tuple>\n");
  }

  TextPen& pen_;
  bool begun_ = false;
  bool hasPlan_ = false;
  bool hasNames_ = false;
  bool hasTuples_ = false;
  /// The tags around each field's values.
  std::vector<std::string> openings_;
  std::vector<std::string> closings_;
  /// Of the present line.
  std::vector<std::string_view> values_;
  std::unordered_set<std::string> keys_;
};

enum class Ending { Whole, Mismatch, Cancelled };

Ending writeDocument(const SmartGraphFiles& files, TextInput& input, TaskProgress& progress,
                     TextOutput& output) {
  TextPen pen(output);
  DocumentWriter document(pen);
  document.begin(files.version);
  const std::size_t size = platform::fileSize(files.input);
  std::size_t done = 0;
  while (const std::optional<std::string_view> line = input.readLine(kMaxLineBytes)) {
    if (!progress.at(0, done, size)) {
      return Ending::Cancelled;
    }
    done += line->size();
    if (!document.take(*line)) {
      pen.write(kSmartGraphMismatch);
      pen.write("\n");
      return Ending::Mismatch;
    }
  }
  document.end();
  return Ending::Whole;
}

}  // namespace

bool writeSmartGraph(const SmartGraphFiles& files, TaskProgress& progress, TextOutput& errors) {
  SafeFile output(files.output);
  if (!output.isOpen()) {
    errors.write(withValue(kInvalidOutput, files.output) + "\n");
    return false;
  }
  std::optional<TextInput> input = TextInput::open(files.input);
  if (!input) {
    errors.write(withValue(kNoInput, files.input) + "\n");
    return false;
  }
  const Ending ending = writeDocument(files, *input, progress, output.output());
  if (ending == Ending::Cancelled) {
    return false;
  }
  if (!output.commit()) {
    errors.write(withValue(kInvalidOutput, files.output) + "\n");
    return false;
  }
  return ending == Ending::Whole;
}

}  // namespace vrel
