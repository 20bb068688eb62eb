#include "cmd/help.h"

namespace vrel {
namespace {

constexpr std::string_view kHeadingUsage = "Title";
constexpr const char* kPager = "more";

struct Listing {
  TextOutput& output;
  bool anything = false;
  bool anyCommand = false;
};

void writeRecord(Listing& listing, const CommandRecord& record) {
  if (record.usage == kHeadingUsage) {
    listing.output.write(fmt::format("\n*** {} ***\n\n", record.name));
  } else {
    listing.output.write(fmt::format("   {:<24}{:3d},{:3d},\t{}\n", record.name, record.minArgs,
                                     record.maxArgs, record.usage));
    listing.anyCommand = true;
  }
}

void writeTable(Listing& listing, const CommandTable& table, const std::string* pattern) {
  bool titleWritten = false;
  for (const CommandRecord& record : table.records) {
    if (pattern != nullptr && !matchesPattern(record.name, *pattern)) {
      continue;
    }
    if (!titleWritten) {
      listing.output.write(fmt::format("{}\n", table.title));
      titleWritten = true;
      listing.anything = true;
    }
    writeRecord(listing, record);
  }
}

// The pager writes to standard output, whichever stream asked for it.
bool wantsPager(const Interpreter& interpreter) {
  using platform::StandardStream;
  return interpreter.outputTarget != OutputTarget::File &&
         platform::isTerminal(StandardStream::Output) &&
         (interpreter.outputTarget == OutputTarget::StandardOutput ||
          platform::isTerminal(StandardStream::Error)) &&
         platform::hasProgram(kPager);
}

}  // namespace

bool matchesPattern(std::string_view name, std::string_view pattern) {
  const std::string_view shortName = name.substr(name.rfind('/') + 1);
  const std::size_t star = pattern.find('*');
  if (star == std::string_view::npos) {
    return shortName == pattern;
  }
  return shortName.size() >= pattern.size() - 1 && shortName.starts_with(pattern.substr(0, star)) &&
         shortName.ends_with(pattern.substr(star + 1));
}

void writeHelp(const Interpreter& interpreter, const std::string* pattern, TextOutput& output) {
  Listing listing{output};
  output.write(fmt::format("\t{:<12}{:>7} {:>7} \t{}\n", "CmdName", "MinArgs", "MaxArgs", "Usage"));
  for (std::size_t i = interpreter.tables.size(); i-- > 0;) {
    writeTable(listing, interpreter.tables[i], pattern);
    if (pattern == nullptr && i > 0 && listing.anything) {
      output.put('\n');
    }
  }
  if (!listing.anyCommand) {
    output.write(fmt::format("\"{}\", No match.\n", pattern == nullptr ? "" : *pattern));
  }
}

void showHelp(Interpreter& interpreter, const std::string* pattern) {
  if (wantsPager(interpreter)) {
    if (const std::shared_ptr<std::FILE> pager = platform::openPipe(kPager)) {
      TextOutput output([&pager](std::string_view text) {
        return std::fwrite(text.data(), 1, text.size(), pager.get()) == text.size();
      });
      writeHelp(interpreter, pattern, output);
      return;
    }
  }
  writeHelp(interpreter, pattern, *interpreter.output);
}

}  // namespace vrel
