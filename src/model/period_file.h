// Period files: text files that state how long periods last, one period and unit a line.
#pragma once

#include <cstddef>
#include <string>

#include "base/notice.h"
#include "base/text_input.h"
#include "model/period_lengths.h"
#include "model/report_view.h"

namespace vrel {

/// Room for the report on a period file's errors, a closing NUL included: the report itself has at
/// most 899 bytes.
inline constexpr std::size_t kPeriodReportSize = 900;

/// Replaces the lengths that a file stated for the periods by those of this one; computed lengths
/// stay. Faulty lines are left out, the others count. Returns true when there was none; otherwise
/// `report` tells of them in the language of `notice`, one line each, in less than `reportSize`
/// bytes: when more has to be said, it ends in a line feed and "Too Many Errors.".
bool parsePeriodFile(PeriodLengths& lengths, TextInput& input, Notice& notice, std::string& report,
                     std::size_t reportSize = kPeriodReportSize);

/// Reads the period file that the view names into its table. Tells the person about a file that
/// cannot be opened, which leaves the lengths as they are, and about faulty lines. A view that
/// names no file leaves them as they are, too.
void readPeriodFile(const ReportView& view, Notice& notice);

}  // namespace vrel
