#include "output/postscript_report.h"

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>

#include "support/printed.h"
#include "support/tables.h"
#include "support/views.h"

namespace vrel {
namespace {

using test::countOf;
using test::pagesOf;
using test::postScriptOf;
using test::shownOn;
using test::smallJob;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

/// A document that was looked at on paper.
std::string golden(const std::string& name) {
  std::ifstream file(std::string(VREL_GOLDEN) + "/" + name, std::ios::binary);
  return file ? std::string(std::istreambuf_iterator<char>(file), {}) : "(no file)";
}

/// Two items over two weeks, the second item's first week empty.
class PostScriptReport : public testing::Test {
 protected:
  Table table_ = test::tableOf("Item:String Week:Period Qty:Number", "W1 W2",
                               {"Bolt W1 1234.5", "Bolt W2 -0.5", "Nut W2 20"});
  ReportView view_ = test::viewOf(table_, {0}, {1}, {}, {2});
  PrintJob job_ = smallJob();

  std::string document() { return postScriptOf(job_, view_); }
};

TEST_F(PostScriptReport, IsHeaderPrologAndPages) {
  job_.footer = "For internal use";
  EXPECT_EQ(document(), golden("plain.ps"));
}

TEST_F(PostScriptReport, InLandscapeWithoutGrid) {
  job_.landscape = true;
  job_.gridLines = false;
  EXPECT_EQ(document(), golden("landscape.ps"));
}

TEST_F(PostScriptReport, WithTextBeyondAscii) {
  job_.title = "Pl\xc3\xa4ne";
  EXPECT_EQ(document(), golden("beyond_ascii.ps"));
}

TEST_F(PostScriptReport, WithAColumnThatIsTooWide) {
  job_.pageWidth = 120;
  EXPECT_EQ(document(), golden("too_wide.ps"));
}

TEST_F(PostScriptReport, FittedToOnePage) {
  job_.bestOnePageFit = true;
  EXPECT_EQ(document(), golden("one_page.ps"));
}

TEST(PostScriptDocument, OfZPagesWithHeadingsOfTwoLinesAcrossAndDown) {
  Table table =
      test::tableOf("Item:String Plant:String Week:Period Qty:Number Cost:Number", "W1 W2",
                    {"Bolt North W1 1 10", "Bolt North W2 2 20", "Nut North W1 3 30",
                     "Pin North W2 4 40", "Tap North W1 5 50", "Bolt South W1 6 60"});
  ReportView view = test::viewOf(table, {0}, {2}, {1}, {3, 4});
  view.dataInColumns = true;
  PrintJob job = smallJob();
  job.pageWidth = 200;
  job.pageHeight = 180;
  EXPECT_EQ(postScriptOf(job, view), golden("z_pages.ps"));
}

TEST_F(PostScriptReport, BeginsWithItsComments) {
  const std::string text = document();
  EXPECT_THAT(text, StartsWith("%!PS-Adobe-\n"
                               "%%DocumentFonts: Helvetica\n"
                               "%%Title: Plan\n"
                               "%%Creator: Vrel\n"
                               "%%For: ann\n"
                               "%%CreationDate: 2026/01/05 10:20:30\n"
                               "%%Pages: 1\n"
                               "%%EndComments\n"
                               "%------------------------------------------------------\n"
                               "%\n"
                               "% Postscript Printout of the Kaprilon Data Editor.\n"));
}

TEST_F(PostScriptReport, HasTheTitlesLinesInOneComment) {
  job_.title = "Plan\nof\tthis\ryear";
  job_.userName = "ann\nlee";
  EXPECT_THAT(document(), HasSubstr("\n%%Title: Plan of this year\n"));
  EXPECT_THAT(document(), HasSubstr("\n%%For: ann lee\n"));
}

TEST_F(PostScriptReport, SelectsTheFontAtTheEndOfTheProlog) {
  job_.fontSize = 8;
  EXPECT_THAT(document(), HasSubstr("%------------------------------------------------------\n"
                                    "/Helvetica findfont 8.000000 scalefont setfont\n"
                                    "%%EndProlog\n"
                                    "%%Page: 1 1\n"));
}

TEST_F(PostScriptReport, LeavesThePrologsFontSelectedAtTheEndOfEachPage) {
  job_.pageWidth = 150;
  const std::string text = document();
  ASSERT_EQ(pagesOf(text).size(), 2U);
  for (const std::string& page : pagesOf(text)) {
    const std::size_t last = page.rfind('/', page.rfind(" setfont\n"));
    EXPECT_THAT(page.substr(last), StartsWith("/Helvetica findfont 10.000000 scalefont setfont\n"));
  }
}

TEST_F(PostScriptReport, HasNoMoreThanFontsInItsPrologWhileAllTextIsAscii) {
  EXPECT_THAT(document(), Not(HasSubstr("/show")));
}

TEST_F(PostScriptReport, DecodesTextWhereverItIsBeyondAscii) {
  const auto decodes = [](const std::string& text) {
    const std::size_t procedure = text.find("\n/show {\n");
    return procedure != std::string::npos && procedure < text.find("%%EndProlog");
  };
  EXPECT_FALSE(decodes(document()));
  job_.title = "\xc3\xa4";
  EXPECT_TRUE(decodes(document()));
  job_.title = "";
  job_.footer = "\xc3\xa4";
  EXPECT_TRUE(decodes(document()));
  job_.footer = "";
  job_.userName = "\xc3\xa4";
  EXPECT_FALSE(decodes(document()));  // only in a comment
  Table cells = test::tableOf("Item:String Qty:Number", "", {"\xc3\x84 1"});
  ReportView ofCells = test::viewOf(cells, {0}, {}, {}, {1});
  EXPECT_TRUE(decodes(postScriptOf(job_, ofCells)));
  Table headings = test::tableOf("\xc3\x84:String Qty:Number", "", {"A 1"});
  ReportView ofHeadings = test::viewOf(headings, {0}, {}, {}, {1});
  EXPECT_TRUE(decodes(postScriptOf(job_, ofHeadings)));
  Table names = test::tableOf("Item:String Plant:String Qty:Number", "", {"A X 1", "A \xc3\x84 1"});
  ReportView ofNames = test::viewOf(names, {0}, {}, {1}, {2});
  EXPECT_TRUE(decodes(postScriptOf(job_, ofNames)));
  Table firstPage =
      test::tableOf("Item:String Plant:String Qty:Number", "", {"\xc3\x84 North 1", "A South 1"});
  ReportView ofFirstPage = test::viewOf(firstPage, {0}, {}, {1}, {2});
  EXPECT_TRUE(decodes(postScriptOf(job_, ofFirstPage)));
  ofNames.zIndex = 0;
  EXPECT_FALSE(decodes(postScriptOf(job_, ofNames, PageChoice::Current)));
}

TEST_F(PostScriptReport, KeepsStringsInUtf8) {
  job_.title = "Pl\xc3\xa4ne \xe5\x9e\xab";
  EXPECT_THAT(document(), HasSubstr("(Pl\xc3\xa4ne \xe5\x9e\xab) show\n"));
  EXPECT_THAT(document(), HasSubstr("%%Title: Pl\xc3\xa4ne \xe5\x9e\xab\n"));
}

TEST_F(PostScriptReport, ShowsDateFooterAndPageNumberAtTheFoot) {
  job_.footer = "Secret";
  const std::string page = pagesOf(document()).front();
  EXPECT_THAT(page, HasSubstr("20 20 moveto\n(05 Jan 2026 10:20) show\n"));
  EXPECT_THAT(page, HasSubstr(" 20 moveto\n(Secret) show\n"));
  EXPECT_THAT(page, HasSubstr(" 20 moveto\n(Page: 1.1   \\(1 of 1\\)) show\n"));
}

TEST_F(PostScriptReport, ShowsTheTitleInBoldAQuarterLarger) {
  EXPECT_THAT(document(), HasSubstr("/Helvetica-Bold findfont 12.500000 scalefont setfont\n"
                                    "136.8 165 moveto\n"
                                    "(Plan) show\n"
                                    "/Helvetica findfont 10.000000 scalefont setfont\n"));
  job_.fontSize = 28;
  EXPECT_THAT(document(), HasSubstr("/Helvetica-Bold findfont 35.000000 scalefont setfont\n"));
}

TEST_F(PostScriptReport, ShowsALineFeedInTheTitleAsABlank) {
  job_.title = "Plan\n2026";
  EXPECT_THAT(document(), HasSubstr("(Plan 2026) show\n"));
}

TEST_F(PostScriptReport, ShowsNothingForABlankCell) {
  const std::string page = pagesOf(document()).front();
  EXPECT_THAT(shownOn(page),
              ElementsAre("Bolt", "Nut", "Item", "W1", "W2", "Plan", "05 Jan 2026 10:20",
                          "Page: 1.1   \\(1 of 1\\)", "1,234.5", "-0.5", "20.0"));
  EXPECT_EQ(countOf(" show\n", page), 11U);
}

TEST_F(PostScriptReport, EscapesTheTextOfACell) {
  Table table = test::tableOf("Item:String Note:String", "", {"a a(b)\\c"});
  ReportView view = test::viewOf(table, {0}, {}, {}, {1});
  EXPECT_THAT(postScriptOf(job_, view), HasSubstr("(a\\(b\\)\\\\c) show\n"));
}

TEST_F(PostScriptReport, CountsPagesFromTheGivenNumberOn) {
  job_.pageWidth = 150;
  job_.firstPageNumber = 10;
  const std::vector<std::string> pages = pagesOf(document());
  ASSERT_EQ(pages.size(), 2U);
  EXPECT_THAT(pages[0], StartsWith("11 11\n"));
  EXPECT_THAT(pages[0], HasSubstr("(Page: 1.1   \\(11 of 2\\)) show\n"));
  EXPECT_THAT(pages[1], StartsWith("12 12\n"));
}

TEST_F(PostScriptReport, TurnsEachPageInLandscape) {
  job_.landscape = true;
  job_.pageHeight = 150;
  const std::vector<std::string> pages = pagesOf(document());
  ASSERT_EQ(pages.size(), 2U);
  EXPECT_THAT(pages[0], StartsWith("1 1\n90 rotate 0 -300.0000 translate\n0.25 setlinewidth\n20 "));
  EXPECT_THAT(pages[1], StartsWith("2 2\n90 rotate 0 -300.0000 translate\n0.25 setlinewidth\n20 "));
}

TEST_F(PostScriptReport, SetsNoLineWidthWithoutGridLines) {
  job_.gridLines = false;
  const std::string page = pagesOf(document()).front();
  EXPECT_THAT(page, StartsWith("1 1\n20 "));
  EXPECT_THAT(page, Not(HasSubstr("lineto")));
  EXPECT_THAT(page, Not(HasSubstr("stroke")));
}

TEST_F(PostScriptReport, WithoutRowsAndColumnsIsOnePage) {
  Table empty = test::tableOf("Item:String Week:Period Qty:Number", "W1 W2", {});
  ReportView view = test::viewOf(empty, {0}, {1}, {}, {2});
  const std::string text = postScriptOf(job_, view);
  EXPECT_THAT(text, HasSubstr("%%Pages: 1\n"));
  ASSERT_EQ(pagesOf(text).size(), 1U);
  EXPECT_THAT(shownOn(pagesOf(text).front()),
              ElementsAre("Item", "Plan", "05 Jan 2026 10:20", "Page: 1.1   \\(1 of 1\\)"));
  EXPECT_THAT(text, Not(HasSubstr("lineto")));
}

TEST(PostScriptGrid, OfTwentyFiveRowsHasTwentySixLinesStrokedThreeTimes) {
  std::vector<std::string> lines;
  for (int i = 10; i < 35; ++i) {
    lines.push_back("Item" + std::to_string(i) + " 1");
  }
  Table table = test::tableOf("Item:String Qty:Number", "", lines);
  ReportView view = test::viewOf(table, {0}, {}, {}, {1});
  PrintJob job;
  const std::vector<std::string> pages = pagesOf(postScriptOf(job, view));
  ASSERT_EQ(pages.size(), 1U);
  const std::string grid = pages[0].substr(pages[0].rfind(" show\n") + 6);
  EXPECT_EQ(countOf(" lineto\n", grid), 26U + 2U);
  std::vector<std::size_t> strokes;
  for (std::size_t at = grid.find("stroke"); at != std::string::npos;
       at = grid.find("stroke", at + 1)) {
    strokes.push_back(countOf(" lineto\n", grid.substr(0, at)));
  }
  EXPECT_THAT(strokes, ElementsAre(10, 20, 26, 28));
}

TEST_F(PostScriptReport, DrawsItsGridAQuarterOfALineOffTheColumns) {
  // Labels end at 20 + 34.45, the weeks at 102.81 and 137.27; rows stand at 120 and 105.
  const std::string page = pagesOf(document()).front();
  EXPECT_THAT(page, EndsWith("(20.0) show\n"
                             "58.2 131.25 moveto\n141.02 131.25 lineto\n"
                             "58.2 116.25 moveto\n141.02 116.25 lineto\n"
                             "58.2 101.25 moveto\n141.02 101.25 lineto\n"
                             "stroke\n"
                             "58.2 131.25 moveto\n58.2 101.25 lineto\n"
                             "106.56 131.25 moveto\n106.56 101.25 lineto\n"
                             "141.02 131.25 moveto\n141.02 101.25 lineto\n"
                             "stroke\n"
                             "showpage\n"));
}

/// Four items at four places over three weeks.
class LargePostScriptReport : public testing::Test {
 protected:
  Table table_ = makeTable();
  ReportView view_ = test::viewOf(table_, {0, 1}, {2}, {}, {3});
  PrintJob job_ = smallJob();

