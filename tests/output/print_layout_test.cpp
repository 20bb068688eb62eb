#include "output/print_layout.h"

#include <gmock/gmock.h>

#include <cmath>

#include "base/words.h"
#include "model/report_layout.h"
#include "output/font_metrics.h"
#include "support/printed.h"
#include "support/random_reports.h"
#include "support/tables.h"
#include "support/views.h"

namespace vrel {
namespace {

using testing::ElementsAre;

/// A page with columns of so many thousandths of the font size, labels first.
MeasuredPage pageOf(std::vector<std::uint32_t> units, std::size_t labelColumns, std::size_t rows,
                    std::size_t headingLines = 1) {
  return {.units = std::move(units),
          .labelColumns = labelColumns,
          .rows = rows,
          .headingLines = headingLines};
}

/// 200 x 300 points with margins of 10.
PrintJob narrowJob() {
  PrintJob job;
  job.pageWidth = 200;
  job.pageHeight = 300;
  job.sideMargin = 10;
  job.endMargin = 10;
  return job;
}

MeasuredPage measured(ReportView& view) {
  test::SilentNotice notice;
  TaskProgress progress(notice, "Printing");
  FormatSettings settings;
  settings.precision = 1;
  MeasuredPage page;
  measurePage(layOut(view), settings, progress, 0, page);
  return page;
}

TEST(MeasurePage, TakesTheWidestOfHeadingAndCellsAndAddsAGapOfOneLine) {
  Table table = test::tableOf("Item:String Week:Period Qty:Number", "W1 Week-2",
                              {"Bolt W1 7", "Bracket W1 1234", "Bolt Week-2 1"});
  ReportView view = test::viewOf(table, {0}, {1}, {}, {2});
  const MeasuredPage page = measured(view);
  const auto units = [](std::string_view text) {
    return static_cast<std::uint32_t>(measureText(findFontMetrics(kBodyFont), text).units + 1500);
  };
  EXPECT_THAT(page.units, ElementsAre(units("Bracket"), units("1,234.0"), units("Week-2")));
  EXPECT_EQ(page.labelColumns, 1U);
  EXPECT_EQ(page.rows, 2U);
  EXPECT_EQ(page.headingLines, 1U);
  EXPECT_FALSE(page.isBeyondAscii);
}

TEST(MeasurePage, MeasuresEachLineOfAHeadingByItself) {
  Table table =
      test::tableOf("Item:String Place:String Week:Period Qty:Number", "Wi", {"Bolt Iowa Wi 7"});
  ReportView view = test::viewOf(table, {0}, {1, 2}, {}, {3});
  const MeasuredPage page = measured(view);
  EXPECT_EQ(page.headingLines, 2U);
  EXPECT_EQ(page.units[1], 278U + 556 + 722 + 556 + 1500);
}

TEST(MeasurePage, AnEmptyColumnIsAsWideAsTheGap) {
  Table table = test::tableOf("Item:String Note:String", "", {"Bolt \"\""});
  table.field(1).hidden = true;
  ReportView view = test::viewOf(table, {0}, {}, {}, {1});
  EXPECT_EQ(measured(view).units[1], 278U + 1500);  // the heading is one blank
}

TEST(MeasurePage, NoticesTextBeyondAsciiInCellsAndHeadings) {
  Table cells = test::tableOf("Item:String Qty:Number", "",
                              {"\xc3\x89"
                               "crou 7"});
  ReportView ofCells = test::viewOf(cells, {0}, {}, {}, {1});
  EXPECT_TRUE(measured(ofCells).isBeyondAscii);
  Table headings = test::tableOf(
      "Gr\xc3\xb6\xc3\x9f"
      "e:String Qty:Number",
      "", {"8 7"});
  ReportView ofHeadings = test::viewOf(headings, {0}, {}, {}, {1});
  EXPECT_TRUE(measured(ofHeadings).isBeyondAscii);
}

TEST(MeasurePage, FindsWhatMeasuringCellByCellFinds) {
  std::mt19937 random(7);
  for (int i = 0; i < 300; ++i) {
    test::RandomReport report(random);
    FormatSettings settings;
    settings.precision = static_cast<int>(test::randomBelow(random, 4));
    settings.zeroUnderscore = i % 2 == 0;
    settings.largeNumberStar = i % 3 != 0;
    test::SilentNotice notice;
    TaskProgress progress(notice, "Printing");
    MeasuredPage page;
    ASSERT_TRUE(measurePage(report.grid, settings, progress, 0, page));
    for (std::size_t column = 0; column < report.grid.columns; ++column) {
      std::uint64_t widest = 0;
      const auto look = [&widest](std::string_view text) {
        widest = std::max(widest, measureText(findFontMetrics(kBodyFont), text).units);
      };
      const std::string heading = columnHeading(report.grid, settings, column);
      for (const std::string_view line : linesOf(heading)) {
        look(line);
      }
      for (std::size_t row = 0; row < report.grid.rows; ++row) {
        look(cellText(report.grid, settings, row, column));
      }
      ASSERT_EQ(page.units[column], widest + 1500) << "report " << i << " column " << column;
    }
  }
}

TEST(MeasurePage, SeesThatMinusZeroIsWiderThanZero) {
  Table table = test::tableOf("Item:String Qty:Number", "", {"a 1", "b 0"});
  table.cell(1, 1) = numberCell(-0.0);
  ReportView view = test::viewOf(table, {0}, {}, {}, {1});
  EXPECT_EQ(measured(view).units[1], 333U + 556 + 278 + 556 + 1500);
}

TEST(FixedFontSize, IsBetweenZeroAndThirty) {
  const auto size = [](double wanted) {
    PrintJob job;
    job.fontSize = wanted;
    return fixedFontSize(job);
  };
  EXPECT_EQ(size(10), 10);
  EXPECT_EQ(size(0.5), 0.5);
  EXPECT_EQ(size(0), 3);
  EXPECT_EQ(size(-4), 3);
  EXPECT_EQ(size(30), 30);
  EXPECT_EQ(size(30.5), 30);
  EXPECT_EQ(size(1000), 30);
}

TEST(PageFrame, IsExchangedInLandscape) {
  PrintJob job = narrowJob();
  EXPECT_EQ(frameOf(job).width, 200);
  EXPECT_EQ(frameOf(job).height, 300);
  job.landscape = true;
  EXPECT_EQ(frameOf(job).width, 300);
  EXPECT_EQ(frameOf(job).height, 200);
  EXPECT_EQ(frameOf(job).right(), 290);
}

TEST(RowsOnPage, StartWithinTheHeightThatHeadingsAndMarginsLeave) {
  const PageFrame letter = {.width = 612, .height = 792, .sideMargin = 36, .endMargin = 36};
  // 792 - 36 - 4 * 15 - 36 - 3 * 15 + 7.5 = 622.5, and 41 * 15 = 615.
  EXPECT_EQ(rowsOnPage(letter, 1, 15, 1000), 42U);
  EXPECT_EQ(rowsOnPage(letter, 2, 15, 1000), 41U);
  EXPECT_EQ(rowsOnPage(letter, 1, 15, 10), 10U);
}

TEST(RowsOnPage, DoNotStartRightAtTheEnd) {
  // 95 - 5.5 * 10 = 40: rows start at 0, 10, 20 and 30.
  const PageFrame page = {.width = 100, .height = 95, .sideMargin = 0, .endMargin = 0};
  EXPECT_EQ(rowsOnPage(page, 0, 10, 1000), 4U);
  const PageFrame higher = {.width = 100, .height = 95.001, .sideMargin = 0, .endMargin = 0};
  EXPECT_EQ(rowsOnPage(higher, 0, 10, 1000), 5U);
}

TEST(RowsOnPage, AreNoneWhenNothingIsLeft) {
  const PageFrame low = {.width = 100, .height = 55, .sideMargin = 0, .endMargin = 0};
  EXPECT_EQ(rowsOnPage(low, 0, 10, 1000), 0U);
  EXPECT_EQ(rowsOnPage(low, 0, 9.9, 1000), 1U);
}

TEST(RowsOnPage, AreCountedAsOneByOne) {
  std::mt19937 random(11);
  std::uniform_real_distribution<double> heights(10, 4000);
  std::uniform_real_distribution<double> lines(0.001, 60);
  for (int i = 0; i < 3000; ++i) {
    const PageFrame page = {.width = 1, .height = heights(random), .sideMargin = 0, .endMargin = 3};
    const double line = i % 3 == 0 ? page.height / std::round(lines(random)) : lines(random);
    const double body = page.height - 3 - 5 * line - 3 - 3 * line + 0.5 * line;
    std::size_t rows = 0;
    while (rows < 2000 && static_cast<double>(rows) * line < body) {
      ++rows;
    }
    ASSERT_EQ(rowsOnPage(page, 2, line, 2000), rows) << page.height << " " << line;
  }
}

TEST(PagesFor, AreWholePagesAndOneAtLeast) {
  EXPECT_EQ(pagesFor(84, 42), 2U);
  EXPECT_EQ(pagesFor(85, 42), 3U);
  EXPECT_EQ(pagesFor(0, 42), 1U);
}

// With a font of 10 points these columns are 40, 60 and 60 points wide.
const std::vector<std::uint32_t> kColumns = {4000, 6000, 6000};

TEST(PagesAcross, KeepTwoPointsFromTheMargin) {
  PrintJob job = narrowJob();
  EXPECT_EQ(pagesAcross(job, pageOf(kColumns, 1, 5), 10), 1U);
  job.pageWidth = 182;
  EXPECT_EQ(pagesAcross(job, pageOf(kColumns, 1, 5), 10), 1U);
  job.pageWidth = 181;
  EXPECT_EQ(pagesAcross(job, pageOf(kColumns, 1, 5), 10), 2U);
}

TEST(PagesAcross, HaveTheLabelsOnEachOrOnTheFirstOnly) {
  PrintJob job = narrowJob();
  job.pageWidth = 142;
  const MeasuredPage page = pageOf({4000, 6000, 6000, 6000}, 1, 5);
  EXPECT_EQ(pagesAcross(job, page, 10), 3U);
  job.repeatLabels = false;
  EXPECT_EQ(pagesAcross(job, page, 10), 2U);
}

TEST(PagesAcross, AreBeyondCountWhenAColumnDoesNotFit) {
  PrintJob job = narrowJob();
  EXPECT_EQ(pagesAcross(job, pageOf({4000, 14000}, 1, 5), 10), 999999999U);
  EXPECT_EQ(pagesAcross(job, pageOf({4000, 13800}, 1, 5), 10), 1U);
}

TEST(PagesDown, AreBeyondCountWhenARowDoesNotFit) {
  const PrintJob job = narrowJob();
  EXPECT_EQ(pagesDown(job, pageOf(kColumns, 1, 30), 10), 3U);
  EXPECT_EQ(pagesDown(job, pageOf(kColumns, 1, 30), 40), 999999999U);
  EXPECT_EQ(pagesDown(job, pageOf(kColumns, 1, 0), 10), 1U);
}

TEST(FitFontSize, IsTheLargestForTheRequestedPagesAcross) {
  PrintJob job = narrowJob();
  job.fitToWidth = true;
  const MeasuredPage page = pageOf({4000, 6000, 6000, 6000, 6000}, 1, 5);
  for (const int wanted : {1, 2, 4}) {
    job.widthPages = wanted;
    const double size = fitFontSize(job, page);
    EXPECT_EQ(pagesAcross(job, page, size), static_cast<std::size_t>(wanted));
    EXPECT_GT(pagesAcross(job, page, size + 0.0002), static_cast<std::size_t>(wanted));
  }
}

TEST(FitFontSize, TakesTheNextFewerPagesWhenNoSizeGivesTheRequestedOnes) {
  PrintJob job = narrowJob();
  job.fitToWidth = true;
  // Labels and one column on each page: two columns stand on 1 page or 2, never on 3.
  const MeasuredPage page = pageOf({4000, 6000, 6000}, 1, 5);
  job.widthPages = 3;
  const double size = fitFontSize(job, page);
  EXPECT_EQ(pagesAcross(job, page, size), 2U);
  EXPECT_EQ(pagesAcross(job, page, size + 0.0002), 999999999U);
}

TEST(FitFontSize, CountsLessThanOnePageAsOne) {
  PrintJob job = narrowJob();
  job.fitToWidth = true;
  const MeasuredPage page = pageOf({4000, 6000, 6000, 6000}, 1, 500);
  const double one = fitFontSize(job, page);
  job.widthPages = 0;
  EXPECT_EQ(fitFontSize(job, page), one);
  job.widthPages = -3;
  EXPECT_EQ(fitFontSize(job, page), one);
  job.fitToWidth = false;
  job.fitToHeight = true;
  const double down = fitFontSize(job, page);
  EXPECT_EQ(pagesDown(job, page, down), 1U);
  job.heightPages = -1;
  EXPECT_EQ(fitFontSize(job, page), down);
}

TEST(FitFontSize, IsTheLargestForTheRequestedPagesDown) {
  PrintJob job = narrowJob();
  job.fitToHeight = true;
  job.heightPages = 3;
  const MeasuredPage page = pageOf(kColumns, 1, 200);
  const double size = fitFontSize(job, page);
  EXPECT_EQ(pagesDown(job, page, size), 3U);
  EXPECT_EQ(pagesDown(job, page, size + 0.0002), 4U);
}

TEST(FitFontSize, MayBeMoreThanThirtyPointsButNotMoreThanFifty) {
  PrintJob job;
  job.fitToWidth = true;
  EXPECT_NEAR(fitFontSize(job, pageOf({1500, 1800}, 1, 1)), 50, 0.001);
  EXPECT_NEAR(fitFontSize(job, pageOf({8000, 5450}, 1, 1)), 538 / 13.45, 0.001);
}

TEST(FitFontSize, StaysAtItsLowerBoundWhenNothingFits) {
  PrintJob job = narrowJob();
  job.fitToHeight = true;
  EXPECT_EQ(fitFontSize(job, pageOf(kColumns, 1, 1'000'000)), 0.001);
}

TEST(FitFontSize, OfSeveralFitsIsTheSmallest) {
  PrintJob job = narrowJob();
  const MeasuredPage page = pageOf({4000, 6000, 6000}, 1, 100);
  job.fitToWidth = true;
  const double width = fitFontSize(job, page);
  job.fitToHeight = true;
  const double both = fitFontSize(job, page);
  job.fitToWidth = false;
  const double height = fitFontSize(job, page);
  EXPECT_LT(height, width);
  EXPECT_EQ(both, height);
}

TEST(BestOnePageFit, FitsTheHeightOfAReportThatIsLongerThanThePaper) {
  PrintJob job = narrowJob();
  job.bestOnePageFit = true;
  // 16 wide and 150 high on paper of 200 x 300.
  const MeasuredPage page = pageOf(kColumns, 1, 100);
  const double size = fitFontSize(job, page);
  EXPECT_EQ(pagesDown(job, page, size), 1U);
  EXPECT_GT(pagesDown(job, page, size + 0.0002), 1U);
  EXPECT_EQ(pagesAcross(job, page, size), 1U);
}

TEST(BestOnePageFit, FitsTheWidthOfAReportThatIsWiderThanThePaper) {
  PrintJob job = narrowJob();
  job.bestOnePageFit = true;
  const MeasuredPage page = pageOf({4000, 60000, 60000}, 1, 10);
  const double size = fitFontSize(job, page);
  EXPECT_EQ(pagesAcross(job, page, size), 1U);
  EXPECT_GT(pagesAcross(job, page, size + 0.0002), 1U);
  EXPECT_EQ(pagesDown(job, page, size), 1U);
}

TEST(BestOnePageFit, LowersTheSizeByThousandthsUntilTheOtherSideFitsToo) {
  PrintJob job = narrowJob();
  // As high as wide on square paper; the head and the foot of the page take room of the height.
  job.pageHeight = 200;
  job.fitToWidth = true;
  const MeasuredPage page = pageOf({4000, 26500}, 1, 20);
  const double width = fitFontSize(job, page);
  EXPECT_GT(pagesDown(job, page, width), 1U);
  job.fitToWidth = false;
  job.bestOnePageFit = true;
  const double size = fitFontSize(job, page);
  EXPECT_EQ(pagesDown(job, page, size), 1U);
  EXPECT_GT(pagesDown(job, page, size + 0.001), 1U);
  const double steps = (width - size) / 0.001;
  EXPECT_NEAR(steps, std::round(steps), 1e-6);
}

TEST(BestOnePageFit, FitsTheHeightOfAReportInTheShapeOfThePaperAndLowersTheSizeToOnePageAcross) {
  PrintJob job = narrowJob();
  // 200 wide and 300 high on paper of 200 x 300; the margins take more of the width.
  const MeasuredPage page = pageOf({4000, 196000}, 1, 200);
  job.fitToHeight = true;
  const double height = fitFontSize(job, page);
  EXPECT_GT(pagesAcross(job, page, height), 1U);
  job.fitToHeight = false;
  job.bestOnePageFit = true;
  const double size = fitFontSize(job, page);
  EXPECT_EQ(pagesAcross(job, page, size), 1U);
  EXPECT_GT(pagesAcross(job, page, size + 0.001), 1U);
  const double steps = (height - size) / 0.001;
  EXPECT_NEAR(steps, std::round(steps), 1e-6);
}

TEST(BestOnePageFit, IsOnePageWhateverNumbersOfPagesAreAskedFor) {
  PrintJob job = narrowJob();
  const MeasuredPage wide = pageOf({4000, 60000, 60000}, 1, 10);
  const MeasuredPage high = pageOf(kColumns, 1, 100);
  job.bestOnePageFit = true;
  const double ofWide = fitFontSize(job, wide);
  const double ofHigh = fitFontSize(job, high);
  job.widthPages = 3;
  job.heightPages = 3;
  EXPECT_EQ(fitFontSize(job, wide), ofWide);
  EXPECT_EQ(fitFontSize(job, high), ofHigh);
  job.fitToWidth = true;
  job.fitToHeight = true;
  for (const MeasuredPage& page : {wide, high}) {
    const double size = fitFontSize(job, page);
    EXPECT_EQ(pagesAcross(job, page, size), 1U);
    EXPECT_EQ(pagesDown(job, page, size), 1U);
  }
}

TEST(BestOnePageFit, EndsWhereNoSizeFits) {
  PrintJob job = narrowJob();
  job.bestOnePageFit = true;
  const double size = fitFontSize(job, pageOf({4000, 6000}, 1, 10'000'000));
  EXPECT_GE(size, 0.001);
  EXPECT_LT(size, 0.002);
}

/// The blocks as "first-end", with "L" for labels and "!" for a column that is too wide.
std::vector<std::string> blocksOf(const PrintJob& job, const MeasuredPage& page, double fontSize) {
  std::vector<std::string> texts;
  for (const ColumnBlock& block : cutColumns(job, page, fontSize)) {
    texts.push_back((block.hasLabels ? "L " : "") + std::to_string(block.first) + "-" +
                    std::to_string(block.end) + (block.isTooWide ? "!" : ""));
  }
  return texts;
}

TEST(CutColumns, FillsPagesUpToTheMargin) {
  PrintJob job = narrowJob();
  job.pageWidth = 180;
  EXPECT_THAT(blocksOf(job, pageOf(kColumns, 1, 5), 10), ElementsAre("L 1-3"));
  job.pageWidth = 179;
  EXPECT_THAT(blocksOf(job, pageOf(kColumns, 1, 5), 10), ElementsAre("L 1-2", "L 2-3"));
}

TEST(CutColumns, PutsTheLabelsOnTheFirstPageOnlyWhenTheyAreNotRepeated) {
  PrintJob job = narrowJob();
  job.pageWidth = 140;
  job.repeatLabels = false;
  EXPECT_THAT(blocksOf(job, pageOf({4000, 6000, 6000, 6000}, 1, 5), 10),
              ElementsAre("L 1-2", "2-4"));
}

TEST(CutColumns, GivesLabelsThatAreTooWideAPageOfTheirOwn) {
  const PrintJob job = narrowJob();
  const MeasuredPage page = pageOf({10000, 8001, 6000, 6000, 6000, 6000}, 2, 5);
  EXPECT_THAT(blocksOf(job, page, 10), ElementsAre("L 2-2", "2-5", "5-6"));
}

TEST(CutColumns, LabelsThatJustFitLeaveNoRoomForData) {
  const PrintJob job = narrowJob();
  const MeasuredPage page = pageOf({10000, 8000, 6000}, 2, 5);
  EXPECT_THAT(blocksOf(job, page, 10), ElementsAre("L 2-2!"));
}

TEST(CutColumns, EndsWithAColumnThatIsTooWide) {
  const PrintJob job = narrowJob();
  const MeasuredPage page = pageOf({4000, 6000, 14001, 6000}, 1, 5);
  EXPECT_THAT(blocksOf(job, page, 10), ElementsAre("L 1-2", "L 2-2!"));
}

TEST(CutColumns, GivesAReportWithoutDataOnePage) {
  const PrintJob job = narrowJob();
  EXPECT_THAT(blocksOf(job, pageOf({4000}, 1, 5), 10), ElementsAre("L 1-1"));
  EXPECT_THAT(blocksOf(job, pageOf({}, 0, 0), 10), ElementsAre("L 0-0"));
  EXPECT_THAT(blocksOf(job, pageOf({40000}, 1, 5), 10), ElementsAre("L 1-1"));
}

/// Three z pages, one with more weeks and one with longer numbers.
class PrintLayoutTest : public testing::Test {
 protected:
  Table table_ =
      test::tableOf("Item:String Plant:String Week:Period Qty:Number", "W1 W2 W3",
                    {"Bolt North W1 1", "Nut North W1 2", "Bolt South W1 3", "Bolt South W2 4",
                     "Bolt South W3 5", "Bolt West W1 123456789", "Bolt West W2 123456789"});
  ReportView view_ = test::viewOf(table_, {0}, {2}, {1}, {3});
  PrintJob job_ = test::smallJob();
  FormatSettings settings_;
  test::SilentNotice notice_;

