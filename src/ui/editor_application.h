// The toolkit's side of the process: application object, diagnostics, display.
#pragma once

#include <QApplication>
#include <memory>
#include <string>
#include <vector>

#include "base/paths.h"
#include "base/toolkit_messages.h"

namespace vrel {

/// The words of the command line in the form that the toolkit wants and may change.
struct ArgumentWords {
  explicit ArgumentWords(std::vector<std::string> words);

  std::vector<std::string> words;
  std::vector<char*> pointers;
  int count;
};

/// The application object. It keeps numbers and dates in the program's own form, whatever the
/// user's locale is, and passes the toolkit's diagnostics through the console filter.
class EditorApplication : private ArgumentWords, public QApplication {
 public:
  /// The filter must outlive the object.
  EditorApplication(std::vector<std::string> words, ToolkitMessageFilter& filter);

  ToolkitMessageFilter& toolkitMessages() { return filter_; }

 private:
  ToolkitMessageFilter& filter_;
};

/// Passes the toolkit's diagnostics to `toolkitMessage` while the object lives.
class FilteredToolkitMessages {
 public:
  FilteredToolkitMessages();
  FilteredToolkitMessages(const FilteredToolkitMessages&) = delete;
  FilteredToolkitMessages& operator=(const FilteredToolkitMessages&) = delete;
  ~FilteredToolkitMessages();

 private:
  QtMessageHandler before_;
};

/// The platform plugins for the toolkit to try, separated by ";". It ends the process when none of
/// them starts, so the one without windows, which always does, comes last.
std::string platformPlugins(const EnvironmentLookup& environment);

/// The application object; null when no display can be opened.
std::unique_ptr<EditorApplication> makeApplication(const EnvironmentLookup& environment,
                                                   std::vector<std::string> words,
                                                   ToolkitMessageFilter& filter);

/// The window's icon: a report grid with its labels set apart.
QIcon applicationIcon();

}  // namespace vrel
