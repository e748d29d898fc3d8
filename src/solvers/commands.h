#pragma once
// The command words of the solvers that run as routines.

#include "session/frontend.h"
#include "session/session.h"

namespace lp {

// shushi: the selected sum as a column calculation at the caret; the run
// ends when it is drawn or refused.
void ShuShiCommand(Session& session, Frontend& ui);

// a_c: a selected expression is set as a formula field; with nothing
// selected the permutation dialog opens.
void PermutationCommand(Session& session, Frontend& ui);

}  // namespace lp
