#include "support/printed.h"

#include "model/date.h"
#include "output/postscript_pen.h"
#include "output/postscript_report.h"
#include "support/views.h"

namespace vrel::test {

PrintJob smallJob() {
  PrintJob job;
  job.pageWidth = 300;
  job.pageHeight = 200;
  job.sideMargin = 20;
  job.endMargin = 20;
  job.title = "Plan";
  job.userName = "ann";
  job.created = parseDate("1/5/2026 10:20:30").seconds;
  return job;
}

std::string postScriptOf(const PrintJob& job, ReportView& view, PageChoice choice) {
  SilentNotice notice;
  FormatSettings settings;
  settings.precision = 1;
  std::string text;
  TextOutput output = TextOutput::toMemory(text);
  ReportPages pages(view, choice);
  TaskProgress progress(notice, "Printing");
  writePostScript(job, pages, settings, output, progress);
  output.flush();
  return text;
}

std::vector<std::string> pagesOf(std::string_view document) {
  constexpr std::string_view kBegin = "%%Page: ";
  std::vector<std::string> pages;
  std::size_t begin = document.find(kBegin);
  while (begin != std::string_view::npos) {
    const std::size_t next = document.find(kBegin, begin + 1);
    const std::string_view page = document.substr(begin, next - begin);
    pages.emplace_back(page.substr(kBegin.size()));
    begin = next;
  }
  return pages;
}

std::vector<std::string> shownOn(std::string_view page) {
  constexpr std::string_view kEnd = ") show\n";
  std::vector<std::string> texts;
  while (!page.empty()) {
    const std::string_view line = page.substr(0, page.find('\n') + 1);
    if (line.front() == '(' && line.ends_with(kEnd)) {
      texts.emplace_back(line.substr(1, line.size() - 1 - kEnd.size()));
    }
    page.remove_prefix(line.empty() ? page.size() : line.size());
  }
  return texts;
}

std::size_t countOf(std::string_view piece, std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = text.find(piece); at != std::string_view::npos;
       at = text.find(piece, at + 1)) {
    ++count;
  }
  return count;
}

std::string postScriptString(std::string_view text) {
  std::string shown;
  {
    TextOutput output = TextOutput::toMemory(shown);
    CoordinateTexts coordinates;
    PostScriptPen(output, coordinates).show(0, 0, text);
  }
  if (shown.empty()) {
    return {};
  }
  const std::size_t begin = shown.find('(') + 1;
  return shown.substr(begin, shown.rfind(") show\n") - begin);
}

}  // namespace vrel::test
