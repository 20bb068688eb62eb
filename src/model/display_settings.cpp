#include "model/display_settings.h"

#include <algorithm>
#include <utility>

#include "model/date.h"
#include "model/period_file.h"

namespace vrel {
namespace {

constexpr std::string_view kExampleDate = "8/25/2014 17:30:00";

bool holds(const std::vector<int>& fields, int field) {
  return std::find(fields.begin(), fields.end(), field) != fields.end();
}

int precisionInForce(int precision) {
  return precision < 0 ? kDefaultPrecision : std::min(precision, kMaxPrecision);
}

void showFields(ReportView& view, const std::vector<int>& shown) {
  std::vector<int>& hidden = view.axis(Axis::Hidden);
  std::erase_if(hidden, [&shown](int field) { return holds(shown, field); });
  for (const int field : view.axis(Axis::Data)) {
    if (!holds(shown, field)) {
      hidden.push_back(field);
    }
  }
  view.axis(Axis::Data) = shown;
}

}  // namespace

DisplaySettings displaySettings(const ReportView& view) {
  return {.shownFields = view.axis(Axis::Data),
          .duplicateLabels = view.repeatLabels,
          .systemTitle = view.showSystemTitle,
          .emptyRowsAndColumns = view.showEmptyRowsAndColumns,
          .dateFormat = view.dateFormat,
          .precision = precisionInForce(view.precision),
          .periodFile = view.periodFileName,
          .userTitle = view.userTitle};
}

std::vector<int> availableFields(const ReportView& view) {
  std::vector<bool> taken(view.table->fieldCount());
  for (const Axis axis : {Axis::X, Axis::Y, Axis::Z, Axis::Data}) {
    for (const int field : view.axis(axis)) {
      taken[static_cast<std::size_t>(field)] = true;
    }
  }
  std::vector<int> available;
  for (std::size_t i = 0; i < taken.size(); ++i) {
    if (!taken[i]) {
      available.push_back(static_cast<int>(i));
    }
  }
  return available;
}

bool applyDisplaySettings(ReportView& view, const DisplaySettings& chosen,
                          FormatSettings& settings) {
  if (chosen == displaySettings(view)) {
    return false;
  }
  showFields(view, chosen.shownFields);
  view.repeatLabels = chosen.duplicateLabels;
  view.showSystemTitle = chosen.systemTitle;
  view.showEmptyRowsAndColumns = chosen.emptyRowsAndColumns;
  view.dateFormat = chosen.dateFormat;
  view.precision = chosen.precision;
  view.periodFileName = chosen.periodFile;
  view.userTitle = chosen.userTitle;
  applyFormatSettings(view, settings);
  return true;
}

bool rereadPeriodFile(const ReportView& view, Notice& notice) {
  const PeriodLengths& lengths = view.table->periodLengths;
  const auto byText = lengths.statedByText;
  const auto byStart = lengths.statedByStart;
  readPeriodFile(view, notice);
  return lengths.statedByText != byText || lengths.statedByStart != byStart;
}

std::string exampleDate(const std::string& dateFormat) {
  std::string text;
  appendDate(text, parseDate(kExampleDate).seconds, dateFormat, Quoting::None);
  return text;
}

}  // namespace vrel
