// Views for tests, compared as plain text.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "base/notice.h"
#include "model/report_view.h"

namespace vrel::test {

/// Takes every notice silently and marks translated texts by square brackets.
class SilentNotice : public Notice {
 public:
  void critical(std::string_view /*title*/, std::string_view /*text*/) override {}
  void warning(std::string_view /*title*/, std::string_view /*text*/) override {}
  Answer question(std::string_view /*title*/, std::string_view /*text*/) override {
    return Answer::Cancel;
  }
  bool confirm(std::string_view /*title*/, std::string_view /*text*/) override { return false; }
  void beep() override {}
  bool progress(std::string_view /*task*/, std::uint64_t /*done*/,
                std::uint64_t /*total*/) override {
    return true;
  }
  std::string translate(std::string_view text) override { return "[" + std::string(text) + "]"; }
  bool hasWindow() const override { return false; }
};

/// The lists of a view by field index: "x 0 1, y 2, data 3"; empty lists are left out.
std::string listsOf(const ReportView& view);

/// A view whose x, y, z and data lists are these.
ReportView viewOf(Table& table, std::vector<int> x, std::vector<int> y, std::vector<int> z,
                  std::vector<int> data);

/// An active break of a field, named "Total", with a frequency and operations by table field.
BreakDefinition breakOf(int field, int frequency, const std::map<int, BreakOperation>& operations);

/// The view as it would be saved.
std::string savedText(const ReportView& view);

}  // namespace vrel::test
