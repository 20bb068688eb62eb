#include "base/text_output.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "base/platform.h"

namespace vrel {
namespace {

constexpr std::size_t kBlockSize = std::size_t{1} << 18;

TextOutput::Sink fileSink(std::shared_ptr<std::FILE> file) {
  return [file = std::move(file)](std::string_view text) {
    return std::fwrite(text.data(), 1, text.size(), file.get()) == text.size() &&
           std::fflush(file.get()) == 0;
  };
}

std::shared_ptr<std::FILE> unowned(std::FILE* file) {
  return {file, [](std::FILE*) {}};
}

// Tries names beside `target` until `take` has taken one; empty when it took none of those that are
// free, or all are taken.
template <typename Take>
std::string nameBeside(const std::string& target, Take take) {
  constexpr int kMostNames = 1000;
  for (int attempt = 0; attempt < kMostNames; ++attempt) {
    std::string name = fmt::format("{}.new{:03d}", target, attempt);
    if (take(name)) {
      return name;
    }
    if (!platform::fileExists(name)) {
      break;
    }
  }
  return {};
}

// Opens a new file beside `target` and sets its name; null when none can be made there.
std::shared_ptr<std::FILE> openBeside(const std::string& target, std::string& name) {
  std::shared_ptr<std::FILE> file;
  name = nameBeside(target, [&file](const std::string& free) {
    file = platform::openFile(free, platform::OpenMode::WriteNew);
    return file != nullptr;
  });
  // A file that is written for long had better have no name yet: whatever ends the process, no part
  // of it stays behind.
  if (std::shared_ptr<std::FILE> nameless = file ? platform::openNameless(target) : nullptr) {
    file = std::move(nameless);
    platform::removeFile(name);
    name.clear();
  }
  return file;
}

}  // namespace

TextOutput::TextOutput(Sink sink)
    : sink_(std::move(sink)),
      block_(std::make_unique_for_overwrite<char[]>(kBlockSize)),
      at_(block_.get()) {}

TextOutput::~TextOutput() {
  if (block_) {
    flush();
  }
}

TextOutput TextOutput::toMemory(std::string& text) {
  return TextOutput([&text](std::string_view block) {
    text += block;
    return true;
  });
}

void TextOutput::write(std::string_view text) {
  while (!text.empty()) {
    const auto room = static_cast<std::size_t>(block_.get() + kBlockSize - at_);
    const std::size_t count = std::min(room, text.size());
    std::memcpy(at_, text.data(), count);
    at_ += count;
    text.remove_prefix(count);
    if (count == room) {
      flush();
    }
  }
}

void TextOutput::put(char byte) {
  *at_++ = byte;
  if (at_ == block_.get() + kBlockSize) {
    flush();
  }
}

char* TextOutput::reserve(std::size_t count) {
  if (static_cast<std::size_t>(block_.get() + kBlockSize - at_) <= count) {
    flush();
  }
  return at_;
}

void TextOutput::advance(const char* end) {
  at_ += end - at_;
}

bool TextOutput::flush() {
  const std::string_view text(block_.get(), static_cast<std::size_t>(at_ - block_.get()));
  at_ = block_.get();
  if (ok_ && !text.empty()) {
    ok_ = sink_(text);
  }
  return ok_;
}

TextOutput standardErrorOutput() {
  return TextOutput(fileSink(unowned(stderr)));
}

TextOutput standardOutput() {
  return TextOutput(fileSink(unowned(stdout)));
}

std::unique_ptr<TextOutput> openOutput(const std::string& path, WriteMode mode) {
  std::shared_ptr<std::FILE> file = platform::openFile(
      path, mode == WriteMode::Append ? platform::OpenMode::Append : platform::OpenMode::Write);
  if (!file) {
    return nullptr;
  }
  return std::make_unique<TextOutput>(fileSink(std::move(file)));
}

struct SafeFile::State {
  State(std::string targetPath, std::string writtenPath, std::shared_ptr<std::FILE> openFile)
      : target(std::move(targetPath)),
        written(std::move(writtenPath)),
        file(openFile),
        output(fileSink(std::move(openFile))) {}

  std::string target;
  // Empty as long as the file has no name.
  std::string written;
  std::shared_ptr<std::FILE> file;
  TextOutput output;
};

SafeFile::SafeFile(const std::string& path) {
  const std::string target = platform::resolveLinks(path);
  if (target.empty()) {
    return;
  }
  std::string written = target;
  std::shared_ptr<std::FILE> file;
  if (!platform::isSpecialFile(target) && platform::canWrite(target)) {
    file = openBeside(target, written);
  }
  if (!file) {
    // Straight into its place: what is no regular file, or stands where no other can be made.
    written = target;
    file = platform::openFile(target, platform::OpenMode::Write);
  }
  if (file) {
    state_ = std::make_unique<State>(target, written, file);
  }
}

SafeFile::~SafeFile() {
  if (state_ && state_->written != state_->target && !state_->written.empty()) {
    const std::string written = state_->written;
    // The stream shares the file: only without both is it closed, and an open file cannot be
    // removed everywhere.
    state_.reset();
    platform::removeFile(written);
  }
}

bool SafeFile::isOpen() const {
  return state_ != nullptr;
}

TextOutput& SafeFile::output() {
  return state_->output;
}

bool SafeFile::commit() {
  std::unique_ptr<State> state = std::move(state_);
  if (!state) {
    return false;
  }
  bool ok = state->output.flush();
  if (state->written == state->target) {
    return ok;
  }
  ok = ok && platform::finishWrites(state->file.get());
  if (ok && state->written.empty()) {
    state->written = nameBeside(state->target, [&state](const std::string& free) {
      return platform::nameFile(state->file.get(), free);
    });
  }
  const std::string written = state->written;
  const std::string target = state->target;
  state.reset();
  if (ok) {
    platform::copyPermissions(target, written);
  }
  ok = ok && platform::replaceFile(written, target);
  if (!ok && !written.empty()) {
    platform::removeFile(written);
  }
  return ok;
}

}  // namespace vrel
