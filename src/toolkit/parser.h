#pragma once
// Reads an expression of the evaluator's language into postfix instructions,
// folding operations on constants where they can't fail.

#include <string>
#include <vector>

#include "toolkit/program.h"

namespace lp {

// Raises EvalError (syntax, too complex, a literal beyond the double range).
std::vector<Instruction> ParseExpression(const std::u16string& text);

}  // namespace lp
