#include "output/html_form.h"

#include <fmt/format.h>

#include <algorithm>

#include "base/utf8.h"
#include "model/date.h"
#include "model/row_cells.h"

namespace vrel {
namespace {

constexpr std::uint32_t kNoToken = 0xffffffff;

constexpr char kNameSeparator = '_';

/// Inputs are a little wider than the longest text.
constexpr std::size_t kInputMargin = 2;

std::vector<int> keyFieldsOf(const Table& table) {
  std::vector<int> keys;
  for (int field = 0; field < static_cast<int>(table.fieldCount()); ++field) {
    if (table.field(field).isKey()) {
      keys.push_back(field);
    }
  }
  return keys;
}

bool standsBefore(const FieldValue& a, const FieldValue& b) {
  return a.owner->type != b.owner->type ? a.owner->type < b.owner->type : compareValues(a, b) < 0;
}

void appendNumber(std::string& text, std::uint64_t number) {
  const fmt::format_int digits(number);
  text.append(digits.data(), digits.size());
}

/// Dates are written so that the script can read them, whatever the view's date format is.
std::string tokenText(const FieldValue& token, const FormatSettings& settings) {
  if (token.owner->type != FieldType::Date) {
    return formatValue(token, settings, Quoting::None);
  }
  std::string text;
  appendDate(text, token.cell.time, "%Y/%m/%d %H:%M:%S", Quoting::None);
  return text;
}

bool readsAsYes(std::string_view text) {
  return !text.empty() && std::string_view("YyTt").find(text.front()) != std::string_view::npos;
}

void writeHiddenInput(TextPen& pen, std::string_view name, std::string_view text) {
  pen.write("<input type=hidden name=");
  pen.write(name);
  pen.write(" value=\"");
  writeFormText(pen, text);
  pen.write("\">\n");
}

void writeHiddenCount(TextPen& pen, std::string_view name, std::size_t count) {
  pen.write(fmt::format("<input type=hidden name={} value={}>\n", name, count));
}

void writeSelect(TextPen& pen, std::string_view name, std::string_view text) {
  pen.write("<select name=");
  pen.write(name);
  pen.write(readsAsYes(text) ? "> <option selected> Yes <option> No </select>"
                             : "> <option> Yes <option selected> No </select>");
}

}  // namespace

bool hasEditForm(const Table& table) {
  return std::any_of(table.fields.begin(), table.fields.end(), [](const FieldDef& field) {
    return field.classification == Classification::DataReadWrite && !field.isExpression();
  });
}

void writeFormText(TextPen& pen, std::string_view text) {
  while (!text.empty()) {
    const std::size_t plain = std::min(text.find_first_of("\"%"), text.size());
    pen.write(text.substr(0, plain));
    text.remove_prefix(plain);
    if (!text.empty()) {
      pen.write(text.front() == '"' ? "%22" : "%25");
      text.remove_prefix(1);
    }
  }
}

FormTokens::FormTokens(const ReportGrid& grid) : keyFields_(keyFieldsOf(*grid.table)) {
  for (const int field : keyFields_) {
    const FieldDef& definition = grid.table->field(field);
    FieldTokens& tokens = fields_.emplace_back();
    if (definition.type == FieldType::String) {
      tokens.byText.assign(definition.texts.size(), kNoToken);
    }
  }
  number(collect(grid));
}

std::uint32_t FormTokens::tokenOf(std::size_t keyIndex, Cell cell) const {
  const FieldTokens& tokens = fields_[keyIndex];
  return tokens.byText.empty() ? tokens.byBits.find(cell.bits)->second : tokens.byText[cell.text];
}

std::uint32_t& FormTokens::slotOf(std::size_t keyIndex, Cell cell) {
  FieldTokens& tokens = fields_[keyIndex];
  return tokens.byText.empty() ? tokens.byBits.try_emplace(cell.bits, kNoToken).first->second
                               : tokens.byText[cell.text];
}

/// The different cells of each key field, in the order in which the grid has them.
std::vector<FormTokens::KeyValue> FormTokens::collect(const ReportGrid& grid) {
  std::vector<KeyValue> values;
  for (std::size_t i = 0; i < keyFields_.size(); ++i) {
    for (const GridEntry& entry : grid.entries) {
      const FieldValue value = grid.table->value(entry.tuple, keyFields_[i]);
      std::uint32_t& slot = slotOf(i, value.cell);
      if (slot == kNoToken) {
        slot = 0;
        values.push_back({i, value});
      }
    }
  }
  return values;
}

void FormTokens::number(std::vector<KeyValue> values) {
  std::stable_sort(values.begin(), values.end(), [](const KeyValue& a, const KeyValue& b) {
    return standsBefore(a.value, b.value);
  });
  for (const KeyValue& each : values) {
    if (tokens_.empty() || standsBefore(tokens_.back(), each.value)) {
      tokens_.push_back(each.value);
    }
    slotOf(each.keyIndex, each.value.cell) = static_cast<std::uint32_t>(tokens_.size() - 1);
  }
}

InputNames::InputNames(const Table& table, const FormTokens& tokens)
    : table_(table), tokens_(tokens), lastTokens_(tokens.keyFields().size(), kNoToken) {}

std::string_view InputNames::next(CellRef cell) {
  name_ = "x";
  if (lastField_ < 0 || cell.tuple != lastTuple_) {
    addKeys(cell.tuple);
  }
  if (cell.field != lastField_) {
    appendNumber(name_, static_cast<std::uint64_t>(cell.field));
  } else if (name_.back() == kNameSeparator) {
    name_.pop_back();
  }
  lastTuple_ = cell.tuple;
  lastField_ = cell.field;
  return name_;
}

void InputNames::addKeys(std::uint32_t tuple) {
  for (std::size_t i = 0; i < lastTokens_.size(); ++i) {
    const int field = tokens_.keyFields()[i];
    const std::uint32_t token = tokens_.tokenOf(i, table_.cell(tuple, field));
    if (token != lastTokens_[i]) {
      lastTokens_[i] = token;
      appendNumber(name_, static_cast<std::uint64_t>(field));
      name_ += kNameSeparator;
      appendNumber(name_, token);
      name_ += kNameSeparator;
    }
  }
}

EditForm::EditForm(const ReportGrid& grid, const FormatSettings& settings)
    : grid_(grid),
      settings_(settings),
      tokens_(grid),
      names_(*grid.table, tokens_),
      longest_(grid.columns - grid.labelColumns, 0) {
  for (const int field : grid.dataFields) {
    isEditable_.push_back(grid.table->field(field).classification == Classification::DataReadWrite);
  }
}

bool EditForm::measure(TaskProgress& progress, std::size_t part) {
  CellTexts texts(grid_, settings_);
  std::vector<RowCell> cells;
  for (std::size_t row = 0; row < grid_.rows; ++row) {
    if (!progress.at(part, row, 2 * grid_.rows)) {
      return false;
    }
    findRowCells(grid_, row, cells);
    for (const RowCell& cell : cells) {
      const std::string_view text = texts.text(cell);
      std::size_t& longest = longest_[cell.column - grid_.labelColumns];
      // A text has no more characters than bytes.
      if (text.size() > longest) {
        longest = std::max(longest, characterCount(text));
      }
    }
  }
  return true;
}

void EditForm::writeBegin(TextPen& pen, std::string_view title) const {
  pen.write("<form action=\"cgi-bin/EditFromDE.cgi\" method=post>\n");
  writeHiddenInput(pen, "init_table", title.empty() ? "undefined" : title);
  writeHiddenCount(pen, "numFld", grid_.table->fieldCount());
  for (std::size_t i = 0; i < grid_.table->fieldCount(); ++i) {
    writeHiddenInput(pen, fmt::format("fld_{}", i), grid_.table->fields[i].name);
  }
  writeHiddenCount(pen, "numTok", tokens_.size());
  // The script reads numbers without separators and "*".
  FormatSettings plain = settings_;
  const PlainNumbers scope(plain);
  for (std::size_t i = 0; i < tokens_.size(); ++i) {
    writeHiddenInput(pen, fmt::format("tok_{}", i), tokenText(tokens_[i], plain));
  }
}

void EditForm::writeEnd(TextPen& pen) {
  pen.write("<input type=submit value=\"Apply Changes\"> <p>\n</form>\n");
}

bool EditForm::takesInput(const RowCell& cell) const {
  return cell.tuple != RowCell::kSummary && isEditable_[cell.data];
}

void EditForm::writeInput(TextPen& pen, const RowCell& cell, std::string_view text) {
  const int field = grid_.dataFields[cell.data];
  const std::string_view name = names_.next({cell.tuple, field});
  if (grid_.table->field(field).type == FieldType::Boolean) {
    writeSelect(pen, name, text);
    return;
  }
  pen.write("<input name=");
  pen.write(name);
  const fmt::format_int width(longest_[cell.column - grid_.labelColumns] + kInputMargin);
  pen.write(" size=");
  pen.write({width.data(), width.size()});
  pen.write(" value=\"");
  writeFormText(pen, text);
  pen.write("\">");
}

}  // namespace vrel
