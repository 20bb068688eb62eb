#include "model/table_dump.h"

#include "model/value_writer.h"

namespace vrel {
namespace {

void writeFieldNames(const Table& table, TextPen& pen) {
  for (std::size_t i = 0; i < table.fieldCount(); ++i) {
    pen.write(i == 0 ? "\"" : "\t\"");
    pen.write(table.fields[i].name);
    pen.put('"');
  }
  pen.put('\n');
}

/// Quotes stand around the text whatever it is, an empty one included.
bool standsInQuotes(const FieldDef& field) {
  return field.type == FieldType::String || field.type == FieldType::Date;
}

void writeCell(const FieldDef& field, ValueWriter& writer, Cell cell, TextPen& pen) {
  if (standsInQuotes(field)) {
    pen.put('"');
    writer.write(pen, cell);
    pen.put('"');
  } else {
    writer.write(pen, cell);
  }
}

}  // namespace

void dumpTable(const Table& table, const FormatSettings& settings, TextOutput& output) {
  std::vector<ValueWriter> writers = makeValueWriters(table.fields, settings, Quoting::None);
  TextPen pen(output);
  writeFieldNames(table, pen);
  for (std::size_t tuple = 0; tuple < table.tupleCount; ++tuple) {
    const Cell* cells = table.tuple(tuple);
    for (std::size_t i = 0; i < writers.size(); ++i) {
      if (i > 0) {
        pen.put('\t');
      }
      writeCell(table.fields[i], writers[i], cells[i], pen);
    }
    pen.put('\n');
  }
}

}  // namespace vrel
