// Commands that set switches or work on files and directories.

#include <algorithm>

#include "cmd/application_commands.h"

namespace vrel {
namespace {

// Which first characters count as yes differs between the commands; hosts rely on each.
bool beginsWithAny(const std::string& text, std::string_view characters) {
  return !text.empty() && characters.find(text[0]) != std::string_view::npos;
}

constexpr std::string_view kYesOrTrue = "yYtT";

}  // namespace

void cidAppendTranslate(Session& session, Words words) {
  session.exports.appendTranslate = beginsWithAny(words[1], kYesOrTrue);
}

void cidXsync(Session& session, Words words) {
  session.xsync = beginsWithAny(words[1], "y");
}

void cidAbortOnWarnings(Session& session, Words words) {
  session.abortOnWarnings = beginsWithAny(words[1], "y");
}

void cidExitOnCmdError(Session& session, Words words) {
  session.exitOnCmdError = beginsWithAny(words[1], kYesOrTrue);
}

void cidParameters(Session& session, Words words) {
  // A host passes a command line with blanks as one word.
  session.childParameters = words[1];
  std::replace(session.childParameters.begin(), session.childParameters.end(), '_', ' ');
}

void cidRM(Session& session, Words words) {
  if (!platform::removeFile(words[1])) {
    print(session.interpreter, "cidRM: rm of \"{}\" fails.\n", words[1]);
  }
}

void cidCD(Session& session, Words words) {
  if (!platform::changeDirectory(words[1])) {
    print(session.interpreter, "cidCD: cd to \"{}\" fails.\n", words[1]);
    errorExit(session);
  }
}

}  // namespace vrel
