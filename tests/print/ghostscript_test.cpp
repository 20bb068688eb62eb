// Printed documents as a PostScript interpreter reads them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "output/font_metrics.h"
#include "support/printed.h"
#include "support/random_reports.h"
#include "support/tables.h"
#include "support/temporary_directory.h"
#include "support/views.h"

namespace vrel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// What the interpreter made of a document.
struct Reading {
  /// Whether it came to the end without a complaint.
  bool isClean = false;
  std::string complaints;
  /// The text of each page.
  std::vector<std::string> pages;
};

Reading readingOf(std::string_view document) {
  const test::TemporaryDirectory directory;
  const std::string file = directory.write("report.ps", document);
  const std::string command = std::string(VREL_GHOSTSCRIPT) +
                              " -q -dSAFER -dBATCH -dNOPAUSE -dDEVICEWIDTHPOINTS=3000"
                              " -dDEVICEHEIGHTPOINTS=3000 -sDEVICE=txtwrite -o '" +
                              directory.path("page%d.txt") + "' '" + file + "' > '" +
                              directory.path("complaints") + "' 2>&1";
  Reading reading;
  const int status = std::system(command.c_str());
  reading.complaints = directory.read("complaints");
  reading.isClean = status == 0 && reading.complaints.empty();
  for (int page = 1; directory.has("page" + std::to_string(page) + ".txt"); ++page) {
    reading.pages.push_back(directory.read("page" + std::to_string(page) + ".txt"));
  }
  return reading;
}

/// The number that a document announces.
std::size_t announcedPages(std::string_view document) {
  constexpr std::string_view kPages = "\n%%Pages: ";
  return std::strtoul(document.data() + document.find(kPages) + kPages.size(), nullptr, 10);
}

/// The interpreter reads the document cleanly and finds as many pages as are announced.
void expectSoundDocument(std::string_view document) {
  const Reading reading = readingOf(document);
  EXPECT_TRUE(reading.isClean) << reading.complaints;
  EXPECT_EQ(reading.pages.size(), announcedPages(document));
  EXPECT_EQ(test::pagesOf(document).size(), announcedPages(document));
}

/// The words of a text.
std::vector<std::string> wordsOf(const std::string& text) {
  std::vector<std::string> words;
  std::string word;
  for (const char byte : text + " ") {
    if (byte != ' ' && byte != '\n' && byte != '\r') {
      word += byte;
    } else if (!word.empty()) {
      words.push_back(word);
      word.clear();
    }
  }
  return words;
}

class GhostscriptTest : public testing::Test {
 protected:
  Table table_ =
      test::tableOf("Item:String Plant:String Week:Period Qty:Number", "W1 W2 W3",
                    {"Bolt North W1 1", "Bolt North W2 2", "Nut North W3 3", "Pin North W1 4",
                     "Tap North W1 5", "Bolt South W1 6", "Nut West W3 7"});
  ReportView view_ = test::viewOf(table_, {0}, {2}, {1}, {3});
  PrintJob job_ = test::smallJob();
};

TEST_F(GhostscriptTest, ReadsAPlainPage) {
  const Reading reading = readingOf(test::postScriptOf(job_, view_, PageChoice::Current));
  EXPECT_TRUE(reading.isClean) << reading.complaints;
  ASSERT_EQ(reading.pages.size(), 1U);
  EXPECT_THAT(wordsOf(reading.pages[0]),
              ElementsAre("Plan", "North", "Item", "W1", "W2", "W3", "Bolt", "1.0", "2.0", "Nut",
                          "3.0", "Pin", "4.0", "Tap", "5.0", "05", "Jan", "2026", "10:20",
                          "Page:", "1.1", "(1", "of", "1)"));
}

