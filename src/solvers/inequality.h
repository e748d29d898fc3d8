#pragma once
// The inequality dialog without its widgets: the label of a solution and the
// worked solution typed into Word, with the set and the number line.

#include <string>

#include "session/session.h"
#include "toolkit/answers.h"

namespace lp {

// "不等式的解为：x>-2", or with "R" and "K" "不等式的解为： x ∈R".
std::u16string InequalityLabel(const InequalitySolution& s);

struct InequalityChoices {
  bool optAll = true;  // the steps before the answer; optKeyOnly otherwise
  bool chkSet = false;
};

// The steps (with optAll), the answer and the set (with chkSet). The number
// line is DrawSolutionOnNumberLine's.
void TypeInequalitySolution(Session& session, const InequalitySolution& s,
                            const InequalityChoices& choices);

// Drives the number-line dialog unseen, on a new line: its controls set from the bound and
// the sign, then its OK and its cancel, which groups the figure and writes
// the dialog's record. After it the run ends, as the cancel of that dialog
// always ends it.
void DrawSolutionOnNumberLine(Session& session, const InequalitySolution& s);

}  // namespace lp
