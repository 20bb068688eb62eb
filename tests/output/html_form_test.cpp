#include "output/html_form.h"

#include <gmock/gmock.h>

#include "support/html.h"
#include "support/random_reports.h"
#include "support/tables.h"

namespace vrel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class HtmlForm : public testing::Test {
 protected:
  Table table_ = test::tableOf("Item:String Plant:String Supply:Number Cost:Number Flag:Boolean",
                               "", {"Nut East 3 30 n", "Bolt West 1234 20 y", "Bolt East 1 10 y"});
  ReportView view_ = test::viewOf(table_, {0}, {1}, {}, {2});

  void SetUp() override { setEditable(2); }

  void setEditable(int field) {
    table_.field(field).classification = Classification::DataReadWrite;
  }

  std::string written(std::string_view title = "Plan") { return test::htmlTableOf(view_, title); }

  /// The names of the inputs, in their order.
  std::vector<std::string> inputNames() {
    std::vector<std::string> names;
    const std::string text = written();
    for (const std::string_view begin : {"<input name=", "<select name="}) {
      for (std::size_t at = text.find(begin); at != std::string::npos; at = text.find(begin, at)) {
        at += begin.size();
        names.push_back(text.substr(at, text.find_first_of(" >", at) - at));
      }
    }
    return names;
  }

  std::vector<std::string> tokens() {
    std::vector<std::string> found;
    const std::string text = written();
    for (std::size_t at = text.find("name=tok_"); at != std::string::npos;
         at = text.find("name=tok_", at + 1)) {
      const std::size_t begin = text.find('"', at) + 1;
      found.push_back(text.substr(begin, text.find('"', begin) - begin));
    }
    return found;
  }
};

TEST_F(HtmlForm, StandsAroundATableWithAnEditableField) {
  EXPECT_EQ(written(),
            "<form action=\"cgi-bin/EditFromDE.cgi\" method=post>\n"
            "<input type=hidden name=init_table value=\"Plan\">\n"
            "<input type=hidden name=numFld value=5>\n"
            "<input type=hidden name=fld_0 value=\"Item\">\n"
            "<input type=hidden name=fld_1 value=\"Plant\">\n"
            "<input type=hidden name=fld_2 value=\"Supply\">\n"
            "<input type=hidden name=fld_3 value=\"Cost\">\n"
            "<input type=hidden name=fld_4 value=\"Flag\">\n"
            "<input type=hidden name=numTok value=4>\n"
            "<input type=hidden name=tok_0 value=\"Bolt\">\n"
            "<input type=hidden name=tok_1 value=\"East\">\n"
            "<input type=hidden name=tok_2 value=\"Nut\">\n"
            "<input type=hidden name=tok_3 value=\"West\">\n"
            "<table border>\n"
            "<tr align=left>\n"
            "<th rowspan=1 colspan=1></th>\n"
            "<th>East</th>\n"
            "<th>West</th>\n"
            "</tr>\n"
            "<tr align=right>\n"
            "<th valign=top>Bolt</th>\n"
            "<td><input name=x0_0_1_1_2 size=3 value=\"1\"></td>\n"
            "<td><input name=x1_3 size=7 value=\"1,234\"></td>\n"
            "</tr>\n"
            "<tr align=right>\n"
            "<th valign=top>Nut</th>\n"
            "<td><input name=x0_2_1_1 size=3 value=\"3\"></td>\n"
            "<td>&nbsp;</td>\n"
            "</tr>\n"
            "</table>\n"
            "<input type=submit value=\"Apply Changes\"> <p>\n"
            "</form>\n");
}

TEST_F(HtmlForm, IsNotWrittenWithoutAnEditableField) {
  table_.field(2).classification = Classification::DataReadOnly;
  EXPECT_FALSE(hasEditForm(table_));
  EXPECT_THAT(written(), Not(HasSubstr("<form")));
  EXPECT_THAT(written(), Not(HasSubstr("<input")));
}

TEST_F(HtmlForm, IsNotWrittenForFormulasAlone) {
  table_.field(2).type = FieldType::Expression;
  EXPECT_FALSE(hasEditForm(table_));
  EXPECT_THAT(written(), Not(HasSubstr("<input")));
}

