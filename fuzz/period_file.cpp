// Made-up period files: none may break the reader, and its report keeps within its room.
#include "model/period_file.h"

#include "fuzzing.h"
#include "silent_notice.h"

using vrel::fuzz::require;

namespace {

void read(std::string_view file, std::size_t reportSize) {
  vrel::PeriodLengths lengths;
  std::string report = "left over";
  vrel::TextInput input = vrel::TextInput::fromMemory(std::string(file));
  vrel::bench::SilentNotice notice;
  const bool ok = vrel::parsePeriodFile(lengths, input, notice, report, reportSize);
  require(report.size() < reportSize, "the report keeps within its room");
  require(!ok || report.empty(), "a file without errors has no report");
  require(ok || !report.empty() || reportSize < vrel::kPeriodReportSize,
          "errors are reported where there is room");
  require(report.size() < 2 || report.ends_with('\n') || report.ends_with("\nToo Many Errors."),
          "the report has whole lines");
  for (const auto& [text, stated] : lengths.statedByText) {
    for (const std::optional<double>& length : stated) {
      require(!length || *length >= 0, "no length is negative");
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view file = vrel::fuzz::madeUpFile(data, size);
  read(file, vrel::kPeriodReportSize);
  read(file, 1 + size % 128);
  return 0;
}