TEST_F(GhostscriptTest, FindsTheAnnouncedPagesInEveryKindOfDocument) {
  expectSoundDocument(test::postScriptOf(job_, view_));
  job_.pageWidth = 120;
  job_.pageHeight = 150;
  expectSoundDocument(test::postScriptOf(job_, view_));
  job_.repeatLabels = false;
  job_.repeatHeadings = false;
  job_.gridLines = false;
  expectSoundDocument(test::postScriptOf(job_, view_));
  job_.landscape = true;
  expectSoundDocument(test::postScriptOf(job_, view_));
  job_.fitToWidth = true;
  expectSoundDocument(test::postScriptOf(job_, view_));
  job_.fitToHeight = true;
  expectSoundDocument(test::postScriptOf(job_, view_));
  job_.bestOnePageFit = true;
  expectSoundDocument(test::postScriptOf(job_, view_));
  job_.pageHeight = 80;
  expectSoundDocument(test::postScriptOf(job_, view_));
  job_.title = "\xc3\xa4";
  expectSoundDocument(test::postScriptOf(job_, view_));
}

TEST_F(GhostscriptTest, FindsTheAnnouncedPagesWhereAColumnIsTooWide) {
  job_.pageWidth = 75;
  const std::string document = test::postScriptOf(job_, view_);
  EXPECT_THAT(document, HasSubstr("(Error: Column 2 is too wide - cannot print report.) show\n"));
  expectSoundDocument(document);
}

TEST(GhostscriptFiles, HaveTheAnnouncedPages) {
  std::size_t documents = 0;
  for (const auto& entry : std::filesystem::directory_iterator(VREL_GOLDEN)) {
    if (entry.path().extension() == ".ps") {
      SCOPED_TRACE(entry.path());
      std::ifstream file(entry.path(), std::ios::binary);
      expectSoundDocument(std::string(std::istreambuf_iterator<char>(file), {}));
      ++documents;
    }
  }
  EXPECT_GT(documents, 0U);
}

TEST_F(GhostscriptTest, FindsTheAnnouncedPageOfAnEmptyReport) {
  Table empty = test::tableOf("Item:String Qty:Number", "", {});
  ReportView view = test::viewOf(empty, {0}, {}, {}, {1});
  expectSoundDocument(test::postScriptOf(job_, view));
}

TEST_F(GhostscriptTest, FindsTheAnnouncedPagesOfRandomReports) {
  std::mt19937 random(9);
  for (int i = 0; i < 25; ++i) {
    test::RandomReport report(random);
    job_.pageWidth = 60 + static_cast<double>(test::randomBelow(random, 400));
    job_.pageHeight = 60 + static_cast<double>(test::randomBelow(random, 400));
    job_.landscape = test::randomBelow(random, 2) == 0;
    job_.gridLines = test::randomBelow(random, 2) == 0;
    job_.repeatLabels = test::randomBelow(random, 2) == 0;
    job_.repeatHeadings = test::randomBelow(random, 2) == 0;
    job_.fitToWidth = test::randomBelow(random, 3) == 0;
    job_.widthPages = 1 + static_cast<int>(test::randomBelow(random, 3));
    job_.fitToHeight = test::randomBelow(random, 3) == 0;
    job_.bestOnePageFit = test::randomBelow(random, 4) == 0;
    expectSoundDocument(test::postScriptOf(job_, report.view));
  }
}

/// The words on the page of a report whose one cell shows a text.
std::vector<std::string> shownWords(const std::string& text) {
  Table table = test::tableOf("I:String N:String", "", {"i ?"});
  table.cell(0, 1).text = table.field(1).texts.intern(text);
  ReportView view = test::viewOf(table, {0}, {}, {}, {1});
  PrintJob job = test::smallJob();
  job.title = "";
  const Reading reading = readingOf(test::postScriptOf(job, view));
  EXPECT_TRUE(reading.isClean) << reading.complaints;
  std::vector<std::string> words =
      reading.pages.empty() ? std::vector<std::string>() : wordsOf(reading.pages.front());
  // Behind the heading and the label, ahead of the nine words at the foot of the page.
  if (words.size() > 11) {
    words = {words.begin() + 2, words.end() - 9};
  }
  return words;
}

