#include "model/copied_block.h"

#include <gtest/gtest.h>

#include "model/report_layout.h"
#include "support/random_reports.h"
#include "support/tables.h"
#include "support/views.h"

namespace vrel {
namespace {

using test::breakOf;
using test::RandomReport;
using test::tableOf;
using test::viewOf;
using Lines = std::vector<std::string>;

constexpr std::int64_t kWhole = CopiedRegion::kWhole;

// Two items at two places over two weeks; Nut has no row at South in W2.
Table plan() {
  return tableOf("Item:String Place:String Week:Period Qty:Number", "W1 W2",
                 {"Bolt North W1 1", "Bolt North W2 2", "Bolt South W1 3", "Bolt South W2 4000",
                  "Nut North W1 6", "Nut North W2 7.5", "Nut South W1 5"});
}

struct CopyRegion : testing::Test {
  // Item, Place, W1, W2.
  Table table = plan();
  ReportView view = viewOf(table, {0, 1}, {2}, {}, {3});
  ReportGrid grid = layOut(view);
  FormatSettings settings{.precision = 1, .dateFormat = ""};

  std::string copied(const CopiedRegion& region) {
    return clipboardText(copyRegion(grid, settings, region));
  }
};

// The texts of a block, "|" between them and "-" for those that are not there.
Lines linesOf(const CopiedBlock& block) {
  Lines lines;
  for (std::size_t row = 0; row < block.texts.rows(); ++row) {
    std::string& line = lines.emplace_back();
    for (std::size_t column = 0; column < block.texts.columns(); ++column) {
      line += column > 0 ? "|" : "";
      line += block.texts.text(row, column).value_or("-");
    }
  }
  return lines;
}

TEST_F(CopyRegion, ABlockOfDataIsItsShownTexts) {
  const CopiedBlock block = copyRegion(grid, settings, {1, 2, 3, 2});
  EXPECT_EQ(block.region, (CopiedRegion{1, 2, 3, 2}));
  EXPECT_EQ(linesOf(block), (Lines{"3.0|4,000.0", "6.0|7.5", "5.0|"}));
  EXPECT_EQ(block.labelColumns, 0U);
  EXPECT_EQ(block.rows(), 3U);
  EXPECT_EQ(block.columns(), 2U);
  EXPECT_EQ(clipboardText(block), "3.0\t4,000.0\n6.0\t7.5\n5.0\t\n");
}

TEST_F(CopyRegion, TextsThatTakeTooMuchMemoryAreNotCopied) {
  CopiedBlock block;
  const CopiedRegion region = {1, 2, 3, 2};
  const CopiedBlock whole = copyRegion(grid, settings, region);
  const std::size_t needed = whole.texts.memory();
  EXPECT_EQ(needed, 6 * sizeof(std::size_t) + std::string_view("3.04,000.06.07.55.0").size());
  EXPECT_EQ(copyRegion(grid, settings, region, {.memory = needed}, block), CopyOutcome::Copied);
  EXPECT_EQ(linesOf(block), linesOf(whole));
  EXPECT_EQ(copyRegion(grid, settings, region, {.memory = needed - 1}, block),
            CopyOutcome::TooLarge);
  EXPECT_EQ(copyRegion(grid, settings, region, {.memory = 6 * sizeof(std::size_t) - 1}, block),
            CopyOutcome::TooLarge);
  EXPECT_EQ(block.rows(), 0U) << "seen before a text is made";
}

TEST(CopyLargeRegion, TellsHowFarItIsAndStopsWhenTold) {
  std::vector<std::string> lines;
  for (int i = 0; i < 600; ++i) {
    lines.push_back("r" + std::to_string(i) + " c" + std::to_string(i) + " 1");
  }
  Table table = test::tableOf("A:String B:String Q:Number", "p", lines);
  ReportView view = viewOf(table, {0}, {1}, {}, {2});
  const ReportGrid grid = layOut(view);
  std::vector<std::size_t> signs;
  const auto goOn = [&signs](std::size_t rowsDone, std::size_t rows) {
    EXPECT_EQ(rows, 600U);
    signs.push_back(rowsDone);
    return signs.size() < 2;
  };
  CopiedBlock block;
  EXPECT_EQ(copyRegion(grid, {}, {0, 1, kWhole, 600}, {.progress = goOn}, block),
            CopyOutcome::Cancelled);
  ASSERT_EQ(signs.size(), 2U);
  EXPECT_LT(signs[0], signs[1]);
  EXPECT_EQ(block.rows(), signs[1]);
}

TEST_F(CopyRegion, WholeRowsHaveTheirLabelsInFront) {
  const CopiedBlock block = copyRegion(grid, settings, {1, 2, 2, kWhole});
  EXPECT_EQ(block.region, (CopiedRegion{1, 2, 2, kWhole}));
  EXPECT_EQ(linesOf(block), (Lines{"|South|3.0|4,000.0", "Nut|North|6.0|7.5"}));
  EXPECT_EQ(block.labelColumns, 2U);
  EXPECT_EQ(block.columns(), 2U) << "labels are not pasted";
}

TEST_F(CopyRegion, WholeColumnsReachFromTheFirstRowToTheLast) {
  EXPECT_EQ(copied({0, 3, kWhole, 1}), "2.0\n4,000.0\n7.5\n\n");
  EXPECT_EQ(copyRegion(grid, settings, {0, 3, kWhole, 1}).labelColumns, 0U);
}

TEST_F(CopyRegion, EverythingIsWholeRowsAndWholeColumns) {
  EXPECT_EQ(copied({0, 2, kWhole, kWhole}),
            "Bolt\tNorth\t1.0\t2.0\n\tSouth\t3.0\t4,000.0\nNut\tNorth\t6.0\t7.5\n\tSouth\t5.0\t\n");
}

TEST_F(CopyRegion, LabelsCanBeCopiedAsABlock) {
  EXPECT_EQ(copied({0, 0, 2, 2}), "Bolt\tNorth\n\tSouth\n");
  EXPECT_EQ(copied({2, 1, 1, 2}), "North\t6.0\n");
}

TEST_F(CopyRegion, ALoneTextHasNoLineEnd) {
  EXPECT_EQ(copied({0, 2, 1, 1}), "1.0");
  EXPECT_EQ(copied({3, 3, 1, 1}), "\n") << "an empty cell is still a cell";
}

TEST_F(CopyRegion, WhatLiesOutsideTheGridIsLeftOut) {
  EXPECT_EQ(copied({3, 2, 5, 9}), "5.0\t\n");
  EXPECT_EQ(copied({4, 2, 1, 1}), "");
  EXPECT_EQ(copied({0, 4, 1, 1}), "\n") << "a row without columns";
  EXPECT_EQ(copyRegion(grid, settings, {9, 0, 1, kWhole}).columns(), 0U);
}

TEST_F(CopyRegion, SummariesAreCopiedToo) {
  view.breaks = {breakOf(1, kBreakAtEnd, {{3, BreakOperation::Sum}}),
                 breakOf(2, kBreakAtEnd, {{3, BreakOperation::Last}})};
  view.breaks[0].breakAfter = true;
  grid = layOut(view);
  EXPECT_EQ(copied({3, 2, 3, kWhole}),
            "\tSouth\t5.0\t\t5.0\n\tTotal\t15.0\t4,009.5\t4,024.5\n"
            "\t\t\t\t\n");
}

TEST(RandomCopies, HoldTheShownTextOfEveryCell) {
  std::mt19937 random(1);
  const FormatSettings settings{.precision = 2, .dateFormat = ""};
  for (int round = 0; round < 300; ++round) {
    const RandomReport report(random);
    const ReportGrid& grid = report.grid;
    const GridArea area = test::randomAreaIn(random, {0, 0, grid.rows, grid.columns});
    const CopiedBlock block = copyRegion(
        grid, settings,
        {static_cast<std::int64_t>(area.firstRow), static_cast<std::int64_t>(area.firstColumn),
         static_cast<std::int64_t>(area.rows), static_cast<std::int64_t>(area.columns)});
    ASSERT_EQ(block.rows(), area.rows);
    ASSERT_EQ(block.columns(), area.columns);
    const CopiedBlock back = blockFromClipboard(clipboardText(block));
    for (std::size_t row = 0; row < area.rows; ++row) {
      for (std::size_t column = 0; column < area.columns; ++column) {
        const std::string shown =
            cellText(grid, settings, area.firstRow + row, area.firstColumn + column);
        ASSERT_EQ(block.texts.text(row, column), shown) << round << " " << row << " " << column;
        ASSERT_EQ(back.texts.text(row, column), shown) << round << " " << row << " " << column;
      }
    }
  }
}

struct FromClipboard : testing::Test {
  static Lines read(std::string_view text) { return linesOf(blockFromClipboard(text)); }
};

TEST_F(FromClipboard, TabsSeparateTextsAndLineFeedsEndRows) {
  EXPECT_EQ(read("1\t2\n3\t4\n"), (Lines{"1|2", "3|4"}));
  EXPECT_EQ(read("1\t2\n3\t4"), (Lines{"1|2", "3|4"})) << "the last line end may be missing";
  EXPECT_EQ(read("1\t2\r\n3\t4\r\n"), (Lines{"1|2", "3|4"}));
  EXPECT_EQ(read("1"), (Lines{"1"}));
}

TEST_F(FromClipboard, EmptyTextsAndRowsStay) {
  EXPECT_EQ(read("\t1\t\n\n\t"), (Lines{"|1|", "|-|-", "||-"}));
  EXPECT_EQ(read("\n"), (Lines{""}));
  EXPECT_EQ(read("\r\n\r\n"), (Lines{"", ""}));
  EXPECT_EQ(read(""), Lines());
}

TEST_F(FromClipboard, AShortRowHasNoTextAtItsMissingPlaces) {
  EXPECT_EQ(read("1\t2\t3\n4\n5\t6\n"), (Lines{"1|2|3", "4|-|-", "5|6|-"}));
  const CopiedBlock block = blockFromClipboard("1\t2\n3");
  EXPECT_EQ(block.region, (CopiedRegion{0, 0, 2, 2}));
  EXPECT_EQ(block.texts.text(0, 1), "2");
  EXPECT_EQ(block.texts.text(1, 1), std::nullopt);
  EXPECT_EQ(block.texts.text(2, 0), std::nullopt);
}

TEST_F(FromClipboard, AQuotedTextMayHoldSeparatorsAndDoubledQuotes) {
  EXPECT_EQ(read("\"a\tb\"\t\"c\nd\"\n"), (Lines{"a\tb|c\nd"}));
  EXPECT_EQ(read("\"say \"\"hi\"\"\"\r\n\"\""), (Lines{"say \"hi\"", ""}));
  EXPECT_EQ(read("\"\"\"\"\t1"), (Lines{"\"|1"}));
}

TEST_F(FromClipboard, AQuoteThatOpensNoQuotedTextStandsForItself) {
  EXPECT_EQ(read("5\" pipe\t1"), (Lines{"5\" pipe|1"}));
  EXPECT_EQ(read("\"5\" pipe\t1\n2"), (Lines{"\"5\" pipe|1", "2|-"}));
  EXPECT_EQ(read("\"open\t1\n2"), (Lines{"\"open|1", "2|-"}));
  EXPECT_EQ(read("\""), (Lines{"\""}));
}

TEST_F(FromClipboard, ACarriageReturnWithoutLineFeedIsPartOfItsText) {
  EXPECT_EQ(read("a\rb\tc\r"), (Lines{"a\rb|c\r"}));
  EXPECT_EQ(read("a\r\r\nb"), (Lines{"a\r", "b"}));
}

TEST_F(FromClipboard, ManyOpenQuotesTakeNoLongerThanTheirText) {
  std::string text = "\"";
  for (int i = 0; i < 200'000; ++i) {
    text += i % 2 == 0 ? "\t\"\"a" : "\t\"a\"\"";
  }
  EXPECT_EQ(blockFromClipboard(text).columns(), 200'001U);
}

TEST(ClipboardText, QuotesWhatWouldBeReadOtherwise) {
  CopiedBlock block;
  for (const std::string_view text : {"plain", "a\tb", "c\nd", "e\rf", "say \"hi\"", " g,h "}) {
    block.texts.addText(text);
  }
  block.texts.endRow();
  EXPECT_EQ(clipboardText(block),
            "plain\t\"a\tb\"\t\"c\nd\"\t\"e\rf\"\t\"say \"\"hi\"\"\"\t g,h \n");
  EXPECT_EQ(linesOf(blockFromClipboard(clipboardText(block))), linesOf(block));
}

TEST(ClipboardText, RandomBlocksComeBackAsTheyWere) {
  std::mt19937 random(2);
  constexpr std::string_view kBytes = "\t\n\r\"\"ab";
  for (int round = 0; round < 5000; ++round) {
    CopiedBlock block;
    const std::size_t rows = 1 + test::randomBelow(random, 4);
    for (std::size_t row = 0; row < rows; ++row) {
      const std::size_t columns = 1 + test::randomBelow(random, 3);
      for (std::size_t column = 0; column < columns; ++column) {
        std::string text;
        while (test::randomBelow(random, 3) > 0) {
          text += kBytes[test::randomBelow(random, kBytes.size())];
        }
        block.texts.addText(text);
      }
      block.texts.endRow();
    }
    ASSERT_EQ(linesOf(blockFromClipboard(clipboardText(block))), linesOf(block))
        << clipboardText(block);
  }
}

}  // namespace
}  // namespace vrel