  static Table makeTable() {
    std::vector<std::string> lines;
    for (const std::string item : {"Bolt", "Nut", "Pin", "Tap"}) {
      for (const std::string place : {"E", "N", "S", "W"}) {
        for (const std::string week : {"W1", "W2", "W3"}) {
          lines.push_back(item + " " + place + " " + week + " 100");
        }
      }
    }
    return test::tableOf("Item:String Place:String Week:Period Qty:Number", "W1 W2 W3", lines);
  }

  /// The texts of all pages but title, date and footer, and how often "100.0" stands there.
  std::vector<std::string> pageTexts() {
    std::vector<std::string> texts;
    for (const std::string& page : pagesOf(postScriptOf(job_, view_))) {
      std::string text;
      for (const std::string& each : shownOn(page)) {
        if (each != "Plan" && each != "05 Jan 2026 10:20" && each != "100.0") {
          text += (text.empty() ? "" : " ") + each;
        }
      }
      texts.push_back(text + " + " + std::to_string(countOf("(100.0)", page)));
    }
    return texts;
  }
};

TEST_F(LargePostScriptReport, GoesAcrossFirstAndThenDown) {
  job_.pageWidth = 200;
  job_.pageHeight = 250;
  EXPECT_THAT(pageTexts(),
              ElementsAre("Bolt E N S W Nut E N S W Item Place W1 W2 Page: 1.1   \\(1 of 4\\) + 16",
                          "Bolt E N S W Nut E N S W Item Place W3 Page: 1.2   \\(2 of 4\\) + 8",
                          "Pin E N S W Tap E N S W Item Place W1 W2 Page: 2.1   \\(3 of 4\\) + 16",
                          "Pin E N S W Tap E N S W Item Place W3 Page: 2.2   \\(4 of 4\\) + 8"));
}

TEST_F(LargePostScriptReport, RepeatsLabelsOnlyWhenAsked) {
  job_.pageWidth = 200;
  job_.pageHeight = 250;
  job_.repeatLabels = false;
  EXPECT_THAT(pageTexts(),
              ElementsAre("Bolt E N S W Nut E N S W Item Place W1 W2 Page: 1.1   \\(1 of 4\\) + 16",
                          "W3 Page: 1.2   \\(2 of 4\\) + 8",
                          "Pin E N S W Tap E N S W Item Place W1 W2 Page: 2.1   \\(3 of 4\\) + 16",
                          "W3 Page: 2.2   \\(4 of 4\\) + 8"));
}

TEST_F(LargePostScriptReport, RepeatsHeadingsOnlyWhenAsked) {
  job_.pageWidth = 200;
  job_.pageHeight = 250;
  job_.repeatHeadings = false;
  const std::vector<std::string> texts = pageTexts();
  ASSERT_EQ(texts.size(), 4U);
  EXPECT_EQ(texts[1], "Bolt E N S W Nut E N S W Item Place W3 Page: 1.2   \\(2 of 4\\) + 8");
  EXPECT_EQ(texts[2], "Pin E N S W Tap E N S W Page: 2.1   \\(3 of 4\\) + 16");
  EXPECT_EQ(texts[3], "Pin E N S W Tap E N S W Page: 2.2   \\(4 of 4\\) + 8");
}

TEST_F(LargePostScriptReport, KeepsTheRoomOfHeadingsThatAreNotRepeated) {
  job_.pageWidth = 200;
  job_.pageHeight = 250;
  job_.repeatHeadings = false;
  const std::vector<std::string> pages = pagesOf(postScriptOf(job_, view_));
  EXPECT_THAT(pages[2], HasSubstr("20 170 moveto\n(Pin) show\n"));
}

TEST_F(LargePostScriptReport, HasLabelsThatAreTooWideOnTheFirstPagesAcrossOnly) {
  job_.pageWidth = 110;
  job_.pageHeight = 400;
  EXPECT_THAT(pageTexts(),
              ElementsAre("Bolt E N S W Nut E N S W Pin E N S W Tap E N S W Item Place "
                          "Page: 1.1   \\(1 of 4\\) + 0",
                          "W1 Page: 1.2   \\(2 of 4\\) + 16", "W2 Page: 1.3   \\(3 of 4\\) + 16",
                          "W3 Page: 1.4   \\(4 of 4\\) + 16"));
}

TEST_F(LargePostScriptReport, DrawsNoLinesOnAPageOfLabelsAlone) {
  job_.pageWidth = 110;
  job_.pageHeight = 400;
  const std::vector<std::string> pages = pagesOf(postScriptOf(job_, view_));
  EXPECT_THAT(pages[0], Not(HasSubstr("lineto")));
  EXPECT_THAT(pages[1], HasSubstr("lineto"));
}

TEST_F(LargePostScriptReport, FittedToOnePageAcrossHasAllColumnsInBlockOne) {
  job_.pageWidth = 150;
  job_.fitToWidth = true;
  const std::string text = postScriptOf(job_, view_);
  const std::vector<std::string> pages = pagesOf(text);
  EXPECT_GT(pages.size(), 1U);
  EXPECT_THAT(text, HasSubstr("%%Pages: " + std::to_string(pages.size()) + "\n"));
  for (std::size_t i = 0; i < pages.size(); ++i) {
    EXPECT_THAT(pages[i], HasSubstr("(Page: " + std::to_string(i + 1) + ".1 "));
    EXPECT_THAT(pages[i], HasSubstr("(W3)"));
  }
}

TEST_F(LargePostScriptReport, FittedInBothDirectionsKeepsToBoth) {
  job_.fitToWidth = true;
  job_.widthPages = 2;
  job_.fitToHeight = true;
  job_.heightPages = 3;
  const std::vector<std::string> pages = pagesOf(postScriptOf(job_, view_));
  EXPECT_EQ(pages.size(), 3U);
  EXPECT_THAT(pages.back(), HasSubstr("(Page: 3.1   \\(3 of 3\\))"));
}

TEST_F(LargePostScriptReport, LeavesOutHeadingsThatAreTooHigh) {
  job_.pageHeight = 136;
  for (const std::string& text : pageTexts()) {
    EXPECT_THAT(text, Not(HasSubstr("Item")));
    EXPECT_THAT(text, Not(HasSubstr("W1")));
  }
}

TEST_F(LargePostScriptReport, EndsWithThePageThatTellsOfAColumnThatIsTooWide) {
  Table table = test::tableOf(
      "Item:String Week:Period Note:String", "W1 W2 W3",
      {"Bolt W1 short", "Bolt W2 a-note-that-is-much-too-wide-for-paper", "Bolt W3 short"});
  ReportView view = test::viewOf(table, {0}, {1}, {}, {2});
  job_.pageWidth = 160;
  const std::string text = postScriptOf(job_, view);
  const std::vector<std::string> pages = pagesOf(text);
  ASSERT_EQ(pages.size(), 2U);
  EXPECT_THAT(text, HasSubstr("%%Pages: 2\n"));
  EXPECT_THAT(pages[0], HasSubstr("\\(1 of 2\\)"));
  EXPECT_EQ(pages[1],
            "2 2\n"
            "0.25 setlinewidth\n"
            "/Helvetica findfont 20.000000 scalefont setfont\n"
            "100 100 moveto\n"
            "(Error: Column 3 is too wide - cannot print report.) show\n"
            "100 130 moveto\n"
            "(Try a smaller font: font size currently equals 10.000000\\)) show\n"
            "showpage\n");
}

}  // namespace
}  // namespace vrel
