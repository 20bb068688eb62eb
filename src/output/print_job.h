// What is printed on pages of paper, and how.
#pragma once

#include <cstdint>
#include <string>

namespace vrel {

/// Lengths are points (72 to the inch).
struct PrintJob {
  /// The paper held upright, whatever the orientation.
  double pageWidth = 612;
  double pageHeight = 792;
  /// Left and right.
  double sideMargin = 36;
  /// Above and below.
  double endMargin = 36;
  bool landscape = false;

  /// The fits look for the size of the font; with several of them the smallest size found is taken.
  /// One page by the report's shape: as wide as it or as high as it, and never a second page.
  bool bestOnePageFit = false;
  /// At most this many pages across; less than 1 counts as 1.
  bool fitToWidth = false;
  int widthPages = 1;
  /// The same for pages down.
  bool fitToHeight = false;
  int heightPages = 1;
  /// Without a fit.
  double fontSize = 10;

  /// Lines between the data cells.
  bool gridLines = true;
  /// Centred at the top and at the bottom of every page.
  std::string title;
  std::string footer;
  /// Label columns on every page across, headings on every page down; else on the first only.
  bool repeatLabels = true;
  bool repeatHeadings = true;

  /// Page numbers count on from here: the first page is number 1 when this is 0.
  int firstPageNumber = 0;
  std::string userName;
  /// Seconds since 1970-01-01 UTC; shown as local time.
  std::int64_t created = 0;
};

}  // namespace vrel
