// Printing: a print file in the form that the view asks for, and its way to the printer.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/notice.h"
#include "base/paths.h"
#include "base/platform.h"
#include "model/format_settings.h"
#include "model/report_view.h"

namespace vrel {

/// The system's printers and the roads to them; tests put others in their place.
struct Spooler {
  std::function<std::vector<platform::Printer>()> printers = platform::printers;
  /// Runs a command and returns its result, 0 for success.
  std::function<int(const std::string& command)> run = platform::runCommand;
  std::function<std::optional<bool>(const platform::Printer&, std::string_view job,
                                    const std::string& path)>
      sendRaw = platform::spoolRaw;
};

/// Where a print goes.
struct PrintTarget {
  /// A file that the user keeps; without one, the printer.
  std::optional<std::string> file;
  /// Nothing when none is selected: then only the view's print command can take the print.
  std::optional<platform::Printer> printer;
};

/// What printing needs. Everything referred to outlives the call.
struct PrintContext {
  ReportView& view;
  const FormatSettings& format;
  const EnvironmentLookup& environment;
  Notice& notice;
  const Spooler& spooler;
};

/// How a print ended. Every failure was told to the user.
enum class PrintResult { Printed, Failed, Cancelled };

/// Prints by the view's print options: the current z page or all of them. A file that goes to a
/// printer is a temporary one and is gone afterwards; the user's own file is whole or not there.
PrintResult printReport(const PrintContext& context, const PrintTarget& target);

/// The printer that is selected when the user has not chosen one: the preferred one, else the
/// first.
std::optional<platform::Printer> firstPrinter(const std::vector<platform::Printer>& printers);

/// The title of a print: that of the print options, else the default.
std::string printTitle(const ReportView& view);
/// The title of a print whose options have none: the user's, else the system's.
std::string defaultPrintTitle(const ReportView& view);

/// The command that hands a file to whatever a print command names: "%s" stands for the file,
/// which else comes last.
std::string printCommandFor(const std::string& command, const std::string& path);

}  // namespace vrel
