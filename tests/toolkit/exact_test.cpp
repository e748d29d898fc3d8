#include "toolkit/exact.h"

#include <gtest/gtest.h>

#include "runtime/error.h"
#include "runtime/recording_prompt.h"
#include "runtime/utf8.h"
#include "toolkit/answer_text.h"

namespace lp {
namespace {

TEST(Exact, GcdAndDivisibility) {
  EXPECT_EQ(Gcd(12, 18), 6);
  EXPECT_EQ(Gcd(0, 5), 1);
  EXPECT_EQ(Gcd(-4, -4), -4);
  EXPECT_EQ(Gcd(4, -4), 4);
  EXPECT_EQ(Gcd(7, 3), 1);
  EXPECT_EQ(Gcd(2147483646, 1), 1);
  EXPECT_THROW(Gcd(-2147483647 - 1, 2), RuntimeError);
  EXPECT_EQ(Multiplicity(3, 10), 1);
  EXPECT_EQ(Multiplicity(2, 48), 4);
  EXPECT_TRUE(IsDivisible(3, 12));
  EXPECT_FALSE(IsDivisible(5, 12));
  EXPECT_TRUE(IsEven(-4));
  EXPECT_TRUE(IsOdd(7));
}

TEST(Exact, SimplifyRadicalTakesOutWholePowers) {
  RecordingPrompt prompt;
  struct Row {
    double index, radicand;
    int outer, inner;
  } rows[] = {
      {2, 12, 2, 3},    {2, 1, 1, 1}, {3, 54, 3, 2}, {2, 72, 6, 2}, {2, 2147483647, 1, 2147483647},
      {2, 1024, 32, 1}, {2, 98, 7, 2}};
  for (const Row& r : rows) {
    std::optional<Radical> radical = SimplifyRadical(r.index, r.radicand, prompt);
    ASSERT_TRUE(radical);
    EXPECT_EQ(radical->RootIndex, r.index);
    EXPECT_EQ(radical->RootOuter, r.outer) << r.radicand;
    EXPECT_EQ(radical->RootInner, r.inner) << r.radicand;
  }
  EXPECT_TRUE(prompt.Shown().empty());
  EXPECT_FALSE(SimplifyRadical(2, 2.5, prompt));
  EXPECT_FALSE(SimplifyRadical(2, -4, prompt));
  ASSERT_EQ(prompt.Shown().size(), 2u);
  EXPECT_EQ(prompt.Shown()[0].prompt, u"根指数或被开方数不是整数！");
  EXPECT_EQ(prompt.Shown()[1].prompt, u"您输入的数据范围有误，请确认该整数不在0~2147483647之间！");
  EXPECT_EQ(prompt.Shown()[1].style, 0);
}

TEST(Exact, DecimalToFraction) {
  struct Row {
    const char16_t* text;
    double num;
    int den;
  } rows[] = {{u"0.(3)", 1, 3},  {u"0.1(6)", 1, 6}, {u"2", 2, 1},     {u"1.25", 5, 4},
              {u"12.5", 241, 2}, {u" .5", 1, 2},    {u" 1.5", 21, 2}, {u"1.(142857)", 8, 7}};
  for (const Row& r : rows) {
    Fraction f = DecimalToFraction(r.text);
    EXPECT_EQ(f.ReducedNum, r.num) << ToUtf8(r.text);
    EXPECT_EQ(f.ReducedDen, r.den) << ToUtf8(r.text);
  }
}

TEST(Exact, FactorialAndItsMessage) {
  RecordingPrompt prompt;
  EXPECT_EQ(Factorial(0, prompt), 1);
  EXPECT_EQ(Factorial(-3, prompt), 1);
  EXPECT_EQ(Factorial(5, prompt), 120);
  EXPECT_EQ(Factorial(2.5, prompt), 0);
  ASSERT_EQ(prompt.Shown().size(), 1u);
  EXPECT_EQ(prompt.Shown()[0].prompt, u"您输入的不是一个整数,无法计算其阶乘)");
  EXPECT_THROW(Factorial(171, prompt), RuntimeError);
}

TEST(Exact, SortAndIndexFromPositionOne) {
  std::vector<float> lefts = {99, 30, 10, 20, 10};
  SortAscendingSingle(lefts);
  EXPECT_EQ(lefts, (std::vector<float>{99, 10, 10, 20, 30}));
  EXPECT_EQ(IndexOfSingle(20, lefts), 3);
  EXPECT_EQ(IndexOfSingle(99, lefts), 1);
  std::vector<int16_t> counts = {0, 3, -1, 2};
  SortAscendingInt(counts);
  EXPECT_EQ(counts, (std::vector<int16_t>{0, -1, 2, 3}));
}

TEST(AnswerText, PiFractions) {
  struct Row {
    const char16_t *t1, *t2, *t3, *text;
  } rows[] = {
      {u"pi", u"0", u"2", u"(@p)/2"},       {u"pi", u"pi", u"2", u"@p"},
      {u"pi/3", u"0", u"1", u"(@p)/3"},     {u"-pi", u"0", u"1", u"-@p"},
      {u"-pi", u"0", u"3", u"-(@p)/3"},     {u"pi", u"pi/2", u"1", u"(3@p)/2"},
      {u"pi", u"0", u"--4/3", u"(3@p)/4"},  {u"1", u"1/2", u"1", u"(3)/2"},
      {u"pi/2", u"pi/3", u"1", u"(5@p)/6"},
  };
  for (const Row& r : rows) EXPECT_EQ(ToUtf8(PiFractionText(r.t1, r.t2, r.t3)), ToUtf8(r.text));
}

TEST(AnswerText, FontSizes) {
  EXPECT_EQ(FontSizeToPoints(u"五号"), 10.5f);
  EXPECT_EQ(FontSizeToPoints(u"12"), 12.0f);
  EXPECT_EQ(FontSizeToPoints(u"小六"), 6.875f);
  EXPECT_EQ(FontSizeToPoints(u"大特号"), 63.0f);
  EXPECT_EQ(FontSizeToPoints(u"九号"), 0.0f);
}

TEST(AnswerText, RangeQuestion) {
  RecordingPrompt prompt;
  Extents axes{-5, 5, -5, 5};
  EXPECT_FALSE(CurveExceedsAxes(axes, {-5, 5, -2, 5}, prompt));
  EXPECT_TRUE(prompt.Shown().empty());
  prompt.Answer(u"cancel");
  EXPECT_TRUE(CurveExceedsAxes(axes, {-5, 5, -2, 6}, prompt));
  EXPECT_FALSE(CurveExceedsAxes(axes, {-6, 5, -2, 5}, prompt));
  ASSERT_EQ(prompt.Shown().size(), 2u);
  EXPECT_EQ(prompt.Shown()[0].style, vbOKCancel);
  EXPECT_TRUE(CurveOutsideAxes(axes, {-5, 5.5, 0, 0}));
  EXPECT_FALSE(CurveOutsideAxes(axes, {-1, 1, -1, 1}));
}

}  // namespace
}  // namespace lp
