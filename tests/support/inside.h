// Tests that run in a directory of their own.
#pragma once

#include <filesystem>
#include <string>

namespace vrel::test {

/// Makes a directory the working directory while the object lives.
class Inside {
 public:
  explicit Inside(const std::string& directory) : before_(std::filesystem::current_path()) {
    std::filesystem::current_path(directory);
  }
  Inside(const Inside&) = delete;
  Inside& operator=(const Inside&) = delete;
  ~Inside() {
    std::error_code ignored;
    std::filesystem::current_path(before_, ignored);
  }

 private:
  std::filesystem::path before_;
};

}  // namespace vrel::test
