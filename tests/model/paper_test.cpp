#include "model/paper.h"

#include <gmock/gmock.h>

namespace vrel {
namespace {

TEST(Paper, HasItsNameAndSizeByItsCode) {
  std::vector<std::string> lines;
  for (const Paper& paper : paperTypes()) {
    lines.push_back(std::string(paper.name) + " " + std::to_string(paper.width) + " x " +
                    std::to_string(paper.height));
  }
  EXPECT_THAT(lines, testing::ElementsAre(
                         "Letter 612 x 792", "Legal 612 x 1008", "Ledger 1224 x 792",
                         "Tabloid 792 x 1224", "Folio 595 x 935", "Executive 522 x 756",
                         "A0 2384 x 3370", "A1 1684 x 2384", "A2 1191 x 1684", "A3 842 x 1191",
                         "A4 595 x 842", "A5 420 x 595", "B0 2920 x 4127", "B1 2064 x 2920",
                         "B2 1460 x 2064", "B3 1032 x 1460", "B4 729 x 1032", "B5 516 x 729"));
}

TEST(Paper, OfCode11IsA5) {
  EXPECT_EQ(paperName(11), "A5");
  EXPECT_EQ(paperOf(11).width, 420);
  EXPECT_EQ(paperOf(11).height, 595);
}

TEST(Paper, OfAnyOtherCodeIsUnknownAndAsLargeAsLetter) {
  for (const int code : {18, -1, 1000}) {
    EXPECT_EQ(paperName(code), "unknown");
    EXPECT_EQ(paperOf(code).width, 612);
    EXPECT_EQ(paperOf(code).height, 792);
  }
}

}  // namespace
}  // namespace vrel
