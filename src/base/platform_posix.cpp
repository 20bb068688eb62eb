#include <dlfcn.h>
#include <fcntl.h>
#include <poll.h>
#include <pwd.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <filesystem>

#include "base/platform.h"

namespace vrel::platform {
namespace {

// Written by the signal handler only: the request, and the pipe that wakes a waiting loop.
volatile std::sig_atomic_t terminationFlag = 0;
int terminationPipe[2] = {-1, -1};

void noteTermination(int) {
  const int savedError = errno;
  terminationFlag = 1;
  const char byte = 1;
  [[maybe_unused]] const ssize_t written = write(terminationPipe[1], &byte, 1);
  errno = savedError;
}

[[maybe_unused]] std::size_t wholeLargePages(std::size_t bytes) {
  constexpr std::size_t kLargePage = std::size_t{2} << 20;
  return (bytes + kLargePage - 1) / kLargePage * kLargePage;
}

const char* modeText(OpenMode mode) {
  // The files are not for the processes that commands start.
  static constexpr std::array<const char*, 4> kModes = {"rbe", "wbe", "abe", "wbxe"};
  return kModes[static_cast<std::size_t>(mode)];
}

std::shared_ptr<std::FILE> unbuffered(std::FILE* file) {
  std::setvbuf(file, nullptr, _IONBF, 0);
  return {file, [](std::FILE* open) { std::fclose(open); }};
}

std::string folderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? "." : path.substr(0, slash + 1);
}

// Under which the system shows an open file without a name.
std::string openFileLink(int descriptor) {
  return "/proc/self/fd/" + std::to_string(descriptor);
}

}  // namespace

const char kPathSeparator = '/';
const std::string_view kLastResortDirectory = "/tmp";

std::shared_ptr<std::FILE> openFile(const std::string& path, OpenMode mode) {
  std::FILE* file = std::fopen(path.c_str(), modeText(mode));
  if (file == nullptr) {
    return nullptr;
  }
  struct stat status {};
  if (fstat(fileno(file), &status) != 0 || S_ISDIR(status.st_mode)) {
    std::fclose(file);
    return nullptr;
  }
  return unbuffered(file);
}

std::shared_ptr<std::FILE> openNameless(const std::string& path) {
#ifdef O_TMPFILE
  constexpr mode_t kPermissions = 0666;
  const int descriptor =
      open(folderOf(path).c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, kPermissions);
  if (descriptor < 0) {
    return nullptr;
  }
  std::FILE* const file = fileExists(openFileLink(descriptor)) ? fdopen(descriptor, "wb") : nullptr;
  if (file != nullptr) {
    return unbuffered(file);
  }
  close(descriptor);
#endif
  return nullptr;
}

bool nameFile(std::FILE* file, const std::string& path) {
  return linkat(AT_FDCWD, openFileLink(fileno(file)).c_str(), AT_FDCWD, path.c_str(),
                AT_SYMLINK_FOLLOW) == 0;
}

bool finishWrites(std::FILE* file) {
  // A network file system reports lost writes when a descriptor of the file is closed.
  const int duplicate = std::fflush(file) == 0 ? dup(fileno(file)) : -1;
  return duplicate >= 0 && close(duplicate) == 0;
}

bool replaceFile(const std::string& from, const std::string& to) {
  return std::rename(from.c_str(), to.c_str()) == 0;
}

bool removeFile(const std::string& path) {
  return unlink(path.c_str()) == 0;
}

bool fileExists(const std::string& path) {
  return access(path.c_str(), F_OK) == 0;
}

std::size_t fileSize(const std::string& path) {
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  return error ? 0 : static_cast<std::size_t>(size);
}

bool isSpecialFile(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode);
}

std::string resolveLinks(const std::string& path) {
  constexpr int kMostLinks = 40;
  std::filesystem::path resolved = path;
  std::error_code error;
  for (int i = 0; i < kMostLinks && std::filesystem::is_symlink(resolved, error); ++i) {
    const std::filesystem::path target = std::filesystem::read_symlink(resolved, error);
    if (error) {
      return path;
    }
    resolved = resolved.parent_path() / target;
  }
  return resolved.string();
}

void copyPermissions(const std::string& from, const std::string& to) {
  struct stat status {};
  if (stat(from.c_str(), &status) == 0) {
    chmod(to.c_str(), status.st_mode & 07777);
  }
}

bool canWrite(const std::string& path) {
  if (fileExists(path)) {
    return access(path.c_str(), W_OK) == 0;
  }
  return access(folderOf(path).c_str(), W_OK | X_OK) == 0;
}

std::string absolutePath(const std::string& path) {
  std::error_code error;
  const std::filesystem::path absolute = std::filesystem::absolute(path, error);
  return error ? path : absolute.string();
}

std::optional<std::string> currentDirectory() {
  std::error_code error;
  const std::filesystem::path current = std::filesystem::current_path(error);
  return error ? std::nullopt : std::optional(current.string());
}

bool changeDirectory(const std::string& path) {
  return chdir(path.c_str()) == 0;
}

std::vector<std::string> directoryEntries(const std::string& path) {
  std::vector<std::string> names;
  std::error_code error;
  std::filesystem::directory_iterator entry(path, error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    names.push_back(entry->path().filename().string());
  }
  return names;
}

std::string programDirectory() {
  std::error_code error;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? std::string(".") : program.parent_path().string();
}

std::vector<std::string> commandLineWords(int argc, char** argv) {
  return std::vector<std::string>(argv, argv + argc);
}

std::string userName() {
  const passwd* const user = getpwuid(geteuid());
  return user == nullptr ? std::string() : user->pw_name;
}

