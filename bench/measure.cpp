// Measures whole processes: the program's jobs on tables of several sizes, each against the floor
// in the same round, so that whatever else the machine does meets both alike.
//
//   measure PROGRAMS FOLDER [TUPLES | sparse]...
//
// PROGRAMS is the folder of `vrel`, `floor` and `open_report`; tables and results go to FOLDER.
#include <fcntl.h>
#include <fmt/format.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "table_generator.h"

namespace {

using namespace vrel;
using namespace vrel::bench;
namespace fs = std::filesystem;

constexpr double kMebibyte = 1024.0 * 1024.0;

struct Job {
  std::string name;
  std::vector<std::string> words;
  /// The most that the time may be of the floor's; 0 for no aim.
  double aim = 0;
  /// What the job writes; empty for nothing.
  std::string result;
};

struct Figures {
  std::vector<double> seconds;
  double peakBytes = 0;
};

struct Case {
  std::string title;
  std::string table;
  /// The floor comes first.
  std::vector<Job> jobs;
  int rounds = 1;
};

// Runs a process to its end, with its output in the file `log`.
bool runProcess(const std::vector<std::string>& words, Figures& figures) {
  std::vector<char*> arguments;
  for (const std::string& word : words) {
    arguments.push_back(const_cast<char*>(word.c_str()));
  }
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "log", O_WRONLY | O_CREAT | O_TRUNC,
                                   0666);
  posix_spawn_file_actions_adddup2(&actions, STDOUT_FILENO, STDERR_FILENO);

  const auto begin = std::chrono::steady_clock::now();
  pid_t process = 0;
  int status = posix_spawn(&process, arguments[0], &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  rusage usage{};
  if (status != 0 || wait4(process, &status, 0, &usage) != process) {
    return false;
  }
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
  figures.seconds.push_back(took.count());
  figures.peakBytes = std::max(figures.peakBytes, static_cast<double>(usage.ru_maxrss) * 1024);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

bool runJob(const Job& job, Figures& figures) {
  std::error_code error;
  fs::remove(job.result, error);
  if (runProcess(job.words, figures) &&
      (job.result.empty() || (fs::exists(job.result) && fs::file_size(job.result) > 0))) {
    return true;
  }
  std::fprintf(stderr, "measure: %s failed; its output:\n", job.name.c_str());
  std::fflush(stderr);
  return std::system("cat log >&2") != 0 && false;
}

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

void printJob(const Job& job, const Figures& figures, double floorSeconds, double memoryLimit) {
  const double seconds = median(figures.seconds);
  const double ratio = seconds / floorSeconds;
  fmt::print("  {:<12}{:>9.3f} s{:>8.2f}", job.name, seconds, ratio);
  fmt::print("{:>8}{:>9.0f} MiB", job.aim > 0 ? fmt::format("{:.2f}", job.aim) : "",
             figures.peakBytes / kMebibyte);
  if (memoryLimit > 0) {
    fmt::print("{:>7.0f} MiB{}{}", memoryLimit / kMebibyte,
               job.aim > 0 && ratio > job.aim ? "  slower than the aim" : "",
               figures.peakBytes > memoryLimit ? "  more memory than the limit" : "");
  }
  fmt::print("\n");
}

bool measure(const Case& measured) {
  std::vector<Figures> figures(measured.jobs.size());
  for (int round = 0; round < measured.rounds; ++round) {
    for (std::size_t i = 0; i < measured.jobs.size(); ++i) {
      if (!runJob(measured.jobs[i], figures[i])) {
        return false;
      }
    }
  }
  const auto fileSize = static_cast<double>(fs::file_size(measured.table));
  fmt::print("\n{}, {:.1f} MB, median of {} rounds\n", measured.title, fileSize / 1e6,
             measured.rounds);
  fmt::print("  {:<12}{:>11}{:>8}{:>8}{:>13}{:>11}\n", "job", "time", "ratio", "aim", "peak memory",
             "limit");
  const double floorSeconds = median(figures[0].seconds);
  for (std::size_t i = 0; i < measured.jobs.size(); ++i) {
    printJob(measured.jobs[i], figures[i], floorSeconds,
             i == 0 ? 0 : 2.5 * fileSize + 64 * kMebibyte);
  }
  std::fflush(stdout);
  return true;
}

// A file that is younger than this program is kept from an earlier run.
template <class Write>
void ensureFile(const std::string& path, Write write) {
  std::error_code error;
  const fs::file_time_type made = fs::last_write_time(path, error);
  if (error || made < fs::last_write_time("/proc/self/exe")) {
    SafeFile file(path);
    write(file.output());
    if (!file.commit()) {
      fmt::print(stderr, "measure: cannot write \"{}\"\n", path);
      std::exit(1);
    }
  }
}

// The larger, the fewer: a round takes some seconds for the largest table and some hundredths of a
// second for the smallest.
int roundsFor(std::uint64_t tuples) {
  return tuples <= 100'000 ? 41 : tuples <= 500'000 ? 15 : tuples <= 2'000'000 ? 9 : 3;
}

Case planCase(const std::string& programs, std::uint64_t tuples) {
  PlanShape shape;
  shape.items = itemsForTuples(tuples);
  const std::string table = fmt::format("plan-{}.tbl", tuples);
  const std::string view = "plan.view";
  ensureFile(table, [&](TextOutput& output) { writePlan(shape, output); });
  ensureFile(view, [](TextOutput& output) { writeView(kPlanColumnField, output); });

  const std::string vrel = programs + "/vrel";
  const std::string read = "readTable " + table;
  return {fmt::format("{} tuples", std::uint64_t{shape.items} * shape.locations * shape.periods),
          table,
          {{"floor", {programs + "/floor", table}, 0, ""},
           {"readTable", {vrel, read, "quit"}, 1.3, ""},
           {"export",
            {vrel, read, "readView " + view, "exportreport noquotes plan.sp"},
            3.0,
            "plan.sp"},
           {"dump", {vrel, read, "> plan.dump", "dumptable", "quit"}, 2.5, "plan.dump"}},
          roundsFor(tuples)};
}

Case sparseCase(const std::string& programs) {
  const SparseShape shape;
  const std::string table = "sparse.tbl";
  const std::string view = "sparse.view";
  ensureFile(table, [&](TextOutput& output) { writeSparse(shape, output); });
  ensureFile(view, [](TextOutput& output) { writeView(kSparseColumnField, output); });
  return {
      fmt::format("{} tuples in {} rows and {} columns", shape.tuples, shape.rows, shape.columns),
      table,
      {{"floor", {programs + "/floor", table}, 0, ""},
       {"readTable", {programs + "/vrel", "readTable " + table, "quit"}, 1.3, ""},
       {"open", {programs + "/open_report", table, view}, 0, ""}},
      roundsFor(shape.tuples)};
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fputs("usage: measure PROGRAMS FOLDER [TUPLES | sparse]...\n", stderr);
    return 2;
  }
  const std::string programs = fs::absolute(argv[1]).string();
  fs::create_directories(argv[2]);
  fs::current_path(argv[2]);
  // Neither a log nor settings of the user's take part.
  setenv("KORVLOGDIR", ".", 1);
  unsetenv("KORVHOME");

  std::vector<std::string> cases(argv + 3, argv + argc);
  if (cases.empty()) {
    cases = {"24000", "240000", "1000000", "5000000", "sparse"};
  }
  for (const std::string& name : cases) {
    if (!measure(name == "sparse" ? sparseCase(programs)
                                  : planCase(programs, std::strtoull(name.c_str(), nullptr, 10)))) {
      return 1;
    }
  }
  return 0;
}
