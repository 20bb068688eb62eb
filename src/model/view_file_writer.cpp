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

// A list too long for one line goes on in further lines of the same command, which append.
void writeFieldList(TextOutput& output, std::string_view command, const std::vector<int>& fields) {
  std::string line;
  addWord(line, command);
  const std::size_t bare = line.size();
  for (const int field : fields) {
    std::string word;
    addQuoted(word, std::to_string(field));
    if (line.size() + word.size() >= kMaxViewLine) {
      writeLine(output, line);
      line.resize(bare);
    }
    line += word;
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

// Operations that would make the line longer than a reader takes are left out: they would make
// the whole file unreadable.
void addOperations(std::string& line, const BreakDefinition& definition, std::size_t fieldCount) {
  addWord(line, "<BreakOperations>");
  for (int field = 0; field < static_cast<int>(fieldCount); ++field) {
    std::string word;
    addQuoted(word, operationName(operationOf(definition, field)));
    if (line.size() + word.size() >= kMaxViewLine) {
      return;
    }
    line += word;
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
