// How the lower folders talk to a person, with or without a window.
//
// Without a window every notice is one line on the interpreter's output stream and nothing ever
// waits for an answer; the window installs message boxes and the translator.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vrel {

enum class Answer { Yes, No, Cancel };

class Notice {
 public:
  virtual ~Notice() = default;

  virtual void critical(std::string_view title, std::string_view text) = 0;
  virtual void warning(std::string_view title, std::string_view text) = 0;
  /// Asks Yes, No or Cancel; `Cancel` when nobody can be asked.
  virtual Answer question(std::string_view title, std::string_view text) = 0;
  /// Asks whether to go ahead, OK or Cancel; false when nobody can be asked.
  virtual bool confirm(std::string_view title, std::string_view text) = 0;
  /// A sound that calls for attention; none when nobody can hear it.
  virtual void beep() = 0;
  /// Tells how far a long task is; returns false when it was cancelled.
  virtual bool progress(std::string_view task, std::uint64_t done, std::uint64_t total) = 0;
  /// The text in the user's language.
  virtual std::string translate(std::string_view text) = 0;
  /// Whether a window is there to show notices.
  virtual bool hasWindow() const = 0;
};

/// Marks a text for translation, which happens where it is shown: the tools that collect the texts
/// know this name. `context` is "vrel" in all code without the toolkit.
constexpr const char* translatable(const char* /*context*/, const char* text) {
  return text;
}

/// Title of the editor's message boxes.
std::string editorTitle(Notice& notice);

/// A text with `value` in the place of its "%1".
std::string withValue(std::string text, std::string_view value);

/// The same of a translated text.
std::string noticeText(Notice& notice, std::string_view text, std::string_view value);

}  // namespace vrel
