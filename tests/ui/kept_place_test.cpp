// Where the user is in the report after it was laid out in another way.
#include <gtest/gtest.h>

#include <QScrollBar>

#include "ui/desk.h"
#include "ui/field_button.h"

namespace vrel {
namespace {

using test::Desk;
using test::supplyPlan;

struct KeptPlaceTest : testing::Test {
  void open(const test::Axes& axes, bool dataInColumns) {
    desk = std::make_unique<Desk>(supplyPlan(), axes, dataInColumns);
    window = desk->openWindow();
  }

  // The text of the current cell.
  std::string current() const {
    const auto place = window->tables().currentPlace();
    return place ? window->tables()
                       .cellText(static_cast<int>(place->row), static_cast<int>(place->column))
                       .toStdString()
                 : "(nowhere)";
  }

  std::unique_ptr<Desk> desk;
  std::unique_ptr<VrelMainWindow> window;
};

TEST_F(KeptPlaceTest, IsTheSameValueElsewhere) {
  open({"Item Place", "Week", "", "Plan Seen"}, true);
  window->tables().setCurrentPlace({2, 5});
  ASSERT_EQ(current(), "32");
  window->slotConfigSwapData();
  EXPECT_EQ(current(), "32");
  EXPECT_EQ(window->tables().currentPlace(), (GridPlace{5, 4}));
}

TEST_F(KeptPlaceTest, IsTheSamePlaceWhereNoValueStood) {
  open({"Item Place", "Week", "", "Plan Seen"}, true);
  window->tables().setCurrentPlace({2, 1});
  ASSERT_EQ(current(), "Lyon");
  window->slotConfigSwapData();
  EXPECT_EQ(window->tables().currentPlace(), (GridPlace{2, 1}));
}

TEST_F(KeptPlaceTest, IsTheSameDataColumnWhenLabelsGo) {
  open({"Item Place", "Week", "", "Plan"}, true);
  window->tables().setCurrentPlace({3, 3});
  ASSERT_EQ(current(), "") << "Gear in Oslo has no second week";
  window->slotConfigOrder();
  const auto fields = window->findChild<QDialog*>("order dialog")->findChildren<FieldButton*>();
  // The first label column becomes tabs.
  QTest::keyClick(fields.first(), Qt::Key_Right, Qt::ControlModifier);
  ASSERT_EQ(window->model().labelColumns(), 1);
  EXPECT_EQ(window->tables().currentPlace()->column, 2u) << "still the second week";
}

TEST_F(KeptPlaceTest, StaysInSight) {
  open({"Item Place Week", "", "", "Plan Seen"}, false);
  window->resize(400, 250);
  QCoreApplication::processEvents();
  QScrollBar* bar = window->tables().regularTable()->verticalScrollBar();
  window->tables().setCurrentPlace({18, 4});
  ASSERT_EQ(current(), "4,200");
  ASSERT_GT(bar->value(), 0);
  window->slotConfigSwapData();
  EXPECT_EQ(current(), "4,200");
  const DataTable* table = window->tables().regularTable();
  EXPECT_TRUE(table->viewport()->rect().contains(table->visualRect(table->currentIndex())));
}

}  // namespace
}  // namespace vrel
