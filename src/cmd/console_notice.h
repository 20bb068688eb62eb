// Notices for a process without a window.
#pragma once

#include "base/notice.h"
#include "cmd/interpreter.h"

namespace vrel {

/// Writes each notice as one line to the interpreter's output and never waits for anybody.
class ConsoleNotice : public Notice {
 public:
  /// The interpreter must outlive the object.
  explicit ConsoleNotice(Interpreter& interpreter) : interpreter_(interpreter) {}

  void critical(std::string_view title, std::string_view text) override;
  void warning(std::string_view title, std::string_view text) override;
  Answer question(std::string_view title, std::string_view text) override;
  bool confirm(std::string_view title, std::string_view text) override;
  void beep() override;
  bool progress(std::string_view task, std::uint64_t done, std::uint64_t total) override;
  std::string translate(std::string_view text) override;
  bool hasWindow() const override;

 private:
  Interpreter& interpreter_;
};

}  // namespace vrel
