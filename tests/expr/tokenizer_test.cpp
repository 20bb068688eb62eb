#include "expr/tokenizer.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace vrel {
namespace {

constexpr TokenizerOptions kPlain = {.fieldOffsets = false};
constexpr TokenizerOptions kVariable = {.variable = true};

// A token as one word: numbers bare, names in square brackets, symbols and operators as they are.
std::string wordOf(const Token& token) {
  switch (token.kind) {
    case TokenKind::Number:
      return fmt::format("{}", token.number);
    case TokenKind::Name:
      return fmt::format("[{}]", token.text);
    case TokenKind::Symbol:
      return fmt::format("{{{}}}", token.text);
    case TokenKind::Operator:
      return std::string(1, static_cast<char>(token.operation));
    case TokenKind::Variable:
      return "x";
    case TokenKind::Open:
      return "(";
    case TokenKind::Close:
      return ")";
    case TokenKind::Comma:
      return ",";
    case TokenKind::Error:
      return fmt::format("error@{}", token.start);
    case TokenKind::End:
      break;
  }
  return "end";
}

// All tokens up to the end or the first error.
std::string tokensOf(std::string_view text, TokenizerOptions options = {}) {
  Tokenizer tokenizer(text, options);
  std::string words;
  for (;;) {
    const Token token = tokenizer.next();
    if (token.kind == TokenKind::End) {
      return words;
    }
    words += (words.empty() ? "" : " ") + wordOf(token);
    if (token.kind == TokenKind::Error) {
      return words;
    }
  }
}

std::vector<std::size_t> startsOf(std::string_view text) {
  Tokenizer tokenizer(text);
  std::vector<std::size_t> starts;
  for (Token token = tokenizer.next(); token.kind != TokenKind::End; token = tokenizer.next()) {
    starts.push_back(token.start);
  }
  return starts;
}

TEST(Tokenizer, FindsNothingInATextOfBlanks) {
  EXPECT_EQ(tokensOf(""), "");
  EXPECT_EQ(tokensOf(" \t\n\v\f\r"), "");
}

TEST(Tokenizer, RepeatsTheEndToken) {
  Tokenizer tokenizer("1");
  tokenizer.next();
  EXPECT_EQ(tokenizer.next().kind, TokenKind::End);
  EXPECT_EQ(tokenizer.next().kind, TokenKind::End);
}

TEST(Tokenizer, ReadsOperatorsAndBrackets) {
  EXPECT_EQ(tokensOf("+-*/%=()"
                     ","),
            "+ - * / % = ( ) ,");
  EXPECT_EQ(tokensOf("< <= <> > >= !="), "< L N > G N");
}

TEST(Tokenizer, ReadsUnequalInTwoSpellingsAsTheSame) {
  EXPECT_EQ(tokensOf("<>"), tokensOf("!="));
}

TEST(Tokenizer, KnowsNoDoubleEqualsSign) {
  EXPECT_EQ(tokensOf("=="), "= =");
  EXPECT_EQ(tokensOf("=<"), "= <");
  EXPECT_EQ(tokensOf("=>"), "= >");
  EXPECT_EQ(tokensOf("< ="), "< =");
  EXPECT_EQ(tokensOf("><"), "> <");
}

TEST(Tokenizer, RefusesAnExclamationMarkAlone) {
  EXPECT_EQ(tokensOf("a !"), "[a] error@2");
  EXPECT_EQ(tokensOf("! ="), "error@0");
}

TEST(Tokenizer, NamesTheStartOfEachToken) {
  EXPECT_EQ(startsOf(" Demand:-1 <=  'a b' (#x)"),
            (std::vector<std::size_t>{1, 11, 15, 21, 22, 24}));
}

TEST(Tokenizer, TellsHowFarItRead) {
  Tokenizer tokenizer("ab + 1");
  tokenizer.next();
  EXPECT_EQ(tokenizer.position(), 2U);
  tokenizer.next();
  EXPECT_EQ(tokenizer.position(), 4U);
}

TEST(Tokenizer, ReadsNumbers) {
  EXPECT_EQ(tokensOf("0 12 1.5 .5 5."), "0 12 1.5 0.5 5");
  EXPECT_EQ(tokensOf("1e3 1E3 1e+3 25e-1 .5e1 5.e1"), "1000 1000 1000 2.5 5 50");
}

TEST(Tokenizer, ReadsAnExponentWithoutDigitsAsNone) {
  EXPECT_EQ(tokensOf("1e"), "1");
  EXPECT_EQ(tokensOf("1e+"), "1");
  EXPECT_EQ(tokensOf("1E-)"), "1 )");
  EXPECT_EQ(tokensOf("2ex"), "2 [x]");
}

TEST(Tokenizer, ReadsALonePointAsZero) {
  EXPECT_EQ(tokensOf("."), "0");
  EXPECT_EQ(tokensOf(".e5"), "0");
}

TEST(Tokenizer, RefusesASecondPointWhereItStands) {
  EXPECT_EQ(tokensOf("1.2.3"), "error@3");
  EXPECT_EQ(tokensOf(" 1..2"), "error@3");
  EXPECT_EQ(tokensOf(".."), "error@1");
}

TEST(Tokenizer, TakesAPointBehindAnExponentForANumberOfItsOwn) {
  EXPECT_EQ(tokensOf("1e5.5"), "100000 0.5");
}

TEST(Tokenizer, ReadsNumbersBeyondTheRangeAsInfiniteOrZero) {
  EXPECT_EQ(tokensOf("1e400 1e-400 0e400"), "inf 0 0");
  EXPECT_EQ(tokensOf("1." + std::string(400, '0') + "e-400"), "0");
  EXPECT_EQ(tokensOf(std::string(400, '9')), "inf");
  EXPECT_EQ(tokensOf("4.9406564584124654e-324"), "5e-324");
}

TEST(Tokenizer, BeginsANewTokenWithALetterBehindANumber) {
  EXPECT_EQ(tokensOf("12abc"), "12 [abc]");
  EXPECT_EQ(tokensOf("0x10"), "0 [x10]");
}

TEST(Tokenizer, ReadsNoNumberFromWordsThatCLibrariesKnow) {
  EXPECT_EQ(tokensOf("inf nan"), "[inf] [nan]");
}

TEST(Tokenizer, EndsWordsAtEachDelimiter) {
  EXPECT_EQ(tokensOf("a-a+a/a*a!=a<a>a=a(a)a,a a\ta"),
            "[a] - [a] + [a] / [a] * [a] N [a] < [a] > [a] = [a] ( [a] ) [a] , [a] [a] [a]");
}

TEST(Tokenizer, KeepsAPercentSignInAWord) {
  EXPECT_EQ(tokensOf("a%b"), "[a%b]");
  EXPECT_EQ(tokensOf("a % b"), "[a] % [b]");
  EXPECT_EQ(tokensOf("a %b"), "[a] % [b]");
  EXPECT_EQ(tokensOf("5%b"), "5 % [b]");
}

TEST(Tokenizer, KeepsALineFeedInAWordButSkipsItBefore) {
  EXPECT_EQ(tokensOf("a\nb"), "[a\nb]");
  EXPECT_EQ(tokensOf("\na + \nb"), "[a] + [b]");
}

TEST(Tokenizer, KeepsQuotesPointsAndBytesBeyondAsciiInAWord) {
  EXPECT_EQ(tokensOf("it's a\"b"), "[it's] [a\"b]");
  EXPECT_EQ(tokensOf("a.b_2#c"), "[a.b_2#c]");
  EXPECT_EQ(tokensOf("St\xc3\xbc"
                     "ck \xa0g"),
            "[St\xc3\xbc"
            "ck] [\xa0g]");
}

TEST(Tokenizer, KnowsTheLogicalWordsInCapitalsOnly) {
  EXPECT_EQ(tokensOf("AND OR XOR"), "& | ^");
  EXPECT_EQ(tokensOf("And or xor ANDY"), "[And] [or] [xor] [ANDY]");
  EXPECT_EQ(tokensOf("'AND' \"OR\" XOR:"), "[AND] [OR] [XOR:]");
  EXPECT_EQ(tokensOf("NOT"), "[NOT]");
}

TEST(Tokenizer, TakesWordsThatBeginWithANumberSignForSymbols) {
  EXPECT_EQ(tokensOf("#Demand '#Net Demand' #"), "{#Demand} {#Net Demand} {#}");
}

TEST(Tokenizer, TakesQuotedTextsForNames) {
  EXPECT_EQ(tokensOf("'Net Demand' \"a-b(c)\" ''"), "[Net Demand] [a-b(c)] []");
  EXPECT_EQ(tokensOf("'a\"b' \"it's\""), "[a\"b] [it's]");
  EXPECT_EQ(tokensOf("'a''b'"), "[a] [b]");
  EXPECT_EQ(tokensOf("'a\nb'"), "[a\nb]");
}

TEST(Tokenizer, RefusesAQuoteThatIsNotClosed) {
  EXPECT_EQ(tokensOf("a 'b"), "[a] error@2");
  EXPECT_EQ(tokensOf("'b\""), "error@0");
  EXPECT_EQ(tokensOf("\""), "error@0");
}

TEST(Tokenizer, ReadsOffsetsAsPartsOfNames) {
  EXPECT_EQ(tokensOf("a:1 a:-1 a:+1 a:#2 a:#-2"), "[a:1] [a:-1] [a:+1] [a:#2] [a:#-2]");
  EXPECT_EQ(tokensOf("a:-1+b"), "[a:-1] + [b]");
  EXPECT_EQ(tokensOf("a:12-1"), "[a:12] - 1");
}

TEST(Tokenizer, LetsDigitsOfAnOffsetBeMissing) {
  EXPECT_EQ(tokensOf("a: a:# a:- a:#+"), "[a:] [a:#] [a:-] [a:#+]");
  EXPECT_EQ(tokensOf("a:(2)"), "[a:] ( 2 )");
}

TEST(Tokenizer, AllowsNoBlanksInAnOffset) {
  EXPECT_EQ(tokensOf("a: 1"), "[a:] 1");
  EXPECT_EQ(tokensOf("a:# 1"), "[a:#] 1");
  EXPECT_EQ(tokensOf("a:- 1"), "[a:-] 1");
}

TEST(Tokenizer, EndsAnOffsetWithItsDigits) {
  EXPECT_EQ(tokensOf("a:1b"), "[a:1] [b]");
  EXPECT_EQ(tokensOf("a:1:2"), "[a:1] [:2]");
  EXPECT_EQ(tokensOf("a:--1"), "[a:-] - 1");
  EXPECT_EQ(tokensOf("a:1.5"), "[a:1] 0.5");
}

TEST(Tokenizer, ReadsOffsetsWithinQuotes) {
  EXPECT_EQ(tokensOf("'Net Demand:-1' \"Net Demand:#2\" 'a:'"),
            "[Net Demand:-1] [Net Demand:#2] [a:]");
  EXPECT_EQ(tokensOf("'#a:1'"), "{#a:1}");
}

TEST(Tokenizer, WantsTheQuoteRightBehindAnOffset) {
  EXPECT_EQ(tokensOf("'a:1 '"), "error@0");
  EXPECT_EQ(tokensOf("'a: 1'"), "error@0");
  EXPECT_EQ(tokensOf("'a:b'"), "error@0");
  EXPECT_EQ(tokensOf("'a:1"), "error@0");
}

TEST(Tokenizer, DoesNotJoinAnOffsetBehindTheQuotesToTheName) {
  EXPECT_EQ(tokensOf("'Net Demand':#2"), "[Net Demand] [:#2]");
}

TEST(Tokenizer, ReadsColonsAsLettersWithoutFieldOffsets) {
  EXPECT_EQ(tokensOf("a:-1 'b:c d' #e:f", kPlain), "[a:] - 1 [b:c d] {#e:f}");
}

TEST(Tokenizer, ReadsTheVariableOnlyWhenToldTo) {
  EXPECT_EQ(tokensOf("x xy"), "[x] [xy]");
  EXPECT_EQ(tokensOf("x xy X 'x' ax", kVariable), "x x [y] [X] [x] [ax]");
  EXPECT_EQ(tokensOf("x:1", kVariable), "x [:1]");
  EXPECT_EQ(tokensOf("x xy", {.fieldOffsets = false, .variable = true}), "[x] [xy]");
}

TEST(Tokenizer, CutsAWordAfter128Bytes) {
  const std::string longest(128, 'a');
  EXPECT_EQ(tokensOf(longest), "[" + longest + "]");
  EXPECT_EQ(tokensOf(longest + "bc"), "[" + longest + "] [bc]");
  EXPECT_EQ(tokensOf("#" + longest), "{#" + longest.substr(1) + "} [a]");
}

TEST(Tokenizer, DoesNotCountTheOffsetOfAWord) {
  const std::string longest(128, 'a');
  EXPECT_EQ(tokensOf(longest + ":-12"), "[" + longest + ":-12]");
}

TEST(Tokenizer, RefusesAQuotedNameOfMoreThan128Bytes) {
  const std::string longest(128, 'a');
  EXPECT_EQ(tokensOf("'" + longest + "'"), "[" + longest + "]");
  EXPECT_EQ(tokensOf("1 '" + longest + "b'"), "1 error@2");
  EXPECT_EQ(tokensOf("'" + longest + ":-12'"), "[" + longest + ":-12]");
}

}  // namespace
}  // namespace vrel
