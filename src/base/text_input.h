// Line-oriented reading of text files, standard input and memory.
//
// Lines are handed out as views into one block buffer, so that reading a large file copies nothing
// but its blocks. CR LF counts as LF everywhere.
#pragma once

#include <cstddef>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vrel {

/// A length that no line in memory exceeds.
inline constexpr auto kWholeLine =
    static_cast<std::size_t>(std::numeric_limits<std::ptrdiff_t>::max());

class TextInput {
 public:
  /// Fills `buffer` with up to `capacity` bytes; returns how many, 0 at the end or on an error.
  using Source = std::function<std::size_t(char* buffer, std::size_t capacity)>;

  explicit TextInput(Source source);
  TextInput(TextInput&&) = default;
  TextInput& operator=(TextInput&&) = default;

  /// Reads from a copy of `text`.
  static TextInput fromMemory(std::string text);
  /// Opens a file for reading; nothing when it cannot be opened or is a directory.
  static std::optional<TextInput> open(const std::string& path);
  /// The same of a UTF-8 file that people edit: the mark with which some editors begin it is
  /// skipped.
  static std::optional<TextInput> openEdited(const std::string& path);

  /// The next line with its line feed (the last one may lack it), of at most `maxBytes` bytes
  /// (1 or more): a longer line comes in pieces. Nothing at the end. The view is valid until the
  /// next call.
  std::optional<std::string_view> readLine(std::size_t maxBytes);

 private:
  bool fill();

  Source source_;
  std::vector<char> buffer_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  bool atEnd_ = false;
};

}  // namespace vrel
