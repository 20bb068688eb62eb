#include "ui/cell_font.h"
#include "ui/report_delegate.h"
#include "ui/tables_desk.h"

namespace vrel {
namespace {

using test::supplyPlan;
using test::TablesDesk;

// "Plan" can be edited, "Seen" beside it only read; all values of both are highlighted in red.
struct CellPainting : TablesDesk {
  void SetUp() override {
    Table table = supplyPlan();
    table.highlights.resize(5);
    table.highlights[3].common = 1;
    table.highlights[4].common = 1;
    open(std::move(table), {"Item Place", "Week", "", "Plan Seen"}, true);
  }

  // A pixel of a cell, counted from its top left corner.
  static QColor pixel(DataTable* table, int row, int column, QPoint at) {
    const QRect cell = table->visualRect(table->model()->index(row, column));
    return table->viewport()->grab().toImage().pixelColor(cell.topLeft() + at);
  }
  QPalette palette() const { return regular->palette(); }
};

constexpr QPoint kInside(5, 4);

TEST_F(CellPainting, AHighlightIsTheCellsBackground) {
  EXPECT_EQ(pixel(regular, 1, 3, kInside), QColor(Qt::red));
  EXPECT_EQ(pixel(regular, 1, 2, kInside), QColor(Qt::red));
  desk->table.highlights[4].common = 0;
  EXPECT_EQ(pixel(regular, 1, 3, kInside), cellColors(CellKind::ReadOnly, palette()).background);
}

TEST_F(CellPainting, AnEditableHighlightedCellHasALineInsideItsEdge) {
  const QColor line = cellColors(CellKind::Editable, palette(), 1).frame;
  EXPECT_EQ(pixel(regular, 1, 2, {1, 6}), line);
  EXPECT_EQ(pixel(regular, 1, 2, {0, 6}), QColor(Qt::red));
  EXPECT_EQ(pixel(regular, 1, 3, {1, 6}), QColor(Qt::red)) << "a read-only one has none";
}

TEST_F(CellPainting, TheCurrentCellIsFramedAndKeepsItsColour) {
  tables->setCurrentPlace({1, 5});
  EXPECT_EQ(pixel(regular, 1, 3, {0, 6}), palette().color(QPalette::Highlight));
  EXPECT_EQ(pixel(regular, 1, 3, {1, 6}), palette().color(QPalette::Highlight));
  EXPECT_EQ(pixel(regular, 1, 3, {2, 6}), palette().color(QPalette::Base));
  EXPECT_EQ(pixel(regular, 1, 3, kInside), QColor(Qt::red));
  tables->setCurrentPlace({2, 5});
  EXPECT_EQ(pixel(regular, 1, 3, {0, 6}), QColor(Qt::red));
}

TEST_F(CellPainting, OtherSelectedCellsTakeTheColourOfSelections) {
  tables->setCurrentPlace({1, 5});
  press(Qt::Key_Down, Qt::ShiftModifier);
  const CellColors plain = cellColors(CellKind::ReadOnly, palette(), 1);
  EXPECT_EQ(pixel(regular, 1, 3, kInside), selectedColors(plain, palette()).background);
  EXPECT_EQ(pixel(regular, 2, 3, kInside), QColor(Qt::red)) << "the current one";
}

TEST_F(CellPainting, ColoursFollowThePalette) {
  QPalette dark(QColor(0x35, 0x35, 0x35), QColor(0x35, 0x35, 0x35));
  dark.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
  desk->table.highlights[4].common = 8;
  pixel(regular, 1, 3, kInside);
  tables->setPalette(dark);
  EXPECT_EQ(pixel(regular, 1, 3, kInside), QColor(0x35, 0x35, 0x35));
}

// The outermost columns of an image that are not white.
std::pair<int, int> inked(const QImage& image) {
  int first = image.width();
  int last = -1;
  for (int x = 0; x < image.width(); ++x) {
    for (int y = 0; y < image.height(); ++y) {
      if (image.pixelColor(x, y) != QColor(Qt::white)) {
        first = std::min(first, x);
        last = std::max(last, x);
      }
    }
  }
  return {first, last};
}

struct FontOfCells : testing::Test {
  QImage draw(const QString& text, Qt::Alignment alignment, int width) const {
    QImage image(200, 30, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    font.draw(painter, QRect(20, 0, width, 30), alignment, text);
    return image;
  }

  FontOfCells() { font.follow(QApplication::font(), false); }
  CellFont font;
};

TEST_F(FontOfCells, KnowsTheWidthsOfTexts) {
  const QFontMetricsF metrics(QApplication::font());
  for (const char* text : {"", "0", "-1,234,567.89", "Gdansk", "Gda\xc5\x84sk", "*"}) {
    const QString shown = QString::fromUtf8(text);
    EXPECT_NEAR(font.widthOf(shown), metrics.horizontalAdvance(shown), 1.0) << text;
  }
}

TEST_F(FontOfCells, BoldTextsAreWider) {
  CellFont bold;
  bold.follow(QApplication::font(), true);
  EXPECT_GT(bold.widthOf("1,234"), font.widthOf("1,234"));
}

TEST_F(FontOfCells, FollowsAnotherFont) {
  QFont large = QApplication::font();
  large.setPointSizeF(3 * large.pointSizeF());
  const qreal before = font.widthOf("1,234");
  font.follow(large, false);
  EXPECT_NEAR(font.widthOf("1,234"), 3 * before, before / 4);
}

TEST_F(FontOfCells, DrawsNumbersAtTheRightAndNamesAtTheLeft) {
  const auto [rightFirst, rightLast] = inked(draw("1,234", Qt::AlignRight, 100));
  EXPECT_GT(rightFirst, 60);
  EXPECT_NEAR(rightLast, 119, 2);
  const auto [leftFirst, leftLast] = inked(draw("1,234", Qt::AlignLeft, 100));
  EXPECT_NEAR(leftFirst, 20, 2);
  EXPECT_LT(leftLast, 90);
}

TEST_F(FontOfCells, ATextThatIsTooWideStaysInItsRoomAndIsMarked) {
  const auto [first, last] = inked(draw("1,234,567,890", Qt::AlignRight, 40));
  EXPECT_GE(first, 20);
  EXPECT_LT(last, 60);
  const QFontMetricsF metrics(QApplication::font());
  const QString cut = metrics.elidedText("1,234,567,890", Qt::ElideRight, 40);
  EXPECT_EQ(draw("1,234,567,890", Qt::AlignLeft, 40), draw(cut, Qt::AlignLeft, 100));
}

}  // namespace
}  // namespace vrel
