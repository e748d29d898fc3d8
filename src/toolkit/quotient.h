#pragma once
// Division with the runtime's errors: x / 0 is "Division by zero" (11) and
// 0 / 0 is "Overflow" (6), as are results beyond the double range.

#include <cmath>

#include "runtime/error.h"

namespace lp {

inline double Quotient(double a, double b) {
  if (b == 0) {
    if (a == 0) RaiseOverflow();
    RaiseDivisionByZero();
  }
  double q = a / b;
  if (std::isinf(q)) RaiseOverflow();
  return q;
}

}  // namespace lp
