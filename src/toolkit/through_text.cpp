// x as it reads back from its 15-digit text. Graphs pass every sample
// through this, so the usual case is done by arithmetic that gives the same
// double as writing and reading the digits, and only the rest takes the text.

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "toolkit/expression.h"

namespace lp {
namespace {

// 10^k, each exact in a double.
constexpr double kPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                   1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                   1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

double ThroughDigits(double x) {
  char text[32];
  auto written = std::to_chars(text, text + sizeof text, x, std::chars_format::scientific, 14);
  double back = x;
  std::from_chars(text, written.ptr, back);
  return back;
}

// Scales |x| by an exact 10^k into [1e14, 1e15), where the 15 digits are the
// integer part. The product p and its error e (from fma) are exact, so
// rounding p + e to the nearest integer, ties to even as the text does, can
// be decided exactly; n / 10^k, both exact, is then the correctly rounded
// reading of the digits. False for x too small or too large for an exact
// 10^k, and for 0, infinities and NaN.
bool RoundedToFifteenDigits(double x, double& rounded) {
  double ax = std::fabs(x);
  if (!(ax >= 1e-8 && ax < 1e14)) return false;
  int binary = static_cast<int>(std::bit_cast<uint64_t>(ax) >> 52) - 1023;
  int k = 14 - ((binary * 78913) >> 18);  // 14 - floor(binary * log10(2))
  if (k > 22) return false;
  double p = ax * kPowersOfTen[k];
  if (p >= 1e15) p = ax * kPowersOfTen[--k];
  if (p < 1e14 || p >= 1e15) return false;
  double e = std::fma(ax, kPowersOfTen[k], -p);
  double n = std::nearbyint(p);
  if (p - n == 0.5 && e > 0) n += 1;  // p is a tie that the exact product passes
  if (p - n == -0.5 && e < 0) n -= 1;
  rounded = std::copysign(n / kPowersOfTen[k], x);
  return true;
}

}  // namespace

double XThroughText(double x) {
  double rounded;
  return RoundedToFifteenDigits(x, rounded) ? rounded : ThroughDigits(x);
}

}  // namespace lp
