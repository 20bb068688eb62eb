// A notice for programs that measure or fuzz: shows nothing to anybody.
#pragma once

#include "base/notice.h"

namespace vrel::bench {

class SilentNotice : public Notice {
 public:
  void critical(std::string_view, std::string_view) override {}
  void warning(std::string_view, std::string_view) override {}
  Answer question(std::string_view, std::string_view) override { return Answer::Cancel; }
  bool confirm(std::string_view, std::string_view) override { return false; }
  void beep() override {}
  bool progress(std::string_view, std::uint64_t, std::uint64_t) override { return true; }
  std::string translate(std::string_view text) override { return std::string(text); }
  bool hasWindow() const override { return false; }
};

}  // namespace vrel::bench
