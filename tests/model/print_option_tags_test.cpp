#include "model/print_option_tags.h"

#include <gtest/gtest.h>

#include <array>

#include "base/words.h"

namespace vrel {
namespace {

constexpr std::string_view kDefaults =
    "<RepeatRowLabels> \"True\" <RepeatColumnLabels> \"True\" <PrintAllPages> \"False\" "
    "<Title> \"\" <Footer> \"\" <PrintCommand> \"\" <PrinterType> 0 <PaperType> 0 "
    "<Landscape> \"False\" <Separators> \"True\" <FitToWidth> \"False\" <WidthPages> 1 "
    "<FitToHeight> \"False\" <HeightPages> 1 <BestOnePageFit> \"False\" <FontSize> 10 "
    "<PageWidthChars> 132 <PageHeightChars> 66 <AddHeader> \"True\" <Borders> \"True\" ";

constexpr std::string_view kAllChanged =
    "<RepeatRowLabels> \"False\" <RepeatColumnLabels> \"False\" <PrintAllPages> \"True\" "
    "<Title> \"The plan\" <Footer> \"Page, last\" <PrintCommand> \"print '%s'\" <PrinterType> 2 "
    "<PaperType> 10 <Landscape> \"True\" <Separators> \"False\" <FitToWidth> \"True\" "
    "<WidthPages> 2 <FitToHeight> \"True\" <HeightPages> 3 <BestOnePageFit> \"True\" "
    "<FontSize> 8 <PageWidthChars> 80 <PageHeightChars> 50 <AddHeader> \"False\" "
    "<Borders> \"False\" ";

PrintOptions read(std::string_view line) {
  return readPrintOptions(splitWords(line).words);
}

std::string written(const PrintOptions& options) {
  std::string line;
  addPrintOptions(line, options);
  return line;
}

TEST(PrintOptionTags, FreshOptionsAreTheDefaults) {
  EXPECT_EQ(written(PrintOptions{}), kDefaults);
}

TEST(PrintOptionTags, EveryOptionIsReadAndWritten) {
  EXPECT_EQ(written(read(kAllChanged)), kAllChanged);
}

TEST(PrintOptionTags, EachTagSetsItsOwnOption) {
  PrintOptions options = read("<PrintAllPages> \"True\"");
  EXPECT_TRUE(options.printAllPages);
  options = read("<PrintCommand> lp");
  EXPECT_EQ(options.printCommand, "lp");
  options = read("<PrinterType> 1");
  EXPECT_EQ(options.printerType, PrinterType::Ascii);
  options = read("<PageHeightChars> 40");
  EXPECT_EQ(options.pageHeightChars, 40);
  EXPECT_EQ(options.pageWidthChars, 132);
  options = read("<Borders> False");
  EXPECT_FALSE(options.borders);
  EXPECT_TRUE(options.addHeader);
}

TEST(PrintOptionTags, EachTextAndNumberHasItsOwnTag) {
  const PrintOptions options = read(
      "<Title> T <Footer> F <PrintCommand> C <PrinterType> 2 <PaperType> 3 <WidthPages> 4 "
      "<HeightPages> 5 <FontSize> 6 <PageWidthChars> 7 <PageHeightChars> 8");
  EXPECT_EQ(options.title, "T");
  EXPECT_EQ(options.footer, "F");
  EXPECT_EQ(options.printCommand, "C");
  EXPECT_EQ(options.printerType, PrinterType::Html);
  EXPECT_EQ(options.paperType, 3);
  EXPECT_EQ(options.widthPages, 4);
  EXPECT_EQ(options.heightPages, 5);
  EXPECT_EQ(options.fontSize, 6);
  EXPECT_EQ(options.pageWidthChars, 7);
  EXPECT_EQ(options.pageHeightChars, 8);
}

struct FlagTag {
  std::string_view tag;
  bool PrintOptions::*flag;
};

constexpr std::array<FlagTag, 10> kFlags = {{
    {"<RepeatRowLabels>", &PrintOptions::repeatRowLabels},
    {"<RepeatColumnLabels>", &PrintOptions::repeatColumnLabels},
    {"<PrintAllPages>", &PrintOptions::printAllPages},
    {"<Landscape>", &PrintOptions::landscape},
    {"<Separators>", &PrintOptions::separators},
    {"<FitToWidth>", &PrintOptions::fitToWidth},
    {"<FitToHeight>", &PrintOptions::fitToHeight},
    {"<BestOnePageFit>", &PrintOptions::bestOnePageFit},
    {"<AddHeader>", &PrintOptions::addHeader},
    {"<Borders>", &PrintOptions::borders},
}};

TEST(PrintOptionTags, EachFlagHasItsOwnTag) {
  for (const FlagTag& on : kFlags) {
    std::string line;
    for (const FlagTag& each : kFlags) {
      line += std::string(each.tag) + (each.tag == on.tag ? " True " : " False ");
    }
    const PrintOptions options = read(line);
    for (const FlagTag& each : kFlags) {
      EXPECT_EQ(options.*each.flag, each.tag == on.tag) << each.tag << " of " << line;
    }
  }
}

TEST(PrintOptionTags, MissingAndEmptyTagsKeepTheDefaults) {
  EXPECT_EQ(written(read("")), kDefaults);
  EXPECT_EQ(written(read("<RepeatRowLabels> \"\" <FontSize> \"\" <PrinterType> \"\" <Title> \"\"")),
            kDefaults);
}

TEST(PrintOptionTags, AFlagIsTrueExactlyWhenItSaysTrue) {
  EXPECT_FALSE(read("<AddHeader> true").addHeader);
  EXPECT_FALSE(read("<Separators> Yes").separators);
  EXPECT_TRUE(read("<Landscape> True").landscape);
}

TEST(PrintOptionTags, NumbersThatNoPrintCouldUseKeepTheDefaults) {
  EXPECT_EQ(written(read("<FontSize> 0 <WidthPages> -1 <HeightPages> many <PageWidthChars> 0 "
                         "<PageHeightChars> -66 <PaperType> -1 <PrinterType> 3")),
            kDefaults);
  EXPECT_EQ(written(read("<PrinterType> -1")), kDefaults);
  EXPECT_EQ(written(read("<PageWidthChars> 1000000 <PageHeightChars> 1000000")), kDefaults);
  EXPECT_EQ(read("<PageWidthChars> 999999").pageWidthChars, 999999);
}

TEST(PrintOptionTags, PaperCodesBeyondTheTableAreKept) {
  EXPECT_EQ(read("<PaperType> 18").paperType, 18);
}

}  // namespace
}  // namespace vrel
