#include "base/text_file.h"

#include <cstdio>
#include <memory>

#include "base/platform.h"

namespace vrel {

std::optional<std::string> readTextFile(const std::string& path) {
  constexpr std::size_t kBlockSize = std::size_t{1} << 16;
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
  } while (count > 0);
  text.resize(size);
  return text;
}

}  // namespace vrel
