// HTML of reports, as text.
#pragma once

#include <string>
#include <string_view>

#include "base/text_pen.h"
#include "model/report_layout.h"
#include "output/html_table.h"
#include "support/views.h"

namespace vrel::test {

/// What an action writes with a pen.
template <typename Action>
std::string penned(Action action) {
  std::string text;
  TextOutput output = TextOutput::toMemory(text);
  {
    TextPen pen(output);
    action(pen);
  }
  output.flush();
  return text;
}

/// The current page of a view as a table without a caption; numbers have no digits behind the
/// point.
inline std::string htmlTableOf(ReportView& view, std::string_view title = "") {
  SilentNotice notice;
  TaskProgress progress(notice, "Writing");
  FormatSettings settings;
  settings.precision = 0;
  const ReportGrid grid = layOut(view);
  return penned([&](TextPen& pen) {
    writeHtmlTable({.grid = grid, .settings = settings, .title = title, .caption = ""}, pen,
                   progress, 0);
  });
}

}  // namespace vrel::test
