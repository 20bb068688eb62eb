#include <algorithm>
#include <array>

#include "model/print_option_tags.h"
#include "model/view_file.h"
#include "model/view_record.h"

namespace vrel {
namespace {

constexpr std::string_view kBanner =
    "########################################################\n"
    "# DO NOT CHANGE THIS FILE.\n"
    "# DO NOT CREATE THIS FILE THROUGH IMPORT.\n"
    "# This file format is KAPRILON proprietary.\n"
    "# All changes to this file must be achieved through the\n"
    "# appropriate application interface.\n"
    "#\n"
    "# Generating this file by any other means will not\n"
    "# be supported in future releases.\n"
    "########################################################\n";

constexpr std::array<std::string_view, kAxisCount> kListCommands = {
    "definexfields", "defineyfields", "definezfields", "definedatafields", "definehiddenfields"};

void writeLine(TextOutput& output, std::string_view line) {
  output.write(line);
  output.put('\n');
}

void writeSetting(TextOutput& output, std::string_view command, std::string_view text) {
  std::string line;
  addWord(line, command);
  addQuoted(line, text);
  writeLine(output, line);
}

void writeNumber(TextOutput& output, std::string_view command, int number) {
  std::string line;
  addWord(line, command);
  addNumber(line, number);
  writeLine(output, line);
}

void addTag(std::string& line, std::string_view tag, std::string_view text) {
  addWord(line, tag);
  addQuoted(line, text);
}

void addTag(std::string& line, std::string_view tag, int number) {
  addWord(line, tag);
  addNumber(line, number);
}

void addFlag(std::string& line, std::string_view tag, bool flag) {
  addWord(line, tag);
  addTruth(line, flag);
}

void writeField(TextOutput& output, const FieldDef& field, std::size_t index) {
  std::string line;
  addWord(line, "addfield");
  addTag(line, "<Name>", field.name);
  addTag(line, "<Index>", std::to_string(index));
  addTag(line, "<Type>", fieldTypeName(field.type));
  addTag(line, "<Classification>", classificationWord(field.classification));
  addWord(line, "<Hide>");
  addWord(line, field.hidden ? "Yes" : "No");
  if (field.isExpression()) {
    addTag(line, "<Expression>", field.expression.text);
    addTag(line, "<InverseExpression>", field.inverseExpression.text);
  }
  addTag(line, "<HighlightExpression>", field.highlightExpression.text);
  writeLine(output, line);
}

void writeFieldList(TextOutput& output, std::string_view command, const std::vector<int>& fields) {
  std::string line;
  addWord(line, command);
  for (const int field : fields) {
    addQuoted(line, std::to_string(field));
  }
  writeLine(output, line);
}

void writeFlags(TextOutput& output, const ReportView& view) {
  std::string line;
  addWord(line, "setflags");
  addFlag(line, "<DataInColumns>", view.dataInColumns);
  addFlag(line, "<RepeatLabels>", view.repeatLabels);
  addFlag(line, "<ShowEmptyRowsAndColumns>", view.showEmptyRowsAndColumns);
  addFlag(line, "<ShowSystemTitle>", view.showSystemTitle);
  writeLine(output, line);
}

void writePrintOptions(TextOutput& output, const PrintOptions& options) {
  std::string line;
  addWord(line, "defineprintoptions");
  addPrintOptions(line, options);
  writeLine(output, line);
}

// Each field's break names an operation for every field. Beyond this many fields the square of
// their number would make the file unreadably large.
constexpr std::size_t kMaxFieldsWithAllOperations = 1000;

// How many fields' operations are written; those behind them are "Nothing".
int writtenOperations(const BreakDefinition& definition, std::size_t fieldCount) {
  if (fieldCount <= kMaxFieldsWithAllOperations) {
    return static_cast<int>(fieldCount);
  }
  auto count = static_cast<int>(std::min(fieldCount, definition.operations.size()));
  while (count > 0 && operationOf(definition, count - 1) == BreakOperation::Nothing) {
    --count;
  }
  return count;
}

void addOperations(std::string& line, const BreakDefinition& definition, std::size_t fieldCount) {
  addWord(line, "<BreakOperations>");
  const int count = writtenOperations(definition, fieldCount);
  for (int field = 0; field < count; ++field) {
    addQuoted(line, operationName(operationOf(definition, field)));
  }
}

void writeBreak(TextOutput& output, const BreakDefinition& definition, std::size_t fieldCount) {
  std::string line;
  addWord(line, "addbreak");
  addTag(line, "<FieldIndex>", definition.fieldIndex);
  addTag(line, "<Name>", definition.name);
  addTag(line, "<FirstBreak>", definition.firstBreak);
  addTag(line, "<Frequency>", definition.frequency);
  addFlag(line, "<BreakAfter>", definition.breakAfter);
  addFlag(line, "<Active>", definition.active);
  addOperations(line, definition, fieldCount);
  writeLine(output, line);
}

}  // namespace

void writeViewFile(const ReportView& view, TextOutput& output) {
  const std::vector<FieldDef>& fields = view.table->fields;
  output.write(kBanner);
  writeNumber(output, "numberoffields", static_cast<int>(fields.size()));
  writeSetting(output, "setdateformat", view.dateFormat);
  writeSetting(output, "setusertitle", view.userTitle);
  writeNumber(output, "precision", view.precision);
  writeSetting(output, "periodfilename", view.periodFileName);
  for (std::size_t i = 0; i < fields.size(); ++i) {
    writeField(output, fields[i], i);
  }
  for (std::size_t i = 0; i < kAxisCount; ++i) {
    writeFieldList(output, kListCommands[i], view.axes[i]);
  }
  writeFlags(output, view);
  writePrintOptions(output, view.printOptions);
  for (const BreakDefinition& definition : view.breaks) {
    writeBreak(output, definition, fields.size());
  }
}

}  // namespace vrel
