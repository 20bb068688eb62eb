#include "base/text_file.h"

#include <cstdio>
#include <memory>
#include <utility>

#include "base/platform.h"

namespace vrel {

std::optional<std::string> readTextFile(const std::string& path) {
  constexpr std::size_t kBlockSize = std::size_t{1} << 16;
  // Far beyond any view; a device without an end must not fill the memory.
  constexpr std::size_t kMostBytes = std::size_t{1} << 26;
  const std::shared_ptr<std::FILE> file = platform::openFile(path, platform::OpenMode::Read);
  if (!file) {
    return std::nullopt;
  }
  std::string text;
  std::size_t size = 0;
  std::size_t count = 0;
  do {
    text.resize(size + kBlockSize);
    count = std::fread(text.data() + size, 1, kBlockSize, file.get());
    size += count;
  } while (count > 0 && size <= kMostBytes);
  text.resize(size);
  return size <= kMostBytes ? std::optional(std::move(text)) : std::nullopt;
}

}  // namespace vrel
