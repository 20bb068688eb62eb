// How dialogs change the view: whoever shows the report sees to what follows from it.
#pragma once

#include <functional>

namespace vrel {

/// Runs a change, marks the view as modified, lays the report out anew and shows it at the place
/// where the user was.
using RunChange = std::function<void(const std::function<void()>& change)>;

struct ViewChanger {
  /// For changes after which the table has the same fields, each with values of the same type.
  RunChange changeView;
  /// For changes that may add, remove or convert fields of the table: nothing looks at its values
  /// meanwhile.
  RunChange changeFields;
};

}  // namespace vrel
