#include <cmath>
#include <vector>

#include "runtime/convert.h"
#include "toolkit/exact.h"
#include "toolkit/quotient.h"

namespace lp {
namespace {

struct PrimePower {
  double prime;
  int16_t exponent;
};

// Trial division: 2 first, then odd divisors up to the root of what is left
// after the 2s; what remains over the product of the powers found is one
// more prime.
std::vector<PrimePower> Factorise(int32_t radicand) {
  std::vector<PrimePower> factors;
  double t = radicand;
  auto takeOut = [&](int32_t d) {
    int16_t e = Multiplicity(d, CLng(t));
    factors.push_back({static_cast<double>(d), e});
    t = Quotient(t, std::pow(d, e));
  };
  if (IsDivisible(2, CLng(t))) takeOut(2);
  double limit = Int(std::sqrt(t));
  for (int32_t d = 3; d <= limit && d <= t; d += 2)
    if (IsDivisible(d, CLng(t))) takeOut(d);
  double product = 1;
  for (const PrimePower& f : factors) product *= std::pow(f.prime, f.exponent);
  double rest = Quotient(radicand, product);
  if (rest != 1) factors.push_back({rest, 1});
  return factors;
}

}  // namespace

std::optional<Radical> SimplifyRadical(double index, double radicand, Prompt& prompt) {
  if (!IsWhole(index) || !IsWhole(radicand)) {
    prompt.MsgBox(u"根指数或被开方数不是整数！");
    return std::nullopt;
  }
  if (radicand < 0) {
    prompt.MsgBox(u"您输入的数据范围有误，请确认该整数不在0~2147483647之间！");
    return std::nullopt;
  }
  Radical r;
  r.RootIndex = CInt(index);
  int32_t whole = CLng(radicand);
  double outer = 1;
  double inner = whole;
  for (const PrimePower& f : Factorise(whole)) {
    if (f.exponent < r.RootIndex) continue;
    double k = Int(Quotient(f.exponent, r.RootIndex));
    outer *= std::pow(f.prime, k);
    inner = Quotient(inner, std::pow(f.prime, k * r.RootIndex));
  }
  r.RootOuter = CInt(outer);
  r.RootInner = CLng(inner);
  return r;
}

}  // namespace lp
