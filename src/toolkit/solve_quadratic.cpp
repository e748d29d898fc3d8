#include <cmath>

#include "runtime/convert.h"
#include "runtime/error.h"
#include "toolkit/equation_sides.h"
#include "toolkit/exact.h"
#include "toolkit/quotient.h"
#include "toolkit/solve.h"

namespace lp {
namespace {

std::u16string RationalText(double root, double numerator, double denominator) {
  Fraction f = ReduceFraction(CLng(std::abs(numerator)), CLng(std::abs(denominator)));
  std::u16string sign = root < 0 ? u"-" : u"";
  return sign + NumberText(f.ReducedNum) + u"/" + NumberText(f.ReducedDen);
}

// The root with the radical kept: lead and sign in front, then the
// coefficient, the root and the denominator, each left out where the common
// divisor g makes it 1.
std::u16string RadicalText(const std::u16string& lead, double outer, double inner, double twoA,
                           int32_t g) {
  std::u16string root = u"sqr(" + NumberText(inner) + u")";
  std::u16string coefficient = outer != g && outer != 1 ? NumberText(outer / g) : u"";
  if (std::abs(twoA) != g) return lead + coefficient + root + u"/" + NumberText(twoA / g);
  if (outer == g) return lead + root;
  return lead + NumberText(outer / g) + root;
}

std::u16string RootText(const QuadraticSolution& q, bool first) {
  double root = first ? q.Root1 : q.Root2;
  double outer = q.QuadRootOuter, inner = q.QuadRootInner;
  double twoA = 2 * q.QuadA;
  if (IsWhole(root)) return NumberText(root);
  if (inner == 1) return RationalText(root, -q.QuadB + (first ? -outer : outer), twoA);
  if (q.QuadB == 0) {
    int32_t g = Gcd(CLng(std::abs(twoA)), CLng(outer));
    return RadicalText(first ? u"-" : u"", outer, inner, twoA, g);
  }
  int32_t g = Gcd(Gcd(CLng(std::abs(q.QuadB)), CLng(outer)), CLng(std::abs(twoA)));
  return RadicalText(NumberText(-q.QuadB / g) + (first ? u"-" : u"+"), outer, inner, twoA, g);
}

// b^2 - 4ac with the overflow check every other step of the arithmetic has:
// past the double's range the products would turn into infinities and NaN.
double Discriminant(double a, double b, double c) {
  double square = b * b, product = 4 * a * c;
  double delta = square - product;
  if (!std::isfinite(square) || !std::isfinite(product) || !std::isfinite(delta)) RaiseOverflow();
  return delta;
}

}  // namespace

std::optional<QuadraticSolution> SolveQuadratic(const std::u16string& equation, Prompt& prompt) {
  EquationSides sides(equation);
  QuadraticSolution q;
  double c = sides.F(0), f1 = sides.F(1), fm1 = sides.F(-1);
  double b = f1 == fm1 ? 0 : (f1 - fm1) / 2;
  double a = f1 - b - c;
  if (a == 0) {
    prompt.MsgBox(u"您输入的不是一个二次方程！请检查后重新输入。");
    return std::nullopt;
  }
  q.QuadA = a;
  q.QuadB = b;
  q.QuadC = c;
  q.QuadDelta = Discriminant(a, b, c);
  if (q.QuadDelta < 0) return q;
  if (q.QuadDelta == 0) {
    q.Root1 = q.Root2 = Quotient(-b, 2 * a);
    q.Root1Text = IsWhole(q.Root1) ? NumberText(q.Root1) : RationalText(q.Root1, b, 2 * a);
    q.Root2Text = q.Root1Text;
    return q;
  }
  std::optional<Radical> radical = SimplifyRadical(2, q.QuadDelta, prompt);
  if (!radical) return q;
  q.QuadRootIndex = radical->RootIndex;
  q.QuadRootOuter = radical->RootOuter;
  q.QuadRootInner = radical->RootInner;
  double root = q.QuadRootOuter * std::sqrt(static_cast<double>(q.QuadRootInner));
  q.Root1 = Quotient(-b - root, 2 * a);
  q.Root2 = Quotient(-b + root, 2 * a);
  q.Root1Text = RootText(q, true);
  q.Root2Text = RootText(q, false);
  return q;
}

}  // namespace lp
