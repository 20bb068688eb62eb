#include "cmd/startup.h"

#include "cmd/application_commands.h"
#include "cmd/general_commands.h"

namespace vrel {
namespace {

// A doubled percent sign is logged as one: the log was once written through format texts, and
// hosts double theirs.
std::string loggedWord(std::string_view word) {
  std::string text;
  for (std::size_t i = 0; i < word.size(); ++i) {
    text += word[i];
    if (word[i] == '%' && i + 1 < word.size() && word[i + 1] == '%') {
      ++i;
    }
  }
  return text;
}

}  // namespace

void runProgram(std::vector<std::string> words) {
  platform::prepareStandardStreams();
  Session session;
  session.arguments = std::move(words);
  InitLog(session.log, logPath(session.environment));
  for (const std::string& word : session.arguments) {
    logLine(session.log, loggedWord(word));
  }
  // The application's commands win over general ones of the same name.
  DbgAddCommands(session.interpreter, generalCommands(session.interpreter), *session.errors);
  DbgAddCommands(session.interpreter, applicationCommands(session), *session.errors);
  session.errors->flush();
  Words lines = session.arguments;
  runInputLoop(session.interpreter, lines.subspan(std::min<std::size_t>(1, lines.size())),
               LoopStart::Commands);
  session.interpreter.endProcess(0);
}

}  // namespace vrel
