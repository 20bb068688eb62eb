#include "model/report_pages.h"

#include <algorithm>

namespace vrel {

ReportPages::ReportPages(ReportView& view, PageChoice choice)
    : view_(view), choice_(choice), zIndexBefore_(view.zIndex) {
  if (choice == PageChoice::All) {
    layouts_.emplace(view);
    grid_ = layouts_->layOut(0);
    count_ = std::max<std::size_t>(grid_.zGroups.size(), 1);
  } else {
    grid_ = vrel::layOut(view);
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
    grid_ = layouts_->layOut(zIndexOf(page));
  }
  return grid_;
}

}  // namespace vrel