bool displayAvailable() {
  return !environment("DISPLAY").empty() || !environment("WAYLAND_DISPLAY").empty() ||
         !environment("QT_QPA_PLATFORM").empty();
}

std::string environment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

bool environmentIsSet(const char* name) {
  return std::getenv(name) != nullptr;
}

int runCommand(const std::string& command) {
  return std::system(command.c_str());
}

std::string commandLine(const std::vector<std::string>& words) {
  std::string line;
  for (const std::string& word : words) {
    line += line.empty() ? "" : " ";
    line += quotedWord(word);
  }
  return line;
}

std::shared_ptr<std::FILE> openPipe(const std::string& command) {
  std::FILE* pipe = popen(command.c_str(), "w");
  if (pipe == nullptr) {
    return nullptr;
  }
  // A reader that leaves early, as one leaves a pager, must not take the process along.
  const auto before = std::signal(SIGPIPE, SIG_IGN);
  return {pipe, [before](std::FILE* open) {
            pclose(open);
            std::signal(SIGPIPE, before);
          }};
}

bool isTerminal(StandardStream stream) {
  return isatty(stream == StandardStream::Output ? STDOUT_FILENO : STDERR_FILENO) == 1;
}

bool hasProgram(std::string_view name) {
  const std::string path = environment("PATH");
  std::size_t begin = 0;
  while (begin <= path.size()) {
    const std::size_t end = std::min(path.find(':', begin), path.size());
    const std::string candidate = path.substr(begin, end - begin) + "/" + std::string(name);
    if (access(candidate.c_str(), X_OK) == 0) {
      return true;
    }
    begin = end + 1;
  }
  return false;
}

void prepareStandardStreams() {
  // A host may have closed some of them: the first file opened would take such a number, and
  // messages would land in it.
  for (int descriptor = STDIN_FILENO; descriptor <= STDERR_FILENO; ++descriptor) {
    if (fcntl(descriptor, F_GETFD) < 0) {
      [[maybe_unused]] const int opened = open("/dev/null", O_RDWR);
    }
  }
}

std::tm localTime(std::int64_t secondsSinceEpoch) {
  const auto time = static_cast<std::time_t>(secondsSinceEpoch);
  std::tm local{};
  localtime_r(&time, &local);
  return local;
}

std::int64_t secondsFromLocalTime(std::tm local) {
  local.tm_isdst = -1;
  return static_cast<std::int64_t>(std::mktime(&local));
}

std::int64_t currentTime() {
  return static_cast<std::int64_t>(std::time(nullptr));
}

std::size_t readStandardInput(char* buffer, std::size_t capacity) {
  while (true) {
    std::array<pollfd, 2> watched = {pollfd{STDIN_FILENO, POLLIN, 0},
                                     pollfd{terminationPipe[0], POLLIN, 0}};
    const bool catching = terminationPipe[0] >= 0;
    if (poll(watched.data(), catching ? 2 : 1, -1) < 0 && errno == EINTR && !terminationFlag) {
      continue;
    }
    if (terminationFlag) {
      return 0;
    }
    const ssize_t count = read(STDIN_FILENO, buffer, capacity);
    if (count < 0 && errno == EINTR) {
      continue;
    }
    return count < 0 ? 0 : static_cast<std::size_t>(count);
  }
}

void catchTermination() {
  if (terminationPipe[0] >= 0) {
    return;
  }
  if (pipe2(terminationPipe, O_CLOEXEC | O_NONBLOCK) != 0) {
    return;
  }
  struct sigaction action {};
  action.sa_handler = noteTermination;
  sigemptyset(&action.sa_mask);
  sigaction(SIGTERM, &action, nullptr);
}

bool terminationRequested() {
  return terminationFlag != 0;
}

int terminationDescriptor() {
  return terminationPipe[0];
}

#ifdef __SANITIZE_ADDRESS__
// The sanitizer watches the borders of what the allocator hands out.
void* allocateLarge(std::size_t bytes) {
  return std::malloc(bytes);
}

void* growLarge(void* memory, std::size_t, std::size_t newBytes) {
  return std::realloc(memory, newBytes);
}

void freeLarge(void* memory, std::size_t) {
  std::free(memory);
}
#else
void* allocateLarge(std::size_t bytes) {
  void* memory = mmap(nullptr, wholeLargePages(bytes), PROT_READ | PROT_WRITE,
                      MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
  if (memory == MAP_FAILED) {
    return nullptr;
  }
  madvise(memory, wholeLargePages(bytes), MADV_HUGEPAGE);
  return memory;
}

void* growLarge(void* memory, std::size_t oldBytes, std::size_t newBytes) {
  void* grown =
      mremap(memory, wholeLargePages(oldBytes), wholeLargePages(newBytes), MREMAP_MAYMOVE);
  if (grown == MAP_FAILED) {
    return nullptr;
  }
  madvise(grown, wholeLargePages(newBytes), MADV_HUGEPAGE);
  return grown;
}

void freeLarge(void* memory, std::size_t bytes) {
  munmap(memory, wholeLargePages(bytes));
}
#endif

void* loadFunction(const std::string& libraryPath, const char* function, std::string& error) {
  void* library = dlopen(libraryPath.c_str(), RTLD_NOW | RTLD_LOCAL);
  void* address = library == nullptr ? nullptr : dlsym(library, function);
  if (address == nullptr) {
    error = dlerror();
  }
  return address;
}

std::string moduleFileName(std::string_view name) {
  return "lib" + std::string(name) + ".so";
}

}  // namespace vrel::platform
