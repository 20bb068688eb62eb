// Writing the marks of a PostScript page: texts in a font, and lines.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/text_output.h"
#include "base/text_pen.h"
#include "model/format_settings.h"
#include "output/font_metrics.h"

namespace vrel {

/// A coordinate as it is written: up to four decimals.
std::string coordinateText(double value);

/// A text as the body of a PostScript string: tab and line feed are blanks.
std::string postScriptString(std::string_view text);

/// Coordinates are points from the lower left corner. Texts are UTF-8; a text of white space alone
/// leaves no mark.
class PostScriptPen {
 public:
  explicit PostScriptPen(TextOutput& output);

  /// The pen for what is no mark.
  TextPen& text() { return pen_; }

  /// All texts from here on are in this font.
  void selectFont(std::string_view name, double size);
  /// The same, where the document is known to have selected the font already.
  void assumeFont(std::string_view name, double size);

  void show(double x, double y, std::string_view text);
  /// Centred between x and x + width; a text that is wider begins at x.
  void showCentred(double x, double width, double y, std::string_view text);
  /// Ends at x + width, or begins at x when it is wider.
  void showRight(double x, double width, double y, std::string_view text);

  /// A piece of a path; `stroke` draws it.
  void line(double fromX, double fromY, double toX, double toY);
  void stroke();

 private:
  double widthOf(const TextMeasure& measure) const;
  char* putPoint(char* to, double x, double y) const;
  void place(double x, double y, std::string_view text, const TextMeasure& measure);

  TextPen pen_;
  FormatSettings coordinates_;
  const FontMetrics* font_;
  double size_ = 0;
  // What stands behind the x of a text, for all texts of one line.
  double lineY_;
  std::string lineText_;
};

/// Lines of one set, drawn ten at a time.
class LineSet {
 public:
  explicit LineSet(PostScriptPen& pen) : pen_(pen) {}

  void add(double fromX, double fromY, double toX, double toY);
  /// Draws what is not drawn yet.
  void finish();

 private:
  PostScriptPen& pen_;
  std::size_t waiting_ = 0;
};

}  // namespace vrel
