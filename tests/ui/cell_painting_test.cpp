#include <QStyleFactory>

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

// Dark pixels, as texts have them on light grounds, and frames and edges have not.
int inkIn(const QImage& image) {
  int dark = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      dark += image.pixelColor(x, y).lightness() < 80 ? 1 : 0;
    }
  }
  return dark;
}

TEST_F(CellPainting, TheFrameOfTheCurrentCellDoesNotHideItsText) {
  desk->table.highlights[4].common = 0;
  for (const int zoom : {50, 80, 100}) {
    tables->setZoom(zoom);
    const auto ink = [this] {
      const QRect cell = regular->visualRect(regular->model()->index(1, 1));
      return inkIn(regular->viewport()->grab(cell).toImage());
    };
    tables->setCurrentPlace({0, 2});
    const int shown = ink();
    EXPECT_GT(shown, 0);
    tables->setCurrentPlace({1, 3});
    EXPECT_EQ(ink(), shown) << zoom << " percent";
  }
}

TEST_F(CellPainting, RowNumbersAreShownWholeInLowRows) {
  QHeaderView* numbers = frozen->verticalHeader();
  const std::unique_ptr<QStyle> ofTheWindow(QStyleFactory::create("windows"));
  numbers->setStyle(ofTheWindow.get());
  const auto ink = [numbers] {
    QCoreApplication::processEvents();
    const QRect number(3, numbers->sectionViewportPosition(1) + 1, numbers->width() - 6,
                       numbers->sectionSize(1) - 3);
    return inkIn(numbers->viewport()->grab(number).toImage());
  };
  const int low = numbers->fontMetrics().height();
  frozen->setUserHeight(1, low);
  ASSERT_EQ(numbers->sectionSize(1), low);
  const int inLowRow = ink();
  frozen->setUserHeight(1, 40);
  EXPECT_GT(inLowRow, 0);
  EXPECT_EQ(inLowRow, ink());
  numbers->setStyle(nullptr);
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
