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

}  // namespace

CompiledExpression::CompiledExpression(const std::u16string& expression)
    : program_(ParseExpression(expression)), depth_(DepthOf(program_)), point_(program_) {}

double CompiledExpression::Evaluate(double x) const {
  if (depth_ <= kSmallStack) {
    double stack[kSmallStack];
    return point_.Run(x, stack);
  }
  std::vector<double> stack(depth_);
  return point_.Run(x, stack.data());
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
