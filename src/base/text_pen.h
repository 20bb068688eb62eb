// A pen on a text stream, for writers of millions of small pieces: it holds a stretch of the
// stream's block, so that each piece costs no call.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "base/text_output.h"

namespace vrel {

/// While a pen lives, all writing to its stream goes through it; its destructor hands over what
/// was written.
class TextPen {
 public:
  explicit TextPen(TextOutput& output) : output_(output) { refill(); }
  TextPen(const TextPen&) = delete;
  TextPen& operator=(const TextPen&) = delete;
  ~TextPen() { output_.advance(at_); }

  /// Room for `count` bytes (at most `TextOutput::kMaxReserve`), to be filled from the returned
  /// pointer on; `advance` then takes the end of what was filled.
  char* room(std::size_t count) {
    if (static_cast<std::size_t>(limit_ - at_) < count) {
      output_.advance(at_);
      refill();
    }
    return at_;
  }
  void advance(char* end) { at_ = end; }

  void put(char byte) {
    *room(1) = byte;
    ++at_;
  }

  void write(std::string_view text) {
    if (text.size() > TextOutput::kMaxReserve) {
      output_.advance(at_);
      output_.write(text);
      refill();
      return;
    }
    char* to = room(text.size());
    std::copy(text.begin(), text.end(), to);
    at_ = to + text.size();
  }

  /// The same byte many times.
  void fill(char byte, std::size_t count) {
    while (count > 0) {
      const std::size_t part = std::min(count, TextOutput::kMaxReserve);
      std::memset(room(part), byte, part);
      at_ += part;
      count -= part;
    }
  }

 private:
  void refill() {
    at_ = output_.reserve(TextOutput::kMaxReserve);
    limit_ = at_ + TextOutput::kMaxReserve;
  }

  TextOutput& output_;
  char* at_;
  char* limit_;
};

}  // namespace vrel
