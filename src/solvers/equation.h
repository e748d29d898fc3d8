#pragma once
// The equation dialog without its widgets: the worked solutions of the
// linear and the quadratic tab, typed into Word.

#include <string>
#include <vector>

#include "session/session.h"
#include "toolkit/answers.h"

namespace lp {

// "方程的解为：x=" and the answer.
std::u16string LinearLabel(const LinearSolution& s);
// The lines of List_Q: "方程无实根", or x1 and x2 with their exact texts and
// their values to four decimals.
std::vector<std::u16string> QuadraticList(const QuadraticSolution& q);

// equation is the trimmed text of the box; withSteps is optAll_L.
void TypeLinearSolution(word::Selection& selection, const std::u16string& equation,
                        const LinearSolution& s, bool withSteps);

// withSteps is optAll_Q; without it only the roots are typed.
void TypeQuadraticSolution(Session& session, const std::u16string& equation,
                           const QuadraticSolution& q, bool withSteps);

}  // namespace lp
