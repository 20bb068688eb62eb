#define WIN32_LEAN_AND_MEAN
// The compiler's own headers may have set it already.
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <fcntl.h>
#include <io.h>
#include <windows.h>
// After windows.h, which they need.
#include <lmcons.h>
#include <shellapi.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>

#include "base/platform.h"
#include "base/wide_text_windows.h"

namespace vrel::platform {
namespace {

// Set by the signal handler only.
volatile std::sig_atomic_t terminationFlag = 0;

void noteTermination(int) {
  terminationFlag = 1;
}

// The system's calendar reaches from 1970 to 3000. Other times are moved into it by whole cycles of
// the calendar, which repeats to the day.
constexpr int kCycleYears = 400;
constexpr std::int64_t kCycleSeconds = std::int64_t{146'097} * 86'400;

std::int64_t floorDivide(std::int64_t number, std::int64_t divisor) {
  return number / divisor - (number % divisor < 0 ? 1 : 0);
}

// A word as a program's start-up code takes it apart again: backslashes count before a quote only.
std::string startUpWord(const std::string& word) {
  std::string quoted = "\"";
  std::size_t backslashes = 0;
  for (const char byte : word) {
    if (byte == '"') {
      quoted.append(backslashes + 1, '\\');
    }
    backslashes = byte == '\\' ? backslashes + 1 : 0;
    quoted += byte;
  }
  return quoted.append(backslashes, '\\') + '"';
}

// Behind carets no byte, not even a quote, means anything to the command processor.
std::string withCarets(const std::string& text) {
  std::string escaped;
  for (const char byte : text) {
    if (std::string_view("()%!^\"<>&|").find(byte) != std::string_view::npos) {
      escaped += '^';
    }
    escaped += byte;
  }
  return escaped;
}

}  // namespace

const char kPathSeparator = '\\';
const std::string_view kLastResortDirectory = "\\";

std::shared_ptr<std::FILE> openFile(const std::string& path, OpenMode mode) {
  static constexpr std::array<const wchar_t*, 4> kModes = {L"rbN", L"wbN", L"abN", L"wbN"};
  std::error_code error;
  if (std::filesystem::is_directory(wide(path), error) ||
      (mode == OpenMode::WriteNew && fileExists(path))) {
    return nullptr;
  }
  std::FILE* file = _wfopen(wide(path).c_str(), kModes[static_cast<std::size_t>(mode)]);
  if (file == nullptr) {
    return nullptr;
  }
  std::setvbuf(file, nullptr, _IONBF, 0);
  return {file, [](std::FILE* open) { std::fclose(open); }};
}

std::shared_ptr<std::FILE> openNameless(const std::string&) {
  return nullptr;
}

bool nameFile(std::FILE*, const std::string&) {
  return false;
}

bool finishWrites(std::FILE* file) {
  const int duplicate = std::fflush(file) == 0 ? _dup(_fileno(file)) : -1;
  return duplicate >= 0 && _close(duplicate) == 0;
}

bool replaceFile(const std::string& from, const std::string& to) {
  return MoveFileExW(wide(from).c_str(), wide(to).c_str(), MOVEFILE_REPLACE_EXISTING) != 0;
}

bool removeFile(const std::string& path) {
  return DeleteFileW(wide(path).c_str()) != 0;
}

bool fileExists(const std::string& path) {
  return GetFileAttributesW(wide(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::size_t fileSize(const std::string& path) {
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(wide(path), error);
  return error ? 0 : static_cast<std::size_t>(size);
}

bool isSpecialFile(const std::string& path) {
  std::error_code error;
  const auto type = std::filesystem::status(wide(path), error).type();
  return type != std::filesystem::file_type::regular &&
         type != std::filesystem::file_type::not_found && type != std::filesystem::file_type::none;
}

std::string resolveLinks(const std::string& path) {
  std::error_code error;
  if (std::filesystem::is_symlink(wide(path), error)) {
    const std::filesystem::path target = std::filesystem::canonical(wide(path), error);
    if (!error) {
      return utf8(target.wstring());
    }
  }
  return path;
}

void copyPermissions(const std::string&, const std::string&) {}

bool canWrite(const std::string& path) {
  const DWORD attributes = GetFileAttributesW(wide(path).c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES) {
    return (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) == 0;
  }
  const std::filesystem::path folder = std::filesystem::path(wide(path)).parent_path();
  std::error_code error;
  return folder.empty() || std::filesystem::is_directory(folder, error);
}

std::string absolutePath(const std::string& path) {
  std::error_code error;
  const std::filesystem::path absolute = std::filesystem::absolute(wide(path), error);
  return error ? path : utf8(absolute.wstring());
}

std::optional<std::string> currentDirectory() {
  std::error_code error;
  const std::filesystem::path current = std::filesystem::current_path(error);
  return error ? std::nullopt : std::optional(utf8(current.wstring()));
}

bool changeDirectory(const std::string& path) {
  return SetCurrentDirectoryW(wide(path).c_str()) != 0;
}

std::vector<std::string> directoryEntries(const std::string& path) {
  std::vector<std::string> names;
  std::error_code error;
  std::filesystem::directory_iterator entry(wide(path), error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    names.push_back(utf8(entry->path().filename().wstring()));
  }
  return names;
}

std::string programDirectory() {
  std::wstring path(MAX_PATH, L'\0');
  const DWORD length = GetModuleFileNameW(nullptr, path.data(), MAX_PATH);
  path.resize(length);
  return utf8(std::filesystem::path(path).parent_path().wstring());
}

std::vector<std::string> commandLineWords(int, char**) {
  int count = 0;
  wchar_t** const wideWords = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> words;
  for (int i = 0; i < count; ++i) {
    words.push_back(utf8(wideWords[i]));
  }
  LocalFree(wideWords);
  return words;
}

std::string userName() {
  std::wstring name(UNLEN + 1, L'\0');
  auto length = static_cast<DWORD>(name.size());
  if (GetUserNameW(name.data(), &length) == 0 || length == 0) {
    return {};
  }
  // The terminating character is counted.
  name.resize(length - 1);
  return utf8(name);
}

bool displayAvailable() {
  return true;
}

std::string environment(const char* name) {
  const wchar_t* value = _wgetenv(wide(name).c_str());
  return value == nullptr ? std::string() : utf8(value);
}

bool environmentIsSet(const char* name) {
  return _wgetenv(wide(name).c_str()) != nullptr;
}

int runCommand(const std::string& command) {
  // The command processor takes a quote at the beginning and the last one of the line away.
  return _wsystem(wide("\"" + command + "\"").c_str());
}

std::string commandLine(const std::vector<std::string>& words) {
  std::string line;
  for (const std::string& word : words) {
    line += line.empty() ? "" : " ";
    line += withCarets(startUpWord(word));
  }
  return line;
}

std::shared_ptr<std::FILE> openPipe(const std::string& command) {
  std::FILE* pipe = _wpopen(wide(command).c_str(), L"wb");
  if (pipe == nullptr) {
    return nullptr;
  }
  return {pipe, [](std::FILE* open) { _pclose(open); }};
}

bool isTerminal(StandardStream stream) {
  return _isatty(_fileno(stream == StandardStream::Output ? stdout : stderr)) != 0;
}

bool hasProgram(std::string_view name) {
  const std::wstring program = wide(name);
  for (const wchar_t* extension : {L".com", L".exe"}) {
    if (SearchPathW(nullptr, program.c_str(), extension, 0, nullptr, nullptr) != 0) {
      return true;
    }
  }
  return false;
}

void prepareStandardStreams() {
  for (std::FILE* stream : {stdin, stdout, stderr}) {
    _setmode(_fileno(stream), _O_BINARY);
  }
}

std::tm localTime(std::int64_t secondsSinceEpoch) {
  constexpr std::int64_t kYear2000 = 946'684'800;
  constexpr std::int64_t kYear3000 = 32'503'680'000;
  constexpr std::int64_t kMostCycles = 5'000'000;
  std::int64_t cycles = 0;
  if (secondsSinceEpoch < 0 || secondsSinceEpoch >= kYear3000) {
    // The first division keeps the subtraction in range.
    cycles = floorDivide(secondsSinceEpoch / 2 - kYear2000 / 2, kCycleSeconds / 2);
  }
  std::tm local{};
  if (cycles < -kMostCycles || cycles > kMostCycles) {
    return local;
  }
  const __time64_t time = secondsSinceEpoch - cycles * kCycleSeconds;
  _localtime64_s(&local, &time);
  local.tm_year += static_cast<int>(cycles) * kCycleYears;
  return local;
}

std::int64_t secondsFromLocalTime(std::tm local) {
  // Years after 1900; the last ones leave room for months and days beyond their ranges.
  constexpr int kFirstYear = 71;
  constexpr int kLastYear = 1098;
  int cycles = 0;
  if (local.tm_year < kFirstYear || local.tm_year > kLastYear) {
    cycles = static_cast<int>(floorDivide(std::int64_t{local.tm_year} - 100, kCycleYears));
  }
  local.tm_year -= cycles * kCycleYears;
  local.tm_isdst = -1;
  return _mktime64(&local) + cycles * kCycleSeconds;
}

std::int64_t currentTime() {
  return _time64(nullptr);
}

std::size_t readStandardInput(char* buffer, std::size_t capacity) {
  if (terminationFlag != 0) {
    return 0;
  }
  const int count = _read(_fileno(stdin), buffer, static_cast<unsigned>(capacity));
  return count < 0 || terminationFlag != 0 ? 0 : static_cast<std::size_t>(count);
}

void catchTermination() {
  std::signal(SIGTERM, noteTermination);
}

bool terminationRequested() {
  return terminationFlag != 0;
}

int terminationDescriptor() {
  return -1;
}

void* allocateLarge(std::size_t bytes) {
  return VirtualAlloc(nullptr, bytes, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
}

void* growLarge(void* memory, std::size_t oldBytes, std::size_t newBytes) {
  void* grown = allocateLarge(newBytes);
  if (grown != nullptr) {
    std::memcpy(grown, memory, oldBytes);
    freeLarge(memory, oldBytes);
  }
  return grown;
}

void freeLarge(void* memory, std::size_t) {
  VirtualFree(memory, 0, MEM_RELEASE);
}

void* loadFunction(const std::string& libraryPath, const char* function, std::string& error) {
  HMODULE library = LoadLibraryW(wide(libraryPath).c_str());
  FARPROC address = library == nullptr ? nullptr : GetProcAddress(library, function);
  if (address == nullptr) {
    error = "error " + std::to_string(GetLastError());
    return nullptr;
  }
  void* result = nullptr;
  std::memcpy(&result, &address, sizeof result);
  return result;
}

std::string moduleFileName(std::string_view name) {
  return std::string(name) + ".dll";
}

}  // namespace vrel::platform
