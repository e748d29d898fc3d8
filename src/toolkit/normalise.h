#pragma once
// Turns mathematics typed the way it is written on the board (2x+1, sin2x,
// g2, lnx, 2pi) into the expression language of the evaluator, the variable
// x left in it. One left-to-right pass, no error result: text it can't make
// sense of comes out as text the evaluator rejects.

#include <string>

namespace lp {

std::u16string NormaliseExpression(const std::u16string& text);

// True when the text holds one of the signs of a formula ("/", "g", "^",
// "ln", "sin", "cos", "tan", "cot", "sqr", "@", "pi"): it then needs the
// formula engine rather than being a plain number.
bool HasFormulaSymbols(const std::u16string& text);

}  // namespace lp
