#include "output/html_report.h"

#include <gmock/gmock.h>

#include "base/platform.h"
#include "support/tables.h"
#include "support/views.h"

namespace vrel {
namespace {

std::int64_t localSeconds(int year, int month, int day, int hour, int minute, int second) {
  std::tm local{};
  local.tm_year = year - 1900;
  local.tm_mon = month - 1;
  local.tm_mday = day;
  local.tm_hour = hour;
  local.tm_min = minute;
  local.tm_sec = second;
  local.tm_isdst = -1;
  return platform::secondsFromLocalTime(local);
}

class HtmlReport : public testing::Test {
 protected:
  Table table_ = test::tableOf("Item:String Plant:String Week:String Supply:Number", "",
                               {"A North W1 1", "B South W2 2", "B West W1 3"});
  ReportView flat_ = test::viewOf(table_, {0, 1}, {2}, {}, {3});
  ReportView paged_ = test::viewOf(table_, {0}, {2}, {1}, {3});
  FormatSettings settings_;
  HtmlReportWriter writer_{.title = "Plan",
                           .footer = "",
                           .userName = "mara",
                           .creationTime = localSeconds(2014, 3, 5, 9, 7, 2)};

  void SetUp() override { settings_.precision = 0; }

  std::string written(ReportView& view, PageChoice choice = PageChoice::All) {
    test::SilentNotice notice;
    TaskProgress progress(notice, "Exporting");
    std::string text;
    {
      TextOutput output = TextOutput::toMemory(text);
      ReportPages pages(view, choice);
      EXPECT_TRUE(writeHtmlReport(writer_, pages, settings_, output, progress));
    }
    return text;
  }

