#include <algorithm>
#include <cstdint>
#include <unordered_map>
#include <utility>

#include "model/date.h"
#include "model/key_pass.h"
#include "model/period_file.h"
#include "model/table_sort.h"
#include "model/view_file.h"
#include "model/view_record.h"

namespace vrel {
namespace {

std::size_t firstFormula(const std::vector<FieldDef>& fields) {
  const auto first = std::find_if(fields.begin(), fields.end(),
                                  [](const FieldDef& field) { return field.isExpression(); });
  return static_cast<std::size_t>(first - fields.begin());
}

// A table's name may hold what a view file cannot, so both are compared as a view file has them.
bool sameName(const FieldDef& a, const FieldDef& b) {
  return a.name == b.name || viewFileText(a.name) == viewFileText(b.name);
}

bool fieldsCorrespond(const FieldDef& a, const FieldDef& b) {
  return a.isExpression() == b.isExpression() && (a.isExpression() || sameName(a, b));
}

// For each field of a fitting view the table's column with its values. Plain fields stand at the
// same position in both; a formula keeps the values of the table's formula of that name.
std::vector<int> sourceColumns(const std::vector<FieldDef>& viewFields,
                               const std::vector<FieldDef>& tableFields) {
  std::unordered_map<std::string_view, int> formulas;
  for (std::size_t i = 0; i < tableFields.size(); ++i) {
    if (tableFields[i].isExpression()) {
      formulas.emplace(tableFields[i].name, static_cast<int>(i));
    }
  }
  std::vector<int> source;
  for (const FieldDef& field : viewFields) {
    if (!field.isExpression()) {
      source.push_back(static_cast<int>(source.size()));
      continue;
    }
    const auto formula = formulas.find(field.name);
    source.push_back(formula == formulas.end() ? kNoField : formula->second);
  }
  return source;
}

// The period of a date that is written otherwise than the period names are.
class PeriodsByTime {
 public:
  explicit PeriodsByTime(const PeriodNames& names) {
    for (std::int32_t i = 0; i < names.size(); ++i) {
      const ParsedDate date = parseDate(names.name(i));
      if (date.accepted) {
        periods_.emplace(date.seconds, i);
      }
    }
  }

  // The first period when no name stands for the time.
  [[nodiscard]] std::int32_t find(std::int64_t time) const {
    const auto period = periods_.find(time);
    return period == periods_.end() ? 0 : period->second;
  }

 private:
  std::unordered_map<std::int64_t, std::int32_t> periods_;
};

// Reads the values of a column anew, from their texts as they are shown, as values of another
// type. Texts and periods, of which there are few different ones, are converted once each.
class ColumnConverter {
 public:
  ColumnConverter(FieldDef& from, FieldDef& to, const FormatSettings& settings)
      : from_(from), to_(to), settings_(settings) {
    if (from.type == FieldType::String) {
      known_.resize(from.texts.size());
    } else if (from.type == FieldType::Period) {
      known_.resize(static_cast<std::size_t>(from.periodNames.size()));
    } else if (from.type == FieldType::Date && to.type == FieldType::Period) {
      periodsByTime_.emplace(to.periodNames);
    }
  }

  Cell convert(Cell cell) {
    if (known_.empty()) {
      return convertAnew(cell);
    }
    std::optional<Cell>& known =
        known_[from_.type == FieldType::String ? cell.text : static_cast<std::size_t>(cell.period)];
    if (!known) {
      known = convertAnew(cell);
    }
    return *known;
  }

 private:
  Cell convertAnew(Cell cell) {
    text_.clear();
    appendValue(text_, from_, cell, settings_, Quoting::None);
    Cell converted = parseValue(to_, text_);
    // A column of periods that settled to dates must not fall into one period because the view
    // shows dates in another form than the names have.
    if (periodsByTime_ && to_.periodNames.name(converted.period) != text_) {
      converted.period = periodsByTime_->find(cell.time);
    }
    return converted;
  }

