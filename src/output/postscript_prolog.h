// What stands in a PostScript document ahead of its pages.
#pragma once

#include <cstddef>

#include "output/postscript_pen.h"
#include "output/print_job.h"

namespace vrel {

struct PrologFacts {
  std::size_t totalPages;
  double fontSize;
  /// Texts are not all ASCII: `show` learns to decode UTF-8.
  bool isBeyondAscii;
};

/// Writes the header, the procedures and the selection of the body's font.
void writeProlog(const PrintJob& job, const PrologFacts& facts, PostScriptPen& pen);

}  // namespace vrel
