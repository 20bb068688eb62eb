#include "output/print_report.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "support/tables.h"
#include "support/temporary_directory.h"
#include "support/views.h"

namespace vrel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class PrintNotice : public test::SilentNotice {
 public:
  void critical(std::string_view title, std::string_view text) override {
    shown.push_back(std::string(title) + "|" + std::string(text));
  }
  bool progress(std::string_view, std::uint64_t done, std::uint64_t total) override {
    return !cancels || done == total;
  }
  std::string translate(std::string_view text) override { return std::string(text); }

  std::vector<std::string> shown;
  bool cancels = false;
};

class PrintReport : public testing::Test {
 protected:
  test::TemporaryDirectory directory_;
  Table table_ = test::tableOf("Item:String Plant:String Week:String Supply:Number", "",
                               {"Apples North W1 10", "Apples South W1 20", "Pears South W2 3"});
  ReportView view_ = test::viewOf(table_, {0}, {2}, {1}, {3});
  FormatSettings format_;
  EnvironmentLookup environment_ = [this](const char* name) {
    return std::string_view(name) == "TMPDIR" ? directory_.path() : std::string();
  };
  PrintNotice notice_;
  std::vector<std::string> commands_;
  // What the print file held while the command ran.
  std::string handedOver_;
  int result_ = 0;
  std::vector<std::string> rawJobs_;
  std::optional<bool> rawResult_;
  Spooler spooler_ = {
      .printers = [] { return std::vector<platform::Printer>(); },
      .run =
          [this](const std::string& command) {
            commands_.push_back(command);
            handedOver_ = directory_.read(printFile());
            return result_;
          },
      .sendRaw =
          [this](const platform::Printer& printer, std::string_view job, const std::string&) {
            rawJobs_.push_back(printer.name + "|" + std::string(job));
            return rawResult_;
          }};

  void SetUp() override {
    format_.precision = 0;
    view_.userTitle = "Plan";
    view_.printOptions.printerType = PrinterType::Ascii;
    view_.printOptions.pageWidthChars = 30;
  }

  // The one temporary print file's name; empty when there is none.
  std::string printFile() const {
    for (const auto& entry : std::filesystem::directory_iterator(directory_.path())) {
      if (entry.path().filename().string().starts_with("deprn")) {
        return entry.path().filename().string();
      }
    }
    return {};
  }

  PrintResult print(const PrintTarget& target) {
    return printReport({view_, format_, environment_, notice_, spooler_}, target);
  }
  PrintTarget toFile(const std::string& name) const {
    return {.file = directory_.path(name), .printer = {}};
  }
};

const PrintTarget kToPrinter = {.file = {},
                                .printer = platform::Printer{.server = "hall", .name = "big"}};

constexpr const char* kNorth =
    "             Plan     Page 1.1\n"
    "            North\n"
    "\n"
    "Item   | W1\n"
    "-------+---\n"
    "Apples | 10\n";
constexpr const char* kSouth =
    "             Plan     Page 1.1\n"
    "            South\n"
    "\n"
    "Item   | W1 | W2\n"
    "-------+----+---\n"
    "Apples | 20 |\n"
    "Pears  |    |  3\n";

TEST_F(PrintReport, WritesTheCurrentPageToTheUsersFileAndKeepsIt) {
  view_.zIndex = 1;
  EXPECT_EQ(print(toFile("plan.txt")), PrintResult::Printed);
  EXPECT_EQ(directory_.read("plan.txt"), kSouth);
  EXPECT_THAT(commands_, IsEmpty());
  EXPECT_THAT(notice_.shown, IsEmpty());
}

TEST_F(PrintReport, WritesAllZPagesAndLeavesTheCurrentOneAsItWas) {
  view_.zIndex = 1;
  view_.printOptions.printAllPages = true;
  EXPECT_EQ(print(toFile("plan.txt")), PrintResult::Printed);
  EXPECT_EQ(directory_.read("plan.txt"), std::string(kNorth) + "\f" + kSouth);
  EXPECT_EQ(view_.zIndex, 1);
}

TEST_F(PrintReport, HandsATemporaryFileToThePrinterAndRemovesIt) {
  EXPECT_EQ(print(kToPrinter), PrintResult::Printed);
  ASSERT_EQ(commands_.size(), 1U);
  EXPECT_THAT(commands_[0], StartsWith("lpr "));
  EXPECT_THAT(commands_[0], HasSubstr("\"hall\" -P \"big\""));
  EXPECT_THAT(commands_[0], HasSubstr("deprn"));
  EXPECT_EQ(handedOver_, std::string(kNorth) + "\f");
  EXPECT_EQ(printFile(), "");
}

TEST_F(PrintReport, ThatThePrinterRefusesIsToldAndLeavesNoFile) {
  result_ = 1;
  EXPECT_EQ(print(kToPrinter), PrintResult::Failed);
  EXPECT_THAT(notice_.shown,
              ElementsAre("Data Editor|Error attempting to print. Print cancelled."));
  EXPECT_EQ(printFile(), "");
}

