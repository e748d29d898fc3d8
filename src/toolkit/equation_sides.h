#pragma once
// An equation normalised and taken apart at its first "=": f(x) is the left
// side minus the right side.

#include <string>

namespace lp {

class EquationSides {
 public:
  // Raises "Invalid procedure call" (5) when there is no "=", as cutting at
  // a missing position did.
  explicit EquationSides(const std::u16string& equation);
  double F(double x) const;

 private:
  std::u16string left_, right_;
};

// Trim(Str(value)): how the answers write a number.
std::u16string NumberText(double value);

}  // namespace lp
