// The worked examples of the notation, through the public generators.
#include <gtest/gtest.h>

#include "formula/generators.h"
#include "formula/scanner.h"
#include "runtime/recording_prompt.h"
#include "runtime/utf8.h"

namespace lp {
namespace {

using namespace std::chrono_literals;

struct Row {
  const char* name;
  const char16_t* input;
  const char16_t* expected;
  FormulaSettings settings = {};
};

constexpr FormulaSettings kFS{true, false};
constexpr FormulaSettings kPLZH{false, true};

std::string Show(const std::u16string& s) {
  return ToUtf8(s);
}

TEST(FormulaToEq, Examples) {
  const Row rows[] = {
      {"BothPowersAtOnce", u"x^2+y^2", u"x\\S(2)+y\\S(2)"},
      {"LgKeepsG", u"lg2", u"lg2"},
      {"LogKeepsG", u"log2", u"log2"},
      {"GAtStartIsRoot", u"g2", u"\\R(,2)"},
      {"RootInBrackets", u"g(2)", u"\\R(,2)"},
      {"RootWithIndexKeepsRest", u"g(3,x)+1", u"\\R(\\S\\DO(3),x)+1"},
      {"SqrWithIndexDropsRest", u"sqr(3,x)+1", u"\\R(\\S\\DO(3),x)"},
      {"SqrtIsSqr", u"sqrt(x)", u"\\R(,x)"},
      {"GreekRadicand", u"g@a", u"\\R(,@a)"},
      {"Fraction", u"(a+b)/(c+d)", u"\\F(a+b,c+d)"},
      {"FractionSwapped", u"(a+b)/(c+d)", u"\\F(c+d,a+b)", kFS},
      {"NumeratorIsLastRun", u"3x/2", u"3\\F(x,2)"},
      {"NumberNumerator", u"12/5", u"\\F(12,5)"},
      {"GroupThenSign", u"(a)+(b)/c", u"(a)+\\F(b,c)"},
      {"FractionOverPower", u"x^2/2", u"\\F(x\\S(2),2)"},
      {"Power", u"x^2", u"x\\S(2)"},
      {"PowerGroup", u"x^(n+1)", u"x\\S\\UP6(n+1)"},
      {"PowerFraction", u"x^(1/2)", u"x\\S\\UP8(\\F(1,2))"},
      {"ShortPowerOneChar", u"x^12", u"x\\S(1)2"},
      {"SubscriptDigits", u"a_12", u"a\\S\\DO(12)"},
      {"SubscriptLetter", u"a_n", u"a\\S\\DO(n)"},
      {"Permutation", u"A(5,3)", u"A\\o(\\S\\UP5(5),\\S\\DO3(3))"},
      {"PermutationSwapped", u"A(5,3)", u"A\\o(\\S\\UP5(3),\\S\\DO3(5))", kPLZH},
      {"Combination", u"C(n,m)", u"C\\o(\\S\\UP5(n),\\S\\DO3(m))"},
      {"Vector", u"xl(AB)", u"\\o\\ac(\\S\\UP7(→),AB)"},
      {"Arc", u"hu(A)", u"\\o\\ac(\\S\\UP7(⌒),A)"},
      {"ShortOverline", u"abar", u"\\o\\ac(\\S\\UP7(-),a)"},
      {"BoxOverline", u"(ab)bar", u"\\x\\to(ab)"},
      {"System", u"fcz(x+y=1,x-y=3)", u"\\B\\lc\\{(\\a\\al(x+y=1,x-y=3))"},
      {"SystemWideComma", u"fcz(x+y=1，x-y=3)", u"\\B\\lc\\{(\\a\\al(x+y=1,x-y=3))"},
      {"Pi", u"2pi", u"2@p"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Show(FormulaToEq(row.input, row.settings, DriverControl::WithTimeout(2s))),
              Show(row.expected))
        << row.name;
  }
}

TEST(FormulaToLatex, Examples) {
  const Row rows[] = {
      {"Fraction", u"(a+b)/(c+d)", u"\\frac{a+b}{c+d}"},
      {"FractionSwapped", u"(a+b)/(c+d)", u"\\frac{c+d}{a+b}", kFS},
      {"OneDigitEachSide", u"12/5", u"1\\frac{2}{5}"},
      {"RootWithIndex", u"g(3,x)+1", u"\\sqrt [3]{x}+1"},
      {"SqrKeepsRest", u"sqr(3,x)+1", u"\\sqrt [3]{x}+1"},
      {"SqrtIsRootOfT", u"sqrt(x)", u"\\sqrt{t}(x)"},
      {"ShortRoot", u"g2/3", u"\\frac{\\sqrt{2}}{3}"},
      {"Permutation", u"A(5,3)", u"A^{5}_{3}"},
      {"PermutationSwapped", u"A(5,3)", u"A^{3}_{5}", kPLZH},
      {"Greek", u"@a+@b", u" \\alpha + \\beta "},
      {"OddGreekRow", u"@F@v@O", u" \\vartheta  \\varpi  {\\mathrm O} "},
      {"Pi", u"pi", u" \\pi "},
      {"GreaterEqual", u"a>=b", u"a \\ge b"},
      {"NotEqual", u"a<>b", u"a \\ne b"},
      {"PlusMinus", u"a+-b-+c", u"a \\pm b \\mp c"},
      {"Power", u"x^2", u"x^2"},
      {"PowerGroup", u"x^(n+1)", u"x^{n+1}"},
      {"SubscriptOneChar", u"a_12", u"a_12"},
      {"Vector", u"xl(AB)", u"\\vec{AB}"},
      {"Overline", u"abar+(ab)bar", u"\\overline{a}+\\overline{ab}"},
      {"System", u"fcz(x+y=1,x-y=3)",
       u"\\left\\{ \\begin{align} x+y=1 \\\\ x-y=3 \\\\ \\end{align}\\right."},
      {"GreekKeyIsBrace", u"1/@a", u"\\frac{1}{`a"},
      {"TenthMarkHitByFirst", u"g1g2g3g4g5g6g7g8g9g(10)",
       u"\\sqrt{1}\\sqrt{2}\\sqrt{3}\\sqrt{4}\\sqrt{5}\\sqrt{6}\\sqrt{7}\\sqrt{8}\\sqrt{9}"
       u"\\sqrt0{10}"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Show(FormulaToFinishedLatex(row.input, row.settings, DriverControl::WithTimeout(2s))),
              Show(row.expected))
        << row.name;
  }
}

TEST(FormulaDriver, NeverEndingInputsStopAtTheDeadlineOrOnCancel) {
  const FormulaSettings none;
  for (const char16_t* input : {u"hu(AB)", u"xl", u"fcz x"}) {
    try {
      FormulaToFinishedLatex(input, none, DriverControl::WithTimeout(20ms));
      ADD_FAILURE() << Show(input);
    } catch (const FormulaAborted& e) {
      EXPECT_EQ(e.reason(), FormulaAborted::kTimeout);
    }
  }
  DriverControl cancelling;
  int pumps = 0;
  cancelling.pump = [&] { return ++pumps < 5; };
  try {
    FormulaToEq(u"xl+1", none, cancelling);
    ADD_FAILURE();
  } catch (const FormulaAborted& e) {
    EXPECT_EQ(e.reason(), FormulaAborted::kCancelled);
  }
}

TEST(Scanner, BracketsAndOperands) {
  EXPECT_TRUE(BracketsBalanced(u")("));
  EXPECT_TRUE(BracketsBalanced(u"([)]"));
  EXPECT_FALSE(BracketsBalanced(u"(a"));
  EXPECT_EQ(Show(MatchBracket(u"(a[b)c]", 1)), "(a[b)c]");
  EXPECT_EQ(Show(MatchBracket(u"x(a)(b)", 7)), "(b)");
  EXPECT_EQ(Show(MatchBracket(u"(a", 1)), "(a");
  RecordingPrompt prompt;
  EXPECT_EQ(MatchBracket(u"abc", 2, &prompt), u"");
  ASSERT_EQ(prompt.Shown().size(), 1u);
  EXPECT_EQ(Show(LeftOperand(u"3x", 2)), "x");
  EXPECT_EQ(Show(LeftOperand(u"2@a", 3)), "@a");
  EXPECT_EQ(Show(RightOperand(u"\\R(,2)+1", 1)), "\\R(,2)");
  // After a sign a run of two counts as three and steps over the "+".
  EXPECT_EQ(Show(RightOperand(u"*ab+1-c", 1)), "*ab+1");
  EXPECT_EQ(Show(PrevGroup(u"MyRStr3{x}", 10)), "MyRStr3{x}");
  EXPECT_EQ(Show(PrevGroup(u"1@a", 3)), "@a");
  EXPECT_EQ(Show(StripOuterBrackets(u"(a)+(b)")), "a)+(b");
}

}  // namespace
}  // namespace lp
