#pragma once
// The command words of the formula engine.

#include "formula/driver.h"
#include "session/frontend.h"
#include "session/session.h"

namespace lp {

enum class GsOutcome {
  kDone,        // the selection was converted (or the teacher was told why not)
  kShowDialog,  // nothing to convert: the caller opens frmGS
  kTimedOut,    // the formula did not finish; the document is untouched
};

// gs: the selected notation becomes EQ fields, or one TeX equation when
// blMathType is set. The whole selection is converted before the document
// changes, so a formula that never ends leaves it as it was; the teacher is
// told, and the caller ends the run with status 3.
GsOutcome RunGs(Session& session, const DriverControl& control);

// mhgs: printed signs and fonts over the selection, or the caret's page.
void RunMhgs(Session& session);

// How the rewrite loop is watched in this run: with a teacher, pump keeps the
// program responsive and returns false once the teacher cancels; headless,
// nobody can cancel, so the session's time limit cuts a formula off.
DriverControl FormulaControl(const Session& session, std::function<bool()> pump);

// The routines of the command words gs and mhgs. A gs formula that does not
// finish in time ends the run with kExitTimedOut.
void GsCommand(Session& session, Frontend& ui);
void MhgsCommand(Session& session, Frontend& ui);

}  // namespace lp
