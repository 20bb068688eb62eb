#include "ui/tool_tip.h"

namespace vrel {

QString plainToolTip(const QString& text) {
  constexpr qsizetype kLongest = 5000;
  return text.left(kLongest).toHtmlEscaped().replace(u'\n', QStringLiteral("<br>"));
}

}  // namespace vrel
