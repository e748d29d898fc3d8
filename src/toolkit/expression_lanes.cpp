// The evaluator over a block of points at once: each instruction runs over
// all points of the block, which pays the dispatch once per block. A failure
// is NaN instead of an exception; every operation keeps NaN, so a point fails
// here exactly where the one-point evaluator raises.

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "toolkit/expression.h"

namespace lp {
namespace {

constexpr int kLanes = 64;
constexpr double kFailed = std::numeric_limits<double>::quiet_NaN();

inline double Kept(double r) {
  return std::isfinite(r) ? r : kFailed;
}

struct AddLanes {
  double operator()(double a, double b) const { return Kept(a + b); }
};
struct SubtractLanes {
  double operator()(double a, double b) const { return Kept(a - b); }
};
struct MultiplyLanes {
  double operator()(double a, double b) const { return Kept(a * b); }
};
struct DivideLanes {
  double operator()(double a, double b) const { return b == 0 ? kFailed : Kept(a / b); }
};
struct PowerLanes {
  double operator()(double a, double b) const {
    if (std::isnan(a) || std::isnan(b)) return kFailed;
    if (b == 2) return Kept(a * a);
    if ((a < 0 && b != std::floor(b)) || (a == 0 && b < 0)) return kFailed;
    return Kept(std::pow(a, b));
  }
};

double UnaryLane(OpCode code, double a) {
  switch (code) {
    case OpCode::kSqr:
      return a < 0 ? kFailed : std::sqrt(a);
    case OpCode::kLog:
      return a <= 0 ? kFailed : std::log(a);
    case OpCode::kSquare:
      return Kept(a * a);
    case OpCode::kExp:
      return Kept(std::exp(a));
    default:
      return ApplyUnary(code, a);  // the rest can't fail and keep NaN
  }
}

class Lanes {
 public:
  Lanes(const double* x, int n, double* stack) : x_(x), n_(n), top_(stack - kLanes) {}

  void Push(double value) {
    top_ += kLanes;
    std::fill(top_, top_ + n_, value);
  }
  void PushX() {
    top_ += kLanes;
    std::copy(x_, x_ + n_, top_);
  }
  // form 0: right operand on the stack, 1: value, 2: x.
  template <typename F>
  void Binary(int form, double value, F f) {
    if (form == 0) {
      top_ -= kLanes;
      const double* right = top_ + kLanes;
      for (int i = 0; i < n_; ++i) top_[i] = f(top_[i], right[i]);
    } else if (form == 1) {
      for (int i = 0; i < n_; ++i) top_[i] = f(top_[i], value);
    } else {
      for (int i = 0; i < n_; ++i) top_[i] = f(top_[i], x_[i]);
    }
  }
  void Unary(OpCode code) {
    switch (code) {
      case OpCode::kNegate:
        For([](double a) { return -a; });
        break;
      case OpCode::kSin:
        For([](double a) { return std::sin(a); });
        break;
      case OpCode::kCos:
        For([](double a) { return std::cos(a); });
        break;
      case OpCode::kAbs:
        For([](double a) { return std::fabs(a); });
        break;
      case OpCode::kSquare:
        For([](double a) { return Kept(a * a); });
        break;
      default:
        For([code](double a) { return UnaryLane(code, a); });
        break;
    }
  }
  const double* Top() const { return top_; }

 private:
  template <typename F>
  void For(F f) {
    for (int i = 0; i < n_; ++i) top_[i] = f(top_[i]);
  }

  const double* x_;
  int n_;
  double* top_;
};

void RunBlock(const std::vector<Instruction>& program, const double* x, int n, double* stack,
              double* values) {
  Lanes lanes(x, n, stack);
  for (const Instruction& in : program) {
    int form = IsBinary(in.code) ? (static_cast<int>(in.code) - 2) % 3 : 0;
    OpCode stackForm = BinaryForm(in.code, -form);
    switch (stackForm) {
      case OpCode::kPushConst:
        lanes.Push(in.value);
        break;
      case OpCode::kPushX:
        lanes.PushX();
        break;
      case OpCode::kAdd:
        lanes.Binary(form, in.value, AddLanes());
        break;
      case OpCode::kSubtract:
        lanes.Binary(form, in.value, SubtractLanes());
        break;
      case OpCode::kMultiply:
        lanes.Binary(form, in.value, MultiplyLanes());
        break;
      case OpCode::kDivide:
        lanes.Binary(form, in.value, DivideLanes());
        break;
      case OpCode::kPower:
        lanes.Binary(form, in.value, PowerLanes());
        break;
      case OpCode::kFail:
        std::fill(values, values + n, kFailed);
        return;
      default:
        lanes.Unary(in.code);
        break;
    }
  }
  std::copy(lanes.Top(), lanes.Top() + n, values);
}

}  // namespace

void CompiledExpression::EvaluateMany(std::span<const double> xs, std::span<double> values) const {
  std::vector<double> stack(static_cast<size_t>(std::max(depth_, 1)) * kLanes);
  for (size_t start = 0; start < xs.size(); start += kLanes) {
    int n = static_cast<int>(std::min<size_t>(kLanes, xs.size() - start));
    RunBlock(program_, xs.data() + start, n, stack.data(), values.data() + start);
  }
}

}  // namespace lp
