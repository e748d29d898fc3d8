#include "runtime/convert.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "runtime/error.h"
#include "runtime/utf8.h"

namespace lp {
namespace {

int ErrorNumberOf(void (*f)()) {
  try {
    f();
  } catch (const RuntimeError& e) {
    return e.Number();
  }
  return 0;
}

TEST(Val, ReadsTheLeadingNumber) {
  struct Row {
    const char16_t* text;
    double value;
  } rows[] = {
      {u"12abc", 12}, {u"  1 2", 12}, {u"&H10", 16},         {u"&HFFFF", -1},
      {u"&O17", 15},  {u"1e3", 1000}, {u"1D2", 100},         {u"-.5", -0.5},
      {u"", 0},       {u"abc", 0},    {u"1.2.3", 1.2},       {u"2-3", 2},
      {u"1e", 1},     {u"- 5", -5},   {u"\t3\n4", 34},       {u".", 0},
      {u"+7", 7},     {u"--5", 0},    {u"3.14159", 3.14159}, {u"&H10000", 65536},
  };
  for (const Row& r : rows) EXPECT_EQ(Val(r.text), r.value) << ToUtf8(r.text);
  EXPECT_EQ(ErrorNumberOf([] { Val(u"1e400"); }), kOverflow);
}

TEST(Str, WritesFifteenDigitsWithALeadingBlank) {
  struct Row {
    double value;
    const char16_t* text;
  } rows[] = {
      {0, u" 0"},
      {0.5, u" .5"},
      {-0.5, u"-.5"},
      {12, u" 12"},
      {-3, u"-3"},
      {1.0 / 3, u" .333333333333333"},
      {2.0 / 3, u" .666666666666667"},
      {0.1 + 0.2, u" .3"},
      {123456789012345, u" 123456789012345"},
      {1e15, u" 1E+15"},
      {1e16, u" 1E+16"},
      {-1.5e20, u"-1.5E+20"},
      {0.0001, u" .0001"},
      {0.00001, u" 1E-05"},
      {1.25e-7, u" 1.25E-07"},
      {1e100, u" 1E+100"},
      {3.14159, u" 3.14159"},
  };
  for (const Row& r : rows) EXPECT_EQ(Str(r.value), r.text) << r.value;
}

TEST(Format, FollowsTheDigitPlaceholders) {
  struct Row {
    double value;
    const char16_t* pattern;
    const char16_t* text;
  } rows[] = {
      {0.5, u"#.##", u".5"},           {0, u"#.##", u"."},        {5, u"#.##", u"5."},
      {12.345, u"#.##", u"12.35"},     {-1.5, u"#.###", u"-1.5"}, {2.0 / 3, u"#.###", u".667"},
      {1.23456, u"#.####", u"1.2346"}, {0, u"0.00", u"0.00"},     {3.1, u"0.00", u"3.10"},
      {1.005, u"0.00", u"1.01"},       {0.999, u"0.00", u"1.00"}, {2.5, u"0.", u"3."},
      {7, u"0.000", u"7.000"},         {0.04, u"0.0", u"0.0"},    {123456, u"0.0", u"123456.0"},
  };
  for (const Row& r : rows) EXPECT_EQ(Format(r.value, r.pattern), r.text) << r.value;
}

TEST(WholeNumbers, RoundHalfToEvenAndCheckTheRange) {
  EXPECT_EQ(CInt(2.5), 2);
  EXPECT_EQ(CInt(3.5), 4);
  EXPECT_EQ(CInt(-2.5), -2);
  EXPECT_EQ(CInt(-32768.4), -32768);
  EXPECT_EQ(CInt(32767.4), 32767);
  EXPECT_EQ(ErrorNumberOf([] { CInt(32767.6); }), kOverflow);
  EXPECT_EQ(ErrorNumberOf([] { CInt(-32768.6); }), kOverflow);
  EXPECT_EQ(ErrorNumberOf([] { CInt(std::nan("")); }), kOverflow);
  EXPECT_EQ(CLng(2147483647.4), 2147483647);
  EXPECT_EQ(CLng(0.5), 0);
  EXPECT_EQ(CLng(1.5), 2);
  EXPECT_EQ(ErrorNumberOf([] { CLng(2147483647.5); }), kOverflow);
  EXPECT_EQ(CSng(0.1), 0.1f);
  EXPECT_EQ(ErrorNumberOf([] { CSng(1e39); }), kOverflow);
  EXPECT_EQ(Int(-2.5), -3);
  EXPECT_EQ(Fix(-2.5), -2);
  EXPECT_EQ(Int(2.5), 2);
  EXPECT_EQ(CBool16(true), -1);
  EXPECT_EQ(CBool16(false), 0);
}

TEST(Str, RoundTripsThroughVal) {
  for (double v : {1.0 / 7, -2.0 / 3, 1e-3, 987654.321, 6.02e23, -1e-10})
    EXPECT_NEAR(Val(Str(v)), v, std::abs(v) * 1e-14) << v;
}

}  // namespace
}  // namespace lp
