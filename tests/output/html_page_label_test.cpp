#include "output/html_page_label.h"

#include <gtest/gtest.h>

namespace vrel {
namespace {

TEST(HtmlPageLabel, IsTitleAndSubtitle) {
  EXPECT_EQ(htmlPageLabel("Plan", "Week 1/2"), "Plan : Week 1/2");
}

TEST(HtmlPageLabel, WithoutASubtitleIsTheTitleAlone) {
  EXPECT_EQ(htmlPageLabel("Plan", ""), "Plan");
  EXPECT_EQ(htmlPageLabel("", ""), "");
}

TEST(HtmlPageLabel, WithoutATitleKeepsTheColon) {
  EXPECT_EQ(htmlPageLabel("", "North"), " : North");
}

TEST(HtmlAnchorName, MasksBlanksPointsSlashesColonsAndQuestionMarks) {
  EXPECT_EQ(htmlAnchorName("Plan : Week 1/2"), "Plan%20%3A%20Week%201%2F2");
  EXPECT_EQ(htmlAnchorName(" ./:?"), "%20%2E%2F%3A%3F");
}

TEST(HtmlAnchorName, LeavesEverythingElse) {
  EXPECT_EQ(htmlAnchorName("a\nb\t\"c\"%20#<&>-_;K\xc3\xb6ln\xff"),
            "a\nb\t\"c\"%20#<&>-_;K\xc3\xb6ln\xff");
}

}  // namespace
}  // namespace vrel
