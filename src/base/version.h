// Which version of the product this is.
#pragma once

#include <string>

#include "base/paths.h"

namespace vrel {

/// The first line of the installation's version file; the program's own version when there is no
/// installation or no such file.
std::string productVersion(const EnvironmentLookup& environment);

}  // namespace vrel
