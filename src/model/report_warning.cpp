#include "model/report_grid.h"

namespace vrel {

std::string notEnoughKeysWarning(const ReportView& view, Notice& notice) {
  std::string text =
      notice.translate("Not enough keys to properly display data\nextracted by report\n\"%s\".");
  const std::size_t place = text.find("%s");
  return place == std::string::npos ? text : text.replace(place, 2, reportName(view));
}

}  // namespace vrel
