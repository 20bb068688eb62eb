#include "ui/print_files.h"

#include <array>

#include "expr/ui/to_text.h"
#include "ui/export_files.h"

namespace vrel {

namespace {

struct PrintFileKind {
  std::string_view filter;
  const char* extension;
};

// By printer type.
constexpr std::array<PrintFileKind, 3> kKinds = {{
    {translatable("vrel", "PostScript (*.ps)"), "ps"},
    {translatable("vrel", "Text (*.txt)"), "txt"},
    {translatable("vrel", "HTML (*.html)"), "html"},
}};

}  // namespace

QString choosePrintFile(const EditorContext& context, QWidget* parent, const AskForFile& ask,
                        PrinterType type) {
  const PrintFileKind& kind = kKinds[static_cast<std::size_t>(type)];
  Notice& notice = *context.notice;
  return ask(parent, {.caption = toText(notice.translate(translatable("vrel", "Print to file"))),
                      .filter = toText(notice.translate(kind.filter)),
                      .extensions = {{QString::fromLatin1(kind.extension)}},
                      .folder = lastVisitedFolder(context),
                      .file = {}})
      .path;
}

}  // namespace vrel
