#include "model/report_pages.h"

#include <algorithm>

namespace vrel {

ReportPages::ReportPages(ReportView& view, PageChoice choice)
    : view_(view), choice_(choice), zIndexBefore_(view.zIndex), grid_(vrel::layOut(view)) {
  if (choice == PageChoice::All) {
    count_ = std::max<std::size_t>(grid_.zGroups.size(), 1);
  } else {
    first_ = grid_.zIndex;
  }
}

ReportPages::~ReportPages() {
  view_.zIndex = zIndexBefore_;
}

bool ReportPages::hasNames() const {
  return !grid_.zFields.empty();
}

std::string ReportPages::name(std::size_t page, const FormatSettings& settings) const {
  return zPageText(grid_, settings, zIndexOf(page));
}

const ReportGrid& ReportPages::layOut(std::size_t page) {
  if (grid_.zIndex != zIndexOf(page)) {
    view_.zIndex = zIndexOf(page);
    grid_ = vrel::layOut(view_);
  }
  return grid_;
}

}  // namespace vrel
