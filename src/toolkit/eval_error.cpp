#include "toolkit/eval_error.h"

namespace lp {
namespace {

struct KindInfo {
  int number;
  const char* description;
  const char* name;
};

KindInfo InfoOf(EvalErrorKind kind) {
  switch (kind) {
    case EvalErrorKind::kSyntax:
      return {1002, "Syntax error", "syntax"};
    case EvalErrorKind::kTooComplex:
      return {28, "Out of stack space", "too-complex"};
    case EvalErrorKind::kUnknownFunction:
      return {kTypeMismatch, "Type mismatch", "unknown-function"};
    case EvalErrorKind::kWrongArguments:
      return {450, "Wrong number of arguments or invalid property assignment", "wrong-arguments"};
    case EvalErrorKind::kDivisionByZero:
      return {kDivisionByZero, "Division by zero", "division-by-zero"};
    case EvalErrorKind::kLogarithmDomain:
      return {kInvalidProcedureCall, "Invalid procedure call or argument", "log-domain"};
    case EvalErrorKind::kRootDomain:
      return {kInvalidProcedureCall, "Invalid procedure call or argument", "sqr-domain"};
    case EvalErrorKind::kPowerDomain:
      return {kInvalidProcedureCall, "Invalid procedure call or argument", "power-domain"};
    case EvalErrorKind::kOverflow:
      return {kOverflow, "Overflow", "overflow"};
  }
  return {kInvalidProcedureCall, "Invalid procedure call or argument", "unknown"};
}

}  // namespace

EvalError::EvalError(EvalErrorKind kind)
    : RuntimeError(InfoOf(kind).number, InfoOf(kind).description), kind_(kind) {}

void RaiseEvalError(EvalErrorKind kind) {
  throw EvalError(kind);
}

const char* EvalErrorKindName(EvalErrorKind kind) {
  return InfoOf(kind).name;
}

}  // namespace lp
