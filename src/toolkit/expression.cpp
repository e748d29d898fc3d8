#include "toolkit/expression.h"

#include <algorithm>
#include <charconv>

#include "runtime/text.h"
#include "toolkit/normalise.h"
#include "toolkit/parser.h"

namespace lp {
namespace {

constexpr int kSmallStack = 32;  // one more than the deepest program it serves

// The stack depth the program needs; a failing call counts as a push.
int DepthOf(const std::vector<Instruction>& program) {
  int depth = 0;
  int most = 0;
  for (const Instruction& in : program) {
    if (in.code == OpCode::kPushConst || in.code == OpCode::kPushX || in.code == OpCode::kFail)
      ++depth;
    else if (in.code == OpCode::kAdd || in.code == OpCode::kSubtract ||
             in.code == OpCode::kMultiply || in.code == OpCode::kDivide ||
             in.code == OpCode::kPower)
      --depth;
    most = std::max(most, depth);
  }
  return most;
}

// One switch over every form, so that each instruction costs one dispatch;
// the top of the stack stays in a register.
double Run(const std::vector<Instruction>& program, double x, double* stack) {
  double* top = stack;
  double acc = 0;
  for (const Instruction& in : program) {
    switch (in.code) {
      case OpCode::kPushConst:
        *++top = acc;
        acc = in.value;
        break;
      case OpCode::kPushX:
        *++top = acc;
        acc = x;
        break;
      case OpCode::kPushScaledX:
        *++top = acc;
        acc = Finite(in.value * x);
        break;
      case OpCode::kPushSquareX:
        *++top = acc;
        acc = Finite(x * x);
        break;
      case OpCode::kAdd:
        acc = Finite(*top-- + acc);
        break;
      case OpCode::kAddValue:
        acc = Finite(acc + in.value);
        break;
      case OpCode::kAddX:
        acc = Finite(acc + x);
        break;
      case OpCode::kSubtract:
        acc = Finite(*top-- - acc);
        break;
      case OpCode::kSubtractValue:
        acc = Finite(acc - in.value);
        break;
      case OpCode::kSubtractX:
        acc = Finite(acc - x);
        break;
      case OpCode::kMultiply:
        acc = Finite(*top-- * acc);
        break;
      case OpCode::kMultiplyValue:
        acc = Finite(acc * in.value);
        break;
      case OpCode::kMultiplyX:
        acc = Finite(acc * x);
        break;
      case OpCode::kDivide:
        acc = Divide(*top--, acc);
        break;
      case OpCode::kDivideValue:
        acc = Divide(acc, in.value);
        break;
      case OpCode::kDivideX:
        acc = Divide(acc, x);
        break;
      case OpCode::kPower:
        acc = Power(*top--, acc);
        break;
      case OpCode::kPowerValue:
        acc = Power(acc, in.value);
        break;
      case OpCode::kPowerX:
        acc = Power(acc, x);
        break;
      case OpCode::kNegate:
        acc = -acc;
        break;
      case OpCode::kSquare:
        acc = Finite(acc * acc);
        break;
      case OpCode::kSin:
        acc = std::sin(acc);
        break;
      case OpCode::kCos:
        acc = std::cos(acc);
        break;
      case OpCode::kAbs:
        acc = std::fabs(acc);
        break;
      case OpCode::kFail:
        RaiseEvalError(static_cast<EvalErrorKind>(in.value));
      default:
        acc = ApplyUnary(in.code, acc);
        break;
    }
  }
  return acc;
}

}  // namespace

std::vector<Instruction> Fuse(const std::vector<Instruction>& program) {
  std::vector<Instruction> out;
  for (const Instruction& in : program) {
    if (!out.empty() && out.back().code == OpCode::kPushConst && in.code == OpCode::kMultiplyX)
      out.back().code = OpCode::kPushScaledX;
    else if (!out.empty() && out.back().code == OpCode::kPushX && in.code == OpCode::kMultiplyValue)
      out.back() = {OpCode::kPushScaledX, in.value};
    else if (!out.empty() && out.back().code == OpCode::kPushX && in.code == OpCode::kSquare)
      out.back().code = OpCode::kPushSquareX;
    else
      out.push_back(in);
  }
  return out;
}

CompiledExpression::CompiledExpression(const std::u16string& expression)
    : program_(ParseExpression(expression)), depth_(DepthOf(program_)), point_(Fuse(program_)) {}

double CompiledExpression::Evaluate(double x) const {
  if (depth_ < kSmallStack) {
    double stack[kSmallStack];
    return Run(point_, x, stack);
  }
  std::vector<double> stack(depth_ + 1);
  return Run(point_, x, stack.data());
}

double CompiledExpression::EvalAtX(double x) const {
  return Evaluate(XThroughText(x));
}

double XThroughText(double x) {
  char text[32];
  auto written = std::to_chars(text, text + sizeof text, x, std::chars_format::scientific, 14);
  double back = x;
  std::from_chars(text, written.ptr, back);
  return back;
}

double EvalAtX(double x, const std::u16string& expression) {
  return CompiledExpression(expression).EvalAtX(x);
}

double EvalWithoutVariable(const std::u16string& text) {
  std::u16string trimmed = Trim(text);
  if (trimmed.empty()) return 0;
  return CompiledExpression(NormaliseExpression(trimmed)).Evaluate(0);
}

}  // namespace lp
