#include "output/smart_graph.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "base/platform.h"
#include "model/date.h"
#include "support/formula_table.h"
#include "support/temporary_directory.h"

namespace vrel {
namespace {

using test::TemporaryDirectory;
using testing::EndsWith;
using testing::MatchesRegex;
using testing::StartsWith;

constexpr const char* kHead =
    "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<qnt-smart version=\"7.1\">\n";
constexpr const char* kFoot = "</smartData>\n</qnt-smart>";

class SmartGraph : public testing::Test {
 protected:
  bool write(const std::string& input, const std::string& output) {
    TaskProgress progress(notice_, "Exporting");
    TextOutput errors = TextOutput::toMemory(errors_);
    return writeSmartGraph({.input = input, .output = output, .version = "7.1"}, progress, errors);
  }

  /// The document made from a file with that text, without its first two lines.
  std::string written(std::string_view text) {
    whole_ = write(files_.write("qnt.smart", text), files_.path("graph.xml"));
    EXPECT_EQ(errors_, "");
    const std::string document = files_.read("graph.xml");
    EXPECT_THAT(document, StartsWith(kHead));
    return document.substr(std::string_view(kHead).size());
  }

  /// The data of a whole document with fields named by single letters.
  std::string tuples(std::string_view names, std::string_view lines) {
    const std::string document =
        written("FieldNames:" + std::string(names) + "\n" + std::string(lines));
    EXPECT_TRUE(whole_);
    EXPECT_THAT(document, EndsWith(kFoot));
    const std::size_t begin = document.find("</fieldNames>\n") + 14;
    return document.substr(begin, document.size() - begin - std::string_view(kFoot).size());
  }

