#pragma once
// The formula engine's command words, as rows of the command table run them.

#include "launcher/frontend.h"
#include "word/session.h"

namespace lp {

// gs: the selection becomes formulas; with nothing selected frmGS opens. A
// formula that does not finish in a headless run ends it with status 3.
void GsCommand(Session& session, Frontend& ui);

// mhgs: printed signs and fonts over the selection or the caret's page.
void MhgsCommand(Session& session, Frontend& ui);

}  // namespace lp
