#include "ui/view_save.h"

#include "base/text_output.h"
#include "model/view_file.h"

namespace vrel {

namespace {

constexpr std::string_view kExtension = ".view";
constexpr std::string_view kSeparators = "/\\";
constexpr std::string_view kForbidden = "`\"<>,%^@*[]{}|'\t\n";

std::string_view afterLastSeparator(std::string_view path) {
  const std::size_t separator = path.find_last_of(kSeparators);
  return separator == std::string_view::npos ? path : path.substr(separator + 1);
}

// What stands between the last separator of a title and the last "." behind it.
std::string_view stemOfTitle(std::string_view title) {
  if (title.find_last_of(kSeparators) == std::string_view::npos) {
    return {};
  }
  const std::string_view file = afterLastSeparator(title);
  const std::size_t dot = file.rfind('.');
  return dot == std::string_view::npos ? std::string_view() : file.substr(0, dot);
}

std::string withExtension(std::string_view name) {
  return std::string(name).append(name.ends_with(kExtension) ? std::string_view() : kExtension);
}

bool writeView(const ReportView& view, const std::string& name, Log& log) {
  logLine(log, "ViewSave: open view file");
  SafeFile file(name);
  if (!file.isOpen()) {
    return false;
  }
  logLine(log, "ViewSave: write view file");
  writeViewFile(view, file.output());
  if (!file.commit()) {
    return false;
  }
  logLine(log, "ViewSave: done writing view file");
  return true;
}

}  // namespace

bool isUntitled(std::string_view path) {
  return afterLastSeparator(path) == kUntitledView;
}

std::string saveWarningName(std::string_view viewFileName, std::string_view uiTitle) {
  std::string_view name = afterLastSeparator(viewFileName);
  if (name.empty()) {
    name = stemOfTitle(uiTitle);
  }
  return name.empty() ? std::string(kUntitledView) : withExtension(name);
}

std::string chosenViewName(std::string_view name) {
  if (afterLastSeparator(name).find_first_of(kForbidden) != std::string_view::npos) {
    return {};
  }
  return withExtension(name);
}

bool ViewSave(const ReportView& view, const std::string& name, Log& log, Notice& notice) {
  bool saved = false;
  if (name.empty()) {
    notice.critical(editorTitle(notice),
                    notice.translate(translatable("vrel", "Please specify file name for saving.")));
  } else {
    saved = !isUntitled(name) && writeView(view, name, log);
    if (!saved) {
      notice.critical(
          editorTitle(notice),
          noticeText(notice, translatable("vrel", "Unable to open file \"%1\" for saving."), name));
    }
  }
  logLine(log, "ViewSave: done");
  return saved;
}

}  // namespace vrel
