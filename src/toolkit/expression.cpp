#include "toolkit/expression.h"

#include <algorithm>
#include <charconv>

#include "runtime/text.h"
#include "toolkit/normalise.h"
#include "toolkit/parser.h"

namespace lp {
namespace {

constexpr int kSmallStack = 32;

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

// One switch over every form, so that each instruction costs one dispatch.
double Run(const std::vector<Instruction>& program, double x, double* stack) {
  double* top = stack - 1;
  auto pop = [&top] { return *top--; };
  for (const Instruction& in : program) {
    switch (in.code) {
      case OpCode::kPushConst:
        *++top = in.value;
        break;
      case OpCode::kPushX:
        *++top = x;
        break;
      case OpCode::kAdd: {
        double b = pop();
        *top = Finite(*top + b);
        break;
      }
      case OpCode::kAddValue:
        *top = Finite(*top + in.value);
        break;
      case OpCode::kAddX:
        *top = Finite(*top + x);
        break;
      case OpCode::kSubtract: {
        double b = pop();
        *top = Finite(*top - b);
        break;
      }
      case OpCode::kSubtractValue:
        *top = Finite(*top - in.value);
        break;
      case OpCode::kSubtractX:
        *top = Finite(*top - x);
        break;
      case OpCode::kMultiply: {
        double b = pop();
        *top = Finite(*top * b);
        break;
      }
      case OpCode::kMultiplyValue:
        *top = Finite(*top * in.value);
        break;
      case OpCode::kMultiplyX:
        *top = Finite(*top * x);
        break;
      case OpCode::kDivide: {
        double b = pop();
        *top = Divide(*top, b);
        break;
      }
      case OpCode::kDivideValue:
        *top = Divide(*top, in.value);
        break;
      case OpCode::kDivideX:
        *top = Divide(*top, x);
        break;
      case OpCode::kPower: {
        double b = pop();
        *top = Power(*top, b);
        break;
      }
      case OpCode::kPowerValue:
        *top = Power(*top, in.value);
        break;
      case OpCode::kPowerX:
        *top = Power(*top, x);
        break;
      case OpCode::kNegate:
        *top = -*top;
        break;
      case OpCode::kSquare:
        *top = Finite(*top * *top);
        break;
      case OpCode::kSin:
        *top = std::sin(*top);
        break;
      case OpCode::kCos:
        *top = std::cos(*top);
        break;
      case OpCode::kAbs:
        *top = std::fabs(*top);
        break;
      case OpCode::kFail:
        RaiseEvalError(static_cast<EvalErrorKind>(in.value));
      default:
        *top = ApplyUnary(in.code, *top);
        break;
    }
  }
  return *top;
}

}  // namespace

CompiledExpression::CompiledExpression(const std::u16string& expression)
    : program_(ParseExpression(expression)), depth_(DepthOf(program_)) {}

double CompiledExpression::Evaluate(double x) const {
  if (depth_ <= kSmallStack) {
    double stack[kSmallStack];
    return Run(program_, x, stack);
  }
  std::vector<double> stack(depth_);
  return Run(program_, x, stack.data());
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
