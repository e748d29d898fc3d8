#include <algorithm>
#include <array>

#include "runtime/convert.h"
#include "runtime/error.h"
#include "runtime/text.h"
#include "toolkit/equation_sides.h"
#include "toolkit/exact.h"
#include "toolkit/normalise.h"
#include "toolkit/quotient.h"
#include "toolkit/solve.h"

namespace lp {
namespace {

// N, or N and D joined by slash, with sign in front.
std::u16string FractionText(const Fraction& f, const std::u16string& sign,
                            const std::u16string& slash) {
  std::u16string text = sign + NumberText(f.ReducedNum);
  if (f.ReducedDen != 1) text += slash + NumberText(f.ReducedDen);
  return text;
}

std::u16string WholeCoefficientsText(double a, double b) {
  if (b < 0 && a < 0) return FractionText(ReduceFraction(CLng(-b), CLng(-a)), u"-", u" / ");
  if (b < 0 && a > 0) return FractionText(ReduceFraction(CLng(-b), CLng(a)), u"", u"/");
  if (b > 0 && a < 0) return FractionText(ReduceFraction(CLng(b), CLng(-a)), u"", u"/");
  if (b == 0 && a != 0) return u"0";
  if (b != 0 && a == 0) return u"K";
  if (b == 0 && a == 0) return u"R";
  return FractionText(ReduceFraction(CLng(b), CLng(a)), u"-", u" / ");
}

// -b / a rounded to three decimals, then read back as a fraction from its
// printed text (leading blank included).
std::u16string RoundedQuotientText(double a, double b) {
  std::u16string rounded = Format(Quotient(-b, a), u"#.###");
  if (std::none_of(rounded.begin(), rounded.end(),
                   [](char16_t c) { return c >= u'0' && c <= u'9'; }))
    RaiseTypeMismatch();  // "." and "-." are no numbers
  double v = Val(rounded);
  Fraction f = DecimalToFraction(Str(std::abs(v)));
  return FractionText(f, v < 0 ? u"-" : u"", u" / ");
}

std::u16string TurnedOver(const std::u16string& op) {
  if (op == u">") return u"<";
  if (op == u">=") return u"<=";
  if (op == u"<") return u">";
  if (op == u"<=") return u">=";
  return {};
}

// b op 0 when a is 0.
std::u16string ConstantInequalityText(double b, const std::u16string& op) {
  bool holds = op == u">" ? b > 0 : op == u">=" ? b >= 0 : op == u"<" ? b < 0 : b <= 0;
  return holds ? u"R" : u"K";
}

}  // namespace

LinearSolution SolveLinear(const std::u16string& equation) {
  EquationSides sides(equation);
  LinearSolution s;
  s.LinearB = sides.F(0);
  s.a = sides.F(1) - s.LinearB;
  s.LinearA = CSng(s.a);
  double a = s.a, b = s.LinearB;
  s.LinearText = IsWhole(a) && IsWhole(b) ? WholeCoefficientsText(a, b) : RoundedQuotientText(a, b);
  return s;
}

std::u16string InequalityOpSymbol(const std::u16string& op) {
  if (op == u">" || op == u"<") return op;
  if (op == u"<=") return u"≤";
  if (op == u">=") return u"≥";
  if (op == u"<>") return u"≠";
  return {};
}

std::optional<InequalitySolution> ParseInequality(const std::u16string& text, Prompt& prompt) {
  static const std::array<const char16_t*, 5> kOperators = {u">=", u"<=", u"<>", u">", u"<"};
  auto found = std::find_if(kOperators.begin(), kOperators.end(),
                            [&](const char16_t* op) { return InStr(text, op) > 0; });
  if (found == kOperators.end()) {
    prompt.MsgBox(u"您输入的不是一个不等式,请检查后重新输入！");
    return std::nullopt;
  }
  InequalitySolution s;
  s.InequalityOp = *found;
  int32_t at = InStr(text, s.InequalityOp);
  s.InequalityLeft = Trim(Left(text, at - 1));
  s.InequalityRight = Trim(Mid(text, at + Len(s.InequalityOp)));

  std::u16string normalised = NormaliseExpression(text);
  at = InStr(normalised, s.InequalityOp);
  LinearSolution linear =
      SolveLinear(Left(normalised, at - 1) + u"= " + Mid(normalised, at + Len(s.InequalityOp)));
  double a = linear.a, b = linear.LinearB;
  s.CoefX = a;
  s.CoefConst = b;
  if (a != 0) {
    s.ResultNumber = Quotient(-b, a);
    s.InequalityText = linear.LinearText;
    s.InequalityResultOp = a > 0 ? s.InequalityOp : TurnedOver(s.InequalityOp);
  } else if (s.InequalityOp != u"<>") {
    s.InequalityText = ConstantInequalityText(b, s.InequalityOp);
  }
  return s;
}

}  // namespace lp
