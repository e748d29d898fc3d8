#pragma once
// What the exact arithmetic hands back to the dialogs: the values the solver
// dialogs read after a call, each under its customary name.

#include <cstdint>
#include <string>

namespace lp {

// ReduceFraction, DecimalToFraction.
struct Fraction {
  double ReducedNum = 0;
  int32_t ReducedDen = 1;
};

// SimplifyRadical: the root of RootInner with RootOuter taken out.
struct Radical {
  int16_t RootIndex = 0;
  int16_t RootOuter = 1;
  int32_t RootInner = 1;
};

// SolveLinear: a x + b = 0 and its answer text.
struct LinearSolution {
  double a = 0;       // f(1) - f(0): what the answer is computed from
  float LinearA = 0;  // a as stored for the dialogs, rounded to Single
  double LinearB = 0;
  std::u16string LinearText;
};

// ParseInequality.
struct InequalitySolution {
  std::u16string InequalityOp;                     // as found
  std::u16string InequalityLeft, InequalityRight;  // the sides as typed, trimmed
  std::u16string InequalityResultOp;               // the operator of the answer
  std::u16string InequalityText;                   // the bound, or "K" or "R"
  double CoefX = 0, CoefConst = 0;                 // a and b of a x + b
  double ResultNumber = 0;                         // -b / a
};

// SolveQuadratic. With QuadDelta below 0, or not whole (the teacher is told
// so), the roots and texts stay empty.
struct QuadraticSolution {
  double QuadA = 0, QuadB = 0, QuadC = 0, QuadDelta = 0;
  int16_t QuadRootIndex = 0;
  int16_t QuadRootOuter = 1;
  int32_t QuadRootInner = 1;
  double Root1 = 0, Root2 = 0;  // Root1 with the minus sign before the root
  std::u16string Root1Text, Root2Text;
};

}  // namespace lp
