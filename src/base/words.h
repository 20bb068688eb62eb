// Splitting a line into words, the way command lines, view files and period files are written.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vrel {

/// The words of one line.
struct WordSplit {
  std::vector<std::string> words;
  /// The quote character that opened a word and was never closed; 0 when all were.
  char unmatchedQuote = 0;
  /// With an unmatched quote, the text after the opening quote.
  std::string rest;
};

/// Whether a byte is white space; only bytes below 128 can be.
bool isBlank(char byte);

/// The text without white space at both ends.
std::string_view trimBlanks(std::string_view text);

/// The lines of a text, which line feeds separate; a text without any is one line.
std::vector<std::string_view> linesOf(std::string_view text);

/// Splits at white space and commas. A word that begins with a double quote, an apostrophe or a
/// back quote runs to the next quote of that kind and may hold separators; text right behind the
/// closing quote begins a new word.
WordSplit splitWords(std::string_view line);

}  // namespace vrel
