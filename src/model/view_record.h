// The words of a view file's lines, as they are read and as they are written.
//
// A record is a sequence of tag words such as `<Name>`, each followed by its value. Readers look
// tags up by name, so that their order in a line does not matter.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vrel {

/// The words of a line behind its command.
using Arguments = std::span<const std::string>;

/// Position of a tag's value; nothing when the tag is missing or the last word.
std::optional<std::size_t> findTagValue(Arguments arguments, std::string_view tag);
/// A tag's value; empty when the tag is missing.
std::string_view tagText(Arguments arguments, std::string_view tag);
/// Whether a tag's value is "True".
bool tagIsTrue(Arguments arguments, std::string_view tag);
/// A tag's value as a whole number, 0 when it is none.
int tagNumber(Arguments arguments, std::string_view tag);

/// The integer part of the decimal number that a text is, brought into the range of an `int`;
/// nothing for other texts.
std::optional<int> parseWholeNumber(std::string_view text);
/// The same with 0 for other texts.
int wholeNumber(std::string_view text);

/// The text as a view file can hold it: the word splitter knows no escapes and a record stands in
/// one line, so double quotes become apostrophes and line feeds blanks.
std::string viewFileText(std::string_view text);

/// Append a word to a line; each is followed by one blank.
void addWord(std::string& line, std::string_view word);
void addQuoted(std::string& line, std::string_view text);
void addNumber(std::string& line, int number);
void addTruth(std::string& line, bool truth);

}  // namespace vrel
