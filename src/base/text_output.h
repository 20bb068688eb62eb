// Buffered writing of text: the interpreter's output, exports, dumps, saved files.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace vrel {

/// Collects text in one block and hands full blocks to its sink. After a failed write the stream
/// stays failed and drops what follows.
class TextOutput {
 public:
  /// Takes all bytes of a block; returns false when it could not.
  using Sink = std::function<bool(std::string_view)>;

  explicit TextOutput(Sink sink);
  TextOutput(TextOutput&&) noexcept = default;
  TextOutput& operator=(TextOutput&&) = delete;
  /// Flushes; a failure at this point goes unnoticed, so call `flush` where it matters.
  ~TextOutput();

  /// Appends what is written to `text`, which must outlive the stream.
  static TextOutput toMemory(std::string& text);

  void write(std::string_view text);
  void put(char byte);

  /// Room for `count` bytes (at most `kMaxReserve`), to be filled from the returned pointer on;
  /// `advance` then takes the end of what was filled.
  char* reserve(std::size_t count);
  void advance(const char* end);

  /// Hands everything to the sink; returns whether all writes so far went well.
  bool flush();

  static constexpr std::size_t kMaxReserve = 16384;

 private:
  Sink sink_;
  std::unique_ptr<char[]> block_;
  char* at_;
  bool ok_ = true;
};

enum class WriteMode { Truncate, Append };

/// Standard error as a stream.
TextOutput standardErrorOutput();
/// Standard output as a stream.
TextOutput standardOutput();
/// Opens a file as a stream that is written in place; null when it cannot be opened.
std::unique_ptr<TextOutput> openOutput(const std::string& path, WriteMode mode);

/// A file that appears whole or not at all: written beside its place and renamed over it by
/// `commit`. A path that is no regular file (a pipe, a device) is written straight.
class SafeFile {
 public:
  /// Nothing is open afterwards when the place cannot be written; see `isOpen`.
  explicit SafeFile(const std::string& path);
  SafeFile(const SafeFile&) = delete;
  SafeFile& operator=(const SafeFile&) = delete;
  /// Without a commit the old file stays as it was.
  ~SafeFile();

  bool isOpen() const;
  TextOutput& output();
  /// Finishes the file; false when a write or the renaming failed, and then the old file stands.
  bool commit();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace vrel
