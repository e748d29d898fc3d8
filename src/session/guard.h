#pragma once
// The one guard around every routine of the command table and every event of
// a dialog: no error a tool raises ever leaves it, and the run always ends
// through ExitLumenpad, which keeps what the run already did.

#include <functional>
#include <string_view>

#include "session/session.h"

namespace lp {

enum class OnError {
  kReport,  // the routine's error label reports it, and the run goes on
  kEndRun,  // no handler: the runtime's own box, then the run ends
};

// Runs body. An error escaping it is reported through ReportError with the
// label "routine-->line 0" (kReport), or shown in the runtime's error box,
// after which the run ends through ExitLumenpad (kEndRun).
void RunGuarded(Session& session, std::u16string_view routine, OnError how,
                const std::function<void()>& body);

// The box the runtime shows for an error nothing handles: the program's name
// as the title, "运行时错误 'N':" and the description.
void ShowUnhandledError(Session& session, const std::exception& error);

}  // namespace lp
