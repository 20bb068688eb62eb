#include "model/print_option_tags.h"

#include <array>
#include <limits>
#include <variant>

namespace vrel {
namespace {

constexpr std::int32_t kAnyNumber = std::numeric_limits<std::int32_t>::max();

using Flag = bool PrintOptions::*;
using Text = std::string PrintOptions::*;
// A code from 0 on.
using Code = std::int32_t PrintOptions::*;
// A number of pages, points or characters; 1 or more.
struct Count {
  std::int32_t PrintOptions::*member;
  std::int32_t most = kAnyNumber;
};
using Printer = PrinterType PrintOptions::*;

struct OptionRow {
  std::string_view tag;
  std::variant<Flag, Text, Code, Count, Printer> option;
};

// In the order in which they are written.
constexpr std::array<OptionRow, 20> kOptions = {{
    {"<RepeatRowLabels>", &PrintOptions::repeatRowLabels},
    {"<RepeatColumnLabels>", &PrintOptions::repeatColumnLabels},
    {"<PrintAllPages>", &PrintOptions::printAllPages},
    {"<Title>", &PrintOptions::title},
    {"<Footer>", &PrintOptions::footer},
    {"<PrintCommand>", &PrintOptions::printCommand},
    {"<PrinterType>", &PrintOptions::printerType},
    {"<PaperType>", &PrintOptions::paperType},
    {"<Landscape>", &PrintOptions::landscape},
    {"<Separators>", &PrintOptions::separators},
    {"<FitToWidth>", &PrintOptions::fitToWidth},
    {"<WidthPages>", Count{&PrintOptions::widthPages}},
    {"<FitToHeight>", &PrintOptions::fitToHeight},
    {"<HeightPages>", Count{&PrintOptions::heightPages}},
    {"<BestOnePageFit>", &PrintOptions::bestOnePageFit},
    {"<FontSize>", Count{&PrintOptions::fontSize}},
    {"<PageWidthChars>", Count{&PrintOptions::pageWidthChars, kMostPageChars}},
    {"<PageHeightChars>", Count{&PrintOptions::pageHeightChars, kMostPageChars}},
    {"<AddHeader>", &PrintOptions::addHeader},
    {"<Borders>", &PrintOptions::borders},
}};

// Takes one option from its record.
struct OptionReader {
  PrintOptions& options;
  Arguments arguments;
  std::string_view tag;

  void operator()(Flag flag) const { options.*flag = tagIsTrue(arguments, tag); }
  void operator()(Text text) const { options.*text = tagText(arguments, tag); }
  void operator()(Code code) const { takeNumber(options.*code, 0, kAnyNumber); }
  void operator()(Count count) const { takeNumber(options.*count.member, 1, count.most); }
  void operator()(Printer printer) const {
    auto code = static_cast<std::int32_t>(options.*printer);
    takeNumber(code, 0, static_cast<std::int32_t>(PrinterType::Html));
    options.*printer = static_cast<PrinterType>(code);
  }

  void takeNumber(std::int32_t& number, std::int32_t least, std::int32_t most) const {
    const std::optional<int> read = parseWholeNumber(tagText(arguments, tag));
    if (read && *read >= least && *read <= most) {
      number = *read;
    }
  }
};

// Appends the value of one option to a line.
struct OptionWriter {
  const PrintOptions& options;
  std::string& line;

  void operator()(Flag flag) const { addTruth(line, options.*flag); }
  void operator()(Text text) const { addQuoted(line, options.*text); }
  void operator()(Code code) const { addNumber(line, options.*code); }
  void operator()(Count count) const { addNumber(line, options.*count.member); }
  void operator()(Printer printer) const {
    addNumber(line, static_cast<std::int32_t>(options.*printer));
  }
};

}  // namespace

PrintOptions readPrintOptions(Arguments arguments) {
  PrintOptions options;
  for (const OptionRow& row : kOptions) {
    if (!tagText(arguments, row.tag).empty()) {
      std::visit(OptionReader{options, arguments, row.tag}, row.option);
    }
  }
  return options;
}

void addPrintOptions(std::string& line, const PrintOptions& options) {
  for (const OptionRow& row : kOptions) {
    addWord(line, row.tag);
    std::visit(OptionWriter{options, line}, row.option);
  }
}

}  // namespace vrel
