#pragma once
// The evaluator of typed expressions: the script language's expressions over
// doubles, with + - * / ^ (^ above the unary minus, left to right), the
// functions sin cos tan atn sqr log abs int exp, brackets and the variable x.
// Any other name is an unset variable worth 0, so "x2" is 0. Failures raise
// EvalError (toolkit/eval_error.h) with the kind and the script's number.
//
// Parse once, evaluate many: a graph compiles its expression once and samples
// it at thousands of points.

#include <span>
#include <string>
#include <vector>

#include "toolkit/point_program.h"
#include "toolkit/program.h"

namespace lp {

class CompiledExpression {
 public:
  // Raises EvalError for text that is no expression of the language.
  explicit CompiledExpression(const std::u16string& expression);

  // The value at exactly x; every other failure is raised here, in the
  // order the script evaluator met them.
  double Evaluate(double x) const;
  // The value where x first passes through its 15-digit text form, exactly
  // as EvalAtX gives it.
  double EvalAtX(double x) const;
  // Evaluate at each of xs, a block of points at a time: the values are
  // those of Evaluate, and a point where Evaluate fails gets NaN (a value
  // never is NaN). Evaluate tells why a point failed. For the values of
  // EvalAtX, pass the xs through XThroughText first.
  void EvaluateMany(std::span<const double> xs, std::span<double> values) const;

 private:
  std::vector<Instruction> program_;
  int depth_ = 0;
  PointProgram point_;
};

// x as it reads back from the shortest text the runtime writes for it: 15
// significant digits.
double XThroughText(double x);

// The value of a normalised expression with x set to x.
double EvalAtX(double x, const std::u16string& expression);

// Trims and normalises the text and evaluates it without a variable (x then
// counts as unset, worth 0); an empty text is 0.
double EvalWithoutVariable(const std::u16string& text);

}  // namespace lp
