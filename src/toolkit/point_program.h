#pragma once
// The expression as it runs at one point at a time. The postfix program is
// rewritten for the purpose: the top of the stack lives in a register, the
// commonest leaf patterns of a curve (2*x, x^2, abs(x)) are single steps,
// and each step jumps straight to the next one's code, so that an
// evaluation costs little more than its arithmetic.

#include <vector>

#include "toolkit/program.h"

namespace lp {

class PointProgram {
 public:
  explicit PointProgram(const std::vector<Instruction>& program);

  // The value at x, raising EvalError where the postfix program would, with
  // the same kind. stack holds at least as many values as the postfix
  // program's deepest stack.
  double Run(double x, double* stack) const;

 private:
  std::vector<Instruction> steps_;
};

}  // namespace lp