TEST(GhostscriptText, IsShownInIsoLatin1) {
  EXPECT_THAT(shownWords("Gr\xc3\xb6\xc3\x9f"
                         "e \xc3\x80\xc3\xbf\xc2\xb5\xc2\xbd (a)\\b"),
              ElementsAre("Gr\xc3\xb6\xc3\x9f"
                          "e",
                          "\xc3\x80\xc3\xbf\xc2\xb5\xc2\xbd", "(a)\\b"));
}

TEST(GhostscriptText, HasAQuestionMarkForEveryOtherCharacter) {
  EXPECT_THAT(shownWords("a\xce\xa9"
                         "b \xe5\x9e\xab\xe5\x9c\x88 \xf0\x9f\x98\x80! \xc3\xa9"),
              ElementsAre("a?b", "??", "?!", "\xc3\xa9"));
}

TEST(GhostscriptText, HasAQuestionMarkForBytesThatAreNoCharacter) {
  EXPECT_THAT(shownWords("x\xe9y x\x80\x81z \xc3 \xc3\xa9\xa9 \xff\xfe"
                         "e"),
              ElementsAre("x?y", "x?z", "?", "?", "??e"));
}

TEST(GhostscriptFonts, AreAsWideAsTheirTables) {
  Table table = test::tableOf("I:String N:String", "", {"i \xc3\xa9"});
  ReportView view = test::viewOf(table, {0}, {}, {}, {1});
  const std::string document = test::postScriptOf(test::smallJob(), view);
  for (const std::string_view font : {kBodyFont, kTitleFont}) {
    const test::TemporaryDirectory directory;
    const std::string file = directory.write(
        "widths.ps", document.substr(0, document.find("%%Page: ")) + "/" + std::string(font) +
                         " findfont 1000 scalefont setfont\n"
                         "0 1 255 { 1 string dup 0 4 -1 roll put stringwidth pop round cvi = } "
                         "for\n");
    const std::string command = std::string(VREL_GHOSTSCRIPT) +
                                " -q -dSAFER -dBATCH -dNOPAUSE -sDEVICE=nullpage '" + file +
                                "' > '" + directory.path("widths") + "' 2>&1";
    ASSERT_EQ(std::system(command.c_str()), 0);
    const std::vector<std::string> widths = wordsOf(directory.read("widths"));
    ASSERT_EQ(widths.size(), 256U);
    const FontMetrics& metrics = findFontMetrics(font);
    for (std::size_t code = 0; code < 256; ++code) {
      if (metrics.widths[code] > 0) {
        EXPECT_EQ(widths[code], std::to_string(metrics.widths[code])) << font << " " << code;
      }
    }
  }
}

TEST(GhostscriptText, MayBeLong) {
  std::string text;
  for (int i = 0; i < 300; ++i) {
    text += "\xc3\xa9";
  }
  Table table = test::tableOf("I:String N:String", "", {"i " + text});
  ReportView view = test::viewOf(table, {0}, {}, {}, {1});
  PrintJob job = test::smallJob();
  job.pageWidth = 2500;
  const Reading reading = readingOf(test::postScriptOf(job, view));
  EXPECT_TRUE(reading.isClean) << reading.complaints;
  ASSERT_EQ(reading.pages.size(), 1U);
  EXPECT_THAT(reading.pages[0], HasSubstr(text));
}

TEST(GhostscriptText, KeepsQuotesAndHyphensWithOrWithoutOtherText) {
  EXPECT_THAT(shownWords("a'b`c-d"), ElementsAre("a\xe2\x80\x99"
                                                 "b\xe2\x80\x98"
                                                 "c-d"));
  EXPECT_THAT(shownWords("a'b`c-d \xc3\xa9"), ElementsAre("a\xe2\x80\x99"
                                                          "b\xe2\x80\x98"
                                                          "c-d",
                                                          "\xc3\xa9"));
}

}  // namespace
}  // namespace vrel
