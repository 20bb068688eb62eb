// Directories and files for tests.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

namespace vrel::test {

/// A fresh empty directory, removed with all it holds.
class TemporaryDirectory {
 public:
  TemporaryDirectory() {
    std::random_device random;
    do {
      path_ = std::filesystem::temp_directory_path() / ("vrel_test_" + std::to_string(random()));
    } while (!std::filesystem::create_directory(path_));
  }
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
  ~TemporaryDirectory() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  /// Path of the directory, or of a file in it.
  std::string path(std::string_view name = "") const {
    return (name.empty() ? path_ : path_ / name).string();
  }
  /// Makes a file and returns its path.
  std::string write(std::string_view name, std::string_view text) const {
    std::filesystem::create_directories((path_ / name).parent_path());
    std::ofstream(path(name), std::ios::binary) << text;
    return path(name);
  }
  /// The bytes of a file; "(no file)" when there is none.
  std::string read(std::string_view name) const {
    std::ifstream file(path(name), std::ios::binary);
    return file ? std::string(std::istreambuf_iterator<char>(file), {}) : "(no file)";
  }
  bool has(std::string_view name) const { return std::filesystem::exists(path_ / name); }

 private:
  std::filesystem::path path_;
};

}  // namespace vrel::test