  /// What stands between the anchor of the top and the foot.
  std::string between(const std::string& text) {
    const std::string_view top = "<p><a name=\"top\"> </a></p>\n";
    const std::size_t begin = text.find(top) + top.size();
    return text.substr(begin, text.find("<p>\n</body>") - begin);
  }
};

std::string tableOf(std::string_view caption, std::string_view week, std::string_view label,
                    std::string_view cell) {
  std::string text = "<table border>\n<caption align=top>\n";
  text += caption;
  text += "\n</caption>\n<tr align=left>\n<th rowspan=1 colspan=1></th>\n<th>";
  text += week;
  text += "</th>\n</tr>\n<tr align=right>\n<th valign=top>";
  text += label;
  text += "</th>\n<td>";
  text += cell;
  text += "</td>\n</tr>\n</table>\n";
  return text;
}

TEST_F(HtmlReport, WithoutZFieldsIsOneTableBetweenHeadAndFoot) {
  EXPECT_EQ(written(flat_),
            "<!-- Title: Plan -->\n"
            "<!-- Creator: Vrel -->\n"
            "<!-- For: mara -->\n"
            "<!-- CreationDate: 2014-03-05T09:07:02 -->\n"
            "<!-- EndComments -->\n"
            "<html>\n"
            "<head>\n"
            "<title>\n"
            "Plan\n"
            "</title>\n"
            "</head>\n"
            "<body bgcolor=#ffffff text=#000000>\n"
            "<p><a name=\"top\"> </a></p>\n"
            "<table border>\n"
            "<caption align=top>\n"
            "Plan\n"
            "</caption>\n"
            "<tr align=left>\n"
            "<th rowspan=1 colspan=2></th>\n"
            "<th>W1</th>\n"
            "<th>W2</th>\n"
            "</tr>\n"
            "<tr align=right>\n"
            "<th valign=top>A</th>\n"
            "<th valign=top>North</th>\n"
            "<td>1</td>\n"
            "<td>&nbsp;</td>\n"
            "</tr>\n"
            "<tr align=right>\n"
            "<th valign=top rowspan=2>B</th>\n"
            "<th valign=top>South</th>\n"
            "<td>&nbsp;</td>\n"
            "<td>2</td>\n"
            "</tr>\n"
            "<tr align=right>\n"
            "<th valign=top>West</th>\n"
            "<td>3</td>\n"
            "<td>&nbsp;</td>\n"
            "</tr>\n"
            "</table>\n"
            "<p>\n"
            "</body>\n"
            "</html>\n");
}

TEST_F(HtmlReport, OfThreePagesIsThreeLinksAndThreeAnchoredTables) {
  const std::string top = "<p><a href=\"#top\"> Top <A></P>\n";
  EXPECT_EQ(between(written(paged_)),
            "<p><a href=\"#Plan%20%3A%20North\"> Plan : North </a></p>\n"
            "<p><a href=\"#Plan%20%3A%20South\"> Plan : South </a></p>\n"
            "<p><a href=\"#Plan%20%3A%20West\"> Plan : West </a></p>\n"
            "<a name=\"Plan%20%3A%20North\"> </a>\n" +
                tableOf("Plan : North", "W1", "A", "1") + top +
                "<a name=\"Plan%20%3A%20South\"> </a>\n" + tableOf("Plan : South", "W2", "B", "2") +
                top + "<a name=\"Plan%20%3A%20West\"> </a>\n" +
                tableOf("Plan : West", "W1", "B", "3") + top);
}

TEST_F(HtmlReport, OfTheCurrentPageIsItsTableAlone) {
  paged_.zIndex = 1;
  EXPECT_EQ(between(written(paged_, PageChoice::Current)), tableOf("Plan : South", "W2", "B", "2"));
}

TEST_F(HtmlReport, OfASinglePageWithANameHasItsLink) {
  table_ =
      test::tableOf("Item:String Plant:String Week:String Supply:Number", "", {"A North W1 1"});
  EXPECT_EQ(between(written(paged_)),
            "<p><a href=\"#Plan%20%3A%20North\"> Plan : North </a></p>\n"
            "<a name=\"Plan%20%3A%20North\"> </a>\n" +
                tableOf("Plan : North", "W1", "A", "1") + "<p><a href=\"#top\"> Top <A></P>\n");
}

TEST_F(HtmlReport, LeavesTheCurrentPageAsItWas) {
  paged_.zIndex = 1;
  written(paged_);
  EXPECT_EQ(paged_.zIndex, 1);
}

TEST_F(HtmlReport, HasABannerOnPaper) {
  writer_.banner = true;
  EXPECT_THAT(written(flat_),
              testing::HasSubstr("<!-- EndComments -->\n"
                                 "\n"
                                 "<!-- HTML output of the Kaprilon Data Editor. -->\n"
                                 "\n"
                                 "<!-- This output requires a HTML browser. -->\n"
                                 "<!-- If this message prints out, you may have one of the -->\n"
                                 "<!-- following problems: -->\n"
                                 "\n"
                                 "<!-- 1) you are printing to a printer! -->\n"
                                 "<!--  (you should print to a file and browse that file with an "
                                 "HTML browser). -->\n"
                                 "\n"
                                 "<html>\n"));
}

TEST_F(HtmlReport, HasOneBannerForAllPages) {
  writer_.banner = true;
  const std::string text = written(paged_);
  EXPECT_EQ(text.find("HTML output of"), text.rfind("HTML output of"));
}

TEST_F(HtmlReport, WithoutAFullDocumentIsLinkTargetTableAndFooter) {
  writer_.fullDocument = false;
  writer_.border = false;
  writer_.footer = "The <i>end</i>";
  table_ = test::tableOf("Item:String Plant:String Week:String Supply:Number", "", {});
  EXPECT_EQ(written(flat_),
            "<!-- Title: Plan -->\n"
            "<!-- Creator: Vrel -->\n"
            "<!-- For: mara -->\n"
            "<!-- CreationDate: 2014-03-05T09:07:02 -->\n"
            "<!-- EndComments -->\n"
            "<p><a name=\"top\"> </a></p>\n"
            "<table>\n"
            "<caption align=top>\n"
            "Plan\n"
            "</caption>\n"
            "<tr align=left>\n"
            "<th rowspan=1 colspan=2></th>\n"
            "</tr>\n"
            "</table>\n"
            "<p>The <i>end</i>\n");
}

TEST_F(HtmlReport, WithoutAFooterEndsInTheBody) {
  writer_.footer.reset();
  EXPECT_THAT(written(flat_), testing::EndsWith("</table>\n</body>\n</html>\n"));
}

TEST_F(HtmlReport, WithoutATitleHasNeitherTitleNorCaption) {
  writer_.title = "";
  writer_.userName = "";
  const std::string text = written(flat_);
  EXPECT_THAT(text, testing::StartsWith("<!-- Title:  -->\n"
                                        "<!-- Creator: Vrel -->\n"
                                        "<!-- For:  -->\n"));
  EXPECT_THAT(text, testing::HasSubstr("<html>\n<head>\n</head>\n<body"));
  EXPECT_THAT(text, testing::HasSubstr("<table border>\n<tr align=left>\n"));
}

TEST_F(HtmlReport, WritesItsTitleAsItStands) {
  writer_.title = "K\xc3\xb6ln {0} %s\n\"A\" <&>";
  const std::string text = written(flat_);
  EXPECT_THAT(text, testing::StartsWith("<!-- Title: K\xc3\xb6ln {0} %s\n\"A\" <&> -->\n"));
  EXPECT_THAT(text, testing::HasSubstr("<title>\nK\xc3\xb6ln {0} %s\n\"A\" <&>\n</title>\n"));
  EXPECT_THAT(text, testing::HasSubstr("top>\nK\xc3\xb6ln {0} %s\n\"A\" <&>\n</caption>\n"));
}

TEST_F(HtmlReport, OfPagesWithoutTuplesIsWellFormed) {
  table_ = test::tableOf("Item:String Plant:String Week:String Supply:Number", "", {});
  EXPECT_EQ(between(written(paged_)),
            "<p><a href=\"#Plan\"> Plan </a></p>\n"
            "<a name=\"Plan\"> </a>\n"
            "<table border>\n"
            "<caption align=top>\n"
            "Plan\n"
            "</caption>\n"
            "<tr align=left>\n"
            "<th rowspan=1 colspan=1></th>\n"
            "</tr>\n"
            "</table>\n"
            "<p><a href=\"#top\"> Top <A></P>\n");
}

TEST_F(HtmlReport, HasAFormOnEachPageWithTheTokensOfThatPage) {
  table_.field(3).classification = Classification::DataReadWrite;
  const std::string text = between(written(paged_));
  const std::string form =
      "<form action=\"cgi-bin/EditFromDE.cgi\" method=post>\n"
      "<input type=hidden name=init_table value=\"Plan\">\n"
      "<input type=hidden name=numFld value=4>\n"
      "<input type=hidden name=fld_0 value=\"Item\">\n"
      "<input type=hidden name=fld_1 value=\"Plant\">\n"
      "<input type=hidden name=fld_2 value=\"Week\">\n"
      "<input type=hidden name=fld_3 value=\"Supply\">\n"
      "<input type=hidden name=numTok value=3>\n";
  EXPECT_THAT(text, testing::HasSubstr("<a name=\"Plan%20%3A%20South\"> </a>\n" + form +
                                       "<input type=hidden name=tok_0 value=\"B\">\n"
                                       "<input type=hidden name=tok_1 value=\"South\">\n"
                                       "<input type=hidden name=tok_2 value=\"W2\">\n"
                                       "<table border>\n"));
  EXPECT_THAT(text, testing::HasSubstr("<td><input name=x0_0_1_1_2_2_3 size=3 value=\"2\"></td>\n"
                                       "</tr>\n"
                                       "</table>\n"
                                       "<input type=submit value=\"Apply Changes\"> <p>\n"
                                       "</form>\n"
                                       "<p><a href=\"#top\"> Top <A></P>\n"
                                       "<a name=\"Plan%20%3A%20West\"> </a>\n" +
                                       form));
}

/// Cancels when it has been asked so often.
class Impatient : public test::SilentNotice {
 public:
  bool progress(std::string_view, std::uint64_t done, std::uint64_t total) override {
    done_.push_back(done);
    total_ = total;
    return false;
  }
  std::vector<std::uint64_t> done_;
  std::uint64_t total_ = 0;
};

TEST_F(HtmlReport, StopsWhenItIsCancelled) {
  for (ReportView* const view : {&flat_, &paged_}) {
    Impatient notice;
    TaskProgress progress(notice, "Exporting");
    std::string text;
    {
      TextOutput output = TextOutput::toMemory(text);
      ReportPages pages(*view, PageChoice::All);
      EXPECT_FALSE(writeHtmlReport(writer_, pages, settings_, output, progress));
    }
    EXPECT_THAT(text, testing::Not(testing::HasSubstr("</table>")));
    EXPECT_THAT(notice.done_, testing::ElementsAre(0));
    EXPECT_EQ(notice.total_, view == &flat_ ? 1000U : 3000U);
  }
}

}  // namespace
}  // namespace vrel
