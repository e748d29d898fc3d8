#include "toolkit/expression.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "runtime/utf8.h"
#include "toolkit/eval_error.h"

namespace lp {
namespace {

// The value, or "error:" and the kind, as the reference script writes it.
std::string Outcome(const std::u16string& expression, double x) {
  try {
    return std::to_string(CompiledExpression(expression).Evaluate(x));
  } catch (const EvalError& e) {
    return std::string("error:") + EvalErrorKindName(e.Kind());
  }
}

TEST(Evaluator, FollowsTheScriptLanguage) {
  struct Row {
    const char16_t* expression;
    double x;
    double value;
  } rows[] = {
      {u"-2^2", 0, -4},
      {u"2^3^2", 0, 64},
      {u"2^-1", 0, 0.5},
      {u"2*-3", 0, -6},
      {u"2--3", 0, 5},
      {u"-x^2", 3, -9},
      {u"1/2*x", 4, 2},
      {u"x2", 5, 0},
      {u"y+1", 5, 1},
      {u"SIN(X)", 0.5, std::sin(0.5)},
      {u"atn(1)*4", 0, std::atan(1) * 4},
      {u"int(-2.5)", 0, -3},
      {u"abs(-x)", 2, 2},
      {u"exp(1)", 0, std::exp(1)},
      {u"log(2.71828)", 0, std::log(2.71828)},
      {u"sqr(x+1)", 3, 2},
      {u" 1.5e1 + .5 ", 0, 15.5},
      {u"5.", 0, 5},
      {u"(-8)^2", 0, 64},
      {u"0^0", 0, 1},
      {u"sin (x)", 0, 0},
      {u"2^-2^2", 0, 1.0 / 16},
  };
  for (const Row& r : rows)
    EXPECT_DOUBLE_EQ(CompiledExpression(r.expression).Evaluate(r.x), r.value)
        << ToUtf8(r.expression);
}

TEST(Evaluator, FailsWithAKindTheCallerCanTellApart) {
  struct Row {
    const char16_t* expression;
    const char* outcome;
  } rows[] = {
      {u"", "error:syntax"},
      {u"2x", "error:syntax"},
      {u"(x+1]*2", "error:syntax"},
      {u"2.71828(x)", "error:syntax"},
      {u"1 mod 2", "error:syntax"},
      {u"sin(x", "error:syntax"},
      {u"p(x)", "error:unknown-function"},
      {u"x(2)", "error:unknown-function"},
      {u"sin(1,2)", "error:wrong-arguments"},
      {u"sin", "error:wrong-arguments"},
      {u"1/(x-x)", "error:division-by-zero"},
      {u"0^-1", "error:division-by-zero"},
      {u"0/0", "error:overflow"},
      {u"log(0)", "error:log-domain"},
      {u"sqr(-1)", "error:sqr-domain"},
      {u"(-8)^(1/3)", "error:power-domain"},
      {u"10^400", "error:overflow"},
      {u"exp(1000)", "error:overflow"},
      {u"1e999", "error:overflow"},
      {u"1/0+foo(1)", "error:division-by-zero"},
      {u"foo(1)+1/0", "error:unknown-function"},
  };
  for (const Row& r : rows) EXPECT_EQ(Outcome(r.expression, 1), r.outcome) << ToUtf8(r.expression);
  EXPECT_EQ(Outcome(std::u16string(500, u'(') + u"1", 1), "error:too-complex");
  EXPECT_EQ(Outcome(std::u16string(500, u'-') + u"1", 1), "error:too-complex");
  try {
    CompiledExpression(u"1/0").Evaluate(0);
  } catch (const EvalError& e) {
    EXPECT_EQ(e.Number(), 11);
  }
}

TEST(Evaluator, PassesXThroughItsTextForm) {
  double x = 0.1 + 0.2;  // 0.30000000000000004
  EXPECT_EQ(XThroughText(x), 0.3);
  EXPECT_EQ(EvalAtX(x, u"x"), 0.3);
  EXPECT_EQ(CompiledExpression(u"x").EvalAtX(x), 0.3);
  EXPECT_EQ(CompiledExpression(u"x").Evaluate(x), x);
  std::vector<double> xs(200), values(200);
  for (size_t i = 0; i < xs.size(); ++i) xs[i] = i - 100.0;
  CompiledExpression(u"log(x)+x^0").EvaluateMany(xs, values);
  EXPECT_TRUE(std::isnan(values[100]));
  EXPECT_TRUE(std::isnan(values[0]));
  EXPECT_EQ(values[101], 1);
  EXPECT_EQ(EvalWithoutVariable(u"  "), 0);
  EXPECT_EQ(EvalWithoutVariable(u" 2pi "), 2 * 3.14159);
  EXPECT_EQ(EvalWithoutVariable(u"x+1"), 1);
}

double BlockValueAt(const CompiledExpression& compiled, double x) {
  double value = 0;
  compiled.EvaluateMany({&x, 1}, {&value, 1});
  return value;
}

// The one-point evaluator runs fused steps (2*x, x^2, abs(x) as one step
// each); the block evaluator runs the plain postfix program, so the two agree
// on every value and fail at the same points.
TEST(Evaluator, FusedStepsAgreeWithTheBlockEvaluator) {
  const char16_t* expressions[] = {
      u"2*x",
      u"x*3",
      u"x^2",
      u"x*x",
      u"abs(x)",
      u"-x*2+x^2-abs(x)*x",
      u"1/x^2",
      u"x^x",
      u"sin(2*x)+x^2/3-abs(x)",
      u"x*1e300",
      u"sqr(x*x)-abs(x)",
  };
  const double xs[] = {0, -0.0, 1e-300, -1e-170, 0.5, -3.5, 2, 1e154, -1e200, 1e308, -1e308};
  for (const char16_t* expression : expressions) {
    CompiledExpression compiled(expression);
    for (double x : xs) {
      SCOPED_TRACE(ToUtf8(expression) + " at x = " + std::to_string(x));
      double block = BlockValueAt(compiled, x);
      try {
        EXPECT_EQ(compiled.Evaluate(x), block);
      } catch (const EvalError&) {
        EXPECT_TRUE(std::isnan(block));
      }
    }
  }
  EXPECT_EQ(Outcome(u"2*x", 1e308), "error:overflow");
  EXPECT_EQ(Outcome(u"x^2", -1e200), "error:overflow");
  std::u16string deep = u"x";
  for (int i = 0; i < 60; ++i) deep = u"x-(" + deep + u")";
  EXPECT_EQ(CompiledExpression(deep).Evaluate(3), 3);  // deeper than the stack on hand
}

// x through its text against printf's digits read back by strtod, over
// ordinary, extreme and nearly halfway values.
TEST(Evaluator, XThroughTextMatchesPrintedDigits) {
  auto printed = [](double x) {
    char text[40];
    std::snprintf(text, sizeof text, "%.14e", x);
    return std::strtod(text, nullptr);
  };
  std::mt19937_64 random(20240601);
  std::uniform_real_distribution<double> unit(-1, 1);
  std::uniform_int_distribution<int> exponent(-12, 18);
  std::uniform_int_distribution<long long> digits(100000000000000, 999999999999999);
  std::vector<double> xs = {0,    -0.0,  0.1 + 0.2, 10000000000000.25, 10000000000000.75, 1e-8,
                            1e14, 1e300, 5e-324,    HUGE_VAL,          -HUGE_VAL};
  for (int i = 0; i < 50000; ++i) {
    xs.push_back(unit(random) * 20);
    xs.push_back(unit(random) * std::pow(10.0, exponent(random)));
    // A 16th digit of 5: the nearest double and its neighbours lie on
    // either side of the halfway point or on it.
    double halfway = (digits(random) + 0.5) * std::pow(10.0, exponent(random) - 14);
    xs.push_back(std::nextafter(halfway, 0));
    xs.push_back(halfway);
    xs.push_back(std::nextafter(halfway, HUGE_VAL));
  }
  for (double x : xs) ASSERT_EQ(XThroughText(x), printed(x)) << std::to_string(x);
  EXPECT_TRUE(std::isnan(XThroughText(NAN)));
}

// Random expressions against an interpreter written separately in Python;
// the block evaluator fails and agrees with the one-point evaluator.
TEST(Evaluator, AgreesWithAnIndependentReference) {
  FILE* pipe = popen("python3 " LP_REFERENCE_EVAL " 20240601 3000", "r");
  ASSERT_NE(pipe, nullptr);
  char line[4096];
  int cases = 0;
  while (std::fgets(line, sizeof line, pipe)) {
    std::string text(line);
    size_t tab1 = text.find('\t'), tab2 = text.find('\t', tab1 + 1);
    std::string expression = text.substr(0, tab1);
    double x = std::stod(text.substr(tab1 + 1, tab2 - tab1 - 1));
    std::string expected = text.substr(tab2 + 1);
    expected.erase(expected.find_last_not_of("\r\n") + 1);
    ++cases;
    SCOPED_TRACE(expression + " at x = " + std::to_string(x));
    std::optional<CompiledExpression> compiled;
    try {
      compiled.emplace(FromUtf8(expression));
      double value = compiled->Evaluate(x);
      ASSERT_EQ(expected.rfind("error:", 0), std::string::npos) << "expected " << expected;
      double reference = std::stod(expected);
      EXPECT_LE(std::abs(value - reference), 1e-12 * std::max(1.0, std::abs(reference)));
      EXPECT_EQ(BlockValueAt(*compiled, x), value);
    } catch (const EvalError& e) {
      EXPECT_EQ(std::string("error:") + EvalErrorKindName(e.Kind()), expected);
      if (compiled) {
        EXPECT_TRUE(std::isnan(BlockValueAt(*compiled, x)));
      }
    }
  }
  EXPECT_EQ(pclose(pipe), 0);
  EXPECT_EQ(cases, 3000);
}

}  // namespace
}  // namespace lp
