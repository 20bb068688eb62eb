// The z pages of a report, laid out one after the other, for writers of whole documents.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "model/report_grid.h"
#include "model/report_layout.h"

namespace vrel {

/// Which z pages a document holds.
enum class PageChoice { Current, All };

/// Lays out the pages of a document. While the object lives, the view's current page is the one
/// laid out last; afterwards it is again the one it was.
class ReportPages {
 public:
  /// The view outlives the object.
  ReportPages(ReportView& view, PageChoice choice);
  ReportPages(const ReportPages&) = delete;
  ReportPages& operator=(const ReportPages&) = delete;
  ~ReportPages();

  PageChoice choice() const { return choice_; }
  /// How many pages the document has; 1 for a report without z fields.
  std::size_t count() const { return count_; }
  /// Whether the report has z fields, so that its pages have names.
  bool hasNames() const;
  /// The text of a page's tab; empty without z fields.
  std::string name(std::size_t page, const FormatSettings& settings) const;
  /// Lays out one of the document's pages, counted from 0. Valid until the next call.
  const ReportGrid& layOut(std::size_t page);

 private:
  int zIndexOf(std::size_t page) const { return first_ + static_cast<int>(page); }

  ReportView& view_;
  PageChoice choice_;
  int zIndexBefore_;
  // Of a document with several pages.
  std::optional<PageLayouts> layouts_;
  ReportGrid grid_;
  int first_ = 0;
  std::size_t count_ = 1;
};

}  // namespace vrel
