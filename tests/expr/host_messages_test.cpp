#include "expr/host_messages.h"

#include <gtest/gtest.h>

#include <map>

#include "base/platform.h"
#include "support/tables.h"
#include "support/temporary_directory.h"

#ifndef _WIN32
#include <sys/resource.h>

#include <csignal>
#endif

namespace vrel {
namespace {

using test::tableFrom;
using test::TemporaryDirectory;
using Names = std::vector<std::string>;

// Every type that a table file declares, and cells without notes.
constexpr std::string_view kPlan =
    "FieldNames:\tItem\tPeriod\tQty\tActive\t\n"
    "FieldTypes:\tString\tPeriod\tNumber\tBoolean\t\n"
    "PeriodValues:\tP1\tP2\t\n"
    "Big \"nut\"\tP2\t1234.5\tYes\t### n1,n2,'n,3',n4\n"
    "Bolt\tP1\t5\tNo\n"
    "Pin\tP1\t*\tNo\t### ,p2,,p4,surplus\n"
    "Rod\tP2\tundefined\tYes\t### ,,r3\n";

class HostMessages : public testing::Test {
 protected:
  HostMessages() : table_(tableFrom(kPlan)) { InitLog(log_, logs_.path("vrel.log")); }

  // The one file in the message directory, without its name; what it is otherwise.
  std::string message() const {
    const Names names = files();
    return names.size() == 1 ? messages_.read(names[0]) : std::to_string(names.size()) + " files";
  }

  Names files() const {
    Names names;
    for (const auto& entry : std::filesystem::directory_iterator(messages_.path())) {
      names.push_back(entry.path().filename().string());
    }
    return names;
  }

  // The absolute path that the program gives a file in the message directory.
  std::string pathOf(const std::string& name) const {
    return platform::absolutePath(std::filesystem::path(messages_.path(name)).string());
  }

  // The log without its times.
  std::string logged() const {
    constexpr std::size_t kTimeLength = 21;
    const std::string text = logs_.read("vrel.log");
    std::string lines;
    for (std::size_t at = 0; at < text.size();) {
      const std::size_t end = text.find('\n', at);
      lines += text.substr(at + kTimeLength, end + 1 - at - kTimeLength);
      at = end + 1;
    }
    return lines;
  }

