#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include "model/report_layout.h"
#include "support/views.h"
#include "ui/column_range_model.h"
#include "ui/desk.h"

namespace vrel {
namespace {

using test::Desk;
using test::supplyPlan;

// All cells of a model, "|" between columns.
std::vector<std::string> cellsOf(const QAbstractItemModel& model) {
  std::vector<std::string> lines;
  for (int row = 0; row < model.rowCount(); ++row) {
    QStringList cells;
    for (int column = 0; column < model.columnCount(); ++column) {
      cells << model.index(row, column).data().toString();
    }
    lines.push_back(cells.join('|').toStdString());
  }
  return lines;
}

std::vector<std::string> headingsOf(const QAbstractItemModel& model) {
  std::vector<std::string> headings;
  for (int column = 0; column < model.columnCount(); ++column) {
    headings.push_back(model.headerData(column, Qt::Horizontal).toString().toStdString());
  }
  return headings;
}

using Lines = std::vector<std::string>;

struct ReportModel : testing::Test {
  void show(bool dataInColumns) {
    desk.view.dataInColumns = dataInColumns;
    model.setGrid(layOut(desk.view));
  }

  Desk desk{supplyPlan(), {"Item Place", "Week", "", "Plan Seen"}, true};
  ReportTableModel model{desk.format};
  ColumnRangeModel labels{model, ReportPart::Labels};
  ColumnRangeModel data{model, ReportPart::Data};
};

TEST_F(ReportModel, IsEmptyBeforeAReportIsLaidOut) {
  EXPECT_EQ(model.rowCount(), 0);
  EXPECT_EQ(model.columnCount(), 0);
  EXPECT_EQ(labels.columnCount(), 0);
  EXPECT_EQ(data.columnCount(), 0);
  EXPECT_EQ(model.headingLines(), 1);
}

TEST_F(ReportModel, ShowsTheLabelColumnsInFrontOfTheData) {
  show(true);
  EXPECT_EQ(cellsOf(model),
            (Lines{"Bolt|Lyon|1,200|11|1,300|12|1,400|13", "|Oslo|2,200|21|2,300|22|2,400|23",
                   "Gear|Lyon|3,200|31|3,300|32|3,400|33", "|Oslo|4,200|41|||4,400|43"}));
}

TEST_F(ReportModel, IsPartedIntoLabelsAndData) {
  show(true);
  EXPECT_EQ(cellsOf(labels), (Lines{"Bolt|Lyon", "|Oslo", "Gear|Lyon", "|Oslo"}));
  EXPECT_EQ(cellsOf(data), (Lines{"1,200|11|1,300|12|1,400|13", "2,200|21|2,300|22|2,400|23",
                                  "3,200|31|3,300|32|3,400|33", "4,200|41|||4,400|43"}));
  EXPECT_EQ(labels.firstColumn(), 0);
  EXPECT_EQ(data.firstColumn(), 2);
}

TEST_F(ReportModel, LabelsIncludeTheNamesOfDataDownTheRows) {
  show(false);
  EXPECT_EQ(cellsOf(labels), (Lines{"Bolt|Lyon|Plan", "||Seen", "|Oslo|Plan", "||Seen",
                                    "Gear|Lyon|Plan", "||Seen", "|Oslo|Plan", "||Seen"}));
  EXPECT_EQ(data.columnCount(), 3);
}

TEST_F(ReportModel, HeadingsComeInAsManyLinesAsTheLayoutGivesThem) {
  show(true);
  EXPECT_EQ(headingsOf(labels), (Lines{"\nItem", "\nPlace"}));
  EXPECT_EQ(headingsOf(data),
            (Lines{"W1\nPlan", "\nSeen", "W2\nPlan", "\nSeen", "W3\nPlan", "\nSeen"}));
  EXPECT_EQ(model.headingLines(), 2);
  show(false);
  EXPECT_EQ(headingsOf(labels), (Lines{"Item", "Place", " "}));
  EXPECT_EQ(headingsOf(data), (Lines{"W1", "W2", "W3"}));
  EXPECT_EQ(model.headingLines(), 1);
}

TEST_F(ReportModel, LongTextsHaveToolTipsThatShowThemAsTheyStand) {
  show(true);
  EXPECT_FALSE(model.data(model.index(0, 0), Qt::ToolTipRole).isValid()) << "a short text has none";
  desk.table.fields[0].name = "<b>" + std::string(40, 'x');
  EXPECT_EQ(model.headerData(0, Qt::Horizontal, Qt::ToolTipRole).toString().trimmed(),
            "&lt;b&gt;" + QString(40, 'x'));
  EXPECT_FALSE(model.headerData(0, Qt::Vertical, Qt::ToolTipRole).isValid());
}

TEST_F(ReportModel, RowsAreNumberedFromOne) {
  show(true);
  EXPECT_EQ(model.headerData(0, Qt::Vertical, Qt::DisplayRole), QVariant(1));
  EXPECT_EQ(labels.headerData(3, Qt::Vertical, Qt::DisplayRole), QVariant(4));
  EXPECT_EQ(labels.headerData(4, Qt::Vertical, Qt::DisplayRole), QVariant());
}

TEST_F(ReportModel, NumbersStandAtTheRightAndLabelsAtTheLeft) {
  show(true);
  const int right = static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
  const int left = static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter);
  EXPECT_EQ(data.index(0, 0).data(Qt::TextAlignmentRole), QVariant(right));
  EXPECT_EQ(labels.index(0, 0).data(Qt::TextAlignmentRole), QVariant(left));
}

TEST_F(ReportModel, TellsEditableFromReadOnlyAndEmptyCells) {
  show(true);
  EXPECT_EQ(model.cellKind(3, 1), CellKind::Label);
  EXPECT_EQ(model.cellKind(3, 2), CellKind::Editable);
  EXPECT_EQ(model.cellKind(3, 3), CellKind::ReadOnly);
  EXPECT_EQ(model.cellKind(3, 4), CellKind::Empty);
  EXPECT_EQ(data.index(3, 0).data(ReportTableModel::kCellKindRole),
            QVariant(static_cast<int>(CellKind::Editable)));
}

// Totals of "Plan" by item, followed by a blank row, and over the weeks.
struct SummaryModel : ReportModel {
  SummaryModel() {
    desk.view.breaks = {test::breakOf(0, 1, {{3, BreakOperation::Sum}}),
                        test::breakOf(2, kBreakAtEnd, {{3, BreakOperation::Sum}})};
    desk.view.breaks[0].breakAfter = true;
    desk.view.breaks[1].name = "Year";
    desk.view.breaks[1].breakAfter = true;
  }

