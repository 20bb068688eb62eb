// The function that the program looks up in the window's module.
#include "ui/create_ui.h"

extern "C" Q_DECL_EXPORT vrel::EditorResult vrelRunEditor(vrel::EditorContext& context) {
  return vrel::runEditor(context);
}
