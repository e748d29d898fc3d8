// Evaluations per second of one curve over a million x values: written in
// C++ (the limit), through the compiled expression, and through muparser.

#include <muParser.h>
#include <time.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

#include "toolkit/expression.h"

namespace {

constexpr int kPoints = 1000000;
constexpr int kRounds = 9;

// CPU time of this thread, in nanoseconds: the machine is shared, and time
// spent waiting for a core says nothing about the evaluator.
double CpuNanoseconds() {
  timespec now;
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return now.tv_sec * 1e9 + now.tv_nsec;
}

// The best of several rounds, in CPU nanoseconds per evaluation; f is inlined
// into the loop, so the hand-written curve pays no call.
template <typename F>
double NanosecondsPerEval(const std::vector<double>& xs, F f, double& sum) {
  double best = 1e300;
  for (int round = 0; round < kRounds; ++round) {
    double start = CpuNanoseconds();
    double s = 0;
    for (double x : xs) s += f(x);
    best = std::min(best, (CpuNanoseconds() - start) / xs.size());
    sum = s;
  }
  return best;
}

void Report(const char* name, double ns, double handWritten, double sum) {
  std::printf("%-34s %8.2f ns/eval %12.0f evals/s  x%.2f of C++  (sum %.12g)\n", name, ns, 1e9 / ns,
              ns / handWritten, sum);
}

}  // namespace

int main() {
  const char16_t* curve = u"sin(2*x)+x^2/3-abs(x)";
  std::vector<double> xs(kPoints);
  for (int i = 0; i < kPoints; ++i) xs[i] = -10 + 20.0 * i / kPoints;

  double sum = 0;
  double cpp = NanosecondsPerEval(
      xs, [](double x) { return std::sin(2 * x) + std::pow(x, 2) / 3 - std::abs(x); }, sum);
  Report("hand-written C++", cpp, cpp, sum);

  lp::CompiledExpression compiled(curve);
  double ours = NanosecondsPerEval(
      xs, [&](double x) { return compiled.Evaluate(x); }, sum);
  Report("compiled expression", ours, cpp, sum);

  std::vector<double> values(kPoints);
  double many = 1e300;
  for (int round = 0; round < kRounds; ++round) {
    double start = CpuNanoseconds();
    compiled.EvaluateMany(xs, values);
    many = std::min(many, (CpuNanoseconds() - start) / kPoints);
  }
  double manySum = 0;
  for (double v : values) manySum += v;
  Report("compiled, a block at a time", many, cpp, manySum);

  double throughText = NanosecondsPerEval(
      xs, [&](double x) { return compiled.EvalAtX(x); }, sum);
  Report("compiled, x through its text", throughText, cpp, sum);

  std::vector<double> few(xs.begin(), xs.begin() + kPoints / 10);
  double perCall = NanosecondsPerEval(
      few, [&](double x) { return lp::EvalAtX(x, curve); }, sum);
  Report("EvalAtX, parsed at every point", perCall, cpp, sum);

  mu::Parser parser;
  double mx = 0;
  parser.DefineVar("x", &mx);
  parser.SetExpr("sin(2*x)+x^2/3-abs(x)");
  double muparser = NanosecondsPerEval(
      xs,
      [&](double x) {
        mx = x;
        return parser.Eval();
      },
      sum);
  Report("muparser", muparser, cpp, sum);

  std::printf("ratios: ours/C++ %.2f one at a time, %.2f a block at a time (target below 2)\n",
              ours / cpp, many / cpp);
  std::printf("        muparser/ours %.2f one at a time, %.2f a block at a time (target above 1)\n",
              muparser / ours, muparser / many);
  return 0;
}
