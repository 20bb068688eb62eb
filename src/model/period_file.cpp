#include "model/period_file.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

#include "base/text_file.h"
#include "base/words.h"

namespace vrel {
namespace {

constexpr std::size_t kLineBytes = 2048;
constexpr std::size_t kWordsPerLine = 3;

constexpr const char* kTooManyErrors = translatable("vrel", "Too Many Errors.");
constexpr const char* kErrorInLine = translatable("vrel", "line %1:  %2");
constexpr const char* kNoClosingQuote = translatable("vrel", "Missing matching %1");
constexpr const char* kWrongWordCount = translatable("vrel", "Wrong number of arguments");
constexpr const char* kInvalidUnit = translatable("vrel", "Invalid time unit");
constexpr const char* kInvalidDuration = translatable("vrel", "Invalid time duration");

// The errors of a period file as far as there is room for them.
class ErrorReport {
 public:
  ErrorReport(Notice& notice, std::string& text, std::size_t size)
      : notice_(notice), text_(text), size_(size) {
    text_.clear();
  }

  // `value` is what the message is about.
  void add(int line, const char* message, std::string_view value = {}) {
    failed_ = true;
    if (full_) {
      return;
    }
    const std::string entry = entryOf(line, noticeText(notice_, message, value));
    full_ = !fits(entry);
    if (!full_) {
      lastEntry_ = text_.size();
      text_ += entry;
      return;
    }
    // The reader must see that there is more; where the room does not do, the last line makes way.
    const std::string more = '\n' + notice_.translate(kTooManyErrors);
    if (!fits(more)) {
      text_.resize(lastEntry_);
    }
    if (fits(more)) {
      text_ += more;
    }
  }

  [[nodiscard]] bool failed() const { return failed_; }

 private:
  std::string entryOf(int line, const std::string& message) const {
    const std::string number = fmt::format("{:3d}", line);
    std::string entry = noticeText(notice_, kErrorInLine, number);
    if (const std::size_t place = entry.find("%2"); place != std::string::npos) {
      entry.replace(place, 2, message);
    }
    return entry + '\n';
  }
  [[nodiscard]] bool fits(std::string_view more) const {
    return text_.size() + more.size() < size_;
  }

  Notice& notice_;
  std::string& text_;
  std::size_t size_;
  std::size_t lastEntry_ = 0;
  bool failed_ = false;
  bool full_ = false;
};

bool isDuration(std::string_view word) {
  return std::all_of(word.begin(), word.end(),
                     [](char byte) { return byte == '.' || (byte >= '0' && byte <= '9'); });
}

// The number at the beginning of a text of digits and points; 0 when there is none.
double durationOf(std::string_view word) {
  double value = 0;
  const std::from_chars_result result =
      std::from_chars(word.data(), word.data() + word.size(), value, std::chars_format::fixed);
  if (result.ec == std::errc::result_out_of_range) {
    const std::string_view whole = word.substr(0, word.find('.'));
    return whole.find_first_not_of('0') == std::string_view::npos
               ? 0
               : std::numeric_limits<double>::infinity();
  }
  return value;
}

void readLine(PeriodLengths& lengths, std::string_view text, int line, ErrorReport& errors) {
  const WordSplit split = splitWords(text);
  if (split.unmatchedQuote != 0) {
    errors.add(line, kNoClosingQuote, {&split.unmatchedQuote, 1});
    return;
  }
  if (split.words.size() != kWordsPerLine) {
    errors.add(line, kWrongWordCount);
    return;
  }
  const std::string& unit = split.words[1];
  const std::string& duration = split.words[2];
  const bool unitKnown = isPeriodUnit(unit);
  if (!unitKnown) {
    errors.add(line, kInvalidUnit);
  }
  if (!isDuration(duration)) {
    errors.add(line, kInvalidDuration);
  } else if (unitKnown) {
    addStatedLength(lengths, split.words[0], unit, durationOf(duration));
  }
}

}  // namespace

bool parsePeriodFile(PeriodLengths& lengths, TextInput& input, Notice& notice, std::string& report,
                     std::size_t reportSize) {
  clearStatedLengths(lengths);
  ErrorReport errors(notice, report, reportSize);
  int number = 0;
  while (const std::optional<std::string_view> line = input.readLine(kLineBytes)) {
    ++number;
    const std::string_view text = trimBlanks(*line);
    if (!text.starts_with('#')) {
      readLine(lengths, text, number, errors);
    }
  }
  return !errors.failed();
}

void readPeriodFile(const ReportView& view, Notice& notice) {
  const std::string& name = view.periodFileName;
  if (name.empty() || name.front() == '\0') {
    return;
  }
  std::optional<std::string> file = readTextFile(name);
  if (!file) {
    notice.critical(editorTitle(notice),
                    noticeText(notice, translatable("vrel", "Unable to open file \"%1\"."), name));
    return;
  }
  TextInput input = TextInput::fromMemory(std::move(*file));
  std::string report;
  if (!parsePeriodFile(view.table->periodLengths, input, notice, report)) {
    notice.critical(
        editorTitle(notice),
        noticeText(notice, translatable("vrel", "Errors in period file \"%1\"."), report));
  }
}

}  // namespace vrel