  TemporaryDirectory messages_;
  TemporaryDirectory logs_;
  std::string home_ = messages_.path();
  FormatSettings format_;
  EnvironmentLookup environment_ = [this](const char* name) {
    return std::string(name) == "KORVHOME" ? home_ : std::string();
  };
  Log log_;
  std::string announced_;
  // Debug output and announcements, in order.
  std::string told_;
  HostLink link_ = {format_, environment_, log_,
                    [this](std::string_view text) { told_.append(text).append("\n"); },
                    [this](std::string_view line) {
                      announced_ += line;
                      told_ += line;
                    }};
  Table table_;
};

TEST_F(HostMessages, OneCellIsItsNoteAndItsQuotedValue) {
  EXPECT_TRUE(SendUpdateMessageToHostApp(link_, table_, CellRef{0, 2}));
  EXPECT_EQ(message(), "'n,3' \"1234.50000000000\"\n");
}

TEST_F(HostMessages, ValuesOfAllTypesAreWrittenAsShownWithPlainNumbers) {
  const std::vector<CellRef> cells = {{0, 3}, {0, 1}, {0, 0}, {0, 2}};
  EXPECT_TRUE(SendUpdateMessageToHostApp(link_, table_, cells));
  EXPECT_EQ(message(), "n4 \"Yes\"\nn2 \"P2\"\nn1 \"Big \"nut\"\"\n'n,3' \"1234.50000000000\"\n");
}

TEST_F(HostMessages, TheWholeTableIsSentInTableOrderAndWithinATupleInColumnOrder) {
  EXPECT_TRUE(SendUpdateMessageToHostApp(link_, table_));
  EXPECT_EQ(message(),
            "n1 \"Big \"nut\"\"\nn2 \"P2\"\n'n,3' \"1234.50000000000\"\nn4 \"Yes\"\n"
            "p2 \"P1\"\np4 \"No\"\nr3 \"undefined\"\n");
}

TEST_F(HostMessages, AnUnboundedNumberIsWrittenInFull) {
  table_.cell(0, 2) = numberCell(kUnbounded);
  SendUpdateMessageToHostApp(link_, table_, CellRef{0, 2});
  EXPECT_EQ(message(), "'n,3' \"100000000000000000000.00000000000\"\n");
}

TEST_F(HostMessages, AZeroIsWrittenAsANumber) {
  format_.zeroUnderscore = true;
  table_.cell(0, 2) = numberCell(0);
  SendUpdateMessageToHostApp(link_, table_, CellRef{0, 2});
  EXPECT_EQ(message(), "'n,3' \"0.00000000000\"\n");
}

TEST_F(HostMessages, DatesAreWrittenByTheDateFormat) {
  format_.dateFormat = "%Y/%m/%d";
  table_ = tableFrom(
      "FieldNames:\tDay\t\nFieldTypes:\tString\t\nPeriodValues:\tp\t\n8/15/2014\t### d\n");
  settleTypes(table_);
  SendUpdateMessageToHostApp(link_, table_);
  EXPECT_EQ(message(), "d \"2014/08/15\"\n");
}

TEST_F(HostMessages, FailedFormulasAreWrittenAsErrors) {
  table_.field(2).type = FieldType::Expression;
  table_.cell(0, 2) = numberCell(kErrorValue);
  SendUpdateMessageToHostApp(link_, table_, CellRef{0, 2});
  EXPECT_EQ(message(), "'n,3' \"*error*\"\n");
}

TEST_F(HostMessages, CellsWithoutANoteAreLeftOut) {
  const std::vector<CellRef> cells = {{1, 2}, {2, 0}, {2, 1}, {3, 3}};
  EXPECT_TRUE(SendUpdateMessageToHostApp(link_, table_, cells));
  EXPECT_EQ(message(), "p2 \"P1\"\n");
}

TEST_F(HostMessages, AMessageWithoutLinesIsAnnouncedAllTheSame) {
  EXPECT_TRUE(SendUpdateMessageToHostApp(link_, table_, CellRef{1, 2}));
  EXPECT_EQ(message(), "");
  EXPECT_EQ(announced_, "DEI" + files().at(0) + "\n");
  EXPECT_EQ(logged(), "Sending change to message file \"" + pathOf(files()[0]) + "\".\n");
}

TEST_F(HostMessages, TheFileIsADeAndNineDigitsAndIsAnnouncedByItsBaseName) {
  SendUpdateMessageToHostApp(link_, table_);
  const std::string name = files().at(0);
  ASSERT_EQ(name.size(), 11U);
  EXPECT_EQ(name.substr(0, 2), "DE");
  EXPECT_EQ(name.find_first_not_of("0123456789", 2), std::string::npos);
  EXPECT_EQ(announced_, "DEI" + name + "\n");
}

TEST_F(HostMessages, EachMessageHasAFileOfItsOwn) {
  SendUpdateMessageToHostApp(link_, table_, CellRef{0, 1});
  SendUpdateMessageToHostApp(link_, table_, CellRef{0, 3});
  const Names names = files();
  ASSERT_EQ(names.size(), 2U);
  EXPECT_TRUE(announced_ == "DEI" + names[0] + "\nDEI" + names[1] + "\n" ||
              announced_ == "DEI" + names[1] + "\nDEI" + names[0] + "\n");
}

TEST_F(HostMessages, TheFileIsWholeWhenItIsAnnounced) {
  std::string found;
  link_.announce = [&](std::string_view) { found = message(); };
  SendUpdateMessageToHostApp(link_, table_, CellRef{0, 1});
  EXPECT_EQ(found, "n2 \"P2\"\n");
}

TEST_F(HostMessages, TheLogTellsOfTheMessage) {
  SendUpdateMessageToHostApp(link_, table_);
  EXPECT_EQ(logged(), "Sending change to message file \"" + pathOf(files().at(0)) + "\".\n");
}

TEST_F(HostMessages, TheDebugOutputTellsOfTheMessageBeforeItIsAnnounced) {
  SendUpdateMessageToHostApp(link_, table_, CellRef{0, 1});
  const std::string name = files().at(0);
  EXPECT_EQ(told_, "SendUpdateMessageToHostApp( " + pathOf(name) + ", DE )\nDEI" + name + "\n");
}

TEST(AnnounceToHost, WritesBehindWhatTheInterpreterHasWritten) {
  testing::internal::CaptureStdout();
  TextOutput interpreter = standardOutput();
  interpreter.write("before\n");
  announceToHost(interpreter, "DEIDE000000001\n");
  interpreter.write("behind\n");
  interpreter.flush();
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "before\nDEIDE000000001\nbehind\n");
}

TEST_F(HostMessages, AfterwardsThePrecisionIsBackAndNumbersHaveSeparatorsAndStars) {
  format_ = {.precision = 2,
             .thousandsSeparators = false,
             .largeNumberStar = false,
             .zeroUnderscore = true,
             .dateFormat = "%Y"};
  SendUpdateMessageToHostApp(link_, table_, CellRef{0, 2});
  EXPECT_EQ(format_.precision, 2);
  EXPECT_TRUE(format_.thousandsSeparators);
  EXPECT_TRUE(format_.largeNumberStar);
  EXPECT_FALSE(format_.zeroUnderscore);
  EXPECT_EQ(format_.dateFormat, "%Y");
}

TEST_F(HostMessages, AMessageWithoutLinesLeavesTheNumberSettingsAlone) {
  format_.thousandsSeparators = false;
  format_.largeNumberStar = false;
  format_.zeroUnderscore = true;
  SendUpdateMessageToHostApp(link_, table_, CellRef{1, 2});
  SendUpdateMessageToHostApp(link_, tableFrom("FieldNames:\tA\t\nFieldTypes:\tString\t\n"
                                              "PeriodValues:\tp\t\nx\t### ,\n"));
  EXPECT_FALSE(format_.thousandsSeparators);
  EXPECT_FALSE(format_.largeNumberStar);
  EXPECT_TRUE(format_.zeroUnderscore);
}

// The log's line about a file that cannot be written, with its nine digits as "#".
std::string withoutDigits(std::string line, const std::string& directory) {
  const std::size_t at = line.find(directory);
  const std::size_t name = at == std::string::npos ? at : line.find("DE", at + directory.size());
  if (name == std::string::npos) {
    return line;
  }
  return line.replace(name + 2, 9, "#").replace(at, directory.size(), "@");
}

class LostMessages : public HostMessages {
 protected:
  LostMessages() { home_ = messages_.path("none"); }

