#pragma once
// Why an expression could not be evaluated. Each kind carries the number
// the script evaluator gave it, so handlers that read the number see the same
// values as before; the kind lets a caller tell them apart without parsing.

#include <string>

#include "runtime/error.h"

namespace lp {

enum class EvalErrorKind {
  kSyntax,           // not an expression of the language
  kTooComplex,       // brackets nested beyond the evaluator's depth
  kUnknownFunction,  // a call of a name that is no function (x included)
  kWrongArguments,   // a function without exactly one argument
  kDivisionByZero,   // a / 0 with a not 0, and 0 ^ negative
  kLogarithmDomain,  // log of a number not above 0
  kRootDomain,       // sqr of a negative number
  kPowerDomain,      // a negative base with a fractional exponent
  kOverflow,         // a result beyond the double range, and 0 / 0
};

class EvalError : public RuntimeError {
 public:
  explicit EvalError(EvalErrorKind kind);
  EvalErrorKind Kind() const { return kind_; }

 private:
  EvalErrorKind kind_;
};

[[noreturn]] void RaiseEvalError(EvalErrorKind kind);

// A short stable name for scripts: "syntax", "division-by-zero", ...
const char* EvalErrorKindName(EvalErrorKind kind);

}  // namespace lp
