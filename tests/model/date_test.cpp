#include "model/date.h"

#include <gtest/gtest.h>

#include <array>
#include <ctime>
#include <limits>

#include "base/platform.h"

namespace vrel {
namespace {

/// A local time read back through the default pattern.
std::string shown(const ParsedDate& date) {
  std::string text;
  appendDate(text, date.seconds, "", Quoting::None);
  return date.accepted ? text : "refused";
}

std::string readAs(std::string_view text) {
  return shown(parseDate(text));
}

std::int64_t localSeconds(int year, int month, int day, int hour = 0, int minute = 0,
                          int second = 0) {
  std::tm local{};
  local.tm_year = year - 1900;
  local.tm_mon = month - 1;
  local.tm_mday = day;
  local.tm_hour = hour;
  local.tm_min = minute;
  local.tm_sec = second;
  return platform::secondsFromLocalTime(local);
}

std::string formatted(std::int64_t seconds, const std::string& pattern,
                      Quoting quoting = Quoting::None) {
  std::string text;
  appendDate(text, seconds, pattern, quoting);
  return text;
}

TEST(ParseDate, ANumericDateIsMonthDayYear) {
  EXPECT_EQ(readAs("8/5/2014"), "2014-08-05 00:00:00");
  EXPECT_EQ(readAs("12-31-2014"), "2014-12-31 00:00:00");
  EXPECT_EQ(parseDate("8/5/2014").seconds, localSeconds(2014, 8, 5));
}

TEST(ParseDate, AnyOfTheSeparatorsSeparatesAndRunsCountOnce) {
  EXPECT_EQ(readAs("8,5 2014"), "2014-08-05 00:00:00");
  EXPECT_EQ(readAs(" 08 - 05 : 2014 "), "2014-08-05 00:00:00");
  EXPECT_EQ(readAs("8.5.2014"), "refused");
  EXPECT_EQ(readAs("8;5;2014"), "refused");
}

TEST(ParseDate, ATimeOfDayMayFollow) {
  EXPECT_EQ(readAs("8/5/2014 13:07:59"), "2014-08-05 13:07:59");
  EXPECT_EQ(readAs("8/5/2014 13:07"), "2014-08-05 13:07:00");
  EXPECT_EQ(readAs("8/5/2014 13"), "2014-08-05 13:00:00");
  EXPECT_EQ(readAs("5-Aug-2014 13:07:59"), "2014-08-05 13:07:59");
  EXPECT_EQ(readAs("5-Aug-2014 13:07"), "2014-08-05 13:07:00");
  EXPECT_EQ(readAs("5-Aug-2014 13"), "2014-08-05 13:00:00");
}

TEST(ParseDate, ATimeOutOfRangeIsRefused) {
  EXPECT_EQ(readAs("8/5/2014 23:59:59"), "2014-08-05 23:59:59");
  EXPECT_EQ(readAs("8/5/2014 24:00:00"), "refused");
  EXPECT_EQ(readAs("8/5/2014 12:60:00"), "refused");
  EXPECT_EQ(readAs("8/5/2014 12:00:60"), "refused");
  EXPECT_EQ(readAs("5 Aug 2014 24:00"), "refused");
  EXPECT_EQ(readAs("8/5/2014 1:2:3:4"), "refused");
  EXPECT_EQ(readAs("5 Aug 2014 1:2:3:4"), "refused");
}

TEST(ParseDate, AMonthNameStandsAnywhereAndTheDayBeforeTheYear) {
  EXPECT_EQ(readAs("5-Aug-2014"), "2014-08-05 00:00:00");
  EXPECT_EQ(readAs("Aug 5, 2014"), "2014-08-05 00:00:00");
  EXPECT_EQ(readAs("5 2014 aug"), "2014-08-05 00:00:00");
  EXPECT_EQ(readAs("5AUG2014"), "2014-08-05 00:00:00");
}

TEST(ParseDate, EveryMonthAbbreviationIsKnown) {
  const std::array<std::string, 12> names = {"jan", "FEB", "Mar", "aPr", "may", "Jun",
                                             "jul", "aug", "sep", "oct", "nov", "dec"};
  for (std::size_t month = 0; month < names.size(); ++month) {
    EXPECT_EQ(parseDate("3-" + names[month] + "-2015").seconds,
              localSeconds(2015, static_cast<int>(month) + 1, 3));
  }
}

TEST(ParseDate, LettersMayFollowTheAbbreviationOnly) {
  EXPECT_EQ(readAs("5-August-2014"), "2014-08-05 00:00:00");
  EXPECT_EQ(readAs("5-Aug\xc3\xa9-2014"), "2014-08-05 00:00:00");
  EXPECT_EQ(readAs("Tue 5-Aug-2014"), "refused");
  EXPECT_EQ(readAs("5-Aug-2014 x"), "refused");
  EXPECT_EQ(readAs("5th Aug 2014"), "refused");
}

TEST(ParseDate, TheEarliestMonthFoundInTheTextCounts) {
  EXPECT_EQ(readAs("5 jan dec 2014"), "refused");
  EXPECT_EQ(readAs("5 marjan 2014"), "refused");
  EXPECT_EQ(readAs("5 janmar 2014"), "2014-01-05 00:00:00");
}

TEST(ParseDate, TwoDigitYearsBelow70LieInThe21stCentury) {
  EXPECT_EQ(readAs("1/2/69"), "2069-01-02 00:00:00");
  EXPECT_EQ(readAs("1/2/70"), "1970-01-02 00:00:00");
  EXPECT_EQ(readAs("1/2/99"), "1999-01-02 00:00:00");
  EXPECT_EQ(readAs("1/2/0"), "2000-01-02 00:00:00");
  EXPECT_EQ(readAs("2-Jan-69"), "2069-01-02 00:00:00");
  EXPECT_EQ(readAs("2-Jan-70"), "1970-01-02 00:00:00");
}

TEST(ParseDate, YearsUpTo1899Count1900More) {
  EXPECT_EQ(readAs("1/2/1850"), "3750-01-02 00:00:00");
  EXPECT_EQ(readAs("1/2/1899"), "3799-01-02 00:00:00");
  EXPECT_EQ(readAs("2-Jan-1899"), "3799-01-02 00:00:00");
}

TEST(ParseDate, TheReaderWithMonthNamesCounts1900AsShort) {
  EXPECT_EQ(readAs("2-Jan-1900"), "3800-01-02 00:00:00");
  EXPECT_EQ(readAs("1/2/1900"), "1900-01-02 00:00:00");
  EXPECT_EQ(readAs("2-Jan-1901"), "1901-01-02 00:00:00");
}

TEST(ParseDate, DaysAndMonthsMustExist) {
  EXPECT_EQ(readAs("13/1/2014"), "refused");
  EXPECT_EQ(readAs("0/1/2014"), "refused");
  EXPECT_EQ(readAs("4/31/2014"), "refused");
  EXPECT_EQ(readAs("4/0/2014"), "refused");
  EXPECT_EQ(readAs("2/29/2014"), "refused");
  EXPECT_EQ(readAs("2/29/2016"), "2016-02-29 00:00:00");
  EXPECT_EQ(readAs("2/29/2100"), "refused");
  EXPECT_EQ(readAs("2/29/2000"), "2000-02-29 00:00:00");
  EXPECT_EQ(readAs("31-Jun-2014"), "refused");
}

TEST(ParseDate, GroupsHaveTheirGreatestLengths) {
  EXPECT_EQ(readAs("001/1/2014"), "refused");
  EXPECT_EQ(readAs("1/001/2014"), "refused");
  EXPECT_EQ(readAs("1/1/02014"), "refused");
  EXPECT_EQ(readAs("1/1/2014 001"), "refused");
  EXPECT_EQ(readAs("005-Aug-2014"), "refused");
  EXPECT_EQ(readAs("5-Aug-99999999999999999999"), "refused");
  EXPECT_EQ(readAs("1/1"), "refused");
  EXPECT_EQ(readAs("5-Aug"), "refused");
  EXPECT_EQ(readAs("2014-08-05"), "refused");
}

TEST(ParseDate, AnUnreadableDateIsTheCurrentTime) {
  for (const char* text : {"", "Item 5", "Marathon", "-", "\xff\xfe"}) {
    const std::int64_t before = platform::currentTime();
    const ParsedDate date = parseDate(text);
    EXPECT_FALSE(date.accepted) << text;
    EXPECT_GE(date.seconds, before);
    EXPECT_LE(date.seconds, platform::currentTime());
  }
}

TEST(AppendDate, WritesLocalTimeByThePattern) {
  const std::int64_t seconds = localSeconds(2014, 8, 5, 13, 7, 9);
  EXPECT_EQ(formatted(seconds, "%d-%b-%Y"), "05-Aug-2014");
  EXPECT_EQ(formatted(seconds, "%H:%M"), "13:07");
}

TEST(AppendDate, AnEmptyPatternStandsForDateAndTime) {
  const std::int64_t seconds = localSeconds(2014, 8, 5, 13, 7, 9);
  EXPECT_EQ(formatted(seconds, ""), "2014-08-05 13:07:09");
  EXPECT_EQ(formatted(seconds, "", Quoting::Quoted), "\"2014-08-05 13:07:09\"");
}

TEST(AppendDate, QuotesStandAroundThePattern) {
  EXPECT_EQ(formatted(localSeconds(2014, 8, 5), "%d-%b-%Y", Quoting::Quoted), "\"05-Aug-2014\"");
}

TEST(AppendDate, ThePatternPercentDIsReplacedWhenUnquotedOnly) {
  const std::int64_t seconds = localSeconds(2014, 8, 5);
  EXPECT_EQ(formatted(seconds, "%D"), "08/05/14");
  // Quoted it reaches the C library, which knows it on some systems only.
  const std::string quoted = "\"%D\"";
  std::array<char, 16> buffer;
  const std::tm local = platform::localTime(seconds);
  const std::size_t length = std::strftime(buffer.data(), buffer.size(), quoted.c_str(), &local);
  EXPECT_EQ(formatted(seconds, "%D", Quoting::Quoted), std::string(buffer.data(), length));
}

TEST(AppendDate, ATextLongerThanTheBufferIsEmpty) {
  const std::int64_t seconds = localSeconds(2014, 8, 5);
  EXPECT_EQ(formatted(seconds, std::string(511, 'x')), std::string(511, 'x'));
  EXPECT_EQ(formatted(seconds, std::string(512, 'x')), "");
  EXPECT_EQ(formatted(seconds, std::string(510, 'x'), Quoting::Quoted), "");
  EXPECT_EQ(formatted(seconds, std::string(1000000, 'x')), "");
}

TEST(AppendDate, OddPatternsDoNoHarm) {
  const std::int64_t seconds = localSeconds(2014, 8, 5);
  EXPECT_EQ(formatted(seconds, "100%%"), "100%");
  for (const char* pattern : {"%", "%Q", "%E", "%O", "%999999999999d", "%-", "a%", "%#", "%E%"}) {
    EXPECT_LE(formatted(seconds, pattern).size(), 512u) << pattern;
    EXPECT_LE(formatted(seconds, pattern, Quoting::Quoted).size(), 512u) << pattern;
  }
}

TEST(AppendDate, TimesOfAllCenturiesAreShown) {
  for (const int year : {1600, 1899, 1969, 1970, 1971, 2037, 2038, 2999, 3000, 3001, 9999}) {
    for (const int month : {1, 7, 12}) {
      const std::int64_t seconds = localSeconds(year, month, 15, 12);
      EXPECT_EQ(formatted(seconds, "%d.%m.%Y %H:%M"), "15." + std::string(month < 10 ? "0" : "") +
                                                          std::to_string(month) + "." +
                                                          std::to_string(year) + " 12:00");
    }
  }
  EXPECT_EQ(localSeconds(3750, 3, 1) - localSeconds(3750, 2, 28), 24 * 60 * 60);
  EXPECT_EQ(localSeconds(1900, 3, 1) - localSeconds(1900, 2, 28), 24 * 60 * 60);
}

TEST(AppendDate, TimesOutsideTheCalendarDoNoHarm) {
  EXPECT_LE(formatted(std::numeric_limits<std::int64_t>::max(), "%Y").size(), 512u);
  EXPECT_LE(formatted(std::numeric_limits<std::int64_t>::min(), "%Y").size(), 512u);
}

}  // namespace
}  // namespace vrel
