// Documents of many z pages, cancelled ones, large and random ones.
#include <gmock/gmock.h>

#include <chrono>
#include <set>
#include <thread>

#include "base/words.h"
#include "output/font_metrics.h"
#include "output/postscript_pen.h"
#include "output/postscript_report.h"
#include "output/print_layout.h"
#include "support/printed.h"
#include "support/random_reports.h"
#include "support/tables.h"
#include "support/views.h"

namespace vrel {
namespace {

using test::countOf;
using test::pagesOf;
using test::postScriptOf;
using test::postScriptString;
using test::shownOn;
using test::smallJob;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

/// Three plants, each on a z page.
class PostScriptZPages : public testing::Test {
 protected:
  Table table_ = test::tableOf(
      "Item:String Plant:String Week:Period Qty:Number", "W1 W2",
      {"Bolt North W1 1", "Bolt North W2 2", "Nut South W1 3", "Pin West W1 4", "Pin West W2 5"});
  ReportView view_ = test::viewOf(table_, {0}, {2}, {1}, {3});
  PrintJob job_ = smallJob();
};

TEST_F(PostScriptZPages, AreCountedThroughTheDocumentAndHeadedByTheirNames) {
  job_.pageWidth = 120;
  view_.zIndex = 1;
  const std::string text = postScriptOf(job_, view_);
  EXPECT_THAT(text, HasSubstr("%%Pages: 5\n"));
  std::vector<std::string> numbers;
  for (const std::string& page : pagesOf(text)) {
    std::string number = page.substr(0, page.find('\n')) + ":";
    for (const std::string& shown : shownOn(page)) {
      if (shown == "North" || shown == "South" || shown == "West" || shown.starts_with("Page")) {
        number += " " + shown;
      }
    }
    numbers.push_back(number);
  }
  EXPECT_THAT(
      numbers,
      ElementsAre("1 1: North Page: 1.1   \\(1 of 5\\)", "2 2: North Page: 1.2   \\(2 of 5\\)",
                  "3 3: South Page: 1.1   \\(3 of 5\\)", "4 4: West Page: 1.1   \\(4 of 5\\)",
                  "5 5: West Page: 1.2   \\(5 of 5\\)"));
  EXPECT_EQ(view_.zIndex, 1);
}

TEST_F(PostScriptZPages, AreJustTheCurrentOneWhenAskedFor) {
  view_.zIndex = 2;
  const std::string text = postScriptOf(job_, view_, PageChoice::Current);
  EXPECT_EQ(pagesOf(text).size(), 1U);
  EXPECT_THAT(text, HasSubstr("(West) show\n"));
  EXPECT_THAT(text, HasSubstr("(Pin) show\n"));
  EXPECT_THAT(text, Not(HasSubstr("(Bolt)")));
}

TEST_F(PostScriptZPages, EndWithAColumnThatIsTooWide) {
  Table table = test::tableOf(
      "Item:String Plant:String Note:String", "",
      {"Bolt North ok", "Nut South a-note-that-is-much-too-wide-for-paper", "Pin West ok"});
  ReportView view = test::viewOf(table, {0}, {}, {1}, {2});
  job_.pageWidth = 160;
  const std::string text = postScriptOf(job_, view);
  const std::vector<std::string> pages = pagesOf(text);
  ASSERT_EQ(pages.size(), 2U);
  EXPECT_THAT(text, HasSubstr("%%Pages: 2\n"));
  EXPECT_THAT(pages[1], HasSubstr("Error: Column 2 is too wide"));
}

/// Goes on while texts are measured and cancels once they are written.
class CancellingNotice : public test::SilentNotice {
 public:
  bool progress(std::string_view /*task*/, std::uint64_t done, std::uint64_t total) override {
    return done < total / 2;
  }
};

/// A report of so many rows.
Table longTable(int rows) {
  std::vector<std::string> lines;
  for (int row = 0; row < rows; ++row) {
    lines.push_back("Item" + std::to_string(row) + " 1");
  }
  return test::tableOf("Item:String Qty:Number", "", lines);
}

TEST(PostScriptDocument, IsCancelledWhileItIsWritten) {
  Table table = longTable(5000);
  ReportView view = test::viewOf(table, {0}, {}, {}, {1});
  CancellingNotice notice;
  ReportPages pages(view, PageChoice::All);
  std::string text;
  {
    // Each block takes so long that the person is asked again.
    TextOutput output([&text](std::string_view block) {
      std::this_thread::sleep_for(std::chrono::milliseconds(60));
      text += block;
      return true;
    });
    TaskProgress progress(notice, "Printing");
    EXPECT_FALSE(writePostScript(smallJob(), pages, {}, output, progress));
  }
  const std::size_t written = pagesOf(text).size();
  EXPECT_GT(written, 1U);
  EXPECT_THAT(text, Not(HasSubstr("%%Pages: " + std::to_string(written) + "\n")));
}

TEST(PostScriptDocument, RepeatsTheLabelsOfPagesOfVeryManyRows) {
  std::vector<std::string> lines;
  for (int row = 0; row < 10500; ++row) {
    lines.push_back("Item" + std::to_string(row) + " W1 1");
  }
  lines.emplace_back("Item0 W2 1");
  Table table = test::tableOf("Item:String Week:Period Qty:Number", "W1 W2", lines);
  ReportView view = test::viewOf(table, {0}, {1}, {}, {2});
  PrintJob job = smallJob();
  job.fontSize = 0.01;
  job.pageWidth = 40.1;
  const std::vector<std::string> pages = pagesOf(postScriptOf(job, view));
  ASSERT_EQ(pages.size(), 2U);
  for (const std::string& page : pages) {
    EXPECT_EQ(countOf("(Item", page), 10500U + 1);
    EXPECT_THAT(page, HasSubstr("(Item10499) show\n"));
  }
}

TEST(PostScriptDocument, RepeatsHeadingsOfAnyLength) {
  const std::string longName(8000, 'w');
  std::vector<std::string> lines;
  for (int week = 100; week < 700; ++week) {
    const std::string name = longName + std::to_string(week);
    for (const char* item : {"Bolt ", "Nut "}) {
      lines.push_back(item + name + " 1");
    }
  }
  Table table = test::tableOf("Item:String Week:String Qty:Number", "", lines);
  ReportView view = test::viewOf(table, {0}, {1}, {}, {2});
  PrintJob job = smallJob();
  job.pageWidth = 600 * 8000 * 10;
  job.pageHeight = 140;  // one row a page
  const std::vector<std::string> pages = pagesOf(postScriptOf(job, view));
  ASSERT_EQ(pages.size(), 2U);
  for (const std::string& page : pages) {
    EXPECT_EQ(countOf("w100) show", page), 1U);
    EXPECT_EQ(countOf("(www", page), 600U);
  }
}

/// Cancels at once.
class RefusingNotice : public test::SilentNotice {
 public:
  bool progress(std::string_view, std::uint64_t, std::uint64_t) override { return false; }
};

TEST(PostScriptDocument, IsNotBegunWhenCancelledWhileItIsMeasured) {
  Table table = longTable(1);
  ReportView view = test::viewOf(table, {0}, {}, {}, {1});
  RefusingNotice notice;
  ReportPages pages(view, PageChoice::All);
  std::string text;
  {
    TextOutput output = TextOutput::toMemory(text);
    TaskProgress progress(notice, "Printing");
    EXPECT_FALSE(writePostScript(smallJob(), pages, {}, output, progress));
  }
  EXPECT_EQ(text, "");
}

TEST(PostScriptReportOfRandomShape, ShowsEveryTextOfTheGridOnceAndCountsItsPages) {
  std::mt19937 random(5);
  int complete = 0;
  for (int i = 0; i < 200; ++i) {
    test::RandomReport report(random);
    PrintJob job = smallJob();
    job.title = "";
    job.pageWidth = 250 + static_cast<double>(test::randomBelow(random, 300));
    job.pageHeight = 200 + static_cast<double>(test::randomBelow(random, 300));
    job.repeatLabels = false;
    job.repeatHeadings = false;
    job.fitToWidth = i % 4 == 0;
    job.fitToHeight = job.fitToWidth;
    job.bestOnePageFit = i % 5 == 0;
    FormatSettings settings;
    settings.precision = 1;
    std::multiset<std::string> expected;
    const auto expect = [&expected](std::string_view text) {
      if (!measureText(findFontMetrics(kBodyFont), text).isBlank) {
        expected.insert(postScriptString(text));
      }
    };
    for (std::size_t column = 0; column < report.grid.columns; ++column) {
      const std::string heading = columnHeading(report.grid, settings, column);
      for (const std::string_view line : linesOf(heading)) {
        expect(line);
      }
      for (std::size_t row = 0; row < report.grid.rows; ++row) {
        expect(cellText(report.grid, settings, row, column));
      }
    }
    const std::string text = postScriptOf(job, report.view);
    const std::vector<std::string> pages = pagesOf(text);
    EXPECT_THAT(text, HasSubstr("\n%%Pages: " + std::to_string(pages.size()) + "\n"));
    if (countOf("(Error: Column ", text) > 0) {
      continue;
    }
    ++complete;
    std::multiset<std::string> shown;
    for (const std::string& page : pages) {
      for (const std::string& each : shownOn(page)) {
        if (!each.starts_with("Page: ") && each != "05 Jan 2026 10:20") {
          shown.insert(each);
        }
      }
    }
    ASSERT_EQ(shown, expected) << "report " << i;
  }
  EXPECT_GT(complete, 150);
}

}  // namespace
}  // namespace vrel
