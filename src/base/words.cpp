#include "base/words.h"

namespace vrel {

bool isBlank(char byte) {
  return byte == ' ' || (byte >= '\t' && byte <= '\r');
}

std::string_view trimBlanks(std::string_view text) {
  while (!text.empty() && isBlank(text.front())) {
    text.remove_prefix(1);
  }
  while (!text.empty() && isBlank(text.back())) {
    text.remove_suffix(1);
  }
  return text;
}

std::vector<std::string_view> linesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  std::size_t start = 0;
  for (std::size_t end = text.find('\n'); end != std::string_view::npos;
       end = text.find('\n', start)) {
    lines.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  lines.push_back(text.substr(start));
  return lines;
}

WordSplit splitWords(std::string_view line) {
  const auto isSeparator = [](char byte) { return byte == ',' || isBlank(byte); };
  const auto isQuote = [](char byte) { return byte == '"' || byte == '\'' || byte == '`'; };
  WordSplit split;
  std::size_t at = 0;
  while (true) {
    while (at < line.size() && isSeparator(line[at])) {
      ++at;
    }
    if (at == line.size()) {
      return split;
    }
    std::size_t end = at;
    if (isQuote(line[at])) {
      const char quote = line[at];
      ++at;
      end = line.find(quote, at);
      if (end == std::string_view::npos) {
        split.unmatchedQuote = quote;
        split.rest = line.substr(at);
        return split;
      }
    } else {
      while (end < line.size() && !isSeparator(line[end])) {
        ++end;
      }
    }
    split.words.emplace_back(line.substr(at, end - at));
    at = end + (end < line.size() ? 1 : 0);
  }
}

}  // namespace vrel
