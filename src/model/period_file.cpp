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

constexpr std::string_view kTooManyErrors = "\nToo Many Errors.";

// The errors of a period file as far as there is room for them.
class ErrorReport {
 public:
  ErrorReport(std::string& text, std::size_t size) : text_(text), size_(size) { text_.clear(); }

  void add(int line, std::string_view message) {
    failed_ = true;
    if (full_) {
      return;
    }
    const std::string entry = fmt::format("line {:3d}:  {}\n", line, message);
    full_ = !fits(entry);
    if (!full_) {
      lastEntry_ = text_.size();
      text_ += entry;
      return;
    }
    // The reader must see that there is more; where the room does not do, the last line makes way.
    if (!fits(kTooManyErrors)) {
      text_.resize(lastEntry_);
    }
    if (fits(kTooManyErrors)) {
      text_ += kTooManyErrors;
    }
  }

  [[nodiscard]] bool failed() const { return failed_; }

 private:
  [[nodiscard]] bool fits(std::string_view more) const {
    return text_.size() + more.size() < size_;
  }

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
    errors.add(line, fmt::format("Missing matching {}", split.unmatchedQuote));
    return;
  }
  if (split.words.size() != kWordsPerLine) {
    errors.add(line, "Wrong number of arguments");
    return;
  }
  const std::string& unit = split.words[1];
  const std::string& duration = split.words[2];
  const bool unitKnown = isPeriodUnit(unit);
  if (!unitKnown) {
    errors.add(line, "Invalid time unit");
  }
  if (!isDuration(duration)) {
    errors.add(line, "Invalid time duration");
  } else if (unitKnown) {
    addStatedLength(lengths, split.words[0], unit, durationOf(duration));
  }
}

}  // namespace

bool parsePeriodFile(PeriodLengths& lengths, TextInput& input, std::string& report,
                     std::size_t reportSize) {
  clearStatedLengths(lengths);
  ErrorReport errors(report, reportSize);
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
  if (!parsePeriodFile(view.table->periodLengths, input, report)) {
    notice.critical(
        editorTitle(notice),
        noticeText(notice, translatable("vrel", "Errors in period file \"%1\"."), report));
  }
}

}  // namespace vrel
