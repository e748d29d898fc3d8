#include "toolkit/normalise.h"

#include <gtest/gtest.h>

#include "runtime/error.h"
#include "runtime/utf8.h"
#include "toolkit/chars.h"

namespace lp {
namespace {

TEST(NormaliseExpression, RewritesBoardNotationRowByRow) {
  struct Row {
    const char16_t* input;
    const char16_t* output;
  } rows[] = {
      {u"2x+1", u"2*x+1"},
      {u"sin2x", u"sin(2*x)"},
      {u"sin2xcos3x", u"sin(2*x)*cos(3*x)"},
      {u"sinx+cosx", u"sin(x)+cos(x)"},
      {u"sinxcosx", u"sin(x)*cos(x)"},
      {u"3sinx", u"3*sin(x)"},
      {u"sinx^2", u"sin(x^2)"},
      {u"g2", u"sqr(2)"},
      {u"G(x+1)", u"sqr(x+1)"},
      {u"sqrt(x)", u"sqr(x)"},
      {u"lnx", u"log(x)"},
      {u"log2", u"log(2)"},
      {u"2pi", u"2*3.14159"},
      {u"pi/2", u"3.14159/2"},
      {u"e^x", u"2.71828^x"},
      {u"2(x+1)", u"2*(x+1)"},
      {u"(x+1)(x-1)", u"(x+1)*(x-1)"},
      {u"1/2x", u"1/2*x"},
      {u"xx", u"x*x"},
      {u"(1+x", u"(1+x)"},
      {u"((1+x", u"((1+x)"},
      {u"x2", u"x2"},
      {u"[x+1]*2", u"(x+1]*2"},
      {u"2 x", u"2x"},
      {u"sin x", u"sinx"},
      {u"ex", u"2.71828(x)"},
      {u"exp(x)", u"2.71828(x)*p(x)"},
      {u"sgn(x)", u"ssqrn(x)"},
      {u"x ", u"x "},
      {u"", u""},
      {u"{x}", u"(x}"},
      {u"2x中", u"2*x中"},
  };
  for (const Row& r : rows)
    EXPECT_EQ(ToUtf8(NormaliseExpression(r.input)), ToUtf8(r.output)) << ToUtf8(r.input);
}

TEST(CharacterTests, LookAtAsciiOnly) {
  EXPECT_TRUE(IsDigitChar(u"7a"));
  EXPECT_FALSE(IsDigitChar(u"７"));
  EXPECT_TRUE(IsLetterChar(u"Q"));
  EXPECT_FALSE(IsLetterChar(u"中"));
  EXPECT_THROW(IsDigitChar(u""), RuntimeError);
  EXPECT_TRUE(IsOperatorChar(u"/"));
  EXPECT_FALSE(IsOperatorChar(u"^"));
  EXPECT_FALSE(IsOperatorChar(u"+-"));
  EXPECT_TRUE(IsBracketChar(u"}"));
  EXPECT_FALSE(IsBracketChar(u"<"));
  EXPECT_EQ(CountOf(u"aaa", u"aa"), 2);
  EXPECT_EQ(CountOf(u"a", u"aa"), 0);
  EXPECT_EQ(CountOpenBrackets(u"{[(x"), 3);
  EXPECT_EQ(CountCloseBrackets(u"x)]"), 2);
}

TEST(HasFormulaSymbols, TellsNumbersFromExpressions) {
  EXPECT_FALSE(HasFormulaSymbols(u"1.5"));
  EXPECT_TRUE(HasFormulaSymbols(u"3/4"));
  EXPECT_TRUE(HasFormulaSymbols(u"G2"));
  EXPECT_TRUE(HasFormulaSymbols(u"2PI"));
  EXPECT_TRUE(HasFormulaSymbols(u"@p"));
  EXPECT_FALSE(HasFormulaSymbols(u"-12"));
}

}  // namespace
}  // namespace lp