  TemporaryDirectory files_;
  test::Watcher notice_;
  std::string errors_;
  bool whole_ = false;
};

TEST_F(SmartGraph, HoldsTitlePlanFieldsAndTuples) {
  EXPECT_THAT(written("# Start of output of model: Week <plan> & more\n"
                      "# addroot SUPPLY \"sup<1>\" DEMAND 'de mand' ID `77` TEXT \"two words\"\n"
                      "\n"),
              StartsWith("<smartGraph> Week <plan> & more\n</smartGraph>\n<creationDate>"));
  EXPECT_FALSE(whole_) << "an empty line is a data line, and there are no fields";
  const std::string document = written(
      "# Start of output of model: Week <plan> & more\n"
      "# addroot SUPPLY \"sup<1>\" DEMAND 'de mand' ID `77` TEXT \"two words\"\n"
      "# a remark: of no interest\n"
      "FieldNames:\tItem\tDe<mand\t\n"
      "FieldTypes:\tString\tNumber\t\n"
      "PeriodValues:\tP1\tP2\t\n"
      "Bolt & nut\t7\t### n1,n2\n"
      "\"\"\t8\n");
  EXPECT_TRUE(whole_);
  EXPECT_THAT(document, MatchesRegex("<smartGraph> Week <plan> & more\n</smartGraph>\n"
                                     "<creationDate>....-..-..T..:..:.."
                                     "</creationDate>\n"
                                     "<supplyPlanName>sup<1></supplyPlanName>\n"
                                     "<demandPlanName>de mand</demandPlanName>\n"
                                     "<planId>77</planId>\n"
                                     "<description>two words</description>\n"
                                     "<numberOfFields>2</numberOfFields>\n"
                                     "<fieldNames><f1 name=\"Item\"/>\n"
                                     "<f2 name=\"De<mand\"/>\n"
                                     "</fieldNames>\n"
                                     "<smartData>\n"
                                     "<tuple>\n<f1>Bolt & nut</f1>\n<f2>7</f2>\n</tuple>\n"
                                     "<tuple>\n<f1></f1>\n<f2>8</f2>\n</tuple>\n"
                                     "</smartData>\n</qnt-smart>"));
}

TEST_F(SmartGraph, CarriesTheTimeAtWhichItWasMade) {
  std::string before;
  appendDate(before, platform::currentTime(), "%Y-%m-%dT%H:%M", Quoting::None);
  const std::string document = written("#:\n");
  std::string after;
  appendDate(after, platform::currentTime(), "%Y-%m-%dT%H:%M", Quoting::None);
  const std::string time = document.substr(document.find("<creationDate>") + 14, before.size());
  EXPECT_TRUE(time == before || time == after) << document;
}

TEST_F(SmartGraph, ATitleLineWithoutAColonGivesAnEmptyTitle) {
  EXPECT_THAT(written("# no title\n"), StartsWith("<smartGraph></smartGraph>\n<creationDate>"));
}

TEST_F(SmartGraph, ATitleEndsAtTheEndOfTheFileAsWell) {
  EXPECT_THAT(written("#x:a: b"), StartsWith("<smartGraph>a: b</smartGraph>\n"));
}

TEST_F(SmartGraph, OnlyTheFirstLineOfTheFileIsATitle) {
  EXPECT_THAT(written("PeriodValues:\tP1\n# x: late\nFieldNames:\tA\n"),
              StartsWith("<numberOfFields>1</numberOfFields>\n"));
}

TEST_F(SmartGraph, APlanLineIsNoTitle) {
  EXPECT_THAT(written("# addroot a: b c d e f g h\n"),
              StartsWith("<supplyPlanName>b</supplyPlanName>\n"
                         "<demandPlanName>d</demandPlanName>\n"
                         "<planId>f</planId>\n"
                         "<description>h</description>\n"
                         "<numberOfFields>0"));
}

TEST_F(SmartGraph, OnlyTheFirstPlanCounts) {
  const std::string document = written("# addroot 1 a 2 b 3 c 4 d\n# addroot 1 A 2 B 3 C 4 D\n");
  EXPECT_THAT(document, StartsWith("<supplyPlanName>a</supplyPlanName>\n"
                                   "<demandPlanName>b</demandPlanName>\n"
                                   "<planId>c</planId>\n"
                                   "<description>d</description>\n"
                                   "<numberOfFields>0"));
}

TEST_F(SmartGraph, APlanWithTooFewWordsHasEmptyValues) {
  EXPECT_THAT(written("# addroot 1 a, 2\n"), StartsWith("<supplyPlanName>a</supplyPlanName>\n"
                                                        "<demandPlanName></demandPlanName>\n"
                                                        "<planId></planId>\n"
                                                        "<description></description>\n"));
}

TEST_F(SmartGraph, OnlyTheDescriptionIsEscaped) {
  EXPECT_THAT(written("# addroot 1 <a> 2 b&b 3 c\\nc 4 'a<b & c\\nd > \\\\e'\n"),
              StartsWith("<supplyPlanName><a></supplyPlanName>\n"
                         "<demandPlanName>b&b</demandPlanName>\n"
                         "<planId>c\\nc</planId>\n"
                         "<description>a&lt;b &amp; c\nd &gt; \\\\e</description>\n"));
}

TEST_F(SmartGraph, OnlyTheFirstNamesCountAndEmptyOnesDoNot) {
  EXPECT_EQ(written("FieldNames:\tA\t\tB\t\nFieldNames:\tC\n"),
            "<numberOfFields>2</numberOfFields>\n"
            "<fieldNames><f1 name=\"A\"/>\n<f2 name=\"B\"/>\n</fieldNames>\n"
            "<numberOfFields>2</numberOfFields>\n"
            "<fieldNames></fieldNames>\n"
            "<smartData></smartData>\n</qnt-smart>");
}

TEST_F(SmartGraph, WithoutNamesOrTuplesItHasNoFields) {
  EXPECT_EQ(written(""),
            "<numberOfFields>0</numberOfFields>\n<fieldNames></fieldNames>\n"
            "<smartData></smartData>\n</qnt-smart>");
  EXPECT_TRUE(whole_);
}

TEST_F(SmartGraph, ConsecutiveTabsCountAsOne) {
  EXPECT_EQ(tuples("\tA\tB", "A\t\tB\n"),
            "<smartData>\n<tuple>\n<f1>A</f1>\n<f2>B</f2>\n</tuple>\n");
}

TEST_F(SmartGraph, AnEmptyFirstValueCounts) {
  EXPECT_EQ(tuples("\tA\tB", "\tB\t\n"), "<smartData>\n<tuple>\n<f1></f1>\n<f2>B</f2>\n</tuple>\n");
}

TEST_F(SmartGraph, NotesAreCutOffAndTheLineEndIsRemoved) {
  EXPECT_EQ(tuples("\tA\tB\r", "a\tb###\t###x\t### y\r\na\tb"),
            "<smartData>\n<tuple>\n<f1>a</f1>\n<f2>b###</f2>\n</tuple>\n"
            "<tuple>\n<f1>a</f1>\n<f2>b</f2>\n</tuple>\n");
}

TEST_F(SmartGraph, QuotesInsideAValueAreKept) {
  EXPECT_EQ(tuples("\tA\tB\tC", "\"\"\t\"\"\"\t \"\"\n"),
            "<smartData>\n<tuple>\n<f1></f1>\n<f2>\"\"\"</f2>\n<f3> \"\"</f3>\n</tuple>\n");
}

TEST_F(SmartGraph, TuplesWithAnEmptySixthValueAreWrittenOncePerKey) {
  const auto tuple = [](const char* first, const char* fifth, const char* sixth) {
    return fmt::format(
        "<tuple>\n<f1>{}</f1>\n<f2>b</f2>\n<f3>c</f3>\n<f4>d</f4>\n<f5>{}</f5>\n<f6>{}</f6>\n"
        "</tuple>\n",
        first, fifth, sixth);
  };
  EXPECT_EQ(tuples("\tA\tB\tC\tD\tE\tF",
                   "1\tb\tc\td\te\t\"\"\n"
                   "2\tb\tc\td\te\t\"\"\n"
                   "3\tb\tc\td\tx\t\"\"\n"
                   "4\tb\tc\td\te\tf\n"
                   "5\tb\tc\td\te\tf\n"
                   "6\tb\tc\td\te\t\"\"\n"),
            "<smartData>\n" + tuple("1", "e", "") + tuple("3", "x", "") + tuple("4", "e", "f") +
                tuple("5", "e", "f"));
}

TEST_F(SmartGraph, AnEmptySixthValueSuppressesInAWiderTableToo) {
  EXPECT_EQ(tuples("\tA\tB\tC\tD\tE\tF\tG", "1\tb\tc\td\te\t\"\"\tg\n2\tb\tc\td\te\t\"\"\th\n"),
            "<smartData>\n<tuple>\n<f1>1</f1>\n<f2>b</f2>\n<f3>c</f3>\n<f4>d</f4>\n<f5>e</f5>\n"
            "<f6></f6>\n<f7>g</f7>\n</tuple>\n");
}

TEST_F(SmartGraph, EqualTuplesOfFiveValuesAreAllWritten) {
  const std::string tuple =
      "<tuple>\n<f1>a</f1>\n<f2>b</f2>\n<f3>c</f3>\n<f4>d</f4>\n<f5></f5>\n</tuple>\n";
  EXPECT_EQ(tuples("\tA\tB\tC\tD\tE", "a\tb\tc\td\t\"\"\na\tb\tc\td\t\"\"\n"),
            "<smartData>\n" + tuple + tuple);
}

TEST_F(SmartGraph, ALineWithOneValueTooFewEndsTheDocument) {
  EXPECT_EQ(written("FieldNames:\tA\tB\na\tb\nc\ne\tf\n"),
            "<numberOfFields>2</numberOfFields>\n"
            "<fieldNames><f1 name=\"A\"/>\n<f2 name=\"B\"/>\n</fieldNames>\n"
            "<smartData>\n<tuple>\n<f1>a</f1>\n<f2>b</f2>\n</tuple>\n"
            "Error: Data does not match fields\n");
  EXPECT_FALSE(whole_);
}

TEST_F(SmartGraph, ALineWithOneValueTooManyOrBeforeTheNamesDoesSoToo) {
  EXPECT_THAT(written("FieldNames:\tA\na\tb\n"), EndsWith("</fieldNames>\nError: Data does not "
                                                          "match fields\n"));
  EXPECT_EQ(written("a\nFieldNames:\tA\n"), "Error: Data does not match fields\n");
  EXPECT_FALSE(whole_);
}

TEST_F(SmartGraph, ALongLineIsReadInPieces) {
  const std::string longest(4095, 'x');
  EXPECT_EQ(tuples("\tA", longest + "yz\n"), "<smartData>\n<tuple>\n<f1>" + longest +
                                                 "</f1>\n</tuple>\n"
                                                 "<tuple>\n<f1>yz</f1>\n</tuple>\n");
}

TEST_F(SmartGraph, SaysWhenItCannotBeWritten) {
  EXPECT_FALSE(write(files_.path("none.smart"), files_.path("no/such/graph.xml")));
  EXPECT_EQ(errors_,
            "Error: Invalid output file path \"" + files_.path("no/such/graph.xml") + "\".\n");
}

TEST_F(SmartGraph, SaysWhenThereIsNoInputAndKeepsTheOldFile) {
  files_.write("graph.xml", "old");
  EXPECT_FALSE(write(files_.path("none.smart"), files_.path("graph.xml")));
  EXPECT_EQ(errors_, "Error: Cannot find input file \"" + files_.path("none.smart") + "\".\n");
  EXPECT_EQ(files_.read("graph.xml"), "old");
}

#ifndef _WIN32
TEST_F(SmartGraph, AFullDeviceIsAnInvalidOutput) {
  EXPECT_FALSE(write(files_.write("qnt.smart", "FieldNames:\tA\na\n"), "/dev/full"));
  EXPECT_EQ(errors_, "Error: Invalid output file path \"/dev/full\".\n");
}
#endif

TEST_F(SmartGraph, ACancelledOneLeavesTheOldFileAndNoMessage) {
  files_.write("graph.xml", "old");
  notice_.stopped = "[Exporting]";
  EXPECT_FALSE(write(files_.write("qnt.smart", "FieldNames:\tA\na\n"), files_.path("graph.xml")));
  EXPECT_EQ(errors_, "");
  EXPECT_EQ(files_.read("graph.xml"), "old");
  const std::filesystem::directory_iterator left(files_.path());
  EXPECT_EQ(std::distance(begin(left), end(left)), 2);
}

}  // namespace
}  // namespace vrel
