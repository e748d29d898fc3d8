#include "solvers/commands.h"

#include "session/exit_lumenpad.h"
#include "session/guard.h"
#include "solvers/shushi.h"

namespace lp {

void ShuShiCommand(Session& session, Frontend&) {
  RunGuarded(session, u"ShuShi", OnError::kReport, [&session] { ShuShi(session); });
  ExitLumenpad(session);
}

}  // namespace lp
