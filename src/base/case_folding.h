// Texts made alike in capital and small letters, for looking texts up regardless of case.
#pragma once

#include <string>

namespace vrel {

/// Turns the capital letters of a UTF-8 text into small ones: Latin with its accents, Greek and
/// Cyrillic. Each letter keeps its length in bytes; all other bytes stay as they are, those that
/// are no UTF-8 included.
void foldCase(std::string& text);

}  // namespace vrel
