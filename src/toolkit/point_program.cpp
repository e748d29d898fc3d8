#include "toolkit/point_program.h"

#include <iterator>
#include <optional>

namespace lp {
namespace {

// The one step that does leaf and then in, if there is one. A product is
// the same double either way round, so x*2 fuses as 2*x does.
std::optional<Instruction> Fused(const Instruction& leaf, const Instruction& in) {
  if (leaf.code == OpCode::kPushConst && in.code == OpCode::kMultiplyX)
    return Instruction{OpCode::kPushScaledX, leaf.value};
  if (leaf.code != OpCode::kPushX) return std::nullopt;
  switch (in.code) {
    case OpCode::kMultiplyValue:
      return Instruction{OpCode::kPushScaledX, in.value};
    case OpCode::kMultiplyX:
    case OpCode::kSquare:
      return Instruction{OpCode::kPushSquareX};
    case OpCode::kAbs:
      return Instruction{OpCode::kPushAbsX};
    default:
      return std::nullopt;
  }
}

}  // namespace

PointProgram::PointProgram(const std::vector<Instruction>& program, int depth) : depth_(depth) {
  for (const Instruction& in : program) {
    std::optional<Instruction> fused;
    if (!steps_.empty()) fused = Fused(steps_.back(), in);
    if (fused)
      steps_.back() = *fused;
    else
      steps_.push_back(in);
  }
  steps_.push_back({OpCode::kEnd});
}

// With GCC and Clang every step ends in its own jump to the next step's
// code, which the branch predictor learns far better than the one shared
// jump of a switch; elsewhere the same steps are the cases of a switch.
#if defined(__GNUC__)
#define LP_BEGIN goto* kStepCode[static_cast<int>(step->code)];
#define LP_STEP(name) \
  name:
#define LP_NEXT goto* kStepCode[static_cast<int>((++step)->code)]
#define LP_END
#else
#define LP_BEGIN \
  for (;; ++step) switch (step->code) {
#define LP_STEP(name) case OpCode::k##name:
#define LP_NEXT continue
#define LP_END }
#endif

#define LP_UNARY(name)                                  \
  LP_STEP(name) acc = ApplyUnary(OpCode::k##name, acc); \
  LP_NEXT;

#define LP_BINARY(name)                                                      \
  LP_STEP(name) acc = ApplyBinary(OpCode::k##name, *--top, acc);             \
  LP_NEXT;                                                                   \
  LP_STEP(name##Value) acc = ApplyBinary(OpCode::k##name, acc, step->value); \
  LP_NEXT;                                                                   \
  LP_STEP(name##X) acc = ApplyBinary(OpCode::k##name, acc, x);               \
  LP_NEXT;

double PointProgram::Run(double x) const {
  constexpr int kSmallStack = 32;
  if (depth_ <= kSmallStack) {
    double stack[kSmallStack];
    return RunOn(x, stack);
  }
  std::vector<double> stack(depth_);
  return RunOn(x, stack.data());
}

double PointProgram::RunOn(double x, double* stack) const {
#if defined(__GNUC__)
  static const void* const kStepCode[] = {
      &&PushConst,     &&PushX,     &&Add,      &&AddValue,      &&AddX,      &&Subtract,
      &&SubtractValue, &&SubtractX, &&Multiply, &&MultiplyValue, &&MultiplyX, &&Divide,
      &&DivideValue,   &&DivideX,   &&Power,    &&PowerValue,    &&PowerX,    &&Negate,
      &&Square,        &&Sin,       &&Cos,      &&Tan,           &&Atn,       &&Sqr,
      &&Log,           &&Abs,       &&Int,      &&Exp,           &&Fail,      &&PushScaledX,
      &&PushSquareX,   &&PushAbsX,  &&End};  // in the order of OpCode
  static_assert(std::size(kStepCode) == static_cast<size_t>(OpCode::kEnd) + 1);
#endif
  const Instruction* step = steps_.data();
  double acc = 0;       // the top of the stack
  double* top = stack;  // where the value under acc goes
  auto push = [&acc, &top](double value) {
    *top++ = acc;
    acc = value;
  };
  LP_BEGIN
  LP_STEP(PushConst) push(step->value);
  LP_NEXT;
  LP_STEP(PushX) push(x);
  LP_NEXT;
  LP_STEP(PushScaledX) push(Finite(step->value * x));
  LP_NEXT;
  LP_STEP(PushSquareX) push(Finite(x * x));
  LP_NEXT;
  LP_STEP(PushAbsX) push(std::fabs(x));
  LP_NEXT;
  LP_BINARY(Add)
  LP_BINARY(Subtract)
  LP_BINARY(Multiply)
  LP_BINARY(Divide)
  LP_BINARY(Power)
  LP_UNARY(Negate)
  LP_UNARY(Square)
  LP_UNARY(Sin)
  LP_UNARY(Cos)
  LP_UNARY(Tan)
  LP_UNARY(Atn)
  LP_UNARY(Sqr)
  LP_UNARY(Log)
  LP_UNARY(Abs)
  LP_UNARY(Int)
  LP_UNARY(Exp)
  LP_STEP(Fail) RaiseEvalError(static_cast<EvalErrorKind>(step->value));
  LP_STEP(End) return acc;
  LP_END
}

#undef LP_BEGIN
#undef LP_STEP
#undef LP_NEXT
#undef LP_END
#undef LP_UNARY
#undef LP_BINARY

}  // namespace lp
