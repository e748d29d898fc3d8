#pragma once
// Linear and quadratic equations and linear inequalities in one unknown x,
// solved by sampling the typed expression and written as exact answer text:
// "sqr(" a root, "/" a fraction, "K" no solution, "R" every number.
// Evaluation failures pass up as EvalError; overflow of the 16- and 32-bit
// steps as RuntimeError.

#include <optional>
#include <string>

#include "runtime/prompt.h"
#include "toolkit/answers.h"

namespace lp {

// "2x=3" gives "3/2"; a negative answer has blanks around its slash: "-3 / 2".
LinearSolution SolveLinear(const std::u16string& equation);

// ">" ">", "<" "<", "<=" "≤", ">=" "≥", "<>" "≠", anything else "".
std::u16string InequalityOpSymbol(const std::u16string& op);

// Nothing, after telling the teacher, when the text has no comparison.
std::optional<InequalitySolution> ParseInequality(const std::u16string& text, Prompt& prompt);

// Nothing, after telling the teacher, when the x^2 coefficient is 0.
std::optional<QuadraticSolution> SolveQuadratic(const std::u16string& equation, Prompt& prompt);

}  // namespace lp
