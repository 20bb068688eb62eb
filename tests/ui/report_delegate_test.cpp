#include "ui/report_delegate.h"

#include <gtest/gtest.h>

#include <QStandardItemModel>
#include <cmath>

#include "expr/colours.h"

namespace vrel {
namespace {

QPalette lightPalette() {
  return QPalette(QColor(0xef, 0xef, 0xef), QColor(0xef, 0xef, 0xef));
}

QPalette darkPalette() {
  QPalette palette(QColor(0x35, 0x35, 0x35), QColor(0x35, 0x35, 0x35));
  palette.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
  palette.setColor(QPalette::Text, QColor(0xf0, 0xf0, 0xf0));
  return palette;
}

double linear(double channel) {
  return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

// 1 for equal colours up to 21 for black on white; small text is readable from 4.5.
double contrast(const CellColors& colors) {
  const double a = luminance(colors.background) + 0.05;
  const double b = luminance(colors.text) + 0.05;
  return std::max(a, b) / std::min(a, b);
}

constexpr CellKind kAllKinds[] = {CellKind::Label, CellKind::Empty, CellKind::ReadOnly,
                                  CellKind::Editable, CellKind::Summary};

TEST(CellColors, EditableCellsAreBlueOnWhiteInALightPalette) {
  const CellColors colors = cellColors(CellKind::Editable, lightPalette());
  EXPECT_EQ(colors.background, QColor(Qt::white));
  EXPECT_EQ(colors.text, QColor(Qt::blue));
}

TEST(CellColors, EveryKindIsReadableInLightAndDark) {
  for (const QPalette& palette : {lightPalette(), darkPalette()}) {
    for (const CellKind kind : kAllKinds) {
      EXPECT_GE(contrast(cellColors(kind, palette)), 4.5) << static_cast<int>(kind);
    }
  }
}

TEST(CellColors, LabelsReadOnlyAndEditableCellsDifferInLightAndDark) {
  for (const QPalette& palette : {lightPalette(), darkPalette()}) {
    const CellColors label = cellColors(CellKind::Label, palette);
    const CellColors readOnly = cellColors(CellKind::ReadOnly, palette);
    const CellColors editable = cellColors(CellKind::Editable, palette);
    EXPECT_NE(editable.background, readOnly.background);
    EXPECT_NE(editable.text, readOnly.text);
    EXPECT_NE(label.background, readOnly.background);
    EXPECT_EQ(cellColors(CellKind::Empty, palette).background, readOnly.background);
  }
}

TEST(CellColors, SummariesAreSetApartFromAllOthersInLightAndDark) {
  for (const QPalette& palette : {lightPalette(), darkPalette()}) {
    const QColor summary = cellColors(CellKind::Summary, palette).background;
    for (const CellKind kind :
         {CellKind::Label, CellKind::Empty, CellKind::ReadOnly, CellKind::Editable}) {
      EXPECT_NE(summary, cellColors(kind, palette).background) << static_cast<int>(kind);
    }
  }
}

constexpr int kColourCount = static_cast<int>(kColours.size());

TEST(CellColors, HighlightsArePaintedInTheColourThatTheirNameSays) {
  const char* const names[] = {"",        "#ff0000", "#ff69b4", "#ffa500",
                               "#00ff7f", "#0000ff", "#ffff00", "#ee82ee"};
  for (int highlight = 1; highlight < 8; ++highlight) {
    const auto colors = cellColors(CellKind::ReadOnly, lightPalette(), highlight);
    EXPECT_EQ(colors.background.name(), names[highlight]) << highlight;
  }
}

TEST(CellColors, TheColourBackgroundIsThatOfTheWindow) {
  EXPECT_EQ(cellColors(CellKind::ReadOnly, lightPalette(), 8).background, QColor(0xef, 0xef, 0xef));
  EXPECT_EQ(cellColors(CellKind::ReadOnly, darkPalette(), 8).background, QColor(0x35, 0x35, 0x35));
}

TEST(CellColors, BlackAndNumbersBeyondTheListAreNoColour) {
  const CellColors plain = cellColors(CellKind::ReadOnly, lightPalette());
  for (const int highlight : {-1, 0, kColourCount, 126}) {
    const CellColors colors = cellColors(CellKind::ReadOnly, lightPalette(), highlight);
    EXPECT_EQ(colors.background, plain.background) << highlight;
    EXPECT_EQ(colors.text, plain.text) << highlight;
  }
}

TEST(CellColors, EveryKindIsReadableOnEveryHighlightSelectedOrNotInLightAndDark) {
  for (const QPalette& palette : {lightPalette(), darkPalette()}) {
    for (const CellKind kind : kAllKinds) {
      for (int highlight = 0; highlight < kColourCount; ++highlight) {
        const CellColors colors = cellColors(kind, palette, highlight);
        EXPECT_GE(contrast(colors), 4.5) << static_cast<int>(kind) << " on " << highlight;
        EXPECT_GE(contrast(selectedColors(colors, palette)), 4.5)
            << static_cast<int>(kind) << " selected on " << highlight;
      }
    }
  }
}

TEST(CellColors, HighlightedEditableCellsAreFramedAndReadOnlyOnesAreNot) {
  for (const QPalette& palette : {lightPalette(), darkPalette()}) {
    for (int highlight = 1; highlight < kColourCount; ++highlight) {
      const CellColors editable = cellColors(CellKind::Editable, palette, highlight);
      ASSERT_TRUE(editable.frame.isValid()) << highlight;
      EXPECT_GE(contrast({editable.background, editable.frame, {}}), 1.8) << highlight;
      EXPECT_FALSE(cellColors(CellKind::ReadOnly, palette, highlight).frame.isValid());
    }
    EXPECT_FALSE(cellColors(CellKind::Editable, palette).frame.isValid())
        << "without a highlight its own background tells";
  }
}

int distance(const QColor& a, const QColor& b) {
  return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) +
         std::abs(a.blue() - b.blue());
}

TEST(CellColors, ASelectedCellLooksSelectedOnEveryHighlight) {
  for (const QPalette& palette : {lightPalette(), darkPalette()}) {
    const QColor selection = palette.color(QPalette::Highlight);
    for (int highlight = 0; highlight < kColourCount; ++highlight) {
      const CellColors colors = cellColors(CellKind::ReadOnly, palette, highlight);
      const CellColors selected = selectedColors(colors, palette);
      EXPECT_LT(distance(selected.background, selection), 250) << highlight;
      EXPECT_LT(distance(selected.background, selection),
                distance(selected.background, colors.background))
          << highlight;
    }
  }
}

TEST(CellColors, TheToolsForContrastAgree) {
  EXPECT_DOUBLE_EQ(contrastBetween(Qt::black, Qt::white), 21.0);
  EXPECT_DOUBLE_EQ(contrastBetween(Qt::red, Qt::red), 1.0);
}

// A delegate whose style of a cell can be looked at.
class OpenDelegate : public ReportDelegate {
 public:
  QStyleOptionViewItem styleOf(CellKind kind) const {
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), static_cast<int>(kind), ReportTableModel::kCellKindRole);
    QStyleOptionViewItem option;
    option.font.setBold(false);
    initStyleOption(&option, model.index(0, 0));
    return option;
  }
};

TEST(ReportDelegate, SummariesAreBold) {
  const OpenDelegate delegate;
  EXPECT_TRUE(delegate.styleOf(CellKind::Summary).font.bold());
  EXPECT_FALSE(delegate.styleOf(CellKind::ReadOnly).font.bold());
  EXPECT_FALSE(delegate.styleOf(CellKind::Label).font.bold());
}

TEST(ReportDelegate, ShowsTextsAsTheyStandAndNoMoreThanCanBeSeen) {
  const ReportDelegate delegate;
  EXPECT_EQ(delegate.displayText("1,234.5", QLocale(QLocale::German)), "1,234.5");
  EXPECT_EQ(delegate.displayText(QString(100'000, 'x'), QLocale()), QString(512, 'x'));
}

}  // namespace
}  // namespace vrel
