#include "toolkit/expression.h"

#include <algorithm>

#include "runtime/text.h"
#include "toolkit/normalise.h"
#include "toolkit/parser.h"

namespace lp {
namespace {

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
    : program_(ParseExpression(expression)), depth_(DepthOf(program_)), point_(program_, depth_) {}

double CompiledExpression::Evaluate(double x) const {
  return point_.Run(x);
}

double CompiledExpression::EvalAtX(double x) const {
  return Evaluate(XThroughText(x));
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