TEST_F(HtmlForm, HasInputsForEditableFormulasBesideOtherFields) {
  setEditable(3);
  table_.field(3).type = FieldType::Expression;
  view_.axis(Axis::Data) = {3};
  EXPECT_THAT(written(), HasSubstr("value=\"10\"></td>"));
}

TEST_F(HtmlForm, IsWrittenForAFieldThatTheReportDoesNotShow) {
  view_.axis(Axis::Data) = {3};
  EXPECT_TRUE(hasEditForm(table_));
  EXPECT_THAT(written(), HasSubstr("<td>10</td>\n"));
  EXPECT_THAT(inputNames(), ElementsAre());
}

TEST_F(HtmlForm, NamesTheKeysOfATupleOnlyOnce) {
  setEditable(3);
  view_.axis(Axis::Data) = {2, 3};
  view_.dataInColumns = true;
  EXPECT_THAT(inputNames(), ElementsAre("x0_0_1_1_2", "x3", "x1_3_2", "x3", "x0_2_1_1_2", "x3"));
}

TEST_F(HtmlForm, LeavesTheFieldOutThatTheInputBeforeHas) {
  EXPECT_THAT(inputNames(), ElementsAre("x0_0_1_1_2", "x1_3", "x0_2_1_1"));
}

TEST_F(HtmlForm, NamesByTheInputBeforeInTheRowsToo) {
  setEditable(3);
  view_.axis(Axis::Data) = {2, 3};
  EXPECT_THAT(inputNames(),
              ElementsAre("x0_0_1_1_2", "x1_3", "x1_1_3", "x1_3", "x0_2_1_1_2", "x3"));
}

TEST_F(HtmlForm, KeepsABareNameForAnotherTupleWithTheSameKeys) {
  table_ = test::tableOf("Item:String Size:Number Supply:Number", "", {"Nut 1 3", "Nut 2 4"});
  setEditable(2);
  view_ = test::viewOf(table_, {1}, {}, {}, {2});
  EXPECT_THAT(inputNames(), ElementsAre("x0_0_2", "x"));
}

TEST_F(HtmlForm, HasNoInputsForOtherFieldsAndSummaries) {
  view_.axis(Axis::Data) = {2, 3};
  view_.dataInColumns = true;
  view_.breaks = {test::breakOf(0, kBreakAtEnd, {{2, BreakOperation::Sum}})};
  const std::string text = written();
  EXPECT_THAT(text, HasSubstr("<td>30</td>\n"));
  EXPECT_THAT(text.substr(text.find("<th valign=top>Total")), HasSubstr("<td>4</td>\n"));
  EXPECT_THAT(inputNames(), testing::SizeIs(3));
}

TEST_F(HtmlForm, MakesInputsWiderThanTheLongestTextOfTheirColumn) {
  table_ = test::tableOf("Item:String Note:String", "",
                         {"A K\xc3\xb6ln", "B \xc3\xa4\xc3\xb6\xc3\xbc\xc3\x9f\xc3\xa4", "C abc"});
  setEditable(1);
  view_ = test::viewOf(table_, {0}, {}, {}, {1});
  const std::string text = written();
  EXPECT_THAT(text, HasSubstr(" size=7 value=\"K\xc3\xb6ln\">"));
  EXPECT_THAT(text, HasSubstr(" size=7 value=\"abc\">"));
}

TEST_F(HtmlForm, CountsTheTextsOfSummariesToTheWidth) {
  view_.breaks = {test::breakOf(0, kBreakAtEnd, {{2, BreakOperation::Sum}})};
  table_.cell(0, 2) = numberCell(9);
  table_.cell(2, 2) = numberCell(9);
  EXPECT_THAT(written(), HasSubstr("size=4 value=\"9\""));
}

TEST_F(HtmlForm, LeavesEmptyTextsWithoutAnInput) {
  table_ = test::tableOf("Item:String Note:String", "", {"A x", "B \"\""});
  setEditable(1);
  view_ = test::viewOf(table_, {0}, {}, {}, {1});
  EXPECT_THAT(written(), HasSubstr("<th valign=top>B</th>\n<td>&nbsp;</td>\n"));
}

