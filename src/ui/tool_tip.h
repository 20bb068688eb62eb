// Tool tips that show a text as it stands.
#pragma once

#include <QString>

namespace vrel {

/// The tool tip of a text, cut when it is very long: a text that looks like markup is not taken
/// for it.
QString plainToolTip(const QString& text);

}  // namespace vrel
