#include "runtime/error.h"

namespace lp {

void RaiseOverflow() {
  throw RuntimeError(kOverflow, "Overflow");
}
void RaiseTypeMismatch() {
  throw RuntimeError(kTypeMismatch, "Type mismatch");
}
void RaiseDivisionByZero() {
  throw RuntimeError(kDivisionByZero, "Division by zero");
}
void RaiseInvalidProcedureCall() {
  throw RuntimeError(kInvalidProcedureCall, "Invalid procedure call or argument");
}

}  // namespace lp
