// Runs the program as a host would.
#pragma once

#include <sys/types.h>

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "support/temporary_directory.h"

namespace vrel::test {

/// What a process left behind.
struct Outcome {
  std::string out;
  std::string err;
  /// The exit status, or minus the signal that killed the process.
  int status = 0;
};

/// A process that runs. It is killed when it is still there at the end.
class Process {
 public:
  Process(pid_t id, int input, const TemporaryDirectory& captured);
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;
  ~Process();

  /// Writes to the process's standard input.
  void send(std::string_view text);
  /// Waits until standard error ends with a text; false when it never does.
  bool waitForError(std::string_view ending) const;
  /// The same for standard output.
  bool waitForOutput(std::string_view ending) const;
  void signal(int number) const;
  /// Waits for the end without closing the process's standard input.
  Outcome waitForEnd();
  /// Closes the process's standard input and waits for the end.
  Outcome finish();

 private:
  pid_t id_;
  int input_;
  const TemporaryDirectory& captured_;
};

/// A host with a directory in which its programs start. Their environment holds PATH, a fixed time
/// zone and what a test adds, nothing else.
class Host {
 public:
  Host();

  /// Runs the program with the given argument words and standard input.
  Outcome run(const std::vector<std::string>& words, std::string_view input = "");
  /// Starts the program; its standard input stays open.
  Process start(const std::vector<std::string>& words);
  /// Runs the program on a terminal of its own and returns all that appears there.
  std::string runOnTerminal(const std::vector<std::string>& words) const;

  /// Makes a file in the start directory.
  void write(std::string_view name, std::string_view text) { directory.write(name, text); }
  std::string read(std::string_view name) const { return directory.read(name); }

  /// Path of the program.
  std::string program;
  TemporaryDirectory directory;
  std::map<std::string, std::string> environment;

 private:
  TemporaryDirectory captured_;
};

}  // namespace vrel::test