  FieldDef& from_;
  FieldDef& to_;
  const FormatSettings& settings_;
  // Where dates become periods.
  std::optional<PeriodsByTime> periodsByTime_;
  // By text or period.
  std::vector<std::optional<Cell>> known_;
  std::string text_;
};

void changeType(Table& table, int column, FieldType type, const FormatSettings& settings) {
  FieldDef& field = table.field(column);
  FieldDef converted;
  converted.type = type;
  if (type == FieldType::Period) {
    std::swap(converted.periodNames, field.periodNames);
  }
  ColumnConverter converter(field, converted, settings);
  for (std::size_t i = 0; i < table.tupleCount; ++i) {
    table.cell(i, column) = converter.convert(table.cell(i, column));
  }
  if (type == FieldType::Period) {
    std::swap(converted.periodNames, field.periodNames);
  }
  field.type = type;
  field.texts = std::move(converted.texts);
  table.sortedBy.clear();
  // A value noted earlier is none of this type.
  ++table.arrangement;
}

// Whether a plain field of the table can take the type that a view file gives it. A period has to
// be one of the field's names, so that a field without names cannot hold any.
bool takesType(const FieldDef& field, FieldType type) {
  return type != FieldType::Unset && type != field.type &&
         (type != FieldType::Period || field.periodNames.size() > 0);
}

void mergePlainField(Table& table, int column, FieldDef& fromView, const FormatSettings& settings) {
  FieldDef& field = table.field(column);
  field.hidden = fromView.hidden;
  field.highlightExpression = std::move(fromView.highlightExpression);
  if (fromView.classification != Classification::Unset &&
      fromView.classification != field.classification) {
    field.classification = fromView.classification;
    table.sortedBy.clear();
  }
  if (takesType(field, fromView.type)) {
    changeType(table, column, fromView.type, settings);
  }
}

// Gives the table as many columns as there are fields in the view, formulas with the values that
// `source` names. The new formula fields are still without names and texts.
bool arrangeColumns(Table& table, const std::vector<FieldDef>& viewFields,
                    const std::vector<int>& source) {
  std::vector<int> unchanged(table.fieldCount());
  for (std::size_t i = 0; i < unchanged.size(); ++i) {
    unchanged[i] = static_cast<int>(i);
  }
  if (source == unchanged) {
    return true;
  }
  // Plain fields own their columns' texts and must survive the replacement, also a failed one.
  std::vector<std::pair<std::size_t, FieldDef>> plain;
  for (std::size_t i = 0; i < viewFields.size(); ++i) {
    if (!viewFields[i].isExpression()) {
      plain.emplace_back(i, std::move(table.fields[i]));
    }
  }
  const bool replaced = replaceFields(table, std::vector<FieldDef>(viewFields.size()), source);
  for (auto& [index, field] : plain) {
    table.fields[index] = std::move(field);
  }
  return replaced;
}

// Makes the view file's fields the table's fields, with values of other types as the settings show
// them; false, with nothing changed, when memory runs out.
bool mergeFields(Table& table, std::vector<FieldDef>& viewFields, const FormatSettings& settings) {
  if (!arrangeColumns(table, viewFields, sourceColumns(viewFields, table.fields))) {
    return false;
  }
  for (std::size_t i = 0; i < viewFields.size(); ++i) {
    if (viewFields[i].isExpression()) {
      table.fields[i] = std::move(viewFields[i]);
    } else {
      mergePlainField(table, static_cast<int>(i), viewFields[i], settings);
    }
  }
  return true;
}

// What a view file defines; the names of the view and its table stay.
void takeView(ReportView& view, ReportView parsed) {
  parsed.table = view.table;
  parsed.fileName = std::move(view.fileName);
  parsed.exportFileName = std::move(view.exportFileName);
  parsed.shortTitle = std::move(view.shortTitle);
  view = std::move(parsed);
}

}  // namespace

bool viewFitsTable(const std::vector<FieldDef>& viewFields,
                   const std::vector<FieldDef>& tableFields) {
  if (firstFormula(viewFields) != firstFormula(tableFields)) {
    return false;
  }
  const std::size_t shared = std::min(viewFields.size(), tableFields.size());
  for (std::size_t i = 0; i < shared; ++i) {
    if (!fieldsCorrespond(viewFields[i], tableFields[i])) {
      return false;
    }
  }
  const std::vector<FieldDef>& longer =
      viewFields.size() > tableFields.size() ? viewFields : tableFields;
  return std::all_of(longer.begin() + static_cast<std::ptrdiff_t>(shared), longer.end(),
                     [](const FieldDef& field) { return field.isExpression(); });
}

std::optional<ParsedView> parseFittingView(std::string_view file, const Table& table,
                                           Notice& notice, TextOutput& errors) {
  std::optional<ParsedView> parsed = parseViewFile(file, notice, errors);
  if (parsed && !viewFitsTable(parsed->fields->fields, table.fields)) {
    parsed.reset();
  }
  return parsed;
}

bool applyView(ReportView& view, ParsedView parsed, FormatSettings& settings,
               const EnvironmentLookup& environment, Notice& notice) {
  const FormatSettings before = settings;
  applyFormatSettings(parsed.view, settings);
  if (!mergeFields(*view.table, parsed.fields->fields, settings)) {
    settings = before;
    return false;
  }
  takeView(view, std::move(parsed.view));
  removeDuplicateKeys(view, environment, notice);
  readPeriodFile(view, notice);
  sortTuples(*view.table);
  return true;
}

bool readViewFile(ReportView& view, std::string_view file, FormatSettings& settings,
                  const EnvironmentLookup& environment, Notice& notice, TextOutput& errors) {
  std::optional<ParsedView> parsed = parseFittingView(file, *view.table, notice, errors);
  return parsed && applyView(view, *std::move(parsed), settings, environment, notice);
}

bool viewFileFits(const Table& table, std::string_view file, Notice& notice, TextOutput& errors) {
  return parseFittingView(file, table, notice, errors).has_value();
}

}  // namespace vrel
