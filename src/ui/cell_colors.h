// The colours of cells, fitted to the palette in use: what can be edited is told apart at a glance,
// summaries stand out, and every text is readable on its highlight.
#pragma once

#include <QPalette>

#include "ui/report_table_model.h"

namespace vrel {

struct CellColors {
  QColor background;
  QColor text;
  /// Of the line inside the edge that marks a highlighted cell as editable; invalid without one.
  QColor frame;
};

/// 1 for equal colours up to 21 for black on white.
double contrastBetween(const QColor& a, const QColor& b);

/// The colours of a cell; the highlight is a position in the list of colours, 0 for none.
CellColors cellColors(CellKind kind, const QPalette& palette, int highlight = 0);

/// The colours that a cell of those colours takes while it is selected: the palette's selection
/// colour, through which a highlight still shimmers.
CellColors selectedColors(const CellColors& colors, const QPalette& palette);

}  // namespace vrel