TEST_F(HtmlForm, ChoosesBetweenYesAndNo) {
  setEditable(4);
  view_.axis(Axis::Data) = {4};
  const std::string text = written();
  EXPECT_THAT(text, HasSubstr("<th valign=top>Bolt</th>\n"
                              "<td><select name=x0_0_1_1_4> <option selected> Yes <option> No "
                              "</select></td>\n"));
  EXPECT_THAT(text, HasSubstr("<th valign=top>Nut</th>\n"
                              "<td><select name=x0_2_1_1> <option> Yes <option selected> No "
                              "</select></td>\n"));
}

TEST_F(HtmlForm, MasksQuotesAndPercentSigns) {
  EXPECT_EQ(test::penned([](TextPen& pen) { writeFormText(pen, "\"50%\"<a&b>'\n%%"); }),
            "%2250%25%22<a&b>'\n%25%25");
  table_ = test::tableOf("I\"t%em:String Note:String", "", {"\"A\" 5%"});
  setEditable(1);
  view_ = test::viewOf(table_, {0}, {}, {}, {1});
  const std::string text = written("The \"best\" of 100%");
  EXPECT_THAT(text, HasSubstr("name=init_table value=\"The %22best%22 of 100%25\">\n"));
  EXPECT_THAT(text, HasSubstr("name=fld_0 value=\"I%22t%25em\">\n"));
  EXPECT_THAT(text, HasSubstr("name=tok_0 value=\"%22A%22\">\n"));
  EXPECT_THAT(text, HasSubstr("<th valign=top>\"A\"</th>\n"));
  EXPECT_THAT(text, HasSubstr(" value=\"5%25\"></td>\n"));
}

TEST_F(HtmlForm, OfATableWithoutATitleSaysUndefined) {
  EXPECT_THAT(written(""), HasSubstr("<input type=hidden name=init_table value=\"undefined\">\n"));
}

TEST_F(HtmlForm, NumbersTokensByTypeAndThenByValue) {
  table_ = test::tableOf(
      "Size:Number Month:Period Item:String Plant:String Day:String Hot:Boolean Supply:Number",
      "Jan Feb", {"1200 Feb Nut East 3-Mar-2014 y 1", "9 Jan East Nut 2-Mar-2014 n 2"});
  settleTypes(table_);
  for (const int field : {0, 5}) {
    table_.field(field).classification = Classification::Key;
  }
  setEditable(6);
  view_ = test::viewOf(table_, {0, 2, 3}, {1}, {}, {6});
  EXPECT_THAT(tokens(), ElementsAre("East", "Nut", "9", "1200", "No", "Yes", "2014/03/02 00:00:00",
                                    "2014/03/03 00:00:00", "Jan", "Feb"));
  EXPECT_THAT(inputNames(), ElementsAre("x0_2_1_8_2_0_3_1_4_6_5_4_6", "x0_3_1_9_2_1_3_0_4_7_5_5"));
}

TEST_F(HtmlForm, WritesTokensPlainAndInputsAsTheyAreShown) {
  table_ = test::tableOf("Size:Number Supply:Number", "", {"1200 1e20", "1e20 3400"});
  table_.field(0).classification = Classification::Key;
  setEditable(1);
  view_ = test::viewOf(table_, {0}, {}, {}, {1});
  EXPECT_THAT(tokens(), ElementsAre("1200", "100000000000000000000"));
  const std::string text = written();
  EXPECT_THAT(text, HasSubstr("<th valign=top>1,200</th>\n<td><input name=x0_0_1 size=7 "
                              "value=\"*\"></td>\n"));
  EXPECT_THAT(text, HasSubstr("<th valign=top>*</th>\n<td><input name=x0_1 size=7 "
                              "value=\"3,400\"></td>\n"));
}

