// A view printed in PostScript: its print options as they reach the document.
#include <gmock/gmock.h>

#include <array>

#include "output/print_report.h"
#include "support/printed.h"
#include "support/tables.h"
#include "support/temporary_directory.h"
#include "support/views.h"

namespace vrel {
namespace {

/// A line without its text, from the end of what stands before it.
void dropLine(std::string& text, std::string_view before) {
  for (std::size_t at = text.find(before); at != std::string::npos; at = text.find(before, at)) {
    at += before.size();
    text.erase(at, text.find('\n', at) - at);
  }
}

/// A document without the time of its printing.
std::string timeless(std::string document) {
  dropLine(document, "%%CreationDate:");
  dropLine(document, "\n36 36 moveto\n");
  return document;
}

/// An option of the view, and what it means for the job.
struct OptionMeaning {
  const char* name;
  void (*choose)(PrintOptions& options);
  void (*mean)(PrintJob& job);
};

constexpr std::array kMeanings = {
    OptionMeaning{"paper", [](PrintOptions& options) { options.paperType = 10; },
                  [](PrintJob& job) {
                    job.pageWidth = 595;
                    job.pageHeight = 842;
                  }},
    OptionMeaning{"landscape", [](PrintOptions& options) { options.landscape = true; },
                  [](PrintJob& job) { job.landscape = true; }},
    OptionMeaning{"one page", [](PrintOptions& options) { options.bestOnePageFit = true; },
                  [](PrintJob& job) { job.bestOnePageFit = true; }},
    OptionMeaning{"width",
                  [](PrintOptions& options) {
                    options.fitToWidth = true;
                    options.widthPages = 3;
                  },
                  [](PrintJob& job) {
                    job.fitToWidth = true;
                    job.widthPages = 3;
                  }},
    OptionMeaning{"height",
                  [](PrintOptions& options) {
                    options.fitToHeight = true;
                    options.heightPages = 3;
                  },
                  [](PrintJob& job) {
                    job.fitToHeight = true;
                    job.heightPages = 3;
                  }},
    OptionMeaning{"font size", [](PrintOptions& options) { options.fontSize = 12; },
                  [](PrintJob& job) { job.fontSize = 12; }},
    OptionMeaning{"grid", [](PrintOptions& options) { options.separators = false; },
                  [](PrintJob& job) { job.gridLines = false; }},
    OptionMeaning{"title", [](PrintOptions& options) { options.title = "On paper"; },
                  [](PrintJob& job) { job.title = "On paper"; }},
    OptionMeaning{"footer", [](PrintOptions& options) { options.footer = "Secret"; },
                  [](PrintJob& job) { job.footer = "Secret"; }},
    OptionMeaning{"row labels", [](PrintOptions& options) { options.repeatRowLabels = false; },
                  [](PrintJob& job) { job.repeatLabels = false; }},
    OptionMeaning{"headings", [](PrintOptions& options) { options.repeatColumnLabels = false; },
                  [](PrintJob& job) { job.repeatHeadings = false; }},
};

/// Ten items over six weeks at two plants: several pages across and down in letters of 30 points.
class PostScriptPrint : public testing::Test {
 protected:
  test::TemporaryDirectory directory_;
  Table table_ = makeTable();
  ReportView view_ = test::viewOf(table_, {0}, {2}, {1}, {3});
  FormatSettings format_;
  EnvironmentLookup environment_ = [](const char* name) {
    return std::string(std::string_view(name) == "USERNAME" ? "ann" : "");
  };
  test::SilentNotice notice_;
  Spooler spooler_;

  static Table makeTable() {
    std::vector<std::string> lines;
    for (int item = 10; item < 20; ++item) {
      for (int week = 1; week <= 6; ++week) {
        for (const std::string plant : {" North ", " South "}) {
          lines.push_back("Item" + std::to_string(item) + plant + "W" + std::to_string(week) +
                          " 1000");
        }
      }
    }
    return test::tableOf("Item:String Plant:String Week:Period Qty:Number", "W1 W2 W3 W4 W5 W6",
                         lines);
  }

  void SetUp() override {
    format_.precision = 1;
    view_.userTitle = "Plan";
    view_.printOptions.paperType = 11;
    view_.printOptions.fontSize = 30;
  }

  static PrintJob job() {
    PrintJob job;
    job.pageWidth = 420;
    job.pageHeight = 595;
    job.fontSize = 30;
    job.title = "Plan";
    job.userName = "ann";
    return job;
  }

  std::string document(const PrintJob& job, PageChoice choice = PageChoice::Current) {
    return timeless(test::postScriptOf(job, view_, choice));
  }

  std::string printed() {
    printReport({view_, format_, environment_, notice_, spooler_},
                {.file = directory_.path("plan.ps"), .printer = {}});
    return timeless(directory_.read("plan.ps"));
  }
};

TEST_F(PostScriptPrint, IsOfTheCurrentPageWithMarginsOfHalfAnInch) {
  view_.zIndex = 1;
  EXPECT_EQ(printed(), document(job()));
  EXPECT_THAT(printed(), testing::HasSubstr("(South) show\n"));
  EXPECT_GT(test::pagesOf(printed()).size(), 3U);
}

TEST_F(PostScriptPrint, FollowsEachPrintOption) {
  for (const OptionMeaning& meaning : kMeanings) {
    const PrintOptions before = view_.printOptions;
    PrintJob meant = job();
    meaning.choose(view_.printOptions);
    meaning.mean(meant);
    EXPECT_EQ(printed(), document(meant)) << meaning.name;
    EXPECT_NE(printed(), document(job())) << meaning.name;
    view_.printOptions = before;
  }
}

TEST_F(PostScriptPrint, OfAllZPagesIsCountedThroughAndLeavesTheCurrentPageAsItWas) {
  view_.zIndex = 1;
  view_.printOptions.printAllPages = true;
  EXPECT_EQ(printed(), document(job(), PageChoice::All));
  EXPECT_EQ(test::pagesOf(printed()).size(), 2 * test::pagesOf(document(job())).size());
  EXPECT_EQ(view_.zIndex, 1);
}

TEST_F(PostScriptPrint, IsForWhomTheEnvironmentNames) {
  EXPECT_THAT(printed(), testing::HasSubstr("\n%%For: ann\n"));
}

}  // namespace
}  // namespace vrel
