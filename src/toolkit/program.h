#pragma once
// The compiled form of an expression: postfix instructions over a stack of
// doubles. Each binary operation comes in three forms, its right operand
// taken from the stack, from the instruction's value or from x, which saves
// most pushes of a curve's constants and variable.

#include <cmath>
#include <cstdint>

#include "toolkit/eval_error.h"

namespace lp {

enum class OpCode : uint8_t {
  kPushConst,
  kPushX,
  kAdd,  // the binary operations: stack, value and x forms in this order
  kAddValue,
  kAddX,
  kSubtract,
  kSubtractValue,
  kSubtractX,
  kMultiply,
  kMultiplyValue,
  kMultiplyX,
  kDivide,
  kDivideValue,
  kDivideX,
  kPower,
  kPowerValue,
  kPowerX,
  kNegate,
  kSquare,
  kSin,
  kCos,
  kTan,
  kAtn,
  kSqr,
  kLog,
  kAbs,
  kInt,
  kExp,
  kFail,  // raises the error kind held in value
  // Steps of the one-point program only (toolkit/point_program.h), each in
  // place of a leaf and the operation on it.
  kPushScaledX,  // pushes value * x
  kPushSquareX,  // pushes x * x
  kPushAbsX,     // pushes |x|
  kEnd,          // the value is complete
};

inline bool IsBinary(OpCode code) {
  return code >= OpCode::kAdd && code <= OpCode::kPowerX;
}

// kAdd, kAddValue or kAddX for kAdd and form 0, 1 or 2.
inline OpCode BinaryForm(OpCode stackForm, int form) {
  return static_cast<OpCode>(static_cast<int>(stackForm) + form);
}

struct Instruction {
  OpCode code;
  double value = 0;
};

inline double Finite(double r) {
  if (!std::isfinite(r)) [[unlikely]]
    RaiseEvalError(EvalErrorKind::kOverflow);
  return r;
}

inline double Divide(double a, double b) {
  if (b == 0) [[unlikely]]
    RaiseEvalError(a == 0 ? EvalErrorKind::kOverflow : EvalErrorKind::kDivisionByZero);
  return Finite(a / b);
}

// A square is the exact product, as a hand-written x * x would be.
inline double Power(double a, double b) {
  if (b == 2) return Finite(a * a);
  if (a < 0 && b != std::floor(b)) [[unlikely]]
    RaiseEvalError(EvalErrorKind::kPowerDomain);
  if (a == 0 && b < 0) [[unlikely]]
    RaiseEvalError(EvalErrorKind::kDivisionByZero);
  return Finite(std::pow(a, b));
}

// code is the stack form of the operation.
inline double ApplyBinary(OpCode code, double a, double b) {
  switch (code) {
    case OpCode::kAdd:
      return Finite(a + b);
    case OpCode::kSubtract:
      return Finite(a - b);
    case OpCode::kMultiply:
      return Finite(a * b);
    case OpCode::kDivide:
      return Divide(a, b);
    default:
      return Power(a, b);
  }
}

inline double ApplyUnary(OpCode code, double a) {
  switch (code) {
    case OpCode::kNegate:
      return -a;
    case OpCode::kSquare:
      return Finite(a * a);
    case OpCode::kSin:
      return std::sin(a);
    case OpCode::kCos:
      return std::cos(a);
    case OpCode::kTan:
      return std::tan(a);
    case OpCode::kAtn:
      return std::atan(a);
    case OpCode::kSqr:
      if (a < 0) RaiseEvalError(EvalErrorKind::kRootDomain);
      return std::sqrt(a);
    case OpCode::kLog:
      if (a <= 0) RaiseEvalError(EvalErrorKind::kLogarithmDomain);
      return std::log(a);
    case OpCode::kAbs:
      return std::fabs(a);
    case OpCode::kInt:
      return std::floor(a);
    default:
      return Finite(std::exp(a));
  }
}

}  // namespace lp