  // The first letters of the kinds of a row's cells; "M" is a summary.
  std::string kindsOf(int row) const {
    std::string kinds;
    for (int column = 0; column < model.columnCount(); ++column) {
      kinds += "LeREM"[static_cast<int>(model.cellKind(row, column))];
    }
    return kinds;
  }
};

TEST_F(SummaryModel, ShowsSummaryRowsAndColumns) {
  show(true);
  EXPECT_EQ(cellsOf(model),
            (Lines{"Bolt|Lyon|1,200|11|1,300|12|1,400|13|3,900|",
                   "|Oslo|2,200|21|2,300|22|2,400|23|6,900|", "Total||3,400||3,600||3,800||10,800|",
                   "|||||||||", "Gear|Lyon|3,200|31|3,300|32|3,400|33|9,900|",
                   "|Oslo|4,200|41|||4,400|43|8,600|", "Total||7,400||3,300||7,800||18,500|",
                   "|||||||||"}));
  EXPECT_EQ(headingsOf(data), (Lines{"W1\nPlan", "\nSeen", "W2\nPlan", "\nSeen", "W3\nPlan",
                                     "\nSeen", "Year\nPlan", "\n"}));
  EXPECT_EQ(model.headingLines(), 2);
}

TEST_F(SummaryModel, SummariesHaveAKindOfTheirOwnAndBlankLinesAreEmpty) {
  show(true);
  EXPECT_EQ(kindsOf(0), "LLERERERMe");
  EXPECT_EQ(kindsOf(2), "MMMMMMMMMe");
  EXPECT_EQ(kindsOf(3), "LLeeeeeeee");
  show(false);
  EXPECT_EQ(kindsOf(0), "LLLEEEMe");
  EXPECT_EQ(kindsOf(4), "MMMMMMMe");
}

TEST_F(SummaryModel, SummariesStandAtTheRightAndCannotBeEdited) {
  show(true);
  const QVariant right(static_cast<int>(Qt::AlignRight | Qt::AlignVCenter));
  const QVariant left(static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter));
  EXPECT_EQ(model.index(2, 2).data(Qt::TextAlignmentRole), right);
  EXPECT_EQ(model.index(0, 8).data(Qt::TextAlignmentRole), right);
  EXPECT_EQ(model.index(2, 8).data(Qt::TextAlignmentRole), right);
  EXPECT_EQ(model.index(2, 0).data(Qt::TextAlignmentRole), left);
  EXPECT_FALSE(model.index(2, 2).flags().testFlag(Qt::ItemIsEditable));
  EXPECT_FALSE(model.index(0, 8).flags().testFlag(Qt::ItemIsEditable));
}