TEST_F(HtmlForm, HasOneTokenForEqualNumbersOfDifferentMaking) {
  table_ = test::tableOf("Size:Number Item:String Supply:Number", "",
                         {"0 A 1", "-0 B 2", "undefined C 3"});
  table_.field(0).classification = Classification::Key;
  setEditable(2);
  view_ = test::viewOf(table_, {1}, {}, {}, {2});
  EXPECT_THAT(inputNames(), ElementsAre("x0_3_1_0_2", "x1_1", "x1_2"));
}

TEST_F(HtmlForm, HasTokensOfTheShownPageOnly) {
  view_ = test::viewOf(table_, {0}, {}, {1}, {2});
  view_.zIndex = 1;
  EXPECT_THAT(tokens(), ElementsAre("Bolt", "West"));
}

TEST_F(HtmlForm, HasNoTokensWithoutTuples) {
  table_ = test::tableOf("Item:String Supply:Number", "", {});
  setEditable(1);
  view_ = test::viewOf(table_, {0}, {}, {}, {1});
  EXPECT_EQ(written(),
            "<form action=\"cgi-bin/EditFromDE.cgi\" method=post>\n"
            "<input type=hidden name=init_table value=\"Plan\">\n"
            "<input type=hidden name=numFld value=2>\n"
            "<input type=hidden name=fld_0 value=\"Item\">\n"
            "<input type=hidden name=fld_1 value=\"Supply\">\n"
            "<input type=hidden name=numTok value=0>\n"
            "<table border>\n"
            "<tr align=left>\n"
            "<th rowspan=1 colspan=1></th>\n"
            "</tr>\n"
            "</table>\n"
            "<input type=submit value=\"Apply Changes\"> <p>\n"
            "</form>\n");
}

/// What a script reads out of the names: for each input the token of every key, then the field.
std::vector<std::vector<std::size_t>> readNames(const std::vector<std::string>& names,
                                                const std::vector<int>& keys) {
  std::vector<std::vector<std::size_t>> inputs;
  std::map<std::size_t, std::size_t> tokens;
  std::size_t field = 0;
  for (const std::string& name : names) {
    std::vector<std::size_t> numbers;
    for (std::size_t at = 0; at != std::string::npos && at + 1 < name.size();
         at = name.find('_', at + 1)) {
      numbers.push_back(std::stoul(name.substr(at + 1)));
    }
    for (std::size_t i = 0; i + 1 < numbers.size(); i += 2) {
      tokens[numbers[i]] = numbers[i + 1];
    }
    field = numbers.size() % 2 == 1 ? numbers.back() : field;
    std::vector<std::size_t>& input = inputs.emplace_back();
    for (const int key : keys) {
      input.push_back(tokens[static_cast<std::size_t>(key)]);
    }
    input.push_back(field);
  }
  return inputs;
}

TEST_F(HtmlForm, LetsAScriptFindTheCellsOfAnyReport) {
  std::mt19937 random(5);
  for (int i = 0; i < 200; ++i) {
    test::RandomReport report(random);
    for (const int field : report.grid.dataFields) {
      report.table.field(field).classification = Classification::DataReadWrite;
    }
    const FormTokens tokens(report.grid);
    InputNames names(report.table, tokens);
    std::vector<std::string> written;
    std::vector<std::vector<std::size_t>> expected;
    std::vector<RowCell> cells;
    for (std::size_t row = 0; row < report.grid.rows; ++row) {
      findRowCells(report.grid, row, cells);
      for (const RowCell& cell : cells) {
        if (cell.tuple == RowCell::kSummary) {
          continue;
        }
        const int field = report.grid.dataFields[cell.data];
        written.emplace_back(names.next({cell.tuple, field}));
        std::vector<std::size_t>& input = expected.emplace_back();
        for (std::size_t key = 0; key < tokens.keyFields().size(); ++key) {
          const FieldValue value = report.table.value(cell.tuple, tokens.keyFields()[key]);
          input.push_back(tokens.tokenOf(key, value.cell));
          EXPECT_EQ(tokens[input.back()].owner->type, value.owner->type);
          EXPECT_EQ(compareValues(tokens[input.back()], value), 0);
        }
        input.push_back(static_cast<std::size_t>(field));
      }
    }
    EXPECT_EQ(readNames(written, tokens.keyFields()), expected);
  }
}

}  // namespace
}  // namespace vrel
