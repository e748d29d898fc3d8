#include "toolkit/equation_sides.h"

#include "runtime/convert.h"
#include "runtime/text.h"
#include "toolkit/expression.h"
#include "toolkit/normalise.h"
#include "toolkit/quotient.h"

namespace lp {

EquationSides::EquationSides(const std::u16string& equation) {
  std::u16string s = NormaliseExpression(equation);
  int32_t at = InStr(s, u"=");
  left_ = Left(s, at - 1);
  right_ = Mid(s, at + 1);
}

double EquationSides::F(double x) const {
  double left = EvalAtX(x, left_);
  return Quotient(left - EvalAtX(x, right_), 1);
}

std::u16string NumberText(double value) {
  return Trim(Str(value));
}

}  // namespace lp
