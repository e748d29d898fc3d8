#include "toolkit/solve.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <set>

#include "runtime/error.h"
#include "runtime/recording_prompt.h"
#include "runtime/text.h"
#include "runtime/utf8.h"
#include "toolkit/expression.h"

namespace lp {
namespace {

TEST(SolveLinear, AnswerTexts) {
  struct Row {
    const char16_t* equation;
    const char16_t* text;
  } rows[] = {
      {u"2x=3", u"3/2"},
      {u"2x=-3", u"-3 / 2"},
      {u"0x=1", u"K"},
      {u"0x=0", u"R"},
      {u"3x=0", u"0"},
      {u"4x-2=0", u"1/2"},
      {u"-4x=2", u"-1 / 2"},
      {u"x+1=3", u"2"},
      {u"-x=3", u"-3"},
      {u"3x=1.5", u"1 / 2"},
      {u"x/3=1/9", u"333 / 1000"},
      {u"0.5x=-1", u"-2"},
      {u"x/2=-5/8", u"-41 / 4"},
      {u"x/4=0.3125", u"41 / 4"},
  };
  for (const Row& r : rows)
    EXPECT_EQ(ToUtf8(SolveLinear(r.equation).LinearText), ToUtf8(r.text)) << ToUtf8(r.equation);
  LinearSolution s = SolveLinear(u"2x+1=4");
  EXPECT_EQ(s.LinearA, 2.0f);
  EXPECT_EQ(s.LinearB, -3.0);
}

// The answer comes from a = f(1) - f(0) itself; only LinearA holds it as a
// Single, which would round 123456789 to 123456792 and 3.2 to 3.2000000477.
TEST(SolveLinear, ComputesWithTheUnroundedCoefficient) {
  struct Row {
    const char16_t* equation;
    const char16_t* text;
  } rows[] = {
      {u"3.2x-13=6", u"25469 / 500"},
      {u"123456789x=20", u"20/123456789"},
      {u"x/3=100000", u"300000"},
  };
  for (const Row& r : rows)
    EXPECT_EQ(ToUtf8(SolveLinear(r.equation).LinearText), ToUtf8(r.text)) << ToUtf8(r.equation);
  LinearSolution s = SolveLinear(u"123456789x=20");
  EXPECT_EQ(s.a, 123456789.0);
  EXPECT_EQ(s.LinearA, 123456792.0f);
  RecordingPrompt prompt;
  std::optional<InequalitySolution> i = ParseInequality(u"123456789x>-11", prompt);
  ASSERT_TRUE(i);
  EXPECT_EQ(ToUtf8(i->InequalityText), "-11 / 123456789");
  EXPECT_EQ(i->CoefX, 123456789.0);
}

TEST(ParseInequality, BoundsAndOperators) {
  RecordingPrompt prompt;
  struct Row {
    const char16_t* text;
    const char16_t* op;
    const char16_t* resultOp;
    const char16_t* bound;
  } rows[] = {
      {u"-2x>4", u">", u"<", u"-2"},   {u"2x >= 1", u">=", u">=", u"1/2"},
      {u"3x<>6", u"<>", u"<>", u"2"},  {u"-3x<>6", u"<>", u"", u"-2"},
      {u"-x<=-1", u"<=", u">=", u"1"}, {u"0x>-1", u">", u"", u"R"},
      {u"0x>=0", u">=", u"", u"R"},    {u"0x<0", u"<", u"", u"K"},
      {u"0x<1", u"<", u"", u"R"},      {u"0x<>1", u"<>", u"", u""},
  };
  for (const Row& r : rows) {
    std::optional<InequalitySolution> s = ParseInequality(r.text, prompt);
    ASSERT_TRUE(s) << ToUtf8(r.text);
    EXPECT_EQ(s->InequalityOp, r.op);
    EXPECT_EQ(s->InequalityResultOp, r.resultOp) << ToUtf8(r.text);
    EXPECT_EQ(ToUtf8(s->InequalityText), ToUtf8(r.bound)) << ToUtf8(r.text);
  }
  std::optional<InequalitySolution> s = ParseInequality(u" 2x+1 > 5 ", prompt);
  EXPECT_EQ(s->InequalityLeft, u"2x+1");
  EXPECT_EQ(s->InequalityRight, u"5");
  EXPECT_EQ(s->ResultNumber, 2);
  EXPECT_EQ(InequalityOpSymbol(u">="), u"≥");
  EXPECT_EQ(InequalityOpSymbol(u"<>"), u"≠");
  EXPECT_EQ(InequalityOpSymbol(u"="), u"");
  EXPECT_TRUE(prompt.Shown().empty());
  EXPECT_FALSE(ParseInequality(u"2x=4", prompt));
  EXPECT_EQ(prompt.Shown().at(0).prompt, u"您输入的不是一个不等式,请检查后重新输入！");
}

TEST(SolveQuadratic, RootTexts) {
  RecordingPrompt prompt;
  struct Row {
    const char16_t* equation;
    const char16_t *root1, *root2;
  } rows[] = {
      {u"x^2-2=0", u"-sqr(2)", u"sqr(2)"},
      {u"x^2-1=0", u"-1", u"1"},
      {u"2x^2-3x+1=0", u"1/2", u"1"},
      {u"x^2-2x+1=0", u"1", u"1"},
      {u"4x^2+4x+1=0", u"-1/2", u"-1/2"},
      {u"x^2-3=0", u"-sqr(3)", u"sqr(3)"},
      {u"2x^2-3=0", u"-sqr(6)/2", u"sqr(6)/2"},
      {u"x^2-2x-1=0", u"1-sqr(2)", u"1+sqr(2)"},
      {u"x^2+x-1=0", u"-1-sqr(5)/2", u"-1+sqr(5)/2"},
      {u"2x^2-8x+5=0", u"4-sqr(6)/2", u"4+sqr(6)/2"},
      {u"x^2-6x+3=0", u"3-sqr(6)", u"3+sqr(6)"},
      {u"9x^2-8=0", u"-2sqr(2)/3", u"2sqr(2)/3"},
      {u"x^2-8=0", u"-2sqr(2)", u"2sqr(2)"},
      {u"-x^2+2=0", u"-sqr(2)", u"sqr(2)"},
      // With a negative x^2 coefficient and |2a| dividing out, the tables
      // drop the denominator -1 and its sign with it.
      {u"-x^2+4x+9=0", u"-2-sqr(13)", u"-2+sqr(13)"},
  };
  for (const Row& r : rows) {
    std::optional<QuadraticSolution> q = SolveQuadratic(r.equation, prompt);
    ASSERT_TRUE(q) << ToUtf8(r.equation);
    EXPECT_EQ(ToUtf8(q->Root1Text), ToUtf8(r.root1)) << ToUtf8(r.equation);
    EXPECT_EQ(ToUtf8(q->Root2Text), ToUtf8(r.root2)) << ToUtf8(r.equation);
  }
  std::optional<QuadraticSolution> none = SolveQuadratic(u"x^2+1=0", prompt);
  ASSERT_TRUE(none);
  EXPECT_EQ(none->QuadDelta, -4);
  EXPECT_TRUE(none->Root1Text.empty());
  EXPECT_TRUE(prompt.Shown().empty());
  EXPECT_FALSE(SolveQuadratic(u"2x+1=0", prompt));
  EXPECT_EQ(prompt.Shown().at(0).prompt, u"您输入的不是一个二次方程！请检查后重新输入。");
}

// Past the double's range the discriminant overflows like every other step,
// instead of turning into NaN and a complaint about whole numbers.
TEST(SolveQuadratic, DiscriminantOverflowRaisesOverflow) {
  RecordingPrompt prompt;
  const std::u16string e200 = u"1" + std::u16string(200, u'0');
  for (const std::u16string& equation :
       {e200 + u"x^2+3*" + e200 + u"x+" + e200 + u"=0", u"x^2+" + e200 + u"x+1=0",
        u"-" + e200 + u"x^2+x+" + e200 + u"=0"}) {
    try {
      SolveQuadratic(equation, prompt);
      ADD_FAILURE() << ToUtf8(equation);
    } catch (const RuntimeError& e) {
      EXPECT_EQ(e.Number(), kOverflow) << ToUtf8(equation);
    }
  }
  EXPECT_TRUE(prompt.Shown().empty());
}

// An answer text as a number: "p-qsqr(r)/d" means (p - q sqrt(r)) / d.
double ValueOfRootText(std::u16string text) {
  text = Replace(text, u"sqr(", u"*sqr(");
  text = Replace(text, u"-*", u"-");
  text = Replace(text, u"+*", u"+");
  if (Left(text, 1) == u"*") text = Mid(text, 2);
  int32_t slash = InStr(text, u")/");
  if (slash > 0) text = u"(" + Left(text, slash) + u")/(" + Mid(text, slash + 2) + u")";
  return CompiledExpression(text).Evaluate(0);
}

TEST(SolveQuadratic, AgreesWithTheQuadraticFormula) {
  RecordingPrompt prompt;
  std::mt19937 random(7);
  std::uniform_int_distribution<int> coefficient(-12, 12);
  int solved = 0;
  while (solved < 300) {
    // A positive x^2 coefficient: for a negative one the texts keep the
    // tables' dropped sign (see RootTexts).
    int a = coefficient(random), b = coefficient(random), c = coefficient(random);
    if (a <= 0 || b * b - 4 * a * c < 0) continue;
    std::u16string equation = FromUtf8(std::to_string(a) + "x^2+(" + std::to_string(b) + ")x+(" +
                                       std::to_string(c) + ")=0");
    std::optional<QuadraticSolution> q = SolveQuadratic(equation, prompt);
    ASSERT_TRUE(q);
    double root = std::sqrt(b * b - 4.0 * a * c);
    std::multiset<double> expected = {(-b - root) / (2 * a), (-b + root) / (2 * a)};
    EXPECT_NEAR(q->Root1, (-b - root) / (2 * a), 1e-9) << ToUtf8(equation);
    EXPECT_NEAR(q->Root2, (-b + root) / (2 * a), 1e-9) << ToUtf8(equation);
    double t1 = ValueOfRootText(q->Root1Text), t2 = ValueOfRootText(q->Root2Text);
    // The texts name the two roots, though not always in the order of Root1 and Root2.
    EXPECT_NEAR(std::min(t1, t2), *expected.begin(), 1e-9) << ToUtf8(q->Root1Text);
    EXPECT_NEAR(std::max(t1, t2), *expected.rbegin(), 1e-9) << ToUtf8(q->Root2Text);
    ++solved;
  }
  EXPECT_TRUE(prompt.Shown().empty());
}

}  // namespace
}  // namespace lp
