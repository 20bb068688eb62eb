#include "base/text_input.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <memory>

#include "base/platform.h"

namespace vrel {
namespace {

constexpr std::size_t kBlockSize = std::size_t{1} << 18;

}  // namespace

TextInput::TextInput(Source source) : source_(std::move(source)) {}

TextInput TextInput::fromMemory(std::string text) {
  return TextInput(
      [text = std::move(text), at = std::size_t{0}](char* buffer, std::size_t capacity) mutable {
        const std::size_t count = std::min(capacity, text.size() - at);
        std::memcpy(buffer, text.data() + at, count);
        at += count;
        return count;
      });
}

std::optional<TextInput> TextInput::open(const std::string& path) {
  std::shared_ptr<std::FILE> file = platform::openFile(path, platform::OpenMode::Read);
  if (!file) {
    return std::nullopt;
  }
  return TextInput([file](char* buffer, std::size_t capacity) {
    return std::fread(buffer, 1, capacity, file.get());
  });
}

std::optional<TextInput> TextInput::openEdited(const std::string& path) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  std::optional<TextInput> input = open(path);
  if (input && input->fill() &&
      std::string_view(input->buffer_.data(), input->end_).starts_with(kByteOrderMark)) {
    input->begin_ = kByteOrderMark.size();
  }
  return input;
}

bool TextInput::fill() {
  if (atEnd_) {
    return false;
  }
  if (begin_ > 0) {
    std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
    end_ -= begin_;
    begin_ = 0;
  }
  if (buffer_.size() < end_ + kBlockSize) {
    buffer_.resize(end_ + kBlockSize);
  }
  const std::size_t count = source_(buffer_.data() + end_, buffer_.size() - end_);
  end_ += count;
  atEnd_ = count == 0;
  return !atEnd_;
}

std::optional<std::string_view> TextInput::readLine(std::size_t maxBytes) {
  std::size_t searched = 0;
  while (true) {
    // A line of `maxBytes` bytes may stand in the buffer with one carriage return more.
    const std::size_t available = std::min(end_ - begin_, maxBytes + 1);
    char* const line = buffer_.data() + begin_;
    char* const lineFeed =
        available > searched
            ? static_cast<char*>(std::memchr(line + searched, '\n', available - searched))
            : nullptr;
    if (lineFeed != nullptr) {
      const auto rawLength = static_cast<std::size_t>(lineFeed - line) + 1;
      const bool carriageReturn = rawLength >= 2 && lineFeed[-1] == '\r';
      const std::size_t length = carriageReturn ? rawLength - 1 : rawLength;
      if (length <= maxBytes) {
        begin_ += rawLength;
        line[length - 1] = '\n';
        return std::string_view(line, length);
      }
    }
    if (available > maxBytes) {
      begin_ += maxBytes;
      return std::string_view(line, maxBytes);
    }
    searched = available;
    if (!fill()) {
      break;
    }
  }
  if (begin_ == end_) {
    return std::nullopt;
  }
  const std::string_view rest(buffer_.data() + begin_, end_ - begin_);
  begin_ = end_;
  return rest;
}

}  // namespace vrel