TEST_F(SummaryModel, KeepsTheRulesOfModels) {
  using Tester = QAbstractItemModelTester;
  const Tester whole(&model, Tester::FailureReportingMode::Warning);
  const Tester left(&labels, Tester::FailureReportingMode::Warning);
  const Tester right(&data, Tester::FailureReportingMode::Warning);
  show(true);
  show(false);
  EXPECT_EQ(model.rowCount(), 12);
}

TEST_F(ReportModel, CellsOfFieldsThatMayBeEditedCanBeAndNoOthers) {
  show(true);
  EXPECT_TRUE(data.index(0, 0).flags().testFlag(Qt::ItemIsEditable));
  EXPECT_FALSE(data.index(0, 1).flags().testFlag(Qt::ItemIsEditable)) << "read only";
  EXPECT_FALSE(data.index(3, 2).flags().testFlag(Qt::ItemIsEditable)) << "empty";
  EXPECT_FALSE(labels.index(0, 0).flags().testFlag(Qt::ItemIsEditable)) << "a label";
}

TEST_F(ReportModel, AnItemIsTheValueThatACellShowsAndItsRole) {
  show(true);
  const DataTableItem plan = data.item(0, 2);
  EXPECT_EQ(plan.value, (CellRef{1, 3}));
  EXPECT_EQ(plan.role, 1);
  EXPECT_EQ(data.item(0, 3).value, (CellRef{1, 4}));
  EXPECT_EQ(data.item(0, 3).role, 0);
  EXPECT_EQ(data.item(3, 2).value, std::nullopt);
  EXPECT_EQ(data.item(3, 2).role, 0);
  EXPECT_EQ(labels.item(0, 1).value, labelAt(model.grid(), 0, 1));
  EXPECT_EQ(labels.item(0, 1).role, 0);
}

TEST_F(ReportModel, EditingBeginsWithTheNumberWithoutSeparators) {
  show(true);
  EXPECT_EQ(data.index(0, 0).data(Qt::EditRole), QVariant("1200"));
  desk.table.cell(0, 3).number = 1200.125;
  EXPECT_EQ(data.index(0, 0).data(Qt::EditRole), QVariant("1200.125")) << "of any precision";
  EXPECT_EQ(labels.index(0, 1).data(Qt::EditRole), QVariant("Lyon"));
}

// Notes edits and takes them, or does not.
struct EditedModel : ReportModel {
  EditedModel() {
    show(true);
    model.setEdit([this](CellRef cell, const QString& text) {
      edits << QStringLiteral("%1/%2=%3").arg(cell.tuple).arg(cell.field).arg(text);
      return takes;
    });
  }

  QStringList edits;
  bool takes = true;
};

TEST_F(EditedModel, HandsAnEditOnWithTheValueThatItIsFor) {
  const QSignalSpy changes(&data, &QAbstractItemModel::dataChanged);
  EXPECT_TRUE(data.setData(data.index(1, 2), "77", Qt::EditRole));
  EXPECT_EQ(edits, QStringList{"4/3=77"});
  EXPECT_EQ(changes.count(), 1);
}

TEST_F(EditedModel, KeepsTheRulesOfModelsThroughAnEdit) {
  using Tester = QAbstractItemModelTester;
  const Tester whole(&model, Tester::FailureReportingMode::Warning);
  const Tester right(&data, Tester::FailureReportingMode::Warning);
  EXPECT_TRUE(data.setData(data.index(0, 0), "77", Qt::EditRole));
}

TEST_F(EditedModel, SaysWhenAnEditWasRefusedAndChangesNothing) {
  takes = false;
  const QSignalSpy changes(&data, &QAbstractItemModel::dataChanged);
  EXPECT_FALSE(data.setData(data.index(1, 2), "x", Qt::EditRole));
  EXPECT_EQ(edits, QStringList{"4/3=x"});
  EXPECT_EQ(changes.count(), 0);
}

TEST_F(EditedModel, TheTextThatEditingBeganWithIsNoEdit) {
  EXPECT_FALSE(data.setData(data.index(1, 2), "2300", Qt::EditRole));
  EXPECT_EQ(edits, QStringList());
}

TEST_F(EditedModel, OnlyEditableCellsAndOnlyEditedTextsAreHandedOn) {
  EXPECT_FALSE(data.setData(data.index(1, 3), "5", Qt::EditRole)) << "read only";
  EXPECT_FALSE(data.setData(data.index(3, 2), "5", Qt::EditRole)) << "empty";
  EXPECT_FALSE(labels.setData(labels.index(0, 0), "Nut", Qt::EditRole)) << "a label";
  EXPECT_FALSE(data.setData(data.index(1, 2), "5", Qt::DisplayRole));
  EXPECT_FALSE(model.setData(QModelIndex(), "5", Qt::EditRole));
  EXPECT_EQ(edits, QStringList());
}

