#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <utility>

#include "base/words.h"
#include "model/print_option_tags.h"
#include "model/view_file.h"
#include "model/view_record.h"

namespace vrel {
namespace {

// A view file is read twice, first for its fields and then for the view over them.
enum class Pass { Fields, View };

struct CommandLines {
  TextInput input;
  Pass pass;
  TextOutput& errors;
  int number = 0;
};

CommandLines commandLines(std::string_view file, Pass pass, TextOutput& errors) {
  return {.input = TextInput::fromMemory(std::string(file)), .pass = pass, .errors = errors};
}

void reportUnmatchedQuote(CommandLines& lines, char quote) {
  lines.errors.write(fmt::format("Missing matching {}\n", quote));
}

void reportNoWords(CommandLines& lines) {
  lines.errors.write(lines.pass == Pass::Fields
                         ? fmt::format("No arguments for command in line {}\n", lines.number)
                         : std::string("No arguments for command\n"));
}

void reportBadLine(CommandLines& lines) {
  lines.errors.write(fmt::format("Error in view file in line {}\n", lines.number));
}

void reportUnknownCommand(CommandLines& lines, std::string_view command) {
  lines.errors.write(fmt::format("Unknown command \"{}\" in line {}\n", command, lines.number));
  reportBadLine(lines);
}

// The words of the next line that is neither a comment nor faulty; false at the end.
bool nextCommand(CommandLines& lines, std::vector<std::string>& words) {
  while (std::optional<std::string_view> line = lines.input.readLine(kWholeLine)) {
    ++lines.number;
    const std::string_view text = trimBlanks(*line);
    if (text.starts_with('#')) {
      continue;
    }
    WordSplit split = splitWords(text);
    if (split.unmatchedQuote != 0) {
      reportUnmatchedQuote(lines, split.unmatchedQuote);
    } else if (split.words.empty()) {
      reportNoWords(lines);
    } else {
      words = std::move(split.words);
      return true;
    }
  }
  return false;
}

Arguments argumentsOf(const std::vector<std::string>& words) {
  return Arguments(words).subspan(1);
}

FieldDef readField(Arguments arguments) {
  FieldDef field;
  field.name = tagText(arguments, "<Name>");
  const std::string_view hide = tagText(arguments, "<Hide>");
  field.hidden = !hide.empty() && std::string_view("TtYy").find(hide[0]) != std::string_view::npos;
  field.type = fieldTypeFromName(tagText(arguments, "<Type>"));
  field.classification = classificationFromWord(tagText(arguments, "<Classification>"));
  if (field.isExpression()) {
    field.expression.text = tagText(arguments, "<Expression>");
    field.inverseExpression.text = tagText(arguments, "<InverseExpression>");
  }
  const std::string_view highlight = tagText(arguments, "<HighlightExpression>");
  if (!highlight.empty()) {
    field.highlightExpression.text = highlight;
  }
  return field;
}

// Adds the fields of a view file; false when a bad record ended the reading.
bool readFields(std::string_view file, std::vector<FieldDef>& fields, TextOutput& errors) {
  CommandLines lines = commandLines(file, Pass::Fields, errors);
  std::vector<std::string> words;
  while (nextCommand(lines, words)) {
    const bool isField = words[0] == "addfield";
    // The announced count is of no use: the fields are as many as there are records.
    if (!isField && words[0] != "numberoffields") {
      continue;
    }
    if (words.size() < 2) {
      reportBadLine(lines);
      return false;
    }
    if (isField) {
      fields.push_back(readField(argumentsOf(words)));
    }
  }
  return true;
}

// The five lists of a view while fields move between them. A field's former places stay in the
// lists until the end, so that a line costs no more than its words.
class FieldLists {
 public:
  FieldLists(const ReportView& view, std::size_t fieldCount) : lists_(view.axes) {
    places_.resize(fieldCount);
    for (std::size_t axis = 0; axis < kAxisCount; ++axis) {
      for (std::size_t i = 0; i < lists_[axis].size(); ++i) {
        places_[static_cast<std::size_t>(lists_[axis][i])] = {axis, i};
      }
    }
  }

  [[nodiscard]] bool has(int field) const {
    return field >= 0 && static_cast<std::size_t>(field) < places_.size();
  }

  void append(Axis to, int field) {
    const auto axis = static_cast<std::size_t>(to);
    places_[static_cast<std::size_t>(field)] = {axis, lists_[axis].size()};
    lists_[axis].push_back(field);
  }

  [[nodiscard]] std::vector<int> list(std::size_t axis) const {
    std::vector<int> fields;
    for (std::size_t i = 0; i < lists_[axis].size(); ++i) {
      const int field = lists_[axis][i];
      if (places_[static_cast<std::size_t>(field)] == std::pair(axis, i)) {
        fields.push_back(field);
      }
    }
    return fields;
  }

