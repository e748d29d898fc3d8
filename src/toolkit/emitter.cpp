#include "toolkit/emitter.h"

namespace lp {

void Emitter::PushConst(double value) {
  program_.push_back({OpCode::kPushConst, value});
}

void Emitter::PushX() {
  program_.push_back({OpCode::kPushX});
}

void Emitter::Fail(EvalErrorKind kind) {
  program_.push_back({OpCode::kFail, static_cast<double>(kind)});
}

bool Emitter::LastIs(OpCode code, size_t back) const {
  return program_.size() > back && program_[program_.size() - 1 - back].code == code;
}

bool Emitter::TryFold(OpCode code, double a, double b, double& result) const {
  try {
    result = ApplyBinary(code, a, b);
    return true;
  } catch (const EvalError&) {
    return false;  // left to fail at its turn, after what comes before it
  }
}

void Emitter::Unary(OpCode code) {
  if (LastIs(OpCode::kPushConst)) {
    try {
      program_.back().value = ApplyUnary(code, program_.back().value);
      return;
    } catch (const EvalError&) {
    }
  }
  program_.push_back({code});
}

void Emitter::Binary(OpCode code) {
  double folded;
  if (LastIs(OpCode::kPushConst) && LastIs(OpCode::kPushConst, 1) &&
      TryFold(code, program_[program_.size() - 2].value, program_.back().value, folded)) {
    program_.pop_back();
    program_.back().value = folded;
  } else if (code == OpCode::kPower && LastIs(OpCode::kPushConst) && program_.back().value == 2) {
    program_.back() = {OpCode::kSquare};
  } else if (LastIs(OpCode::kPushConst)) {
    program_.back().code = BinaryForm(code, 1);
  } else if (LastIs(OpCode::kPushX)) {
    program_.back().code = BinaryForm(code, 2);
  } else {
    program_.push_back({code});
  }
}

}  // namespace lp