TEST_F(ReportModel, WithoutAnybodyToTakeThemEditsAreRefused) {
  show(true);
  EXPECT_FALSE(data.setData(data.index(0, 0), "5", Qt::EditRole));
}

TEST_F(ReportModel, ChangedValuesAreAnnouncedOnceForAllCellsOfEachPart) {
  show(true);
  const QSignalSpy labelChanges(&labels, &QAbstractItemModel::dataChanged);
  const QSignalSpy dataChanges(&data, &QAbstractItemModel::dataChanged);
  model.valuesChanged();
  ASSERT_EQ(labelChanges.count(), 1);
  EXPECT_EQ(labelChanges[0][1].toModelIndex(), labels.index(3, 1));
  ASSERT_EQ(dataChanges.count(), 1);
  EXPECT_EQ(dataChanges[0][0].toModelIndex(), data.index(0, 0));
  EXPECT_EQ(dataChanges[0][1].toModelIndex(), data.index(3, 5));
}

TEST_F(ReportModel, AnEmptyReportHasNoValuesToChange) {
  const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
  model.valuesChanged();
  EXPECT_EQ(changes.count(), 0);
}

TEST_F(ReportModel, DataCellsHaveTheHighlightOfTheirValueAndLabelsHaveNone) {
  show(true);
  desk.table.highlights.resize(5);
  desk.table.highlights[0].common = 6;
  desk.table.highlights[3].common = 1;
  desk.table.highlights[4].byTuple = {2, 9, 126, 0, 0, 0, 0, 0, 0, 0, 0};
  const auto highlight = [](const QModelIndex& index) {
    return index.data(ReportTableModel::kHighlightRole).toInt();
  };
  EXPECT_EQ(highlight(data.index(0, 0)), 1);
  EXPECT_EQ(highlight(data.index(0, 1)), 2);
  EXPECT_EQ(highlight(data.index(0, 3)), 0) << "not in the list of colours";
  EXPECT_EQ(highlight(data.index(0, 5)), 0) << "not in the list of colours";
  EXPECT_EQ(highlight(data.index(3, 2)), 0) << "an empty cell";
  EXPECT_EQ(highlight(labels.index(0, 0)), 0);
}

TEST_F(ReportModel, AChangedCellIsAnnouncedByThePartThatShowsIt) {
  show(true);
  const QSignalSpy labelChanges(&labels, &QAbstractItemModel::dataChanged);
  const QSignalSpy dataChanges(&data, &QAbstractItemModel::dataChanged);
  emit model.dataChanged(model.index(1, 3), model.index(2, 5));
  EXPECT_EQ(labelChanges.count(), 0);
  ASSERT_EQ(dataChanges.count(), 1);
  EXPECT_EQ(dataChanges[0][0].toModelIndex(), data.index(1, 1));
  EXPECT_EQ(dataChanges[0][1].toModelIndex(), data.index(2, 3));
}

TEST_F(ReportModel, AChangeAcrossBothPartsIsAnnouncedByBoth) {
  show(true);
  const QSignalSpy labelChanges(&labels, &QAbstractItemModel::dataChanged);
  const QSignalSpy dataChanges(&data, &QAbstractItemModel::dataChanged);
  emit model.dataChanged(model.index(0, 1), model.index(0, 2));
  ASSERT_EQ(labelChanges.count(), 1);
  EXPECT_EQ(labelChanges[0][0].toModelIndex(), labels.index(0, 1));
  EXPECT_EQ(labelChanges[0][1].toModelIndex(), labels.index(0, 1));
  ASSERT_EQ(dataChanges.count(), 1);
  EXPECT_EQ(dataChanges[0][0].toModelIndex(), data.index(0, 0));
  EXPECT_EQ(dataChanges[0][1].toModelIndex(), data.index(0, 0));
}

TEST_F(ReportModel, KeepsTheRulesOfModelsThroughEveryLayout) {
  using Tester = QAbstractItemModelTester;
  const Tester whole(&model, Tester::FailureReportingMode::Warning);
  const Tester left(&labels, Tester::FailureReportingMode::Warning);
  const Tester right(&data, Tester::FailureReportingMode::Warning);
  show(true);
  show(false);
  emit model.dataChanged(model.index(0, 1), model.index(3, 4));
  desk.view.axis(Axis::Data).clear();
  show(false);
  EXPECT_EQ(model.rowCount(), 0);
}

}  // namespace
}  // namespace vrel
