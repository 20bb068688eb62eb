#include "output/ascii_report.h"

#include <gmock/gmock.h>

#include <thread>

#include "support/tables.h"
#include "support/views.h"

namespace vrel {
namespace {

class AsciiReport : public testing::Test {
 protected:
  Table table_ = test::tableOf(
      "Item:String Plant:String Week:String Supply:Number", "",
      {"Apples North W1 10", "Apples South W1 20", "Pears North W2 3", "Pears South W2 1234"});
  ReportView view_ = test::viewOf(table_, {0, 1}, {2}, {}, {3});
  FormatSettings settings_;
  AsciiJob job_;

  void SetUp() override {
    settings_.precision = 1;
    job_.title = "Plan";
    job_.pageHeading = "Page %1.%2";
    job_.pageWidth = 50;
    job_.pageHeight = 12;
  }

  std::string printed(PageChoice choice = PageChoice::All) {
    test::SilentNotice notice;
    TaskProgress progress(notice, "Printing");
    std::string text;
    {
      TextOutput output = TextOutput::toMemory(text);
      ReportPages pages(view_, choice);
      EXPECT_TRUE(writeAsciiReport(job_, pages, settings_, output, progress));
    }
    return text;
  }
};

TEST_F(AsciiReport, HasLabelsLeftAndNumbersRightUnderTheirHeadings) {
  EXPECT_EQ(printed(),
            "                       Plan               Page 1.1\n"
            "\n"
            "Item   | Plant |   W1 |      W2\n"
            "-------+-------+------+--------\n"
            "Apples | North | 10.0 |\n"
            "       | South | 20.0 |\n"
            "Pears  | North |      |     3.0\n"
            "       | South |      | 1,234.0\n");
}

TEST_F(AsciiReport, WithoutGridLinesHasBlanksBetweenTheColumns) {
  job_.gridLines = false;
  EXPECT_EQ(printed(),
            "                       Plan               Page 1.1\n"
            "\n"
            "Item    Plant    W1       W2\n"
            "Apples  North  10.0\n"
            "        South  20.0\n"
            "Pears   North            3.0\n"
            "        South        1,234.0\n");
}

TEST_F(AsciiReport, KeepsTheRuleUnderItsColumnsBesideAHiddenOne) {
  view_ = test::viewOf(table_, {0}, {2}, {1}, {3});
  table_.fields[0].hidden = true;
  EXPECT_EQ(printed(PageChoice::Current),
            "                       Plan               Page 1.1\n"
            "                      North\n"
            "\n"
            " |   W1 |  W2\n"
            "-+------+----\n"
            " | 10.0 |\n"
            " |      | 3.0\n");
}

TEST_F(AsciiReport, GoesOnBesideAndBelowWithLabelsAndHeadingsAgain) {
  job_.pageWidth = 25;
  job_.pageHeight = 6;
  EXPECT_EQ(printed(),
            "          Plan   Page 1.1\n"
            "\n"
            "Item   | Plant |   W1\n"
            "-------+-------+-----\n"
            "Apples | North | 10.0\n"
            "       | South | 20.0\n"
            "\f          Plan   Page 1.2\n"
            "\n"
            "Item   | Plant |      W2\n"
            "-------+-------+--------\n"
            "Apples | North |\n"
            "       | South |\n"
            "\f          Plan   Page 2.1\n"
            "\n"
            "Item   | Plant |   W1\n"
            "-------+-------+-----\n"
            "Pears  | North |\n"
            "       | South |\n"
            "\f          Plan   Page 2.2\n"
            "\n"
            "Item   | Plant |      W2\n"
            "-------+-------+--------\n"
            "Pears  | North |     3.0\n"
            "       | South | 1,234.0\n");
}

TEST_F(AsciiReport, WithoutRepetitionHasLabelsAndHeadingsOnTheFirstPagesOnly) {
  job_.pageWidth = 25;
  job_.pageHeight = 6;
  job_.repeatLabels = false;
  job_.repeatHeadings = false;
  table_ = test::tableOf("Item:String Plant:String Week:String Supply:Number", "",
                         {"Apples North W1 10", "Apples South W1 20", "Pears North W2 3",
                          "Pears South W2 1234", "Pears West W2 5", "Plums North W1 6"});
  EXPECT_EQ(printed(),
            "          Plan   Page 1.1\n"
            "\n"
            "Item   | Plant |   W1\n"
            "-------+-------+-----\n"
            "Apples | North | 10.0\n"
            "       | South | 20.0\n"
            "\f          Plan   Page 1.2\n"
            "\n"
            "     W2\n"
            "-------\n"
            "\n"
            "\n"
            "\f          Plan   Page 2.1\n"
            "\n"
            "Pears  | North |\n"
            "       | South |\n"
            "       | West  |\n"
            "Plums  | North |  6.0\n"
            "\f          Plan   Page 2.2\n"
            "\n"
            "    3.0\n"
            "1,234.0\n"
            "    5.0\n"
            "\n");
}

TEST_F(AsciiReport, HasItsFooterOnTheLastLineOfEveryPage) {
  job_.footer = "draft";
  job_.pageHeight = 11;
  EXPECT_EQ(printed(),
            "                       Plan               Page 1.1\n"
            "\n"
            "Item   | Plant |   W1 |      W2\n"
            "-------+-------+------+--------\n"
            "Apples | North | 10.0 |\n"
            "       | South | 20.0 |\n"
            "Pears  | North |      |     3.0\n"
            "       | South |      | 1,234.0\n"
            "\n"
            "\n"
            "                      draft\n");
}

TEST_F(AsciiReport, HeadsEveryZPageWithItsName) {
  view_ = test::viewOf(table_, {0}, {2}, {1}, {3});
  EXPECT_EQ(printed(),
            "                       Plan               Page 1.1\n"
            "                      North\n"
            "\n"
            "Item   |   W1 |  W2\n"
            "-------+------+----\n"
            "Apples | 10.0 |\n"
            "Pears  |      | 3.0\n"
            "\f                       Plan               Page 1.1\n"
            "                      South\n"
            "\n"
            "Item   |   W1 |      W2\n"
            "-------+------+--------\n"
            "Apples | 20.0 |\n"
            "Pears  |      | 1,234.0\n");
}

TEST_F(AsciiReport, OfTheCurrentPageHasThatPageOnly) {
  view_ = test::viewOf(table_, {0}, {2}, {1}, {3});
  view_.zIndex = 1;
  EXPECT_EQ(printed(PageChoice::Current),
            "                       Plan               Page 1.1\n"
            "                      South\n"
            "\n"
            "Item   |   W1 |      W2\n"
            "-------+------+--------\n"
            "Apples | 20.0 |\n"
            "Pears  |      | 1,234.0\n");
}

TEST_F(AsciiReport, StandsItsHeadingsAtTheBottomOfTheirLines) {
  table_ = test::tableOf("Item:String Year:String Week:String Supply:Number", "",
                         {"A 2024 W1 1", "A 2024 W2 2", "A 2025 W1 3"});
  view_ = test::viewOf(table_, {0}, {1, 2}, {}, {3});
  EXPECT_EQ(printed(),
            "                       Plan               Page 1.1\n"
            "\n"
            "     | 2024 |     | 2025\n"
            "Item |   W1 |  W2 |   W1\n"
            "-----+------+-----+-----\n"
            "A    |  1.0 | 2.0 |  3.0\n");
}

TEST_F(AsciiReport, KeepsTextsAmongTheDataLeft) {
  table_ = test::tableOf("Item:String Week:String Remark:String Supply:Number", "",
                         {"A W1 late 1", "B W1 - 20"});
  view_ = test::viewOf(table_, {0}, {1}, {}, {2, 3});
  view_.dataInColumns = true;
  EXPECT_EQ(printed(),
            "                       Plan               Page 1.1\n"
            "\n"
            "     |     W1 |\n"
            "Item | Remark | Supply\n"
            "-----+--------+-------\n"
            "A    | late   |    1.0\n"
            "B    | -      |   20.0\n");
}

TEST_F(AsciiReport, CountsCharactersNotBytes) {
  table_ = test::tableOf("Item:String Week:String Supply:Number", "",
                         {"K\xc3\xb6ln W1 1", "Berlin W1 2"});
  view_ = test::viewOf(table_, {0}, {1}, {}, {2});
  job_.title =
      "\xc3\x9c"
      "bersicht";
  EXPECT_EQ(printed(),
            "                    \xc3\x9c"
            "bersicht             Page 1.1\n"
            "\n"
            "Item   |  W1\n"
            "-------+----\n"
            "Berlin | 2.0\n"
            "K\xc3\xb6ln   | 1.0\n");
}

TEST_F(AsciiReport, DoesNotCutAColumnThatIsWiderThanThePage) {
  job_.pageWidth = 10;
  table_ = test::tableOf("Item:String Week:String Supply:Number", "",
                         {"A-very-long-item W1 1234567890123", "B W2 2"});
  view_ = test::viewOf(table_, {0}, {1}, {}, {2});
  EXPECT_EQ(printed(),
            "  Page 1.1\n"
            "   Plan\n"
            "\n"
            "Item\n"
            "----------------\n"
            "A-very-long-item\n"
            "B\n"
            "\f  Page 1.2\n"
            "   Plan\n"
            "\n"
            "                 W1\n"
            "-------------------\n"
            "1,234,567,890,123.0\n"
            "\n"
            "\f  Page 1.3\n"
            "   Plan\n"
            "\n"
            " W2\n"
            "---\n"
            "\n"
            "2.0\n");
}

TEST_F(AsciiReport, PutsAColumnThatFitsOnlyWithoutTheLabelsOnAPageWithoutThem) {
  job_.pageWidth = 22;
  table_ = test::tableOf("Item:String Week:String Supply:Number", "",
                         {"A-very-long-item W1 100", "B W2 123456789012", "C W3 2"});
  view_ = test::viewOf(table_, {0}, {1}, {}, {2});
  EXPECT_EQ(printed(),
            "         Plan Page 1.1\n"
            "\n"
            "Item\n"
            "----------------\n"
            "A-very-long-item\n"
            "B\n"
            "C\n"
            "\f         Plan Page 1.2\n"
            "\n"
            "   W1\n"
            "-----\n"
            "100.0\n"
            "\n"
            "\n"
            "\f         Plan Page 1.3\n"
            "\n"
            "               W2\n"
            "-----------------\n"
            "\n"
            "123,456,789,012.0\n"
            "\n"
            "\f         Plan Page 1.4\n"
            "\n"
            "Item             |  W3\n"
            "-----------------+----\n"
            "A-very-long-item |\n"
            "B                |\n"
            "C                | 2.0\n");
}

TEST_F(AsciiReport, HasOneRowOnAPageThatIsTooLowForIt) {
  job_.pageHeight = 2;
  const std::string text = printed();
  EXPECT_EQ(std::count(text.begin(), text.end(), '\f'), 3);
}

TEST_F(AsciiReport, ThrowsTheLastPageOutOfAPrinter) {
  const std::string file = printed();
  job_.target = PageTarget::Printer;
  EXPECT_EQ(printed(), file + "\f");
}

TEST_F(AsciiReport, WithoutTuplesIsOnePageOfHeadings) {
  table_ = test::tableOf("Item:String Week:String Supply:Number", "", {});
  view_ = test::viewOf(table_, {0}, {1}, {}, {2});
  EXPECT_EQ(printed(),
            "                       Plan               Page 1.1\n"
            "\n"
            "Item\n"
            "----\n");
}

TEST_F(AsciiReport, StopsWhenItIsCancelled) {
  class Cancelled : public test::SilentNotice {
   public:
    bool progress(std::string_view, std::uint64_t, std::uint64_t) override { return false; }
  };
  Cancelled notice;
  TaskProgress progress(notice, "Printing");
  std::string text;
  TextOutput output = TextOutput::toMemory(text);
  ReportPages pages(view_, PageChoice::All);
  EXPECT_FALSE(writeAsciiReport(job_, pages, settings_, output, progress));
}

TEST_F(AsciiReport, CanBeCancelledInTheMiddleOfAPage) {
  class CancellingAsItWrites : public test::SilentNotice {
   public:
    bool progress(std::string_view, std::uint64_t done, std::uint64_t total) override {
      return done < total / 2;
    }
  };
  std::vector<std::string> tuples;
  for (int i = 0; i < 20000; ++i) {
    tuples.push_back("Apples P" + std::to_string(i) + " W1 1");
  }
  table_ = test::tableOf("Item:String Plant:String Week:String Supply:Number", "", tuples);
  job_.pageHeight = tuples.size() + 10;
  CancellingAsItWrites notice;
  TaskProgress progress(notice, "Printing");
  // So slow that the user is asked again within the page.
  TextOutput output([](std::string_view) {
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    return true;
  });
  ReportPages pages(view_, PageChoice::All);
  EXPECT_FALSE(writeAsciiReport(job_, pages, settings_, output, progress));
}

}  // namespace
}  // namespace vrel