 private:
  std::array<std::vector<int>, kAxisCount> lists_;
  // By field: its axis and its position there.
  std::vector<std::pair<std::size_t, std::size_t>> places_;
};

// A view while its file's lines are read into it.
struct ViewBuilder {
  ReportView& view;
  FieldLists lists;
  std::size_t breaksRead = 0;
};

// What a command does with its arguments; false when they are faulty.
using Handler = bool (*)(ViewBuilder&, Arguments);

template <std::string ReportView::*kMember>
bool setText(ViewBuilder& builder, Arguments arguments) {
  if (arguments.empty()) {
    return false;
  }
  builder.view.*kMember = arguments[0];
  return true;
}

bool setPrecision(ViewBuilder& builder, Arguments arguments) {
  if (arguments.empty()) {
    return false;
  }
  builder.view.precision = wholeNumber(arguments[0]);
  return true;
}

template <Axis kAxis>
bool defineFields(ViewBuilder& builder, Arguments arguments) {
  for (const std::string& argument : arguments) {
    const int field = wholeNumber(argument);
    if (field == kNoField) {
      continue;
    }
    if (!builder.lists.has(field)) {
      return false;
    }
    builder.lists.append(kAxis, field);
  }
  return true;
}

bool setFlags(ViewBuilder& builder, Arguments arguments) {
  builder.view.dataInColumns = tagIsTrue(arguments, "<DataInColumns>");
  builder.view.repeatLabels = tagIsTrue(arguments, "<RepeatLabels>");
  builder.view.showEmptyRowsAndColumns = tagIsTrue(arguments, "<ShowEmptyRowsAndColumns>");
  builder.view.showSystemTitle = tagIsTrue(arguments, "<ShowSystemTitle>");
  return true;
}

bool definePrintOptions(ViewBuilder& builder, Arguments arguments) {
  builder.view.printOptions = readPrintOptions(arguments);
  return true;
}

constexpr std::array<std::string_view, 7> kBreakTags = {
    "<FieldIndex>", "<Name>",   "<FirstBreak>",     "<Frequency>",
    "<BreakAfter>", "<Active>", "<BreakOperations>"};

// The operation names run to the next tag or the end of the line.
void readOperations(BreakDefinition& definition, Arguments arguments, std::size_t fieldCount) {
  definition.operations.clear();
  const std::optional<std::size_t> first = findTagValue(arguments, "<BreakOperations>");
  if (!first) {
    return;
  }
  for (const std::string& word : arguments.subspan(*first)) {
    if (definition.operations.size() == fieldCount ||
        std::find(kBreakTags.begin(), kBreakTags.end(), word) != kBreakTags.end()) {
      return;
    }
    definition.operations.push_back(operationFromName(word).value_or(BreakOperation::Nothing));
  }
}

bool addBreak(ViewBuilder& builder, Arguments arguments) {
  std::vector<BreakDefinition>& breaks = builder.view.breaks;
  if (builder.breaksRead == breaks.size()) {
    return true;
  }
  BreakDefinition& definition = breaks[builder.breaksRead++];
  definition.fieldIndex = tagNumber(arguments, "<FieldIndex>");
  if (!builder.lists.has(definition.fieldIndex)) {
    return false;
  }
  definition.name = tagText(arguments, "<Name>");
  definition.firstBreak = tagNumber(arguments, "<FirstBreak>");
  definition.frequency = tagNumber(arguments, "<Frequency>");
  definition.breakAfter = tagIsTrue(arguments, "<BreakAfter>");
  definition.active = tagIsTrue(arguments, "<Active>");
  readOperations(definition, arguments, breaks.size());
  return true;
}

bool skip(ViewBuilder& /*builder*/, Arguments /*arguments*/) {
  return true;
}

struct CommandRow {
  std::string_view name;
  Handler handler;
};

constexpr std::array<CommandRow, 14> kCommands = {{
    {"numberoffields", skip},
    {"addfield", skip},
    {"setdateformat", setText<&ReportView::dateFormat>},
    {"setusertitle", setText<&ReportView::userTitle>},
    {"precision", setPrecision},
    {"periodfilename", setText<&ReportView::periodFileName>},
    {"definexfields", defineFields<Axis::X>},
    {"defineyfields", defineFields<Axis::Y>},
    {"definezfields", defineFields<Axis::Z>},
    {"definedatafields", defineFields<Axis::Data>},
    {"definehiddenfields", defineFields<Axis::Hidden>},
    {"setflags", setFlags},
    {"defineprintoptions", definePrintOptions},
    {"addbreak", addBreak},
}};

bool runCommand(CommandLines& lines, ViewBuilder& builder, const std::vector<std::string>& words) {
  const auto row = std::find_if(kCommands.begin(), kCommands.end(),
                                [&words](const CommandRow& each) { return each.name == words[0]; });
  if (row == kCommands.end()) {
    reportUnknownCommand(lines, words[0]);
    return false;
  }
  if (!row->handler(builder, argumentsOf(words))) {
    reportBadLine(lines);
    return false;
  }
  return true;
}

}  // namespace

std::vector<FieldDef> readFieldRecords(std::string_view file, TextOutput& errors) {
  std::vector<FieldDef> fields;
  readFields(file, fields, errors);
  return fields;
}

std::optional<ParsedView> parseViewFile(std::string_view file, Notice& notice, TextOutput& errors) {
  ParsedView parsed;
  parsed.fields = std::make_unique<Table>();
  if (!readFields(file, parsed.fields->fields, errors)) {
    return std::nullopt;
  }
  parsed.view = makeReportView(*parsed.fields, notice);
  ViewBuilder builder{.view = parsed.view, .lists = {parsed.view, parsed.fields->fieldCount()}};
  CommandLines lines = commandLines(file, Pass::View, errors);
  std::vector<std::string> words;
  while (nextCommand(lines, words)) {
    if (!runCommand(lines, builder, words)) {
      return std::nullopt;
    }
  }
  for (std::size_t axis = 0; axis < kAxisCount; ++axis) {
    parsed.view.axes[axis] = builder.lists.list(axis);
  }
  return parsed;
}

}  // namespace vrel