  PrintLayout laidOut(std::size_t mostKeptColumns = kMostKeptColumns) {
    ReportPages pages(view_, PageChoice::All);
    TaskProgress progress(notice_, "Printing");
    PrintLayout layout;
    layOutPrint({job_, pages, settings_, progress}, layout, mostKeptColumns);
    return layout;
  }
};

TEST_F(PrintLayoutTest, HasOneFontSizeForAllZPages) {
  settings_.precision = 0;
  job_.fitToWidth = true;
  job_.pageHeight = 1000;
  const PrintLayout layout = laidOut();
  ASSERT_EQ(layout.pages.size(), 3U);
  double smallest = 500;
  for (const MeasuredPage& page : layout.pages) {
    smallest = std::min(smallest, fitFontSize(job_, page));
    EXPECT_EQ(pagesAcross(job_, page, layout.fontSize), 1U);
  }
  EXPECT_EQ(layout.fontSize, smallest);
  EXPECT_NE(fitFontSize(job_, layout.pages[0]), smallest);
  EXPECT_EQ(layout.totalPages, 3U);
}

TEST_F(PrintLayoutTest, CountsThePagesOfAllZPages) {
  settings_.precision = 1;
  job_.pageWidth = 140;
  const PrintLayout layout = laidOut();
  EXPECT_EQ(layout.fontSize, 10);
  EXPECT_EQ(layout.lineHeight(), 15);
  std::size_t total = 0;
  for (const MeasuredPage& page : layout.pages) {
    total +=
        cutColumns(job_, page, 10).size() * pagesFor(page.rows, rowsPerPage(job_, layout, page));
  }
  EXPECT_EQ(layout.totalPages, total);
  EXPECT_GT(layout.totalPages, 3U);
}

TEST_F(PrintLayoutTest, MeasuresAgainWhatIsNotKept) {
  settings_.precision = 1;
  job_.pageWidth = 140;
  const PrintLayout kept = laidOut();
  PrintLayout dropped = laidOut(0);
  EXPECT_EQ(dropped.totalPages, kept.totalPages);
  ReportPages pages(view_, PageChoice::All);
  TaskProgress progress(notice_, "Printing");
  for (std::size_t page = 0; page < 3; ++page) {
    EXPECT_TRUE(dropped.pages[page].units.empty());
    const PrintTask task = {job_, pages, settings_, progress};
    const MeasuredPage* const again = recallPage(task, dropped, page, page);
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(again->units, kept.pages[page].units);
  }
}

TEST_F(PrintLayoutTest, CountsUpToThePageThatTellsOfAColumnThatIsTooWide) {
  settings_.precision = 1;
  job_.fontSize = 20;
  job_.pageWidth = 200;
  // The third z page does not fit; the first has one page, and the second one for each week.
  const PrintLayout layout = laidOut();
  EXPECT_EQ(cutColumns(job_, layout.pages[0], 20).size(), 1U);
  EXPECT_EQ(cutColumns(job_, layout.pages[1], 20).size(), 3U);
  EXPECT_TRUE(cutColumns(job_, layout.pages[2], 20).front().isTooWide);
  EXPECT_EQ(layout.totalPages, pagesFor(2, rowsPerPage(job_, layout, layout.pages[0])) + 3U + 1U);
}

TEST_F(PrintLayoutTest, LeavesOutHeadingsThatAreTooHigh) {
  job_.pageHeight = 150;
  EXPECT_TRUE(laidOut().hasHeadings);
  EXPECT_EQ(laidOut().headingLines(laidOut().pages[0]), 1U);
  // 135 - 40 - 6.5 * 15 is less than nothing; without the heading 12.5 are left.
  job_.pageHeight = 135;
  const PrintLayout layout = laidOut();
  EXPECT_FALSE(layout.hasHeadings);
  EXPECT_EQ(layout.headingLines(layout.pages[0]), 0U);
  EXPECT_EQ(rowsPerPage(job_, layout, layout.pages[0]), 1U);
}

TEST_F(PrintLayoutTest, HasOneRowAPageWhenNothingIsLeftForRows) {
  job_.pageHeight = 60;
  const PrintLayout layout = laidOut();
  EXPECT_FALSE(layout.hasHeadings);
  EXPECT_EQ(rowsPerPage(job_, layout, layout.pages[0]), 1U);
}

}  // namespace
}  // namespace vrel
