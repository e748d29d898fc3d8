#include "toolkit/eval_error.h"

namespace lp {
namespace {

struct KindInfo {
  int number;
  const char* name;
};

KindInfo InfoOf(EvalErrorKind kind) {
  switch (kind) {
    case EvalErrorKind::kSyntax:
      return {1002, "syntax"};
    case EvalErrorKind::kTooComplex:
      return {28, "too-complex"};
    case EvalErrorKind::kUnknownFunction:
      return {kTypeMismatch, "unknown-function"};
    case EvalErrorKind::kWrongArguments:
      return {450, "wrong-arguments"};
    case EvalErrorKind::kDivisionByZero:
      return {kDivisionByZero, "division-by-zero"};
    case EvalErrorKind::kLogarithmDomain:
      return {kInvalidProcedureCall, "log-domain"};
    case EvalErrorKind::kRootDomain:
      return {kInvalidProcedureCall, "sqr-domain"};
    case EvalErrorKind::kPowerDomain:
      return {kInvalidProcedureCall, "power-domain"};
    case EvalErrorKind::kOverflow:
      return {kOverflow, "overflow"};
  }
  return {kInvalidProcedureCall, "unknown"};
}

}  // namespace

EvalError::EvalError(EvalErrorKind kind) : RuntimeError(InfoOf(kind).number), kind_(kind) {}

void RaiseEvalError(EvalErrorKind kind) {
  throw EvalError(kind);
}

const char* EvalErrorKindName(EvalErrorKind kind) {
  return InfoOf(kind).name;
}

}  // namespace lp
