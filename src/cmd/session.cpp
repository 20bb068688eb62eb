#include "cmd/session.h"

#include <cstdlib>

#include "expr/field_functions.h"
#include "model/view_file.h"

namespace vrel {

Session::Session() {
  addAllFunctions(functions);
  // Freeing millions of cells one by one would only delay the end.
  interpreter.endProcess = [this](int status) {
    flushAll(*this);
    std::_Exit(status);
  };
  interpreter.checkTermination = [this] {
    if (platform::terminationRequested()) {
      saveLastViewAndEnd(*this);
    }
  };
}

void flushAll(Session& session) {
  session.interpreter.output->flush();
  if (session.interpreter.record) {
    session.interpreter.record->flush();
  }
  session.errors->flush();
  std::fflush(stdout);
}

void setLastViewName(Session& session, std::string_view title) {
  session.lastViewFileName = lastViewName(title);
  platform::catchTermination();
}

void saveLastViewAndEnd(Session& session) {
  if (session.view) {
    SafeFile file(session.lastViewFileName);
    if (file.isOpen()) {
      writeViewFile(*session.view, file.output());
      file.commit();
    }
  }
  session.interpreter.endProcess(0);
}

}  // namespace vrel
