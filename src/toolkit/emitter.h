#pragma once
// Collects the parser's instructions, folding constants and merging a
// binary operation with a right operand that is a constant or x.

#include <vector>

#include "toolkit/program.h"

namespace lp {

class Emitter {
 public:
  void PushConst(double value);
  void PushX();
  void Unary(OpCode code);
  void Binary(OpCode code);
  // An instruction that always raises kind, in place of a call with
  // arguments already pushed.
  void Fail(EvalErrorKind kind);

  std::vector<Instruction> Take() { return std::move(program_); }

 private:
  bool LastIs(OpCode code, size_t back = 0) const;
  bool TryFold(OpCode code, double a, double b, double& result) const;

  std::vector<Instruction> program_;
};

}  // namespace lp
