// Everything that differs between Linux and Windows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vrel::platform {

/// Separator between the folders of a path.
extern const char kPathSeparator;
/// Directory of last resort for temporary files.
extern const std::string_view kLastResortDirectory;

/// `WriteNew` fails when something of that name is there.
enum class OpenMode { Read, Write, Append, WriteNew };

/// Opens a file for binary access; null when it cannot be opened. A directory cannot be opened.
/// Paths are UTF-8.
std::shared_ptr<std::FILE> openFile(const std::string& path, OpenMode mode);
/// Opens a new file that stands beside `path` without a name, so that nothing is left of it when
/// the process ends; null where the system has no such files.
std::shared_ptr<std::FILE> openNameless(const std::string& path);
/// Names such a file; false when something of that name is there.
bool nameFile(std::FILE* file, const std::string& path);
/// Whether everything written to the file arrived, as far as closing it would tell.
bool finishWrites(std::FILE* file);
/// Puts the file `from` in the place of `to` in one step.
bool replaceFile(const std::string& from, const std::string& to);
bool removeFile(const std::string& path);
bool fileExists(const std::string& path);
/// Bytes in a file; 0 when that cannot be told.
std::size_t fileSize(const std::string& path);
/// Whether the path names an existing file that is no regular one (a directory, pipe, device).
bool isSpecialFile(const std::string& path);
/// Where a chain of symbolic links ends, also one that leads to no file yet; the path itself when
/// it is no link.
std::string resolveLinks(const std::string& path);
/// Gives `to` the permissions of `from`, as far as the system has them.
void copyPermissions(const std::string& from, const std::string& to);
/// Whether a new file may be made and an existing one overwritten at this path.
bool canWrite(const std::string& path);
/// Absolute form of a path, against the current directory; links are not followed.
std::string absolutePath(const std::string& path);
/// The working directory; nothing when it cannot be had.
std::optional<std::string> currentDirectory();
bool changeDirectory(const std::string& path);
/// The names in a directory, in the order in which the system hands them out; none of a directory
/// that cannot be read.
std::vector<std::string> directoryEntries(const std::string& path);
/// Folder that holds the running program.
std::string programDirectory();
/// The process's command-line words in UTF-8, the program path first.
std::vector<std::string> commandLineWords(int argc, char** argv);
/// The name under which the user has logged in; empty when it cannot be had.
std::string userName();
/// Whether a window could be opened, as far as the environment tells.
bool displayAvailable();

/// Value of an environment variable; empty when not set.
std::string environment(const char* name);
bool environmentIsSet(const char* name);

/// Runs a command line with the system's command processor, waits, and returns its result.
int runCommand(const std::string& command);
/// A word that the system's command processor takes as it is, whatever stands in it.
std::string quotedWord(std::string_view word);
/// A command line that starts a program (the first word) with words that reach it as they are.
std::string commandLine(const std::vector<std::string>& words);
/// A pipe into a command; null when it cannot be started. Closing waits for the command.
std::shared_ptr<std::FILE> openPipe(const std::string& command);
/// Whether standard output (`Output`) or standard error is a terminal.
enum class StandardStream { Output, Error };
bool isTerminal(StandardStream stream);
/// Whether a program of that name can be started.
bool hasProgram(std::string_view name);
/// Makes standard input, output and error pass bytes unchanged, and those that are closed lead
/// nowhere.
void prepareStandardStreams();

/// Broken-down local time.
std::tm localTime(std::int64_t secondsSinceEpoch);
/// Seconds since 1970-01-01 UTC of a local time; days and months may overflow their ranges.
std::int64_t secondsFromLocalTime(std::tm local);
std::int64_t currentTime();

/// Reads from standard input: the count of bytes, 0 at the end. Also returns 0 as soon as a
/// termination request is there.
std::size_t readStandardInput(char* buffer, std::size_t capacity);

/// From now on the termination signal only notes the request, which ends a wait in
/// `readStandardInput`.
void catchTermination();
bool terminationRequested();
/// A descriptor that becomes readable with a termination request, for event loops; -1 if none.
int terminationDescriptor();

/// Memory of at least `bytes` bytes for a large array, backed by large pages where the system
/// has them. Null when there is none.
void* allocateLarge(std::size_t bytes);
/// The same memory made larger, perhaps at another address; null, with the old memory as it was,
/// when that cannot be had.
void* growLarge(void* memory, std::size_t oldBytes, std::size_t newBytes);
void freeLarge(void* memory, std::size_t bytes);

/// A printer as the system names it.
struct Printer {
  /// The machine that serves it; empty for the one that is asked anyway.
  std::string server;
  std::string name;
  /// The one that the user prefers.
  bool isDefault = false;
};

/// The printers of the system, the local ones and those of the network.
std::vector<Printer> printers();
/// The command that hands a file to a printer.
std::string spoolCommand(const Printer& printer, const std::string& path);
/// Hands a file to a printer byte for byte, as a job of that name. Nothing where the system has no
/// such road; else whether it went well.
std::optional<bool> spoolRaw(const Printer& printer, std::string_view job, const std::string& path);

/// Loads a shared library and returns the address of one of its functions; null, with the
/// system's words in `error`, when that fails. The library stays loaded.
void* loadFunction(const std::string& libraryPath, const char* function, std::string& error);
/// File name of a loadable module.
std::string moduleFileName(std::string_view name);

}  // namespace vrel::platform