TEST_F(PrintReport, FailsWithoutAPrinter) {
  EXPECT_EQ(print({}), PrintResult::Failed);
  EXPECT_THAT(notice_.shown,
              ElementsAre("Data Editor|Error attempting to print. Print cancelled."));
  EXPECT_THAT(commands_, IsEmpty());
  EXPECT_EQ(printFile(), "");
}

TEST_F(PrintReport, RunsThePrintCommandInThePlaceOfTheSpooler) {
  view_.printOptions.printCommand = "show %s";
  EXPECT_EQ(print(kToPrinter), PrintResult::Printed);
  ASSERT_EQ(commands_.size(), 1U);
  EXPECT_THAT(commands_[0], StartsWith("show \""));
  EXPECT_EQ(handedOver_, std::string(kNorth) + "\f");
  EXPECT_EQ(printFile(), "");
}

TEST_F(PrintReport, SendsTextRawWhereTheSystemCanDoThat) {
  rawResult_ = true;
  EXPECT_EQ(print(kToPrinter), PrintResult::Printed);
  EXPECT_THAT(rawJobs_, ElementsAre("big|My Document"));
  EXPECT_THAT(commands_, IsEmpty());
  rawResult_ = false;
  EXPECT_EQ(print(kToPrinter), PrintResult::Failed);
}

TEST_F(PrintReport, ToAFileThatCannotBeOpenedIsToldAndWritesNothing) {
  const std::string path = directory_.path("missing/plan.txt");
  EXPECT_EQ(print({.file = path, .printer = {}}), PrintResult::Failed);
  EXPECT_THAT(notice_.shown, ElementsAre("Data Editor|Unable to print to \"" + path + "\"."));
  EXPECT_FALSE(directory_.has("missing"));
}

#ifndef _WIN32
TEST_F(PrintReport, ToAFullDiskIsTold) {
  EXPECT_EQ(print({.file = "/dev/full", .printer = {}}), PrintResult::Failed);
  EXPECT_THAT(notice_.shown, ElementsAre("Data Editor|Closing file \"/dev/full\" fails."));
}
#endif

TEST_F(PrintReport, ThatIsCancelledLeavesTheOldFileAndSaysNothing) {
  directory_.write("plan.txt", "before");
  notice_.cancels = true;
  EXPECT_EQ(print(toFile("plan.txt")), PrintResult::Cancelled);
  EXPECT_EQ(directory_.read("plan.txt"), "before");
  EXPECT_EQ(print(kToPrinter), PrintResult::Cancelled);
  EXPECT_THAT(commands_, IsEmpty());
  EXPECT_THAT(notice_.shown, IsEmpty());
  EXPECT_EQ(printFile(), "");
}

TEST_F(PrintReport, IsWrittenInTheFormOfItsPrinterType) {
  view_.printOptions.printerType = PrinterType::PostScript;
  print(toFile("plan.ps"));
  EXPECT_THAT(directory_.read("plan.ps"), StartsWith("%!PS-Adobe-\n"));
  view_.printOptions.printerType = PrinterType::Html;
  print(toFile("plan.html"));
  EXPECT_THAT(directory_.read("plan.html"), StartsWith("<!-- Title: Plan -->\n"));
}

TEST(PrintTitle, IsTheOptionsElseTheUsersElseTheSystems) {
  Table table = test::tableOf("Item:String Week:String Supply:Number", "", {"A W1 1"});
  ReportView view = test::viewOf(table, {0}, {1}, {}, {2});
  view.userTitle = "";
  EXPECT_EQ(printTitle(view), "Supply\n(Item  by  Week)");
  view.userTitle = "Plan";
  EXPECT_EQ(printTitle(view), "Plan");
  view.printOptions.title = "Plan on paper";
  EXPECT_EQ(printTitle(view), "Plan on paper");
}

TEST(PrintCommand, HasTheFileInThePlaceOfEveryMarkElseAtItsEnd) {
  EXPECT_EQ(printCommandFor("lp", "/tmp/a b"), "lp \"/tmp/a b\"");
  EXPECT_EQ(printCommandFor("cat %s > %s.copy", "/tmp/f"), "cat \"/tmp/f\" > \"/tmp/f\".copy");
  EXPECT_EQ(printCommandFor("lp %s", "/tmp/%s"), "lp \"/tmp/%s\"");
}

TEST(FirstPrinter, IsThePreferredElseTheFirst) {
  EXPECT_FALSE(firstPrinter({}));
  EXPECT_EQ(firstPrinter({{.server = "", .name = "a"}, {.server = "", .name = "b"}})->name, "a");
  EXPECT_EQ(
      firstPrinter({{.server = "", .name = "a"}, {.server = "", .name = "b", .isDefault = true}})
          ->name,
      "b");
}

}  // namespace
}  // namespace vrel
