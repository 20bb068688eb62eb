#include "system/host.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <thread>

namespace vrel::test {
namespace {

constexpr std::chrono::seconds kPatience(60);

template <typename Condition>
bool eventually(Condition condition) {
  const auto deadline = std::chrono::steady_clock::now() + kPatience;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > deadline) {
      return false;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  return true;
}

std::vector<char*> pointersTo(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  for (std::string& text : texts) {
    pointers.push_back(text.data());
  }
  pointers.push_back(nullptr);
  return pointers;
}

// Turns this process into the program.
[[noreturn]] void becomeProgram(const Host& host, const std::vector<std::string>& words) {
  std::vector<std::string> arguments = {host.program};
  arguments.insert(arguments.end(), words.begin(), words.end());
  std::vector<std::string> variables;
  for (const auto& [name, value] : host.environment) {
    variables.push_back(name + "=" + value);
  }
  if (chdir(host.directory.path().c_str()) == 0) {
    execve(host.program.c_str(), pointersTo(arguments).data(), pointersTo(variables).data());
  }
  _exit(127);
}

void openAs(int descriptor, const std::string& path) {
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_APPEND, 0600);
  dup2(file, descriptor);
  close(file);
}

}  // namespace

Process::Process(pid_t id, int input, const TemporaryDirectory& captured)
    : id_(id), input_(input), captured_(captured) {}

Process::~Process() {
  if (input_ >= 0) {
    close(input_);
  }
  if (id_ > 0) {
    kill(id_, SIGKILL);
    waitpid(id_, nullptr, 0);
  }
}

void Process::send(std::string_view text) {
  while (!text.empty()) {
    const ssize_t count = ::write(input_, text.data(), text.size());
    if (count <= 0) {
      return;
    }
    text.remove_prefix(static_cast<std::size_t>(count));
  }
}

bool Process::waitForError(std::string_view ending) const {
  return eventually([&] { return captured_.read("err").ends_with(ending); });
}

bool Process::waitForOutput(std::string_view ending) const {
  return eventually([&] { return captured_.read("out").ends_with(ending); });
}

void Process::signal(int number) const {
  kill(id_, number);
}

Outcome Process::waitForEnd() {
  int status = 0;
  const bool ended = eventually([&] { return waitpid(id_, &status, WNOHANG) == id_; });
  EXPECT_TRUE(ended) << "the program does not end";
  if (!ended) {
    return {captured_.read("out"), captured_.read("err"), -SIGKILL};
  }
  id_ = -1;
  const int result = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
  return {captured_.read("out"), captured_.read("err"), result};
}

Outcome Process::finish() {
  close(input_);
  input_ = -1;
  return waitForEnd();
}

Host::Host() : program(VREL_PROGRAM) {
  std::signal(SIGPIPE, SIG_IGN);
  environment["TZ"] = "UTC";
  // Sanitizers are told by the environment how to behave.
  for (const char* name : {"PATH", "ASAN_OPTIONS", "UBSAN_OPTIONS"}) {
    if (const char* value = std::getenv(name)) {
      environment[name] = value;
    }
  }
}

Process Host::start(const std::vector<std::string>& words) {
  int input[2] = {-1, -1};
  EXPECT_EQ(pipe2(input, O_CLOEXEC), 0);
  const pid_t id = fork();
  if (id == 0) {
    dup2(input[0], STDIN_FILENO);
    openAs(STDOUT_FILENO, captured_.path("out"));
    openAs(STDERR_FILENO, captured_.path("err"));
    std::signal(SIGPIPE, SIG_DFL);
    becomeProgram(*this, words);
  }
  close(input[0]);
  return Process(id, input[1], captured_);
}

Outcome Host::run(const std::vector<std::string>& words, std::string_view input) {
  Process process = start(words);
  process.send(input);
  return process.finish();
}

std::string Host::runOnTerminal(const std::vector<std::string>& words) const {
  int terminal = -1;
  const pid_t id = forkpty(&terminal, nullptr, nullptr, nullptr);
  if (id == 0) {
    becomeProgram(*this, words);
  }
  std::string shown;
  char block[4096];
  ssize_t count = 0;
  while ((count = ::read(terminal, block, sizeof block)) > 0) {
    shown.append(block, static_cast<std::size_t>(count));
  }
  close(terminal);
  waitpid(id, nullptr, 0);
  return shown;
}

}  // namespace vrel::test
