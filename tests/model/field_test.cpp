#include "model/field.h"

#include <gtest/gtest.h>

namespace vrel {
namespace {

TEST(Field, AFreshFieldHasNoTypeAndIsColouredBlack) {
  const FieldDef field;
  EXPECT_EQ(field.type, FieldType::Unset);
  EXPECT_EQ(field.classification, Classification::Unset);
  EXPECT_EQ(field.highlightExpression.text, "BLACK()");
  EXPECT_FALSE(field.hidden);
}

TEST(Field, TypesHaveTheirCodesAndNames) {
  const std::vector<std::string> names = {"string", "number",     "boolean",
                                          "date",   "expression", "period"};
  for (std::size_t code = 0; code < names.size(); ++code) {
    const auto type = static_cast<FieldType>(code);
    EXPECT_EQ(fieldTypeFromName(names[code]), type);
    EXPECT_EQ(fieldTypeName(type), names[code]);
  }
}

TEST(Field, OtherWordsAreNoTypes) {
  EXPECT_EQ(fieldTypeFromName("String"), FieldType::Unset);
  EXPECT_EQ(fieldTypeFromName("numbers"), FieldType::Unset);
  EXPECT_EQ(fieldTypeFromName(""), FieldType::Unset);
  EXPECT_EQ(fieldTypeName(FieldType::Unset), "");
}

TEST(Field, ClassificationsHaveTheirCodesAndWords) {
  const std::vector<std::string> words = {"key", "dataReadWrite", "dataReadOnly"};
  for (std::size_t code = 0; code < words.size(); ++code) {
    const auto classification = static_cast<Classification>(code);
    EXPECT_EQ(classificationFromWord(words[code]), classification);
    EXPECT_EQ(classificationWord(classification), words[code]);
  }
}

TEST(Field, OtherWordsAreNoClassifications) {
  EXPECT_EQ(classificationFromWord("Key"), Classification::Unset);
  EXPECT_EQ(classificationFromWord("datareadonly"), Classification::Unset);
  EXPECT_EQ(classificationWord(Classification::Unset), "");
}

TEST(PeriodNames, KeepTheirOrderAndFindTheFirstEqualName) {
  PeriodNames names;
  for (const char* name : {"Jan", "Feb", "Jan", "Mar", "Feb", "Apr"}) {
    names.add(name);
  }
  ASSERT_EQ(names.size(), 6);
  EXPECT_EQ(names.name(2), "Jan");
  EXPECT_EQ(names.name(5), "Apr");
  EXPECT_EQ(names.find("Jan"), 0);
  EXPECT_EQ(names.find("Feb"), 1);
  EXPECT_EQ(names.find("Mar"), 3);
  EXPECT_EQ(names.find("Apr"), 5);
}

TEST(PeriodNames, AnUnknownNameIsTheFirstPeriod) {
  PeriodNames names;
  names.add("Jan");
  names.add("Feb");
  EXPECT_EQ(names.find("feb"), 0);
  EXPECT_EQ(names.find("Feb "), 0);
  EXPECT_EQ(names.find(""), 0);
}

TEST(PeriodNames, AreEmptyAfterClear) {
  PeriodNames names;
  names.add("Jan");
  names.add("Feb");
  names.clear();
  EXPECT_EQ(names.size(), 0);
  EXPECT_EQ(names.find("Feb"), 0);
  names.add("Mar");
  names.add("Feb");
  EXPECT_EQ(names.name(0), "Mar");
  EXPECT_EQ(names.find("Feb"), 1);
}

}  // namespace
}  // namespace vrel
