#include "model/report_view.h"

#include <algorithm>
#include <array>
#include <functional>
#include <utility>

namespace vrel {
namespace {

constexpr std::string_view kDefaultTitle = translatable("vrel", "Default View Title");

// The inner letters of "period" and "time", so that capitalised names match too; other mixtures of
// capitals deliberately do not.
constexpr std::array<std::string_view, 4> kTimeSounds = {"iod", "IOD", "ime", "IME"};

bool soundsLikeTime(std::string_view name) {
  return std::any_of(kTimeSounds.begin(), kTimeSounds.end(), [name](std::string_view sound) {
    return name.find(sound) != std::string_view::npos;
  });
}

Axis defaultAxis(const FieldDef& field) {
  if (!field.isKey()) {
    return Axis::Data;
  }
  return soundsLikeTime(field.name) ? Axis::Y : Axis::X;
}

// Which fields of a list are to be moved.
using Wanted = std::function<bool(int field)>;

// Takes the fields that are keys (or, with `keys` off, that are none) out of one list and puts
// them before another one; the last one found ends up first.
void moveToFront(ReportView& view, Axis from, Axis to, bool keys, const Wanted& wanted) {
  std::vector<int>& source = view.axis(from);
  const auto stays = [&](int field) {
    return view.table->field(field).isKey() != keys || !wanted(field);
  };
  const auto moved = std::stable_partition(source.begin(), source.end(), stays);
  std::vector<int>& target = view.axis(to);
  target.insert(target.begin(), std::make_reverse_iterator(source.end()),
                std::make_reverse_iterator(moved));
  source.erase(moved, source.end());
}

void moveMisplaced(ReportView& view, const Wanted& wanted) {
  for (const Axis axis : {Axis::Z, Axis::X, Axis::Y}) {
    moveToFront(view, axis, Axis::Data, false, wanted);
  }
  for (const Axis axis : {Axis::Data, Axis::Hidden}) {
    moveToFront(view, axis, Axis::X, true, wanted);
  }
}

constexpr std::string_view kNameSeparator = ",  ";
constexpr std::string_view kLastNameSeparator = "  and  ";

// The names of a list, each followed by a separator, the last one included.
std::string namesWithSeparators(const ReportView& view, Axis axis) {
  const std::vector<int>& fields = view.axis(axis);
  std::string text;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (i > 0 && i + 1 == fields.size()) {
      text.resize(text.size() - kNameSeparator.size());
      text += kLastNameSeparator;
    }
    text += view.table->field(fields[i]).name;
    text += kNameSeparator;
  }
  return text;
}

std::string names(const ReportView& view, Axis axis) {
  std::string text = namesWithSeparators(view, axis);
  text.resize(text.size() - std::min(text.size(), kNameSeparator.size()));
  return text;
}

}  // namespace

ReportView makeReportView(Table& table, Notice& notice) {
  ReportView view;
  view.table = &table;
  view.userTitle = notice.translate(kDefaultTitle);
  view.breaks.resize(table.fieldCount());
  for (int i = 0; i < static_cast<int>(table.fieldCount()); ++i) {
    view.axis(defaultAxis(table.field(i))).push_back(i);
    view.breaks[static_cast<std::size_t>(i)].fieldIndex = i;
  }
  guessView(view);
  return view;
}

void applyFormatSettings(const ReportView& view, FormatSettings& settings) {
  settings.precision = view.precision;
  settings.dateFormat = view.dateFormat;
}

bool guessView(ReportView& view) {
  moveMisplaced(view, [](int) { return true; });
  return true;
}

void guessView(ReportView& view, const std::vector<bool>& fields) {
  moveMisplaced(view, [&fields](int field) { return fields[static_cast<std::size_t>(field)]; });
}

std::string systemTitle(const ReportView& view) {
  std::string title = names(view, Axis::Data);
  if (view.table->aggregated) {
    title += "  (Aggregated)";
  }
  title += "\n(" + names(view, Axis::X) + "  by  " + namesWithSeparators(view, Axis::Y);
  // The closing parenthesis takes the place of the separator behind the last y field. Without y
  // fields it cuts into the "by": readers of the titles know this form.
  title.resize(title.size() - kNameSeparator.size());
  return title + ")";
}

std::string reportTitle(const ReportView& view) {
  if (!view.showSystemTitle) {
    return view.userTitle;
  }
  return view.userTitle.empty() ? systemTitle(view) : view.userTitle + "\n" + systemTitle(view);
}

std::vector<int> viewKeys(const ReportView& view) {
  std::vector<int> keys;
  for (const Axis axis : {Axis::Z, Axis::X, Axis::Y}) {
    keys.insert(keys.end(), view.axis(axis).begin(), view.axis(axis).end());
  }
  return keys;
}

std::string reportName(const ReportView& view) {
  return view.shortTitle.empty() ? view.userTitle : view.shortTitle;
}

}  // namespace vrel
