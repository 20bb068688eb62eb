#include "model/key_pass.h"

#include "model/table_sort.h"

namespace vrel {

bool removeDuplicateKeys(ReportView& view, const EnvironmentLookup& environment, Notice& notice) {
  if (removeDuplicateKeys(*view.table, viewKeys(view))) {
    return true;
  }
  const std::string warn = environment("QNT_REPORT_WARN_DUPLICATE");
  if (notice.hasWindow() && (warn == "Yes" || warn == "YES")) {
    notice.warning(editorTitle(notice),
                   notice.translate(translatable(
                       "vrel", "Warning: Some data with non-unique keys was removed.")));
  }
  return false;
}

}  // namespace vrel
