#include "output/html_report.h"

#include <fmt/format.h>

#include <string_view>

#include "base/text_pen.h"
#include "model/date.h"
#include "output/html_page_label.h"
#include "output/html_table.h"

namespace vrel {
namespace {

constexpr std::string_view kBanner =
    "\n"
    "<!-- HTML output of the Kaprilon Data Editor. -->\n"
    "\n"
    "<!-- This output requires a HTML browser. -->\n"
    "<!-- If this message prints out, you may have one of the -->\n"
    "<!-- following problems: -->\n"
    "\n"
    "<!-- 1) you are printing to a printer! -->\n"
    "<!--  (you should print to a file and browse that file with an HTML browser). -->\n"
    "\n";

/// Without a zone: the document is read where it was made.
constexpr const char* kCreationPattern = "%Y-%m-%dT%H:%M:%S";

void writeComment(TextPen& pen, std::string_view name, std::string_view text) {
  pen.write(fmt::format("<!-- {}: {} -->\n", name, text));
}

void writeHead(const HtmlReportWriter& writer, TextPen& pen) {
  writeComment(pen, "Title", writer.title);
  writeComment(pen, "Creator", "Vrel");
  writeComment(pen, "For", writer.userName);
  std::string created;
  appendDate(created, writer.creationTime, kCreationPattern, Quoting::None);
  writeComment(pen, "CreationDate", created);
  pen.write("<!-- EndComments -->\n");
  pen.write(writer.banner ? kBanner : "");
  if (writer.fullDocument) {
    pen.write("<html>\n<head>\n");
    if (!writer.title.empty()) {
      pen.write(fmt::format("<title>\n{}\n</title>\n", writer.title));
    }
    pen.write("</head>\n<body bgcolor=#ffffff text=#000000>\n");
  }
  pen.write("<p><a name=\"top\"> </a></p>\n");
}

void writeFoot(const HtmlReportWriter& writer, TextPen& pen) {
  if (writer.footer) {
    pen.write(fmt::format("<p>{}\n", *writer.footer));
  }
  if (writer.fullDocument) {
    pen.write("</body>\n</html>\n");
  }
}

/// Writes the pages of a document between head and foot.
class PagesWriter {
 public:
  PagesWriter(const HtmlReportWriter& writer, ReportPages& pages, const FormatSettings& settings,
              TextPen& pen, TaskProgress& progress)
      : writer_(writer), pages_(pages), settings_(settings), pen_(pen), progress_(progress) {}

  void writeLinks() {
    for (std::size_t page = 0; page < pages_.count(); ++page) {
      const std::string label = labelOf(page);
      pen_.write(fmt::format("<p><a href=\"#{}\"> {} </a></p>\n", htmlAnchorName(label), label));
    }
  }

  bool writeLinkedTables() {
    for (std::size_t page = 0; page < pages_.count(); ++page) {
      pen_.write(fmt::format("<a name=\"{}\"> </a>\n", htmlAnchorName(labelOf(page))));
      if (!writeTable(page)) {
        return false;
      }
      // The tags at its end are meant to be like this: browsers put up with them.
      pen_.write("<p><a href=\"#top\"> Top <A></P>\n");
    }
    return true;
  }

  bool writeTable(std::size_t page) {
    const HtmlTable table = {.grid = pages_.layOut(page),
                             .settings = settings_,
                             .title = writer_.title,
                             .caption = writer_.title.empty() ? std::string() : labelOf(page),
                             .border = writer_.border};
    return writeHtmlTable(table, pen_, progress_, page);
  }

 private:
  std::string labelOf(std::size_t page) const {
    return htmlPageLabel(writer_.title, pages_.name(page, settings_));
  }

  const HtmlReportWriter& writer_;
  ReportPages& pages_;
  const FormatSettings& settings_;
  TextPen& pen_;
  TaskProgress& progress_;
};

}  // namespace

bool writeHtmlReport(const HtmlReportWriter& writer, ReportPages& pages,
                     const FormatSettings& settings, TextOutput& output, TaskProgress& progress) {
  progress.setParts(pages.count());
  TextPen pen(output);
  writeHead(writer, pen);
  PagesWriter writerOfPages(writer, pages, settings, pen, progress);
  if (pages.hasNames() && pages.choice() == PageChoice::All) {
    writerOfPages.writeLinks();
    if (!writerOfPages.writeLinkedTables()) {
      return false;
    }
  } else if (!writerOfPages.writeTable(0)) {
    return false;
  }
  writeFoot(writer, pen);
  return true;
}

}  // namespace vrel
