#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/formula_window.h"

namespace vrel {
namespace {

using test::Lines;
using testing::EndsWith;
using testing::StartsWith;

constexpr std::string_view kOtherView =
    "numberoffields 4\n"
    "addfield <Name> Item <Type> string <Classification> key\n"
    "addfield <Name> Plan <Type> number <HighlightExpression> \"PINK()\"\n"
    "addfield <Name> Sum <Type> expression <Expression> Plan*3 <InverseExpression> "
    "\"Assign(#Plan, Sum/3)\" <HighlightExpression> GREEN()\n"
    "addfield <Name> Extra <Type> expression <Expression> Sum+1 <InverseExpression> _undefined_ "
    "<HighlightExpression> \"IF(Extra>40,RED(),BLACK())\"\n";

struct Imports : test::FormulaWindow {
  void import(const QString& entry, const QString& path) {
    desk.chosenFile = path;
    test::menuEntry(*window, "&File", entry)->trigger();
  }
  void importExpressions(const QString& path) { import("&Import Expressions...", path); }
  void importHighlighting(const QString& path) { import("Import &Highlighting...", path); }
  QString file(std::string_view text, const std::string& name = "other.view") {
    return QString::fromStdString(desk.directory.write(name, text));
  }
};

TEST_F(Imports, AskForAViewFile) {
  importExpressions("");
  importHighlighting("");
  EXPECT_THAT(desk.askedFor[0], StartsWith("open|Import Expressions|"));
  EXPECT_THAT(desk.askedFor[1], StartsWith("open|Import Highlighting|"));
  EXPECT_FALSE(desk.view.modified);
  EXPECT_EQ(desk.notice.shown, Lines());
}

TEST_F(Imports, BringTheExpressionsOfTheFile) {
  given({"Sum", "Plan+Seen", ""});
  importExpressions(file(kOtherView));
  EXPECT_EQ(grid(),
            (Lines{"Bolt|Plan|10|20", "Bolt|Seen|1|2", "Bolt|Sum|30|60", "Bolt|Extra|31|61"}));
  EXPECT_EQ(desk.table.field(4).inverseExpression.text, "Assign(#Plan, Sum/3)");
  EXPECT_EQ(desk.table.field(4).highlightExpression.text, "BLACK()");
  EXPECT_EQ(desk.table.field(2).highlightExpression.text, "BLACK()");
  EXPECT_EQ(highlightOf(desk.table, 1, 5), 1);
  EXPECT_TRUE(desk.view.modified);
  EXPECT_EQ(desk.view.fileName, "");
  EXPECT_EQ(desk.notice.shown, Lines());
}

TEST_F(Imports, BringTheHighlightingOfTheFile) {
  given({"Sum", "Plan+Seen", ""});
  setHighlightFormula(desk.view, 3, "BLUE()");
  importHighlighting(file(kOtherView));
  EXPECT_EQ(desk.table.field(2).highlightExpression.text, "PINK()");
  EXPECT_EQ(desk.table.field(3).highlightExpression.text, "BLUE()");
  EXPECT_EQ(desk.table.field(4).highlightExpression.text, "GREEN()");
  EXPECT_EQ(desk.table.field(4).expression.text, "Plan+Seen");
  EXPECT_EQ(desk.table.fieldCount(), 5U);
  EXPECT_EQ(highlightOf(desk.table, 0, 2), 2);
  EXPECT_TRUE(desk.view.modified);
}

TEST_F(Imports, TakeFilesOfOtherTables) {
  importExpressions(
      file("addfield <Name> Quite <Type> number\n"
           "addfield <Name> Other <Type> expression <Expression> 5\n"));
  EXPECT_EQ(grid().back(), "Bolt|Other|5|5");
}

TEST_F(Imports, SayThatAFileCannotBeOpened) {
  const QString missing = QString::fromStdString(desk.directory.path()) + "/none.view";
  const QString untitled = file(kOtherView, "untitled.view");
  const std::string folder = desk.directory.path() + "/folder.view";
  ASSERT_TRUE(QDir().mkdir(QString::fromStdString(folder)));
  Lines expected;
  for (const QString& path : {missing, untitled, QString::fromStdString(folder)}) {
    importExpressions(path);
    importHighlighting(path);
    const std::string told = "critical|Data Editor|Unable to open file \"" + path.toStdString() +
                             "\" for loading expressions.";
    expected.push_back(told);
    expected.push_back(told);
  }
  EXPECT_EQ(desk.notice.shown, expected);
  EXPECT_EQ(desk.table.fieldCount(), 4U);
  EXPECT_FALSE(desk.view.modified);
}

TEST_F(Imports, SayThatAFileHasNothingToImport) {
  const QString path = file("addfield <Name> Quite <Type> number\n");
  importExpressions(path);
  importHighlighting(path);
  EXPECT_EQ(desk.notice.shown, (Lines{"warning|Data Editor|View file \"" + path.toStdString() +
                                          "\" has no expressions.",
                                      "warning|Data Editor|View file \"" + path.toStdString() +
                                          "\" has none of the fields of this report."}));
  EXPECT_FALSE(desk.view.modified);
}

TEST_F(Imports, EndAtABadRecord) {
  importExpressions(
      file("addfield <Name> One <Type> expression <Expression> 1\n"
           "addfield\n"
           "addfield <Name> Two <Type> expression <Expression> 2\n"));
  EXPECT_EQ(desk.errorText, "Error in view file in line 2\n");
  EXPECT_EQ(grid().back(), "Bolt|One|1|1");
}

TEST_F(Imports, AreSeenInTheListThatStandsOpen) {
  open("&Expressions...");
  QDialog* dialog = FormulaWindow::dialog("ExpressionsDialog");
  importExpressions(file(kOtherView));
  EXPECT_EQ(rowsOf(in<QTreeWidget>(dialog, "expressionList")),
            (Lines{"Sum|Plan*3", "Extra|Sum+1"}));
  click(dialog, "cancelButton");
  EXPECT_EQ(desk.table.fieldCount(), 6U);
}

TEST_F(Imports, ReachFieldsOfTheExpressionsByTheirNewNames) {
  importExpressions(
      file("addfield <Name> Seen <Type> expression <Expression> 7\n"
           "addfield <Name> User <Type> expression <Expression> Seen+1\n"));
  EXPECT_THAT(grid().back(), EndsWith("User|8|8"));
}

}  // namespace
}  // namespace vrel
