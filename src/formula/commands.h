#pragma once
// The command words of the formula engine, for the launcher's table.

#include "formula/driver.h"
#include "word/session.h"

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

}  // namespace lp
