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
  // depth is the postfix program's deepest stack.
  PointProgram(const std::vector<Instruction>& program, int depth);

  // The value at x, raising EvalError where the postfix program would, with
  // the same kind.
  double Run(double x) const;

 private:
  double RunOn(double x, double* stack) const;

  std::vector<Instruction> steps_;
  int depth_;
};

}  // namespace lp
