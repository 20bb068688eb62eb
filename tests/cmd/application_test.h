// Application commands, run in a session that ends by an exception.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "cmd/application_commands.h"
#include "cmd/console.h"
#include "support/temporary_directory.h"

namespace vrel::test {

/// A session with its output in memory and files in a directory of its own.
class ApplicationTest : public testing::Test {
 protected:
  ApplicationTest() {
    session.interpreter.output = std::make_unique<TextOutput>(TextOutput::toMemory(out_));
    session.interpreter.endProcess = [](int status) { throw ProcessEnded{status}; };
    session.interpreter.checkTermination = nullptr;
    session.errors = std::make_unique<TextOutput>(TextOutput::toMemory(errors));
    session.environment = [this](const char* name) {
      return std::string(name) == "TMPDIR" ? files.path() : std::string();
    };
    DbgAddCommands(session.interpreter, applicationCommands(session), *session.errors);
    session.interpreter.programName = "vrel";
  }

  /// Runs a command and returns what it wrote, the process's end included.
  std::string run(std::string_view command) {
    out_.clear();
    std::string end;
    try {
      executePiece(session.interpreter, command);
    } catch (const ProcessEnded& ended) {
      end = fmt::format("(status {})", ended.status);
    }
    session.interpreter.output->flush();
    session.errors->flush();
    return out_ + end;
  }

  const std::string& out() const { return out_; }

  std::string quoted(std::string_view name) const { return "'" + files.path(name) + "'"; }

  TemporaryDirectory files;
  Session session;
  /// What went to standard error by itself.
  std::string errors;

 private:
  std::string out_;
};

}  // namespace vrel::test
