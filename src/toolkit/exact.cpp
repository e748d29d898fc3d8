#include "toolkit/exact.h"

#include <cmath>
#include <cstdlib>
#include <limits>
#include <utility>

#include "runtime/convert.h"
#include "runtime/error.h"
#include "runtime/text.h"
#include "toolkit/quotient.h"

namespace lp {

bool IsWhole(double x) {
  return Int(x) == x;
}
bool IsEven(int16_t n) {
  return IsWhole(n) && IsWhole(n / 2.0);
}
bool IsOdd(int16_t n) {
  return IsWhole(n) && !IsWhole(n / 2.0);
}

int32_t Gcd(int32_t a, int32_t b) {
  if (a == b) return a;
  if (a == std::numeric_limits<int32_t>::min() || b == std::numeric_limits<int32_t>::min())
    RaiseOverflow();
  a = std::abs(a);
  b = std::abs(b);
  if (a == 0 || b == 0) return 1;
  if (a == b) return a;
  int32_t big = std::max(a, b), small = std::min(a, b);
  // Subtracting small from big as often as it still leaves more than small
  // is one remainder; landing on small exactly ends the subtraction.
  for (;;) {
    int32_t d = big % small;
    if (d == 0) return small;
    big = small;
    small = d;
  }
}

bool IsDivisible(int32_t divisor, int32_t value) {
  return IsWhole(Quotient(value, static_cast<double>(divisor)));
}

int16_t Multiplicity(int32_t base, int32_t value) {
  if (!IsWhole(Quotient(value, std::pow(base, 2.0)))) return 1;
  int16_t k = 2;
  while (IsWhole(Quotient(value, std::pow(base, k + 1.0)))) {
    if (k == std::numeric_limits<int16_t>::max()) RaiseOverflow();
    ++k;
  }
  return k;
}

Fraction ReduceFraction(int32_t a, int32_t b) {
  int32_t g = Gcd(a, b);
  return {Quotient(a, g), CLng(Quotient(b, g))};
}

Fraction DecimalToFraction(const std::u16string& text) {
  int32_t dot = InStr(text, u".");
  double whole = Int(Val(text));
  if (dot == 0) return {whole, 1};
  int32_t open = InStr(text, u"(");
  if (open == 0) {
    std::u16string digits = Mid(text, dot + 1);
    double shifted = whole * std::pow(10.0, Len(text) - 2) + Val(digits);
    return ReduceFraction(CLng(shifted), CLng(std::pow(10.0, Len(digits))));
  }
  std::u16string fixed = Mid(text, dot + 1, open - dot - 1);
  std::u16string recurring = Mid(text, open + 1, InStr(text, u")") - open - 1);
  double nines = std::pow(10.0, Len(recurring)) - 1;
  double denominator = std::pow(10.0, Len(fixed)) * nines;
  double numerator = whole * denominator + Val(fixed) * nines + Val(recurring);
  return ReduceFraction(CLng(numerator), CLng(denominator));
}

double Factorial(double n, Prompt& prompt) {
  if (!IsWhole(n)) {
    prompt.MsgBox(u"您输入的不是一个整数,无法计算其阶乘)");
    return 0;
  }
  double product = 1;
  for (int16_t i = 2, last = CInt(n); i <= last; ++i) {
    product *= i;
    if (std::isinf(product)) RaiseOverflow();  // long before i could wrap
  }
  return product;
}

namespace {

template <typename T>
void SortFromOne(std::vector<T>& values) {
  for (size_t i = 1; i < values.size(); ++i)
    for (size_t j = 1; j <= i; ++j)
      if (values[i] < values[j]) std::swap(values[i], values[j]);
}

}  // namespace

void SortAscendingInt(std::vector<int16_t>& values) {
  SortFromOne(values);
}
void SortAscendingSingle(std::vector<float>& values) {
  SortFromOne(values);
}

int16_t IndexOfSingle(float value, const std::vector<float>& values) {
  for (size_t i = 1; i < values.size(); ++i)
    if (values[i] == value) return CInt(static_cast<double>(i));
  return 1;
}

}  // namespace lp