  std::string told() const {
    const std::string directory = std::filesystem::path(pathOf("none")).string();
    return withoutDigits(logged(), directory + platform::kPathSeparator);
  }
};

TEST_F(LostMessages, OfOneCellAreLoggedWithQuotes) {
  EXPECT_FALSE(SendUpdateMessageToHostApp(link_, table_, CellRef{0, 2}));
  EXPECT_EQ(told(), "Cannot open message file \"@DE#\" - change lost!\n");
  EXPECT_EQ(announced_, "");
}

TEST_F(LostMessages, OfSeveralCellsAreLoggedWithoutQuotes) {
  EXPECT_FALSE(SendUpdateMessageToHostApp(link_, table_, std::vector<CellRef>{{0, 2}}));
  EXPECT_EQ(told(), "Cannot open message file @DE# - change lost!\n");
  EXPECT_EQ(announced_, "");
}

TEST_F(LostMessages, OfTheWholeTableAreLoggedWithoutQuotes) {
  EXPECT_FALSE(SendUpdateMessageToHostApp(link_, table_));
  EXPECT_EQ(told(), "Cannot open message file @DE# - change lost!\n");
  EXPECT_EQ(announced_, "");
}

TEST_F(LostMessages, LeaveTheNumberSettingsAlone) {
  format_.thousandsSeparators = false;
  SendUpdateMessageToHostApp(link_, table_);
  EXPECT_FALSE(format_.thousandsSeparators);
  EXPECT_EQ(format_.precision, 10);
}

#ifndef _WIN32
// No file may grow beyond a limit while the object lives.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit = {bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &before_); }

 private:
  rlimit before_ = {};
};

TEST_F(HostMessages, AMessageThatCannotBeWrittenWholeIsLostAndLeavesNoFile) {
  table_.cell(0, 0) = parseValue(table_.field(0), std::string(100000, 'x'));
  bool sent = true;
  {
    const FileSizeLimit limit(50000);
    sent = SendUpdateMessageToHostApp(link_, table_, CellRef{0, 0});
  }
  EXPECT_FALSE(sent);
  EXPECT_EQ(announced_, "");
  EXPECT_EQ(files(), Names());
  const std::string lines = logged();
  const std::size_t second = lines.find('\n') + 1;
  const std::string directory = pathOf("x").substr(0, pathOf("x").size() - 1);
  EXPECT_EQ(withoutDigits(lines.substr(0, second), directory),
            "Sending change to message file \"@DE#\".\n");
  EXPECT_EQ(withoutDigits(lines.substr(second), directory),
            "Cannot open message file \"@DE#\" - change lost!\n");
}
#endif

TEST_F(HostMessages, ALongMessageIsWhole) {
  std::string file =
      "FieldNames:\tItem\tQty\t\nFieldTypes:\tString\tNumber\t\nPeriodValues:\tp\t\n";
  std::string expected;
  for (int i = 0; i < 50000; ++i) {
    const std::string number = std::to_string(i);
    file += "i" + number + "\t" + number + "\t### ,q" + number + "\n";
    expected += "q" + number + " \"" + number + ".00000000000\"\n";
  }
  table_ = tableFrom(file);
  EXPECT_TRUE(SendUpdateMessageToHostApp(link_, table_));
  EXPECT_TRUE(message() == expected);
}

}  // namespace
}  // namespace vrel
