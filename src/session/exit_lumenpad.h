#pragma once
// The one way a run ends on purpose: release Word and end the process.

#include "session/session.h"

namespace lp {

// Sets WordApp to nothing and ends the run through session.EndRun, which the
// executable makes save the document and leave the process at once. If that
// fails, the box "exitlumenpad" tells so.
void ExitLumenpad(Session& session);

}  // namespace lp
