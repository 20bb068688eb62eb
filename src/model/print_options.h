// The print options that every view carries.
#pragma once

#include <cstdint>
#include <string>

namespace vrel {

enum class PrinterType : std::int32_t { PostScript = 0, Ascii = 1, Html = 2 };

/// The longest side of an Ascii page: a whole report on one, but nothing that no printer, disk or
/// memory could hold.
inline constexpr std::int32_t kMostPageChars = 999999;

/// How a view is printed; a fresh record holds the defaults.
struct PrintOptions {
  bool repeatRowLabels = true;
  bool repeatColumnLabels = true;
  bool printAllPages = false;
  std::string title;
  std::string footer;
  /// Replaces the spooler's command when not empty.
  std::string printCommand;
  PrinterType printerType = PrinterType::PostScript;
  /// Paper code; 0 is Letter.
  std::int32_t paperType = 0;
  bool landscape = false;
  /// Grid lines.
  bool separators = true;
  bool fitToWidth = false;
  std::int32_t widthPages = 1;
  bool fitToHeight = false;
  std::int32_t heightPages = 1;
  bool bestOnePageFit = false;
  /// Points.
  std::int32_t fontSize = 10;
  /// Characters, 1 to `kMostPageChars`; the Ascii printer's page.
  std::int32_t pageWidthChars = 132;
  std::int32_t pageHeightChars = 66;
  bool addHeader = true;
  bool borders = true;

  bool operator==(const PrintOptions&) const = default;
};

}  // namespace vrel
